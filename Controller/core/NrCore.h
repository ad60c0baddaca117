// The core: the one object that knows the target.
//
// A process-wide singleton, created on first use from the GUI thread and reached through GetCore().
// It is never destroyed: a host may call exit() while a job is with the target. It decides whether
// the tool runs on this DUT, supplies each page's document, turns a page's document into a command,
// a target call and a result, and moves calibration data between flash, memory, files and
// documents.
//
// Threads. Everything that reaches the target blocks, so it is called on pool threads, with the one
// exception of GetSupportStatus, which the host asks for before the tool is shown. Each job takes
// m_targetLock for its whole run, the emission of its answer included: the target sees one call at
// a time and the capability caches one reader, also when a reset lets a new init flow begin while a
// test still runs. ResetTargetCache never waits: it leaves a mark that the next job obeys. What
// stops the tests is in front of all jobs that wait, and a calibration flow gives way to it. The
// records of a calibration item have a lock of their own, which a flow of that item holds too: a
// page changes its selection while the target works for another one. Signals are emitted on pool
// threads.
//
// Pages and calibration items travel by their names through the requests. Each request turns the
// name into the id of its table at once; inside it is the id. What there is of a page or an item is
// its row (PageTable.h, CalItemTable.h).
//
// The core remembers each test that goes on until a stop, with the handle of its start
// (RunningTests.h). When nobody shows the tests any more, it stops them under these handles, and
// touches no other handle.
//
//   QObject::connect(&GetCore(), &CNrCore::Signal_TestDone, page, &Page::Slot_Done);
//   GetCore().Test(GetCore().GetPageName(2), document);
#pragma once

#include <array>
#include <atomic>
#include <optional>

#include "Controller/Interface/CoreInterface.h"
#include "Controller/calibration/LossConfig.h"
#include "Controller/capability/NrDataModelCapUpdater.h"
#include "Controller/core/AwaitedDocuments.h"
#include "Controller/core/CalHistory.h"
#include "Controller/core/CalItemTable.h"
#include "Controller/core/PageTable.h"
#include "Controller/core/RunningTests.h"
#include "Controller/core/TestSteps.h"
#include "Model/CalChanges.h"
#include "Model/CalDifferences.h"
#include "Model/CalSecondImage.h"
#include "Model/GuardedPlan.h"
#include "Model/HandedDocument.h"
#include "Model/OperationResult.h"
#include "Operations/calibration/CalItemByL1Operation.h"
#include "Operations/calibration/CalResult.h"
#include "Operations/capability/TargetCapability.h"
#include "Operations/tests/TestStop.h"
#include "Support/Lock.h"
#include "Support/Turns.h"

class CNrCore : public IRfCoreCalDataOperation, public IRfTest
{
    Q_OBJECT

public:
    // The host's target handle, for all calls to the target from now on. Creates no core. Any
    // thread.
    static void SetTargetHandle(uint32_t handle);

    void GetAllCalItem(QStringList &out) override;
    void GetCalItemInFile(QStringList &out, CCalIniFile *file) override;
    void UploadFromFlashStart(QStringList items) override;
    void DownloadToFlashStart(QStringList items) override;
    void LoadFromFileStart(std::shared_ptr<CCalIniFile> file, QStringList items) override;
    void SaveToFileStart(std::shared_ptr<CCalIniFile> file, QStringList items) override;
    // The same for a page, with the document that it has packaged: Signal_CalDocument comes before
    // the answer then, unless a reset came first.
    void UploadFromFlashStart(ECalItem item, CHandedDocument document);
    void DownloadToFlashStart(ECalItem item, CHandedDocument document);
    void LoadFromFileStart(std::shared_ptr<CCalIniFile> file, ECalItem item,
                           CHandedDocument document);
    void SaveToFileStart(std::shared_ptr<CCalIniFile> file, ECalItem item,
                         CHandedDocument document);
    // First stops the tests that run, on the pool. A start that has not reached the target answers
    // 4 and does not go there any more.
    void ResetTargetCache() override;
    SRfSupportStatus GetSupportStatus() override;
    // Name of the NR chip, from what was read for the support check; empty when it is not known.
    QString GetRfChipName();

