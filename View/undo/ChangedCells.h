// Shows which editors of a page differ from what was last read or imported (CellLook.h), and what they
// were: "was 0.93750" stands below the tool tip of such an editor, and a screen reader says so.
// toolTip() itself stays as it is.
//
// Right behind a document is shown, the document's texts are compared with those of the base; an edit
// since is compared as the editor shows it. Editors that nobody has made yet are coloured when they are
// made. The page's record is asked for its base only when something in it differs. GUI thread.
//
//   m_changed.ShownAnew(cells.inRecord > 0);
//   m_changed.Edited({place});
#pragma once

#include <QHash>
#include <QJsonObject>
#include <QList>
#include <QObject>
#include <QPointer>

#include "View/undo/CellEdit.h"
#include "View/undo/EditedPage.h"

class CChangedCells : public QObject
{
    Q_OBJECT

public:
    explicit CChangedCells(IEditedPage &page) : m_page(page) {}

    // The data members of the page, once its document is in place.
    void Watch(const QList<QWidget *> &members);
    // Another document is shown, without an edit.
    void ShownAnew(bool hasChanges);
    void Edited(const std::vector<SEditorPlace> &places, bool hasChanges);

    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void AskForBase();
    void Clear();
    void ColourMember(QWidget *member);
    void ColourTable(class QTableWidget *table);
    void Colour(QWidget *editor, bool isChanged, const QString &was);

    IEditedPage &m_page;
    QList<QPointer<QWidget>> m_members;
    QJsonObject m_base;               // under the selection; empty: not asked for, or there is none
    bool m_isAsked = false;           // for the base
    QHash<QObject *, QString> m_was;  // of the coloured editors
};
