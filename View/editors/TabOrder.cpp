#include "View/editors/TabOrder.h"

#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>

#include "View/editors/ExactClass.h"
#include "View/editors/ScrollIntoView.h"
#include "View/editors/TableKeys.h"

namespace {

// The table that a widget is a cell of; null when it is none.
QTableWidget *TableOf(const QWidget *widget)
{
    for (QWidget *parent = widget->parentWidget(); parent; parent = parent->parentWidget()) {
        if (auto *table = qobject_cast<QTableWidget *>(parent); table && CTableKeys::Of(table))
            return table;
        if (parent->isWindow())
            return nullptr;
    }
    return nullptr;
}

// The cell that a table hands the focus on to, or else the widget itself.
QWidget *Target(QWidget *widget)
{
    const CTableKeys *keys = CTableKeys::Of(widget);
    QWidget *cell = keys ? keys->Entry() : nullptr;
    return cell ? cell : widget;
}

bool CanBeStop(const QWidget *widget, const QWidget *window)
{
    return widget != window && widget->window() == window && widget->isEnabled() &&
           widget->isVisible() && !widget->focusProxy() && !IsExactClass(widget, "QScrollArea") &&
           !TableOf(widget);
}

}  // namespace

bool MoveFocus(QWidget *window, bool next)
{
    QWidget *from = window->focusWidget() ? window->focusWidget() : window;
    if (QTableWidget *table = TableOf(from))
        from = table;
    const auto step = [next](const QWidget *widget) {
        return next ? widget->nextInFocusChain() : widget->previousInFocusChain();
    };
    for (QWidget *widget = step(from); widget != from; widget = step(widget)) {
        if (!CanBeStop(widget, window))
            continue;
        QWidget *const target = Target(widget);
        if (!(target->focusPolicy() & Qt::TabFocus))
            continue;
        target->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
        ScrollIntoView(target, TableOf(target));
        return true;
    }
    return false;
}

void PlaceTabBar(QWidget *before, QTabWidget *tabs, QWidget *behind)
{
    QWidget::setTabOrder(before, tabs->tabBar());
    QWidget::setTabOrder(tabs->tabBar(), behind);
}
