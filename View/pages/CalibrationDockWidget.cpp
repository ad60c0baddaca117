#include "View/pages/CalibrationDockWidget.h"

#include <algorithm>
#include <iterator>

#include <QAbstractButton>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableWidget>

#include "Model/StatusTable.h"
#include "Support/FileDialogMan.h"
#include "Support/Log.h"
#include "View/engine/TableSize.h"
#include "View/pages/CalibrationRemarks.h"
#include "View/pages/ScrollPane.h"

namespace {

// Events after which a selector may change. It may have had the focus all along: not every button
// takes it away.
bool MayComeBeforeAChange(QEvent::Type type)
{
    return type == QEvent::FocusIn || type == QEvent::Wheel || type == QEvent::KeyPress ||
           type == QEvent::MouseButtonPress;
}

}  // namespace

// What the user and the log read of a flow.
struct CCalibrationDockWidget::SFlowTexts
{
    ECalibrationFlow flow;
    const char *log;
    const char *running;  // in front of how far it is, and over what it left out
    const char *done;
    const char *failed;  // with a point behind it in the status bar
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

CCalibrationDockWidget::CCalibrationDockWidget(const SCalibrationPage &page, QWidget *parent)
    : CAutoBindingDataModelDockWidget(parent), m_page(page),
      m_viewCtrl(std::make_unique<CQuorlinViewCtrl>())
{
}

CCalibrationDockWidget::~CCalibrationDockWidget() = default;

void CCalibrationDockWidget::SetForm(const SCalibrationForm &form)
{
    m_form = form;
    for (QWidget *selector : form.selectors) {
        selector->installEventFilter(this);
        CWheelGuard::Release(selector);
    }
}

QWidget *CCalibrationDockWidget::GetRootWidget()
{
    return this;
}

int CCalibrationDockWidget::GetModelInterface()
{
    return eInterfaceCalDataIf;
}

void CCalibrationDockWidget::RequestDataModel()
{
    connect(this, &CCalibrationDockWidget::Signal_InitDone, this,
            &CCalibrationDockWidget::Slot_InitDone);
    connect(m_viewCtrl.get(), m_page.dataModelDone, this,
            &CCalibrationDockWidget::Slot_GetDataModelDone);
    (m_viewCtrl.get()->*m_page.getDataModel)();
}

void CCalibrationDockWidget::Slot_InitDone()
{
    disconnect(this, &CCalibrationDockWidget::Signal_InitDone, this,
               &CCalibrationDockWidget::Slot_InitDone);
}

void CCalibrationDockWidget::DisableTestControls()
{
    SetButtonsEnabled(false);
}

void CCalibrationDockWidget::EnableTestControls()
{
    SetButtonsEnabled(!HasRequest());
}

void CCalibrationDockWidget::Slot_TriggerStopTest() {}

void CCalibrationDockWidget::SetButtonsEnabled(bool isEnabled)
{
    for (QAbstractButton *button : m_form.buttons)
        button->setEnabled(isEnabled);
}

bool CCalibrationDockWidget::eventFilter(QObject *object, QEvent *event)
{
    if (!m_modelReady)
        return true;
    if (MayComeBeforeAChange(event->type()) && !m_hasSnapshot) {
        TakeSnapshot();
        ShowSelectionDetails();
    }
    return QObject::eventFilter(object, event);
}

void CCalibrationDockWidget::TakeSnapshot()
{
    m_lastDocument = PackageDocument();
}

void CCalibrationDockWidget::ShowSelectionDetails() {}

bool CCalibrationDockWidget::ChangeSelection(const char *log, const QString &selected)
{
    if (!m_modelReady || selected.isEmpty())
        return false;
    m_undo.Forget();
    if (!BeginRequest([this] { SetButtonsEnabled(false); }))
        return false;
    qCDebug(lcForm) << log;
    // Without a snapshot there is nothing to store: the user has not been to a selector.
    if (!m_lastDocument.isEmpty())
        m_viewCtrl->SetCalibrationData(m_page.item, m_lastDocument);
    {
        const QScopedValueRollback<bool> boxesWait(m_boxesWait, true);
        ShowDocument(m_viewCtrl->GetCalibrationData(m_page.item, PackageDocument()));
    }
    ShowSelectionDetails();
    EndRequest([this] { SetButtonsEnabled(true); });
    return true;
}

// A DUT of another generation gives no document; the page then keeps what it has.
void CCalibrationDockWidget::ShowDocument(const QJsonObject &document)
{
    if (!document.isEmpty())
        UpdateWidget(document);
}

QJsonObject CCalibrationDockWidget::DocumentOf(const std::string &text)
{
    return m_viewCtrl->DocumentOf(text);
}

template <typename Flow>
void CCalibrationDockWidget::StartFlow(ECalibrationFlow kind, const Flow &flow, const QString &path)
{
    m_undo.Forget();
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
    m_messageBox.Show(eBoxWarningAsIs, QLatin1String(texts.running), box.text, {}, box.detail, -1);
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

void CCalibrationDockWidget::FitTable(QTableWidget *table)
{
    table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table->doItemsLayout();  // the headers of a table on a covered page have no geometry yet
    table->setMaximumSize(FitTableSize(table));
    table->setMinimumSize(table->maximumSize());
    for (QWidget *parent = table->parentWidget(); parent; parent = parent->parentWidget()) {
        // The page's own pane scrolls as well, but is no frame around this table.
        if (auto *area = qobject_cast<QScrollArea *>(parent);
            area && !qobject_cast<CScrollPane *>(area))
            area->setFixedHeight(table->maximumHeight() +
                                 area->horizontalScrollBar()->sizeHint().height());
        parent->updateGeometry();  // a covered page tells no one of its new size
    }
}

void CCalibrationDockWidget::ResetTables(const QString &reset, const QList<QTableWidget *> &tables)
{
    m_undo.Zero(reset, tables);
}
