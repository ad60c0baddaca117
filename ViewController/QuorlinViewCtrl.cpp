#include "ViewController/QuorlinViewCtrl.h"

#include <tuple>

#include <QCoreApplication>
#include <QPointer>
#include <QtConcurrent>

#include "Controller/NrCore.h"
#include "Controller/PageTable.h"
#include "Support/Log.h"

namespace {

// Runs a call on the GUI thread, some time later; not at all once the application is going down.
template <typename Call>
void PostToGui(Call call)
{
    if (QCoreApplication *application = QCoreApplication::instance())
        QMetaObject::invokeMethod(application, std::move(call), Qt::QueuedConnection);
}

}  // namespace

void CQuorlinViewCtrl::SetTargetHandle(uint32_t handle)
{
    CNrCore::SetTargetHandle(handle);
}

SRfSupportStatus CQuorlinViewCtrl::GetSupportStatus()
{
    return GetCore().GetSupportStatus();
}

void CQuorlinViewCtrl::ResetTargetCache()
{
    ++m_epoch;
    GetCore().ResetTargetCache();
}

// The answers of job go out through signal, on the GUI thread, if this object still lives then and
// no reset came between. A job that throws answers with nothing.
template <typename Job, typename... Answers>
void CQuorlinViewCtrl::RunOnPool(const char *internalName, Job job,
                                 void (CQuorlinViewCtrl::*signal)(Answers...))
{
    CNrCore &core = GetCore();
    m_future = QtConcurrent::run([internalName, job, signal, &core, epoch = m_epoch,
                                  self = QPointer<CQuorlinViewCtrl>(this)] {
        qCDebug(lcCore) << internalName;
        std::tuple<Answers...> answers;
        try {
            answers = job(core);
        } catch (...) {
            qCCritical(lcCore) << internalName << "ended by an exception";
        }
        PostToGui([self, signal, epoch, answers = std::move(answers)] {
            const auto emitAll = [&](const Answers &...each) { emit(self->*signal)(each...); };
            if (self && self->m_epoch == epoch)
                std::apply(emitAll, answers);
        });
    });
}

void CQuorlinViewCtrl::RequestDataModel(const char *internalName, EPageId page,
                                        DataModelSignal answer)
{
    RunOnPool(
        internalName,
        [page](CNrCore &core) { return std::make_tuple(core.GetDataModel(PageName(page))); },
        answer);
}

// The connection to the core lives for one request: made here, taken down in the done slot.
void CQuorlinViewCtrl::RequestTest(const char *internalName, EPageId page, std::string document,
                                   TestDoneSlot done)
{
    CNrCore &core = GetCore();
    disconnect(&core, &CNrCore::Signal_TestDone, this, nullptr);
    connect(&core, &CNrCore::Signal_TestDone, this, done);
    m_future = QtConcurrent::run([internalName, &core, page, document = std::move(document)] {
        qCDebug(lcCore) << internalName;
        core.Test(PageName(page), document);
    });
}

void CQuorlinViewCtrl::RequestStop(const char *internalName, bool isNr)
{
    CNrCore &core = GetCore();
    connect(&core, &CNrCore::Signal_TestStopDone, this, &CQuorlinViewCtrl::Slot_TestStopDone,
            Qt::UniqueConnection);
    m_future = QtConcurrent::run([internalName, &core, isNr] {
        qCDebug(lcCore) << internalName;
        core.TestStopStart(isNr);
    });
}

void CQuorlinViewCtrl::ReportIdle()
{
    m_future = QtConcurrent::run([&core = GetCore(), self = QPointer<CQuorlinViewCtrl>(this)] {
        core.WaitForTurn();
        PostToGui([self] {
            if (self)
                emit self->Signal_Idle();
        });
    });
}

void CQuorlinViewCtrl::GetInitPageList()
{
    RunOnPool(
        "GetInitPageListInternal",
        [](CNrCore &core) { return std::make_tuple(core.GetAllSupportPage()); },
        &CQuorlinViewCtrl::Signal_GetInitPageListDone);
}

void CQuorlinViewCtrl::GetPuschTxForceDataModel()
{
    RequestDataModel("GetPuschTxForceDataModelInternal", EPageId::PuschTxForce,
                     &CQuorlinViewCtrl::Signal_GetPuschTxForceDataModelDone);
}

void CQuorlinViewCtrl::GetPuschTxNormalDataModel()
{
    RequestDataModel("GetPuschTxNormalDataModelInternal", EPageId::PuschTxNormal,
                     &CQuorlinViewCtrl::Signal_GetPuschTxNormalDataModelDone);
}

void CQuorlinViewCtrl::GetSingleToneTxDataModel()
{
    RequestDataModel("GetSingleToneTxDataModelInternal", EPageId::SingleToneTx,
                     &CQuorlinViewCtrl::Signal_GetSingleToneTxDataModelDone);
}

