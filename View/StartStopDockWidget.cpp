#include "View/StartStopDockWidget.h"

#include <QPushButton>

#include "Model/StatusTable.h"
#include "Support/Log.h"

CStartStopDockWidget::CStartStopDockWidget(const SStartStopPage &page, QWidget *parent)
    : CAutoBindingDataModelDockWidget(parent), m_page(page),
      m_viewCtrl(std::make_unique<CQuorlinViewCtrl>())
{
}

void CStartStopDockWidget::SetTestButtons(QPushButton *start, QPushButton *stop)
{
    m_start = start;
    m_stop = stop;
    m_stop->setEnabled(false);
}

QWidget *CStartStopDockWidget::GetRootWidget()
{
    return this;
}

int CStartStopDockWidget::GetModelInterface()
{
    return eInterfaceCmdIf;
}

void CStartStopDockWidget::RequestDataModel()
{
    connect(ViewCtrl(), m_page.dataModelDone, this, &CStartStopDockWidget::Slot_GetDataModelDone);
    (ViewCtrl()->*m_page.getDataModel)();
}

void CStartStopDockWidget::DisableTestControls()
{
    m_start->setEnabled(false);
}

void CStartStopDockWidget::EnableTestControls()
{
    if (!m_stop->isEnabledTo(this))
        m_start->setEnabled(true);
}

void CStartStopDockWidget::ShowTestStopped()
{
    m_stop->setEnabled(false);
    ShowStep(ETestStep::Stopped);
}

void CStartStopDockWidget::ShowStep(ETestStep step)
{
    switch (step) {
    case ETestStep::Starting:
        m_start->setEnabled(false);
        m_stop->setEnabled(false);
        break;
    case ETestStep::Stopping:
        m_stop->setEnabled(false);
        break;
    case ETestStep::Started:
    case ETestStep::StopFailed:
        m_stop->setEnabled(true);
        break;
    case ETestStep::StartFailed:
    case ETestStep::Stopped:
        m_start->setEnabled(true);
        break;
    }
}

void CStartStopDockWidget::StartTest()
{
    qCDebug(lcForm) << "on_m_start_clicked";
    ShowStep(ETestStep::Starting);
    if (!BeginBusy())
        return;
    const std::string document = PackageMemberValue();
    connect(ViewCtrl(), m_page.startDone, this, m_page.startSlot);
    (ViewCtrl()->*m_page.start)(document);
}

void CStartStopDockWidget::FinishStart(const char *slot, const SEachItemOperationResult &result)
{
    qCDebug(lcForm) << slot;
    disconnect(ViewCtrl(), m_page.startDone, this, nullptr);
    emit Signal_PluginIsBusy(false);
    if (result.status == eStatusSuccess) {
        ShowStep(ETestStep::Started);
        emit Signal_UpdateStatus(Words("start..."));
        return;
    }
    ShowStep(ETestStep::StartFailed);
    emit Signal_UpdateStatus(Words("start failed..."));
    ShowItemResult(Words("start failed"), result);
}

void CStartStopDockWidget::StopTest()
{
    ShowStep(ETestStep::Stopping);
    if (!BeginBusy())
        return;
    connect(ViewCtrl(), &CQuorlinViewCtrl::Signal_TestStopDone, this, m_page.stopSlot);
    (ViewCtrl()->*m_page.stop)();
}

void CStartStopDockWidget::FinishStop(const char *slot, const SEachItemOperationResult &result)
{
    qCDebug(lcForm) << slot;
    disconnect(ViewCtrl(), &CQuorlinViewCtrl::Signal_TestStopDone, this, nullptr);
    emit Signal_PluginIsBusy(false);
    if (result.status == eStatusSuccess) {
        ShowStep(ETestStep::Stopped);
        emit Signal_UpdateStatus(Words("stop."));
        return;
    }
    ShowStep(ETestStep::StopFailed);
    emit Signal_UpdateStatus(Words("stop failed."));
    ShowItemResult(Words("stop failed"), result);
}

void CStartStopDockWidget::StopRunningTest()
{
    // The button's own state: the page is disabled as a whole while another one is in front.
    if (m_stop->isEnabledTo(this))
        StopTest();
}

QString CStartStopDockWidget::Words(const char *outcome) const
{
    return QLatin1String(m_page.test) + QLatin1Char(' ') + QLatin1String(outcome);
}
