// Calibration flows of the core.
#include "Controller/core/NrCore.h"

#include <deque>
#include <exception>

#include "Controller/calibration/CalPageLimits.h"
#include "Controller/calibration/CalRemarkText.h"
#include "Model/ModelText.h"
#include "Model/StatusTable.h"
#include "Support/CalIniFile.h"
#include "Support/Log.h"
#include "Support/Threads.h"

namespace {

// What a flow that fills records replaces goes into the item's history, however the flow ends.
class CFlowHistory
{
public:
    CFlowHistory(CCalHistory *history, ICalItemByL1Operation &item,
                 const std::function<void()> &storePage, CalChange &change)
        : m_history(history), m_item(item), m_change(change)
    {
        m_change = nullptr;
        if (m_history)
            m_history->BeginFlow(m_item, storePage);
    }
    ~CFlowHistory()
    {
        if (m_history)
            m_change = m_history->EndFlow(m_item);
    }
    CFlowHistory(const CFlowHistory &) = delete;
    CFlowHistory &operator=(const CFlowHistory &) = delete;

private:
    CCalHistory *const m_history;  // null: the flow fills none
    ICalItemByL1Operation &m_item;
    CalChange &m_change;
};

}  // namespace

// What differs between the flows.
struct CNrCore::SCalFlow
{
    const char *startLog;  // null: the start is not logged
    const char *countLog;
    const char *itemLog;
    const char *endLog;
    uint32_t (*move)(ICalItemByL1Operation &item, CCalIniFile *file);
    uint32_t thrownStatus;  // of a move that ended by an exception
    bool looksAtValues;     // those of a file, against what the item's page shows
    bool fillsRecords;      // of the item's memory
    void (IRfCoreCalDataOperation::*done)(bool, QVector<SEachItemOperationResult>);

    static const SCalFlow kUpload, kDownload, kLoad, kSave;
};

const CNrCore::SCalFlow CNrCore::SCalFlow::kUpload = {
    .startLog = "[CNrCore]UploadFromFlashStart()",
    .countLog = "[CNrCore]UploadFromFlashInternal---itemCount",
    .itemLog = "UploadFromFlashInternal()",
    .endLog = "[CNrCore]UploadFromFlashInternal()--",
    .move = [](ICalItemByL1Operation &item, CCalIniFile *) { return item.UploadFromFlash(); },
    .thrownStatus = kCalGeneralError,
    .looksAtValues = false,
    .fillsRecords = true,
    .done = &IRfCoreCalDataOperation::Signal_UploadFromFlashDone,
};

const CNrCore::SCalFlow CNrCore::SCalFlow::kDownload = {
    .startLog = "[CNrCore]DownloadToFlashStart()",
    .countLog = "[CNrCore] DownloadToFlashInternal--- itemCount",
    .itemLog = "[CNrCore] DownloadToFlashInternal()",
    .endLog = "[CNrCore]DownloadToFlashInternal()--",
    .move = [](ICalItemByL1Operation &item, CCalIniFile *) { return item.DownloadToFlash(); },
    .thrownStatus = kCalGeneralError,
    .looksAtValues = false,
    .fillsRecords = false,
    .done = &IRfCoreCalDataOperation::Signal_DownloadToFlashDone,
};

const CNrCore::SCalFlow CNrCore::SCalFlow::kLoad = {
    .startLog = nullptr,
    .countLog = "[CNrCore] LoadFromFileInternal--- itemCount",
    .itemLog = "[CNrCore] LoadFromFileInternal()",
    .endLog = "[CNrCore] LoadFromFileInternal---",
    .move = [](ICalItemByL1Operation &item, CCalIniFile *file) { return item.LoadFromFile(file); },
    .thrownStatus = kCalNoFile,
    .looksAtValues = true,
    .fillsRecords = true,
    .done = &IRfCoreCalDataOperation::Signal_LoadFromFileDone,
};

