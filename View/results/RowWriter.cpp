#include "View/results/RowWriter.h"

namespace {

constexpr int kBlockBytes = 64 * 1024;

QVector<QVector<QByteArray>> Utf8Of(const QVector<QStringList> &texts)
{
    QVector<QVector<QByteArray>> bytes;
    for (const QStringList &line : texts) {
        bytes.append(QVector<QByteArray>());
        for (const QString &text : line)
            bytes.last().append(text.toUtf8());
    }
    return bytes;
}

// Rows of one fetch have one time.
class CTimeText
{
public:
    const QByteArray &Of(qint64 timeMs)
    {
        if (m_text.isEmpty() || timeMs != m_timeMs) {
            m_timeMs = timeMs;
            m_text = ResultTime(timeMs).toLatin1();
        }
        return m_text;
    }

private:
    qint64 m_timeMs = 0;
    QByteArray m_text;
};

bool Flush(QIODevice &out, QByteArray &block)
{
    const bool isWhole = out.write(block) == block.size();
    block.clear();
    return isWhole;
}

}  // namespace

bool WriteRows(QIODevice &out, const SResultTable &table, const QByteArray &head,
               const GoesOn &goesOn, const AddLine &addLine)
{
    const QVector<QVector<QByteArray>> settings = Utf8Of(table.settingTexts);
    CResultReader reader(table.rows);
    CTimeText time;
    QByteArray block = head;
    QVector<QByteArray> cells;
    for (int row = 0; row < table.rows.Count(); ++row) {
        const SResultStamp stamp = table.rows.Stamp(row);
        cells.clear();
        cells.append(time.Of(stamp.timeMs));
        cells += reader.Cells(row);
        cells += settings.value(stamp.settings);
        addLine(block, cells);
        if (block.size() >= kBlockBytes && !(goesOn() && Flush(out, block)))
            return false;
    }
    return goesOn() && Flush(out, block);
}
