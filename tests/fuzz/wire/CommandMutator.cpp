// New inputs of CommandFuzz: mostly another value at a place that the page's document has.
#include <iterator>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include "tests/fuzz/common/FuzzTarget.h"
#include "tests/fuzz/common/JsonMutator.h"
#include "tests/fuzz/wire/CommandInput.h"
#include "tests/fuzz/wire/FuzzAnswers.h"
#include "tests/fuzz/wire/FuzzPages.h"

namespace {

constexpr int kMaxDepth = 9;    // of a place
constexpr int kMaxRow = 70;     // texts of a row: more than there are subbands
constexpr int kMaxBytes = 300;  // of the records

const char *const kTexts[] = {
    "",
    "0",
    "1",
    "2",
    "3",
    "5",
    "-1",
    "10",
    "16",
    "17",
    "35",
    "64",
    "99",
    "255",
    "256",
    "65535",
    "65536",
    "-32768",
    "4294967295",
    "99999999999999999999",
    "1.5",
    "-10.5",
    "0.015625",
    "1e300",
    "1e999",
    "-inf",
    "nan",
    "0x10",
    "true",
    "false",
    "n",
    "n1",
    "n78",
    "n65536",
    "G",
    "G0",
    "G6",
    "G7",
    "g2",
    "HPM",
    "LPM",
    "AUTO",
    "Type1",
    "Type2",
    "BW0",
    "BW3",
    "BW9",
    "B",
    "4x4",
    "2x2",
    "CC1,CC2",
    "15kHz",
    "30kHz",
    "60kHz",
    "79",
    "273 RB",
    "5M",
    "M",
    "0 < BW0 <= 20MHz",
    "MHz",
    " ",
    "DFT_S_BPSK",
    "CP_256QAM",
    "Pseudo TX/RX",
    "0.1V",
    "9.9V",
    "NA",
    "Simultaneously",
    "Partial-On Path0",
    "Partial-On Path1",
    "NrRsrpNormalModeV7",
    "request.group1.memberProperty.band",
    "\u0663",
    "config.group1.memberProperty.powerMode",
};
constexpr double kNumbers[] = {0, 1, 2, 3, 4, -1, 0.5, 64, 65, 1e19, -1e300, 4294967296.0};
const char *const kKeys[] = {
    "dut",
    "page",
    "document",
    "bytes",
    "fail",
    "cmdIf",
    "calDataIf",
    "request",
    "config",
    "response",
    "data",
    "group1",
    "group2",
    "group4",
    "group12",
    "memberList",
    "memberProperty",
    "memberValue",
    "instanceList",
    "groupType",
    "trait",
    "defaultValue",
    "value",
    "valuePair",
    "dataType",
    "min",
    "max",
    "subscribeValue",
    "subscribeValueList",
    "dimentionCount",
    "modelName",
    "modelIntegrity",
    "messageList",
    "integrity",
    "caption",
    "1",
};

QString Text(std::mt19937 &random)
{
    return QString::fromUtf8(FuzzOne(kTexts, random));
}

const SJsonWords &Words()
{
    static const SJsonWords words{
        {std::begin(kKeys), std::end(kKeys)}, {std::begin(kNumbers), std::end(kNumbers)}, Text};
    return words;
}

// Where a value lies in the document: mostly among what the page has packaged.
QStringList Place(const QJsonObject &document, std::mt19937 &random)
{
    QStringList place;
    QJsonObject node = document;
    for (int depth = 0; depth < kMaxDepth && !node.isEmpty(); ++depth) {
        const QStringList keys = node.keys();
        const bool isGroup = keys.contains(QStringLiteral("memberValue"));
        place.append(isGroup && FuzzBelow(random, 3) != 0 ? QStringLiteral("memberValue")
                                                          : keys[FuzzBelow(random, keys.size())]);
        node = node[place.last()].toObject();
        if (depth > 2 && FuzzBelow(random, 12) == 0)
            break;
    }
    return place;
}

QJsonValue At(QJsonValue node, const QStringList &place)
{
    for (const QString &key : place)
        node = node.toObject().value(key);
    return node;
}

QJsonValue NewValue(const QJsonObject &document, std::mt19937 &random)
{
    switch (FuzzBelow(random, 9)) {
    case 0:
        return FuzzOne(kNumbers, random);
    case 1:
        return QJsonValue();
    case 2: {
        QJsonArray row;
        for (int i = FuzzBelow(random, kMaxRow); i > 0; --i)
            row.append(Text(random));
        return row;
    }
    case 3: {
        const QJsonValue other = At(document, Place(document, random));
        return other.isObject() ? QJsonValue(QJsonObject()) : other;
    }
    case 4:
        return QJsonObject{{QStringLiteral("min"), FuzzOne(kNumbers, random)},
                           {QStringLiteral("max"), FuzzOne(kNumbers, random)}};
    case 5:
        return QString::number(static_cast<int>(random()) % 70000);
    default:
        return Text(random);
    }
}

QJsonValue Put(const QJsonValue &patch, QStringList place, const QJsonValue &value)
{
    if (place.isEmpty())
        return value;
    QJsonObject object = patch.toObject();
    const QString key = place.takeFirst();
    object.insert(key, Put(QJsonValue(object.value(key)), place, value));
    return object;
}

QString MutateHex(const QString &hex, std::mt19937 &random)
{
    static const char *const kBytes[] = {"\xff\x7f", "\x00\x80", "\xff\xff",
                                         "\x01",     "\x00",     "\x0b"};
    QByteArray bytes = QByteArray::fromHex(hex.toLatin1());
    const int at = FuzzBelow(random, bytes.size() + 1);
    switch (FuzzBelow(random, 4)) {
    case 0:
        bytes.remove(at, 1 + FuzzBelow(random, 8));
        break;
    case 1:
        bytes.insert(at, FuzzOne(kBytes, random));
        break;
    default:
        if (at < bytes.size())
            bytes[at] = static_cast<char>(random());
        else
            bytes.append(static_cast<char>(random()));
    }
    return QString::fromLatin1(bytes.left(kMaxBytes).toHex());
}

}  // namespace

QByteArray MutateFuzzInput(const QByteArray &input, std::mt19937 &random)
{
    QJsonObject object = ReadJson(input).object();
    const int choice = FuzzBelow(random, 20);
    if (choice < 3)
        return MutateJson(input, Words(), random);
    if (choice < 5) {
        object["bytes"] = MutateHex(object["bytes"].toString(), random);
    } else if (choice == 5 && FuzzBelow(random, 2) == 0) {
        const QString flag =
            FuzzBelow(random, 3) == 0 ? QStringLiteral("others") : QStringLiteral("bad");
        object[flag] = !object[flag].toBool();
    } else if (choice == 5) {
        object["page"] = PageName(TargetPages()[static_cast<std::size_t>(
            FuzzBelow(random, static_cast<int>(TargetPages().size())))]);
    } else if (choice == 6) {
        object["dut"] = QString::fromLatin1(FuzzOne(FuzzAnswers::kDuts, random));
        object["fail"] = FuzzBelow(random, 3) == 0
                             ? QJsonArray{QStringLiteral("VOND_MMRf_GetRouteConfigV7_r")}
                             : QJsonArray();
    } else {
        const QJsonObject &document =
            BaseDocument(object["dut"].toString().toUtf8(), TargetPage(object["page"].toString()));
        object["document"] = Put(QJsonValue(object["document"]), Place(document, random),
                                 NewValue(document, random));
    }
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}
