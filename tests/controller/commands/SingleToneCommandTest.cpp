// The single tone command, byte for byte.
#include <gtest/gtest.h>

#include "Controller/commands/NrCoreCmdBuilder.h"
#include "tests/controller/commands/PageDocuments.h"
#include "tests/controller/commands/WireBytes.h"

namespace {

QJsonObject Document(const TextMap &values)
{
    QJsonObject document = PackagedPage("NrSingleToneTxV7");
    Put(document, "cmdIf.request.group1", {{"band", "n1"}, {"txRoute", "1"}});
    Put(document, "cmdIf.request.group1", values);
    return document;
}

std::string Build(const QJsonObject &document)
{
    return HexOf(CNrCoreCmdBuilder().GetSingleToneTxCmdV7(document));
}

CWireBytes Defaults()
{
    return CWireBytes(28)
        .U32(0, 1)          // NR
        .U16(4, 1)          // n1
        .U16(6, 1)          // route 1
        .U16(8, 4096)       // AFC DAC
        .I16(10, 23 * 256)  // dBm
        .U32(12, 1950000)   // kHz
        .I32(20, 90);       // kHz
}

TEST(SingleToneCommand, DefaultsOfThePage)
{
    EXPECT_EQ(Build(Document({})), Defaults().Hex());
}

TEST(SingleToneCommand, EveryFieldAwayFromItsDefault)
{
    EXPECT_EQ(Build(Document({{"band", "n78"},
                              {"txRoute", "17"},
                              {"afcdac", "8191"},
                              {"txPowerValue", "-10.5"},
                              {"ulFrequency", "3549990"},
                              {"aggBwRegion", "BW1"},
                              {"aggBwKhzRange", "20 < BW1 <= 100MHz"},
                              {"ulFreqOffset", "-540 kHz"},
                              {"afcDataType", "true"}})),
              CWireBytes(28)
                  .U32(0, 1)
                  .U16(4, 78)
                  .U16(6, 17)
                  .U16(8, 8191)
                  .I16(10, -2688)
                  .U32(12, 3549990)
                  .U32(16, 100000)
                  .I32(20, -540)
                  .U32(24, 1)
                  .Hex());
}

TEST(SingleToneCommand, ToneOffsetIsTheOneOfTheChoice)
{
    for (int offset = -540; offset <= 540; offset += 90) {
        const QString text = QString::number(offset) + " kHz";
        EXPECT_EQ(Build(Document({{"ulFreqOffset", text}})), Defaults().I32(20, offset).Hex())
            << offset;
    }
}

TEST(SingleToneCommand, ToneOffsetThatIsNoChoiceIsZero)
{
    for (const char *text : {"", "91 kHz", "90"})
        EXPECT_EQ(Build(Document({{"ulFreqOffset", text}})), Defaults().I32(20, 0).Hex()) << text;
}

TEST(SingleToneCommand, EmptyDocumentKeepsTheRadioAlone)
{
    EXPECT_EQ(Build(QJsonObject()), CWireBytes(28).U32(0, 1).Hex());
}

}  // namespace
