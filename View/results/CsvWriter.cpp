#include "View/results/CsvWriter.h"

#include "Support/CsvField.h"

namespace {

void AddCsvLine(QByteArray &out, const QVector<QByteArray> &cells)
{
    bool isFirst = true;
    for (const QByteArray &cell : cells) {
        if (!isFirst)
            out += ',';
        out += CsvField(cell);
        isFirst = false;
    }
    out += "\r\n";
}

}  // namespace

bool WriteCsv(QIODevice &out, const SResultTable &table, const GoesOn &goesOn)
{
    QVector<QByteArray> headers{kTimeHeader};
    for (const QString &header : table.headers)
        headers.append(header.toUtf8());
    QByteArray head;
    AddCsvLine(head, headers);
    return WriteRows(out, table, head, goesOn, AddCsvLine);
}
