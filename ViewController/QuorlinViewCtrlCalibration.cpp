// Calibration requests of the view controller: the flows of the core, which answer through signals
// of their own, and the records of the pages.
#include <exception>

#include "Controller/core/CalItemTable.h"
#include "Support/CalIniFile.h"
#include "ViewController/QuorlinViewCtrlJobs.h"

namespace {

using File = std::shared_ptr<CCalIniFile>;

File FileAt(const QString &path)
{
    return std::make_shared<CCalIniFile>(path.toStdWString().c_str());
}

}  // namespace

// The order of the rows.
enum class CQuorlinViewCtrl::ECalRequest
{
    AptUploadFromFlash,
    AptDownloadToFlash,
    AptSaveToFile,
    AptLoadFromFile,
    PathLossUploadFromFlash,
    PathLossDownloadToFlash,
    PathLossSaveToFile,
    PathLossLoadFromFile,
};

struct CQuorlinViewCtrl::SCalFlow
{
    void (*start)(CNrCore &core, const QStringList &items, File file);
    void (CCoreAnswers::*coreDone)(bool, QVector<SEachItemOperationResult>);
    bool storesFirst;  // the page's record goes into memory before the flow
};

struct CQuorlinViewCtrl::SCalItem
{
    ECalItem id;
    std::string (CNrCore::*get)(std::string);
    void (CNrCore::*set)(const std::string &);
};

struct CQuorlinViewCtrl::SCalRequest
{
    const char *internalName;
    const SCalItem &item;
    const SCalFlow &flow;
    void (CQuorlinViewCtrl::*done)(bool, QVector<SEachItemOperationResult>);
    ResultSignal result;      // null: the answer has a document
    ResponseSignal response;  // with the document of the selected record
};

const CQuorlinViewCtrl::SCalRequest &CQuorlinViewCtrl::CalRequest(ECalRequest id)
{
    using Ctrl = CQuorlinViewCtrl;
    using Core = CCoreAnswers;
    static constexpr SCalItem kApt{ECalItem::Apt, &CNrCore::GetAptCalibrationData,
                                   &CNrCore::SetAptCalibrationData};
    static constexpr SCalItem kPathLoss{ECalItem::PathLoss, &CNrCore::GetPathLossCalibrationData,
                                        &CNrCore::SetPathLossCalibrationData};
    static constexpr SCalFlow kUpload{
        [](CNrCore &core, const QStringList &items, File) { core.UploadFromFlashStart(items); },
        &Core::Signal_UploadFromFlashDone, false};
    static constexpr SCalFlow kDownload{
        [](CNrCore &core, const QStringList &items, File) { core.DownloadToFlashStart(items); },
        &Core::Signal_DownloadToFlashDone, true};
    static constexpr SCalFlow kSave{[](CNrCore &core, const QStringList &items, File file) {
                                        core.SaveToFileStart(std::move(file), items);
                                    },
                                    &Core::Signal_SaveToFileDone, true};
    static constexpr SCalFlow kLoad{[](CNrCore &core, const QStringList &items, File file) {
                                        core.LoadFromFileStart(std::move(file), items);
                                    },
                                    &Core::Signal_LoadFromFileDone, false};
    static constexpr SCalRequest kRequests[] = {
        {"AptUploadFromFlashInternal", kApt, kUpload, &Ctrl::Slot_AptUploadFromFlashDone, nullptr,
         &Ctrl::Signal_AptUploadFromFlashDone},
        {"AptDownloadToFlashInternal", kApt, kDownload, &Ctrl::Slot_AptDownloadToFlashDone,
         &Ctrl::Signal_AptDownloadToFlashDone, nullptr},
        {"AptSaveToFileInternal", kApt, kSave, &Ctrl::Slot_AptSaveToFileDone,
         &Ctrl::Signal_AptSaveToFileDone, nullptr},
        {"AptLoadFromFileInternal", kApt, kLoad, &Ctrl::Slot_AptLoadFromFileDone, nullptr,
         &Ctrl::Signal_AptLoadFromFileDone},
        {"PathLossUploadFromFlashInternal", kPathLoss, kUpload,
         &Ctrl::Slot_PathLossUploadFromFlashDone, nullptr,
         &Ctrl::Signal_PathLossUploadFromFlashDone},
        {"PathLossDownloadToFlashInternal", kPathLoss, kDownload,
         &Ctrl::Slot_PathLossDownloadToFlashDone, &Ctrl::Signal_PathLossDownloadToFlashDone,
         nullptr},
        {"PathLossSaveToFileInternal", kPathLoss, kSave, &Ctrl::Slot_PathLossSaveToFileDone,
         &Ctrl::Signal_PathLossSaveToFileDone, nullptr},
        {"PathLossLoadFromFileInternal", kPathLoss, kLoad, &Ctrl::Slot_PathLossLoadFromFileDone,
         nullptr, &Ctrl::Signal_PathLossLoadFromFileDone},
    };
    return kRequests[static_cast<int>(id)];
}

