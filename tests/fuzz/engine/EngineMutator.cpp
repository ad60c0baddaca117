// One part of an input altered: the document, an action, or a report.
#include <iterator>

#include "tests/fuzz/common/FuzzTarget.h"
#include "tests/fuzz/common/JsonMutator.h"
#include "tests/fuzz/engine/FuzzInput.h"
#include "tests/fuzz/engine/FuzzVariant.h"

namespace {

const char *const kMembers[] = {"a", "b", "c", "n", "m", "x", "y", "t", "on", "of", "f", "r", ""};
const char *const kGroups[] = {"request.g1",  "request.g2",  "config.g1",   "config.g2",
                               "response.g1", "response.g2", "response.g3", "data.g1",
                               "data.g2",     "data.g3"};
const char *const kKeys[] = {
    "groupType",
    "memberList",
    "memberProperty",
    "memberValue",
    "instanceList",
    "instanceProperty",
    "dimentionCount",
    "startIndex",
    "indexStep",
    "colFieldCaptionList",
    "caption",
    "defaultSupport",
    "defaultEnableStatus",
    "subscribeValue",
    "subscribeValueList",
    "publishValueList",
    "publishEnableStatusList",
    "subscribeEnableStatusList",
    "trait",
    "dataType",
    "defaultValue",
    "value",
    "valuePair",
    "enableStatusPair",
    "min",
    "max",
    "decimals",
    "displayBase",
    "rangeCheck",
    "modelIntegrity",
    "integrity",
    "messageList",
    "emptyModel",
    "i0",
    "1",
    "true",
};
const char *const kTexts[] = {"list",          "range", "pointRange",        "label", "boolean",
                              "unsignedRange", "1,2",   "0,1920000~1980000", "1~5,7", "~",
                              ",~,-5~"};
constexpr char kActionKeys[] = "vvvvtttwwfpouuaaehskl";
constexpr int kShown = 94;  // printable characters behind the blank

QString Text(std::mt19937 &random)
{
    switch (FuzzBelow(random, 4)) {
    case 0:
        return FuzzText(static_cast<uint8_t>(FuzzBelow(random, 256)));
    case 1:
        return QLatin1String(FuzzOne(kGroups, random)) + QLatin1String(".memberProperty.") +
               QLatin1String(FuzzOne(kMembers, random));
    case 2:
        return QLatin1String(FuzzOne(kMembers, random));
    default:
        return QLatin1String(FuzzOne(kTexts, random));
    }
}

// Keys of the format, and every third one a member.
std::vector<const char *> Keys()
{
    std::vector<const char *> keys(std::begin(kKeys), std::end(kKeys));
    for (size_t i = 0; i < std::size(kKeys) / 2; ++i)
        keys.push_back(kMembers[i % std::size(kMembers)]);
    return keys;
}

const SJsonWords &Words()
{
    static const SJsonWords kWords{Keys(),
                                   {0,    1,       2,        3,      4,           16,
                                    36,   37,      -1,       0.5,    9,           17,
                                    64,   99,      1023,     1025,   2147483647,  -2147483648.0,
                                    1e19, 1.7e308, -1.7e308, 5e-324, 4294967295.0},
                                   Text};
    return kWords;
}

QByteArray MutateActions(QByteArray actions, std::mt19937 &random)
{
    const int at = FuzzBelow(random, actions.size() / 4 + 1) * 4;
    if (FuzzBelow(random, 3) == 0) {
        actions.remove(at, 4);
        return actions;
    }
    QByteArray action("    ");
    action[0] = kActionKeys[FuzzBelow(random, static_cast<int>(sizeof(kActionKeys)) - 1)];
    action[1] = static_cast<char>('a' + FuzzBelow(random, 26));
    action[2] = static_cast<char>(' ' + 1 + FuzzBelow(random, kShown));
    return actions.insert(at, action);
}

}  // namespace

QByteArray MutateFuzzInput(const QByteArray &input, std::mt19937 &random)
{
    QList<QByteArray> parts = CutInput(input);
    if (parts.size() < 2)
        parts.append(QByteArray());
    const int part = FuzzBelow(random, 2) == 0 ? 0 : FuzzBelow(random, parts.size());
    parts[part] =
        part == 1 ? MutateActions(parts[part], random) : MutateJson(parts[part], Words(), random);
    return JoinInput(parts);
}
