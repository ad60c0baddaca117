#include "View/results/ResultRows.h"

#include <cstring>

void CResultRows::Add(const SResultStamp &stamp, const QStringList &texts)
{
    if (m_chunks.isEmpty() || m_chunks.last().rows.size() == kChunkRows)
        m_chunks.append(SChunk());
    SChunk &chunk = m_chunks.last();
    for (const QString &text : texts) {
        QByteArray bytes = text.toUtf8();
        bytes.replace('\0', QByteArray());
        chunk.texts += bytes;
        chunk.texts += '\0';
    }
    chunk.rows.append({.stamp = stamp, .end = chunk.texts.size()});
    if (chunk.rows.size() == kChunkRows) {
        chunk.rows.squeeze();
        chunk.texts.squeeze();
    }
}

int CResultRows::Count() const
{
    return m_chunks.isEmpty() ? 0
                              : (m_chunks.size() - 1) * kChunkRows + m_chunks.last().rows.size();
}

SResultStamp CResultRows::Stamp(int row) const
{
    return m_chunks.at(row / kChunkRows).rows.at(row % kChunkRows).stamp;
}

const QVector<QByteArray> &CResultReader::Cells(int row)
{
    const CResultRows::SChunk &chunk = m_rows.m_chunks.at(row / CResultRows::kChunkRows);
    const int at = row % CResultRows::kChunkRows;
    int from = at == 0 ? 0 : chunk.rows.at(at - 1).end;
    const int end = chunk.rows.at(at).end;
    const char *const texts = chunk.texts.constData();
    m_cells.clear();
    while (from < end) {
        const int length = static_cast<int>(std::strlen(texts + from));
        m_cells.append(QByteArray::fromRawData(texts + from, length));
        from += length + 1;
    }
    return m_cells;
}
