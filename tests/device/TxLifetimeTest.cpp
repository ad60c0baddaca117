// TX pages that are hidden or destroyed while the target works: answers are dropped, nothing that
// is gone is used. Each test on each page; the sanitizer build proves the second half.
#include <QThreadPool>

#include "tests/common/BoxWatcher.h"
#include "tests/common/SimJournal.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"
#include "tests/device/TxPages.h"

namespace {

// Lets the held call go, and its answer arrive.
void Finish(const char *function)
{
    VondSim_Release(function);
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
}

bool Hold(CPluginSession &session, const char *function, const char *button)
{
    VondSim_Hold(function);
    session.Press(button);
    return VondSim_WaitUntilHeld(function, 20000) != 0;
}

// Has the button of the reading on.
bool ReadyToRead(CPluginSession &session, const STxPage &page)
{
    if (!session.ShowAndWait())
        return false;
    if (!session.Find<QPushButton>(page.button)->isEnabled())
        Click(session, "enableCsr");
    return session.Find<QPushButton>(page.button)->isEnabled();
}

}  // namespace

class TxLifetimeTest : public QObject
{
    Q_OBJECT

private slots:
    void resetWhileAStartIsInFlightDropsTheAnswer_data() { AddPages(); }
    void resetWhileAStartIsInFlightDropsTheAnswer();
    void resetWhileAStopIsInFlightDropsTheAnswer_data() { AddPages(); }
    void resetWhileAStopIsInFlightDropsTheAnswer();
    void resetWhileAReadingIsInFlightDropsTheAnswer_data() { AddPages(); }
    void resetWhileAReadingIsInFlightDropsTheAnswer();
    void resetWhileTheFailureBoxIsOpen_data() { AddPages(); }
    void resetWhileTheFailureBoxIsOpen();
    void resetWhileTheBoxOfAFailedReadingIsOpen_data() { AddPages(); }
    void resetWhileTheBoxOfAFailedReadingIsOpen();
    void unloadWhileAReadingIsInFlight_data() { AddPages(); }
    void unloadWhileAReadingIsInFlight();
    void startThatArrivesWhileTheWindowIsHiddenIsStopped_data() { AddPages(); }
    void startThatArrivesWhileTheWindowIsHiddenIsStopped();
    void hideStopsARunningTest_data() { AddPages(); }
    void hideStopsARunningTest();

private:
    static void AddPages();
};

void TxLifetimeTest::AddPages()
{
    QTest::addColumn<STxPage>("page");
    for (const STxPage &page : {kSingleTone, kForced, kNormal})
        QTest::newRow(page.className) << page;
}

void TxLifetimeTest::resetWhileAStartIsInFlightDropsTheAnswer()
{
    QFETCH(STxPage, page);
    CPluginSession session("handset", 1, page.className);
    QVERIFY(session.ShowAndWait());
    QVERIFY(Hold(session, page.start, "m_start"));
    session->ResetPlugin();
    QVERIFY(!session.Page());
    Finish(page.start);
    QCOMPARE(CountCalls(page.start), 1);
    QVERIFY(session.StatusBar() != Status(page, "start..."));
}

void TxLifetimeTest::resetWhileAStopIsInFlightDropsTheAnswer()
{
    QFETCH(STxPage, page);
    CPluginSession session("handset", 1, page.className);
    QVERIFY(session.ShowAndWait());
    session.Press("m_start");
    QVERIFY(session.WaitForStatus(Status(page, "start...")));
    QVERIFY(Hold(session, page.stop, "m_stop"));
    session->ResetPlugin();
    Finish(page.stop);
    QCOMPARE(CountCalls(page.stop), 1);
    QVERIFY(session.StatusBar() != Status(page, "stop."));
}

void TxLifetimeTest::resetWhileAReadingIsInFlightDropsTheAnswer()
{
    QFETCH(STxPage, page);
    CPluginSession session("handset", 1, page.className);
    QVERIFY(ReadyToRead(session, page));
    QVERIFY(Hold(session, page.read, page.button));
    session->ResetPlugin();
    CBoxWatcher boxes;
    Finish(page.read);
    QCOMPARE(CountCalls(page.read), 1);
    QVERIFY(session.StatusBar() != page.readDone);
    QVERIFY(boxes.Seen().isEmpty());
    QVERIFY(WaitUntil([&] { return session.busy == QVector<bool>({true, false}); }));
}

void TxLifetimeTest::resetWhileTheFailureBoxIsOpen()
{
    QFETCH(STxPage, page);
    CPluginSession session("handset", 1, page.className);
    QVERIFY(session.ShowAndWait());
    const QString fault = R"({"function": "%1", "kind": "fail", "result": 7})";
    VondSim_AddFault(qPrintable(fault.arg(page.start)));
    CBoxWatcher boxes;
    boxes.onBox = [&] { session->ResetPlugin(); };
    session.Press("m_start");
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCoreApplication::processEvents();
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(!session.Page());
}

void TxLifetimeTest::resetWhileTheBoxOfAFailedReadingIsOpen()
{
    QFETCH(STxPage, page);
    CPluginSession session("handset", 1, page.className);
    QVERIFY(ReadyToRead(session, page));
    // The second reading of a page whose answers stay connected is taken twice.
    session.Press(page.button);
    CBoxWatcher first;
    QVERIFY(session.WaitForStatus(page.readDone));
    QVERIFY(WaitUntil([&] { return session.busy.size() == 2; }));
    const QString fault = R"({"function": "%1", "kind": "fail", "result": 7})";
    VondSim_AddFault(qPrintable(fault.arg(page.read)));
    const int before = first.Seen().size();
    first.onBox = [&] { session->ResetPlugin(); };
    session.Press(page.button);
    QVERIFY(WaitUntil([&] { return first.Seen().size() == before + 1; }));
    QCoreApplication::processEvents();
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(!session.Page());
    QCOMPARE(first.Seen().size(), before + 1);
}

void TxLifetimeTest::unloadWhileAReadingIsInFlight()
{
    QFETCH(STxPage, page);
    CPluginSession session("handset", 1, page.className);
    QVERIFY(ReadyToRead(session, page));
    QVERIFY(Hold(session, page.read, page.button));
    session.Unload();
    QVERIFY(!session.Window());
    Finish(page.read);
    QCOMPARE(CountCalls(page.read), 1);
}

void TxLifetimeTest::startThatArrivesWhileTheWindowIsHiddenIsStopped()
{
    QFETCH(STxPage, page);
    CPluginSession session("handset", 1, page.className);
    QVERIFY(session.ShowAndWait());
    QVERIFY(Hold(session, page.start, "m_start"));
    session->HidePlugin();
    VondSim_Release(page.start);
    QVERIFY(session.WaitForStatus(Status(page, "stop.")));
    QCOMPARE(QString(VondSim_RunningTest()), QString());
    QCOMPARE(CountCalls(page.stop), 1);
    QVERIFY(WaitUntil([&] { return !session.busy.last(); }));
}

void TxLifetimeTest::hideStopsARunningTest()
{
    QFETCH(STxPage, page);
    CPluginSession session("handset", 1, page.className);
    QVERIFY(session.ShowAndWait());
    session.Press("m_start");
    QVERIFY(session.WaitForStatus(Status(page, "start...")));
    session->HidePlugin();
    QVERIFY(session.WaitForStatus(Status(page, "stop.")));
    QCOMPARE(QString(VondSim_RunningTest()), QString());
}

QUORLIN_TEST_CLASS(TxLifetimeTest)
#include "TxLifetimeTest.moc"
