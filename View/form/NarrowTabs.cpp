#include "View/form/NarrowTabs.h"

#include <QApplication>
#include <QProxyStyle>
#include <QTabBar>

namespace {

constexpr int kNarrowest = 3;  // part of the usual room
constexpr int kSlack = 2;      // pixels of a tab beside its name and room

// What is left for each tab when the bar holds all names.
int RoomOfTab(const QTabBar *bar)
{
    int names = 0;
    for (int tab = 0; tab < bar->count(); ++tab)
        names += bar->fontMetrics().size(Qt::TextShowMnemonic, bar->tabText(tab)).width() + kSlack;
    return (bar->width() - names) / bar->count();
}

class CNarrowTabStyle : public QProxyStyle
{
public:
    // On the style that the host has chosen.
    CNarrowTabStyle() : QProxyStyle(QApplication::style()->objectName()) {}

    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        const int usual = QProxyStyle::pixelMetric(metric, option, widget);
        const auto *bar = qobject_cast<const QTabBar *>(widget);
        if (metric != PM_TabBarTabHSpace || !bar || bar->count() == 0)
            return usual;
        return qBound(usual / kNarrowest, RoomOfTab(bar), usual);
    }
};

}  // namespace

void NarrowTabs(QTabBar *bar)
{
    if (dynamic_cast<CNarrowTabStyle *>(bar->style()))
        return;
    auto *style = new CNarrowTabStyle;
    style->setParent(bar);
    bar->setStyle(style);
}
