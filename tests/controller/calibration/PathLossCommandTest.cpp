// From the path loss page into the record.
#include <gtest/gtest.h>

#include "Controller/calibration/CalCmdBuilder.h"
#include "Support/Log.h"
#include "tests/common/LogCapture.h"
#include "tests/controller/calibration/CalPages.h"

namespace {

using Type1 = SMMType1PathlossByRouteV7;
using Type2 = SMMType2PathlossByRouteV7;

constexpr char kMainLna[] = "calDataIf.data.group2";
constexpr char kDivLna[] = "calDataIf.data.group3";
constexpr char kFreq[] = "calDataIf.data.group4";
constexpr char kPartialOn[] = "calDataIf.data.group5";
constexpr char kMainGain[] = "calDataIf.data.group6";
constexpr char kDivGain[] = "calDataIf.data.group7";

QJsonObject Page(const SSelection &selection = {})
{
    QJsonObject page = Packaged(CalPage(kPathLossPage), EEditors::None);
    Select(page, selection);
    return page;
}

Type1 Built1(const QJsonObject &page, const Type1 &record = {})
{
    return CCalCmdBuilder().GetType1PathLossCmdV7(page, record);
}

Type2 Built2(const QJsonObject &page, const Type2 &record = {})
{
    return CCalCmdBuilder().GetType2PathLossCmdV7(page, record);
}

// Tells each place from all others: n times 0.25 dB from first on.
QStringList Steps(int first, int count)
{
    QStringList texts;
    for (int i = 0; i < count; ++i)
        texts.append(QString::number((first + i) * 0.25));
    return texts;
}

TEST(PathLossCommandTest, EachLnaRowSetsItsSlotOfThePowerModeAlone)
{
    for (bool hpm : {true, false}) {
        for (int slot = 0; slot < 8; ++slot) {
            QJsonObject page = Page({hpm ? "HPM" : "LPM"});
            PutRow(page, kMainLna, QString("lna%1").arg(slot), Steps(1, 64));
            PutRow(page, kDivLna, QString("lna%1").arg(slot), Steps(-80, 64));
            Type1 expected = {};
            for (int i = 0; i < 64; ++i) {
                auto half = hpm ? &SMMLossPair::hpm : &SMMLossPair::lpm;
                expected.loss[i][slot].*half = static_cast<int16_t>((1 + i) * 8);
                expected.loss[i][slot + 8].*half = static_cast<int16_t>((-80 + i) * 8);
            }
            EXPECT_TRUE(SameBytes(Built1(page), expected)) << slot << (hpm ? " HPM" : " LPM");
        }
    }
}

TEST(PathLossCommandTest, SavingUnderHpmLeavesEveryLpmByte)
{
    const auto before = ExtremeLoss<Type1>(1, 40);
    QJsonObject page = Page({"HPM"});
    for (int slot = 0; slot < 8; ++slot) {
        PutRow(page, kMainLna, QString("lna%1").arg(slot), Steps(slot, 64));
        PutRow(page, kDivLna, QString("lna%1").arg(slot), Steps(slot + 50, 64));
    }
    const Type1 after = Built1(page, before);
    for (int subband = 0; subband < 64; ++subband) {
        for (int pair = 0; pair < 16; ++pair) {
            EXPECT_EQ(after.loss[subband][pair].lpm, before.loss[subband][pair].lpm);
            const int start = pair < 8 ? pair : pair - 8 + 50;
            EXPECT_EQ(after.loss[subband][pair].hpm, (start + subband) * 8);
        }
    }
}

TEST(PathLossCommandTest, SavingUnderLpmChangesTheFirstOfEachPairAlone)
{
    const auto before = ExtremeLoss<Type2>(2, 40);
    QJsonObject page = Page({"LPM", 1, 2, 5});
    PutRow(page, kPartialOn, "main", Steps(1, 8));
    for (int n = 0; n < 3; ++n)
        PutRow(page, kDivGain, QString("gain%1").arg(n), Steps(9, 3));
    const Type2 after = Built2(page, before);
    for (int subband = 0; subband < 64; ++subband) {
        for (int pair = 0; pair < 284; ++pair)
            EXPECT_EQ(after.loss[subband][pair].hpm, before.loss[subband][pair].hpm);
    }
    EXPECT_EQ(after.loss[5][8].lpm, 8);  // path 1, slot 0
}

TEST(PathLossCommandTest, AnyPowerModeWithoutLpmIsHpm)
{
    for (const char *text : {"HPM", "", "lpm", "AUTO"}) {
        QJsonObject page = Page({text});
        PutRow(page, kMainLna, "lna0", {"1"});
        EXPECT_EQ(Built1(page).loss[0][0].hpm, 32) << text;
        EXPECT_EQ(Built1(page).loss[0][0].lpm, 0) << text;
    }
}

// Partial-on: element n is slot n. Gain by gain: element k of gain n is sub-gain k of row
// path * 21 + G * 3 + n.
TEST(PathLossCommandTest, Type2TablesGoToTheSelectedSubbandPathAndGainMode)
{
    for (const SSelection &selection :
         {SSelection{"HPM", 0, 0, 0}, SSelection{"LPM", 1, 6, 63}, SSelection{"HPM", 1, 3, 20}}) {
        QJsonObject page = Page(selection);
        PutRow(page, kPartialOn, "main", Steps(1, 8));
        PutRow(page, kPartialOn, "div", Steps(11, 8));
        Type2 expected = {};
        const auto half = selection.powerMode[0] == 'H' ? &SMMLossPair::hpm : &SMMLossPair::lpm;
        auto &loss = expected.loss[selection.freqIdx];
        for (int slot = 0; slot < 8; ++slot) {
            loss[selection.path * 8 + slot].*half = static_cast<int16_t>((1 + slot) * 8);
            loss[142 + selection.path * 8 + slot].*half = static_cast<int16_t>((11 + slot) * 8);
        }
        for (int n = 0; n < 3; ++n) {
            PutRow(page, kMainGain, QString("gain%1").arg(n), Steps(21 + 3 * n, 3));
            PutRow(page, kDivGain, QString("gain%1").arg(n), Steps(-40 + 3 * n, 3));
            const int row = selection.path * 21 + selection.bigG * 3 + n;
            for (int k = 0; k < 3; ++k) {
                loss[16 + 3 * row + k].*half = static_cast<int16_t>((21 + 3 * n + k) * 8);
                loss[142 + 16 + 3 * row + k].*half = static_cast<int16_t>((-40 + 3 * n + k) * 8);
            }
        }
        EXPECT_TRUE(SameBytes(Built2(page), expected)) << selection.powerMode;
    }
}

TEST(PathLossCommandTest, SelectionThatNoRecordHasLeavesTheLosses)
{
    const auto before = ExtremeLoss<Type2>(3, 10);
    for (const SSelection &selection :
         {SSelection{"HPM", 2, 0, 0}, SSelection{"HPM", 0, 7, 0}, SSelection{"HPM", 0, 0, 64},
          SSelection{"HPM", -1, 0, -1}}) {
        QJsonObject page = Page(selection);
        PutRow(page, kPartialOn, "main", Steps(1, 8));
        PutRow(page, kMainGain, "gain0", Steps(1, 3));
        EXPECT_TRUE(SameBytes(Built2(page, before).loss, before.loss));
    }
}

TEST(PathLossCommandTest, OffsetsAndFrequenciesOfBothTypes)
{
    QJsonObject page = Page();
    PutRow(page, "calDataIf.data.group1", "plOffset", Steps(-4, 8));
    QStringList frequencies;
    for (int i = 0; i < 64; ++i)
        frequencies.append(i < 17 ? QString::number(2110000 + i) : QString("0"));
    PutRow(page, kFreq, "freq", frequencies);
    const Type1 type1 = Built1(page);
    const Type2 type2 = Built2(page);
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(type1.plOffset[i], (-4 + i) * 8);
        EXPECT_EQ(type2.plOffset[i], (-4 + i) * 8);
    }
    for (int i = 0; i < 64; ++i) {
        EXPECT_EQ(type1.freq[i], i < 17 ? 2110000u + i : 0u);
        EXPECT_EQ(type2.freq[i], type1.freq[i]);
    }
    EXPECT_EQ(type1.blockCount, 2u);
    EXPECT_EQ(type2.blockCount, 2u);
}

