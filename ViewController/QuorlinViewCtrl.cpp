#include "ViewController/QuorlinViewCtrl.h"

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

// The answer of job goes out through signal, on the GUI thread, if this object still lives then and
// no reset came between. A job that throws answers with nothing.
template <typename Job, typename Answer>
void CQuorlinViewCtrl::RunOnPool(const char *internalName, Job job,
                                 void (CQuorlinViewCtrl::*signal)(Answer))
{
    CNrCore &core = GetCore();
    m_future = QtConcurrent::run([internalName, job, signal, &core, epoch = m_epoch,
                                  self = QPointer<CQuorlinViewCtrl>(this)] {
        qCDebug(lcCore) << internalName;
        Answer answer;
        try {
            answer = job(core);
        } catch (...) {
            qCCritical(lcCore) << internalName << "ended by an exception";
        }
        PostToGui([self, signal, epoch, answer] {
            if (self && self->m_epoch == epoch)
                emit(self->*signal)(answer);
        });
    });
}

void CQuorlinViewCtrl::RequestDataModel(const char *internalName, EPageId page,
                                        DataModelSignal answer)
{
    RunOnPool(
        internalName,
        [page](CNrCore &core) {
            return core.GetDataModel(core.GetPageName(static_cast<int>(page)));
        },
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
        core.Test(core.GetPageName(static_cast<int>(page)), document);
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
        "GetInitPageListInternal", [](CNrCore &core) { return core.GetAllSupportPage(); },
        &CQuorlinViewCtrl::Signal_GetInitPageListDone);
}

void CQuorlinViewCtrl::GetContRxDataModel()
{
    RequestDataModel("GetContRxDataModelInternal", EPageId::ContRx,
                     &CQuorlinViewCtrl::Signal_GetContRxDataModelDone);
}

void CQuorlinViewCtrl::ContRxTest(std::string document)
{
    RequestTest("ContRxTestInternal", EPageId::ContRx, std::move(document),
                &CQuorlinViewCtrl::Slot_ContRxTestDone);
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
    if (result.itemName != GetCore().GetPageName(static_cast<int>(page)))
        return false;
    disconnect(&GetCore(), &CNrCore::Signal_TestDone, this, nullptr);
    return true;
}

void CQuorlinViewCtrl::Slot_ContRxTestDone(SEachItemOperationResult result, std::string)
{
    if (TakeAnswer(EPageId::ContRx, result))
        emit Signal_ContRxTestDone(result);
}

void CQuorlinViewCtrl::Slot_TestStopDone(SEachItemOperationResult result)
{
    disconnect(&GetCore(), &CNrCore::Signal_TestStopDone, this, nullptr);
    emit Signal_TestStopDone(result);
}