    QStringList GetAllSupportPage() override;
    std::string GetDataModel(QString pageName) override;
    // From now on the pages that the tool shows ask for their documents, in the order of the tabs.
    void AwaitPages();
    // Makes the document of the page that asks next, if one is awaited and has none. Pool threads
    // only.
    void PrepareNextDataModel();
    void Test(QString pageName, std::string document) override;
    void Stop() override;
    // Stops a running test on the pool: an NR one (PUSCH, RSRP) or a multi-RAT one (single tone,
    // continuous RX).
    // Prescribed; see docs/decisions/0036-prescribed-surface.md
    void TestStopStart(bool isNr);

    // The same for a question of an earlier moment. A test that was called off since then does not
    // reach the target and answers 4.
    uint64_t Moment() const { return m_runningTests.Moment(); }
    void Test(QString pageName, CHandedDocument document, uint64_t asked);
    // Pool threads only. Stops the page's test, under the handle of its start; for a page without
    // one, and without a page, the last test of that kind, or what runs under the current handle. A
    // test that was stopped since the question, with all others, is not stopped again.
    SEachItemOperationResult StopTest(EStop kind, std::optional<EPageId> page, uint64_t asked);

    // RF off, in two steps. BeginRfOff calls off the starts that have not reached the target and
    // takes the next turn at it; any thread, without waiting. FinishRfOff sends both stops under
    // the current handle and under that of each test not stopped yet; on a pool thread that waits
    // for no other job. Status and text are those of the first stop that failed.
    std::shared_ptr<CTurns::CPlace> BeginRfOff();
    SEachItemOperationResult FinishRfOff(std::shared_ptr<CTurns::CPlace> place);

    // Stops what runs, on the pool, and calls off the rest; never waits.
    void StopRunningTests();
    // A test runs, or may run after a start that failed at the target.
    bool HasRunningTests() const { return m_runningTests.IsAny(); }
    SRunningTestInfo NewestTest() const { return m_runningTests.Newest(); }

    // Reads beside a test: a document in, the document with what was read out, both as objects or
    // both as text. Pool threads only; each blocks on the link. On another generation the document
    // comes back as it was, and a result has status 2.
    QJsonObject GetPdValue(QJsonObject document);
    QJsonObject GetDlFreqForPuschTx(const QString &pageName, QJsonObject document);
    QJsonObject FetchMixRxReport(const QString &pageName, QJsonObject document,
                                 SEachItemOperationResult &result);
    QJsonObject ClearMixRxReport(QJsonObject document);
    QJsonObject RssiGainCalculate(QJsonObject document, SEachItemOperationResult &result);
    std::string GetPdValue(std::string document);
    std::string GetDlFreqForPuschTx(QString pageName, std::string document);
    std::string FetchMixRxReport(QString pageName, std::string document,
                                 SEachItemOperationResult &result);
    SEachItemOperationResult ResetMixRxCounter();
    std::string ClearMixRxReport(std::string document);
    std::string RssiGainCalculate(std::string document, SEachItemOperationResult &result);

    // The record of the route that a packaged calibration document selects, between the item's
    // memory and the document: Get answers with the document filled, Set stores what the page
    // shows. Storing makes no record valid. On another generation Get answers with an empty text, or
    // with no object, and Set does nothing. Any thread; they work on what is in memory and wait for
    // no job but a flow of their own item, once the page has its document.
    std::string GetCalibrationData(ECalItem item, const std::string &document);
    void SetCalibrationData(ECalItem item, const std::string &document);
    std::optional<QJsonObject> GetCalibrationData(ECalItem item, const QJsonObject &document);
    void SetCalibrationData(ECalItem item, const QJsonObject &document);
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