const CNrCore::SCalFlow CNrCore::SCalFlow::kSave = {
    .startLog = nullptr,
    .countLog = "[CNrCore] SaveToFileInternal--- itemCount",
    .itemLog = "[CNrCore] SaveToFileInternal()",
    .endLog = "[CNrCore] SaveToFileInternal---",
    .move = [](ICalItemByL1Operation &item, CCalIniFile *file) { return item.SaveToFile(file); },
    .thrownStatus = kCalNoFile,
    .looksAtValues = false,
    .fillsRecords = false,
    .done = &IRfCoreCalDataOperation::Signal_SaveToFileDone,
};

void CNrCore::UploadFromFlashStart(QStringList items)
{
    StartFlow(SCalFlow::kUpload, items, nullptr);
}

void CNrCore::DownloadToFlashStart(QStringList items)
{
    StartFlow(SCalFlow::kDownload, items, nullptr);
}

void CNrCore::LoadFromFileStart(std::shared_ptr<CCalIniFile> file, QStringList items)
{
    StartFlow(SCalFlow::kLoad, items, std::move(file));
}

void CNrCore::SaveToFileStart(std::shared_ptr<CCalIniFile> file, QStringList items)
{
    StartFlow(SCalFlow::kSave, items, std::move(file));
}

void CNrCore::UploadFromFlashStart(ECalItem item, CHandedDocument document)
{
    StartFlow(SCalFlow::kUpload, {CalItemName(item)}, nullptr, SCalShow{item, document.Take()});
}

void CNrCore::DownloadToFlashStart(ECalItem item, CHandedDocument document)
{
    StartFlow(SCalFlow::kDownload, {CalItemName(item)}, nullptr, SCalShow{item, document.Take()});
}

void CNrCore::LoadFromFileStart(std::shared_ptr<CCalIniFile> file, ECalItem item,
                                CHandedDocument document)
{
    StartFlow(SCalFlow::kLoad, {CalItemName(item)}, std::move(file),
              SCalShow{item, document.Take()});
}

void CNrCore::SaveToFileStart(std::shared_ptr<CCalIniFile> file, ECalItem item,
                              CHandedDocument document)
{
    StartFlow(SCalFlow::kSave, {CalItemName(item)}, std::move(file),
              SCalShow{item, document.Take()});
}

void CNrCore::StartFlow(const SCalFlow &flow, const QStringList &items,
                        std::shared_ptr<CCalIniFile> file, std::optional<SCalShow> show)
{
    if (flow.startLog)
        qCDebug(lcCore) << flow.startLog << items.size();
    StartOnPool([this, &flow, items, file = std::move(file), show = std::move(show)]() mutable {
        RunFlow(flow, items, std::move(file), std::move(show));
    });
    if (flow.startLog)
        qCDebug(lcCore).nospace() << flow.startLog << "--";
}

void CNrCore::RunFlow(const SCalFlow &flow, const QStringList &items,
                      std::shared_ptr<CCalIniFile> file, std::optional<SCalShow> show)
{
    const CLockSentry lock(m_targetLock);
    ResetItemResults();
    try {
        RunFlowItems(flow, items, file.get(), show);
    } catch (...) {
        qCCritical(lcCore) << flow.itemLog << "ended by an exception";
        m_isAllSuccess = false;
        for (const QString &item : items.mid(m_itemResults.size()))
            AddItemResult(item, eStatusNotExecuted, {});
    }
    file.reset();
    TellDocument(std::move(show));
    emit(this->*flow.done)(m_isAllSuccess, m_itemResults);
    qCDebug(lcCore) << flow.endLog;
}

