#include "Host/ToolWindow.h"

#include <algorithm>

#include <QAbstractButton>
#include <QApplication>
#include <QDockWidget>
#include <QLabel>
#include <QPixmap>
#include <QStatusBar>

#include "Host/Picture.h"

namespace {

constexpr char kToolWindowName[] = "CQuorlinForm";
constexpr char kTestLamp[] = "m_testLamp";  // a dot and the words
constexpr char kLampDot[] = "\u25CF ";

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

SToolTest TestInTool()
{
    const QMainWindow *window = FindToolWindow();
    const auto *lamp = window ? window->findChild<QLabel *>(QLatin1String(kTestLamp)) : nullptr;
    if (!lamp || lamp->isHidden())
        return {};
    QString text = lamp->text();
    if (const QString dot = QString::fromUtf8(kLampDot); text.startsWith(dot))
        text.remove(0, dot.size());
    return {text, lamp->palette().color(QPalette::WindowText)};
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
    return SavePicture(m_window->grab().toImage(), file, error);
}
