// The place of an editor on a page: a member of its own, or a cell of a table. It outlives the editor,
// which may be made late or anew.
//
//   const SEditorPlace place = PlaceOf(cell);   // of table, row 1, column 3
//   EditNameOf(place, document);                // "Edit PA Gain[3]"
//   SetCellText(EditorAt(place), "1.5");        // makes late editors
#pragma once

#include <QJsonObject>
#include <QPointer>
#include <QString>
#include <QWidget>

struct SEditorPlace
{
    QPointer<QWidget> member;  // that the engine binds: the table, or the editor itself
    int row = 0;
    int column = -1;  // -1: the member is no table

    bool operator==(const SEditorPlace &other) const
    {
        return member == other.member && row == other.row && column == other.column;
    }
};

SEditorPlace PlaceOf(QWidget *editor);
// Null when there is none any more.
QWidget *EditorAt(const SEditorPlace &place);
// Scrolls it into view, on the tab that it stands on. The focus stays where it is.
void ShowEditor(const SEditorPlace &place);
QString EditNameOf(const SEditorPlace &place, const QJsonObject &document);
// The text that a page's document has for it to show (trait.defaultValue); null when it has none.
QString DocumentText(const SEditorPlace &place, const QJsonObject &document);
