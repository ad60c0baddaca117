// Tests and stops of the view controller. The core answers tests through a signal of its own.
#include "Controller/core/PageTable.h"
#include "ViewController/QuorlinViewCtrlJobs.h"

void CQuorlinViewCtrl::RequestTest(const char *internalName, EPageId page, std::string document,
                                   TestDoneSlot done)
{
    AwaitAnswer(&CCoreAnswers::Signal_TestDone, done);
    m_testPage = PageName(page);
    CNrCore &core = GetCore();
    m_future = StartOnPool(
        [internalName, &core, page, document = std::move(document), asked = core.Moment()] {
            qCDebug(lcCore) << internalName;
            core.Test(PageName(page), document, asked);
        });
}

// Each asker gets the answer of its own stop; the core's signal is for all of them.
void CQuorlinViewCtrl::RequestStop(const char *internalName, bool isNr)
{
    RunOnPool(internalName, &CQuorlinViewCtrl::Signal_TestStopDone,
              [isNr, page = m_testPage, asked = GetCore().Moment()](CNrCore &core) {
                  return std::make_tuple(core.StopTest(isNr, page, asked));
              });
}

void CQuorlinViewCtrl::RfOff()
{
    StartOnPoolAtOnce(PoolJob("RfOffInternal", &CQuorlinViewCtrl::Signal_RfOffDone,
                              [place = GetCore().BeginRfOff()](CNrCore &core) mutable {
                                  return std::make_tuple(core.FinishRfOff(std::move(place)));
                              }));
}

void CQuorlinViewCtrl::StopRunningTests()
{
    GetCore().StopRunningTests();
}

bool CQuorlinViewCtrl::HasRunningTests() const
{
    return GetCore().HasRunningTests();
}

void CQuorlinViewCtrl::WatchTests()
{
    connect(&CCoreAnswers::Get(), &CCoreAnswers::Signal_TestsRun, this,
            &CQuorlinViewCtrl::Signal_TestsRun, Qt::UniqueConnection);
    emit Signal_TestsRun(GetCore().HasRunningTests());
}

void CQuorlinViewCtrl::PuschTxForceTest(std::string document)
{
    RequestTest("PuschTxForceTestInternal", EPageId::PuschTxForce, std::move(document),
                &CQuorlinViewCtrl::Slot_PuschTxForceTestDone);
}

void CQuorlinViewCtrl::PuschTxNormalTest(std::string document)
{
    RequestTest("PuschTxNormalTestInternal", EPageId::PuschTxNormal, std::move(document),
                &CQuorlinViewCtrl::Slot_PuschTxNormalTestDone);
}

void CQuorlinViewCtrl::SingleToneTxTest(std::string document)
{
    RequestTest("SingleToneTxTestInternal", EPageId::SingleToneTx, std::move(document),
                &CQuorlinViewCtrl::Slot_SingleToneTxTestDone);
}

void CQuorlinViewCtrl::RsrpForceTest(std::string document)
{
    RequestTest("RsrpForceTestInternal", EPageId::RsrpForce, std::move(document),
                &CQuorlinViewCtrl::Slot_RsrpForceTestDone);
}

void CQuorlinViewCtrl::RsrpNormalTest(std::string document)
{
    RequestTest("RsrpNormalTestInternal", EPageId::RsrpNormal, std::move(document),
                &CQuorlinViewCtrl::Slot_RsrpNormalTestDone);
}

void CQuorlinViewCtrl::ContRxTest(std::string document)
{
    RequestTest("ContRxTestInternal", EPageId::ContRx, std::move(document),
                &CQuorlinViewCtrl::Slot_ContRxTestDone);
}

void CQuorlinViewCtrl::RssiTest(std::string document)
{
    RequestTest("RssiTestInternal", EPageId::Rssi, std::move(document),
                &CQuorlinViewCtrl::Slot_RssiTestDone);
}

void CQuorlinViewCtrl::NrTestStop()
{
    RequestStop("NrTestStopInternal", true);
}

void CQuorlinViewCtrl::MultiRatTestStop()
{
    RequestStop("MultiRatTestStopInternal", false);
}

// The core has one signal for the tests of all pages. An answer of another page's test, which was
// under way when ours began, is not ours.
bool CQuorlinViewCtrl::TakeAnswer(EPageId page, const SEachItemOperationResult &result)
{
    if (result.itemName != PageName(page))
        return false;
    disconnect(&CCoreAnswers::Get(), &CCoreAnswers::Signal_TestDone, this, nullptr);
    return true;
}

void CQuorlinViewCtrl::PassAnswer(EPageId page, const SEachItemOperationResult &result,
                                  ResultSignal signal)
{
    if (TakeAnswer(page, result))
        emit(this->*signal)(result);
}

void CQuorlinViewCtrl::Slot_PuschTxForceTestDone(SEachItemOperationResult result, std::string)
{
    PassAnswer(EPageId::PuschTxForce, result, &CQuorlinViewCtrl::Signal_PuschTxForceTestDone);
}

void CQuorlinViewCtrl::Slot_PuschTxNormalTestDone(SEachItemOperationResult result, std::string)
{
    PassAnswer(EPageId::PuschTxNormal, result, &CQuorlinViewCtrl::Signal_PuschTxNormalTestDone);
}

void CQuorlinViewCtrl::Slot_SingleToneTxTestDone(SEachItemOperationResult result, std::string)
{
    PassAnswer(EPageId::SingleToneTx, result, &CQuorlinViewCtrl::Signal_SingleToneTxTestDone);
}

void CQuorlinViewCtrl::Slot_RsrpForceTestDone(SEachItemOperationResult result, std::string)
{
    PassAnswer(EPageId::RsrpForce, result, &CQuorlinViewCtrl::Signal_RsrpForceTestDone);
}

void CQuorlinViewCtrl::Slot_RsrpNormalTestDone(SEachItemOperationResult result, std::string)
{
    PassAnswer(EPageId::RsrpNormal, result, &CQuorlinViewCtrl::Signal_RsrpNormalTestDone);
}

void CQuorlinViewCtrl::Slot_ContRxTestDone(SEachItemOperationResult result, std::string)
{
    PassAnswer(EPageId::ContRx, result, &CQuorlinViewCtrl::Signal_ContRxTestDone);
}

void CQuorlinViewCtrl::Slot_RssiTestDone(SEachItemOperationResult result, std::string response)
{
    if (TakeAnswer(EPageId::Rssi, result))
        emit Signal_RssiTestDone(result, response);
}
