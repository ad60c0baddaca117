#include "View/access/Announce.h"

#include <QAccessible>
#include <QWidget>

void Announce(QWidget *widget)
{
    QAccessibleEvent event(widget, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}
