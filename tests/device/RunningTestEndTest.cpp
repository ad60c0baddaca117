// No test outlives the page that shows it: what ends the page stops the test, once, under the
// handle of its start, before anything else is asked of the DUT, and never on the GUI thread.
//
// The end of the process is tried in a process of its own, this program with "--end" and a way.
#include <cstdlib>

#include <QApplication>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QThreadPool>
#include <QtTest>

#include "tests/common/BoxWatcher.h"
#include "tests/common/PluginSession.h"
#include "tests/common/SimJournal.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"

namespace {

struct STestPage
{
    const char *className;
    const char *start;
    const char *stop;
    const char *started;  // status line
    const char *stopped;
};

constexpr char kNrStop[] = "VOND_NRf_TestStop_r";
constexpr char kMmStop[] = "VOND_MMRf_TestStopV7_r";

constexpr STestPage kPages[] = {
    {"CNrContRxDockWidgetV7", "VOND_MMRf_ContRxV7_r", kMmStop, "Cont Rx start...", "Cont Rx stop."},
    {"CNrSingleToneTxDockWidgetV7", "VOND_MMRf_SingleToneTxV7_r", kMmStop,
     "Single Tone Tx start...", "Single Tone Tx stop."},
    {"CNrPuschTxForcedDockWidgetV7", "VOND_NRf_PuschTxV7_r", kNrStop, "Pusch TX start...",
     "Pusch TX stop."},
    {"CNrPuschTxNormalDockWidgetV7", "VOND_NRf_PuschTxV7_r", kNrStop, "Pusch TX start...",
     "Pusch TX stop."},
    {"CNrRsrpForceDockWidgetV7", "VOND_NRf_RsrpV7_r", kNrStop, "Rsrp start...", "Rsrp stop."},
    {"CNrRsrpNormalDockWidgetV7", "VOND_NRf_RsrpV7_r", kNrStop, "Rsrp start...", "Rsrp stop."},
};

void AddPages()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < int(std::size(kPages)); ++i)
        QTest::newRow(kPages[i].className) << i;
}

const char *OtherStop(const STestPage &page)
{
    return page.stop == kNrStop ? kMmStop : kNrStop;
}

bool Running(CPluginSession &session, const STestPage &page)
{
    if (!session.ShowAndWait())
        return false;
    session.Press("m_start");
    // An RSRP page may have told of a report already.
    return WaitUntil([&] { return session.Find<QPushButton>("m_stop")->isEnabled(); }) &&
           CountCalls(page.start) == 1;
}

void Settle()
{
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
}

// The journal behind the last start: the stop of the page's kind comes first, once, with the
// handle.
void ExpectOneStop(const STestPage &page, uint32_t handle)
{
    QCOMPARE(JournalOf(page.stop).size(), 1);
    QCOMPARE(JournalOf(page.stop)[0].call.handle, handle);
    QCOMPARE(CountCalls(OtherStop(page)), 0);
    QCOMPARE(QString(VondSim_RunningTest()), QString());
}

void KeepHandle(CPluginSession &session, uint32_t handle)
{
    qApp->setProperty("vondTargetHandle", handle);
    session->EnablePages();
}

}  // namespace

class RunningTestEndTest : public QObject
{
    Q_OBJECT

private slots:
    void resetStopsIt_data() { AddPages(); }
    void resetStopsIt();
    void resetStopsAStartThatIsInFlightAndSendsNoneThatWaits();
    void resetStopsWhatMayRunAfterAStartThatFailed();
    void resetSaysBusyUntilTheTestIsStopped();
    void resetDuringThePagesOwnStopSendsNoSecondOne();
    void resetInSomebodyElsesCallSendsNeitherTheStartNorTwoStops();
    void unloadStopsIt_data() { AddPages(); }
    void unloadStopsIt();
    void unloadWhileAStartIsInFlight();
    void hideStopsIt_data() { AddPages(); }
    void hideStopsIt();
    void closeStopsIt();
    void closeOfAFloatingPageStopsItAndDocksThePage();
    void endOfTheProcessStopsIt_data();
    void endOfTheProcessStopsIt();
};

void RunningTestEndTest::resetStopsIt()
{
    QFETCH(int, index);
    const STestPage &page = kPages[index];
    CPluginSession session("handset", 7, page.className);
    QVERIFY(Running(session, page));
    KeepHandle(session, 9);
    VondSim_Hold(page.stop);
    session->ResetPlugin();
    QVERIFY(VondSim_WaitUntilHeld(page.stop, 20000));
    VondSim_ClearJournal();
    session->ShowPlugin();
    QVERIFY(EventLoopTurns());
    QCOMPARE(VondSim_CallCount(), 0u);
    VondSim_Release(page.stop);
    QVERIFY(session.ShowAndWait());
    QCOMPARE(QString(Journal()[0].call.function), QString(page.stop));
    ExpectOneStop(page, 7);
    session.Press("m_start");
    QVERIFY(WaitUntil([&] { return session.Find<QPushButton>("m_stop")->isEnabled(); }));
}