    // The way back of calibration data (CalHistory.h): what the last Read or Import brought, where
    // memory with the page's edits differs from it, and changes of records. document: the packaged
    // page; its edits are stored first by those that change something. All work on what is in memory,
    // as GetCalibrationData does; any thread.
    // The document with the selected record's base; none when it never came in.
    std::optional<QJsonObject> GetCalBase(ECalItem item, const QJsonObject &document);
    // hasEdits: the page may show edits that memory does not have yet.
    SCalChangedCells CountCalChanges(ECalItem item, const QJsonObject &document, bool hasEdits);
    CalChange RevertCalRecord(ECalItem item, const QJsonObject &document);
    CalChange RevertCalItem(ECalItem item, const QJsonObject &document);
    // Other records of the band and kind of the selected one.
    CalCopyTargets FindCopyTargets(ECalItem item, const QJsonObject &document);
    // Copies all of the selected record but band and route. A record that is not valid stays so.
    CalChange CopyCalRecord(ECalItem item, const QJsonObject &document,
                            const CalCopyTargets &targets);
    void ApplyCalChange(ECalItem item, const QJsonObject &document, const SCalChange &change,
                        ECalWay way);
    // What the last Read or Import has replaced, the edits of its page among it; once.
    CalChange TakeFlowChange(ECalItem item);

    // Two images of an item side by side. Neither flash nor memory changes. An INI file is loaded onto
    // a copy of the other side: what it has no key for is no difference. Signal_CalWork tells how far
    // it is. Pool threads only.
    SCalCompared CompareCal(ECalItem item, const SComparedSide &left, const SComparedSide &right);
    // One side alone, to be shown beside a page. An INI file is loaded onto a copy of memory. The same
    // holds as of CompareCal.
    SCalSecondRead ReadSecondImage(ECalItem item, const SComparedSide &side);

    // A guarded write of what the item's memory holds. Plan reads flash and writes nothing; Carry saves
    // a backup, sends what differs and reads it back. Behind a reset between the two nothing is sent.
    // One Carry a plan. Pool threads only.
    SGuardedPlan PlanGuardedWrite(ECalItem item);
    SGuardedReport CarryGuardedWrite(const SGuardedPlan &plan);

    // Returns when the job that runs has ended. Pool threads only.
    void WaitForTurn();

    // Name of a page id or item id; ids are positions of their tables and are not checked.
    QString GetPageName(int pageId) const;
    QString GetCalItemName(int itemId) const;

signals:
    // status 0 means started: a continuous test goes on until a stop. resultModel is the document
    // with results, of the pages that answer with one.
    void Signal_TestDone(SEachItemOperationResult itemResult, std::string resultModel);
    // Prescribed; see docs/decisions/0036-prescribed-surface.md
    void Signal_TestStopDone(SEachItemOperationResult itemResult);
    // A flow's document with the record that memory holds when it has ended, under the selection of
    // the document. Empty on another generation.
    void Signal_CalDocument(QString item, std::string document);
    // How far a comparison or a guarded write is: the step in words, and rows of the route tables.
    void Signal_CalWork(QString item, QString step, int routesDone, int routesInAll);
    // isAny: true when the first test starts, false when the last one has ended.
    void Signal_TestsRun(bool isAny);
    // Of the tests that run, the one started last; an empty text when none does.
    void Signal_NewestTest(SRunningTestInfo newest);

protected:
    friend CNrCore &GetCore();
    CNrCore();

    // Pool side of Test and TestStopStart.
    void TestInternal(const QString &pageName, CHandedDocument document, uint64_t asked);
    void TestStopInternal(bool isNr, uint64_t asked);

    std::string GetDataModelV7(EPageId page);
    std::string LoadDataModel(const SPageRow &page, const QString &resource);

private:
    struct SCalFlow;  // one of the four moves
    // What showing and storing an item's records needs to know of the DUT.
    struct SCalView
    {
        bool isKnown = false;
        int generation = 0;
        SSupportedGains gains;
    };
    // A calibration item with its records.
    struct SCalItem
    {
        std::unique_ptr<ICalItemByL1Operation> operation;
        PortableCriticalSection lock;  // of the records; taken behind m_targetLock or without it
        SCalView view;                 // under m_viewLock
        std::unique_ptr<CCalHistory> history;  // of the records
        CalChange flowChange;
    };

