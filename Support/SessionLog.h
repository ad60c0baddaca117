// The session's events as a table: what the status bar has said and every box with its text, the
// newest last. What the status bar overwrites is still here.
//
// Columns: time, where (the page, or the window), kind, text. The last 10,000 events stay. A line of
// progress ("Read data from target: 3 of 10 routes") takes the place of the one before it.
//
// GUI thread. One log for the process, never destroyed; it lives through resets.
//
//   CSessionLog::Get().Add(ESessionEvent::Status, "RSSI", "Rssi start...");
//   view->setModel(&CSessionLog::Get());
#pragma once

#include <deque>

#include <QAbstractTableModel>
#include <QDateTime>
#include <QString>

enum class ESessionEvent
{
    Status,
    Information,
    Warning,
    Critical,
};

class CSessionLog : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum EColumn
    {
        eTime,
        eWhere,
        eKind,
        eText,
        eColumns
    };

    static CSessionLog &Get();
    // For a test; the tool uses Get().
    explicit CSessionLog(int most = kMostEvents);

    void Add(ESessionEvent kind, const QString &where, const QString &text);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    static constexpr int kMostEvents = 10000;

    struct SEvent
    {
        QDateTime time;
        ESessionEvent kind;
        QString where;
        QString text;
    };

    bool ReplacesLast(const SEvent &event) const;

    const int m_most;
    std::deque<SEvent> m_events;
};
