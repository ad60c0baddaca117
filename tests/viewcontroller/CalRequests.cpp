#include "tests/viewcontroller/CalRequests.h"

#include <QSignalSpy>
#include <QTemporaryDir>

#include "Support/CalIniFile.h"
#include "tests/common/PoolJobs.h"

namespace {

using Ctrl = CQuorlinViewCtrl;
using Core = IRfCoreCalDataOperation;
using Result = SEachItemOperationResult;
using Results = QVector<Result>;

struct SItem
{
    const char *name;
    std::string (CNrCore::*get)(std::string);
    void (CNrCore::*set)(const std::string &);
};
constexpr SItem kApt{"APT Profile", &CNrCore::GetAptCalibrationData,
                     &CNrCore::SetAptCalibrationData};
constexpr SItem kPathLoss{"RX PathLoss", &CNrCore::GetPathLossCalibrationData,
                          &CNrCore::SetPathLossCalibrationData};

struct SFlow
{
    void (Core::*done)(bool, Results);
    void (*start)(CNrCore &core, const QStringList &items);
    bool storesFirst;
    bool answersDocument;
};

QString FilePath()
{
    static const QTemporaryDir folder;
    return folder.filePath("cal.ini");
}

std::shared_ptr<CCalIniFile> File()
{
    return std::make_shared<CCalIniFile>(FilePath().toStdWString().c_str());
}

constexpr SFlow kUpload{
    &Core::Signal_UploadFromFlashDone,
    [](CNrCore &core, const QStringList &items) { core.UploadFromFlashStart(items); }, false, true};
constexpr SFlow kDownload{
    &Core::Signal_DownloadToFlashDone,
    [](CNrCore &core, const QStringList &items) { core.DownloadToFlashStart(items); }, true, false};
constexpr SFlow kSave{
    &Core::Signal_SaveToFileDone,
    [](CNrCore &core, const QStringList &items) { core.SaveToFileStart(File(), items); }, true,
    false};
constexpr SFlow kLoad{
    &Core::Signal_LoadFromFileDone,
    [](CNrCore &core, const QStringList &items) { core.LoadFromFileStart(File(), items); }, false,
    true};

QStringList Answer(CNrCore &core, const SItem &item, const SFlow &flow, const std::string &document)
{
    if (flow.storesFirst)
        (core.*item.set)(document);
    const QSignalSpy done(&core, flow.done);
    flow.start(core, {item.name});
    EndPoolJobs();
    const Result result = done.value(0).value(1).value<Results>().value(0);
    QVariantList words{QVariant::fromValue(result)};
    if (flow.answersDocument)
        words.append(QVariant::fromValue((core.*item.get)(document)));
    return Words(words);
}

template <typename Make>
SRequest Row(const char *internalName, const char *signal, const SItem &item, const SFlow &flow,
             Make make)
{
    return {internalName,
            signal,
            nullptr,
            item.name,
            make,
            [&item, &flow](CNrCore &core, const std::string &document) {
                return Answer(core, item, flow, document);
            }};
}

SRequest Flash(const char *internalName, const char *signal, const SItem &item, const SFlow &flow,
               void (Ctrl::*request)(std::string))
{
    return Row(internalName, signal, item, flow,
               [request](Ctrl &ctrl, const std::string &document) { (ctrl.*request)(document); });
}

SRequest InFile(const char *internalName, const char *signal, const SItem &item, const SFlow &flow,
                void (Ctrl::*request)(std::string, QString))
{
    return Row(internalName, signal, item, flow,
               [request](Ctrl &ctrl, const std::string &document) {
                   (ctrl.*request)(document, FilePath());
               });
}

}  // namespace

QVector<SRequest> CalRequests()
{
    return {
        Flash("AptUploadFromFlashInternal", "Signal_AptUploadFromFlashDone", kApt, kUpload,
              &Ctrl::AptUploadFromFlash),
        Flash("AptDownloadToFlashInternal", "Signal_AptDownloadToFlashDone", kApt, kDownload,
              &Ctrl::AptDownloadToFlash),
        InFile("AptSaveToFileInternal", "Signal_AptSaveToFileDone", kApt, kSave,
               &Ctrl::AptSaveToFile),
        InFile("AptLoadFromFileInternal", "Signal_AptLoadFromFileDone", kApt, kLoad,
               &Ctrl::AptLoadFromFile),
        Flash("PathLossUploadFromFlashInternal", "Signal_PathLossUploadFromFlashDone", kPathLoss,
              kUpload, &Ctrl::PathLossUploadFromFlash),
        Flash("PathLossDownloadToFlashInternal", "Signal_PathLossDownloadToFlashDone", kPathLoss,
              kDownload, &Ctrl::PathLossDownloadToFlash),
        InFile("PathLossSaveToFileInternal", "Signal_PathLossSaveToFileDone", kPathLoss, kSave,
               &Ctrl::PathLossSaveToFile),
        InFile("PathLossLoadFromFileInternal", "Signal_PathLossLoadFromFileDone", kPathLoss, kLoad,
               &Ctrl::PathLossLoadFromFile),
    };
}
