// Calibration flows of the core.
#include <exception>

#include "Controller/calibration/CalPageLimits.h"
#include "Controller/calibration/CalRemarkText.h"
#include "Controller/core/CalItemTable.h"
#include "Controller/core/NrCore.h"
#include "Model/ModelText.h"
#include "Model/StatusTable.h"
#include "Support/CalIniFile.h"
#include "Support/Log.h"
#include "Support/Threads.h"

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
    void (IRfCoreCalDataOperation::*done)(bool, QVector<SEachItemOperationResult>);

    static const SCalFlow kUpload, kDownload, kLoad, kSave;
};

const CNrCore::SCalFlow CNrCore::SCalFlow::kUpload = {
    "[CNrCore]UploadFromFlashStart()",
    "[CNrCore]UploadFromFlashInternal---itemCount",
    "UploadFromFlashInternal()",
    "[CNrCore]UploadFromFlashInternal()--",
    [](ICalItemByL1Operation &item, CCalIniFile *) { return item.UploadFromFlash(); },
    kCalGeneralError,
    false,
    &IRfCoreCalDataOperation::Signal_UploadFromFlashDone,
};

const CNrCore::SCalFlow CNrCore::SCalFlow::kDownload = {
    "[CNrCore]DownloadToFlashStart()",
    "[CNrCore] DownloadToFlashInternal--- itemCount",
    "[CNrCore] DownloadToFlashInternal()",
    "[CNrCore]DownloadToFlashInternal()--",
    [](ICalItemByL1Operation &item, CCalIniFile *) { return item.DownloadToFlash(); },
    kCalGeneralError,
    false,
    &IRfCoreCalDataOperation::Signal_DownloadToFlashDone,
};

const CNrCore::SCalFlow CNrCore::SCalFlow::kLoad = {
    nullptr,
    "[CNrCore] LoadFromFileInternal--- itemCount",
    "[CNrCore] LoadFromFileInternal()",
    "[CNrCore] LoadFromFileInternal---",
    [](ICalItemByL1Operation &item, CCalIniFile *file) { return item.LoadFromFile(file); },
    kCalNoFile,
    true,
    &IRfCoreCalDataOperation::Signal_LoadFromFileDone,
};

const CNrCore::SCalFlow CNrCore::SCalFlow::kSave = {
    nullptr,
    "[CNrCore] SaveToFileInternal--- itemCount",
    "[CNrCore] SaveToFileInternal()",
    "[CNrCore] SaveToFileInternal---",
    [](ICalItemByL1Operation &item, CCalIniFile *file) { return item.SaveToFile(file); },
    kCalNoFile,
    false,
    &IRfCoreCalDataOperation::Signal_SaveToFileDone,
};

void IRfCoreCalDataOperation::ResetItemResults()
{
    m_isAllSuccess = true;
    m_itemResults.clear();
    m_errorMessage.clear();
}

void IRfCoreCalDataOperation::AddItemResult(const QString &item, int status, const QString &message)
{
    m_itemResults.append({item, status, message});
}

SEachItemOperationResult IRfCoreCalDataOperation::GetItemResult(int index) const
{
    return m_itemResults.value(index);
}

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

void CNrCore::StartFlow(const SCalFlow &flow, const QStringList &items,
                        std::shared_ptr<CCalIniFile> file)
{
    if (flow.startLog)
        qCDebug(lcCore) << flow.startLog << items.size();
    StartOnPool([this, &flow, items, file = std::move(file)]() mutable {
        RunFlow(flow, items, std::move(file));
    });
    if (flow.startLog)
        qCDebug(lcCore).nospace() << flow.startLog << "--";
}