void CQuorlinViewCtrl::AwaitFlow(const SCalRequest &request)
{
    AwaitAnswer(request.flow.coreDone, request.done);
    AwaitAnswer(&CCoreAnswers::Signal_CalProgress,
                [name = CalItemName(request.item.id)](CQuorlinViewCtrl *self, const QString &item,
                                                      int round, int routesDone, int routesInAll) {
                    if (item == name)
                        emit self->Signal_CalProgress(round, routesDone, routesInAll);
                });
    AwaitAnswer(&CCoreAnswers::Signal_CalRemarks,
                [name = CalItemName(request.item.id)](CQuorlinViewCtrl *self, const QString &item,
                                                      const SCalRemarks &remarks) {
                    if (item == name)
                        emit self->Signal_CalRemarks(remarks);
                });
}

void CQuorlinViewCtrl::RequestFlow(ECalRequest id, std::string document, File file)
{
    const SCalRequest &request = CalRequest(id);
    AwaitFlow(request);
    m_document = request.response ? document : std::string();
    m_future = StartOnPool([&request, &core = GetCore(), file = std::move(file),
                            document = std::move(document), epoch = m_epoch,
                            self = QPointer<CQuorlinViewCtrl>(this)]() mutable {
        qCDebug(lcCore) << request.internalName;
        const QString item = CalItemName(request.item.id);
        QString failure;
        try {
            if (request.flow.storesFirst)
                (core.*request.item.set)(document);
            request.flow.start(core, {item}, std::move(file));
            return;
        } catch (const std::exception &thrown) {
            failure = QString::fromUtf8(thrown.what());
        }
        qCCritical(lcCore) << request.internalName << "ended by an exception" << failure;
        PostToGui([&request, self, epoch, item, failure] {
            if (self && self->m_epoch == epoch)
                (self->*request.done)(false, {{item, eStatusNotExecuted, failure}});
        });
    });
}

// The core has one signal for the flows of both items. An answer of the other one, which was under
// way when ours began, is not ours.
void CQuorlinViewCtrl::PassFlowAnswer(ECalRequest id,
                                      const QVector<SEachItemOperationResult> &itemResult)
{
    const SCalRequest &request = CalRequest(id);
    const SEachItemOperationResult answer = itemResult.value(0);
    if (answer.itemName != CalItemName(request.item.id))
        return;
    CCoreAnswers &core = CCoreAnswers::Get();
    disconnect(&core, request.flow.coreDone, this, nullptr);
    disconnect(&core, &CCoreAnswers::Signal_CalProgress, this, nullptr);
    disconnect(&core, &CCoreAnswers::Signal_CalRemarks, this, nullptr);
    if (request.result) {
        emit(this->*request.result)(answer);
        return;
    }
    const std::string document = std::exchange(m_document, {});
    emit(this->*request.response)(answer, (GetCore().*request.item.get)(document));
}

void CQuorlinViewCtrl::AptUploadFromFlash(std::string document)
{
    RequestFlow(ECalRequest::AptUploadFromFlash, std::move(document));
}

