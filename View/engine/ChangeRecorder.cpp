#include "View/engine/ChangeRecorder.h"

#include <utility>

#include <QCheckBox>
#include <QComboBox>
#include <QDateTime>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

#include "View/editors/EditSession.h"

namespace {

const SChangeReason kByUser = {};

QString OnText(bool isEnabled)
{
    return isEnabled ? QStringLiteral("enabled") : QStringLiteral("disabled");
}

}  // namespace

QString ShownText(const QWidget *widget)
{
    if (const auto *box = qobject_cast<const QAbstractSpinBox *>(widget))
        return box->text();
    if (const auto *list = qobject_cast<const QComboBox *>(widget))
        return list->currentText();
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return label->text();
    if (const auto *box = qobject_cast<const QCheckBox *>(widget))
        return box->isChecked() ? QStringLiteral("true") : QStringLiteral("false");
    const auto *line = qobject_cast<const QLineEdit *>(widget);
    return line ? line->text() : QString();
}

CChangeRecorder::CChangeRecorder(const CEditSession &edits) : m_edits(edits)
{
    connect(&edits, &CEditSession::Ended, this, [this](QWidget *editor) { Settle(editor); });
}

int CChangeRecorder::Member(const QString &path)
{
    const auto known = m_ids.constFind(path);
    if (known != m_ids.constEnd())
        return *known;
    m_paths.append(path);
    return *m_ids.insert(path, m_paths.size() - 1);
}

void CChangeRecorder::Watch(QWidget *editor, int member, int column)
{
    if (!m_isOn || qobject_cast<QLabel *>(editor))
        return;
    const bool isNew = !m_watched.contains(editor);
    m_watched.insert(editor, {.member = member, .column = column, .text = ShownText(editor)});
    if (!isNew)
        return;
    const auto take = [this, editor] { Take(editor); };
    if (auto *box = qobject_cast<QSpinBox *>(editor))
        connect(box, QOverload<int>::of(&QSpinBox::valueChanged), this, take);
    else if (auto *box = qobject_cast<QDoubleSpinBox *>(editor))
        connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, take);
    else if (auto *list = qobject_cast<QComboBox *>(editor))
        connect(list, &QComboBox::currentTextChanged, this, take);
    else if (auto *box = qobject_cast<QCheckBox *>(editor))
        connect(box, &QCheckBox::stateChanged, this, take);
    else if (auto *line = qobject_cast<QLineEdit *>(editor))
        connect(line, &QLineEdit::textChanged, this, take);
    connect(editor, &QObject::destroyed, this, [this, editor] { m_watched.remove(editor); });
}

void CChangeRecorder::Start(int member, const QString &text, const QJsonValue &value)
{
    Add({.cause = EChangeCause::Start, .entry = value}, member, -1, {}, text);
}

void CChangeRecorder::Show(int member, const QString &text)
{
    if (!m_isOn)
        return;
    QString &shown = m_shown[member];
    if (shown != text)
        Add(m_reason ? *m_reason : kByUser, member, -1, std::exchange(shown, text), text);
}

void CChangeRecorder::Add(const SChangeReason &reason, int member, int column, const QString &from,
                          const QString &to)
{
    if (!m_isOn)
        return;
    m_changes.Add({.time = QDateTime::currentMSecsSinceEpoch(),
                   .member = member,
                   .column = column,
                   .from = from,
                   .to = to,
                   .reason = reason});
    emit Recorded();
}

void CChangeRecorder::Enable(const SChangeReason &reason, int member, int column, bool isEnabled)
{
    if (!m_isOn)
        return;
    Add(reason, member, column, OnText(!isEnabled), OnText(isEnabled));
    m_changes.Find(m_changes.End() - 1)->isOn = true;
}

// An editor has changed.
void CChangeRecorder::Take(const QWidget *editor)
{
    const auto watched = m_watched.find(editor);
    if (!m_isOn || editor == m_quiet || watched == m_watched.end())
        return;
    const QString text = ShownText(editor);
    if (text == watched->text)
        return;
    const QString before = std::exchange(watched->text, text);
    if (m_reason) {
        Add(*m_reason, watched->member, watched->column, before, text);
    } else if (!Amend(editor, text)) {
        Add(kByUser, watched->member, watched->column, before, text);
        if (m_edits.Editor() == editor)
            m_open = {.editor = editor, .edit = m_edits.Count(), .number = m_changes.End() - 1};
    }
}

// False when the edit under way is another one.
bool CChangeRecorder::Amend(const QWidget *editor, const QString &text)
{
    SChange *change = m_changes.Find(m_open.number);
    if (!change || m_open.editor != editor || m_open.edit != m_edits.Count())
        return false;
    change->to = text;
    emit Recorded();
    return true;
}

// At an edit's end the text is written anew: "3" is "3.00000" then.
void CChangeRecorder::Settle(const QWidget *editor)
{
    const auto watched = m_watched.find(editor);
    if (watched != m_watched.end()) {
        watched->text = ShownText(editor);
        Amend(editor, watched->text);
    }
    m_open = {};
}

CChangeScope::CChangeScope(CChangeRecorder *recorder, SChangeReason reason)
    : m_recorder(recorder), m_reason(std::move(reason))
{
    if (m_recorder)
        m_outer = std::exchange(m_recorder->m_reason, &m_reason);
}

CChangeScope::~CChangeScope()
{
    if (m_recorder)
        m_recorder->m_reason = m_outer;
}

CChangeStep::CChangeStep(CChangeRecorder *recorder, const SChangeReason &reason, int member,
                         int column, const QWidget *widget)
    : m_recorder(recorder && recorder->IsOn() ? recorder : nullptr), m_scope(m_recorder, reason),
      m_widget(widget)
{
    if (!m_recorder)
        return;
    m_outer = std::exchange(m_recorder->m_quiet, widget);
    m_from = ShownText(widget);
    m_recorder->Add(reason, member, column, m_from, m_from);
    m_number = m_recorder->m_changes.End() - 1;
}

CChangeStep::~CChangeStep()
{
    // The page may be gone.
    if (!m_recorder)
        return;
    m_recorder->m_quiet = m_outer;
    const QString text = ShownText(m_widget);
    const auto watched = m_recorder->m_watched.find(m_widget);
    if (watched != m_recorder->m_watched.end())
        watched->text = text;
    CChangeRing &changes = m_recorder->m_changes;
    if (text == m_from && m_number == changes.End() - 1)
        changes.RemoveNewest();
    else if (SChange *change = changes.Find(m_number))
        change->to = text;
}
