// The only door from the GUI to the core.
//
// Calls into the core can block for seconds on the target link, so a request returns at once, runs
// on the global pool, and is answered by a signal on the GUI thread. Each page owns one view
// controller, the form one more; all share the one core. Make one request at a time.
//
// Lifetime. A view controller may be destroyed while its request runs: the job owns copies of all
// it needs and reaches this object only through a guarded call on the GUI thread, so it ends
// without touching what is gone, and its answer is dropped.
//
//   connect(ctrl, &CQuorlinViewCtrl::Signal_ContRxTestDone, this, &Page::Slot_ContRxTestDone);
//   ctrl->ContRxTest(document);
#pragma once

#include <string>

#include <QFuture>
#include <QObject>
#include <QStringList>

#include "Controller/Interface/CoreInterface.h"
#include "Model/OperationResult.h"

enum class EPageId;

class CQuorlinViewCtrl : public QObject
{
    Q_OBJECT

public:
    // The host's target handle, for all calls to the target from now on.
    static void SetTargetHandle(uint32_t handle);

    // On the calling thread: the support check blocks on the link, the reset never does. Documents
    // and page lists that were asked for before a reset are of the old target: none arrives after
    // it.
    SRfSupportStatus GetSupportStatus();
    void ResetTargetCache();

    void GetInitPageList();

    // Documents, one request a page.
    void GetContRxDataModel();

    // Tests, one request a page; the document is the packaged one.
    void ContRxTest(std::string document);

    // Stops: of the NR tests, and of the multi-RAT ones.
    void NrTestStop();
    void MultiRatTestStop();

    // Signal_Idle as soon as no job of the core runs.
    void ReportIdle();

signals:
    void Signal_GetInitPageListDone(QStringList pageList);
    void Signal_GetContRxDataModelDone(std::string dataModel);
    void Signal_ContRxTestDone(SEachItemOperationResult result);
    void Signal_TestStopDone(SEachItemOperationResult result);
    void Signal_Idle();

private slots:
    void Slot_ContRxTestDone(SEachItemOperationResult result, std::string response);
    void Slot_TestStopDone(SEachItemOperationResult result);

private:
    using DataModelSignal = void (CQuorlinViewCtrl::*)(std::string);
    using TestDoneSlot = void (CQuorlinViewCtrl::*)(SEachItemOperationResult, std::string);

    void RequestDataModel(const char *internalName, EPageId page, DataModelSignal answer);
    void RequestTest(const char *internalName, EPageId page, std::string document,
                     TestDoneSlot done);
    void RequestStop(const char *internalName, bool isNr);
    bool TakeAnswer(EPageId page, const SEachItemOperationResult &result);

    template <typename Job, typename Answer>
    void RunOnPool(const char *internalName, Job job, void (CQuorlinViewCtrl::*signal)(Answer));

    QFuture<void> m_future;  // job last started; kept, never waited on
    int m_epoch = 0;         // changes with a reset
};
