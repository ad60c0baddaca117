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
// What a page's requests ask the core for, and by which signals they answer, stands in two tables:
// of the pages (QuorlinViewCtrlPages.cpp) and of the calibration items
// (QuorlinViewCtrlCalibration.cpp).
//
// A calibration request that stores or asks for a record takes the page's packaged document with
// it; its file, where it has one, lives as long as its flow, whatever becomes of the page.
//
// Documents. A page hands over objects: the requests of any page and item, by id. The named ones
// take text, which is parsed on the pool. A signal carries its document as text; a slot takes the
// same as an object, which is there already, with DocumentOf. So the GUI thread neither prints nor
// parses.
//
//   connect(ctrl, &CQuorlinViewCtrl::Signal_ContRxTestDone, this, &Page::Slot_ContRxTestDone);
//   ctrl->ContRxTest(document);
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>

#include <QFuture>
#include <QJsonObject>
#include <QObject>
#include <QStringList>

#include "Controller/Interface/CoreInterface.h"
#include "Controller/core/CalChange.h"
#include "Controller/core/CalItemTable.h"
#include "Controller/core/PageId.h"
#include "Model/CalChanges.h"
#include "Model/CalDifferences.h"
#include "Model/CalRemarks.h"
#include "Model/CalSecondImage.h"
#include "Model/GuardedPlan.h"
#include "Model/HandedDocument.h"
#include "Model/OperationResult.h"
#include "Model/RunningTest.h"
#include "Support/JobQueue.h"

class CCoreAnswers;
class CNrCore;

class CQuorlinViewCtrl : public QObject
{
    Q_OBJECT

public:
    // The host's target handle, for all calls to the target from now on.
    static void SetTargetHandle(uint32_t handle);

    // On the calling thread: the support check blocks on the link, the reset never does. What was
    // asked for before a reset is of the old target: no answer arrives after it.
    SRfSupportStatus GetSupportStatus();
    // Blocks as the support check does, unless that has been made.
    QString GetRfChipName();
    void ResetTargetCache();

    void GetInitPageList();

    // Requests of any page and calibration item. One without requests of its own below is answered
    // by Signal_DataModelDone, Signal_TestDone and Signal_FlowDone.
    enum class ECalFlow
    {
        Upload,
        Download,
        Save,
        Load,
        Count,
    };
    void RequestDataModel(EPageId page);
    void RequestTest(EPageId page, CHandedDocument document);
    // path: of the file, of a save or load.
    void RequestFlow(ECalItem item, ECalFlow flow, CHandedDocument document, QString path = {});
    // Two images of an item side by side, answered by Signal_ComparisonDone; document is that of the
    // page, whose edits go into memory first.
    void RequestComparison(ECalItem item, CHandedDocument document, SComparedSide left,
                           SComparedSide right);
    // One side alone, answered by Signal_SecondImageDone.
    void RequestSecondImage(ECalItem item, CHandedDocument document, SComparedSide side);
    // A guarded write of what the page holds: first the plan, answered by Signal_GuardedPlanDone, then,
    // after the user's yes, the write of that plan, by Signal_GuardedWriteDone.
    void RequestGuardedPlan(ECalItem item, CHandedDocument document);
    void RequestGuardedWrite(ECalItem item, SGuardedPlan plan);
    // Reads beside a page's test, answered by the signals of the named ones below.
    void RequestDlFreq(EPageId page, CHandedDocument document);
    void RequestPdValue(EPageId page, CHandedDocument document);
    void RequestReport(EPageId page, CHandedDocument document);
    void RequestClear(CHandedDocument document);
    void RequestGains(CHandedDocument document);
    // The DUT's chip, answered by Signal_ChipNameDone; waits on the pool while the target is busy.
    void RequestChipName();

    // In a slot of an answer: its document, whose text is given. Outside one it parses the text.
    // Empty: no document.
    QJsonObject DocumentOf(const std::string &text) const;
    // In a slot of a flow's answer: the document of the request with the record that memory holds
    // under its selection. Empty: there is nothing to show.
    QJsonObject FlowDocument() const { return m_answered; }

