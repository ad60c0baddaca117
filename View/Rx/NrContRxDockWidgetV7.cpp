#include "View/Rx/NrContRxDockWidgetV7.h"

#include "Model/StatusTable.h"
#include "Support/Log.h"
#include "ui_NrContRxDockWidgetV7.h"

CNrContRxDockWidgetV7::CNrContRxDockWidgetV7(QWidget *parent)
    : CAutoBindingDataModelDockWidget(parent), m_ui(std::make_unique<Ui::CNrContRxDockWidgetV7>()),
      m_viewCtrl(std::make_unique<CQuorlinViewCtrl>())
{
    m_ui->setupUi(this);
    m_ui->m_stop->setEnabled(false);
}

CNrContRxDockWidgetV7::~CNrContRxDockWidgetV7() = default;

QWidget *CNrContRxDockWidgetV7::GetRootWidget()
{
    return this;
}

int CNrContRxDockWidgetV7::GetModelInterface()
{
    return eInterfaceCmdIf;
}

void CNrContRxDockWidgetV7::RequestDataModel()
{
    connect(m_viewCtrl.get(), &CQuorlinViewCtrl::Signal_GetContRxDataModelDone, this,
            &CNrContRxDockWidgetV7::Slot_GetDataModelDone);
    m_viewCtrl->GetContRxDataModel();
}

void CNrContRxDockWidgetV7::DisableTestControls()
{
    m_ui->m_start->setEnabled(false);
    m_ui->m_stop->setEnabled(false);
}

void CNrContRxDockWidgetV7::EnableTestControls()
{
    m_ui->m_start->setEnabled(true);
    m_ui->m_stop->setEnabled(false);
}

void CNrContRxDockWidgetV7::on_m_start_clicked()
{
    qCDebug(lcForm) << "on_m_start_clicked";
    DisableTestControls();
    emit Signal_PluginIsBusy(true);
    const std::string document = PackageMemberValue();
    connect(m_viewCtrl.get(), &CQuorlinViewCtrl::Signal_ContRxTestDone, this,
            &CNrContRxDockWidgetV7::Slot_ContRxTestDone);
    m_viewCtrl->ContRxTest(document);
}

void CNrContRxDockWidgetV7::Slot_ContRxTestDone(SEachItemOperationResult result)
{
    qCDebug(lcForm) << "Slot_ContRxTestDone";
    disconnect(m_viewCtrl.get(), &CQuorlinViewCtrl::Signal_ContRxTestDone, this, nullptr);
    emit Signal_PluginIsBusy(false);
    if (result.status == eStatusSuccess) {
        m_ui->m_stop->setEnabled(true);
        emit Signal_UpdateStatus(QStringLiteral("Cont Rx start..."));
        return;
    }
    m_ui->m_start->setEnabled(true);
    emit Signal_UpdateStatus(QStringLiteral("Cont Rx start failed..."));
    ShowItemResult(QStringLiteral("Cont Rx start failed"), result);
}

void CNrContRxDockWidgetV7::on_m_stop_clicked()
{
    m_ui->m_stop->setEnabled(false);
    emit Signal_PluginIsBusy(true);
    connect(m_viewCtrl.get(), &CQuorlinViewCtrl::Signal_TestStopDone, this,
            &CNrContRxDockWidgetV7::Slot_ContRxTestStopDone);
    m_viewCtrl->MultiRatTestStop();
}

void CNrContRxDockWidgetV7::Slot_ContRxTestStopDone(SEachItemOperationResult result)
{
    qCDebug(lcForm) << "Slot_ContRxTestStopDone";
    disconnect(m_viewCtrl.get(), &CQuorlinViewCtrl::Signal_TestStopDone, this, nullptr);
    emit Signal_PluginIsBusy(false);
    if (result.status == eStatusSuccess) {
        m_ui->m_start->setEnabled(true);
        emit Signal_UpdateStatus(QStringLiteral("Cont Rx stop."));
        return;
    }
    m_ui->m_stop->setEnabled(true);
    emit Signal_UpdateStatus(QStringLiteral("Cont Rx stop failed."));
    ShowItemResult(QStringLiteral("Cont Rx stop failed"), result);
}

void CNrContRxDockWidgetV7::Slot_TriggerStopTest()
{
    if (m_ui->m_stop->isEnabled())
        on_m_stop_clicked();
}
