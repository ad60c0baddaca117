// Alters a calibration file so that most of it stays one: a line, a value of a list, a heading or a
// whole section at a time.
#include <iterator>

#include <QList>

#include "tests/fuzz/common/FuzzTarget.h"
#include "tests/fuzz/common/JsonMutator.h"

namespace {

const char *const kHeadings[] = {
    "[NR n1 BW0 TPC]",
    "[NR n1 BW1 TPC]",
    "[NR n1 CA1 BW0 TPC]",
    "[NR n3 BW0 TPC]",
    "[NR n1 RX loss]",
    "[NR n1 RXD loss]",
    "[NR n1 Route CA1 RX loss]",
    "[NR n1 Route CA1 RXD loss]",
    "[NR n3 RX loss]",
    "[NR n3 RXD loss]",
    "[NR n1 Route NCCA0 RX loss]",
    "[NR n1 Route NCCA0 RXD loss]",
    "[NR n3 Route NCCA0 RX loss]",
    "[NR n3 Route NCCA0 RXD loss]",
    "[nr N1 bw0 tpc]",
    "[LTE BAND1 BW0 TPC]",
    "[]",
    "[NR n1 BW0 TPC",
    "[ NR n1 BW0 TPC ]",
    "[NR n1 BW0 TPC]]",
};
const char *const kKeys[] = {
    "RF Chip ID",
    "Route",
    "Comp Route",
    "Temperature Index",
    "Pa section number",
    "Pa mode number",
    "Pa mode prf_idx",
    "Tx compensation pa gain frequency(1KHz)",
    "Pa mode map",
    "Pa control dc2dc level",
    "Pa control prf",
    "Pa control pa gain",
    "256QAM usage",
    "Tx compensation power detector coupler loss 0",
    "Tx compensation power detector coupler loss 2",
    "Temperature Offset pa gain pa 0",
    "Temperature Offset Power detector pa 1",
    "Tx compensation pa gain pa 2",
    "Tx compensation power detector pa 0",
    "DL Frequency(1KHz)",
    "Temperature Offset",
    "RX loss hpm G0,g1",
    "RX loss hpm G2,g2",
    "RX loss lpm G0,g0",
    "RX srx path0 partial on loss for hpm G0,g1",
    "RX srx path1 partial on loss for hpm G2,g2",
    "RX srx path0 partial on loss for lpm G0,g0",
    "RX srx path0 gbg loss for hpm G0,g1,g1",
    "RX srx path1 gbg loss for hpm G2,g2,g2",
    "RX srx path0 gbg loss for lpm G0,g0,g0",
    "RX srx path1 gbg loss for lpm G6,g0,g1",
    "",
};
const char *const kValues[] = {
    "0",
    "1",
    "-1",
    "3",
    "15",
    "16",
    "64",
    "255",
    "256",
    "32767",
    "32768",
    "-32769",
    "65535",
    "65536",
    "4.9e9",
    "1e308",
    "1e999",
    "-1e999",
    "4294967295",
    "4294967296",
    "99999999999999999999",
    "0.1V",
    "3.4V",
    "25.5V",
    "25.6V",
    "-1V",
    "V",
    "xV",
    "1e999V",
    "1e-999V",
    "nan",
    "nanV",
    "-nan",
    "inf",
    "infV",
    "-0.03",
    "0.03125",
    "-1024",
    "1024.5",
    "1e-320",
    "0x10",
    "+5",
    "+-5",
    "--5",
    " 7 ",
    "",
    "VR6240",
    "VR6241",
    "\xc3\xa9",
    "\xff",
    "\xf0\x9f\x92\xa9",
    "\xed\xa0\x80",
    "1;2",
    "a=b",
    ".",
};
const char *const kLines[] = {
    "",      "; Route = 1",  "# Route = 1", "=",           "= 1",
    "Route", "Route =",      "<<<END",      "END_OF_TEXT", "[",
    "]",     "\xef\xbb\xbf", "\t",          "Route==1",    "Route = <<<END",
};
// Places of lists, as many as a field has and one beside.
constexpr int kLengths[] = {0, 1, 2, 3, 4, 8, 9, 10, 11, 16, 17, 32, 48, 63, 64, 65, 100};

bool IsHeading(const QByteArray &line)
{
    return line.startsWith('[');
}

QByteArray AlteredList(const QByteArray &value, std::mt19937 &random)
{
    QList<QByteArray> items = value.split(',');
    const int at = FuzzBelow(random, items.size());
    switch (FuzzBelow(random, 6)) {
    case 0:
        items.removeAt(at);
        break;
    case 1:
        items.insert(at, FuzzOne(kValues, random));
        break;
    case 2: {
        const int length = FuzzOne(kLengths, random);
        while (items.size() > length)
            items.removeLast();
        while (items.size() < length)
            items.append(items.isEmpty() ? QByteArray("1") : QByteArray(items.first()));
        break;
    }
    case 3:
        items[at] = items[FuzzBelow(random, items.size())];
        break;
    default:
        items[at] = FuzzOne(kValues, random);
    }
    return items.join(',');
}

// A line of a key with its key or its value altered; any other line gives way to an odd one.
QByteArray AlteredLine(const QByteArray &line, std::mt19937 &random)
{
    if (IsHeading(line))
        return FuzzOne(kHeadings, random);
    const int equals = line.indexOf('=');
    if (equals < 0)
        return FuzzOne(kLines, random);
    const QByteArray key = line.left(equals).trimmed();
    const QByteArray value = line.mid(equals + 1).trimmed();
    if (FuzzBelow(random, 5) == 0)
        return QByteArray(FuzzOne(kKeys, random)) + " = " + value;
    if (FuzzBelow(random, 8) == 0)
        return key + " = " + FuzzOne(kValues, random);
    return key + " = " + AlteredList(value, random);
}

QByteArray FreshLine(std::mt19937 &random)
{
    switch (FuzzBelow(random, 4)) {
    case 0:
        return FuzzOne(kHeadings, random);
    case 1:
        return FuzzOne(kLines, random);
    default:
        return QByteArray(FuzzOne(kKeys, random)) + " = " + FuzzOne(kValues, random);
    }
}

// The lines of the section that the line lies in.
void FindSection(const QList<QByteArray> &lines, int at, int &first, int &end)
{
    first = at;
    while (first > 0 && !IsHeading(lines[first]))
        --first;
    end = at + 1;
    while (end < lines.size() && !IsHeading(lines[end]))
        ++end;
}

void AlterSection(QList<QByteArray> &lines, int at, std::mt19937 &random)
{
    int first = 0;
    int end = 0;
    FindSection(lines, at, first, end);
    QList<QByteArray> section = lines.mid(first, end - first);
    switch (FuzzBelow(random, 4)) {
    case 0:
        lines.erase(lines.begin() + first, lines.begin() + end);
        break;
    case 1:  // the same once more, under another heading
        section.first() = FuzzOne(kHeadings, random);
        lines.append(section);
        break;
    case 2:
        lines.append(section);
        break;
    default:
        lines[first] = FuzzOne(kHeadings, random);
    }
}

}  // namespace

QByteArray MutateFuzzInput(const QByteArray &input, std::mt19937 &random)
{
    QList<QByteArray> lines = input.split('\n');
    const int at = FuzzBelow(random, lines.size());
    switch (FuzzBelow(random, 8)) {
    case 0:
        lines.removeAt(at);
        break;
    case 1:
        lines.insert(at, FreshLine(random));
        break;
    case 2:
        lines.insert(at, QByteArray(lines[FuzzBelow(random, lines.size())]));
        break;
    case 3:
        AlterSection(lines, at, random);
        break;
    default:
        lines[at] = AlteredLine(lines[at], random);
    }
    return lines.join('\n');
}
