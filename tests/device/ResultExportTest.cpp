// "Export results..." at the plug-in's door: what was fetched stands in the file.
#include <QAction>
#include <QDateTime>
#include <QTemporaryDir>

#include "Simulator/VondSim.h"
#include "tests/common/BoxWatcher.h"
#include "tests/common/TestClass.h"
#include "tests/device/ResultSession.h"
#include "tests/device/RsrpSession.h"

namespace {

constexpr char kNothing[] = "There are no results to export.";

QString TitleOf(const CRsrpSession &session)
{
    return session.Page()->windowTitle();
}

}  // namespace

class ResultExportTest : public QObject
{
    Q_OBJECT

private slots:
    void csvHasTheRowsThatThePageShows_data() { BothRsrpPages(); }
    void csvHasTheRowsThatThePageShows();
    void rowsHaveTheTimeOfTheirFetch();
    void settingsAreThoseOfTheRun_data() { BothRsrpPages(); }
    void settingsAreThoseOfTheRun();
    void jsonLinesBeginWithTheSettings();
    void fourAntennasHaveTheirColumns();
    void clearAndStartEndWhatIsExported_data() { BothRsrpPages(); }
    void clearAndStartEndWhatIsExported();
    void failedFetchIsARow();
    void cancelledDialogWritesNothing();
    void fileThatCannotBeWrittenIsToldInABox();
    void foreignSettingsFileIsLeftAlone();
    void exportDoesNotWaitForABusyTarget();
    void resetWhileTheDialogIsOpen();
    void resetAndUnloadWhileTheFileIsWritten_data();
    void resetAndUnloadWhileTheFileIsWritten();
};

void ResultExportTest::csvHasTheRowsThatThePageShows()
{
    QFETCH(QString, mode);
    const QTemporaryDir folder;
    CRsrpSession session(mode);
    QVERIFY(session.Ready());
    PressExport(session);
    QCOMPARE(session.StatusBar(), QString(kNothing));
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Rsrp start..."));
    for (int fetch = 0; fetch < 15; ++fetch)
        QVERIFY(session.Fetch());
    // More rows than hold editors.
    QCOMPARE(session.Rows(), 75);
    const QString file = folder.filePath("rsrp.csv");
    QVERIFY(Export(session, file));
    QCOMPARE(session.StatusBar(), "Exported 75 rows to " + file + ".");
    const CCsvFile csv(file);
    QCOMPARE(csv.Headers(),
             QStringList({"Time", "RSRP0 (dBm)", "RSRP1 (dBm)", "RSSI0 (dBm)", "RSSI1 (dBm)",
                          "Bad BLK", "Good BLK", "Total BLK", "BLER (%)"}));
    QCOMPARE(csv.Column("RSRP0 (dBm)"), session.Column("RSRP0"));
    QCOMPARE(csv.Column("RSSI1 (dBm)"), session.Column("RSSI1"));
    QCOMPARE(csv.Column("Total BLK"), session.Column("Total BLK"));
    QCOMPARE(csv.Column("BLER (%)"), session.Column("BLER(%)"));
    QVERIFY(FileBytes(file).endsWith("\r\n"));
}

void ResultExportTest::rowsHaveTheTimeOfTheirFetch()
{
    const QTemporaryDir folder;
    CRsrpSession session("Force");
    QVERIFY(session.Running());
    const QDateTime before = QDateTime::currentDateTimeUtc();
    QVERIFY(session.Fetch());
    QTest::qWait(5);
    const QDateTime between = QDateTime::currentDateTimeUtc();
    QVERIFY(session.Fetch());
    const QDateTime after = QDateTime::currentDateTimeUtc();
    QVERIFY(Export(session, folder.filePath("rsrp.csv")));
    const QStringList times = CCsvFile(folder.filePath("rsrp.csv")).Column("Time");
    QCOMPARE(times.size(), 10);
    QCOMPARE(times.count(times.first()), 5);
    QCOMPARE(times.count(times.last()), 5);
    const QRegularExpression form(R"(^\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{3}[+-]\d\d:\d\d$)");
    QVERIFY2(form.match(times.first()).hasMatch(), qPrintable(times.first()));
    const QDateTime first = QDateTime::fromString(times.first(), Qt::ISODateWithMs);
    const QDateTime second = QDateTime::fromString(times.last(), Qt::ISODateWithMs);
    QVERIFY(before <= first && first <= between);
    QVERIFY(between <= second && second <= after);
}

