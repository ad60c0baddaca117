// Calibration requests of the view controller: the flows of the core, which answer through signals
// of their own, and the records of the pages. One row an item.
#include <algorithm>
#include <array>
#include <exception>

#include "Support/CalIniFile.h"
#include "ViewController/QuorlinViewCtrlJobs.h"

namespace {

using File = std::shared_ptr<CCalIniFile>;

File FileAt(const QString &path)
{
    return std::make_shared<CCalIniFile>(path.toStdWString().c_str());
}

}  // namespace

struct CQuorlinViewCtrl::SCalFlow
{
    void (*start)(CNrCore &core, ECalItem item, const QJsonObject &document, File file);
    void (CCoreAnswers::*coreDone)(bool, QVector<SEachItemOperationResult>);
    bool storesFirst;  // the page's record goes into memory before the flow
    bool hasFile;
};

// One that is left out answers by the signal for any item.
struct CQuorlinViewCtrl::SCalRequest
{
    const char *job = "FlowInternal";  // name in the log
    ResultSignal result = nullptr;     // in place of response
    // With the document of the selected record.
    ResponseSignal response = &CQuorlinViewCtrl::Signal_FlowDone;
};

struct CQuorlinViewCtrl::SCalRequests
{
    ECalItem item = ECalItem::Count;
    SCalRequest upload = {};
    SCalRequest download = {};
    SCalRequest save = {};
    SCalRequest load = {};
};

const CQuorlinViewCtrl::SCalFlow &CQuorlinViewCtrl::FlowOf(ECalFlow flow)
{
    using Core = CCoreAnswers;
    static constexpr std::array<SCalFlow, static_cast<size_t>(ECalFlow::Count)> kFlows = {
        SCalFlow{.start = [](CNrCore &core, ECalItem item, const QJsonObject &document,
                             File) { core.UploadFromFlashStart(item, document); },
                 .coreDone = &Core::Signal_UploadFromFlashDone,
                 .storesFirst = false,
                 .hasFile = false},
        SCalFlow{.start = [](CNrCore &core, ECalItem item, const QJsonObject &document,
                             File) { core.DownloadToFlashStart(item, document); },
                 .coreDone = &Core::Signal_DownloadToFlashDone,
                 .storesFirst = true,
                 .hasFile = false},
        SCalFlow{.start = [](CNrCore &core, ECalItem item, const QJsonObject &document,
                             File file) { core.SaveToFileStart(std::move(file), item, document); },
                 .coreDone = &Core::Signal_SaveToFileDone,
                 .storesFirst = true,
                 .hasFile = true},
        SCalFlow{
            .start = [](CNrCore &core, ECalItem item, const QJsonObject &document,
                        File file) { core.LoadFromFileStart(std::move(file), item, document); },
            .coreDone = &Core::Signal_LoadFromFileDone,
            .storesFirst = false,
            .hasFile = true},
    };
    return kFlows[static_cast<size_t>(flow)];
}

const CQuorlinViewCtrl::SCalRequest &CQuorlinViewCtrl::CalRequest(ECalItem item, ECalFlow flow)
{
    using Ctrl = CQuorlinViewCtrl;
    static constexpr std::array kItems = {
        SCalRequests{.item = ECalItem::PathLoss,
                     .upload = {.job = "PathLossUploadFromFlashInternal",
                                .response = &Ctrl::Signal_PathLossUploadFromFlashDone},
                     .download = {.job = "PathLossDownloadToFlashInternal",
                                  .result = &Ctrl::Signal_PathLossDownloadToFlashDone},
                     .save = {.job = "PathLossSaveToFileInternal",
                              .result = &Ctrl::Signal_PathLossSaveToFileDone},
                     .load = {.job = "PathLossLoadFromFileInternal",
                              .response = &Ctrl::Signal_PathLossLoadFromFileDone}},
        SCalRequests{
            .item = ECalItem::Apt,
            .upload = {.job = "AptUploadFromFlashInternal",
                       .response = &Ctrl::Signal_AptUploadFromFlashDone},
            .download = {.job = "AptDownloadToFlashInternal",
                         .result = &Ctrl::Signal_AptDownloadToFlashDone},
            .save = {.job = "AptSaveToFileInternal", .result = &Ctrl::Signal_AptSaveToFileDone},
            .load = {.job = "AptLoadFromFileInternal",
                     .response = &Ctrl::Signal_AptLoadFromFileDone}},
    };
    static constexpr SCalRequest SCalRequests::*kOfFlow[] = {
        &SCalRequests::upload, &SCalRequests::download, &SCalRequests::save, &SCalRequests::load};
    static_assert(std::size(kOfFlow) == static_cast<size_t>(ECalFlow::Count));
    static constexpr SCalRequests kOther;
    const auto *const row =
        std::find_if(kItems.begin(), kItems.end(),
                     [item](const SCalRequests &requests) { return requests.item == item; });
    const SCalRequests &requests = row == kItems.end() ? kOther : *row;
    return requests.*kOfFlow[static_cast<size_t>(flow)];
}

