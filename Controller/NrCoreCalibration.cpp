// Calibration of the core: the flows, and the records as pages see them.
#include <exception>

#include <QtConcurrent>

#include "Controller/CalItemTable.h"
#include "Controller/CommandFields.h"
#include "Controller/NrCore.h"
#include "Model/ModelText.h"
#include "Model/StatusTable.h"
#include "Support/CalIniFile.h"
#include "Support/Log.h"

namespace {

constexpr int kStatusTerminated = 4;  // row of the status table

// The record that a packaged calibration page selects.
struct STxPlace
{
    uint16_t route;
    uint16_t bwIdx;  // bandwidth region
};

STxPlace ReadTxPlace(const QJsonObject &document, const char *logName)
{
    constexpr int kPrefixLength = 2;  // "BW"
    const CPackagedGroup config(document, "calDataIf.config.group1");
    const STxPlace place{DecimalInt<uint16_t>(config.Text("txRoute")),
                         DecimalInt<uint16_t>(config.Text("aggBwRegion").mid(kPrefixLength))};
    qCDebug(lcCore) << logName << place.route << " bwIdx-" << place.bwIdx;
    return place;
}

struct SRxPlace
{
    uint16_t route;
    bool isType2;
};

// Logged with the words of storing by both directions, as users' log filters know it.
SRxPlace ReadRxPlace(const QJsonObject &document)
{
    const CPackagedGroup config(document, "calDataIf.config.group1");
    const QString type = config.Text("routeType");
    const SRxPlace place{DecimalInt<uint16_t>(config.Text("route")),
                         type.contains(QLatin1Char('2'))};
    qCDebug(lcCore) << "SetPathLossCalibrationData: routeType " << type << " rxRoute-"
                    << place.route;
    return place;
}

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
    &IRfCoreCalDataOperation::Signal_UploadFromFlashDone,
};

const CNrCore::SCalFlow CNrCore::SCalFlow::kDownload = {
    "[CNrCore]DownloadToFlashStart()",
    "[CNrCore] DownloadToFlashInternal--- itemCount",
    "[CNrCore] DownloadToFlashInternal()",
    "[CNrCore]DownloadToFlashInternal()--",
    [](ICalItemByL1Operation &item, CCalIniFile *) { return item.DownloadToFlash(); },
    kCalGeneralError,
    &IRfCoreCalDataOperation::Signal_DownloadToFlashDone,
};

const CNrCore::SCalFlow CNrCore::SCalFlow::kLoad = {
    nullptr,
    "[CNrCore] LoadFromFileInternal--- itemCount",
    "[CNrCore] LoadFromFileInternal()",
    "[CNrCore] LoadFromFileInternal---",
    [](ICalItemByL1Operation &item, CCalIniFile *file) { return item.LoadFromFile(file); },
    kCalNoFile,
    &IRfCoreCalDataOperation::Signal_LoadFromFileDone,
};

const CNrCore::SCalFlow CNrCore::SCalFlow::kSave = {
    nullptr,
    "[CNrCore] SaveToFileInternal--- itemCount",
    "[CNrCore] SaveToFileInternal()",
    "[CNrCore] SaveToFileInternal---",
    [](ICalItemByL1Operation &item, CCalIniFile *file) { return item.SaveToFile(file); },
    kCalNoFile,
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
    QtConcurrent::run([this, &flow, items, file = std::move(file)]() mutable {
        RunFlow(flow, items, std::move(file));
    });
    if (flow.startLog)
        qCDebug(lcCore).nospace() << flow.startLog << "--";
}

