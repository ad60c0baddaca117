#include "Host/ToolWindow.h"

#include <algorithm>

#include <QAbstractButton>
#include <QApplication>
#include <QDockWidget>
#include <QImageWriter>
#include <QPixmap>
#include <QStatusBar>

namespace {

constexpr char kToolWindowName[] = "CQuorlinForm";

}  // namespace

QMainWindow *FindToolWindow()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->objectName() == QLatin1String(kToolWindowName))
            return qobject_cast<QMainWindow *>(window);
    }
    return nullptr;
}

// The page as a whole is disabled while another one is in front.
bool IsTestRunning()
{
    const QMainWindow *window = FindToolWindow();
    const auto pages = window ? window->findChildren<QDockWidget *>() : QList<QDockWidget *>();
    return std::any_of(pages.begin(), pages.end(), [](const QDockWidget *page) {
        const auto *stop = page->findChild<QAbstractButton *>(QLatin1String(kStopButton));
        return stop && stop->isEnabledTo(page);
    });
}

void TellInTool(const QString &text)
{
    const QMainWindow *window = FindToolWindow();
    if (auto *bar = window ? window->findChild<QStatusBar *>() : nullptr)
        bar->showMessage(text);
}

bool CToolWindow::Attach()
{
    m_window = FindToolWindow();
    QStatusBar *bar = m_window ? m_window->findChild<QStatusBar *>() : nullptr;
    if (!bar)
        return false;
    // Queued: a listener may click the next button, after the code that set the line has returned.
    connect(bar, &QStatusBar::messageChanged, this, &CToolWindow::Signal_Status,
            Qt::QueuedConnection);
    return true;
}

QDockWidget *CToolWindow::FindPage(const QString &pageTitle) const
{
    if (!m_window)
        return nullptr;
    const QList<QDockWidget *> pages = m_window->findChildren<QDockWidget *>();
    for (QDockWidget *page : pages) {
        if (page->windowTitle() == pageTitle)
            return page;
    }
    return nullptr;
}

QAbstractButton *CToolWindow::PageButton(const QString &pageTitle, const QString &buttonName) const
{
    const QDockWidget *page = FindPage(pageTitle);
    return page ? page->findChild<QAbstractButton *>(buttonName) : nullptr;
}

bool CToolWindow::RaisePage(const QString &pageTitle) const
{
    QDockWidget *page = FindPage(pageTitle);
    if (page)
        page->raise();
    return page != nullptr;
}

bool CToolWindow::SaveScreenshot(const QString &file, QString &error) const
{
    if (!m_window) {
        error = "Can't save a picture: the tool has no window.";
        return false;
    }
    QImageWriter writer(file, "png");
    if (!writer.write(m_window->grab().toImage())) {
        error = QString("Can't save a picture as %1: %2").arg(file, writer.errorString());
        return false;
    }
    return true;
}
