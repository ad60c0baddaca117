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
// A calibration request that stores or asks for a record takes the page's packaged document with
// it; its file, where it has one, lives as long as its flow, whatever becomes of the page.
//
//   connect(ctrl, &CQuorlinViewCtrl::Signal_ContRxTestDone, this, &Page::Slot_ContRxTestDone);
//   ctrl->ContRxTest(document);
#pragma once

#include <memory>
#include <string>

#include <QFuture>
#include <QObject>
#include <QStringList>

#include "Controller/Interface/CoreInterface.h"
#include "Model/CalRemarks.h"
#include "Model/OperationResult.h"
#include "Support/JobQueue.h"

class CCoreAnswers;
class CNrCore;
enum class EPageId;

class CQuorlinViewCtrl : public QObject
{
    Q_OBJECT

public:
    // The host's target handle, for all calls to the target from now on.
    static void SetTargetHandle(uint32_t handle);

    // On the calling thread: the support check blocks on the link, the reset never does. What was
    // asked for before a reset is of the old target: no answer arrives after it.
    SRfSupportStatus GetSupportStatus();
    void ResetTargetCache();

    void GetInitPageList();

    // Documents, one request a page.
    void GetPuschTxForceDataModel();
    void GetPuschTxNormalDataModel();
    void GetSingleToneTxDataModel();
    void GetRsrpForceDataModel();
    void GetRsrpNormalDataModel();
    void GetContRxDataModel();
    void GetRssiDataModel();
    void GetAptDataModel();
    void GetPathLossDataModel();

    // Tests, one request a page; the document is the packaged one. All but RSSI start something
    // that goes on until a stop.
    void PuschTxForceTest(std::string document);
    void PuschTxNormalTest(std::string document);
    void SingleToneTxTest(std::string document);
    void RsrpForceTest(std::string document);
    void RsrpNormalTest(std::string document);
    void ContRxTest(std::string document);
    void RssiTest(std::string document);

    // Reads beside a test: the answer is the document with what was read.
    void GetPuschTxForceDlFreq(std::string document);
    void GetPuschTxNormalDlFreq(std::string document);
    void GetSingleToneTxPdValue(std::string document);
    void RsrpForceFetchReport(std::string document);
    void RsrpNormalFetchReport(std::string document);
    void RsrpResetCounter();
    void RsrpClearReport(std::string document);
    void RssiGainCalculator(std::string document);

    // Stops: of the NR tests, and of the multi-RAT ones; under the handle of the last test that was
    // asked for here.
    void NrTestStop();
    void MultiRatTestStop();
    // Stops every test on the target, before all that waits; starts that have not reached it answer
    // 4.
    void RfOff();
    // Stops what the tool has started and not stopped, for whoever shows tests no longer; without
    // an answer, also when this object is gone.
    void StopRunningTests();
    bool HasRunningTests() const;
    // Signal_TestsRun from now on, and once for how it is now.
    void WatchTests();

    // Calibration data. Upload and load answer with the document of the selected record; download
    // and save store the page's record first. A file that can't be read or written is told in the
    // answer.
    void AptUploadFromFlash(std::string document);
    void AptDownloadToFlash(std::string document);
    void AptSaveToFile(std::string document, QString path);
    void AptLoadFromFile(std::string document, QString path);
    void PathLossUploadFromFlash(std::string document);
    void PathLossDownloadToFlash(std::string document);
    void PathLossSaveToFile(std::string document, QString path);
    void PathLossLoadFromFile(std::string document, QString path);

    // The record that a page's document selects, on the calling thread and from memory: for a page
    // whose selection changes.
    std::string GetAptCalibrationData(std::string document);
    void SetAptCalibrationData(const std::string &document);
    std::string GetPathLossCalibrationData(std::string document);
    void SetPathLossCalibrationData(const std::string &document);

    // Signal_Idle as soon as no job of the core runs.
    void ReportIdle();

signals:
    void Signal_GetInitPageListDone(QStringList pageList);
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
    // A test runs, or may run after a start that failed at the target; or none does.
    void Signal_TestsRun(bool isAny);

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
    // What there is to say of the calibration request beside its result; before its answer, if at
    // all.
    void Signal_CalRemarks(SCalRemarks remarks);

