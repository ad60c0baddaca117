// Any text as cells of the clipboard: it is read, nothing is lost, and what is written of it reads as the
// same.
#include "View/engine/ClipboardText.h"
#include "tests/fuzz/common/FuzzTarget.h"

namespace {

qsizetype LettersOf(const CellRows &rows)
{
    qsizetype letters = 0;
    for (const QStringList &row : rows) {
        for (const QString &cell : row)
            letters += cell.size();
    }
    return letters;
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<int>(size));
    const CellRows rows = CellsOfText(text);
    Require(rows.empty() == text.isEmpty(), "a text has rows, and no text has none");
    Require(LettersOf(rows) <= text.size(), "no letter is made up");
    for (const QStringList &row : rows)
        Require(!row.isEmpty(), "a row has a cell");
    if (!text.contains(QLatin1Char('"'))) {
        const int ends = text.count(QLatin1Char('\t')) + text.count(QLatin1Char('\n')) +
                         text.count(QLatin1Char('\r'));
        Require(LettersOf(rows) == text.size() - ends, "without quotations no letter is lost");
    }
    Require(CellsOfText(TextOfCells(rows)) == rows, "what is written reads as the same");
    return 0;
}
