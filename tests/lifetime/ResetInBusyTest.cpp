// A host that resets the tool as soon as a page says that it is busy: the page is in the midst of
// its own slot, and its request is not made any more. The DUT would be started with no page left to
// stop it.
#include <QComboBox>
#include <QTemporaryDir>
#include <QtTest>

#include "tests/common/SimJournal.h"
#include "tests/lifetime/Tool.h"

namespace {

constexpr char kPathLoss[] = "CNrRxPathlossDockWidgetV7";

// Changing a selector of a calibration page takes data from page to item and back.
constexpr SRequest kSelection = {
    kPathLoss,    "selection", nullptr, EWay::Timer, "calDataIf_config_group1_memberProperty_band",
    EBefore::Read};

// Each kind of request once: the pages left out share the code of these.
QVector<SRequest> BusyRequests()
{
    const QStringList pages = {"CNrRssiDockWidgetV7", kPathLoss, "CNrContRxDockWidgetV7",
                               "CNrRsrpForceDockWidgetV7", "CNrPuschTxForcedDockWidgetV7"};
    QVector<SRequest> requests{kSelection};
    for (const SRequest &request : AllRequests()) {
        const bool isBusy = (request.way == EWay::Button && request.function) ||
                            (request.way == EWay::File && request.page == QLatin1String(kPathLoss));
        if (isBusy && pages.contains(request.page))
            requests.append(request);
    }
    return requests;
}

}  // namespace

class ResetInBusyTest : public QObject
{
    Q_OBJECT

private slots:
    void resetFromInsideBusyAsksTheTargetForNothing_data();
    void resetFromInsideBusyAsksTheTargetForNothing();

    void OnBusy(const QString &, bool isBusy)
    {
        if (!isBusy || m_calls >= 0)
            return;
        (*m_tool->Session())->ResetPlugin();
        m_calls = Journal().size();
    }

private:
    CTool *m_tool = nullptr;
    int m_calls = -1;  // of the DUT when the tool had been reset
};

void ResetInBusyTest::resetFromInsideBusyAsksTheTargetForNothing_data()
{
    QTest::addColumn<int>("index");
    const QVector<SRequest> requests = BusyRequests();
    for (int i = 0; i < requests.size(); ++i)
        QTest::addRow("%s, %s", requests[i].page, requests[i].name) << i;
}

void ResetInBusyTest::resetFromInsideBusyAsksTheTargetForNothing()
{
    QFETCH(int, index);
    const SRequest request = BusyRequests().at(index);
    QTemporaryDir folder;
    CTool tool(folder.path());
    QCOMPARE(tool.Prepare(request), QString());
    m_tool = &tool;
    m_calls = -1;
    tool.Session()->busy.clear();
    connect(tool.Session()->Object(), SIGNAL(Signal_PluginIsBusy(QString, bool)), this,
            SLOT(OnBusy(QString, bool)));

    if (request.way == EWay::Timer) {
        auto *selector = tool.Page(request.page)->findChild<QComboBox *>(request.button);
        selector->setFocus();
        QTest::keyClick(selector, Qt::Key_Down);
    } else {
        tool.Make(request);
    }

    QVERIFY2(m_calls >= 0, "the page was not busy");
    QCOMPARE(tool.Settle(), QString());
    QCOMPARE(Journal().size(), m_calls);
    QVERIFY(!tool.HasPages());
    QCOMPARE(tool.Boxes().Seen().size(), 0);
    QCOMPARE(tool.Session()->busy, (QVector<bool>{true, false}));
}

QTEST_MAIN(ResetInBusyTest)
#include "ResetInBusyTest.moc"
