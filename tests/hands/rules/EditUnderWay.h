// The edit that the user has begun in a number editor and not ended yet.
//
// It begins with the first key that changes the editor's text and ends when the focus leaves, or
// with a request of the page. A text that is no number leaves the value of the edit's beginning:
// one that the editor had at rest since it got the focus, for steps may be part of an edit.
//
//   edit.Before();                      // in front of each deed
//   const QString failure = edit.End(); // a request of the page
//   edit.After(isTyping);               // behind the deed
#pragma once

#include <QAbstractSpinBox>
#include <QPointer>
#include <QStringList>

class CEditUnderWay
{
public:
    void Before();
    // What is wrong with the value that the editor has now; empty also without an edit.
    QString End();
    QString After(bool isTyping);

    // Null without an edit.
    const QAbstractSpinBox *Editor() const { return m_isUnderWay ? m_editor.data() : nullptr; }

private:
    QPointer<QAbstractSpinBox> m_editor;  // with the focus in front of the deed
    QString m_text;                       // its text then
    QStringList m_values;                 // at rest, since it has the focus
    bool m_isUnderWay = false;
};
