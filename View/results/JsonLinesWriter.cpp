#include "View/results/JsonLinesWriter.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace {

bool IsDigit(char byte)
{
    return byte >= '0' && byte <= '9';
}

// Behind the digits that begin at from; from, when there is none.
int EndOfDigits(const QByteArray &text, int from)
{
    while (from < text.size() && IsDigit(text.at(from)))
        ++from;
    return from;
}

// By the grammar of RFC 8259: "007" and ".5" are texts.
bool IsJsonNumber(const QByteArray &text)
{
    int at = text.startsWith('-') ? 1 : 0;
    const int whole = EndOfDigits(text, at);
    if (whole == at || (text.at(at) == '0' && whole > at + 1))
        return false;
    at = whole;
    if (at < text.size() && text.at(at) == '.') {
        const int end = EndOfDigits(text, at + 1);
        if (end == at + 1)
            return false;
        at = end;
    }
    if (at < text.size() && (text.at(at) == 'e' || text.at(at) == 'E')) {
        const bool isSigned =
            at + 1 < text.size() && (text.at(at + 1) == '-' || text.at(at + 1) == '+');
        const int digits = at + (isSigned ? 2 : 1);
        const int end = EndOfDigits(text, digits);
        if (end == digits)
            return false;
        at = end;
    }
    return at == text.size();
}

// Qt escapes what has to be.
QByteArray JsonText(const QByteArray &text)
{
    const QByteArray list =
        QJsonDocument(QJsonArray{QString::fromUtf8(text)}).toJson(QJsonDocument::Compact);
    return list.mid(1, list.size() - 2);
}

}  // namespace

QByteArray JsonValueText(const QByteArray &text)
{
    return IsJsonNumber(text) ? text : JsonText(text);
}

bool WriteJsonLines(QIODevice &out, const SResultTable &table, const GoesOn &goesOn)
{
    QVector<QByteArray> keys{JsonText(kTimeHeader)};
    for (const QString &header : table.headers)
        keys.append(JsonText(header.toUtf8()));
    const QByteArray head = QJsonDocument(table.settings).toJson(QJsonDocument::Compact) + '\n';
    const auto addLine = [&keys](QByteArray &line, const QVector<QByteArray> &cells) {
        for (int i = 0; i < cells.size() && i < keys.size(); ++i)
            line += (i == 0 ? '{' : ',') + keys.at(i) + ':' + JsonValueText(cells.at(i));
        line += "}\n";
    };
    return WriteRows(out, table, head, goesOn, addLine);
}
