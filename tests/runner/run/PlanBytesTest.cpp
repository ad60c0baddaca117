// What a plan sends to the DUT are the bytes of the same clicks: also behind the check, which has typed
// everything once, and from one combination to the next.
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QtTest>

#include "Trace/lines/TraceReader.h"
#include "tests/common/PluginSession.h"
#include "tests/common/SimJournal.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"

namespace {

constexpr char kPlan[] = R"(quorlin: 1
plan: Bytes
transmit: {max_dbm: 10}
steps:
  - step: tone
    page: Single Tone TX
    sweep: {band: [n78, n41], txPowerValue: [3, 5.5]}
    set: {afcdac: 4000}
    press: [Start, Fetch PD]
    then: [Stop]
  - step: again
    page: Single Tone TX
    set: {txPowerValue: -5, ulFrequency: 2600000}
    sweep: {afcDataType: ["true"]}
    press: [Start]
    then: [Stop]
)";

// What a plan and a person ask of the DUT beyond its capabilities, which are read at every start.
QStringList Orders(const QVector<QPair<QString, QByteArray>> &calls)
{
    QStringList orders;
    for (const auto &[function, request] : calls)
        for (const char *word : {"SingleToneTx", "GetPdValue", "TestStop"})
            if (function.contains(word))
                orders << function + ' ' + request.toHex();
    return orders;
}

QStringList OrdersOfPlan(const QString &folder)
{
    QFile plan(folder + "/plan.yaml");
    if (!plan.open(QIODevice::WriteOnly) || plan.write(kPlan) < 0)
        return {};
    plan.close();
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("VOND_SIM_JOURNAL", folder + "/j.jsonl");
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder);
    process.start(QCoreApplication::applicationDirPath() + "/quorlin",
                  {"run", "plan.yaml", "--allow-transmit", "--profile", "handset", "--out", "out"});
    if (!process.waitForFinished(60000) || process.exitCode() != 0)
        return {QString::fromUtf8(process.readAll() + process.readAllStandardError())};
    QVector<QPair<QString, QByteArray>> calls;
    for (const STraceCall &call :
         ReadTrace((folder + "/j.jsonl").toStdString(), ECutLine::Refused).calls)
        calls.append(
            {QString::fromLatin1(call.function->name.data(), int(call.function->name.size())),
             call.request ? QByteArray(reinterpret_cast<const char *>(call.request->data()),
                                       int(call.request->size()))
                          : QByteArray()});
    return Orders(calls);
}

QString Member(const char *key)
{
    return QString("cmdIf_request_group1_memberProperty_") + key;
}

void Type(CPluginSession &session, const char *key, const char *text)
{
    auto *line = session.Find<QWidget>(Member(key))->findChild<QLineEdit *>();
    QVERIFY(line);
    line->selectAll();
    QTest::keyClicks(line, text);
    QTest::keyClick(line, Qt::Key_Return);
}

void RunTone(CPluginSession &session, bool isFetched)
{
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Single Tone Tx start..."));
    if (isFetched) {
        session.Press("m_btnFetchPd");
        QVERIFY(session.WaitForStatus("Finish fetch PD value."));
    }
    session.Press("m_stop");
    QVERIFY(session.WaitForStatus("Single Tone Tx stop."));
}

}  // namespace

class PlanBytesTest : public QObject
{
    Q_OBJECT

private slots:
    void aPlanSendsTheBytesOfTheSameClicks();
};

void PlanBytesTest::aPlanSendsTheBytesOfTheSameClicks()
{
    QTemporaryDir folder;
    const QStringList ofPlan = OrdersOfPlan(folder.path());

    CPluginSession session("handset", 1, "CNrSingleToneTxDockWidgetV7");
    QVERIFY(session.ShowAndWait());
    for (const char *band : {"n78", "n41"})
        for (const char *power : {"3", "5.5"}) {
            session.Find<QComboBox>(Member("band"))->setCurrentText(band);
            Type(session, "txPowerValue", power);
            Type(session, "afcdac", "4000");
            RunTone(session, true);
        }
    session.Find<QCheckBox>(Member("afcDataType"))->click();
    Type(session, "txPowerValue", "-5");
    Type(session, "ulFrequency", "2600000");
    RunTone(session, false);
    session.Find<QPushButton>("m_rfOff")->click();
    QVERIFY(session.WaitForStatus("RF off."));

    QVector<QPair<QString, QByteArray>> calls;
    for (const SJournalCall &call : Journal())
        calls.append({call.call.function, call.request});
    const QStringList ofClicks = Orders(calls);
    QCOMPARE(ofClicks.size(), 4 * 3 + 2 + 2);
    QCOMPARE(ofPlan.join('\n'), ofClicks.join('\n'));
}

QUORLIN_TEST_CLASS(PlanBytesTest)
#include "PlanBytesTest.moc"
