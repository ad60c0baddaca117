// Records why the members of a page change: by the user, by a relation, by a result, at the start.
//
// The engine tells what it is about to do by a scope, which ends with it. An editor that changes tells
// so itself (Watch): inside a scope for the scope's reason, outside of one by the user. So what no scope
// is about is the user's. What tells nothing (labels) or more than once on the way (new limits) is
// recorded by a step, from the text before to the text behind it.
//
// Keys of one edit are one change. A step that changes nothing leaves none, unless others followed by
// it. A member is an id here, its path is kept once. Recording makes no text and writes no log; off, it
// costs nothing. GUI thread; a page has one.
//
//   const CChangeScope scope(&recorder, {.cause = EChangeCause::Result});
//   const CChangeStep step(&recorder, reason, recorder.Member(path), -1, widget);
//   widget->setText("5");
#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QVector>
#include <QWidget>

#include "View/engine/ChangeRing.h"

class CEditSession;

class CChangeRecorder : public QObject
{
    Q_OBJECT

public:
    explicit CChangeRecorder(const CEditSession &edits);

    // Of no effect on what is recorded. For a page that is made: what is watched by then stays so.
    void SetOn(bool isOn) { m_isOn = isOn; }
    bool IsOn() const { return m_isOn; }

    const CChangeRing &Changes() const { return m_changes; }
    // The id of a member, by its absolute path.
    int Member(const QString &path);
    QString PathOf(int member) const { return m_paths.value(member); }

    // From now on the editor's own changes are recorded. A label has none.
    void Watch(QWidget *editor, int member, int column);
    bool IsWatched(const QWidget *editor) const { return m_watched.contains(editor); }
    // What a member has at the start.
    void Start(int member, const QString &text, const QJsonValue &value);
    // A value that is shown by no widget of its own; the one before is remembered.
    void Show(int member, const QString &text);
    // A change that has been made.
    void Add(const SChangeReason &reason, int member, int column, const QString &from,
             const QString &to);
    // Enabled or disabled by a relation. It was the other before.
    void Enable(const SChangeReason &reason, int member, int column, bool isEnabled);

signals:
    void Recorded();

private:
    friend class CChangeScope;
    friend class CChangeStep;

    struct SWatched
    {
        int member = -1;
        int column = -1;
        QString text = {};
    };
    // The change that the edit under way has made so far.
    struct SOpenEdit
    {
        const QWidget *editor = nullptr;
        int edit = -1;
        qint64 number = -1;
    };

    void Take(const QWidget *editor);
    bool Amend(const QWidget *editor, const QString &text);
    void Settle(const QWidget *editor);

    const CEditSession &m_edits;
    bool m_isOn = true;
    CChangeRing m_changes;
    QVector<QString> m_paths;  // by id
    QHash<QString, int> m_ids;
    QHash<const QWidget *, SWatched> m_watched;
    QHash<int, QString> m_shown;
    const SChangeReason *m_reason = nullptr;  // of the innermost scope
    const QWidget *m_quiet = nullptr;         // the editor of the innermost step
    SOpenEdit m_open;
};

// What the text of a bound widget is, as it is recorded.
QString ShownText(const QWidget *widget);

// What changes until its end, changes for this reason. recorder: null for none; it may go before.
class CChangeScope
{
public:
    CChangeScope(CChangeRecorder *recorder, SChangeReason reason);
    ~CChangeScope();
    CChangeScope(const CChangeScope &) = delete;
    CChangeScope &operator=(const CChangeScope &) = delete;

private:
    const QPointer<CChangeRecorder> m_recorder;
    const SChangeReason m_reason;
    const SChangeReason *m_outer = nullptr;
};

// One change of one widget, from its beginning to its end; the widget goes with its page. recorder: as
// above.
class CChangeStep
{
public:
    CChangeStep(CChangeRecorder *recorder, const SChangeReason &reason, int member, int column,
                const QWidget *widget);
    ~CChangeStep();
    CChangeStep(const CChangeStep &) = delete;
    CChangeStep &operator=(const CChangeStep &) = delete;

private:
    const QPointer<CChangeRecorder> m_recorder;  // null when it is off
    const CChangeScope m_scope;
    const QWidget *const m_widget;
    const QWidget *m_outer = nullptr;
    QString m_from;
    qint64 m_number = -1;
};
