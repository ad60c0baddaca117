// The context menu of an editor or a table of a page, built in one place.
//
// Its parts, a line between two of them:
//     the editor's own      of a text (undo to select all), and of a spin box its steps
//     the member's          QWidget::actions() of the editor, and what the page has for each member
//     the table's           its commands (TableCommands.h) and QWidget::actions() of the table
//     the page's            QWidget::actions() of the page
// So a later feature adds a QAction to the widget that it is about. Where none of the first three
// parts has an entry there is no such menu: elsewhere comes the page menu of the form.
//
// The menu does not wait for its end: it is shown, and goes by itself, with what it is about or with
// the page. GUI thread.
//
//   const SMenuPlace place = MenuPlaceOf(page, widgetUnderTheMouse);
//   if (QMenu *menu = MakeContextMenu(place, edits))
//       menu->popup(position);
#pragma once

#include <functional>

#include <QList>
#include <QPoint>

class CEditSession;
class QAction;
class QMenu;
class QTableWidget;
class QWidget;

struct SMenuPlace
{
    QWidget *page = nullptr;
    QWidget *editor = nullptr;      // null: none
    QTableWidget *table = nullptr;  // null: none
    QWidget *member = nullptr;      // that the engine binds: the table, or the widget; null: none
};

// Of a page: its actions on the member at a place, for a menu at this point. It keeps them.
using MemberActions = std::function<QList<QAction *>(const SMenuPlace &, const QPoint &globalPos)>;

// widget: the page or below it, such as the text inside a spin box.
SMenuPlace MenuPlaceOf(QWidget *page, QWidget *widget);
// The widget leaves the event that asks for a menu to its page. Of editors alone.
void LeaveMenuToPage(QWidget *editor);
// Null when the place has no entries. edits gets to know of a step by the menu.
QMenu *MakeContextMenu(const SMenuPlace &place, CEditSession &edits,
                       const QList<QAction *> &ofMember = {});
