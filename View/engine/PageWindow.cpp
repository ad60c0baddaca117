#include "View/engine/PageWindow.h"

#include <QEvent>
#include <QMainWindow>

#include "Support/Settings.h"

namespace {

// The window that the page is docked in, also while it floats.
QMainWindow *ToolWindow(QWidget *page)
{
    for (QWidget *widget = page; widget; widget = widget->parentWidget()) {
        if (auto *window = qobject_cast<QMainWindow *>(widget))
            return window;
    }
    return nullptr;
}

}  // namespace

CPageWindow::CPageWindow(QWidget *page, const QString &placeKey)
    : QWidget(page, Qt::Window), m_placeKey(placeKey)
{
    if (QMainWindow *tool = ToolWindow(page))
        tool->installEventFilter(this);
    setEnabled(true);
}

CPageWindow::~CPageWindow()
{
    if (isVisible())
        KeepPlace();
}

void CPageWindow::BringUp()
{
    show();
    raise();
    activateWindow();
}

void CPageWindow::RestorePlace()
{
    restoreGeometry(CSettings::Get().Value(m_placeKey).toByteArray());
}

void CPageWindow::KeepPlace()
{
    CSettings::Get().SetValue(m_placeKey, saveGeometry());
}

// A page turns all that it owns off with itself.
void CPageWindow::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        setEnabled(true);
}

void CPageWindow::hideEvent(QHideEvent *event)
{
    KeepPlace();
    QWidget::hideEvent(event);
}

bool CPageWindow::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::Hide && !event->spontaneous()) {
        m_comesBack = isVisible();
        hide();
    } else if (event->type() == QEvent::Show && !event->spontaneous() && m_comesBack) {
        m_comesBack = false;
        show();
    }
    return QWidget::eventFilter(object, event);
}
