// The beginning and the end of a page's requests, and what becomes of the focus meanwhile.
#include <QEvent>

#include "View/AutoBindingDataModelDockWidget.h"
#include "View/TabOrder.h"

// The check of what was typed may open a box, in which the page may be destroyed.
bool CAutoBindingDataModelDockWidget::BeginQuietRequest(const std::function<void()> &turnOff)
{
    const QPointer<CAutoBindingDataModelDockWidget> self(this);
    FinishEdit();
    if (!self)
        return false;
    QWidget *focus = FocusWidget();
    if (focus || m_requests == 0)
        m_focus = focus;
    m_hasAsked = true;
    ++m_requests;
    turnOff();
    m_progress.Await();
    return true;
}

void CAutoBindingDataModelDockWidget::EndQuietRequest(const std::function<void()> &turnOn)
{
    turnOn();
    GiveFocusBack();
    if (m_requests > 0 && --m_requests == 0)
        m_progress.End();
}

bool CAutoBindingDataModelDockWidget::BeginRequest(const std::function<void()> &turnOff)
{
    return BeginQuietRequest(turnOff) && BeginBusy();
}

bool CAutoBindingDataModelDockWidget::EndRequest(const std::function<void()> &turnOn)
{
    EndQuietRequest(turnOn);
    return EndBusy();
}

bool CAutoBindingDataModelDockWidget::BeginBusy()
{
    return SayBusy(true);
}

bool CAutoBindingDataModelDockWidget::EndBusy()
{
    return SayBusy(false);
}

bool CAutoBindingDataModelDockWidget::SayBusy(bool isBusy)
{
    const QPointer<CAutoBindingDataModelDockWidget> self(this);
    const QWidget *const window = parentWidget();
    emit Signal_PluginIsBusy(isBusy);
    return self && parentWidget() == window;
}

// What has the focus in the page's window, if it is the page's own.
QWidget *CAutoBindingDataModelDockWidget::FocusWidget() const
{
    QWidget *focus = window()->focusWidget();
    return isAncestorOf(focus) ? focus : nullptr;
}

// Only from nothing: the user may have gone elsewhere meanwhile. What is still off, as the inputs
// of a running test are, does not get it.
void CAutoBindingDataModelDockWidget::GiveFocusBack()
{
    if (m_focus && m_focus->isEnabled() && m_focus->isVisible() && !window()->focusWidget())
        m_focus->setFocus(Qt::OtherFocusReason);
}

// Qt gives the focus to the first control of a window that becomes active, as behind a box, when
// nothing has it. The page itself takes no keys.
void CAutoBindingDataModelDockWidget::KeepFocusFromWandering()
{
    if (m_hasAsked && isEnabled() && !window()->focusWidget())
        setFocus(Qt::OtherFocusReason);
}

bool CAutoBindingDataModelDockWidget::focusNextPrevChild(bool next)
{
    const QWidget *focus = FocusWidget();
    if (focus && !focus->isEnabled())
        return false;
    return MoveFocus(window(), next);
}
