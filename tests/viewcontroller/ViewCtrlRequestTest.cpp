// Every request of the view controller: the right call of the core, the right signal, on the right
// thread, once; and never to one who did not ask, or who is gone.
#include <memory>

#include <QtTest>

#include "Support/Log.h"
#include "tests/common/LogCapture.h"
#include "tests/common/SimJournal.h"
#include "tests/common/TestClass.h"
#include "tests/viewcontroller/BusyCore.h"
#include "tests/viewcontroller/SignalSpies.h"

namespace {

// The target calls since the journal was cleared, but for the wording of results.
QStringList Calls()
{
    QStringList calls;
    for (const SJournalCall &entry : Journal()) {
        if (qstrcmp(entry.call.function, "VOND_GetErrorString") != 0)
            calls.append(entry.call.function + (' ' + entry.request.toHex()));
    }
    return calls;
}

}  // namespace

class ViewCtrlRequestTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void everySignalOfTheTableIsThere();
    void answerIsThatOfTheCore_data() { addRequests(); }
    void answerIsThatOfTheCore();
    void answerComesOnTheGuiThread_data() { addRequests(); }
    void answerComesOnTheGuiThread();
    void requestReturnsWhileTheCoreIsBusy_data() { addRequests(); }
    void requestReturnsWhileTheCoreIsBusy();
    void secondRequestIsAnsweredOnce_data() { addRequests(); }
    void secondRequestIsAnsweredOnce();
    void otherInstanceIsNotReached_data() { addRequests(); }
    void otherInstanceIsNotReached();
    void resetWhileTheJobRunsDropsTheAnswer_data() { addRequests(); }
    void resetWhileTheJobRunsDropsTheAnswer();
    void resetWhileTheAnswerWaitsDropsIt_data() { addRequests(); }
    void resetWhileTheAnswerWaitsDropsIt();
    void requestAfterAResetIsAnswered_data() { addRequests(); }
    void requestAfterAResetIsAnswered();
    void destructionWhileTheJobRunsLetsItEnd_data() { addRequests(); }
    void destructionWhileTheJobRunsLetsItEnd();
    void destructionWhileTheAnswerWaitsDropsIt_data() { addRequests(); }
    void destructionWhileTheAnswerWaitsDropsIt();

private:
    static void addRequests();
    static const SRequest &Request();
    static void Make(CQuorlinViewCtrl &ctrl, const std::string &document)
    {
        Request().make(ctrl, document);
    }
};

void ViewCtrlRequestTest::addRequests()
{
    QTest::addColumn<int>("row");
    for (int i = 0; i < AllRequests().size(); ++i) {
        const SRequest &request = AllRequests()[i];
        QTest::newRow(qPrintable(QString("%1 %2").arg(request.internalName, request.page))) << i;
    }
}

const SRequest &ViewCtrlRequestTest::Request()
{
    QFETCH(int, row);
    return AllRequests()[row];
}

void ViewCtrlRequestTest::initTestCase()
{
    RegisterOperationResultTypes();
}

void ViewCtrlRequestTest::init()
{
    Settle();
    VondSim_Reset();
    GetCore().ResetTargetCache();
}

void ViewCtrlRequestTest::everySignalOfTheTableIsThere()
{
    QSet<QString> asked;
    for (const SRequest &request : AllRequests())
        asked.insert(request.signal);
    QSet<QString> there;
    const QMetaObject &meta = CQuorlinViewCtrl::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == QMetaMethod::Signal)
            there.insert(meta.method(i).name());
    }
    QVERIFY(there.remove("Signal_Idle"));         // answers no request of a page
    QVERIFY(there.remove("Signal_CalProgress"));  // comes before an answer
    QVERIFY(there.remove("Signal_CalRemarks"));   // the same
    QVERIFY(there.remove("Signal_RfOffDone"));    // the window's own
    QVERIFY(there.remove("Signal_FlowDone"));     // no item is without signals of its own
    QVERIFY(there.remove("Signal_TestsRun"));
    QVERIFY(there.remove("Signal_NewestTest"));  // with it
    // Of the tools beside the pages' requests, which have tests of their own.
    for (const char *own :
         {"Signal_CalWork", "Signal_ComparisonDone", "Signal_GuardedPlanDone",
          "Signal_GuardedWriteDone", "Signal_ChipNameDone", "Signal_SecondImageDone"})
        QVERIFY2(there.remove(own), own);
    QCOMPARE(there, asked);
}