    // Documents, one request a page.
    void GetPuschTxForceDataModel() { RequestDataModel(EPageId::PuschTxForce); }
    void GetPuschTxNormalDataModel() { RequestDataModel(EPageId::PuschTxNormal); }
    void GetSingleToneTxDataModel() { RequestDataModel(EPageId::SingleToneTx); }
    void GetRsrpForceDataModel() { RequestDataModel(EPageId::RsrpForce); }
    void GetRsrpNormalDataModel() { RequestDataModel(EPageId::RsrpNormal); }
    void GetContRxDataModel() { RequestDataModel(EPageId::ContRx); }
    void GetRssiDataModel() { RequestDataModel(EPageId::Rssi); }
    void GetAptDataModel() { RequestDataModel(EPageId::AptProfile); }
    void GetPathLossDataModel() { RequestDataModel(EPageId::RxPathLoss); }

    // Tests, one request a page; the document is the packaged one. All but RSSI start something
    // that goes on until a stop.
    void PuschTxForceTest(std::string document)
    {
        RequestTest(EPageId::PuschTxForce, std::move(document));
    }
    void PuschTxNormalTest(std::string document)
    {
        RequestTest(EPageId::PuschTxNormal, std::move(document));
    }
    void SingleToneTxTest(std::string document)
    {
        RequestTest(EPageId::SingleToneTx, std::move(document));
    }
    void RsrpForceTest(std::string document)
    {
        RequestTest(EPageId::RsrpForce, std::move(document));
    }
    void RsrpNormalTest(std::string document)
    {
        RequestTest(EPageId::RsrpNormal, std::move(document));
    }
    void ContRxTest(std::string document) { RequestTest(EPageId::ContRx, std::move(document)); }
    void RssiTest(std::string document) { RequestTest(EPageId::Rssi, std::move(document)); }

    // Reads beside a test: the answer is the document with what was read.
    void GetPuschTxForceDlFreq(std::string document)
    {
        RequestDlFreq(EPageId::PuschTxForce, std::move(document));
    }
    void GetPuschTxNormalDlFreq(std::string document)
    {
        RequestDlFreq(EPageId::PuschTxNormal, std::move(document));
    }
    void GetSingleToneTxPdValue(std::string document)
    {
        RequestPdValue(EPageId::SingleToneTx, std::move(document));
    }
    void RsrpForceFetchReport(std::string document)
    {
        RequestReport(EPageId::RsrpForce, std::move(document));
    }
    void RsrpNormalFetchReport(std::string document)
    {
        RequestReport(EPageId::RsrpNormal, std::move(document));
    }
    void RsrpResetCounter();
    void RsrpClearReport(std::string document) { RequestClear(std::move(document)); }
    void RssiGainCalculator(std::string document) { RequestGains(std::move(document)); }

    // Stops: of the NR tests, and of the multi-RAT ones; under the handle of the last test that was
    // asked for here.
    void NrTestStop() { RequestStop("NrTestStopInternal", EStop::Nr); }
    void MultiRatTestStop() { RequestStop("MultiRatTestStopInternal", EStop::MultiRat); }
    // Stops every test on the target, before all that waits; starts that have not reached it answer
    // 4.
    void RfOff();
    // Stops what the tool has started and not stopped, for a form that no longer shows the tests.
    // Has no answer; goes on when this object is gone.
    void StopRunningTests();
    bool HasRunningTests() const;
    // Emits Signal_TestsRun and Signal_NewestTest at once for the present state, and from now on for
    // each change.
    void WatchTests();

    // Calibration data. Upload and load answer with the document of the selected record; download
    // and save store the page's record first. A file that can't be read or written is told in the
    // answer.
    void AptUploadFromFlash(std::string document)
    {
        RequestFlow(ECalItem::Apt, ECalFlow::Upload, std::move(document));
    }
    void AptDownloadToFlash(std::string document)
    {
        RequestFlow(ECalItem::Apt, ECalFlow::Download, std::move(document));
    }
    void AptSaveToFile(std::string document, QString path)
    {
        RequestFlow(ECalItem::Apt, ECalFlow::Save, std::move(document), path);
    }
    void AptLoadFromFile(std::string document, QString path)
    {
        RequestFlow(ECalItem::Apt, ECalFlow::Load, std::move(document), path);
    }
    void PathLossUploadFromFlash(std::string document)
    {
        RequestFlow(ECalItem::PathLoss, ECalFlow::Upload, std::move(document));
    }
    void PathLossDownloadToFlash(std::string document)
    {
        RequestFlow(ECalItem::PathLoss, ECalFlow::Download, std::move(document));
    }
    void PathLossSaveToFile(std::string document, QString path)
    {
        RequestFlow(ECalItem::PathLoss, ECalFlow::Save, std::move(document), path);
    }
    void PathLossLoadFromFile(std::string document, QString path)
    {
        RequestFlow(ECalItem::PathLoss, ECalFlow::Load, std::move(document), path);
    }

