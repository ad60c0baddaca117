// Flows of a calibration page: how each begins, tells how far it is, and ends.
#include "View/pages/CalibrationDockWidget.h"

#include <algorithm>
#include <iterator>

#include <QScopedValueRollback>

#include "Model/StatusTable.h"
#include "Support/BoxText.h"
#include "Support/FileDialogMan.h"
#include "Support/Log.h"
#include "View/pages/CalibrationRemarks.h"

// What the user and the log read of a flow.
struct CCalibrationDockWidget::SFlowTexts
{
    ECalibrationFlow flow;
    const char *log;
    const char *running;  // in front of how far it is, and over what it left out
    const char *done;
    const char *failed;          // with a point behind it in the status bar
    const char *undo = nullptr;  // name of the command; null: the flow fills no records
};

const CCalibrationDockWidget::SFlowTexts &CCalibrationDockWidget::Texts(ECalibrationFlow flow)
{
    static constexpr SFlowTexts kTexts[] = {
        {
            .flow = ECalibrationFlow::Upload,
            .log = "on_m_btnUploadFromFlash_clicked",
            .running = "Read data from target",
            .done = "Read data from target successfully.",
            .failed = "Read data from target failed",
            .undo = "Read",
        },
        {
            .flow = ECalibrationFlow::Download,
            .log = "on_m_btnDownloadToFlash_clicked",
            .running = "Write data to target",
            .done = "Write data to target successfully.",
            .failed = "Write data to target failed",
        },
        {
            .flow = ECalibrationFlow::Load,
            .log = "on_m_btnLoadFromFile_clicked",
            .running = "Import data from file",
            .done = "Import data from file successfully.",
            .failed = "Import data from file failed",
            .undo = "Import",
        },
        {
            .flow = ECalibrationFlow::Save,
            .log = "on_m_btnSaveToFile_clicked",
            .running = "Export data to file",
            .done = "Export data to file successfully.",
            .failed = "Export data to file failed",
        },
    };
    return *std::find_if(std::begin(kTexts), std::end(kTexts),
                         [flow](const SFlowTexts &texts) { return texts.flow == flow; });
}

template <typename Flow>
void CCalibrationDockWidget::StartFlow(ECalibrationFlow kind, const Flow &flow, const QString &path)
{
    m_undo.BeginFlow();
    const auto turnOff = [this] {
        SetButtonsEnabled(false);
        m_form.contents->setEnabled(false);
    };
    if (!BeginRequest(turnOff))
        return;
    qCDebug(lcForm) << Texts(kind).log;
    const QJsonObject document = PackageDocument();
    m_remarks = {};
    connect(m_viewCtrl.get(), &CQuorlinViewCtrl::Signal_CalRemarks, this,
            [this](const SCalRemarks &remarks) { m_remarks = remarks; });
    ShowProgress(kind, 0, 0, 0);
    connect(m_viewCtrl.get(), &CQuorlinViewCtrl::Signal_CalProgress, this,
            [this, kind](int round, int routesDone, int routesInAll) {
                ShowProgress(kind, round, routesDone, routesInAll);
            });
    connect(m_viewCtrl.get(), flow.done, this, flow.slot);
    m_viewCtrl->RequestFlow(m_page.item, kind, document, path);
}

void CCalibrationDockWidget::on_m_btnUpload_clicked()
{
    StartFlow(ECalibrationFlow::Upload, m_page.upload);
}

void CCalibrationDockWidget::on_m_btnDownload_clicked()
{
    StartFlow(ECalibrationFlow::Download, m_page.download);
}

void CCalibrationDockWidget::on_m_btnLoad_clicked()
{
    const QString file = AskFile(false);
    if (!file.isEmpty())
        StartFlow(ECalibrationFlow::Load, m_page.load, file);
}

void CCalibrationDockWidget::on_m_btnSave_clicked()
{
    const QString file = AskFile(true);
    if (!file.isEmpty())
        StartFlow(ECalibrationFlow::Save, m_page.save, file);
}

