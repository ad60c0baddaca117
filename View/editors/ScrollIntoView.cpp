#include "View/editors/ScrollIntoView.h"

#include <QHeaderView>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableWidget>

void ScrollIntoView(QWidget *widget, QTableWidget *table)
{
    int captions = 0;
    if (table) {
        table->scrollTo(table->indexAt(widget->geometry().center()));
        // They may stand pinned above the cells.
        captions = table->verticalHeader()->isVisible() ? table->verticalHeader()->width() : 0;
    }
    for (QWidget *parent = widget->parentWidget(); parent; parent = parent->parentWidget()) {
        auto *area = qobject_cast<QScrollArea *>(parent);
        if (!area || !area->widget() || !area->widget()->isAncestorOf(widget))
            continue;
        const QPoint center = widget->mapTo(area->widget(), widget->rect().center());
        const QSize room = area->viewport()->size() / 2;
        area->ensureVisible(center.x(), center.y(),
                            qMin(widget->width() / 2 + captions, room.width()),
                            qMin(widget->height() / 2, room.height()));
    }
}
