#include "View/form/QuorlinForm.h"

#include <QPushButton>
#include <QScreen>

#include "Model/OperationResult.h"
#include "Model/StatusTable.h"
#include "Support/Log.h"
#include "Support/SessionLog.h"
#include "Support/TraceNote.h"
#include "View/access/Announce.h"
#include "View/editors/FormFont.h"
#include "View/editors/NamedAction.h"
#include "View/engine/AutoBindingDataModelDockWidget.h"
#include "View/entry/FrequencyEntry.h"
#include "View/explain/ExplainAction.h"
#include "View/form/PageActions.h"
#include "View/form/StyleCaches.h"
#include "View/form/TestLamp.h"
#include "View/form/ToolsButton.h"
#include "View/log/SessionLogWindow.h"
#include "View/settings/PageSettings.h"
#include "View/settings/TxPowerLimit.h"
#include "ui_QuorlinForm.h"

namespace {

constexpr int kTitleBar = 30;  // pixels that desktops put around a window's height, about
constexpr int kButtonRim = 6;  // pixels above and below the text: no more than the bar has room for
constexpr char kButtonStyle[] =
    "QPushButton { border: 1px solid palette(mid); border-radius: 3px; padding: 0 12px; }"
    "QPushButton:pressed { background-color: palette(mid); }"
    "QPushButton:focus { border-color: palette(highlight); }";
constexpr char kHighlightedStyle[] =
    "QPushButton { background-color: #c62828; color: white; font-weight: bold; }"
    "QPushButton:pressed { background-color: #8e0000; }";

}  // namespace

CQuorlinForm::CQuorlinForm(PageTypeRegistrar registerPageTypes)
    : m_ui(std::make_unique<Ui::CQuorlinForm>())
{
    m_ui->setupUi(this);
    delete takeCentralWidget();  // the window lives from dock widgets alone
    RegisterOperationResultTypes();
    registerPageTypes();
    MakeRfOff();
    FillStatusBar();
    AddPageActions(this, [this] { return PageOnTop(); });
    AddAction(this, "m_actionTxPowerLimit", "TX po&wer limit...", {"Ctrl+Shift+L"},
              [this] { AskTxPowerLimit(this); });
    AddAction(this, "m_actionLog", "&Log...", {"Ctrl+L"}, [this] { ShowLog(); });
    m_lastSettings = std::make_unique<CLastSettings>(this);
    connect(&m_viewCtrl, &CQuorlinViewCtrl::Signal_Idle, this, [this] {
        if (--m_idleReports == 0)
            SetBusy(&m_viewCtrl, false);
    });
    connect(&m_viewCtrl, &CQuorlinViewCtrl::Signal_RfOffDone, this, &CQuorlinForm::ShowRfOff);
    connect(&m_viewCtrl, &CQuorlinViewCtrl::Signal_TestsRun, this, &CQuorlinForm::Highlight);
}

CQuorlinForm::~CQuorlinForm()
{
    m_lastSettings->Keep(Pages());
    if (m_wasShown)
        m_viewCtrl.StopRunningTests();
}

void CQuorlinForm::MakeRfOff()
{
    m_rfOff = new QPushButton(QStringLiteral("RF &Off"));
    m_rfOff->setObjectName(QStringLiteral("m_rfOff"));
    m_rfOff->setToolTip(QStringLiteral("Stops every test on the DUT"));
    m_rfOff->setFocusPolicy(Qt::TabFocus);  // a click leaves the focus to the page
    m_rfOff->setFont(FormFont(this));       // its style sheet keeps the form's away
    m_rfOff->setFixedHeight(m_rfOff->fontMetrics().height() + kButtonRim);
    Highlight(false);
    connect(m_rfOff, &QPushButton::clicked, this, &CQuorlinForm::RfOff);
}

void CQuorlinForm::FillStatusBar()
{
    auto *const lamp = new CTestLamp(this);
    auto *const tools = new CToolsButton([this] { return PageOnTop(); }, this);
    tools->setFont(FormFont(this));
    tools->setStyleSheet(QLatin1String(kButtonStyle));
    tools->setFixedHeight(m_rfOff->height());
    connect(&m_viewCtrl, &CQuorlinViewCtrl::Signal_NewestTest, lamp, &CTestLamp::Show);
    for (QWidget *part : {static_cast<QWidget *>(lamp), static_cast<QWidget *>(m_rfOff),
                          static_cast<QWidget *>(tools)})
        statusBar()->addPermanentWidget(part);
    NotePresses(statusBar(), windowTitle());
}

// Made when it is first asked for; it stays with what the user has typed into it.
void CQuorlinForm::ShowLog()
{
    if (!m_log)
        m_log = new CSessionLogWindow(this);
    m_log->show();
    m_log->raise();
    m_log->activateWindow();
}

void CQuorlinForm::Highlight(bool isOn)
{
    m_rfOff->setProperty("isHighlighted", isOn);
    m_rfOff->setStyleSheet(QLatin1String(kButtonStyle) +
                           QLatin1String(isOn ? kHighlightedStyle : ""));
}

