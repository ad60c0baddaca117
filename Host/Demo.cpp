#include "Host/Demo.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>

#include "Host/BenchHost.h"
#include "Host/PlainText.h"
#include "Host/PluginHandle.h"
#include "Host/ToolWindow.h"

namespace {

constexpr char kPage[] = "Continuous RX";
constexpr char kStartButton[] = "m_start";
constexpr int kTargetOperations = 2;  // a start and a stop

}  // namespace

const CDemo::SStage CDemo::kStages[] = {
    {"the pages of the tool", kPagesReady, kNoPages, &CDemo::PressStart},
    {"the start of continuous RX", "Cont Rx start...", "Cont Rx start failed...",
     &CDemo::PressStop},
    {"the stop of continuous RX", "Cont Rx stop.", "Cont Rx stop failed.", &CDemo::Conclude},
};

CDemo::CDemo(CBenchHost &host, CPluginHandle &plugin, QString screenshotFile)
    : m_host(host), m_plugin(plugin), m_screenshotFile(std::move(screenshotFile)), m_stage(kStages)
{
    m_deadline.setSingleShot(true);
    connect(&m_deadline, &QTimer::timeout, this, &CDemo::OnDeadline);
    connect(&m_tool, &CToolWindow::Signal_Status, this, &CDemo::OnStatus);
    connect(&m_plugin, &CPluginHandle::Signal_Busy, this,
            [this](const QString &, bool isBusy) { OnBusy(isBusy); });
}

CDemo::~CDemo() = default;

void CDemo::Start(std::chrono::milliseconds deadline)
{
    qApp->installEventFilter(this);
    m_deadline.start(deadline);
    QMetaObject::invokeMethod(this, &CDemo::QueryAndShow, Qt::QueuedConnection);
}

void CDemo::QueryAndShow()
{
    emit Signal_Said("Asking the plug-in whether the tool can run on the DUT.");
    const SPluginToolLaunchRequirement answer = m_host.Query();
    if (!answer.isSupport)
        return End("The tool can't run on this DUT: " + answer.unsupportReason);
    emit Signal_Said("The tool can run on the DUT. Showing it.");
    if (!m_tool.Attach())
        return End("The plug-in has no tool window with a status bar.");
    m_host.ShowTool();
    if (!m_plugin.IsActivated())
        return End("The plug-in doesn't report its window as activated.");
}

void CDemo::OnStatus(const QString &text)
{
    if (m_isEnded || text.isEmpty())
        return;
    emit Signal_Said(QString("The tool says \"%1\"").arg(text));
    if (text == QLatin1String(m_stage->badStatus)) {
        // Queued behind the report of a box that came with this line, since the box tells more.
        const QString failure = QString("No success with %1.").arg(m_stage->what);
        QMetaObject::invokeMethod(
            this, [this, failure] { End(failure); }, Qt::QueuedConnection);
        return;
    }
    if (text != QLatin1String(m_stage->goodStatus))
        return;
    const SStage &done = *m_stage++;
    (this->*done.next)();
}

void CDemo::PressStart()
{
    if (!m_tool.RaisePage(kPage))
        return End(QString("The tool has no page \"%1\".").arg(kPage));
    PressWhenOn(kStartButton);
}

void CDemo::PressStop()
{
    PressWhenOn(kStopButton);
}

void CDemo::PressWhenOn(const QString &buttonName)
{
    m_button = m_tool.PageButton(kPage, buttonName);
    if (!m_button)
        return End(QString("The page \"%1\" has no button %2.").arg(kPage, buttonName));
    PressIfOn();
}

void CDemo::PressIfOn()
{
    if (m_isEnded || !m_button || !m_button->isVisible() || !m_button->isEnabled())
        return;
    QAbstractButton *button = m_button;
    m_button.clear();
    emit Signal_Said(
        QString("Pressing %1 on the page \"%2\".").arg(button->text().remove('&'), kPage));
    button->click();
}

void CDemo::OnBusy(bool isBusy)
{
    m_busyCount += isBusy ? 1 : 0;
    emit Signal_Said(isBusy ? "The plug-in reports that it works on the target."
                            : "The plug-in reports that the target is idle.");
}

void CDemo::Conclude()
{
    if (m_busyCount != kTargetOperations || m_plugin.IsBusy())
        return End(QString("The plug-in announced %1 target operations instead of %2, and is %3 at "
                           "the end.")
                       .arg(m_busyCount)
                       .arg(kTargetOperations)
                       .arg(m_plugin.IsBusy() ? "busy" : "idle"));
    if (!m_screenshotFile.isEmpty()) {
        QString error;
        if (!m_tool.SaveScreenshot(m_screenshotFile, error))
            return End(error);
        emit Signal_Said("Saved a picture of the tool as " + m_screenshotFile + ".");
    }
    End({});
}

bool CDemo::eventFilter(QObject *watched, QEvent *event)
{
    const bool isShow = event->type() == QEvent::Show;
    if (isShow) {
        if (auto *box = qobject_cast<QMessageBox *>(watched))
            ReportBox(box);
    }
    // Queued: the page is still inside the code that led here.
    if (watched == m_button && (isShow || event->type() == QEvent::EnabledChange))
        QMetaObject::invokeMethod(this, &CDemo::PressIfOn, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}

void CDemo::ReportBox(QMessageBox *box)
{
    QStringList texts;
    for (const QString &text : {box->text(), box->informativeText(), box->detailedText()}) {
        if (!text.isEmpty())
            texts << PlainText(text);
    }
    const QString failure =
        QString("The tool opened the box \"%1\": %2").arg(box->windowTitle(), texts.join(" / "));
    QMetaObject::invokeMethod(
        this, [this, failure] { End(failure); }, Qt::QueuedConnection);
    // A box that stays open would keep the program from ending.
    QMetaObject::invokeMethod(box, &QDialog::reject, Qt::QueuedConnection);
}

void CDemo::OnDeadline()
{
    End(QString("Gave up after %1 s of waiting for %2.")
            .arg(m_deadline.interval() / 1000.0)
            .arg(m_stage->what));
}

void CDemo::End(const QString &failure)
{
    if (m_isEnded)
        return;
    m_isEnded = true;
    m_deadline.stop();
    emit Signal_Ended(failure);
}
