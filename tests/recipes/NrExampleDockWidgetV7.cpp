#include "tests/recipes/NrExampleDockWidgetV7.h"

#include "Model/ModelText.h"
#include "Model/StatusTable.h"
#include "ui_NrExampleDockWidgetV7.h"

CNrExampleDockWidgetV7::CNrExampleDockWidgetV7(QWidget *parent)
    : CAutoBindingDataModelDockWidget(parent), m_ui(std::make_unique<Ui::CNrExampleDockWidgetV7>()),
      m_viewCtrl(std::make_unique<CExampleViewCtrl>())
{
    m_ui->setupUi(this);
}

CNrExampleDockWidgetV7::~CNrExampleDockWidgetV7() = default;

QWidget *CNrExampleDockWidgetV7::GetRootWidget()
{
    return this;
}

int CNrExampleDockWidgetV7::GetModelInterface()
{
    return eInterfaceCmdIf;
}

void CNrExampleDockWidgetV7::RequestDataModel()
{
    connect(m_viewCtrl.get(), &CExampleViewCtrl::Signal_GetExampleDataModelDone, this,
            &CNrExampleDockWidgetV7::Slot_GetDataModelDone);
    m_viewCtrl->GetExampleDataModel();
}

void CNrExampleDockWidgetV7::DisableTestControls()
{
    m_ui->m_start->setEnabled(false);
}

void CNrExampleDockWidgetV7::EnableTestControls()
{
    m_ui->m_start->setEnabled(true);
}

void CNrExampleDockWidgetV7::on_m_start_clicked()
{
    if (!BeginRequest([this] { DisableTestControls(); }))
        return;
    const std::string document = PackageMemberValue();
    connect(m_viewCtrl.get(), &CExampleViewCtrl::Signal_ExampleTestDone, this,
            &CNrExampleDockWidgetV7::Slot_ExampleTestDone);
    m_viewCtrl->ExampleTest(document);
}

void CNrExampleDockWidgetV7::Slot_ExampleTestDone(SEachItemOperationResult result,
                                                  std::string response)
{
    disconnect(m_viewCtrl.get(), &CExampleViewCtrl::Signal_ExampleTestDone, this, nullptr);
    EndRequest([this] { EnableTestControls(); });
    if (result.status == eStatusSuccess) {
        UpdateWidget(ModelFromText(response));
        emit Signal_UpdateStatus(QStringLiteral("Example done."));
        return;
    }
    emit Signal_UpdateStatus(QStringLiteral("Example failed."));
    ShowItemResult(QStringLiteral("Example failed"), result);
}

void CNrExampleDockWidgetV7::Slot_TriggerStopTest() {}
