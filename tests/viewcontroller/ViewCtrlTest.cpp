// The view controller among others of its kind, and beside a core that is busy.
#include <memory>
#include <stdexcept>
#include <vector>

#include <QtTest>

#include "tests/common/SimJournal.h"
#include "tests/common/TestClass.h"
#include "tests/viewcontroller/BusyCore.h"
#include "tests/viewcontroller/SignalSpies.h"

namespace {

constexpr char kStart[] = "VOND_MMRf_ContRxV7_r";

}  // namespace

class ViewCtrlTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void eachPageGetsItsOwnAnswerWhenAllAskAtOnce();
    void answerOfAnotherPagesTestIsNotTaken();
    void answerGivenBeforeTheQuestionIsNotTaken();
    void twoThatStopAtOnceGetEachItsOwnAnswer();
    void aStopThatThrowsAnswers();
    void aFlowThatThrowsOutsideItsItemsAnswersForEachItem();
    void resetReturnsWhileTheTargetIsAtWork();
    void idleIsReportedOnlyWhenTheTargetIsIdle();
    void idleOfADestroyedControllerIsNotReported();
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

// The core has one signal for the tests of all pages.
void ViewCtrlTest::eachPageGetsItsOwnAnswerWhenAllAskAtOnce()
{
    struct SAsker
    {
        const SRequest *request;
        std::unique_ptr<CQuorlinViewCtrl> ctrl;
        std::unique_ptr<CSignalSpies> spies;
    };
    std::vector<SAsker> askers;
    for (const SRequest &request : AllRequests()) {
        if (!QString(request.internalName).endsWith("TestInternal"))
            continue;
        auto ctrl = std::make_unique<CQuorlinViewCtrl>();
        auto spies = std::make_unique<CSignalSpies>(*ctrl);
        askers.push_back({&request, std::move(ctrl), std::move(spies)});
    }
    QCOMPARE(askers.size(), std::size_t(8));
    {
        const CBusyCore busy;
        for (const SAsker &asker : askers)
            asker.request->make(*asker.ctrl, "{}");
    }
    Settle();
    for (const SAsker &asker : askers) {
        const QVector<SFired> fired = asker.spies->Fired();
        QCOMPARE(fired.size(), 1);
        QCOMPARE(fired[0].signal, QString(asker.request->signal));
        QCOMPARE(fired[0].arguments.value(0).section('|', 0, 0), QString(asker.request->page));
    }
}

void ViewCtrlTest::answerOfAnotherPagesTestIsNotTaken()
{
    CQuorlinViewCtrl ctrl;
    const CSignalSpies spies(ctrl);
    VondSim_Hold(kStart);
    ctrl.ContRxTest("{}");
    QVERIFY(VondSim_WaitUntilHeld(kStart, 20000));
    emit GetCore().Signal_TestDone({"RSSI", 0, "of another page"}, "");
    QCoreApplication::processEvents();
    QCOMPARE(spies.Fired().size(), 0);
    VondSim_Release(kStart);
    Settle();
    QCOMPARE(spies.Fired().size(), 1);
    QVERIFY(spies.Fired()[0].arguments[0].startsWith("Continuous RX|"));
}

// The answer of another's stop waits for the event loop when this one asks.
void ViewCtrlTest::answerGivenBeforeTheQuestionIsNotTaken()
{
    CQuorlinViewCtrl earlier, ctrl;
    const CSignalSpies spies(ctrl), spiesOfEarlier(earlier);
    earlier.NrTestStop();
    EndJobs();
    {
        const CBusyCore busy;
        ctrl.NrTestStop();
        QCoreApplication::processEvents();
        QCOMPARE(spiesOfEarlier.Fired().size(), 1);
        QCOMPARE(spies.Fired().size(), 0);
    }
    Settle();
    QCOMPARE(spies.Fired().size(), 1);
}

