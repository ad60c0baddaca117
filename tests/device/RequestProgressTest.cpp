// What the status bar shows of a request that takes its time.
#include <QElapsedTimer>
#include <QProgressBar>
#include <QPushButton>
#include <QStatusBar>

#include "tests/common/SimJournal.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"
#include "tests/device/RequestPages.h"
#include "tests/device/RsrpSession.h"

namespace {

QProgressBar *Bar(const CPluginSession &session)
{
    return session.Window()->findChild<QStatusBar *>()->findChild<QProgressBar *>();
}

}  // namespace

class RequestProgressTest : public QObject
{
    Q_OBJECT

private slots:
    void longRequestShowsThatItRuns_data() { AddRequests(); }
    void longRequestShowsThatItRuns();
    void stopBehindAFetchShowsThatItRuns();
    void timedFetchShowsNothing();
    void barGoesWithThePage();
};

void RequestProgressTest::longRequestShowsThatItRuns()
{
    QFETCH(SRequest, request);
    CPluginSession session("handset", 1, request.page);
    QVERIFY(Ready(session, request));
    QVERIFY(!Bar(session));
    VondSim_Hold(request.call);
    session.Press(request.button);
    QVERIFY(VondSim_WaitUntilHeld(request.call, 20000));
    QVERIFY(WaitUntil([&] { return Bar(session) && Bar(session)->isVisible(); }));
    QVERIFY(EventLoopTurns());
    // A flow of calibration data tells how far it is.
    const bool tellsProgress = session.StatusBar().contains(" of ");
    if (!tellsProgress)
        QCOMPARE(Bar(session)->maximum(), 0);  // without bounds
    const QString line = session.StatusBar();
    QVERIFY(EventLoopTurns());
    if (!tellsProgress)
        QCOMPARE(session.StatusBar(), line);
    VondSim_Release(request.call);
    QVERIFY(session.WaitForStatus(request.done));
    QVERIFY(!Bar(session));
}

void RequestProgressTest::stopBehindAFetchShowsThatItRuns()
{
    CRsrpSession session("Force");
    QVERIFY(session.Running());
    QVERIFY(session.HoldFetch());
    session.Press("m_stop");
    QVERIFY(WaitUntil([&] { return Bar(session); }));
    VondSim_Release(kRsrpReport);
    // Not by the status line: the fetch's answer may come behind the stop's.
    QVERIFY(WaitUntil([&] { return session.Find<QPushButton>("m_start")->isEnabled(); }));
    QVERIFY(!Bar(session));
}

void RequestProgressTest::timedFetchShowsNothing()
{
    CRsrpSession session("Normal");
    QVERIFY(session.Running());
    QVERIFY(session.HoldFetch());
    QElapsedTimer clock;
    clock.start();
    QVERIFY(WaitUntil([&] { return Bar(session) || clock.elapsed() > 600; }));
    QVERIFY(!Bar(session));
    VondSim_Release(kRsrpReport);
    QVERIFY(WaitUntil([&] { return session.Rows() > 0; }));
}

void RequestProgressTest::barGoesWithThePage()
{
    CPluginSession session;
    QVERIFY(session.ShowAndWait());
    VondSim_Hold("VOND_MMRf_ContRxV7_r");
    session.Press("m_start");
    QVERIFY(WaitUntil([&] { return Bar(session); }));
    session->ResetPlugin();
    QVERIFY(!Bar(session));
    VondSim_Release("VOND_MMRf_ContRxV7_r");
}

QUORLIN_TEST_CLASS(RequestProgressTest)
#include "RequestProgressTest.moc"