void CNrCore::RunFlowItems(const SCalFlow &flow, const QStringList &items, CCalIniFile *file,
                           const std::optional<SCalShow> &show)
{
    RenewCalItems();
    qCDebug(lcCore) << flow.countLog << items.size();
    int status = eStatusSuccess;
    for (int i = 0; i < items.size(); ++i) {
        if (m_isStop) {
            qCDebug(lcCore) << "[CNrCore] action stop()" << items[i];
            for (const QString &item : items.mid(i))
                AddItemResult(item, eStatusTerminated, QStringLiteral("You stoped the operation."));
            break;
        }
        if (i == 0)
            emit Signal_FinishItemCount(0, {});
        qCDebug(lcCore) << flow.itemLog << items[i];
        const std::optional<ECalItem> item = CalItemByName(items[i]);
        if (item)
            status = RunCalItem(flow, *item, file, show);
        if (status != eStatusSuccess)
            m_isAllSuccess = false;
        if (item)
            TellRemarks(*item);
        AddItemResult(items[i], status, m_errorMessage);
        emit Signal_FinishItemCount(i + 1, GetItemResult(i));
    }
}

void CNrCore::TellRemarks(ECalItem item)
{
    const SCalRemarks remarks = CalRemarksOf(CalItem(item).operation->Remarks());
    if (!remarks.IsEmpty())
        emit Signal_CalRemarks(CalItemName(item), remarks);
}

void CNrCore::RenewCalItems()
{
    if (!m_areItemsStale.exchange(false))
        return;
    std::deque<CLockSentry> locks;
    std::array<std::unique_ptr<ICalItemByL1Operation>, kCalItemCount> made;
    std::array<std::unique_ptr<CCalHistory>, kCalItemCount> histories;
    try {
        for (SCalItem &item : m_calItems)
            locks.emplace_back(item.lock);
        for (size_t i = 0; i < kCalItemCount; ++i) {
            const SCalItemRow &row = FindCalItem(static_cast<ECalItem>(i));
            made[i] = row.make();
            histories[i] = std::make_unique<CCalHistory>(row.make(), m_connection.load());
            made[i]->SetProgress(
                [this, name = CalItemName(row.id)](int round, int routesDone, int routesInAll) {
                    emit Signal_CalProgress(name, round, routesDone, routesInAll);
                    m_targetLock.GiveWay();  // between two rounds, to a stop of all tests
                });
        }
    } catch (...) {
        m_areItemsStale.store(true);  // the next job must not find the last DUT's records
        throw;
    }
    for (size_t i = 0; i < kCalItemCount; ++i) {
        m_calItems[i].operation = std::move(made[i]);
        m_calItems[i].history = std::move(histories[i]);
        m_calItems[i].flowChange = nullptr;
    }
}

std::unique_ptr<ICalPageLimits> CNrCore::PageLimits(ECalItem item)
{
    const SPageRow &page = FindPage(FindCalItem(item).page);
    return std::make_unique<CCalPageLimits>(
        ModelFromText(LoadDataModel(page, QString::fromLatin1(page.resource))));
}

int CNrCore::RunCalItem(const SCalFlow &flow, ECalItem item, CCalIniFile *file,
                        const std::optional<SCalShow> &show)
{
    const CLockSentry lock(CalItem(item).lock);
    ICalItemByL1Operation &operation = *CalItem(item).operation;
    const auto storePage = [&] {
        if (show && show->item == item)
            FindCalItem(item).store(operation, show->document);
    };
    const CFlowHistory history(flow.fillsRecords ? CalItem(item).history.get() : nullptr, operation,
                               storePage, CalItem(item).flowChange);
    try {
        const std::unique_ptr<ICalPageLimits> limits =
            flow.looksAtValues ? PageLimits(item) : nullptr;
        operation.SetPageLimits(limits.get());
        const uint32_t status = flow.move(operation, file);
        m_errorMessage = operation.GetErrorMessage();
        return static_cast<int>(status);
    } catch (const std::exception &failure) {
        m_errorMessage = QString::fromUtf8(failure.what());
    } catch (...) {
        m_errorMessage.clear();
    }
    qCCritical(lcCore) << flow.itemLog << "ended by an exception" << CalItemName(item)
                       << m_errorMessage;
    return static_cast<int>(flow.thrownStatus);
}