    SRfSupportStatus DecideSupportStatus();
    bool IsC2kModem() const;
    int RunTestStep(const SPageRow &page, STestRun &run, QJsonObject document);
    // Sends one stop. message: the operation's text.
    uint32_t SendStop(const STargetStop &stop, QString &message);
    void QueueStops();
    void DropCaches();
    // Calls read with the document, under the lock, and answers with it. On another generation read
    // is not called.
    template <typename Read>
    QJsonObject FillDocument(QJsonObject document, Read read);

    // What a page gets shown behind a flow.
    struct SCalShow
    {
        ECalItem item;
        QJsonObject document;
    };
    void StartFlow(const SCalFlow &flow, const QStringList &items,
                   std::shared_ptr<CCalIniFile> file, std::optional<SCalShow> show = std::nullopt);
    void RunFlow(const SCalFlow &flow, const QStringList &items, std::shared_ptr<CCalIniFile> file,
                 std::optional<SCalShow> show);
    void TellDocument(std::optional<SCalShow> show);
    void RunFlowItems(const SCalFlow &flow, const QStringList &items, CCalIniFile *file,
                      const std::optional<SCalShow> &show);
    // Replaces the items of an earlier connection by empty ones: the records of one DUT are not for
    // the next.
    void RenewCalItems();
    SCalItem &CalItem(ECalItem item) { return m_calItems[Index(item)]; }
    void TellRemarks(ECalItem item);
    // Of the item's page; the capability reads are cached.
    std::unique_ptr<ICalPageLimits> PageLimits(ECalItem item);
    // Under m_targetLock, for comparisons (NrCoreCalCompare.cpp).
    std::unique_ptr<ICalItemByL1Operation> ScratchItem(ECalItem item, const QString &work);
    SCalImage MemoryImage(ECalItem item);
    SCalFault ReadFlash(ECalItem item, SCalImage &image);
    SCalFault LoadBackup(ECalItem item, const QString &path, SCalImage &image);
    SCalFault LoadIni(ECalItem item, const QString &path, const SCalImage &other, SCalImage &image);
    // other: the image of the other side, if it is known by then.
    SCalFault TakeSide(ECalItem item, const SComparedSide &side, const SCalImage &other,
                       SCalImage &image);
    // Under m_targetLock.
    void LookForCalItem(ECalItem item);
    SCalView CalView(ECalItem item);
    // The document with the record that it selects; none when there is no such record.
    std::optional<QJsonObject> ShowRecord(ECalItem item, const SCalView &view,
                                          const QJsonObject &document);
    // The status of the move; its text is in m_errorMessage then.
    int RunCalItem(const SCalFlow &flow, ECalItem item, CCalIniFile *file,
                   const std::optional<SCalShow> &show);
    // Calls use with the item, its history and the name of the record that the document selects,
    // under the records' lock; answers with nothing when there is no such record.
    template <typename Use>
    auto UseHistory(ECalItem item, const QJsonObject &document, Use use);

    CTurns m_targetLock;
    PortableCriticalSection m_viewLock;  // the innermost one
    std::array<SCalItem, kCalItemCount> m_calItems;
    CTargetCapability m_target;
    CRunningTests m_runningTests{
        [this](bool isAny) { emit Signal_TestsRun(isAny); },
        [this](const SRunningTestInfo &newest) { emit Signal_NewestTest(newest); }};
    std::atomic<bool> m_areStopsDue{false};  // a job is to stop what runs
    std::atomic<bool> m_isDropDue{false};    // and then to drop the caches
    STestOperations m_operations;
    CNrTestStop m_nrTestStop;
    CMultiRatTestStopV7 m_testStop;
    std::atomic<bool> m_areItemsStale{true};  // their records are of an earlier connection
    CAwaitedDocuments m_awaited;              // under m_targetLock
    std::atomic<uint64_t> m_connection{0};    // a number for each DUT: changes with a reset
    CNrDataModelCapUpdater m_capUpdater;
    std::atomic<bool> m_isUpdaterStale{true};  // its caches are of an earlier connection
};

CNrCore &GetCore();
