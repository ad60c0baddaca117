#include "View/FloatPlace.h"

#include <QDockWidget>
#include <QMainWindow>
#include <QScreen>
#include <QTimer>

namespace {

constexpr int kGap = 8;     // between the window and a page beside it, pixels
constexpr int kShift = 40;  // shows the window's frame and tabs behind the page

// Beside the window where the screen has the room, or else a step off it.
QPoint PlaceBeside(const QRect &window, const QRect &page, const QRect &screen)
{
    const QPoint places[] = {
        {window.right() + kGap, page.top()},
        {window.left() - kGap - page.width(), page.top()},
        {page.left(), window.bottom() + kGap},
    };
    for (const QPoint &place : places) {
        if (screen.contains(QRect(place, page.size())))
            return place;
    }
    const bool isRoomBelow = page.top() + kShift < screen.bottom() - kShift;
    const bool isRoomRight = page.left() + kShift < screen.right() - kShift;
    return page.topLeft() + QPoint(isRoomRight ? kShift : -kShift, isRoomBelow ? kShift : -kShift);
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