// The request goes out before anybody hears of it.
void CQuorlinForm::RfOff()
{
    qCDebug(lcForm) << "RF off";
    ++m_rfOffs;
    m_viewCtrl.RfOff();
    SetBusy(m_rfOff, true);
}

void CQuorlinForm::ShowRfOff(const SEachItemOperationResult &result)
{
    if (result.status == eStatusSuccess) {
        for (CAutoBindingDataModelDockWidget *page : Pages())
            page->ShowTestStopped();
        Slot_UpdateStatusbar(QStringLiteral("RF off."));
    } else {
        Slot_UpdateStatusbar(
            QLatin1String("RF off failed: ") +
            (result.message.isEmpty() ? LookupStatus(result.status).text : result.message));
    }
    if (--m_rfOffs == 0)
        SetBusy(m_rfOff, false);
}

void CQuorlinForm::SetTargetHandle(uint32_t handle)
{
    CQuorlinViewCtrl::SetTargetHandle(handle);
}

// No show event comes to a window that is visible already.
void CQuorlinForm::setVisible(bool isVisible)
{
    const QPointer<CQuorlinForm> self(this);
    if (isVisible && !m_wasShown)
        FitScreen();
    CAutoBindingDataModelForm::setVisible(isVisible);
    if (self && isVisible && this->isVisible())
        StartInit();
}

// The status bar, and RF Off in it, are on the screen from the start. A screen that is narrower
// than the form is none that it could fit: it keeps its size there.
void CQuorlinForm::FitScreen()
{
    const QSize room = screen()->availableSize() - QSize(0, kTitleBar);
    if (isWindow() && width() <= room.width() && height() > room.height())
        resize(width(), room.height());
}

void CQuorlinForm::showEvent(QShowEvent *)
{
    qCDebug(lcForm) << "CQuorlinForm::showEvent";
    const QPointer<CQuorlinForm> self(this);
    emit Signal_PluginIsActivated(true);
    if (self)
        StartInit();
}

void CQuorlinForm::StartInit()
{
    if (m_isInitStarted)
        return;
    if (m_wasShown)
        FreeStyleCaches(this);  // of pages that have gone
    setEnabled(false);
    Slot_UpdateStatusbar(QStringLiteral("Please to wait the init flow..."));
    qCDebug(lcForm) << "CQuorlinForm::showEvent start";
    connect(&m_viewCtrl, &CQuorlinViewCtrl::Signal_GetInitPageListDone, this,
            &CQuorlinForm::Slot_GetInitPageListDone, Qt::UniqueConnection);
    m_viewCtrl.GetInitPageList();
    m_isInitStarted = true;
    m_wasShown = true;
    m_viewCtrl.WatchTests();
}

void CQuorlinForm::hideEvent(QHideEvent *event)
{
    const QPointer<CQuorlinForm> self(this);
    m_lastSettings->Keep(Pages());
    CAutoBindingDataModelForm::hideEvent(event);
    if (self)
        emit Signal_PluginIsActivated(false);
}

void CQuorlinForm::Slot_GetInitPageListDone(QStringList pageList)
{
    disconnect(&m_viewCtrl, &CQuorlinViewCtrl::Signal_GetInitPageListDone, this,
               &CQuorlinForm::Slot_GetInitPageListDone);
    const QPointer<CQuorlinForm> self(this);
    InitPage(pageList);
    if (!self)
        return;
    for (CAutoBindingDataModelDockWidget *page : Pages()) {
        new CPageSettings(page);
        AddFrequencyEntry(page);
        AddExplain(page);
    }
    m_lastSettings->Restore(Pages());
}

void CQuorlinForm::Slot_UpdateStatusbar(QString str)
{
    CSessionLog::Get().Add(ESessionEvent::Status, m_speaker.isEmpty() ? windowTitle() : m_speaker,
                           str);
    statusBar()->showMessage(str, 0);
    Announce(statusBar());
}

void CQuorlinForm::ResetPages()
{
    const bool isBusy = !m_busy.isEmpty();
    const bool isStopping = m_viewCtrl.HasRunningTests();
    m_viewCtrl.ResetTargetCache();
    m_lastSettings->Keep(Pages());
    RemovePages();
    m_isInitStarted = false;
    m_rfOffs = 0;
    // An init flow that this has ended leaves no window behind that waits for its end.
    if (!isEnabled()) {
        setEnabled(true);
        statusBar()->clearMessage();
    }
    // The pages that were busy are gone: busy ends when the target itself is idle.
    if (!isBusy && !isStopping)
        return;
    m_busy = {&m_viewCtrl};
    ++m_idleReports;
    m_viewCtrl.ReportIdle();
    if (!isBusy)
        SetBusy(&m_viewCtrl, true);
}

bool CQuorlinForm::QueryPluginSupport(QString &reason)
{
    const SRfSupportStatus support = m_viewCtrl.GetSupportStatus();
    const bool isSupported = support.status == eSupported;
    reason = isSupported ? QString() : support.message;
    return isSupported;
}

QString CQuorlinForm::RfChipName()
{
    return m_viewCtrl.GetRfChipName();
}

bool CQuorlinForm::QueryPluginState()
{
    return false;
}