void CQuorlinViewCtrl::AptDownloadToFlash(std::string document)
{
    RequestFlow(ECalRequest::AptDownloadToFlash, std::move(document));
}

void CQuorlinViewCtrl::AptSaveToFile(std::string document, QString path)
{
    RequestFlow(ECalRequest::AptSaveToFile, std::move(document), FileAt(path));
}

void CQuorlinViewCtrl::AptLoadFromFile(std::string document, QString path)
{
    RequestFlow(ECalRequest::AptLoadFromFile, std::move(document), FileAt(path));
}

void CQuorlinViewCtrl::PathLossUploadFromFlash(std::string document)
{
    RequestFlow(ECalRequest::PathLossUploadFromFlash, std::move(document));
}

void CQuorlinViewCtrl::PathLossDownloadToFlash(std::string document)
{
    RequestFlow(ECalRequest::PathLossDownloadToFlash, std::move(document));
}

void CQuorlinViewCtrl::PathLossSaveToFile(std::string document, QString path)
{
    RequestFlow(ECalRequest::PathLossSaveToFile, std::move(document), FileAt(path));
}

void CQuorlinViewCtrl::PathLossLoadFromFile(std::string document, QString path)
{
    RequestFlow(ECalRequest::PathLossLoadFromFile, std::move(document), FileAt(path));
}

void CQuorlinViewCtrl::Slot_AptUploadFromFlashDone(bool,
                                                   QVector<SEachItemOperationResult> itemResult)
{
    PassFlowAnswer(ECalRequest::AptUploadFromFlash, itemResult);
}

void CQuorlinViewCtrl::Slot_AptDownloadToFlashDone(bool,
                                                   QVector<SEachItemOperationResult> itemResult)
{
    PassFlowAnswer(ECalRequest::AptDownloadToFlash, itemResult);
}

void CQuorlinViewCtrl::Slot_AptSaveToFileDone(bool, QVector<SEachItemOperationResult> itemResult)
{
    PassFlowAnswer(ECalRequest::AptSaveToFile, itemResult);
}

void CQuorlinViewCtrl::Slot_AptLoadFromFileDone(bool, QVector<SEachItemOperationResult> itemResult)
{
    PassFlowAnswer(ECalRequest::AptLoadFromFile, itemResult);
}

void CQuorlinViewCtrl::Slot_PathLossUploadFromFlashDone(
    bool, QVector<SEachItemOperationResult> itemResult)
{
    PassFlowAnswer(ECalRequest::PathLossUploadFromFlash, itemResult);
}

void CQuorlinViewCtrl::Slot_PathLossDownloadToFlashDone(
    bool, QVector<SEachItemOperationResult> itemResult)
{
    PassFlowAnswer(ECalRequest::PathLossDownloadToFlash, itemResult);
}

void CQuorlinViewCtrl::Slot_PathLossSaveToFileDone(bool,
                                                   QVector<SEachItemOperationResult> itemResult)
{
    PassFlowAnswer(ECalRequest::PathLossSaveToFile, itemResult);
}

void CQuorlinViewCtrl::Slot_PathLossLoadFromFileDone(bool,
                                                     QVector<SEachItemOperationResult> itemResult)
{
    PassFlowAnswer(ECalRequest::PathLossLoadFromFile, itemResult);
}

std::string CQuorlinViewCtrl::GetAptCalibrationData(std::string document)
{
    return GetCore().GetAptCalibrationData(std::move(document));
}

void CQuorlinViewCtrl::SetAptCalibrationData(const std::string &document)
{
    GetCore().SetAptCalibrationData(document);
}

std::string CQuorlinViewCtrl::GetPathLossCalibrationData(std::string document)
{
    return GetCore().GetPathLossCalibrationData(std::move(document));
}

void CQuorlinViewCtrl::SetPathLossCalibrationData(const std::string &document)
{
    GetCore().SetPathLossCalibrationData(document);
}