TEST(PathLossCommandTest, DocumentThatWasNeverPackagedLeavesTheRecord)
{
    const auto type1 = ExtremeLoss<Type1>(4, 40);
    const auto type2 = ExtremeLoss<Type2>(5, 40);
    for (const QJsonObject &document : {CalPage(kPathLossPage), QJsonObject()}) {
        EXPECT_TRUE(SameBytes(Built1(document, type1), type1));
        EXPECT_TRUE(SameBytes(Built2(document, type2), type2));
    }
}

TEST(PathLossCommandTest, SelectionIsLogged)
{
    const LogCapture log(lcCommand());
    Built1(Page({"LPM"}));
    Built2(Page({"HPM", 1, 4, 9}));
    EXPECT_TRUE(log.Holds(QtDebugMsg, "GetType1PathLossCmdV7: powerMode: \"LPM\""));
    EXPECT_TRUE(log.Holds(QtDebugMsg, "GetType1PathLossCmdV7: lnaArrayM:"));
    EXPECT_TRUE(log.Holds(QtDebugMsg, "GetType1PathLossCmdV7: lnaArrayP:"));
    EXPECT_TRUE(log.Holds(QtDebugMsg, "GetType2PathLossDataModelV7: powerMode: \"HPM\""));
}

}  // namespace
