// Alters a backup so that it stays JSON; a block that was cut is made whole now and then.
#include <QJsonArray>
#include <QJsonObject>

#include "Operations/calibration/CalBlockImage.h"
#include "tests/fuzz/common/FuzzTarget.h"
#include "tests/fuzz/common/JsonMutator.h"

namespace {

// A TX block is short enough for an input; those of RX are not.
QString Text(std::mt19937 &random)
{
    static const char *const kTexts[] = {"TX", "T1", "T2", "apt", "pathloss", "VR6211",
                                         "\n", "",   "4e", "zz",  "a\u0001b"};
    const int choice = FuzzBelow(random, 16);
    if (choice < static_cast<int>(std::size(kTexts)))
        return QString::fromUtf8(kTexts[choice]);
    const int size = static_cast<int>(CalBlockSize(ECalRoute::Tx));
    return QString::fromLatin1(QByteArray(size, static_cast<char>(random())).toHex());
}

const SJsonWords &Words()
{
    static const SJsonWords words{{"format", "version", "item", "chip", "handle", "time", "routes",
                                   "records", "unread", "kind", "band", "route", "regions",
                                   "bandwidth", "blocks", "record", "why"},
                                  {0, 1, 2, 7, 78, 101, 255, 20000, 100000, 65535, 65536,
                                   4294967295.0, 4294967296.0, -1, 0.5, 1e300},
                                  Text};
    return words;
}

}  // namespace

QByteArray MutateFuzzInput(const QByteArray &input, std::mt19937 &random)
{
    return MutateJson(input, Words(), random);
}
