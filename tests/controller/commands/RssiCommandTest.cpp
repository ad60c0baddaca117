// The commands of the RSSI page, gain search and measurement, byte for byte.
#include "Controller/commands/NrCoreCmdBuilder.h"
#include "tests/controller/commands/PageDocuments.h"
#include "tests/controller/commands/WireBytes.h"
#include "tests/operations/TargetFixture.h"

namespace {

constexpr char kRequest[] = "cmdIf.request.group1";
constexpr char kFrequencies[] = "cmdIf.request.group2";
constexpr char kFound[] = "cmdIf.response.group1";

constexpr char kPath0[] = "Partial-On Path0";
constexpr char kPath1[] = "Partial-On Path1";
constexpr char kBoth[] = "Simultaneously";

// What a gain search has shown; every value its own.
const TextMap kGains = {{"path0MainRfGain", "60.1"},      {"path0DivRfGain", "59.5"},
                        {"path1MainRfGain", "58.25"},     {"path1DivRfGain", "57"},
                        {"path0MainDigtalGain", "-42"},   {"path0DivDigtalGain", "-0.99"},
                        {"path1MainDigtalGain", "53.97"}, {"path1DivDigtalGain", "0.03125"},
                        {"path0MainGainIdx", "17"},       {"path0DivGainIdx", "16"},
                        {"path1MainGainIdx", "15"},       {"path1DivGainIdx", "14"}};

QJsonObject Document(const TextMap &request = {}, const TextMap &gains = {})
{
    QJsonObject document = PackagedPage("NrRssiV7");
    Put(document, kRequest, {{"rxRoute", "1"}});
    Put(document, kRequest, request);
    Put(document, kFound, gains);
    return document;
}

class RssiCommandTest : public CTargetTest
{
protected:
    static std::string Build(const QJsonObject &document)
    {
        return HexOf(CNrCoreCmdBuilder().GetRssiCmdV7(document));
    }
};

CWireBytes Defaults()
{
    return CWireBytes(60)
        .U32(0, 1)        // plain route
        .U32(8, 1950000)  // the one frequency
        .U16(28, 1)       // n1
        .U16(30, 1)       // route 1
        .U8(32, 1)        // one path
        .U8(33, 1);       // one frequency
}

TEST_F(RssiCommandTest, DefaultsOfThePage)
{
    EXPECT_EQ(Build(Document()), Defaults().Hex());
}

TEST_F(RssiCommandTest, EveryFieldAwayFromItsDefaultOnPath1)
{
    QJsonObject document = Document({{"band", "n78"},
                                     {"routeType", "Type2"},
                                     {"rxRoute", "105"},
                                     {"calType", kPath1},
                                     {"powerMode", "LPM"},
                                     {"numFreq", "5"}},
                                    kGains);
    PutRow(document, kFrequencies, "dlFrequency",
           {"3300000", "3400000", "3500000", "3600000", "3800000"});
    EXPECT_EQ(Build(document), CWireBytes(60)
                                   .U32(0, 3)  // type 2 route with gain mode
                                   .U32(4, 1)  // LPM
                                   .U32(8, 3300000)
                                   .U32(12, 3400000)
                                   .U32(16, 3500000)
                                   .U32(20, 3600000)
                                   .U32(24, 3800000)
                                   .U16(28, 78)
                                   .U16(30, 105)
                                   .U8(32, 1)
                                   .U8(33, 5)
                                   .U32(36, 1)
                                   .I16(40, 1864)
                                   .I16(42, 1824)
                                   .I16(44, 1727)
                                   .I16(46, 1)
                                   .Hex());
}

TEST_F(RssiCommandTest, Path0TakesItsOwnGainsAndNegativeOnesTruncateTowardZero)
{
    EXPECT_EQ(Build(Document({{"calType", kPath0}}, kGains)),
              Defaults().I16(40, 1923).I16(42, 1904).I16(44, -1344).I16(46, -31).Hex());
}

TEST_F(RssiCommandTest, SimultaneouslyTakesIndexesAndGainsOfBothPaths)
{
    for (const char *text : {kBoth, "Simultaneously Path0", "Path1 Simultaneously"}) {
        EXPECT_EQ(Build(Document({{"calType", text}}, kGains)), Defaults()
                                                                    .U8(32, 0)
                                                                    .U32(36, 3)
                                                                    .U8(40, 17)
                                                                    .U8(41, 16)
                                                                    .U8(42, 15)
                                                                    .U8(43, 14)
                                                                    .I16(44, 1923)
                                                                    .I16(46, 1904)
                                                                    .I16(48, 1864)
                                                                    .I16(50, 1824)
                                                                    .I16(52, -1344)
                                                                    .I16(54, -31)
                                                                    .I16(56, 1727)
                                                                    .I16(58, 1)
                                                                    .Hex())
            << text;
    }
}

TEST_F(RssiCommandTest, CalTypeThatNamesNeitherPathFillsNoGains)
{
    EXPECT_EQ(Build(Document({{"calType", "Partial-On"}}, kGains)), Defaults().U32(36, 3).Hex());
}

TEST_F(RssiCommandTest, NoFrequencyLeavesAllFiveZero)
{
    QJsonObject document = Document({{"numFreq", "0"}});
    PutRow(document, kFrequencies, "dlFrequency", {"1", "2", "3", "4", "5"});
    EXPECT_EQ(Build(document), Defaults().U32(8, 0).U8(33, 0).Hex());
}

TEST_F(RssiCommandTest, FrequenciesBehindTheCountAreNotSent)
{
    QJsonObject document = Document({{"numFreq", "2"}});
    PutRow(document, kFrequencies, "dlFrequency", {"2110000", "2120000", "2130000"});
    EXPECT_EQ(Build(document), Defaults().U32(8, 2110000).U32(12, 2120000).U8(33, 2).Hex());
}

TEST_F(RssiCommandTest, CountBeyondTheRecordFillsItsFiveFrequenciesAlone)
{
    QJsonObject document = Document({{"numFreq", "200"}});
    PutRow(document, kFrequencies, "dlFrequency", {"1", "2", "3", "4", "5", "6", "7"});
    EXPECT_EQ(Build(document),
              Defaults().U32(8, 1).U32(12, 2).U32(16, 3).U32(20, 4).U32(24, 5).U8(33, 200).Hex());
}

TEST_F(RssiCommandTest, FrequencyThatIsMissingOrNoNumberIsZero)
{
    QJsonObject document = Document({{"numFreq", "3"}});
    PutRow(document, kFrequencies, "dlFrequency", {"2110000", "n1"});
    EXPECT_EQ(Build(document), Defaults().U32(8, 2110000).U8(33, 3).Hex());
}

TEST_F(RssiCommandTest, EmptyDocumentIsAPlainRouteInLowPower)
{
    EXPECT_EQ(Build(QJsonObject()), CWireBytes(60).U32(0, 1).U32(4, 1).U8(32, 1).U32(36, 3).Hex());
}

std::string Search(const TextMap &request)
{
    return HexOf(CNrCoreCmdBuilder().GetGainSearchCmdV7(Document(request)));
}

// Every gain mode its own.
TextMap Modes(const char *calType)
{
    return {{"calType", calType},       {"powerMode", "LPM"},      {"elnaModeMain", "G3"},
            {"elnaModeDiv", "G6"},      {"path0MainSearch", "g1"}, {"path0DivSearch", "g2"},
            {"path1MainSearch", "g10"}, {"path1DivSearch", "g11"}};
}

CWireBytes ModesFrame()
{
    return CWireBytes(20).U32(0, 1).U32(4, 1).U8(12, 3).U8(13, 6);
}

TEST(GainSearchCommand, DefaultsOfThePage)
{
    EXPECT_EQ(Search({}), CWireBytes(20).U32(0, 1).Hex());
}

TEST(GainSearchCommand, OnePathSendsItsTwoGainModes)
{
    EXPECT_EQ(Search(Modes(kPath0)), ModesFrame().U8(14, 1).U8(15, 2).Hex());
    EXPECT_EQ(Search(Modes(kPath1)), ModesFrame().U8(14, 10).U8(15, 11).Hex());
}

TEST(GainSearchCommand, CalTypeThatNamesNeitherPathIsPath1)
{
    EXPECT_EQ(Search(Modes("Partial-On")), ModesFrame().U8(14, 10).U8(15, 11).Hex());
}

TEST(GainSearchCommand, SimultaneouslySendsTheGainModesOfBothPaths)
{
    for (const char *text : {kBoth, "Simultaneously Path1", "Path0 Simultaneously"})
        EXPECT_EQ(Search(Modes(text)),
                  ModesFrame().U32(8, 1).U8(14, 1).U8(15, 2).U8(16, 10).U8(17, 11).Hex())
            << text;
}

TEST(GainSearchCommand, EmptyModeIsZero)
{
    TextMap modes = Modes(kPath0);
    for (const char *member : {"elnaModeMain", "elnaModeDiv", "path0MainSearch", "path0DivSearch"})
        modes[member] = "";
    EXPECT_EQ(Search(modes), CWireBytes(20).U32(0, 1).U32(4, 1).Hex());
}

TEST(GainSearchCommand, EmptyDocumentIsPath1InLowPower)
{
    EXPECT_EQ(HexOf(CNrCoreCmdBuilder().GetGainSearchCmdV7(QJsonObject())),
              CWireBytes(20).U32(0, 1).U32(4, 1).Hex());
}

}  // namespace
