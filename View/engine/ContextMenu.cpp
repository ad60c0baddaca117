#include "View/engine/ContextMenu.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QSpinBox>
#include <QTableWidget>

#include "Model/MemberPath.h"
#include "View/editors/EditSession.h"
#include "View/engine/TableCommands.h"

namespace {

bool HasOwnEntries(const QWidget *widget)
{
    return qobject_cast<const QAbstractSpinBox *>(widget) ||
           qobject_cast<const QLineEdit *>(widget);
}

bool IsMenuEditor(const QWidget *widget)
{
    return HasOwnEntries(widget) || qobject_cast<const QComboBox *>(widget);
}

QLineEdit *OwnText(QWidget *editor)
{
    auto *text = qobject_cast<QLineEdit *>(editor);
    return text || !editor ? text : editor->findChild<QLineEdit *>();
}

template <typename Box>
bool CanStep(const QWidget *editor, int steps)
{
    const auto *box = qobject_cast<const Box *>(editor);
    return box && !box->isReadOnly() &&
           (steps > 0 ? box->value() < box->maximum() : box->value() > box->minimum());
}

void AddStep(QMenu *menu, QAbstractSpinBox *box, CEditSession &edits, const char *text, int steps)
{
    QAction *action = menu->addAction(QAbstractSpinBox::tr(text));
    action->setEnabled(box->isEnabled() &&
                       (CanStep<QSpinBox>(box, steps) || CanStep<QDoubleSpinBox>(box, steps)));
    QObject::connect(action, &QAction::triggered, box,
                     [box, steps, edits = QPointer<CEditSession>(&edits)] {
                         if (edits)
                             edits->BeginStep(box);
                         box->stepBy(steps);
                     });
}

void AddPart(QMenu *menu, const QList<QAction *> &actions)
{
    if (actions.isEmpty())
        return;
    if (!menu->isEmpty())
        menu->addSeparator();
    menu->addActions(actions);
}

// A table for reading has no commands of cells.
QList<QAction *> TablePart(const QTableWidget *table)
{
    if (!table)
        return {};
    CTableCommands *commands = CTableCommands::Of(table);
    return (commands ? commands->Actions() : QList<QAction *>()) + table->actions();
}

// Of the text, whose own menu the rest is added to. An editor that is off has no entries of its own.
QMenu *OwnMenu(const SMenuPlace &place, CEditSession &edits)
{
    QLineEdit *text = OwnText(place.editor);
    QMenu *menu = text && place.editor->isEnabled() ? text->createStandardContextMenu() : nullptr;
    if (!menu)
        return new QMenu(place.page);
    if (auto *box = qobject_cast<QAbstractSpinBox *>(place.editor)) {
        menu->addSeparator();
        AddStep(menu, box, edits, "&Step up", 1);
        AddStep(menu, box, edits, "Step &down", -1);
    }
    return menu;
}

}  // namespace

SMenuPlace MenuPlaceOf(QWidget *page, QWidget *widget)
{
    SMenuPlace place = {.page = page};
    for (; widget && widget != page; widget = widget->parentWidget()) {
        // Of the text inside a box it is the box.
        if (IsMenuEditor(widget) && !place.table)
            place.editor = widget;
        if (auto *table = qobject_cast<QTableWidget *>(widget); table && !place.table)
            place.table = table;
        const QString name = widget->objectName();
        if (!place.member && IsBoundName(name) && !IsCaptionName(name))
            place.member = widget;
    }
    return place;
}

void LeaveMenuToPage(QWidget *editor)
{
    if (IsMenuEditor(editor))
        editor->setContextMenuPolicy(Qt::NoContextMenu);
}

QMenu *MakeContextMenu(const SMenuPlace &place, CEditSession &edits,
                       const QList<QAction *> &ofMember)
{
    const bool hasOwn = HasOwnEntries(place.editor);
    const QList<QAction *> ofTable = TablePart(place.table);
    const QList<QAction *> ofEditor =
        (place.editor ? place.editor->actions() : QList<QAction *>()) + ofMember;
    if (!hasOwn && ofTable.isEmpty() && ofEditor.isEmpty())
        return nullptr;
    QMenu *menu = OwnMenu(place, edits);
    menu->setObjectName(QStringLiteral("m_contextMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    AddPart(menu, ofEditor);
    AddPart(menu, ofTable);
    AddPart(menu, place.page->actions());
    return menu;
}
