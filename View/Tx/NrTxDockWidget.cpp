#include "View/Tx/NrTxDockWidget.h"

#include <QPushButton>

#include "Support/Log.h"

namespace {

// Nothing for the user to read in a box.
bool IsModelGood(const QJsonObject &response)
{
    const QJsonObject integrity = response.value(QLatin1String("modelIntegrity")).toObject();
    return integrity.value(QLatin1String("integrity")).toBool(true) &&
           !response.contains(QLatin1String("emptyModel"));
}

}  // namespace

CNrTxDockWidget::CNrTxDockWidget(const SStartStopPage &page, const STxReading &reading,
                                 QWidget *parent)
    : CStartStopDockWidget(page, parent), m_reading(reading)
{
}

void CNrTxDockWidget::SetReadingButton(QPushButton *button, QWidget *result)
{
    m_button = button;
    m_mark = std::make_unique<CResultMark>(this, QList<QWidget *>{result});
    connect(this, &CAutoBindingDataModelDockWidget::Signal_InitDone, m_mark.get(),
            [this] { m_mark->Watch(); });
}

void CNrTxDockWidget::KeepReadings(const SResultExport &what)
{
    m_results = new CResultExport(what, this, ViewCtrl());
}

void CNrTxDockWidget::DisableTestControls()
{
    CStartStopDockWidget::DisableTestControls();
    m_button->setEnabled(false);
}

void CNrTxDockWidget::EnableTestControls()
{
    CStartStopDockWidget::EnableTestControls();
    m_button->setEnabled(!m_isReading);
}

void CNrTxDockWidget::TakeStep(ETestStep step)
{
    CStartStopDockWidget::TakeStep(step);
    if (!m_reading.restsDuringTest)
        return;
    if (step == ETestStep::Starting)
        m_button->setEnabled(false);
    else if (step == ETestStep::StartFailed || step == ETestStep::Stopped)
        m_button->setEnabled(true);
}

void CNrTxDockWidget::StartReading()
{
    if (m_reading.needsChoices && !HasAllChoices())
        return;
    emit Signal_UpdateStatus(QLatin1String(m_reading.startStatus));
    const auto turnOff = [this] {
        m_isReading = true;
        m_button->setEnabled(false);
        ShowControls();
    };
    if (!BeginRequest(turnOff))
        return;
    connect(ViewCtrl(), m_reading.done, this, m_reading.slot);
    const QJsonObject document = PackageDocument();
    m_mark->Package();
    (ViewCtrl()->*m_reading.request)(PageId(), document);
}

// An answer that comes again must not end the busy state of something else, nor open another box.
void CNrTxDockWidget::FinishReading(const std::string &resultModel)
{
    const bool isFirst = m_isReading;
    if (!m_reading.staysConnected)
        disconnect(ViewCtrl(), m_reading.done, this, nullptr);
    bool isHere = false;
    if (isFirst) {
        isHere = EndRequest([this] {
            m_isReading = false;
            m_button->setEnabled(true);
            if (m_reading.takesTestButtons)
                LetStartAgain();
            ShowControls();
        });
    }
    emit Signal_UpdateStatus(QLatin1String(m_reading.doneStatus));
    if (isHere)
        StopIfAsked();
    const QJsonObject response = DocumentOf(resultModel);
    if (response.isEmpty()) {
        qCCritical(lcForm) << windowTitle() << "the answer of a reading is no document";
        return;
    }
    if (!isFirst && !IsModelGood(response))
        return;
    if (m_results && isFirst)
        m_results->Take(response);
    const QPointer<CNrTxDockWidget> self(this);
    UpdateWidget(response);
    if (!self)
        return;
    m_mark->Measured();
    OnReading(response);
}