QString CCalibrationDockWidget::AskFile(bool isSave)
{
    const QPointer<CCalibrationDockWidget> self(this);
    FinishEdit();
    if (!self)
        return {};
    QString file;
    {
        CFileDialogMan dialogs;
        file = isSave ? dialogs.GetSaveFileName({}, {}) : dialogs.GetOpenFileName({}, {});
    }
    if (!self)
        return {};
    if (file.isEmpty())
        m_messageBox.Show(eBoxWarning,
                          isSave ? QStringLiteral("Save file") : QStringLiteral("Open file"),
                          QStringLiteral("Please choose the Cal/Ini file..."), {}, {}, -1);
    return file;
}

template <typename Flow>
void CCalibrationDockWidget::EndFlow(const Flow &flow)
{
    EndRequest([this] {
        m_form.contents->setEnabled(true);
        SetButtonsEnabled(true);
    });
    disconnect(m_viewCtrl.get(), flow.done, this, nullptr);
    disconnect(m_viewCtrl.get(), &CQuorlinViewCtrl::Signal_CalProgress, this, nullptr);
    disconnect(m_viewCtrl.get(), &CQuorlinViewCtrl::Signal_CalRemarks, this, nullptr);
}

void CCalibrationDockWidget::EndFlow(ECalibrationFlow flow)
{
    switch (flow) {
    case ECalibrationFlow::Upload:
        EndFlow(m_page.upload);
        break;
    case ECalibrationFlow::Download:
        EndFlow(m_page.download);
        break;
    case ECalibrationFlow::Load:
        EndFlow(m_page.load);
        break;
    case ECalibrationFlow::Save:
        EndFlow(m_page.save);
        break;
    case ECalibrationFlow::Count:
        break;
    }
}

// Whatever has ended the flow, it may have changed what memory holds. The page is still off while
// that is shown; it goes on with an event of its own, so that neither is long.
void CCalibrationDockWidget::FinishFlow(ECalibrationFlow flow,
                                        const SEachItemOperationResult &result)
{
    // A reset between the two takes the page out of its window.
    const auto goOn = [this, flow, result, window = parentWidget()] {
        if (parentWidget() == window)
            GoOnAfter(flow, result);
    };
    QMetaObject::invokeMethod(this, goOn, Qt::QueuedConnection);
    const QScopedValueRollback<bool> boxesWait(m_boxesWait, true);
    ShowDocument(m_viewCtrl->FlowDocument());
    if (const char *name = Texts(flow).undo)
        m_undo.EndFlow(QLatin1String(name));
}

void CCalibrationDockWidget::GoOnAfter(ECalibrationFlow flow,
                                       const SEachItemOperationResult &result)
{
    const QPointer<CCalibrationDockWidget> self(this);
    TakeSnapshot();
    m_hasSnapshot = true;  // the focus comes back
    EndFlow(flow);
    if (!self)
        return;
    m_hasSnapshot = false;
    ShowSelectionDetails();
    const SFlowTexts &texts = Texts(flow);
    if (result.status == eStatusSuccess)
        emit Signal_UpdateStatus(QLatin1String(texts.done));
    else
        emit Signal_UpdateStatus(QLatin1String(texts.failed) + QLatin1Char('.'));
    if (self)
        ShowOutcome(texts, result, std::exchange(m_remarks, {}));
}

// The page may be gone when a box has closed.
void CCalibrationDockWidget::ShowOutcome(const SFlowTexts &texts,
                                         const SEachItemOperationResult &result,
                                         const SCalRemarks &remarks)
{
    const QPointer<CCalibrationDockWidget> self(this);
    if (result.status != eStatusSuccess)
        ShowItemResult(QLatin1String(texts.failed), result);
    if (!self || remarks.IsEmpty())
        return;
    const SRemarkBox box = RemarkBox(result.itemName, remarks);
    m_messageBox.Show(eBoxWarningAsIs, QLatin1String(texts.running), BoxText(box.text), {},
                      box.detail, -1);
}

void CCalibrationDockWidget::ShowProgress(ECalibrationFlow kind, int round, int routesDone,
                                          int routesInAll)
{
    Progress().Show(routesDone, routesInAll);
    if (routesInAll == 0)
        return;
    QString text = QLatin1String(Texts(kind).running) + QLatin1String(": ");
    if (round > 0)
        text += QStringLiteral("round %1, ").arg(round);
    emit Signal_UpdateStatus(text +
                             QStringLiteral("%1 of %2 routes").arg(routesDone).arg(routesInAll));
}
