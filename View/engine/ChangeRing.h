// The changes of a page's members, the last ten thousand of them.
//
// A change has a number, one more than the one before; when there are more than the ring holds, the
// oldest goes. Ids and values alone: whoever shows a change words it. Values only; any one thread.
//
//   const qint64 number = ring.Add(std::move(change));
//   if (const SChange *change = ring.Find(number)) ...
#pragma once

#include <vector>

#include <QJsonValue>
#include <QString>

enum class EChangeCause
{
    Start,     // what the page's document had when it came
    User,      // or a command of the user
    Relation,  // with another member
    Result,    // what the target or the calibration data say
};

struct SChangeReason
{
    EChangeCause cause = EChangeCause::User;
    int publisher = -1;  // of a relation: the member that changed
    QString key = {};    // of a relation: in the member's table; of the user: the command, "Paste"
    QJsonValue entry = {};   // of a relation, what was taken; of the start, the document's value
    bool isMissing = false;  // the table has no such key: the member stays as it is
};

struct SChange
{
    qint64 time = 0;    // ms since 1970, UTC
    int member = -1;    // id
    int column = -1;    // of a table's cell
    bool isOn = false;  // whether it is enabled, not its value
    QString from = {};  // null at the start
    QString to = {};
    SChangeReason reason = {};
};

class CChangeRing
{
public:
    static constexpr int kMost = 10000;

    // The change's number.
    qint64 Add(SChange change);
    // Takes back the newest one; not more of them in a row than there were added.
    void RemoveNewest();
    // Null when it is not there any more, or not yet.
    SChange *Find(qint64 number);
    const SChange *Find(qint64 number) const;
    // Numbers of the oldest change and behind the newest one.
    qint64 Begin() const { return m_end > kMost ? m_end - kMost : 0; }
    qint64 End() const { return m_end; }

private:
    std::vector<SChange> m_changes;  // by number, around
    qint64 m_end = 0;
};
