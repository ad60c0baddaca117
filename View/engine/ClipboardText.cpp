#include "View/engine/ClipboardText.h"

namespace {

constexpr QChar kTab = QLatin1Char('\t');
constexpr QChar kLf = QLatin1Char('\n');
constexpr QChar kCr = QLatin1Char('\r');
constexpr QChar kQuote = QLatin1Char('"');

bool IsEnd(QChar letter)
{
    return letter == kTab || letter == kLf || letter == kCr;
}

// Behind the quotation mark that closes the one at this place; 0 when none does.
int EndOfQuote(const QString &text, int from)
{
    for (int at = from + 1; at < text.size(); ++at) {
        if (text.at(at) != kQuote)
            continue;
        if (at + 1 == text.size() || text.at(at + 1) != kQuote)
            return at + 1;
        ++at;
    }
    return 0;
}

// Takes a cell, and leaves the place at what ends it. hasOpen: a quotation was found that is never
// closed; all later ones would look for its end again.
QString TakeCell(const QString &text, int &at, bool &hasOpen)
{
    QString cell;
    if (!hasOpen && at < text.size() && text.at(at) == kQuote) {
        const int end = EndOfQuote(text, at);
        hasOpen = end == 0;
        if (!hasOpen) {
            cell = text.mid(at + 1, end - at - 2);
            cell.replace(QLatin1String("\"\""), QLatin1String("\""));
            at = end;
        }
    }
    const int from = at;
    while (at < text.size() && !IsEnd(text.at(at)))
        ++at;
    return cell + text.mid(from, at - from);
}

QString Quoted(const QString &text)
{
    const bool isPlain = !text.contains(kTab) && !text.contains(kLf) && !text.contains(kCr) &&
                         !text.startsWith(kQuote);
    if (isPlain)
        return text;
    QString inside = text;
    inside.replace(QLatin1String("\""), QLatin1String("\"\""));
    return kQuote + inside + kQuote;
}

}  // namespace

CellRows CellsOfText(const QString &text)
{
    CellRows rows;
    int count = 0;
    bool hasOpen = false;
    int at = 0;
    while (at < text.size()) {
        rows.emplace_back();
        while (true) {
            if (++count > kMostClipboardCells)
                return {};
            rows.back().append(TakeCell(text, at, hasOpen));
            if (at == text.size() || text.at(at) != kTab)
                break;
            ++at;
        }
        if (at < text.size())
            at += text.at(at) == kCr && at + 1 < text.size() && text.at(at + 1) == kLf ? 2 : 1;
    }
    return rows;
}

QString TextOfCells(const CellRows &rows)
{
    QString text;
    for (const QStringList &row : rows) {
        for (int c = 0; c < row.size(); ++c)
            text += (c == 0 ? QString() : QString(kTab)) + Quoted(row.at(c));
        text += kLf;
    }
    return text;
}