    void Signal_Idle();

private slots:
    void Slot_PuschTxForceTestDone(SEachItemOperationResult result, std::string response);
    void Slot_PuschTxNormalTestDone(SEachItemOperationResult result, std::string response);
    void Slot_SingleToneTxTestDone(SEachItemOperationResult result, std::string response);
    void Slot_RsrpForceTestDone(SEachItemOperationResult result, std::string response);
    void Slot_RsrpNormalTestDone(SEachItemOperationResult result, std::string response);
    void Slot_ContRxTestDone(SEachItemOperationResult result, std::string response);
    void Slot_RssiTestDone(SEachItemOperationResult result, std::string response);

    void Slot_AptUploadFromFlashDone(bool result, QVector<SEachItemOperationResult> itemResult);
    void Slot_AptDownloadToFlashDone(bool result, QVector<SEachItemOperationResult> itemResult);
    void Slot_AptSaveToFileDone(bool result, QVector<SEachItemOperationResult> itemResult);
    void Slot_AptLoadFromFileDone(bool result, QVector<SEachItemOperationResult> itemResult);
    void Slot_PathLossUploadFromFlashDone(bool result,
                                          QVector<SEachItemOperationResult> itemResult);
    void Slot_PathLossDownloadToFlashDone(bool result,
                                          QVector<SEachItemOperationResult> itemResult);
    void Slot_PathLossSaveToFileDone(bool result, QVector<SEachItemOperationResult> itemResult);
    void Slot_PathLossLoadFromFileDone(bool result, QVector<SEachItemOperationResult> itemResult);

private:
    using DocumentSignal = void (CQuorlinViewCtrl::*)(std::string);
    using ResultSignal = void (CQuorlinViewCtrl::*)(SEachItemOperationResult);
    using ResponseSignal = void (CQuorlinViewCtrl::*)(SEachItemOperationResult, std::string);
    using TestDoneSlot = void (CQuorlinViewCtrl::*)(SEachItemOperationResult, std::string);

    void RequestDataModel(const char *internalName, EPageId page, DocumentSignal answer);
    void RequestTest(const char *internalName, EPageId page, std::string document,
                     TestDoneSlot done);
    void RequestStop(const char *internalName, bool isNr);
    void RequestDlFreq(EPageId page, std::string document);
    void RequestReport(const char *internalName, EPageId page, std::string document,
                       ResponseSignal answer);
    bool TakeAnswer(EPageId page, const SEachItemOperationResult &result);
    // Passes a test's answer on to the page, without the document.
    void PassAnswer(EPageId page, const SEachItemOperationResult &result, ResultSignal signal);

    enum class ECalRequest;
    struct SCalFlow;     // what the requests of both items share
    struct SCalItem;     // what the requests of one item share
    struct SCalRequest;  // one of the eight
    static const SCalRequest &CalRequest(ECalRequest id);
    void RequestFlow(ECalRequest id, std::string document,
                     std::shared_ptr<CCalIniFile> file = nullptr);
    void AwaitFlow(const SCalRequest &request);
    void PassFlowAnswer(ECalRequest id, const QVector<SEachItemOperationResult> &itemResult);

    template <typename Done, typename... Answers>
    void AwaitAnswer(void (CCoreAnswers::*signal)(Answers...), Done done);

    // Job: CNrCore & -> std::tuple<Answers...>.
    template <typename Job, typename... Answers>
    void RunOnPool(const char *internalName, void (CQuorlinViewCtrl::*signal)(Answers...), Job job);
    template <typename Job, typename... Answers>
    CJobQueue::Job PoolJob(const char *internalName, void (CQuorlinViewCtrl::*signal)(Answers...),
                           Job job);

    QFuture<void> m_future;  // job last started; kept, never waited on
    int m_epoch = 0;         // changes with a reset
    std::string m_document;  // of the upload or load that runs, for its done slot
    QString m_testPage;      // whose test was asked for last
};
