#include "View/results/CsvWriter.h"

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

QByteArray CsvField(const QByteArray &text)
{
    bool isPlain = true;
    for (const char byte : text)
        isPlain = isPlain && byte != ',' && byte != '"' && byte != '\r' && byte != '\n';
    if (isPlain)
        return text;
    QByteArray quoted = text;
    quoted.replace('"', "\"\"");
    return '"' + quoted + '"';
}

bool WriteCsv(QIODevice &out, const SResultTable &table, const GoesOn &goesOn)
{
    QVector<QByteArray> headers{kTimeHeader};
    for (const QString &header : table.headers)
        headers.append(header.toUtf8());
    QByteArray head;
    AddCsvLine(head, headers);
    return WriteRows(out, table, head, goesOn, AddCsvLine);
}
