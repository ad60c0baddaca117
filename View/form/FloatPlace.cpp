#include "View/form/FloatPlace.h"

#include <QDockWidget>
#include <QMainWindow>
#include <QScreen>
#include <QTimer>

namespace {

constexpr int kGap = 8;     // between the window and a page beside it, pixels
constexpr int kShift = 40;  // tells the page from its old place

// At the same height, so that its buttons stay on the screen and the window's status bar in sight:
// right of the window or left of it, as far as the screen has the room. On a small screen a step
// off its place.
QPoint PlaceBeside(const QRect &window, const QRect &page, const QRect &screen)
{
    const int right = qMin(window.right() + kGap, screen.right() - page.width());
    if (right - page.left() >= kShift)
        return {right, page.top()};
    const int left = qMax(window.left() - kGap - page.width(), screen.left());
    if (page.left() - left >= kShift)
        return {left, page.top()};
    const bool isRoomRight = page.left() + kShift < screen.right() - kShift;
    return page.topLeft() + QPoint(isRoomRight ? kShift : -kShift, 0);
}

}  // namespace

void FloatBeside(QDockWidget *page)
{
    QObject::connect(page, &QDockWidget::topLevelChanged, page, [page](bool isFloating) {
        if (!isFloating)
            return;
        const QPoint old = page->pos();
        // A drag has gone on from there by then.
        QTimer::singleShot(0, page, [page, old] {
            const auto *window = qobject_cast<QMainWindow *>(page->parentWidget());
            if (window && page->isFloating() && page->pos() == old)
                page->move(PlaceBeside(window->frameGeometry(), page->frameGeometry(),
                                       page->screen()->availableGeometry()));
        });
    });
}
