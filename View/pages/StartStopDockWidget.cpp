#include "View/pages/StartStopDockWidget.h"

#include <QLabel>
#include <QPushButton>

#include "Model/MemberPath.h"
#include "Model/StatusTable.h"
#include "Support/Log.h"
#include "View/engine/MemberEditors.h"
#include "View/settings/TxPowerLimit.h"

namespace {

// The widget's own flag, whatever its page's: a page is off as a whole while another is on top.
bool IsOn(const QWidget *widget)
{
    return widget->isEnabledTo(widget->parentWidget());
}

// A start with one of these failures has reached the target; what it did there is not known.
bool MayRun(int status)
{
    return status == eStatusVondFailed || status == eStatusTargetFailed;
}

}  // namespace

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

void CStartStopDockWidget::SetInputs(const QVector<QWidget *> &inputs)
{
    m_inputs = inputs;
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
    if (m_page.getDataModel)
        (ViewCtrl()->*m_page.getDataModel)();
    else
        ViewCtrl()->RequestDataModel(m_page.page);
}

void CStartStopDockWidget::DisableTestControls()
{
    m_isDisabledByHost = true;
    ShowControls();
}

void CStartStopDockWidget::EnableTestControls()
{
    m_isDisabledByHost = false;
    ShowControls();
}

// A start or a stop under way ends with its own answer. A stop that was asked for during a start
// stays due.
void CStartStopDockWidget::ShowTestStopped()
{
    if (m_underWay != EUnderWay::Nothing) {
        m_isRunning = false;
        return;
    }
    m_isStopAsked = false;
    if (m_isRunning)
        TakeStep(ETestStep::Stopped);
}

void CStartStopDockWidget::TakeStep(ETestStep step)
{
    switch (step) {
    case ETestStep::Starting:
    case ETestStep::Stopping:
        m_underWay = step == ETestStep::Starting ? EUnderWay::Start : EUnderWay::Stop;
        m_isStopAsked = false;
        break;
    case ETestStep::Started:
    case ETestStep::Stopped:
        m_isRunning = step == ETestStep::Started;
        m_mayStartAgain = false;
        m_underWay = EUnderWay::Nothing;
        break;
    case ETestStep::StartFailed:
    case ETestStep::StopFailed:
        m_underWay = EUnderWay::Nothing;
        break;
    }
    ShowControls();
}

void CStartStopDockWidget::ShowControls()
{
    const bool mayStart = !m_isRunning || m_mayStartAgain;
    m_start->setEnabled(IsFree() && mayStart && !m_isDisabledByHost);
    m_stop->setEnabled(IsFree() && m_isRunning);
    ShowInputs(m_underWay != EUnderWay::Start && !m_isRunning && !HoldsInputs());
}

void CStartStopDockWidget::LetStartAgain()
{
    m_mayStartAgain = true;
}

void CStartStopDockWidget::ShowInputs(bool areOn)
{
    if (areOn) {
        for (const auto &input : qAsConst(m_inputsOff))
            input.first->setEnabled(input.second);
        m_inputsOff.clear();
    } else if (m_inputsOff.isEmpty()) {
        for (QWidget *input : m_inputs.isEmpty() ? RequestEditors() : m_inputs)
            m_inputsOff.append({input, IsOn(input)});
        for (const auto &input : qAsConst(m_inputsOff))
            input.first->setEnabled(false);
    }
}

// Without the labels, which show what the DUT says and follow the editors.
QVector<QWidget *> CStartStopDockWidget::RequestEditors() const
{
    QVector<QWidget *> editors;
    for (QWidget *widget : Index().BoundWidgets()) {
        const QString name = widget->objectName();
        if (name.startsWith(kRequestName) && !IsCaptionName(name) &&
            !qobject_cast<QLabel *>(widget))
            editors.append(widget);
    }
    return editors;
}

void CStartStopDockWidget::PrepareStart(const QJsonObject &) {}

QJsonObject CStartStopDockWidget::DocumentOf(const std::string &text)
{
    return m_viewCtrl->DocumentOf(text);
}

