#include "View/pages/CalibrationDockWidget.h"

#include <QAbstractButton>
#include <QEvent>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableWidget>

#include "Support/Log.h"
#include "View/engine/TableSize.h"
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
    m_undo.Start(DataMembers());
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
    m_undo.SetEnabled(isEnabled);
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

void CCalibrationDockWidget::BeforeEntry(QWidget *editor)
{
    if (m_form.selectors.contains(editor))
        TakeSnapshot();
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
    if (document.isEmpty())
        return;
    UpdateWidget(document);
    m_undo.ShownAnew();
}

QJsonObject CCalibrationDockWidget::DocumentOf(const std::string &text)
{
    return m_viewCtrl->DocumentOf(text);
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
