// The rows of a page's results, kept in memory beside what the page shows.
//
// A row has the time of its fetch, the settings that gave it (by number), and a text a column. The
// texts stand one behind the other, so a row of eight readings takes about 80 bytes: a million of them
// about 80 MB. A copy is cheap: it shares all rows but the newest ones, and may go to another thread.
//
//   CResultRows rows;
//   rows.Add({.timeMs = now, .settings = 0}, {"-85.25", "-84.50"});
//   CResultReader reader(rows);
//   reader.Cells(0);   // {"-85.25", "-84.50"} as UTF-8
#pragma once

#include <QByteArray>
#include <QStringList>
#include <QVector>

struct SResultStamp
{
    qint64 timeMs = 0;  // since 1970, UTC
    int settings = 0;
};

class CResultRows
{
public:
    void Add(const SResultStamp &stamp, const QStringList &texts);
    void Clear() { m_chunks.clear(); }
    int Count() const;
    SResultStamp Stamp(int row) const;

private:
    friend class CResultReader;

    static constexpr int kChunkRows = 4096;

    struct SRow
    {
        SResultStamp stamp = {};
        int end = 0;  // of its texts
    };
    struct SChunk
    {
        QVector<SRow> rows = {};
        QByteArray texts = {};  // UTF-8, each ended by 0
    };

    QVector<SChunk> m_chunks;
};

// Reads rows; its rows must live as long. The cells hold until the next call.
class CResultReader
{
public:
    explicit CResultReader(const CResultRows &rows) : m_rows(rows) {}

    const QVector<QByteArray> &Cells(int row);

private:
    const CResultRows &m_rows;
    QVector<QByteArray> m_cells;
};