// Editors that are off are of no matter: the test does not use them, or runs with them already.
bool CStartStopDockWidget::IsWithinTxLimit()
{
    const std::optional<double> limit = TxPowerLimit();
    if (!limit)
        return true;
    for (const SMemberEditor &editor :
         EditorsOf(m_dataModel, AbsoluteModelPath(QStringLiteral("request")), Index())) {
        const bool isPower = editor.key.endsWith(QLatin1String(".txPowerValue"));
        if (!isPower || !editor.editor->isEnabled() || !editor.editor->isVisibleTo(this))
            continue;
        const double power = PackagedText(editor.editor).toDouble();
        if (power <= *limit)
            continue;
        const QString text = QStringLiteral("TX power %1 dBm is above your limit of %2 dBm.")
                                 .arg(power, 0, 'f', 2)
                                 .arg(*limit, 0, 'f', 2);
        Warn(text, text);
        return false;
    }
    return true;
}

void CStartStopDockWidget::StartTest()
{
    qCDebug(lcForm) << "on_m_start_clicked";
    if (!HasAllChoices() || !IsWithinTxLimit() ||
        !BeginRequest([this] { TakeStep(ETestStep::Starting); }))
        return;
    const QJsonObject document = PackageDocument();
    PrepareStart(document);
    if (m_page.startDone)
        connect(ViewCtrl(), m_page.startDone, this, m_page.startSlot);
    else
        connect(ViewCtrl(), &CQuorlinViewCtrl::Signal_TestDone, this, m_page.startSlot);
    ViewCtrl()->RequestTest(m_page.page, document);
}

void CStartStopDockWidget::FinishStart(const char *slot, const SEachItemOperationResult &result)
{
    qCDebug(lcForm) << slot;
    if (m_page.startDone)
        disconnect(ViewCtrl(), m_page.startDone, this, nullptr);
    else
        disconnect(ViewCtrl(), &CQuorlinViewCtrl::Signal_TestDone, this, nullptr);
    const bool isSuccess = result.status == eStatusSuccess;
    if (!isSuccess && m_isStopAsked && MayRun(result.status))
        m_isRunning = true;
    const bool isHere =
        EndRequest([&] { TakeStep(isSuccess ? ETestStep::Started : ETestStep::StartFailed); });
    emit Signal_UpdateStatus(Text(isSuccess ? "start..." : "start failed..."));
    if (isHere)
        StopIfAsked();
    if (!isSuccess)
        ShowItemResult(Text("start failed"), result);
}

void CStartStopDockWidget::StopTest()
{
    if (!BeginRequest([this] { TakeStep(ETestStep::Stopping); }))
        return;
    connect(ViewCtrl(), &CQuorlinViewCtrl::Signal_TestStopDone, this, m_page.stopSlot);
    (ViewCtrl()->*m_page.stop)();
}

void CStartStopDockWidget::FinishStop(const char *slot, const SEachItemOperationResult &result)
{
    qCDebug(lcForm) << slot;
    disconnect(ViewCtrl(), &CQuorlinViewCtrl::Signal_TestStopDone, this, nullptr);
    const bool isSuccess = result.status == eStatusSuccess;
    EndRequest([&] { TakeStep(isSuccess ? ETestStep::Stopped : ETestStep::StopFailed); });
    emit Signal_UpdateStatus(Text(isSuccess ? "stop." : "stop failed."));
    if (!isSuccess)
        ShowItemResult(Text("stop failed"), result);
}

void CStartStopDockWidget::StopRunningTest()
{
    if (m_underWay == EUnderWay::Stop)
        return;
    m_isStopAsked = m_underWay == EUnderWay::Start || m_isRunning;
    StopIfAsked();
}

void CStartStopDockWidget::StopIfAsked()
{
    if (!m_isStopAsked || !IsFree())
        return;
    m_isStopAsked = false;
    if (m_isRunning)
        StopTest();
}

QString CStartStopDockWidget::Text(const char *outcome) const
{
    return QLatin1String(m_page.test) + QLatin1Char(' ') + QLatin1String(outcome);
}