void CQuorlinViewCtrl::AwaitFlow(ECalItem item, ECalFlow flow)
{
    AwaitAnswer(FlowOf(flow).coreDone,
                [item, flow](CQuorlinViewCtrl *self, bool,
                             const QVector<SEachItemOperationResult> &itemResult) {
                    self->PassFlowAnswer(item, flow, itemResult);
                });
    AwaitAnswer(&CCoreAnswers::Signal_CalDocument,
                [own = CalItemName(item)](CQuorlinViewCtrl *self, const QString &name,
                                          const std::string &document) {
                    if (name != own)
                        return;
                    self->m_document = document;
                    self->m_shown = CCoreAnswers::Get().Document();
                });
    AwaitAnswer(&CCoreAnswers::Signal_CalProgress,
                [own = CalItemName(item)](CQuorlinViewCtrl *self, const QString &name, int round,
                                          int routesDone, int routesInAll) {
                    if (name == own)
                        emit self->Signal_CalProgress(round, routesDone, routesInAll);
                });
    AwaitAnswer(&CCoreAnswers::Signal_CalRemarks,
                [own = CalItemName(item)](CQuorlinViewCtrl *self, const QString &name,
                                          const SCalRemarks &remarks) {
                    if (name == own)
                        emit self->Signal_CalRemarks(remarks);
                });
}

void CQuorlinViewCtrl::RequestFlow(ECalItem item, ECalFlow flow, CHandedDocument document,
                                   QString path)
{
    File file = FlowOf(flow).hasFile ? FileAt(path) : nullptr;
    AwaitFlow(item, flow);
    m_document.clear();
    m_shown = {};
    m_future = StartOnPool([item, flow, job = CalRequest(item, flow).job, &core = GetCore(),
                            file = std::move(file), document = std::move(document), epoch = m_epoch,
                            self = QPointer<CQuorlinViewCtrl>(this)]() mutable {
        qCDebug(lcCore) << job;
        QString failure;
        try {
            const QJsonObject object = document.Take();
            if (FlowOf(flow).storesFirst)
                core.SetCalibrationData(item, object);
            FlowOf(flow).start(core, item, object, std::move(file));
            return;
        } catch (const std::exception &thrown) {
            failure = QString::fromUtf8(thrown.what());
        }
        qCCritical(lcCore) << job << "ended by an exception" << failure;
        PostToGui([item, flow, self, epoch, failure] {
            if (self && self->m_epoch == epoch)
                self->PassFlowAnswer(item, flow,
                                     {{CalItemName(item), eStatusNotExecuted, failure}});
        });
    });
}

// The core has one signal for the flows of all items. An answer of another one, which was under way
// when ours began, is not ours.
void CQuorlinViewCtrl::PassFlowAnswer(ECalItem item, ECalFlow flow,
                                      const QVector<SEachItemOperationResult> &itemResult)
{
    const SEachItemOperationResult answer = itemResult.value(0);
    if (answer.itemName != CalItemName(item))
        return;
    CCoreAnswers &core = CCoreAnswers::Get();
    disconnect(&core, FlowOf(flow).coreDone, this, nullptr);
    disconnect(&core, &CCoreAnswers::Signal_CalDocument, this, nullptr);
    disconnect(&core, &CCoreAnswers::Signal_CalProgress, this, nullptr);
    disconnect(&core, &CCoreAnswers::Signal_CalRemarks, this, nullptr);
    const SCalRequest &request = CalRequest(item, flow);
    QJsonObject shown = std::exchange(m_shown, {});
    const std::string document = std::exchange(m_document, {});
    if (request.result)
        EmitAnswer(request.result, std::move(shown), answer);
    else
        EmitAnswer(request.response, std::move(shown), answer, document);
}

std::string CQuorlinViewCtrl::GetCalibrationData(ECalItem item, const std::string &document)
{
    return GetCore().GetCalibrationData(item, document);
}

void CQuorlinViewCtrl::SetCalibrationData(ECalItem item, const std::string &document)
{
    GetCore().SetCalibrationData(item, document);
}

QJsonObject CQuorlinViewCtrl::GetCalibrationData(ECalItem item, const QJsonObject &document)
{
    return GetCore().GetCalibrationData(item, document).value_or(QJsonObject());
}

void CQuorlinViewCtrl::SetCalibrationData(ECalItem item, const QJsonObject &document)
{
    GetCore().SetCalibrationData(item, document);
}