void CNrCore::RunFlow(const SCalFlow &flow, const QStringList &items,
                      std::shared_ptr<CCalIniFile> file)
{
    const CLockSentry lock(m_targetLock);
    ResetItemResults();
    try {
        RunFlowItems(flow, items, file.get());
    } catch (...) {
        qCCritical(lcCore) << flow.itemLog << "ended by an exception";
        m_isAllSuccess = false;
        for (const QString &item : items.mid(m_itemResults.size()))
            AddItemResult(item, eStatusNotExecuted, {});
    }
    file.reset();
    emit(this->*flow.done)(m_isAllSuccess, m_itemResults);
    qCDebug(lcCore) << flow.endLog;
}

void CNrCore::RunFlowItems(const SCalFlow &flow, const QStringList &items, CCalIniFile *file)
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
        if (FindCalItem(items[i]))
            status = RunCalItem(flow, items[i], file);
        if (status != eStatusSuccess)
            m_isAllSuccess = false;
        TellRemarks(items[i]);
        AddItemResult(items[i], status, m_errorMessage);
        emit Signal_FinishItemCount(i + 1, GetItemResult(i));
    }
}

void CNrCore::TellRemarks(const QString &name)
{
    const ICalItemByL1Operation *item = FindCalItem(name);
    const SCalRemarks remarks = item ? CalRemarksOf(item->Remarks()) : SCalRemarks();
    if (!remarks.IsEmpty())
        emit Signal_CalRemarks(name, remarks);
}

void CNrCore::RenewCalItems()
{
    if (!m_areItemsStale.exchange(false))
        return;
    const CLockSentry pathLoss(RecordLock(ECalItem::PathLoss));
    const CLockSentry apt(RecordLock(ECalItem::Apt));
    try {
        auto aptProfile = std::make_unique<CMultiRatAptProfileV7>(ERadioKind::Nr);
        m_pathLoss = std::make_unique<CMultiRatPathLossV7>(ERadioKind::Nr);
        m_aptProfile = std::move(aptProfile);
    } catch (...) {
        m_areItemsStale.store(true);  // the next job must not find the last DUT's records
        throw;
    }
    const QStringList names = m_calItemMap.keys();
    for (const QString &name : names) {
        FindCalItem(name)->SetProgress([this, name](int round, int routesDone, int routesInAll) {
            emit Signal_CalProgress(name, round, routesDone, routesInAll);
            m_targetLock.GiveWay();  // between two rounds, to a stop of all tests
        });
    }
}

ICalItemByL1Operation *CNrCore::FindCalItem(const QString &name)
{
    const auto id = m_calItemMap.find(name);
    if (id == m_calItemMap.end())
        return nullptr;
    if (static_cast<ECalItem>(*id) == ECalItem::PathLoss)
        return m_pathLoss.get();
    return m_aptProfile.get();
}

// A calibration page bears its item's name.
std::unique_ptr<ICalPageLimits> CNrCore::PageLimits(const QString &name)
{
    const SPageRow &page = FindPage(static_cast<EPageId>(m_pageMap.value(name)));
    return std::make_unique<CCalPageLimits>(
        ModelFromText(LoadDataModel(name, page, QString::fromLatin1(page.resource))));
}

int CNrCore::RunCalItem(const SCalFlow &flow, const QString &name, CCalIniFile *file)
{
    const CLockSentry lock(RecordLock(static_cast<ECalItem>(m_calItemMap.value(name))));
    ICalItemByL1Operation &item = *FindCalItem(name);
    try {
        const std::unique_ptr<ICalPageLimits> limits =
            flow.looksAtValues ? PageLimits(name) : nullptr;
        item.SetPageLimits(limits.get());
        const uint32_t status = flow.move(item, file);
        m_errorMessage = item.GetErrorMessage();
        return static_cast<int>(status);
    } catch (const std::exception &failure) {
        m_errorMessage = QString::fromUtf8(failure.what());
    } catch (...) {
        m_errorMessage.clear();
    }
    qCCritical(lcCore) << flow.itemLog << "ended by an exception" << name << m_errorMessage;
    return static_cast<int>(flow.thrownStatus);
}
