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
    GetCore().ResetTargetCache();
}

// The answer of job goes out through signal, on the GUI thread, if this object still lives then.
template <typename Job, typename Answer>
void CQuorlinViewCtrl::RunOnPool(const char *internalName, Job job,
                                 void (CQuorlinViewCtrl::*signal)(Answer))
{
    CNrCore &core = GetCore();
    m_future = QtConcurrent::run(
        [internalName, job, signal, &core, self = QPointer<CQuorlinViewCtrl>(this)] {
            qCDebug(lcCore) << internalName;
            PostToGui([self, signal, answer = job(core)] {
                if (self)
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

void CQuorlinViewCtrl::Slot_ContRxTestDone(SEachItemOperationResult result, std::string)
{
    disconnect(&GetCore(), &CNrCore::Signal_TestDone, this, nullptr);
    emit Signal_ContRxTestDone(result);
}

void CQuorlinViewCtrl::Slot_TestStopDone(SEachItemOperationResult result)
{
    disconnect(&GetCore(), &CNrCore::Signal_TestStopDone, this, nullptr);
    emit Signal_TestStopDone(result);
}
