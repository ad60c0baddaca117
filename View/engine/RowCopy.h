// Puts rows on the clipboard as text for a spreadsheet (ClipboardText.h), however many they are.
//
// Rows are read a few milliseconds at a time, between the other events, so that a million of them hold
// up nothing; what is short is on the clipboard at once. The clipboard gets the text when it is whole.
// A copy ends without it when its table loses or changes rows meanwhile (cells that are written may come
// new or old), or when another copy begins. GUI thread; the source outlives the copy, as its table does.
//
//   m_copy.Start({.header = captions, .rows = rows, .line = [this](int row) { return Texts(row); }},
//                table->model(), [this](bool isDone) { Say(isDone ? "Copied." : "Not copied."); });
#pragma once

#include <functional>
#include <vector>

#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

class QAbstractItemModel;

struct SRowCopy
{
    QStringList header = {};  // empty: none
    std::vector<int> rows = {};
    std::function<QStringList(int row)> line = {};
};

class CRowCopy : public QObject
{
public:
    explicit CRowCopy(QObject *parent = nullptr);

    // done: called once, at the end; maybe before Start returns.
    void Start(SRowCopy what, const QAbstractItemModel *model,
               const std::function<void(bool isDone)> &done);
    bool IsUnderWay() const { return m_done != nullptr; }

private:
    void Go();
    void End(bool isDone);

    SRowCopy m_what;
    std::function<void(bool)> m_done;
    size_t m_next = 0;  // of the rows
    QString m_text;
    QTimer m_timer;
    QList<QMetaObject::Connection> m_watches;
};