void RunningTestEndTest::resetStopsAStartThatIsInFlightAndSendsNoneThatWaits()
{
    const STestPage &page = kPages[1];
    CPluginSession session("handset", 7, page.className);
    QVERIFY(session.ShowAndWait());
    VondSim_Hold(page.start);
    session.Press("m_start");
    QVERIFY(VondSim_WaitUntilHeld(page.start, 20000));
    session->ResetPlugin();
    QCOMPARE(CountCalls(page.start), 0);
    VondSim_Release(page.start);
    Settle();
    QCOMPARE(CountCalls(page.start), 1);
    ExpectOneStop(page, 7);
}

void RunningTestEndTest::resetStopsWhatMayRunAfterAStartThatFailed()
{
    const STestPage &page = kPages[2];
    CPluginSession session("handset", 7, page.className);
    QVERIFY(session.ShowAndWait());
    VondSim_AddFault(R"({"function": "VOND_NRf_PuschTxV7_r", "kind": "noise", "seed": 3})");
    CBoxWatcher boxes;
    session.Press("m_start");
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCOMPARE(QString(VondSim_RunningTest()), QString("PuschTx"));
    session->ResetPlugin();
    Settle();
    ExpectOneStop(page, 7);
}

void RunningTestEndTest::resetSaysBusyUntilTheTestIsStopped()
{
    const STestPage &page = kPages[0];
    CPluginSession session("handset", 7, page.className);
    QVERIFY(Running(session, page));
    QVERIFY(WaitUntil([&] { return session.busy.size() == 2; }));
    session.busy.clear();
    VondSim_Hold(page.stop);
    session->ResetPlugin();
    QVERIFY(VondSim_WaitUntilHeld(page.stop, 20000));
    QCoreApplication::processEvents();
    QCOMPARE(session.busy, (QVector<bool>{true}));
    VondSim_Release(page.stop);
    QVERIFY(WaitUntil([&] { return session.busy.size() == 2; }));
    QCOMPARE(session.busy, (QVector<bool>{true, false}));
    QCOMPARE(QString(VondSim_RunningTest()), QString());
}

void RunningTestEndTest::resetDuringThePagesOwnStopSendsNoSecondOne()
{
    const STestPage &page = kPages[0];
    CPluginSession session("handset", 7, page.className);
    QVERIFY(Running(session, page));
    VondSim_Hold(page.stop);
    session.Press("m_stop");
    QVERIFY(VondSim_WaitUntilHeld(page.stop, 20000));
    session->ResetPlugin();
    VondSim_Release(page.stop);
    Settle();
    ExpectOneStop(page, 7);
}

// The page's start and its stop wait behind a reading that the DUT holds.
void RunningTestEndTest::resetInSomebodyElsesCallSendsNeitherTheStartNorTwoStops()
{
    const STestPage &page = kPages[1];
    constexpr char kReading[] = "VOND_MMRf_GetPdValueV7_r";
    CPluginSession session("handset", 7, page.className);
    QVERIFY(Running(session, page));
    VondSim_Hold(kReading);
    session.Press("m_btnFetchPd");
    QVERIFY(VondSim_WaitUntilHeld(kReading, 20000));
    session.Press("m_stop");
    session->ResetPlugin();
    VondSim_Release(kReading);
    Settle();
    ExpectOneStop(page, 7);
    QCOMPARE(CountCalls(page.start), 1);
}

void RunningTestEndTest::unloadStopsIt()
{
    QFETCH(int, index);
    const STestPage &page = kPages[index];
    CPluginSession session("handset", 7, page.className);
    QVERIFY(Running(session, page));
    KeepHandle(session, 9);
    VondSim_Hold(page.stop);
    session.Unload();  // does not wait
    QVERIFY(VondSim_WaitUntilHeld(page.stop, 20000));
    VondSim_Release(page.stop);
    Settle();
    ExpectOneStop(page, 7);
}

void RunningTestEndTest::unloadWhileAStartIsInFlight()
{
    const STestPage &page = kPages[4];
    CPluginSession session("handset", 7, page.className);
    QVERIFY(session.ShowAndWait());
    VondSim_Hold(page.start);
    session.Press("m_start");
    QVERIFY(VondSim_WaitUntilHeld(page.start, 20000));
    session.Unload();
    VondSim_Release(page.start);
    Settle();
    ExpectOneStop(page, 7);
}

