// The view controller: who gets an answer, how often, and who never does.
#include <memory>

#include <QSignalSpy>
#include <QThreadPool>
#include <QtTest>

#include "Controller/NrCore.h"
#include "ViewController/QuorlinViewCtrl.h"
#include "tests/common/SimJournal.h"

namespace {

constexpr char kStart[] = "VOND_MMRf_ContRxV7_r";
constexpr char kCapability[] = "VOND_NRf_GetRfCapability_r";

// Lets all jobs end and their answers arrive.
void Settle()
{
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
}

}  // namespace

class ViewCtrlTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void doneSignalFiresOncePerRequest();
    void anotherInstanceIsNotReached();
    void answerOfAnotherPagesTestIsNotTaken();
    void requestsReturnAtOnce();
    void destroyedControllerGetsNoAnswer();
    void documentFromBeforeAResetDoesNotArrive();
    void documentArrivesOnTheGuiThread();
    void idleIsReportedOnlyWhenTheTargetIsIdle();
    void nrStopAndMultiRatStopReachTheirFunctions();
};

void ViewCtrlTest::initTestCase()
{
    RegisterOperationResultTypes();
}

void ViewCtrlTest::init()
{
    Settle();
    VondSim_Reset();
    GetCore().ResetTargetCache();
    VondSim_ClearJournal();
}

void ViewCtrlTest::doneSignalFiresOncePerRequest()
{
    CQuorlinViewCtrl ctrl;
    QSignalSpy done(&ctrl, &CQuorlinViewCtrl::Signal_ContRxTestDone);
    ctrl.ContRxTest("{}");
    Settle();
    QCOMPARE(done.size(), 1);
    ctrl.ContRxTest("{}");
    Settle();
    QCOMPARE(done.size(), 2);
    QCOMPARE(CountCalls(kStart), 2);
}

void ViewCtrlTest::anotherInstanceIsNotReached()
{
    CQuorlinViewCtrl asking, idle;
    QSignalSpy asked(&asking, &CQuorlinViewCtrl::Signal_ContRxTestDone);
    QSignalSpy notAsked(&idle, &CQuorlinViewCtrl::Signal_ContRxTestDone);
    QSignalSpy notStopped(&idle, &CQuorlinViewCtrl::Signal_TestStopDone);
    asking.ContRxTest("{}");
    Settle();
    asking.MultiRatTestStop();
    Settle();
    QCOMPARE(asked.size(), 1);
    QCOMPARE(notAsked.size(), 0);
    QCOMPARE(notStopped.size(), 0);
}

void ViewCtrlTest::answerOfAnotherPagesTestIsNotTaken()
{
    CQuorlinViewCtrl ctrl;
    QSignalSpy done(&ctrl, &CQuorlinViewCtrl::Signal_ContRxTestDone);
    VondSim_Hold(kStart);
    ctrl.ContRxTest("{}");
    QVERIFY(VondSim_WaitUntilHeld(kStart, 20000));
    emit GetCore().Signal_TestDone({"RSSI", 0, "of another page"}, "");
    QCoreApplication::processEvents();
    QCOMPARE(done.size(), 0);
    VondSim_Release(kStart);
    Settle();
    QCOMPARE(done.size(), 1);
    QCOMPARE(done[0][0].value<SEachItemOperationResult>().itemName, QString("Continuous RX"));
}

void ViewCtrlTest::requestsReturnAtOnce()
{
    CQuorlinViewCtrl ctrl;
    VondSim_Hold(kStart);
    ctrl.ContRxTest("{}");
    QVERIFY(VondSim_WaitUntilHeld(kStart, 20000));
    // The target is at work, and none of these waits for it.
    ctrl.MultiRatTestStop();
    ctrl.GetContRxDataModel();
    ctrl.GetInitPageList();
    ctrl.ResetTargetCache();
    QCOMPARE(CountCalls(kStart), 0);
    VondSim_Release(kStart);
    Settle();
}

void ViewCtrlTest::destroyedControllerGetsNoAnswer()
{
    auto ctrl = std::make_unique<CQuorlinViewCtrl>();
    VondSim_Hold(kStart);
    ctrl->ContRxTest("{}");
    QVERIFY(VondSim_WaitUntilHeld(kStart, 20000));
    ctrl->GetContRxDataModel();
    ctrl.reset();
    VondSim_Release(kStart);
    Settle();
    QCOMPARE(CountCalls(kStart), 1);
}

void ViewCtrlTest::documentFromBeforeAResetDoesNotArrive()
{
    CQuorlinViewCtrl ctrl;
    QSignalSpy arrived(&ctrl, &CQuorlinViewCtrl::Signal_GetContRxDataModelDone);
    VondSim_Hold(kCapability);
    ctrl.GetContRxDataModel();
    QVERIFY(VondSim_WaitUntilHeld(kCapability, 20000));
    ctrl.ResetTargetCache();
    VondSim_Release(kCapability);
    Settle();
    QCOMPARE(arrived.size(), 0);
    ctrl.GetContRxDataModel();
    Settle();
    QCOMPARE(arrived.size(), 1);
}

void ViewCtrlTest::documentArrivesOnTheGuiThread()
{
    CQuorlinViewCtrl ctrl;
    QThread *thread = nullptr;
    std::string document;
    connect(&ctrl, &CQuorlinViewCtrl::Signal_GetContRxDataModelDone, &ctrl,
            [&](const std::string &text) {
                thread = QThread::currentThread();
                document = text;
            });
    ctrl.GetContRxDataModel();
    Settle();
    QCOMPARE(thread, QThread::currentThread());
    QVERIFY(document.find("\"modelName\":\"Cont RX\"") != std::string::npos);
}

void ViewCtrlTest::idleIsReportedOnlyWhenTheTargetIsIdle()
{
    CQuorlinViewCtrl ctrl;
    QSignalSpy idle(&ctrl, &CQuorlinViewCtrl::Signal_Idle);
    VondSim_Hold(kStart);
    ctrl.ContRxTest("{}");
    QVERIFY(VondSim_WaitUntilHeld(kStart, 20000));
    ctrl.ReportIdle();
    QCoreApplication::processEvents();
    QCOMPARE(idle.size(), 0);
    VondSim_Release(kStart);
    Settle();
    QCOMPARE(idle.size(), 1);
}

void ViewCtrlTest::nrStopAndMultiRatStopReachTheirFunctions()
{
    CQuorlinViewCtrl ctrl;
    QSignalSpy stopped(&ctrl, &CQuorlinViewCtrl::Signal_TestStopDone);
    ctrl.NrTestStop();
    Settle();
    ctrl.MultiRatTestStop();
    Settle();
    QCOMPARE(stopped.size(), 2);
    QCOMPARE(CountCalls("VOND_NRf_TestStop_r"), 1);
    QCOMPARE(CountCalls("VOND_MMRf_TestStopV7_r"), 1);
}

QTEST_GUILESS_MAIN(ViewCtrlTest)
#include "ViewCtrlTest.moc"
