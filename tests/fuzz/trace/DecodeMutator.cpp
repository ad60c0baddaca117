// Alters the function, the letter or the length of an input, and mostly a field of its record or request.
#include <algorithm>
#include <iterator>

#include "Trace/dictionary/Functions.h"
#include "tests/fuzz/common/FuzzTarget.h"
#include "tests/fuzz/common/JsonMutator.h"
#include "tests/fuzz/common/LayoutMutator.h"

namespace {

constexpr int kLongest = 4096;
constexpr int kHead = 3;           // function, letter, length of the request
constexpr int kMostRequest = 255;  // its length is one byte
const char kLetters[] = {'q', 'a', 'u'};
const char kBytes[] = {0, 1, 2, 3, 0x7f, static_cast<char>(0x80), static_cast<char>(0xff)};

char AnyByte(std::mt19937 &random)
{
    return FuzzOne(kBytes, random);
}

// The part of the input that its function's layout describes: the request in front of an answer, or the
// record behind it.
void AlterPart(QByteArray &input, std::mt19937 &random)
{
    constexpr auto kCount = static_cast<unsigned>(EFunction::Count);
    const auto byte = [&](int at) { return static_cast<unsigned char>(input[at]); };
    const SFunction &function = FunctionOf(static_cast<EFunction>(byte(0) % kCount));
    const int length = input[1] == 'a' ? std::min<int>(byte(2), input.size() - kHead) : 0;
    QByteArray request = input.mid(kHead, length);
    QByteArray record = input.mid(kHead + length);
    const SLayout *const layout = input[1] == 'q' ? function.request : function.answer;
    if (length > 0 && function.request != nullptr && FuzzBelow(random, 4) == 0)
        AlterRecord(*function.request, request, kMostRequest, random);
    else if (layout != nullptr)
        AlterRecord(*layout, record, kLongest - kHead - request.size(), random);
    if (input[1] == 'a')
        input[2] = static_cast<char>(request.size());
    input = input.left(kHead) + request + record;
}

}  // namespace

QByteArray MutateFuzzInput(const QByteArray &input, std::mt19937 &random)
{
    QByteArray altered = input.leftJustified(kHead, 'q');
    switch (FuzzBelow(random, 12)) {
    case 0:
        altered[0] = static_cast<char>(FuzzBelow(random, 256));
        break;
    case 1:
        altered[1] = FuzzOne(kLetters, random);
        altered[2] = static_cast<char>(FuzzBelow(random, 256));
        break;
    case 2:
        altered = altered.leftJustified(kHead + FuzzBelow(random, kLongest - kHead),
                                        AnyByte(random), true);
        break;
    case 3: {
        const int place = FuzzBelow(random, altered.size());
        const int end = std::min(altered.size(), place + 1 + FuzzBelow(random, 4));
        const char byte = AnyByte(random);
        for (int i = place; i < end; ++i)
            altered[i] = byte;
        break;
    }
    default:
        AlterPart(altered, random);
    }
    return altered;
}
