// Alters the function, the letter, the length or a number of a record.
#include <algorithm>
#include <iterator>

#include "tests/fuzz/common/FuzzTarget.h"
#include "tests/fuzz/common/JsonMutator.h"

namespace {

constexpr int kLongest = 4096;
const char kLetters[] = {'q', 'a', 'u'};
const char kBytes[] = {0, 1, 2, 3, 0x7f, static_cast<char>(0x80), static_cast<char>(0xff)};

char AnyByte(std::mt19937 &random)
{
    return kBytes[FuzzBelow(random, static_cast<int>(std::size(kBytes)))];
}

}  // namespace

QByteArray MutateFuzzInput(const QByteArray &input, std::mt19937 &random)
{
    QByteArray altered = input.leftJustified(3, 'q');
    switch (FuzzBelow(random, 5)) {
    case 0:
        altered[0] = static_cast<char>(FuzzBelow(random, 256));
        break;
    case 1:
        altered[1] = kLetters[FuzzBelow(random, static_cast<int>(std::size(kLetters)))];
        altered[2] = static_cast<char>(FuzzBelow(random, 256));
        break;
    case 2:
        altered = altered.leftJustified(3 + FuzzBelow(random, kLongest - 3), AnyByte(random), true);
        break;
    default: {
        const int place = FuzzBelow(random, altered.size());
        const int end = std::min(altered.size(), place + 1 + FuzzBelow(random, 4));
        const char byte = AnyByte(random);
        for (int i = place; i < end; ++i)
            altered[i] = byte;
    }
    }
    return altered;
}
