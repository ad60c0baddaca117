// The edit under way on a page: text that the user is still typing.
//
// A mnemonic and a timer leave the focus where it is, so a request can come in the middle of a
// number. The value of the spin box is not what the user means then: a box that is being emptied
// goes through every shorter number down to 0. The session remembers the value that the editor had
// when the edit began, and ends the edit in one place.
//
// An edit begins with the first key, paste or step that changes the text, and ends when the editor
// loses the focus or is hidden, with Enter, and with Finish(). At its end
//     an unfinished or empty text gives way to the value at the beginning;
//     a finished number goes to a step that the target can hold (DbStep.h), and then passes the
//     page's range check, which asks TakeEnded() first.
// Without an edit, leaving an editor changes nothing: a value from a document stays as it came. Ended
// tells of an edit's end, in front of the editor's own editingFinished.
//
// Ctrl+Z and Ctrl+Y are the editor's as long as its text has something to undo or redo. If not, the
// edit ends and the keys are those of the page's actions.
//
// Watches QSpinBox, QDoubleSpinBox and CUnsignedSpinBox. An editor still signals each value on the
// way as the user types. GUI thread; an editor that is destroyed takes its edit along.
//
//   m_edits.Watch(box);     // once
//   m_edits.Finish();       // first thing of a request; the focus stays
//   if (m_edits.TakeEnded(box)) ...  // in a slot on editingFinished
#pragma once

#include <QObject>
#include <QPointer>
#include <QVariant>
#include <QWidget>

class CEditSession : public QObject
{
    Q_OBJECT

public:
    // Another kind of widget is left alone. From now on the editor tells its limits when it refuses
    // a key.
    void Watch(QWidget *editor);
    // Ends the edit under way, as leaving its editor does.
    void Finish();
    // The editor whose text the user is changing; null when there is none.
    QWidget *Editor() const { return m_editor; }
    // Edits that have begun so far: tells one from the next.
    int Count() const { return m_count; }
    // The user has typed in this editor, and the edit is under way.
    bool IsTyping(const QWidget *editor) const { return m_editor == editor && m_isTyped; }
    // An edit begins with a step that comes from elsewhere than a key or the mouse.
    void BeginStep(QWidget *editor) { Begin(editor, false); }
    // True once after an edit of this editor has ended with a finished number.
    bool TakeEnded(const QObject *editor);

    bool eventFilter(QObject *object, QEvent *event) override;

signals:
    // before: the text of the editor when the edit began. It may show the same again.
    void Ended(QWidget *editor, const QString &before);

private:
    void Begin(QWidget *editor, bool isTyped);
    bool End();

    QPointer<QWidget> m_editor;
    QVariant m_value;  // of the editor when the edit began
    QString m_text;    // the same
    bool m_isTyped = false;
    int m_count = 0;
    QPointer<QWidget> m_ended;
};
