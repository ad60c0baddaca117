// Alters a page's settings so that they stay JSON; a file that is no JSON is altered by its lines.
#include "tests/fuzz/common/FuzzTarget.h"
#include "tests/fuzz/common/JsonMutator.h"

namespace {

const char *const kTexts[] = {"",     "n78",  "3500010", "-1",    "1e999",
                              "true", "a\nb", "request", "\u0663"};
const char *const kLines[] = {"[General]",
                              "[compare]",
                              "geometry=@ByteArray(\\x1\\0\\xff)",
                              "geometry=@Rect(1 2 3 4)",
                              "folder=\"a, b\"",
                              "size=@Size(1)",
                              "a=@Variant(\\0\\0\\0\\b)",
                              "x=1, 2, \"3\"",
                              "[%General]",
                              "=",
                              "[",
                              "k=\"open"};

const SJsonWords &Words()
{
    static const SJsonWords words{
        {"version", "page", "request", "config", "group1", "group2", "band"},
        {0, 1, 2, -1, 0.5, 1e300},
        [](std::mt19937 &random) { return QString::fromUtf8(FuzzOne(kTexts, random)); }};
    return words;
}

}  // namespace

QByteArray MutateFuzzInput(const QByteArray &input, std::mt19937 &random)
{
    if (input.trimmed().startsWith('{'))
        return MutateJson(input, Words(), random);
    QByteArrayList lines = input.split('\n');
    const int at = FuzzBelow(random, lines.size());
    const char *const line = FuzzOne(kLines, random);
    switch (FuzzBelow(random, 4)) {
    case 0:
        lines.removeAt(at);
        break;
    case 1:
        lines[at] = line;
        break;
    case 2:
        lines.swapItemsAt(at, FuzzBelow(random, lines.size()));
        break;
    default:
        lines.insert(at, line);
    }
    return lines.join('\n');
}
