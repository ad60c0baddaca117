#include "View/QuorlinForm.h"

#include "Model/OperationResult.h"
#include "Support/Log.h"
#include "ui_QuorlinForm.h"

CQuorlinForm::CQuorlinForm(PageTypeRegistrar registerPageTypes)
    : m_ui(std::make_unique<Ui::CQuorlinForm>())
{
    m_ui->setupUi(this);
    delete takeCentralWidget();  // the window lives from dock widgets alone
    RegisterOperationResultTypes();
    registerPageTypes();
    connect(&m_viewCtrl, &CQuorlinViewCtrl::Signal_Idle, this,
            [this] { emit Signal_PluginIsBusy(false); });
}

CQuorlinForm::~CQuorlinForm() = default;

void CQuorlinForm::SetTargetHandle(uint32_t handle)
{
    CQuorlinViewCtrl::SetTargetHandle(handle);
}

void CQuorlinForm::showEvent(QShowEvent *)
{
    qCDebug(lcForm) << "CQuorlinForm::showEvent";
    emit Signal_PluginIsActivated(true);
    if (m_isInitStarted)
        return;
    setEnabled(false);
    Slot_UpdateStatusbar(QStringLiteral("Please to wait the init flow..."));
    qCDebug(lcForm) << "CQuorlinForm::showEvent start";
    connect(&m_viewCtrl, &CQuorlinViewCtrl::Signal_GetInitPageListDone, this,
            &CQuorlinForm::Slot_GetInitPageListDone, Qt::UniqueConnection);
    m_viewCtrl.GetInitPageList();
    m_isInitStarted = true;
}

void CQuorlinForm::hideEvent(QHideEvent *event)
{
    CAutoBindingDataModelForm::hideEvent(event);
    emit Signal_PluginIsActivated(false);
}

void CQuorlinForm::Slot_GetInitPageListDone(QStringList pageList)
{
    disconnect(&m_viewCtrl, &CQuorlinViewCtrl::Signal_GetInitPageListDone, this,
               &CQuorlinForm::Slot_GetInitPageListDone);
    InitPage(pageList);
}

void CQuorlinForm::Slot_UpdateStatusbar(QString str)
{
    statusBar()->showMessage(str, 0);
}

void CQuorlinForm::ResetPages()
{
    m_viewCtrl.ResetTargetCache();
    RemovePages();
    m_isInitStarted = false;
    // The pages that were busy can no longer say that they are done; the target's own end counts.
    if (m_busyPages > 0)
        m_viewCtrl.ReportIdle();
    m_busyPages = 0;
}

bool CQuorlinForm::QueryPluginSupport(QString &reason)
{
    const SRfSupportStatus support = m_viewCtrl.GetSupportStatus();
    const bool isSupported = support.status == eSupported;
    reason = isSupported ? QString() : support.message;
    return isSupported;
}

bool CQuorlinForm::QueryPluginState()
{
    return false;
}