void CNrCore::RunFlow(const SCalFlow &flow, const QStringList &items,
                      std::shared_ptr<CCalIniFile> file)
{
    const CLockSentry lock(m_targetLock);
    qCDebug(lcCore) << flow.countLog << items.size();
    ResetItemResults();
    int status = eStatusSuccess;
    for (int i = 0; i < items.size(); ++i) {
        if (m_isStop) {
            qCDebug(lcCore) << "[CNrCore] action stop()" << items[i];
            for (const QString &item : items.mid(i))
                AddItemResult(item, kStatusTerminated, QStringLiteral("You stoped the operation."));
            break;
        }
        if (i == 0)
            emit Signal_FinishItemCount(0, {});
        qCDebug(lcCore) << flow.itemLog << items[i];
        if (FindCalItem(items[i]))
            status = RunCalItem(flow, items[i], file.get());
        if (status != eStatusSuccess)
            m_isAllSuccess = false;
        AddItemResult(items[i], status, m_errorMessage);
        emit Signal_FinishItemCount(i + 1, GetItemResult(i));
    }
    file.reset();
    emit(this->*flow.done)(m_isAllSuccess, m_itemResults);
    qCDebug(lcCore) << flow.endLog;
}

ICalItemByL1Operation *CNrCore::FindCalItem(const QString &name)
{
    const auto id = m_calItemMap.find(name);
    if (id == m_calItemMap.end())
        return nullptr;
    if (static_cast<ECalItem>(*id) == ECalItem::PathLoss)
        return &m_pathLoss;
    return &m_aptProfile;
}

int CNrCore::RunCalItem(const SCalFlow &flow, const QString &name, CCalIniFile *file)
{
    ICalItemByL1Operation &item = *FindCalItem(name);
    try {
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

std::string CNrCore::GetAptCalibrationData(std::string document)
{
    const CLockSentry lock(m_targetLock);
    const QJsonObject object = ModelFromText(document);
    if (m_target.GetNrGeneration() != 1)
        return {};
    const STxPlace place = ReadTxPlace(object, "GetAptCalibrationData: route ");
    const SAptRouteBwRecord *record = m_aptProfile.GetAptCalibrationData(place.route, place.bwIdx);
    return record ? m_responseBuilder.GetAptDataModelV7(object, *record) : document;
}

void CNrCore::SetAptCalibrationData(const std::string &document)
{
    const CLockSentry lock(m_targetLock);
    const QJsonObject object = ModelFromText(document);
    if (m_target.GetNrGeneration() != 1)
        return;
    const STxPlace place = ReadTxPlace(object, "SetAptCalibrationData: route ");
    const SAptRouteBwRecord *record = m_aptProfile.GetAptCalibrationData(place.route, place.bwIdx);
    if (record)
        m_aptProfile.SetAptCalibrationData(place.route, place.bwIdx,
                                           m_cmdBuilder.GetAptCmdV7(object, *record));
}

std::string CNrCore::GetPathLossCalibrationData(std::string document)
{
    const CLockSentry lock(m_targetLock);
    const QJsonObject object = ModelFromText(document);
    if (m_target.GetNrGeneration() != 1)
        return {};
    const SRxPlace place = ReadRxPlace(object);
    if (place.isType2)
        return m_responseBuilder.GetType2PathLossDataModelV7(
            object, *m_pathLoss.GetPathLossCalibrationData<SMMType2PathlossByRouteV7>(place.route));
    return m_responseBuilder.GetType1PathLossDataModelV7(
        object, *m_pathLoss.GetPathLossCalibrationData<SMMType1PathlossByRouteV7>(place.route));
}

void CNrCore::SetPathLossCalibrationData(const std::string &document)
{
    const CLockSentry lock(m_targetLock);
    const QJsonObject object = ModelFromText(document);
    if (m_target.GetNrGeneration() != 1)
        return;
    const SRxPlace place = ReadRxPlace(object);
    const auto store = [&](auto build, const auto *record) {
        m_pathLoss.SetPathLossCalibrationData(place.route, (m_cmdBuilder.*build)(object, *record));
    };
    if (place.isType2)
        store(&CNrCoreCmdBuilder::GetType2PathLossCmdV7,
              m_pathLoss.GetPathLossCalibrationData<SMMType2PathlossByRouteV7>(place.route));
    else
        store(&CNrCoreCmdBuilder::GetType1PathLossCmdV7,
              m_pathLoss.GetPathLossCalibrationData<SMMType1PathlossByRouteV7>(place.route));
}
