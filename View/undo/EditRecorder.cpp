#include "View/undo/EditRecorder.h"

#include <utility>

#include <QAbstractSpinBox>
#include <QApplication>
#include <QLineEdit>
#include <QTimer>

#include "View/engine/CellText.h"

CEditRecorder::CEditRecorder(const CEditSession &edits, SListener listener)
    : m_listener(std::move(listener))
{
    connect(&edits, &CEditSession::Ended, this, &CEditRecorder::Await);
    // Choices before and after a change of the focus are two visits.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) {
        if (now != m_visited)
            m_visited.clear();
    });
}

void CEditRecorder::Watch(QComboBox *list)
{
    m_choices.insert(list, list->currentText());
    connect(list, &QComboBox::currentTextChanged, this,
            [this, list](const QString &text) { TakeChoice(list, text); });
    connect(list, &QObject::destroyed, this, [this, list] { m_choices.remove(list); });
}

// The page's own check of the number comes with editingFinished, to which it is connected already.
void CEditRecorder::Await(QWidget *editor, const QString &before)
{
    Settle();
    m_ended = editor;
    m_before = before;
    if (auto *box = qobject_cast<QAbstractSpinBox *>(editor))
        m_check = connect(box, &QAbstractSpinBox::editingFinished, this, &CEditRecorder::Settle);
    else if (auto *line = qobject_cast<QLineEdit *>(editor))
        m_check = connect(line, &QLineEdit::editingFinished, this, &CEditRecorder::Settle);
    // A widget that is hidden with the focus may not come to signal it.
    QTimer::singleShot(0, this, &CEditRecorder::Settle);
}

void CEditRecorder::Settle()
{
    disconnect(std::exchange(m_check, {}));
    const QPointer<QWidget> editor = std::exchange(m_ended, nullptr);
    if (!editor || m_listener.isQuiet())
        return;
    const QString text = CellText(editor);
    const SEditorPlace place = PlaceOf(editor);
    m_listener.touched(place);
    if (text != m_before)
        m_listener.edited({.place = place, .from = m_before, .to = text}, -1);
}

void CEditRecorder::TakeChoice(QComboBox *list, const QString &text)
{
    const QString before = std::exchange(m_choices[list], text);
    if (m_listener.isQuiet() || before == text)
        return;
    if (m_visited != list) {
        m_visited = list->hasFocus() ? list : nullptr;
        ++m_visit;
    }
    m_listener.touched(PlaceOf(list));
    m_listener.edited({.place = PlaceOf(list), .from = before, .to = text}, m_visit);
}
