#include "View/form/PageActions.h"

#include <QMainWindow>
#include <QTabBar>

#include "View/editors/NamedAction.h"
#include "View/engine/AutoBindingDataModelDockWidget.h"

namespace {

// Among the tabs beside it, and around at the end. step: 1 for the next page, -1 for the previous one.
void GoToPage(const QMainWindow *window, const PageOnTop &onTop, int step)
{
    const QWidget *page = onTop();
    for (QTabBar *bar : window->findChildren<QTabBar *>(QString(), Qt::FindDirectChildrenOnly)) {
        const bool isIn = page && bar->tabText(bar->currentIndex()) == page->windowTitle();
        if (isIn && bar->isVisible())
            bar->setCurrentIndex((bar->currentIndex() + step + bar->count()) % bar->count());
    }
}

void FloatPage(const PageOnTop &onTop)
{
    if (CAutoBindingDataModelDockWidget *page = onTop())
        page->setFloating(!page->isFloating());
}

}  // namespace

void AddPageActions(QMainWindow *window, const PageOnTop &onTop)
{
    AddAction(window, "m_actionNextPage", "&Next page", {"Ctrl+Tab", "Ctrl+PgDown"},
              [window, onTop] { GoToPage(window, onTop, 1); });
    AddAction(window, "m_actionPreviousPage", "&Previous page", {"Ctrl+Shift+Tab", "Ctrl+PgUp"},
              [window, onTop] { GoToPage(window, onTop, -1); });
    AddAction(window, "m_actionFloatPage", "&Float page, or dock it", {"F11"},
              [onTop] { FloatPage(onTop); });
}
