#include "tests/hands/seeds/PageDeeds.h"

#include <QAction>
#include <QPushButton>

#include "tests/hands/witness/PageReader.h"

namespace {

QAction *ActionOf(CDesk &desk, QDockWidget *page, const QString &name)
{
    const QList<QAction *> actions = desk.Window()->findChildren<QAction *>(name);
    for (QAction *action : actions) {
        const QObject *owner = action->parent();
        if (owner == desk.Window() || owner == page ||
            (page && page->isAncestorOf(qobject_cast<const QWidget *>(owner))))
            return action;
    }
    return nullptr;
}

bool IsUnseenChange(const QAction *action)
{
    return action->text().contains("Read") || action->text().contains("Import") ||
           action->text().contains("Revert") || action->text().contains("record");
}

}  // namespace

QDockWidget *RaisedPage(CDesk &desk, const char *className)
{
    QDockWidget *page = desk.Page(className);
    if (page && !page->isVisible())
        return nullptr;
    if (page)
        page->raise();
    return page;
}

SDeed PressOn(CDesk &desk, QDockWidget *page, const char *button)
{
    auto *found = page ? page->findChild<QPushButton *>(button) : nullptr;
    const QString words = QString("press %1 on %2").arg(button, NameOf(page));
    if (!found || !found->isEnabled() || found->visibleRegion().isEmpty())
        return {SDeed::Other, words + ", which cannot be", {}, {}, false};
    desk.Click(found);
    return {SDeed::Other, words, found};
}

SDeed TriggerOn(CDesk &desk, QDockWidget *page, const char *name)
{
    QAction *action = ActionOf(desk, page, name);
    const QString words = QString("%1 on %2").arg(name, NameOf(page));
    if (!action || !action->isEnabled() || IsUnseenChange(action))
        return {SDeed::Other, words + ", which cannot be", {}, {}, false};
    action->trigger();
    return {SDeed::Other, words};
}
