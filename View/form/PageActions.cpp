#include "View/form/PageActions.h"

#include <QAction>
#include <QKeySequence>
#include <QMainWindow>
#include <QStringList>
#include <QTabBar>

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

void Add(QMainWindow *window, const char *name, const char *text, const QStringList &keys,
         const std::function<void()> &act)
{
    auto *const action = new QAction(QLatin1String(text), window);
    action->setObjectName(QLatin1String(name));
    QList<QKeySequence> sequences;
    for (const QString &key : keys)
        sequences.append(QKeySequence::fromString(key));
    action->setShortcuts(sequences);
    QObject::connect(action, &QAction::triggered, window, act);
    window->addAction(action);
}

}  // namespace

void AddPageActions(QMainWindow *window, const PageOnTop &onTop)
{
    Add(window, "m_actionNextPage", "&Next page", {"Ctrl+Tab", "Ctrl+PgDown"},
        [window, onTop] { GoToPage(window, onTop, 1); });
    Add(window, "m_actionPreviousPage", "&Previous page", {"Ctrl+Shift+Tab", "Ctrl+PgUp"},
        [window, onTop] { GoToPage(window, onTop, -1); });
    Add(window, "m_actionFloatPage", "&Float page, or dock it", {"F11"},
        [onTop] { FloatPage(onTop); });
}