void CQuorlinViewCtrl::GetRsrpForceDataModel()
{
    RequestDataModel("GetRsrpForceDataModelInternal", EPageId::RsrpForce,
                     &CQuorlinViewCtrl::Signal_GetRsrpForceDataModelDone);
}

void CQuorlinViewCtrl::GetRsrpNormalDataModel()
{
    RequestDataModel("GetRsrpNormalDataModelInternal", EPageId::RsrpNormal,
                     &CQuorlinViewCtrl::Signal_GetRsrpNormalDataModelDone);
}

void CQuorlinViewCtrl::GetContRxDataModel()
{
    RequestDataModel("GetContRxDataModelInternal", EPageId::ContRx,
                     &CQuorlinViewCtrl::Signal_GetContRxDataModelDone);
}

void CQuorlinViewCtrl::GetRssiDataModel()
{
    RequestDataModel("GetRssiDataModelInternal", EPageId::Rssi,
                     &CQuorlinViewCtrl::Signal_GetRssiDataModelDone);
}

void CQuorlinViewCtrl::GetAptDataModel()
{
    RequestDataModel("GetAptDataModelInternal", EPageId::AptProfile,
                     &CQuorlinViewCtrl::Signal_GetAptDataModelDone);
}

void CQuorlinViewCtrl::GetPathLossDataModel()
{
    RequestDataModel("GetPathLossDataModelInternal", EPageId::RxPathLoss,
                     &CQuorlinViewCtrl::Signal_GetPathLossDataModelDone);
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

void CQuorlinViewCtrl::GetPuschTxForceDlFreq(std::string document)
{
    RequestDlFreq(EPageId::PuschTxForce, std::move(document));
}

void CQuorlinViewCtrl::GetPuschTxNormalDlFreq(std::string document)
{
    RequestDlFreq(EPageId::PuschTxNormal, std::move(document));
}

void CQuorlinViewCtrl::RequestDlFreq(EPageId page, std::string document)
{
    RunOnPool(
        "GetPuschTxDlFreqInternal",
        [page, document = std::move(document)](CNrCore &core) {
            return std::make_tuple(core.GetDlFreqForPuschTx(PageName(page), document));
        },
        &CQuorlinViewCtrl::Signal_GetPuschTxDlFreqDone);
}

void CQuorlinViewCtrl::GetSingleToneTxPdValue(std::string document)
{
    RunOnPool(
        "GetSingleToneTxPdValueInternal",
        [document = std::move(document)](CNrCore &core) {
            return std::make_tuple(core.GetPdValue(document));
        },
        &CQuorlinViewCtrl::Signal_GetSingleToneTxPdValueDone);
}

void CQuorlinViewCtrl::RsrpForceFetchReport(std::string document)
{
    RequestReport("RsrpForceFetchReportInternal", EPageId::RsrpForce, std::move(document),
                  &CQuorlinViewCtrl::Signal_RsrpForceFetchReportDone);
}

void CQuorlinViewCtrl::RsrpNormalFetchReport(std::string document)
{
    RequestReport("RsrpNormalFetchReportInternal", EPageId::RsrpNormal, std::move(document),
                  &CQuorlinViewCtrl::Signal_RsrpNormalFetchReportDone);
}

void CQuorlinViewCtrl::RequestReport(const char *internalName, EPageId page, std::string document,
                                     ResponseSignal answer)
{
    RunOnPool(
        internalName,
        [page, document = std::move(document)](CNrCore &core) {
            SEachItemOperationResult result;
            const std::string response = core.FetchMixRxReport(PageName(page), document, result);
            return std::make_tuple(result, response);
        },
        answer);
}

void CQuorlinViewCtrl::RsrpResetCounter()
{
    RunOnPool(
        "RsrpResetCounterInternal",
        [](CNrCore &core) { return std::make_tuple(core.ResetMixRxCounter()); },
        &CQuorlinViewCtrl::Signal_RsrpResetCounterDone);
}

void CQuorlinViewCtrl::RsrpClearReport(std::string document)
{
    RunOnPool(
        "RsrpClearReportInternal",
        [document = std::move(document)](CNrCore &core) {
            return std::make_tuple(core.ClearMixRxReport(document));
        },
        &CQuorlinViewCtrl::Signal_RsrpClearReportDone);
}

void CQuorlinViewCtrl::RssiGainCalculator(std::string document)
{
    RunOnPool(
        "RssiGainCalculatorInternal",
        [document = std::move(document)](CNrCore &core) {
            SEachItemOperationResult result;
            const std::string response = core.RssiGainCalculate(document, result);
            return std::make_tuple(result, response);
        },
        &CQuorlinViewCtrl::Signal_RssiGainCalculatorDone);
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
    disconnect(&GetCore(), &CNrCore::Signal_TestDone, this, nullptr);
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

void CQuorlinViewCtrl::Slot_TestStopDone(SEachItemOperationResult result)
{
    disconnect(&GetCore(), &CNrCore::Signal_TestStopDone, this, nullptr);
    emit Signal_TestStopDone(result);
}
