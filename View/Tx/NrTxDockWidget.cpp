#include "View/Tx/NrTxDockWidget.h"

#include <QPushButton>

#include "Model/ModelText.h"
#include "Support/Log.h"

CNrTxDockWidget::CNrTxDockWidget(const SStartStopPage &page, const STxReading &reading,
                                 QWidget *parent)
    : CStartStopDockWidget(page, parent), m_reading(reading)
{
}

void CNrTxDockWidget::SetReadingButton(QPushButton *button)
{
    m_button = button;
}

void CNrTxDockWidget::DisableTestControls()
{
    CStartStopDockWidget::DisableTestControls();
    m_button->setEnabled(false);
}

void CNrTxDockWidget::EnableTestControls()
{
    CStartStopDockWidget::EnableTestControls();
    m_button->setEnabled(true);
}

void CNrTxDockWidget::ShowStep(ETestStep step)
{
    CStartStopDockWidget::ShowStep(step);
    if (!m_reading.restsDuringTest)
        return;
    if (step == ETestStep::Starting)
        m_button->setEnabled(false);
    else if (step == ETestStep::StartFailed || step == ETestStep::Stopped)
        m_button->setEnabled(true);
}

void CNrTxDockWidget::StartReading()
{
    emit Signal_UpdateStatus(QLatin1String(m_reading.startStatus));
    if (m_reading.takesTestButtons) {
        StartButton()->setEnabled(false);
        StopButton()->setEnabled(false);
    }
    m_button->setEnabled(false);
    m_isReading = true;
    if (!BeginBusy())
        return;
    connect(ViewCtrl(), m_reading.done, this, m_reading.slot);
    (ViewCtrl()->*m_reading.request)(PackageMemberValue());
}

void CNrTxDockWidget::FinishReading(const std::string &resultModel)
{
    if (!m_reading.staysConnected)
        disconnect(ViewCtrl(), m_reading.done, this, nullptr);
    if (m_reading.takesTestButtons)
        StartButton()->setEnabled(true);
    m_button->setEnabled(true);
    // An answer that comes again must not end the busy state of something else.
    if (m_isReading) {
        m_isReading = false;
        emit Signal_PluginIsBusy(false);
    }
    emit Signal_UpdateStatus(QLatin1String(m_reading.doneStatus));
    const QJsonObject response = ModelFromText(resultModel);
    if (response.isEmpty()) {
        qCCritical(lcForm) << windowTitle() << "the answer of a reading is no document";
        return;
    }
    UpdateWidget(response);
}