void RunningTestEndTest::hideStopsIt()
{
    QFETCH(int, index);
    const STestPage &page = kPages[index];
    CPluginSession session("handset", 7, page.className);
    QVERIFY(Running(session, page));
    session->HidePlugin();
    QVERIFY(session.WaitForStatus(page.stopped));
    ExpectOneStop(page, 7);
    session->ShowPlugin();
    QVERIFY(EventLoopTurns());
    ExpectOneStop(page, 7);
    QVERIFY(session.Find<QPushButton>("m_start")->isEnabledTo(session.Page()));
}

void RunningTestEndTest::closeStopsIt()
{
    const STestPage &page = kPages[1];
    CPluginSession session("handset", 7, page.className);
    QVERIFY(Running(session, page));
    QVERIFY(session.Window()->close());
    QVERIFY(session.WaitForStatus(page.stopped));
    ExpectOneStop(page, 7);
}

void RunningTestEndTest::closeOfAFloatingPageStopsItAndDocksThePage()
{
    const STestPage &page = kPages[1];
    CPluginSession session("handset", 7, page.className);
    QVERIFY(session.ShowAndWait());
    QPointer<QDockWidget> dock = session.Page();
    dock->setFloating(true);
    QVERIFY(WaitUntil([&] { return dock->isEnabled() && dock->isWindow(); }));
    QVERIFY(EventLoopTurns());  // the change of pages is behind
    session.Press("m_start");
    QVERIFY(WaitUntil([&] { return session.Find<QPushButton>("m_stop")->isEnabled(); }));
    QVERIFY(dock->isFloating());
    dock->close();
    QVERIFY(session.WaitForStatus(page.stopped));
    QVERIFY(WaitUntil([&] { return !dock->isFloating() && dock->isVisible(); }));
    ExpectOneStop(page, 7);
    QCOMPARE(session.Window()->dockWidgetArea(dock), Qt::TopDockWidgetArea);
    QVERIFY(WaitUntil([&] { return dock->isEnabled(); }));
}

void RunningTestEndTest::endOfTheProcessStopsIt_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("exit()") << "exit";
    QTest::newRow("exit() while the start is in flight") << "exit-in-flight";
    QTest::newRow("main returns, the plug-in stays loaded") << "return";
    QTest::newRow("the plug-in is unloaded first") << "unload";
}

void RunningTestEndTest::endOfTheProcessStopsIt()
{
    QFETCH(QString, way);
    const QTemporaryDir folder;
    const QString file = folder.filePath("calls.jsonl");
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("VOND_SIM_JOURNAL", file);
    // Whoever calls exit() frees nothing.
    environment.insert("ASAN_OPTIONS", environment.value("ASAN_OPTIONS") + ":detect_leaks=0");
    QProcess child;
    child.setProcessEnvironment(environment);
    child.setProcessChannelMode(QProcess::ForwardedChannels);
    child.start(QCoreApplication::applicationFilePath(), {"EndRunningTest", way});
    QVERIFY(child.waitForFinished(100000));
    QCOMPARE(child.exitCode(), 0);
    QCOMPARE(child.exitStatus(), QProcess::NormalExit);

    QStringList calls;
    QFile journal(file);
    QVERIFY(journal.open(QIODevice::ReadOnly));
    for (const QByteArray &line : journal.readAll().split('\n')) {
        const QJsonObject call = QJsonDocument::fromJson(line).object();
        const QString function = call.value("function").toString();
        if (!call.contains("index"))
            continue;  // the begin of a call
        if (function == kPages[1].start || function == kNrStop || function == kMmStop)
            calls.append(QString("%1@%2").arg(function).arg(call.value("handle").toInt()));
    }
    QCOMPARE(calls, (QStringList{QString("%1@7").arg(kPages[1].start),
                                 QString("%1@7").arg(kPages[1].stop)}));
}

// The process of its own. Nothing of it is a test: its journal is.
int EndRunningTest(const QStringList &arguments)
{
    const QString way = arguments.value(0);
    const STestPage &page = kPages[1];
    // A pool that the host used first is destroyed after everything that the tool made.
    QThreadPool::globalInstance()->start([] {});
    auto *session = new CPluginSession("handset", 7, page.className);
    if (way == "exit-in-flight") {
        VondSim_AddFault(
            R"({"function": "VOND_MMRf_SingleToneTxV7_r", "kind": "delay", "ms": 400})");
        if (!session->ShowAndWait())
            return 2;
        session->Press("m_start");
        // The request makes a job that makes the call.
        WaitUntil([] { return QThreadPool::globalInstance()->activeThreadCount() == 0; }, 100);
        std::exit(0);
    }
    if (!Running(*session, page))
        return 3;
    KeepHandle(*session, 9);
    if (way == "exit")
        std::exit(0);
    if (way == "unload")
        session->Unload();
    return 0;
}

QUORLIN_TEST_CLASS(RunningTestEndTest)
QUORLIN_TEST_PROCESS(EndRunningTest)
#include "RunningTestEndTest.moc"
