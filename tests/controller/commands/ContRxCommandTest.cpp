// The continuous RX command, byte for byte.
#include "Controller/commands/NrCoreCmdBuilder.h"
#include "tests/controller/commands/PageDocuments.h"
#include "tests/controller/core/CoreFixture.h"

namespace {

using Bytes = std::vector<int>;  // 0 to 255 each, so that a failure prints as numbers

class ContRxCommandTest : public CTargetTest
{
protected:
    static Bytes Build(const QJsonObject &document)
    {
        const SMMContRxCmdV7 command = CNrCoreCmdBuilder().GetContRxCmdV7(document);
        const auto *bytes = reinterpret_cast<const uint8_t *>(&command);
        return Bytes(bytes, bytes + sizeof command);
    }
    static Bytes Build(const TextMap &values) { return Build(Packaged(values)); }
};

// The records stand field by field.
// clang-format off

TEST_F(ContRxCommandTest, DefaultsOfThePage)
{
    QJsonObject document = PackagedPage("NrContRxV7");
    Put(document, "cmdIf.request.group1", {{"rxRoute", "1"}});
    EXPECT_EQ(Build(document), (Bytes{
        1, 0, 0, 0,              // route kind
        0, 0, 0, 0,              // HPM
        0x88, 0x13, 0, 0,        // 5000 kHz
        1, 0,                    // n1
        1, 0,                    // route 1
        1, 0, 0, 0,              // one path
        0, 0, 0, 0,              // path 0
        0x83, 0x07, 0x83, 0x07,  // 60.1 dB: 1923
        0, 0, 0, 0, 0, 0, 0, 0,
        0x30, 0xC1, 0x1D, 0}));  // 1950000 kHz
}

TEST_F(ContRxCommandTest, Type1RouteOnPath0)
{
    EXPECT_EQ(Build(GoodValues()), (Bytes{
        1, 0, 0, 0,              // route kind
        0, 0, 0, 0,              // HPM
        0x88, 0x13, 0, 0,        // 5000 kHz
        1, 0,                    // n1
        1, 0,                    // route 1
        1, 0, 0, 0,              // one path
        0, 0, 0, 0,              // path 0
        0x83, 0x07,              // 60.1 dB: 1923
        0x70, 0x07,              // 59.5 dB: 1904
        0, 0, 0, 0, 0, 0, 0, 0,
        0x60, 0xA7, 0x20, 0}));  // 2140000 kHz
}

TEST_F(ContRxCommandTest, GainModeRouteOnPath0)
{
    TextMap values = GoodValues();
    values["rxRoute"] = "101";
    EXPECT_EQ(Build(values), (Bytes{
        3, 0, 0, 0,              // type 2 route with gain mode
        0, 0, 0, 0,
        0x88, 0x13, 0, 0,
        1, 0,
        101, 0,
        1, 0, 0, 0,
        0, 0, 0, 0,
        0x83, 0x07, 0x70, 0x07,
        0, 0, 0, 0, 0, 0, 0, 0,
        0x60, 0xA7, 0x20, 0}));
}

TEST_F(ContRxCommandTest, GainModeRouteOnPath1InLowPowerMode)
{
    TextMap values = GoodValues();
    values["rxRoute"] = "105";
    values["band"] = "n78";
    values["dlBw"] = "100M";
    values["dlFrequency"] = "3549990";
    values["calType"] = "Partial-On Path1";
    values["powerMode"] = "LPM";
    EXPECT_EQ(Build(values), (Bytes{
        3, 0, 0, 0,
        1, 0, 0, 0,              // LPM
        0xA0, 0x86, 0x01, 0,     // 100000 kHz
        78, 0,
        105, 0,
        1, 0, 0, 0,
        1, 0, 0, 0,              // path 1
        0x48, 0x07,              // 58.25 dB: 1864
        0x20, 0x07,              // 57 dB: 1824
        0, 0, 0, 0, 0, 0, 0, 0,
        0x26, 0x2B, 0x36, 0}));  // 3549990 kHz
}

TEST_F(ContRxCommandTest, BothPathsSimultaneously)
{
    EXPECT_EQ(Build(BothPathsValues()), (Bytes{
        3, 0, 0, 0,
        0, 0, 0, 0,
        0x88, 0x13, 0, 0,
        1, 0,
        101, 0,
        0, 0, 0, 0,              // not one path
        3, 0, 0, 0,              // no single path is meant
        16, 15, 14, 13,          // gain indices
        0x83, 0x07, 0x70, 0x07,  // path 0
        0x48, 0x07, 0x20, 0x07,  // path 1
        0x60, 0xA7, 0x20, 0}));
}

TEST_F(ContRxCommandTest, CalTypeThatNamesNeitherPathFillsNoGains)
{
    TextMap values = GoodValues();
    values["calType"] = "Partial-On";
    EXPECT_EQ(Build(values), (Bytes{
        1, 0, 0, 0,
        0, 0, 0, 0,
        0x88, 0x13, 0, 0,
        1, 0,
        1, 0,
        1, 0, 0, 0,
        3, 0, 0, 0,
        0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
        0x60, 0xA7, 0x20, 0}));
}

TEST_F(ContRxCommandTest, MissingKeysReadAsEmptyTexts)
{
    const Bytes nothing = {
        1, 0, 0, 0,              // plain route
        1, 0, 0, 0,              // no "HPM"
        0, 0, 0, 0,
        0, 0,
        0, 0,
        1, 0, 0, 0,              // no "Simultaneously"
        3, 0, 0, 0,              // names neither path
        0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
        0, 0, 0, 0};
    EXPECT_EQ(Build(TextMap()), nothing);
    EXPECT_EQ(Build(QJsonObject()), nothing);
    EXPECT_EQ(Build(QJsonObject{{"cmdIf", "no object"}}), nothing);
}

// clang-format on

TEST_F(ContRxCommandTest, Type2RouteWithoutGainModeIsAPlainOne)
{
    TextMap values = GoodValues();
    values["rxRoute"] = "107";
    const Bytes bytes = Build(values);
    EXPECT_EQ(Bytes(bytes.begin(), bytes.begin() + 4), (Bytes{1, 0, 0, 0}));
    EXPECT_EQ(bytes[14], 107);
}

TEST_F(ContRxCommandTest, SimultaneouslyRulesWhateverElseTheTextHolds)
{
    TextMap values = BothPathsValues();
    const Bytes expected = Build(values);
    for (const char *text : {"Simultaneously Path0", "Path1 Simultaneously", "xSimultaneouslyx"}) {
        values["calType"] = text;
        EXPECT_EQ(Build(values), expected) << text;
    }
}

TEST_F(ContRxCommandTest, PowerModeIsHighWhereverTheWordStands)
{
    TextMap values = GoodValues();
    for (const char *text : {"HPM", "HPM mode", "xHPM"}) {
        values["powerMode"] = text;
        EXPECT_EQ(Build(values)[4], 0) << text;
    }
    for (const char *text : {"LPM", "hpm", "", "AUTO"}) {
        values["powerMode"] = text;
        EXPECT_EQ(Build(values)[4], 1) << text;
    }
}

TEST_F(ContRxCommandTest, EachMissingKeyTouchesItsOwnFieldAlone)
{
    const Bytes whole = Build(BothPathsValues());
    struct SField
    {
        const char *key;
        int offset;
        int size;
    };
    constexpr SField fields[] = {{"dlBw", 8, 4},
                                 {"band", 12, 2},
                                 {"path0MainGainIdx", 24, 1},
                                 {"path0DivGainIdx", 25, 1},
                                 {"path1MainGainIdx", 26, 1},
                                 {"path1DivGainIdx", 27, 1},
                                 {"path0MainRfGain", 28, 2},
                                 {"path0DivRfGain", 30, 2},
                                 {"path1MainRfGain", 32, 2},
                                 {"path1DivRfGain", 34, 2},
                                 {"dlFrequency", 36, 4}};
    for (const SField &field : fields) {
        TextMap values = BothPathsValues();
        values.remove(field.key);
        Bytes expected = whole;
        std::fill_n(expected.begin() + field.offset, field.size, 0);
        EXPECT_EQ(Build(values), expected) << field.key;
    }
}

TEST_F(ContRxCommandTest, NumbersInPlaceOfTextsReadAsEmpty)
{
    QJsonObject document = Packaged({});
    document["cmdIf"] = QJsonObject{
        {"request",
         QJsonObject{{"group1", QJsonObject{{"memberValue", QJsonObject{{"rxRoute", 101},
                                                                        {"dlFrequency", 1}}}}}}}};
    EXPECT_EQ(Build(document), Build(QJsonObject()));
}

TEST_F(ContRxCommandTest, NegativeAndFractionalGainsTruncateTowardZero)
{
    TextMap values = GoodValues();
    values["path0MainRfGain"] = "-0.99";  // -31.68
    values["path0DivRfGain"] = "0.99";
    const Bytes bytes = Build(values);
    EXPECT_EQ(Bytes(bytes.begin() + 24, bytes.begin() + 28), (Bytes{0xE1, 0xFF, 31, 0}));
}

TEST_F(ContRxCommandTest, RouteTableThatCannotBeReadMakesEveryRouteAPlainOne)
{
    Fault(kRouteConfig);
    TextMap values = GoodValues();
    values["rxRoute"] = "101";
    EXPECT_EQ(Build(values)[0], 1);
}

TEST_F(ContRxCommandTest, BuildingAsksTheTargetForItsRoutesOnceAndNothingElse)
{
    Build(GoodValues());
    Build(BothPathsValues());
    EXPECT_EQ(CalledFunctions(), std::vector<std::string>{kRouteConfig});
}

}  // namespace