void ResultExportTest::settingsAreThoseOfTheRun()
{
    QFETCH(QString, mode);
    const QTemporaryDir folder;
    CRsrpSession session(mode);
    QVERIFY(session.Ready());
    session.Input<QSpinBox>("group1", "measCnt")->setValue(3);
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Rsrp start..."));
    QVERIFY(session.Fetch());
    QVERIFY(session.Stop());
    // What is chosen for the next run did not give these rows.
    session.Input<QSpinBox>("group1", "measCnt")->setValue(7);
    QVERIFY(Export(session, folder.filePath("rsrp.csv")));
    const QJsonObject settings = JsonFile(folder.filePath("rsrp.json"));
    QCOMPARE(settings["page"].toString(), TitleOf(session));
    QCOMPARE(settings["version"].toInt(), 1);
    QVERIFY(!settings["tool"].toString().isEmpty());
    QString chip;
    QVERIFY(QMetaObject::invokeMethod(session.Object(), "ChipName", Q_RETURN_ARG(QString, chip)));
    QVERIFY(!chip.isEmpty());
    QCOMPARE(settings["chip"].toString(), chip);
    const QJsonObject carrier = settings["request"].toObject()["group1"].toObject();
    QCOMPARE(carrier["measCnt"].toString(), QString("3"));
    QCOMPARE(carrier["band"].toString(), QString("n1"));
    QCOMPARE(carrier["reportPeriod"].toString(), QString("10000"));
}

void ResultExportTest::jsonLinesBeginWithTheSettings()
{
    const QTemporaryDir folder;
    CRsrpSession session("Force");
    QVERIFY(session.Running());
    QVERIFY(session.Fetch());
    QVERIFY(Export(session, folder.filePath("rsrp.jsonl")));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList{"rsrp.jsonl"});
    const QList<QByteArray> lines = FileBytes(folder.filePath("rsrp.jsonl")).split('\n');
    QCOMPARE(lines.size(), 7);
    const QJsonObject settings = QJsonDocument::fromJson(lines[0]).object();
    QCOMPARE(settings["page"].toString(), TitleOf(session));
    QVERIFY(settings["request"].toObject().contains("group1"));
    const QJsonObject row = QJsonDocument::fromJson(lines[5]).object();
    QCOMPARE(row["RSRP0 (dBm)"].toDouble(), session.Cell(4, "RSRP0").toDouble());
    QVERIFY(row["Total BLK"].isDouble());
    QVERIFY(QDateTime::fromString(row["Time"].toString(), Qt::ISODateWithMs).isValid());
}

void ResultExportTest::fourAntennasHaveTheirColumns()
{
    const QTemporaryDir folder;
    CRsrpSession session("Normal");
    QVERIFY(session.Ready());
    QVERIFY(session.Choose("mimoType", "4x4"));
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Rsrp start..."));
    QVERIFY(session.Fetch());
    QVERIFY(Export(session, folder.filePath("rsrp.csv")));
    const CCsvFile csv(folder.filePath("rsrp.csv"));
    QCOMPARE(csv.Rows(), 5);
    QCOMPARE(csv.Headers().size(), 13);
    for (const char *antenna : {"0", "1", "2", "3"}) {
        const QString name = QString("RSRP") + antenna;
        QCOMPARE(csv.Column(name + " (dBm)"), session.Column(name));
    }
}

void ResultExportTest::clearAndStartEndWhatIsExported()
{
    QFETCH(QString, mode);
    const QTemporaryDir folder;
    CRsrpSession session(mode);
    QVERIFY(session.Running());
    QVERIFY(session.Fetch());
    QVERIFY(session.Stop());
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Rsrp start..."));
    QVERIFY(WaitUntil([&] { return session.Rows() == 0; }));
    PressExport(session);
    QCOMPARE(session.StatusBar(), QString(kNothing));
    QVERIFY(session.Fetch());
    QVERIFY(Export(session, folder.filePath("rsrp.csv")));
    QCOMPARE(CCsvFile(folder.filePath("rsrp.csv")).Rows(), 5);
    QVERIFY(session.Stop());
    session.Press("clearPushButton");
    QVERIFY(WaitUntil([&] { return session.Rows() == 0; }));
    PressExport(session);
    QCOMPARE(session.StatusBar(), QString(kNothing));
}

void ResultExportTest::failedFetchIsARow()
{
    const QTemporaryDir folder;
    CRsrpSession session("Force");
    QVERIFY(session.Running());
    QVERIFY(session.Fetch());
    VondSim_AddFault(R"({"function": "VOND_NRf_GetMixRxReportV7_r", "kind": "fail", "result": 7})");
    QVERIFY(session.Fetch());
    QVERIFY(Export(session, folder.filePath("rsrp.jsonl")));
    const QList<QByteArray> lines = FileBytes(folder.filePath("rsrp.jsonl")).split('\n');
    QCOMPARE(QJsonDocument::fromJson(lines[6]).object()["RSRP0 (dBm)"].toString(), QString("FAIL"));
}

