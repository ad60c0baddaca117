// The PUSCH commands, byte for byte.
#include <gtest/gtest.h>

#include "Controller/commands/NrCoreCmdBuilder.h"
#include "Support/Log.h"
#include "tests/common/LogCapture.h"
#include "tests/controller/commands/PageDocuments.h"
#include "tests/controller/commands/WireBytes.h"

namespace {

constexpr char kForced[] = "NrPuschTxForceModeV7";
constexpr char kNormal[] = "NrPuschTxNormalModeV7";
constexpr char kFirst[] = "cmdIf.request.group1";
constexpr char kSecond[] = "cmdIf.request.group2";

// Away from the default in every field of a carrier.
const TextMap kOther = {
    {"band", "n78"},           {"ulFrequency", "3549990"}, {"txScs", "30kHz"},
    {"ulBandwidth", "273 RB"}, {"mcsMode", "CP_256QAM"},   {"vrbStart", "12"},
    {"vrbLength", "100"},      {"txPowerValue", "-10.5"},  {"tddSlotConfig", "45"},
    {"networkSelection", "5"}, {"cellId", "1007"},         {"sulFreqShift", "true"}};

const TextMap kThird = {
    {"band", "n41"},           {"ulFrequency", "2593000"}, {"txScs", "60kHz"},
    {"ulBandwidth", "135 RB"}, {"mcsMode", "DFT_S_64QAM"}, {"vrbStart", "3"},
    {"vrbLength", "132"},      {"txPowerValue", "-60"},    {"tddSlotConfig", "9"},
    {"networkSelection", "7"}, {"cellId", "1080"},         {"sulFreqShift", "true"},
    {"enableMimo", "true"}};

const TextMap kPowerControl = {{"txCloseLoopDisble", "true"}, {"amprEnbl", "true"}};

QJsonObject Document(const char *page, const TextMap &first = {}, const TextMap &second = {})
{
    QJsonObject document = PackagedPage(page);
    Put(document, kFirst, {{"band", "n1"}});  // the first choice; the document's own "1" is none
    Put(document, kFirst, first);
    if (!second.isEmpty())
        Put(document, kSecond, second);
    return document;
}

TextMap Joined(TextMap values, const TextMap &more)
{
    for (auto value = more.begin(); value != more.end(); ++value)
        values[value.key()] = value.value();
    return values;
}

std::string Forced(const QJsonObject &document)
{
    return HexOf(CNrCoreCmdBuilder().GetPuschTxForceCmdV7(document));
}

std::string Normal(const QJsonObject &document)
{
    return HexOf(CNrCoreCmdBuilder().GetPuschTxNormalCmdV7(document));
}

// A carrier as the documents have it.
CWireBytes &DefaultCarrier(CWireBytes &bytes, std::size_t at)
{
    return bytes
        .U16(at, 1)               // n1
        .U8(at + 2, 1)            // slot format
        .U32(at + 4, 1950000)     // kHz
        .U32(at + 12, 5000)       // 25 RB at 15 kHz
        .U16(at + 18, 1)          // one RB
        .U32(at + 24, 2)          // DFT_S_QPSK
        .I16(at + 28, 23 * 256);  // dBm
}

CWireBytes &OtherCarrier(CWireBytes &bytes, std::size_t at)
{
    return bytes.U16(at, 78)
        .U8(at + 2, 45)
        .U32(at + 4, 3549990)
        .U8(at + 8, 1)
        .U16(at + 10, 1007)
        .U32(at + 12, 100000)
        .U16(at + 16, 12)
        .U16(at + 18, 100)
        .U32(at + 20, 1)
        .U32(at + 24, 7)
        .I16(at + 28, -2688)
        .U32(at + 32, 5);
}

CWireBytes &ThirdCarrier(CWireBytes &bytes, std::size_t at)
{
    return bytes.U16(at, 41)
        .U8(at + 2, 9)
        .U32(at + 4, 2593000)
        .U8(at + 8, 1)
        .U16(at + 10, 1080)
        .U32(at + 12, 100000)
        .U16(at + 16, 3)
        .U16(at + 18, 132)
        .U32(at + 20, 2)
        .U32(at + 24, 6)
        .I16(at + 28, -60 * 256)
        .U32(at + 32, 7);
}

TEST(PuschForcedCommand, DefaultsOfThePage)
{
    CWireBytes bytes(96);
    bytes.U8(0, 1);
    EXPECT_EQ(Forced(Document(kForced)), DefaultCarrier(bytes, 4).Hex());
}

TEST(PuschForcedCommand, EveryFieldAwayFromItsDefault)
{
    const TextMap more = {{"txRoute", "17"}, {"enableCsr", "true"}};
    CWireBytes bytes(96);
    bytes.U8(0, 1);
    OtherCarrier(bytes, 4).U8(40, 1).U8(41, 1).U16(42, 17).U8(44, 1);
    EXPECT_EQ(Forced(Document(kForced, Joined(Joined(kOther, kPowerControl), more))), bytes.Hex());
}

TEST(PuschForcedCommand, MimoOfTheNormalPageIsNotRead)
{
    QJsonObject document = Document(kNormal, {{"enableMimo", "true"}});
    CWireBytes bytes(96);
    bytes.U8(0, 1);
    EXPECT_EQ(Forced(document), DefaultCarrier(bytes, 4).Hex());
}

TEST(PuschForcedCommand, PowerWithMoreDigitsThanItsUnitTruncatesTowardZero)
{
    const auto power = [](const char *text) {
        const SNrPuschTxCmdV7 command =
            CNrCoreCmdBuilder().GetPuschTxForceCmdV7(Document(kForced, {{"txPowerValue", text}}));
        return command.forcedMode.carrier.txPowerValue;
    };
    EXPECT_EQ(power("-10.5"), -2688);
    EXPECT_EQ(power("-10.503"), -2688);
    EXPECT_EQ(power("10.503"), 2688);
    EXPECT_EQ(power("-0.003"), 0);
    EXPECT_EQ(power("127.9"), 32742);
    EXPECT_EQ(power("-128"), -32768);
}

TEST(PuschForcedCommand, SeventyNineRbAtFifteenKilohertzIsLoggedAndFiveMegahertz)
{
    const LogCapture log(lcCommand());
    CWireBytes bytes(96);
    bytes.U8(0, 1);
    EXPECT_EQ(Forced(Document(kForced, {{"ulBandwidth", "79 RB"}})),
              DefaultCarrier(bytes, 4).Hex());
    ASSERT_EQ(log.Lines(QtCriticalMsg).size(), 1);
    EXPECT_TRUE(log.Holds(QtCriticalMsg, "Get 15 kHz RB  failed"));
}

TEST(PuschForcedCommand, BandwidthCountsByTheScsOfTheSameCarrier)
{
    for (const auto &row :
         {std::make_tuple("15kHz", "106 RB", 20000u), std::make_tuple("30kHz", "106 RB", 40000u),
          std::make_tuple("60kHz", "79 RB", 60000u)}) {
        const SNrPuschTxCmdV7 command = CNrCoreCmdBuilder().GetPuschTxForceCmdV7(
            Document(kForced, {{"txScs", std::get<0>(row)}, {"ulBandwidth", std::get<1>(row)}}));
        EXPECT_EQ(command.forcedMode.carrier.ulBandwidth, std::get<2>(row)) << std::get<0>(row);
    }
}

TEST(PuschForcedCommand, EmptyDocumentGivesTheDefaultsOfTheEnumerations)
{
    const LogCapture log(lcCommand());
    EXPECT_EQ(Forced(QJsonObject()), CWireBytes(96).U8(0, 1).U32(16, 5000).Hex());
    const QStringList lines = log.Lines(QtCriticalMsg);
    ASSERT_EQ(lines.size(), 3);
    EXPECT_TRUE(log.Holds(QtCriticalMsg, "Get SCS failed"));
    EXPECT_TRUE(log.Holds(QtCriticalMsg, "Get 15 kHz RB  failed"));
    EXPECT_TRUE(log.Holds(QtCriticalMsg, "Get MCS mode failed"));
}

TEST(PuschNormalCommand, DefaultsOfThePageLeaveTheSecondCarrierZero)
{
    CWireBytes bytes(96);
    bytes.U8(4, 1);
    EXPECT_EQ(Normal(Document(kNormal)), DefaultCarrier(bytes, 8).Hex());
}

TEST(PuschNormalCommand, OneCarrierIgnoresWhatTheSecondGroupHolds)
{
    CWireBytes bytes(96);
    bytes.U8(4, 1);
    EXPECT_EQ(Normal(Document(kNormal, {{"ulCCNum", "1"}}, kThird)),
              DefaultCarrier(bytes, 8).Hex());
}

TEST(PuschNormalCommand, BothCarriersEveryFieldAwayFromItsDefault)
{
    const TextMap first = Joined(
        Joined(kOther, kPowerControl),
        {{"ulCCNum", "2"}, {"enableMimo", "true"}, {"enableCsr", "true"}, {"csCCNum", "CC2"}});
    CWireBytes bytes(96);
    bytes.U8(4, 2);
    OtherCarrier(bytes, 8).U8(44, 1).U8(45, 1).U8(49, 1);
    ThirdCarrier(bytes, 52).U8(88, 1).U8(89, 1).U8(92, 1).U8(93, 1);
    EXPECT_EQ(Normal(Document(kNormal, first, kThird)), bytes.Hex());
}

TEST(PuschNormalCommand, SecondCarrierTakesThePowerControlOfTheFirst)
{
    CWireBytes bytes(96);
    bytes.U8(4, 2);
    DefaultCarrier(bytes, 8).U8(45, 1);
    DefaultCarrier(bytes, 52).U8(89, 1);
    EXPECT_EQ(Normal(Document(kNormal, {{"ulCCNum", "2"}, {"amprEnbl", "true"}}, {{"band", "n1"}})),
              bytes.Hex());
}

TEST(PuschNormalCommand, CarrierSearchMarksTheCarriersThatItNames)
{
    struct SCase
    {
        const char *enabled;
        const char *carriers;
        uint32_t first;
        uint32_t second;
    };
    for (const SCase &c :
         {SCase{"true", "CC1", 1, 0}, SCase{"true", "CC2", 0, 1}, SCase{"true", "CC1+CC2", 1, 1},
          SCase{"true", "", 0, 0}, SCase{"false", "CC1", 0, 0}, SCase{"false", "CC2", 0, 0}}) {
        CWireBytes bytes(96);
        bytes.U8(4, 2);
        DefaultCarrier(bytes, 8).U8(48, c.first);
        DefaultCarrier(bytes, 52).U8(92, c.second);
        const TextMap values = {
            {"ulCCNum", "2"}, {"enableCsr", c.enabled}, {"csCCNum", c.carriers}};
        EXPECT_EQ(Normal(Document(kNormal, values, {{"band", "n1"}})), bytes.Hex())
            << c.enabled << c.carriers;
    }
}

TEST(PuschNormalCommand, RouteIsNotRead)
{
    QJsonObject document = Document(kForced, {{"txRoute", "17"}});
    CWireBytes bytes(96);
    EXPECT_EQ(Normal(document), DefaultCarrier(bytes, 8).Hex());  // the forced page has no count
}

std::string DlFreq(const QJsonObject &document, bool normal)
{
    return HexOf(CNrCoreCmdBuilder().GetPuschDlFreqCmd(document, normal));
}

TEST(DlFreqCommand, ForcedModeAsksForTheCarrierOnItsRoute)
{
    EXPECT_EQ(DlFreq(Document(kForced), false),
              CWireBytes(12).U16(0, 1).U32(4, 1950000).U8(8, 1).Hex());
    EXPECT_EQ(
        DlFreq(Document(kForced, {{"band", "n78"}, {"ulFrequency", "3549990"}, {"txRoute", "300"}}),
               false),
        CWireBytes(12).U16(0, 78).U32(4, 3549990).U8(8, 1).U16(10, 300).Hex());
}

TEST(DlFreqCommand, NormalModeAsksForTheCarrierThatIsSearched)
{
    const auto ask = [](const char *carriers) {
        return DlFreq(Document(kNormal, Joined(kOther, {{"csCCNum", carriers}}), kThird), true);
    };
    const std::string first = CWireBytes(12).U16(0, 78).U32(4, 3549990).Hex();
    const std::string second = CWireBytes(12).U16(0, 41).U32(4, 2593000).Hex();
    EXPECT_EQ(ask("CC1"), first);
    EXPECT_EQ(ask("CC2"), second);
    EXPECT_EQ(ask("CC12"), second);
    EXPECT_EQ(ask(""), CWireBytes(12).Hex());
}

TEST(DlFreqCommand, NormalModeWritesZeroForModeAndRoute)
{
    QJsonObject document = Document(kForced, {{"txRoute", "17"}});
    GTEST_ASSERT_NE(DlFreq(document, false), DlFreq(document, true));
    EXPECT_EQ(DlFreq(document, true), CWireBytes(12).Hex());
}

}  // namespace