void ViewCtrlRequestTest::answerIsThatOfTheCore()
{
    const std::string document = Request().Document();
    GetCore().GetAllSupportPage();  // the capabilities are read by now
    VondSim_ClearJournal();
    const QStringList answer = Request().core(GetCore(), document);
    const QStringList calls = Calls();
    if (Request().function) {
        const QString function = Request().function;
        QCOMPARE(calls.size(), function.isEmpty() ? 0 : 1);
        QCOMPARE(calls.value(0).section(' ', 0, 0), function);
    }

    CQuorlinViewCtrl ctrl;
    const CSignalSpies spies(ctrl);
    const LogCapture log(lcCore());
    VondSim_ClearJournal();
    Make(ctrl, document);
    Settle();
    const QVector<SFired> fired = spies.Fired();
    QCOMPARE(fired.size(), 1);
    QCOMPARE(fired[0].signal, QString(Request().signal));
    QCOMPARE(fired[0].arguments, answer);
    QVERIFY(log.Lines(QtDebugMsg).contains(Request().internalName));
    if (Request().function)
        QCOMPARE(Calls(), calls);
}

// A spy sees an emission where it happens: nothing before the event loop turns, everything after.
void ViewCtrlRequestTest::answerComesOnTheGuiThread()
{
    const std::string document = Request().Document();
    CQuorlinViewCtrl ctrl;
    const CSignalSpies spies(ctrl);
    Make(ctrl, document);
    EndJobs();
    QCOMPARE(spies.Fired().size(), 0);
    QCoreApplication::processEvents();
    QCOMPARE(spies.Fired().size(), 1);
}

void ViewCtrlRequestTest::requestReturnsWhileTheCoreIsBusy()
{
    const std::string document = Request().Document();
    CQuorlinViewCtrl ctrl;
    const CSignalSpies spies(ctrl);
    {
        const CBusyCore busy;
        Make(ctrl, document);
        QCoreApplication::processEvents();
        QCOMPARE(spies.Fired().size(), 0);
    }
    Settle();
    QCOMPARE(spies.Fired().size(), 1);
}

void ViewCtrlRequestTest::secondRequestIsAnsweredOnce()
{
    const std::string document = Request().Document();
    CQuorlinViewCtrl ctrl;
    const CSignalSpies spies(ctrl);
    for (int made = 1; made <= 3; ++made) {
        Make(ctrl, document);
        Settle();
        QCOMPARE(spies.Fired().size(), made);
    }
}

void ViewCtrlRequestTest::otherInstanceIsNotReached()
{
    const std::string document = Request().Document();
    CQuorlinViewCtrl asking, fresh, earlier;
    Make(earlier, document);
    Settle();
    const CSignalSpies asked(asking), notAsked(fresh), askedBefore(earlier);
    Make(asking, document);
    Settle();
    QCOMPARE(asked.Fired().size(), 1);
    QCOMPARE(notAsked.Fired().size(), 0);
    QCOMPARE(askedBefore.Fired().size(), 0);
}

void ViewCtrlRequestTest::resetWhileTheJobRunsDropsTheAnswer()
{
    const std::string document = Request().Document();
    CQuorlinViewCtrl ctrl;
    const CSignalSpies spies(ctrl);
    {
        const CBusyCore busy;
        Make(ctrl, document);
        ctrl.ResetTargetCache();
    }
    Settle();
    QCOMPARE(spies.Fired().size(), 0);
}

void ViewCtrlRequestTest::resetWhileTheAnswerWaitsDropsIt()
{
    const std::string document = Request().Document();
    CQuorlinViewCtrl ctrl;
    const CSignalSpies spies(ctrl);
    Make(ctrl, document);
    EndJobs();
    ctrl.ResetTargetCache();
    QCoreApplication::processEvents();
    QCOMPARE(spies.Fired().size(), 0);
}

void ViewCtrlRequestTest::requestAfterAResetIsAnswered()
{
    const std::string document = Request().Document();
    CQuorlinViewCtrl ctrl;
    const CSignalSpies spies(ctrl);
    Make(ctrl, document);
    EndJobs();
    ctrl.ResetTargetCache();
    QCoreApplication::processEvents();
    Make(ctrl, document);
    Settle();
    QCOMPARE(spies.Fired().size(), 1);
}

void ViewCtrlRequestTest::destructionWhileTheJobRunsLetsItEnd()
{
    const std::string document = Request().Document();
    CQuorlinViewCtrl heir;
    const CSignalSpies spies(heir);
    auto ctrl = std::make_unique<CQuorlinViewCtrl>();
    VondSim_ClearJournal();
    {
        const CBusyCore busy;
        Make(*ctrl, document);
        ctrl.reset();
    }
    Settle();
    QCOMPARE(spies.Fired().size(), 0);
    if (Request().function && *Request().function)
        QVERIFY(CountCalls(Request().function) > 0);
}

void ViewCtrlRequestTest::destructionWhileTheAnswerWaitsDropsIt()
{
    const std::string document = Request().Document();
    CQuorlinViewCtrl heir;
    const CSignalSpies spies(heir);
    auto ctrl = std::make_unique<CQuorlinViewCtrl>();
    Make(*ctrl, document);
    EndJobs();
    ctrl.reset();
    QCoreApplication::processEvents();
    QCOMPARE(spies.Fired().size(), 0);
}

QUORLIN_TEST_CLASS(ViewCtrlRequestTest)
#include "ViewCtrlRequestTest.moc"