void ResultExportTest::cancelledDialogWritesNothing()
{
    CRsrpSession session("Force");
    QVERIFY(session.Running());
    QVERIFY(session.Fetch());
    const QString before = session.StatusBar();
    CBoxWatcher boxes;
    AnswerFileDialog({});
    PressExport(session);
    QCOMPARE(session.StatusBar(), before);
    QVERIFY(boxes.Seen().isEmpty());
    // Another one can be made.
    const QTemporaryDir folder;
    QVERIFY(Export(session, folder.filePath("rsrp.csv")));
}

void ResultExportTest::fileThatCannotBeWrittenIsToldInABox()
{
    CRsrpSession session("Force");
    QVERIFY(session.Running());
    QVERIFY(session.Fetch());
    // While the export waits for the chip's name the folder goes.
    QVERIFY(session.HoldFetch());
    QTemporaryDir gone;
    CBoxWatcher boxes;
    AnswerFileDialog(gone.filePath("rsrp.csv"));
    PressExport(session);
    QVERIFY(gone.remove());
    QVERIFY(WaitUntil([&] { return !boxes.Seen().isEmpty(); }));
    VondSim_Release(kRsrpReport);
    QCOMPARE(boxes.Seen()[0].title, QString("Export results failed"));
    QVERIFY2(boxes.Seen()[0].plain.contains("was not written: "),
             qPrintable(boxes.Seen()[0].plain));
    QVERIFY(session.StatusBar().startsWith("Export results failed: "));
}

void ResultExportTest::foreignSettingsFileIsLeftAlone()
{
    const QTemporaryDir folder;
    QFile mine(folder.filePath("rsrp.json"));
    QVERIFY(mine.open(QIODevice::WriteOnly) && mine.write("{}") == 2);
    mine.close();
    CRsrpSession session("Force");
    QVERIFY(session.Running());
    QVERIFY(session.Fetch());
    CBoxWatcher boxes;
    AnswerFileDialog(folder.filePath("rsrp.csv"));
    PressExport(session);
    QVERIFY(WaitUntil([&] { return !boxes.Seen().isEmpty(); }));
    QVERIFY2(boxes.Seen()[0].plain.contains("is not of an export"),
             qPrintable(boxes.Seen()[0].plain));
    QCOMPARE(FileBytes(mine.fileName()), QByteArray("{}"));
    QVERIFY(!QFile::exists(folder.filePath("rsrp.csv")));
}

// The chip's name can't be had then.
void ResultExportTest::exportDoesNotWaitForABusyTarget()
{
    const QTemporaryDir folder;
    CRsrpSession session("Force");
    QVERIFY(session.Running());
    QVERIFY(session.Fetch());
    QVERIFY(session.HoldFetch());
    QVERIFY(Export(session, folder.filePath("rsrp.csv")));
    QCOMPARE(JsonFile(folder.filePath("rsrp.json"))["chip"].toString(), QString());
    QCOMPARE(CCsvFile(folder.filePath("rsrp.csv")).Rows(), 5);
    VondSim_Release(kRsrpReport);
    QVERIFY(WaitUntil([&] { return session.Rows() == 10; }));
}

void ResultExportTest::resetWhileTheDialogIsOpen()
{
    const QTemporaryDir folder;
    CRsrpSession session("Force");
    QVERIFY(session.Running());
    QVERIFY(session.Fetch());
    const QPointer<QWidget> page = session.Page();
    AnswerFileDialog(folder.filePath("rsrp.csv"), [&](QFileDialog *) { session->ResetPlugin(); });
    PressExport(session);
    QVERIFY(WaitUntil([&] { return page.isNull(); }));
    QVERIFY(QDir(folder.path()).entryList(QDir::Files).isEmpty());
}

void ResultExportTest::resetAndUnloadWhileTheFileIsWritten_data()
{
    QTest::addColumn<bool>("unloads");
    QTest::newRow("reset") << false;
    QTest::newRow("unload") << true;
}

// The files are there whole, or not at all.
void ResultExportTest::resetAndUnloadWhileTheFileIsWritten()
{
    QFETCH(bool, unloads);
    const QTemporaryDir folder;
    CRsrpSession session("Force");
    QVERIFY(session.Running());
    for (int fetch = 0; fetch < 10; ++fetch)
        QVERIFY(session.Fetch());
    AnswerFileDialog(folder.filePath("rsrp.csv"));
    PressExport(session);
    if (unloads)
        session.Unload();
    else
        session->ResetPlugin();
    QVERIFY(QThreadPool::globalInstance()->waitForDone(20000));
    QCoreApplication::processEvents();
    const QStringList files = QDir(folder.path()).entryList(QDir::Files | QDir::Hidden);
    if (!files.isEmpty()) {
        QCOMPARE(files, QStringList({"rsrp.csv", "rsrp.json"}));
        QCOMPARE(CCsvFile(folder.filePath("rsrp.csv")).Rows(), 50);
    }
}

QUORLIN_TEST_CLASS(ResultExportTest)
#include "ResultExportTest.moc"
