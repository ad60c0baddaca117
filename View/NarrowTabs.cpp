#include "View/NarrowTabs.h"

#include <QApplication>
#include <QProxyStyle>
#include <QTabBar>

namespace {

constexpr int kNarrower = 3;

class CNarrowTabStyle : public QProxyStyle
{
public:
    // On the style that the host has chosen.
    CNarrowTabStyle() : QProxyStyle(QApplication::style()->objectName()) {}

    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        const int usual = QProxyStyle::pixelMetric(metric, option, widget);
        return metric == PM_TabBarTabHSpace ? usual / kNarrower : usual;
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
