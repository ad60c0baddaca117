#include "View/editors/EditSession.h"

#include <utility>

#include <QAbstractSpinBox>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSpinBox>

#include "View/editors/DbStep.h"
#include "View/editors/LimitTip.h"
#include "View/editors/UnsignedSpinBox.h"

namespace {

// Asks at run time: a widget that is being destroyed is a plain QWidget when it loses the focus.
bool IsEditor(const QWidget *widget)
{
    return qobject_cast<const QSpinBox *>(widget) || qobject_cast<const QDoubleSpinBox *>(widget) ||
           qobject_cast<const CUnsignedSpinBox *>(widget);
}

QVariant ValueOf(const QWidget *editor)
{
    if (const auto *box = qobject_cast<const QSpinBox *>(editor))
        return box->value();
    if (const auto *box = qobject_cast<const QDoubleSpinBox *>(editor))
        return box->value();
    return qobject_cast<const CUnsignedSpinBox *>(editor)->m_lastValidText;
}

// Writes the text anew, also when the value is the same.
void Show(QWidget *editor, const QVariant &value)
{
    if (auto *box = qobject_cast<QSpinBox *>(editor))
        box->setValue(value.toInt());
    else if (auto *box = qobject_cast<QDoubleSpinBox *>(editor))
        box->setValue(value.toDouble());
    else
        qobject_cast<CUnsignedSpinBox *>(editor)->setText(value.toString());
}

QString TextOf(const QWidget *editor)
{
    if (const auto *box = qobject_cast<const QAbstractSpinBox *>(editor))
        return box->text();
    return qobject_cast<const CUnsignedSpinBox *>(editor)->text();
}

bool IsFinished(const QWidget *editor)
{
    if (const auto *box = qobject_cast<const QAbstractSpinBox *>(editor))
        return box->hasAcceptableInput();
    return !TextOf(editor).isEmpty();
}

// What the editor takes over of a finished number.
QVariant Taken(QWidget *editor)
{
    if (auto *box = qobject_cast<QAbstractSpinBox *>(editor))
        box->interpretText();
    if (const auto *box = qobject_cast<const QDoubleSpinBox *>(editor))
        return ToDbStep(box);
    return ValueOf(editor);
}

bool IsStep(const QWidget *editor, const QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress: {
        const int key = static_cast<const QKeyEvent *>(event)->key();
        return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp ||
               key == Qt::Key_PageDown;
    }
    case QEvent::Wheel:
        return editor->hasFocus();
    case QEvent::MouseButtonPress:
    case QEvent::ContextMenu:
        return true;
    default:
        return false;
    }
}

// What the editor shows of a value that it had.
QString TextOfValue(const QWidget *editor, const QVariant &value)
{
    if (const auto *box = qobject_cast<const QSpinBox *>(editor))
        return QString::number(value.toInt(), box->displayIntegerBase());
    if (const auto *box = qobject_cast<const QDoubleSpinBox *>(editor))
        return box->textFromValue(value.toDouble());
    return value.toString();
}

// A key of undo or redo that the editor's own text has no use for.
bool IsForThePage(QWidget *editor, const QEvent *event)
{
    if (event->type() != QEvent::ShortcutOverride)
        return false;
    const auto *key = static_cast<const QKeyEvent *>(event);
    const QLineEdit *text = qobject_cast<QLineEdit *>(editor);
    if (!text)
        text = editor->findChild<QLineEdit *>();
    const bool isRedo = key->matches(QKeySequence::Redo) ||
                        (key->key() == Qt::Key_Y && key->modifiers() == Qt::ControlModifier);
    return (key->matches(QKeySequence::Undo) && !(text && text->isUndoAvailable())) ||
           (isRedo && !(text && text->isRedoAvailable()));
}

bool IsEnter(const QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<const QKeyEvent *>(event)->key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

}  // namespace

void CEditSession::Watch(QWidget *editor)
{
    if (!IsEditor(editor))
        return;
    QLineEdit *text = qobject_cast<CUnsignedSpinBox *>(editor);
    if (auto *box = qobject_cast<QAbstractSpinBox *>(editor)) {
        text = box->findChild<QLineEdit *>();
        TellRefusedKeys(box);
    }
    editor->installEventFilter(this);
    // Comes before the editor takes the new text over.
    connect(text, &QLineEdit::textEdited, this, [this, editor] { Begin(editor, true); });
}

void CEditSession::Begin(QWidget *editor, bool isTyped)
{
    if (m_editor == editor) {
        m_isTyped = m_isTyped || isTyped;
        return;
    }
    Finish();
    ++m_count;
    m_editor = editor;
    m_value = ValueOf(editor);
    m_text = isTyped ? TextOfValue(editor, m_value) : TextOf(editor);
    m_isTyped = isTyped;
    m_ended.clear();
}

// False when nothing was edited.
bool CEditSession::End()
{
    QWidget *const editor = m_editor;
    m_editor.clear();
    if (!IsEditor(editor) || (!m_isTyped && TextOf(editor) == m_text))
        return false;
    const bool isFinished = IsFinished(editor);
    m_ended = isFinished ? editor : nullptr;
    const QPointer<QWidget> alive(editor);
    const QString before = m_text;
    Show(editor, isFinished ? Taken(editor) : m_value);
    if (alive)
        emit Ended(editor, before);
    return true;
}

void CEditSession::Finish()
{
    const QPointer<QWidget> editor = m_editor;
    if (!End())
        return;
    if (auto *box = qobject_cast<QAbstractSpinBox *>(editor.data()))
        emit box->editingFinished();
    else if (auto *line = qobject_cast<QLineEdit *>(editor.data()))
        emit line->editingFinished();
}

bool CEditSession::TakeEnded(const QObject *editor)
{
    return std::exchange(m_ended, nullptr) == editor && editor;
}

bool CEditSession::eventFilter(QObject *object, QEvent *event)
{
    auto *editor = qobject_cast<QWidget *>(object);
    if (!editor)
        return false;
    if (IsForThePage(editor, event)) {
        Finish();
        return true;
    }
    if (IsStep(editor, event)) {
        Begin(editor, false);
    } else if (editor == m_editor) {
        if (event->type() == QEvent::Hide)
            Finish();
        else if (IsEnter(event))
            End();
        else if (event->type() == QEvent::FocusOut) {
            // The editor's own menu may step it yet.
            const bool isMenu = static_cast<QFocusEvent *>(event)->reason() == Qt::PopupFocusReason;
            if (m_isTyped || !isMenu)
                End();
        }
    }
    return false;
}