// The first stop fails, the second does not.
void ViewCtrlTest::twoThatStopAtOnceGetEachItsOwnAnswer()
{
    CQuorlinViewCtrl first, second;
    const CSignalSpies spiesOfFirst(first), spiesOfSecond(second);
    VondSim_AddFault(
        R"({"function": "VOND_MMRf_TestStopV7_r", "kind": "fail", "result": 4, "nth": 1})");
    VondSim_Hold("VOND_MMRf_TestStopV7_r");
    first.MultiRatTestStop();
    QVERIFY(VondSim_WaitUntilHeld("VOND_MMRf_TestStopV7_r", 20000));
    second.NrTestStop();
    VondSim_Release("VOND_MMRf_TestStopV7_r");
    Settle();
    QCOMPARE(spiesOfFirst.Fired().size(), 1);
    QCOMPARE(spiesOfFirst.Fired()[0].arguments, QStringList("|3|Target: failure on demand"));
    QCOMPARE(spiesOfSecond.Fired().size(), 1);
    QCOMPARE(spiesOfSecond.Fired()[0].arguments, QStringList("|0|"));
}

// Whoever listens to the core's own signal throws inside the job.
void ViewCtrlTest::aStopThatThrowsAnswers()
{
    CQuorlinViewCtrl ctrl;
    const CSignalSpies spies(ctrl);
    const auto thrower = connect(
        &GetCore(), &CNrCore::Signal_TestStopDone, &GetCore(),
        [] { throw std::runtime_error("a listener"); }, Qt::DirectConnection);
    ctrl.NrTestStop();
    Settle();
    disconnect(thrower);
    QCOMPARE(spies.Fired().size(), 1);
    QCOMPARE(spies.Fired()[0].signal, QString("Signal_TestStopDone"));
    QCOMPARE(spies.Fired()[0].arguments, QStringList("|2|"));
}

void ViewCtrlTest::aFlowThatThrowsOutsideItsItemsAnswersForEachItem()
{
    CQuorlinViewCtrl ctrl;
    const CSignalSpies spies(ctrl);
    const auto thrower = connect(
        &GetCore(), &CNrCore::Signal_FinishItemCount, &GetCore(),
        [](int count) {
            if (count == 0)
                throw std::runtime_error("a listener");
        },
        Qt::DirectConnection);
    ctrl.PathLossDownloadToFlash("{}");
    Settle();
    disconnect(thrower);
    QCOMPARE(spies.Fired().size(), 1);
    QCOMPARE(spies.Fired()[0].signal, QString("Signal_PathLossDownloadToFlashDone"));
    QCOMPARE(spies.Fired()[0].arguments[0].section('|', 0, 1), QString("RX PathLoss|2"));
    // And the lock is free.
    ctrl.NrTestStop();
    Settle();
    QCOMPARE(spies.Fired().size(), 2);
}

void ViewCtrlTest::resetReturnsWhileTheTargetIsAtWork()
{
    CQuorlinViewCtrl ctrl;
    VondSim_Hold(kStart);
    ctrl.ContRxTest("{}");
    QVERIFY(VondSim_WaitUntilHeld(kStart, 20000));
    ctrl.ResetTargetCache();
    QCOMPARE(CountCalls(kStart), 0);  // still at work
    VondSim_Release(kStart);
    Settle();
    QCOMPARE(CountCalls(kStart), 1);
}

void ViewCtrlTest::idleIsReportedOnlyWhenTheTargetIsIdle()
{
    CQuorlinViewCtrl ctrl;
    const CSignalSpies spies(ctrl);
    {
        const CBusyCore busy;
        ctrl.ReportIdle();
        QCoreApplication::processEvents();
        QCOMPARE(spies.Fired().size(), 0);
    }
    Settle();
    QCOMPARE(spies.Fired().size(), 1);
    QCOMPARE(spies.Fired()[0].signal, QString("Signal_Idle"));
}

void ViewCtrlTest::idleOfADestroyedControllerIsNotReported()
{
    CQuorlinViewCtrl heir;
    const CSignalSpies spies(heir);
    auto ctrl = std::make_unique<CQuorlinViewCtrl>();
    {
        const CBusyCore busy;
        ctrl->ReportIdle();
        ctrl.reset();
    }
    Settle();
    QCOMPARE(spies.Fired().size(), 0);
}

QUORLIN_TEST_CLASS(ViewCtrlTest)
#include "ViewCtrlTest.moc"
