#include "View/editors/WheelGuard.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>
#include <QTabBar>

#include "View/editors/UnsignedSpinBox.h"

namespace {

constexpr char kIsReleased[] = "takesWheelWithoutFocus";

bool IsGuarded(const QWidget *widget)
{
    return qobject_cast<const QAbstractSpinBox *>(widget) ||
           qobject_cast<const QComboBox *>(widget) || qobject_cast<const QTabBar *>(widget) ||
           qobject_cast<const CUnsignedSpinBox *>(widget);
}

}  // namespace

void CWheelGuard::Guard(QWidget *widget)
{
    if (!IsGuarded(widget))
        return;
    if (widget->focusPolicy() == Qt::WheelFocus)
        widget->setFocusPolicy(Qt::StrongFocus);
    widget->installEventFilter(this);
}

void CWheelGuard::GuardAll(const QList<QWidget *> &widgets)
{
    for (QWidget *widget : widgets)
        Guard(widget);
}

void CWheelGuard::Release(QWidget *widget)
{
    widget->setProperty(kIsReleased, true);
}

bool CWheelGuard::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() != QEvent::Wheel)
        return false;
    const auto *widget = qobject_cast<QWidget *>(object);
    if (!widget || widget->property(kIsReleased).toBool())
        return false;
    if (widget->hasFocus() && !qobject_cast<const QTabBar *>(widget))
        return false;
    event->ignore();  // so that Qt offers it to the parent
    return true;
}