    // The record that a page's document selects, on the calling thread and from memory: for a page
    // whose selection changes.
    std::string GetCalibrationData(ECalItem item, const std::string &document);
    void SetCalibrationData(ECalItem item, const std::string &document);
    // Empty: the DUT is of another generation.
    QJsonObject GetCalibrationData(ECalItem item, const QJsonObject &document);
    void SetCalibrationData(ECalItem item, const QJsonObject &document);
    // The way back, as CNrCore::GetCalBase and the others have it; on the calling thread, from memory.
    // Empty: the record never came in.
    QJsonObject GetCalBase(ECalItem item, const QJsonObject &document);
    SCalChangedCells CountCalChanges(ECalItem item, const QJsonObject &document, bool hasEdits);
    CalChange RevertCalRecord(ECalItem item, const QJsonObject &document);
    CalChange RevertCalItem(ECalItem item, const QJsonObject &document);
    CalCopyTargets FindCopyTargets(ECalItem item, const QJsonObject &document);
    CalChange CopyCalRecord(ECalItem item, const QJsonObject &document,
                            const CalCopyTargets &targets);
    void ApplyCalChange(ECalItem item, const QJsonObject &document, const CalChange &change,
                        ECalWay way);
    // In a slot of an upload's or load's answer, or behind it.
    CalChange TakeFlowChange(ECalItem item);
    std::string GetAptCalibrationData(std::string document)
    {
        return GetCalibrationData(ECalItem::Apt, document);
    }
    void SetAptCalibrationData(const std::string &document)
    {
        SetCalibrationData(ECalItem::Apt, document);
    }
    std::string GetPathLossCalibrationData(std::string document)
    {
        return GetCalibrationData(ECalItem::PathLoss, document);
    }
    void SetPathLossCalibrationData(const std::string &document)
    {
        SetCalibrationData(ECalItem::PathLoss, document);
    }

    // Signal_Idle as soon as no job of the core runs.
    void ReportIdle();

signals:
    void Signal_GetInitPageListDone(QStringList pageList);
    void Signal_DataModelDone(std::string dataModel);
    void Signal_TestDone(SEachItemOperationResult result, std::string response);
    // With the document of the selected record, of an upload or load.
    void Signal_FlowDone(SEachItemOperationResult result, std::string resultDataModel);

    void Signal_GetPuschTxForceDataModelDone(std::string dataModel);
    void Signal_GetPuschTxNormalDataModelDone(std::string dataModel);
    void Signal_GetSingleToneTxDataModelDone(std::string dataModel);
    void Signal_GetRsrpForceDataModelDone(std::string dataModel);
    void Signal_GetRsrpNormalDataModelDone(std::string dataModel);
    void Signal_GetContRxDataModelDone(std::string dataModel);
    void Signal_GetRssiDataModelDone(std::string dataModel);
    void Signal_GetAptDataModelDone(std::string dataModel);
    void Signal_GetPathLossDataModelDone(std::string dataModel);

    void Signal_PuschTxForceTestDone(SEachItemOperationResult result);
    void Signal_PuschTxNormalTestDone(SEachItemOperationResult result);
    void Signal_SingleToneTxTestDone(SEachItemOperationResult result);
    void Signal_RsrpForceTestDone(SEachItemOperationResult result);
    void Signal_RsrpNormalTestDone(SEachItemOperationResult result);
    void Signal_ContRxTestDone(SEachItemOperationResult result);
    void Signal_RssiTestDone(SEachItemOperationResult result, std::string response);

    void Signal_GetPuschTxDlFreqDone(std::string resultModel);
    void Signal_GetSingleToneTxPdValueDone(std::string resultModel);
    void Signal_RsrpForceFetchReportDone(SEachItemOperationResult result, std::string response);
    void Signal_RsrpNormalFetchReportDone(SEachItemOperationResult result, std::string response);
    void Signal_RsrpResetCounterDone(SEachItemOperationResult result);
    void Signal_RsrpClearReportDone(std::string response);
    void Signal_RssiGainCalculatorDone(SEachItemOperationResult result, std::string response);

