#include "View/form/StyleCaches.h"

#include <utility>
#include <vector>

#include <QWidget>

void FreeStyleCaches(QWidget *window)
{
    std::vector<std::pair<QWidget *, QString>> sheets;
    for (QWidget *widget : window->findChildren<QWidget *>()) {
        if (!widget->styleSheet().isEmpty())
            sheets.emplace_back(widget, widget->styleSheet());
    }
    for (const auto &[widget, sheet] : sheets)
        widget->setStyleSheet(QString());
    for (const auto &[widget, sheet] : sheets)
        widget->setStyleSheet(sheet);
}
