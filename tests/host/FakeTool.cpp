#include "FakeTool.h"

#include <QCoreApplication>
#include <QDockWidget>
#include <QLoggingCategory>
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>
#include <QTimer>
#include <QVBoxLayout>

namespace {

Q_LOGGING_CATEGORY(lcFake, "quorlin.fake", QtDebugMsg)

bool IsMode(const char *mode)
{
    return qgetenv("FAKE_TOOL") == mode;
}

}  // namespace

CFakeToolWindow::CFakeToolWindow()
{
    setObjectName("CQuorlinForm");
    setWindowTitle("Fake tool");
    statusBar();
}

void CFakeToolWindow::DropPages()
{
    qDeleteAll(findChildren<QDockWidget *>());
    m_start = m_stop = nullptr;
}

void CFakeToolWindow::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    emit Signal_Activated(true);
    if (m_start)
        return;
    if (!IsMode("no-page"))
        MakePage();
    if (!IsMode("never-ready"))
        QTimer::singleShot(0, this, [this] { statusBar()->showMessage("Init done."); });
}

void CFakeToolWindow::hideEvent(QHideEvent *event)
{
    QMainWindow::hideEvent(event);
    emit Signal_Activated(false);
}

// Start is off at first and goes on later, as on a page that has just been brought to the front.
void CFakeToolWindow::MakePage()
{
    auto *dock = new QDockWidget("Continuous RX", this);
    auto *content = new QWidget(dock);
    auto *layout = new QVBoxLayout(content);
    m_start = new QPushButton("&Start", content);
    m_start->setObjectName("m_start");
    m_start->setEnabled(false);
    m_stop = new QPushButton("S&top", content);
    m_stop->setObjectName("m_stop");
    m_stop->setEnabled(false);
    layout->addWidget(m_start);
    layout->addWidget(m_stop);
    dock->setWidget(content);
    addDockWidget(Qt::TopDockWidgetArea, dock);
    connect(m_start, &QPushButton::clicked, this, &CFakeToolWindow::Start);
    connect(m_stop, &QPushButton::clicked, this, &CFakeToolWindow::Stop);
    QTimer::singleShot(20, m_start, [start = m_start] { start->setEnabled(true); });
}

void CFakeToolWindow::SetBusy(bool isBusy)
{
    if (!IsMode("quiet"))
        emit Signal_Busy(isBusy);
}

void CFakeToolWindow::Start()
{
    m_start->setEnabled(false);
    SetBusy(true);
    QTimer::singleShot(0, this, [this] {
        SetBusy(false);
        if (IsMode("start-fails")) {
            m_start->setEnabled(true);
            statusBar()->showMessage("Cont Rx start failed...");
            QMessageBox box(QMessageBox::Critical, "Cont Rx start failed",
                            "<p>The <b>text</b></p>");
            box.setInformativeText("The informative text");
            box.setDetailedText("The detail");
            box.exec();
            return;
        }
        m_stop->setEnabled(!IsMode("stop-off"));
        statusBar()->showMessage("Cont Rx start...");
    });
}

void CFakeToolWindow::Stop()
{
    m_stop->setEnabled(false);
    SetBusy(true);
    QTimer::singleShot(0, this, [this] {
        SetBusy(false);
        m_start->setEnabled(true);
        statusBar()->showMessage("Cont Rx stop.");
    });
}

CFakeTool::CFakeTool()
{
    connect(&m_window, &CFakeToolWindow::Signal_Activated, this,
            &CFakeTool::Slot_PluginIsActivated);
    connect(&m_window, &CFakeToolWindow::Signal_Busy, this, &CFakeTool::Slot_PluginIsBusy);
}

void CFakeTool::ResetPlugin()
{
    m_requests << "reset";
    m_window.DropPages();
}

void CFakeTool::ShowPlugin()
{
    m_requests << "show";
    m_window.show();
}

void CFakeTool::HidePlugin()
{
    m_requests << "hide";
    m_window.hide();
}

SPluginToolLaunchRequirement CFakeTool::QueryLaunchRequirement()
{
    m_requests << "query";
    qCDebug(lcFake) << "a debug line of the fake tool";
    SPluginToolLaunchRequirement requirement;
    requirement.isNeedDb = true;
    requirement.launchNote = QString("handle %1, profile %2")
                                 .arg(qApp->property("vondTargetHandle").toUInt())
                                 .arg(qEnvironmentVariable("VOND_SIM_PROFILE", "unset"));
    if (IsMode("unsupported"))
        requirement.unsupportReason = qEnvironmentVariable("FAKE_TOOL_REASON", "It is a fake DUT.");
    if (IsMode("unsupported-with-note"))
        requirement.unsupportReason = requirement.launchNote;
    requirement.isSupport = requirement.unsupportReason.isEmpty();
    return requirement;
}

void CFakeTool::DisablePages()
{
    m_requests << "disable";
}

void CFakeTool::EnablePages()
{
    m_requests << "enable";
}

void CFakeTool::Slot_PluginIsActivated(bool isActivated)
{
    emit Signal_PluginIsActivated(GetPluginName(), isActivated);
}

void CFakeTool::Slot_PluginIsBusy(bool isBusy)
{
    emit Signal_PluginIsBusy(GetPluginName(), isBusy);
}

QStringList CFakeTool::TakeRequests()
{
    QStringList requests;
    requests.swap(m_requests);
    return requests;
}
