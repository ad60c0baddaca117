// Alters a plan by its lines and words, so that most of it stays YAML.
#include <QByteArrayList>

#include "tests/fuzz/common/FuzzTarget.h"

namespace {

constexpr int kMostSteps = 4;

int Pick(std::mt19937 &random, int count)
{
    return static_cast<int>(random() % static_cast<unsigned>(count));
}

// Values where a plan has others.
constexpr const char *kValues[] = {"1",
                                   "-1",
                                   "0",
                                   "1e308",
                                   "a",
                                   "[]",
                                   "{}",
                                   "[a, b]",
                                   "{a: 1}",
                                   "true",
                                   "~",
                                   "\"\"",
                                   "30s",
                                   "0.1ms",
                                   "mid",
                                   "*a",
                                   "&a 1",
                                   "${hours}",
                                   "|",
                                   "- a",
                                   "99999999999999999999",
                                   "0.0000000001",
                                   "[[[[a]]]]"};

QByteArray OtherValue(const QByteArray &line, std::mt19937 &random)
{
    const int at = line.indexOf(':');
    const QByteArray value = kValues[Pick(random, static_cast<int>(std::size(kValues)))];
    return at < 0 ? value : line.left(at + 1) + ' ' + value;
}

void ChangeLine(QByteArrayList &lines, int line, std::mt19937 &random)
{
    switch (Pick(random, 6)) {
    case 0:
        lines.removeAt(line);
        break;
    case 1:
        lines.insert(Pick(random, lines.size() + 1), lines[line]);
        break;
    case 2:
        lines.swapItemsAt(line, Pick(random, lines.size()));
        break;
    case 3:
        lines[line].prepend(QByteArray(Pick(random, 5), ' '));
        break;
    case 4:
        lines[line] = lines[line].mid(Pick(random, 3));
        break;
    default:
        lines[line] = OtherValue(lines[line], random);
        break;
    }
}

}  // namespace

QByteArray MutateFuzzInput(const QByteArray &input, std::mt19937 &random)
{
    QByteArrayList lines = input.split('\n');
    const int steps = 1 + Pick(random, kMostSteps);
    for (int i = 0; i < steps && !lines.isEmpty(); ++i)
        ChangeLine(lines, Pick(random, lines.size()), random);
    return lines.join('\n');
}
