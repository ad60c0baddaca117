// The RSRP commands, byte for byte.
#include <gtest/gtest.h>

#include "Controller/commands/NrCoreCmdBuilder.h"
#include "tests/controller/commands/PageDocuments.h"
#include "tests/controller/commands/WireBytes.h"

namespace {

// What differs between the pages.
struct SMode
{
    const char *name;
    const char *page;
    const char *txGroup;
    SNrRsrpCmdV7 (CNrCoreCmdBuilder::*build)(QJsonObject document) const;
    std::size_t carrier;  // offset of the carrier in the record
};

const SMode kForced{"Forced", "NrRsrpForceModeV7", "cmdIf.request.group3",
                    &CNrCoreCmdBuilder::GetRsrpForceCmdV7, 4};
const SMode kNormal{"Normal", "NrRsrpNormalModeV7", "cmdIf.request.group2",
                    &CNrCoreCmdBuilder::GetRsrpNormalCmdV7, 8};

const TextMap kReceiver = {{"band", "n78"},           {"dlFrequency", "3549990"},
                           {"rxScs", "30kHz"},        {"dlBandwidth", "273 RB"},
                           {"reportPeriod", "10000"}, {"measCnt", "10"},
                           {"tddSlotConfig", "55"},   {"lpmHpmConf", "LPM"}};
const TextMap kTransmitter = {{"mcsMode", "DFT_S_256QAM"},
                              {"vrbStart", "12"},
                              {"vrbLength", "100"},
                              {"txPowerValue", "-10.5"}};

QJsonObject Document(const SMode &mode, const TextMap &rx = {}, const TextMap &tx = {})
{
    QJsonObject document = PackagedPage(mode.page);
    Put(document, "cmdIf.request.group1", {{"band", "n1"}});
    Put(document, "cmdIf.request.group1", rx);
    Put(document, mode.txGroup, tx);
    return document;
}

std::string Build(const SMode &mode, const QJsonObject &document)
{
    return HexOf((CNrCoreCmdBuilder().*mode.build)(document));
}

// What the record tells beside the carrier's fields: mode and count.
CWireBytes Frame(const SMode &mode)
{
    return mode.carrier == 4 ? CWireBytes(80).U8(0, 1) : CWireBytes(80).U8(4, 1);
}

CWireBytes Defaults(const SMode &mode)
{
    const std::size_t at = mode.carrier;
    return Frame(mode)
        .U8(at, 5)             // measurements
        .U32(at + 4, 1950000)  // kHz
        .U16(at + 12, 1)       // n1
        .U32(at + 16, 5000);   // 25 RB at 15 kHz
}

CWireBytes OtherReceiver(const SMode &mode)
{
    const std::size_t at = mode.carrier;
    return Frame(mode)
        .U8(at, 10)
        .U32(at + 4, 3549990)
        .U32(at + 8, 1)
        .U16(at + 12, 78)
        .U8(at + 14, 55)
        .U32(at + 16, 100000);
}

CWireBytes WithTransmitter(CWireBytes bytes, const SMode &mode)
{
    const std::size_t at = mode.carrier;
    return bytes.U8(at + 20, 1)
        .I16(at + 22, -2688)
        .U16(at + 24, 12)
        .U16(at + 26, 100)
        .U32(at + 28, 8);
}

TextMap With(TextMap values, const QString &key, const QString &value)
{
    values[key] = value;
    return values;
}

TEST(RsrpForcedCommand, DefaultsOfThePage)
{
    EXPECT_EQ(Build(kForced, Document(kForced)), Defaults(kForced).U8(40, 3).Hex());  // AUTO
}

TEST(RsrpForcedCommand, EveryFieldOfTheReceiverAwayFromItsDefault)
{
    EXPECT_EQ(Build(kForced, Document(kForced, With(kReceiver, "rxRoute", "17"))),
              OtherReceiver(kForced).U16(36, 17).U8(40, 1).Hex());
}

TEST(RsrpForcedCommand, PseudoTransmitterOnItsRoute)
{
    TextMap rx = With(kReceiver, "rxRoute", "17");
    rx["trxMode"] = "Pseudo TX/RX";
    const QJsonObject document = Document(kForced, rx, With(kTransmitter, "txRoute", "300"));
    EXPECT_EQ(
        Build(kForced, document),
        WithTransmitter(OtherReceiver(kForced), kForced).U16(36, 17).U16(38, 300).U8(40, 1).Hex());
}

TEST(RsrpForcedCommand, PowerModeCountsFromOneAndIsZeroWhenItIsNoChoice)
{
    const auto mode = [](const char *text) {
        return CNrCoreCmdBuilder()
            .GetRsrpForceCmdV7(Document(kForced, {{"lpmHpmConf", text}}))
            .forcedMode.carrier.lpmHpmConf;
    };
    EXPECT_EQ(mode("LPM"), 1);
    EXPECT_EQ(mode("HPM"), 2);
    EXPECT_EQ(mode("AUTO"), 3);
    EXPECT_EQ(mode(""), 0);
    EXPECT_EQ(mode("auto"), 0);
}

TEST(RsrpNormalCommand, DefaultsOfThePage)
{
    EXPECT_EQ(Build(kNormal, Document(kNormal)), Defaults(kNormal).Hex());
}

TEST(RsrpNormalCommand, EveryFieldOfTheReceiverAwayFromItsDefault)
{
    EXPECT_EQ(Build(kNormal, Document(kNormal, With(kReceiver, "mimoType", "4x4"))),
              OtherReceiver(kNormal).U8(40, 1).Hex());
}

TEST(RsrpNormalCommand, PseudoTransmitterHasNoRoute)
{
    TextMap rx = With(kReceiver, "mimoType", "4x4");
    rx["trxMode"] = "Pseudo TX/RX";
    EXPECT_EQ(Build(kNormal, Document(kNormal, rx, kTransmitter)),
              WithTransmitter(OtherReceiver(kNormal), kNormal).U8(40, 1).Hex());
}

TEST(RsrpNormalCommand, MimoIsFourByFourForThatTextExactly)
{
    for (const char *text : {"2x2", "", "4X4", "4x4 ", "14x4"})
        EXPECT_EQ(Build(kNormal, Document(kNormal, {{"mimoType", text}})), Defaults(kNormal).Hex())
            << text;
}

TEST(RsrpNormalCommand, SecondCarrierStaysZeroAndRoutesAreNotRead)
{
    QJsonObject document = Document(kForced, {{"rxRoute", "17"}});
    EXPECT_EQ(Build(kNormal, document), Defaults(kNormal).Hex());
}

class RsrpCommand : public ::testing::TestWithParam<SMode>
{
};

TEST_P(RsrpCommand, TransmitterIsReadInPseudoModeAlone)
{
    const SMode &mode = GetParam();
    for (const char *text : {"DL RX", "", "pseudo TX/RX", "Pseudo TX/RX "}) {
        const TextMap rx = {{"trxMode", text}};
        EXPECT_EQ(Build(mode, Document(mode, rx, kTransmitter)), Build(mode, Document(mode)))
            << text;
    }
}

TEST_P(RsrpCommand, ReportPeriodIsThePagesOwn)
{
    const SMode &mode = GetParam();
    EXPECT_EQ(Build(mode, Document(mode, {{"reportPeriod", "300"}})), Build(mode, Document(mode)));
}

TEST_P(RsrpCommand, EmptyDocumentGivesTheDefaultsOfTheEnumerations)
{
    const SMode &mode = GetParam();
    EXPECT_EQ(Build(mode, QJsonObject()), Frame(mode).U32(mode.carrier + 16, 5000).Hex());
}

INSTANTIATE_TEST_SUITE_P(Modes, RsrpCommand, ::testing::Values(kForced, kNormal),
                         [](const auto &info) { return std::string(info.param.name); });

}  // namespace
