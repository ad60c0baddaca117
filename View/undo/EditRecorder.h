// Hears what the user edits on a page: each ended edit of a number (CEditSession), each choice in a list.
// What the page writes itself, as by Update or undo, is none. GUI thread.
//
//   CEditRecorder recorder(edits, {.isQuiet = ..., .touched = ..., .edited = ...});
//   recorder.Watch(list);
#pragma once

#include <functional>

#include <QComboBox>
#include <QHash>
#include <QObject>
#include <QPointer>

#include "View/editors/EditSession.h"
#include "View/undo/CellEdit.h"

class CEditRecorder : public QObject
{
    Q_OBJECT

public:
    struct SListener
    {
        std::function<bool()> isQuiet;
        // The user has edited it, maybe to the same text.
        std::function<void(const SEditorPlace &)> touched;
        // visit: another number with each visit of a list, by the focus; -1 for a number's edit.
        std::function<void(const SCellEdit &, int visit)> edited;
    };

    CEditRecorder(const CEditSession &edits, SListener listener);

    void Watch(QComboBox *list);
    // Tells of an edit that has ended and waits for its check.
    void Settle();

private:
    void Await(QWidget *editor, const QString &before);
    void TakeChoice(QComboBox *list, const QString &text);

    const SListener m_listener;
    QPointer<QWidget> m_ended;
    QString m_before;
    QMetaObject::Connection m_check;
    QHash<const QObject *, QString> m_choices;  // what the lists show
    QPointer<QWidget> m_visited;
    int m_visit = 0;
};