    void Signal_TestStopDone(SEachItemOperationResult result);
    void Signal_RfOffDone(SEachItemOperationResult result);
    // isAny: a test runs, or may run after a start that failed at the target.
    void Signal_TestsRun(bool isAny);
    // Of the tests that run, the one started last; an empty text when none does.
    void Signal_NewestTest(SRunningTestInfo newest);
    void Signal_ChipNameDone(QString chip);

    void Signal_AptUploadFromFlashDone(SEachItemOperationResult result,
                                       std::string resultDataModel);
    void Signal_AptDownloadToFlashDone(SEachItemOperationResult result);
    void Signal_AptSaveToFileDone(SEachItemOperationResult result);
    void Signal_AptLoadFromFileDone(SEachItemOperationResult result, std::string resultDataModel);
    void Signal_PathLossUploadFromFlashDone(SEachItemOperationResult result,
                                            std::string resultDataModel);
    void Signal_PathLossDownloadToFlashDone(SEachItemOperationResult result);
    void Signal_PathLossSaveToFileDone(SEachItemOperationResult result);
    void Signal_PathLossLoadFromFileDone(SEachItemOperationResult result,
                                         std::string resultDataModel);
    // How far the calibration request is. round: the transfer under way, from 1 on; 0 while a file
    // is read or written.
    void Signal_CalProgress(int round, int routesDone, int routesInAll);
    // Remarks on the calibration request. Comes before its answer, and only when there are remarks.
    void Signal_CalRemarks(SCalRemarks remarks);

    void Signal_ComparisonDone(SCalCompared compared);
    void Signal_SecondImageDone(SCalSecondRead read);
    void Signal_GuardedPlanDone(SGuardedPlan plan);
    void Signal_GuardedWriteDone(SGuardedReport report);
    // How far a comparison or a guarded write is, with the step in words.
    void Signal_CalWork(QString step, int routesDone, int routesInAll);

    void Signal_Idle();

private:
    using DocumentSignal = void (CQuorlinViewCtrl::*)(std::string);
    using ResultSignal = void (CQuorlinViewCtrl::*)(SEachItemOperationResult);
    using ResponseSignal = void (CQuorlinViewCtrl::*)(SEachItemOperationResult, std::string);

    struct SPageRequests;  // the requests of one page
    static const SPageRequests &RequestsOf(EPageId page);
    void RequestStop(const char *internalName, EStop kind);
    void PassTestAnswer(EPageId page, const SEachItemOperationResult &result,
                        const std::string &response);

    struct SCalFlow;      // what a flow is for all items
    struct SCalRequest;   // a flow of one item
    struct SCalRequests;  // the flows of one item
    static const SCalFlow &FlowOf(ECalFlow flow);
    static const SCalRequest &CalRequest(ECalItem item, ECalFlow flow);
    void AwaitFlow(ECalItem item, ECalFlow flow);
    void PassFlowAnswer(ECalItem item, ECalFlow flow,
                        const QVector<SEachItemOperationResult> &itemResult);

    // QuorlinViewCtrlCompare.cpp
    void AwaitWork(ECalItem item);
    template <typename Job, typename... Answers>
    void RunWork(ECalItem item, const char *internalName,
                 void (CQuorlinViewCtrl::*signal)(Answers...), Job job);

    template <typename... Answers>
    void EmitAnswer(void (CQuorlinViewCtrl::*signal)(Answers...), QJsonObject document,
                    const Answers &...answers);
    template <typename Done, typename... Answers>
    void AwaitAnswer(void (CCoreAnswers::*signal)(Answers...), Done done);

    // Job: CNrCore & -> std::tuple<Answers...>.
    template <typename Job, typename... Answers>
    void RunOnPool(const char *internalName, void (CQuorlinViewCtrl::*signal)(Answers...), Job job);
    template <typename Job, typename... Answers>
    CJobQueue::Job PoolJob(const char *internalName, void (CQuorlinViewCtrl::*signal)(Answers...),
                           Job job);

    // The job last started; nothing waits for it.
    // Prescribed; see docs/decisions/0036-prescribed-surface.md
    QFuture<void> m_future;
    int m_epoch = 0;                    // changes with a reset
    std::string m_document;             // of the flow that has ended, for its done slot
    QJsonObject m_shown;                // the same as an object
    QJsonObject m_answered;             // of the answer that is being signalled
    std::optional<EPageId> m_testPage;  // whose test was asked for last
};
