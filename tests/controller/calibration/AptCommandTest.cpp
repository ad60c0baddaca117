// From the APT page into the record.
#include <gtest/gtest.h>

#include "Controller/calibration/CalCmdBuilder.h"
#include "Model/JsonPath.h"
#include "tests/controller/calibration/CalPages.h"

namespace {

using Apt = SAptRouteBwRecord;

constexpr char kFreqGroup[] = "calDataIf.data.group12";

Apt Built(const QJsonObject &document, const Apt &record = {})
{
    return CCalCmdBuilder().GetAptCmdV7(document, record);
}

QJsonObject Page()
{
    return Packaged(CalPage(kAptPage), EEditors::None);
}

struct SScalar
{
    const char *group;
    const char *member;
    const char *text;
    int expected;
    int (*field)(const Apt &record);
};
const SScalar kScalars[] = {
    {"group1", "paControlLevel", "7", 7, [](const Apt &r) { return int(r.paControlLevel); }},
    {"group2", "paMode1", "2", 2, [](const Apt &r) { return int(r.level[0].paMode); }},
    {"group2", "paMode10", "1", 1, [](const Apt &r) { return int(r.level[9].paMode); }},
    {"group3", "pRf1", "-1024", -32768, [](const Apt &r) { return int(r.level[0].prf); }},
    {"group3", "pRf4", "1023", 32736, [](const Apt &r) { return int(r.level[3].prf); }},
    {"group4", "paGain2", "28.03125", 897, [](const Apt &r) { return int(r.level[1].paGain); }},
    {"group4", "paGain10", "0.06", 1, [](const Apt &r) { return int(r.level[9].paGain); }},
    {"group4", "paGain3", "1024", 32767, [](const Apt &r) { return int(r.level[2].paGain); }},
    {"group4", "paGain9", "2047.00000", 32767, [](const Apt &r) { return int(r.level[8].paGain); }},
    {"group5", "dc2dcLevel1", "0.1V", 1, [](const Apt &r) { return int(r.level[0].dc2dcLevel); }},
    {"group5", "dc2dcLevel10", "3.4V", 34, [](const Apt &r) { return int(r.level[9].dc2dcLevel); }},
    {"group5", "dc2dcLevel6", "5.5V", 55, [](const Apt &r) { return int(r.level[5].dc2dcLevel); }},
    {"group6", "256QAMusage3", "1", 1, [](const Apt &r) { return int(r.level[2].usage256Qam); }},
    {"group11", "normalTempIndex", "255", 255, [](const Apt &r) { return int(r.normalTempIndex); }},
    {"group11", "couplerLossHigh", "-1024", -32768,
     [](const Apt &r) { return int(r.couplerLoss[0]); }},
    {"group11", "couplerLossMiddle", "-0.06", -1,
     [](const Apt &r) { return int(r.couplerLoss[1]); }},
    {"group11", "couplerLossLow", "1023.96875", 32767,
     [](const Apt &r) { return int(r.couplerLoss[2]); }},
};

struct SRow
{
    const char *group;
    const char *member;
    int columns;
    int16_t &(*field)(Apt &record, int column);
};
const SRow kRows[] = {
    {"group7", "paHighPaGain", 64, [](Apt &r, int i) -> int16_t & { return r.paGain[0][i]; }},
    {"group7", "paMiddlePaGain", 64, [](Apt &r, int i) -> int16_t & { return r.paGain[1][i]; }},
    {"group7", "paLowPaGain", 64, [](Apt &r, int i) -> int16_t & { return r.paGain[2][i]; }},
    {"group8", "paHighPaGain", 8,
     [](Apt &r, int i) -> int16_t & { return r.paGainTempOffset[0][i]; }},
    {"group8", "paMiddlePaGain", 8,
     [](Apt &r, int i) -> int16_t & { return r.paGainTempOffset[1][i]; }},
    {"group8", "paLowPaGain", 8,
     [](Apt &r, int i) -> int16_t & { return r.paGainTempOffset[2][i]; }},
    {"group9", "paHighPd", 64, [](Apt &r, int i) -> int16_t & { return r.powerDetector[0][i]; }},
    {"group9", "paMiddlePd", 64, [](Apt &r, int i) -> int16_t & { return r.powerDetector[1][i]; }},
    {"group9", "paLowPd", 64, [](Apt &r, int i) -> int16_t & { return r.powerDetector[2][i]; }},
    {"group10", "paHighPd", 8,
     [](Apt &r, int i) -> int16_t & { return r.powerDetectorTempOffset[0][i]; }},
    {"group10", "paMiddlePd", 8,
     [](Apt &r, int i) -> int16_t & { return r.powerDetectorTempOffset[1][i]; }},
    {"group10", "paLowPd", 8,
     [](Apt &r, int i) -> int16_t & { return r.powerDetectorTempOffset[2][i]; }},
};

QString Group(const char *name)
{
    return QString("calDataIf.data.") + name;
}

TEST(AptCommandTest, EachMemberSetsItsFieldAlone)
{
    for (const SScalar &scalar : kScalars) {
        QJsonObject page = Page();
        const Apt before = Built(page);
        Put(page, Group(scalar.group), {{scalar.member, scalar.text}});
        Apt after = Built(page);
        EXPECT_EQ(scalar.field(after), scalar.expected) << scalar.member;
        int changed = 0;
        for (size_t i = 0; i < sizeof after; ++i)
            changed += reinterpret_cast<const char *>(&after)[i] !=
                       reinterpret_cast<const char *>(&before)[i];
        EXPECT_GE(changed, 1) << scalar.member;
        EXPECT_LE(changed, 2) << scalar.member;
    }
}

TEST(AptCommandTest, EachTableRowSetsItsFieldAlone)
{
    for (const SRow &row : kRows) {
        QJsonObject page = Page();
        Apt expected = Built(page);
        QStringList texts;
        for (int i = 0; i < row.columns; ++i) {
            texts.append(QString::number(-3.5 + i * 0.25));
            row.field(expected, i) = static_cast<int16_t>(-112 + 8 * i);
        }
        PutRow(page, Group(row.group), row.member, texts);
        EXPECT_TRUE(SameBytes(Built(page), expected)) << row.group << ' ' << row.member;
    }
}

TEST(AptCommandTest, BlockCountIsTheFrequenciesInGroupsOf16)
{
    const int expected[][2] = {{0, 0},  {1, 1},  {16, 1}, {17, 2},
                               {32, 2}, {33, 3}, {48, 3}, {64, 4}};
    for (const auto &each : expected) {
        QStringList whole, alone;
        for (int i = 0; i < 64; ++i) {
            whole.append(i < each[0] ? QString::number(1920000 + i) : QString("0"));
            if (i < each[0])
                alone.append(whole.last());
        }
        for (const QStringList &texts : {whole, alone}) {
            QJsonObject page = Page();
            PutRow(page, kFreqGroup, "ulFreq", texts);
            const Apt record = Built(page);
            EXPECT_EQ(record.blockCount, uint32_t(each[1])) << each[0] << " of " << texts.size();
            for (int i = 0; i < 64; ++i)
                EXPECT_EQ(record.freq[i], i < each[0] ? 1920000u + i : 0u);
        }
    }
}

TEST(AptCommandTest, FrequenciesCountToTheFirst0)
{
    QJsonObject page = Page();
    QStringList texts;
    for (int i = 0; i < 64; ++i)
        texts.append(i == 16 ? "0" : "1950000");
    PutRow(page, kFreqGroup, "ulFreq", texts);
    EXPECT_EQ(Built(page).blockCount, 1u);
}

TEST(AptCommandTest, ShortArrayLeavesTheRestAsItCame)
{
    Apt record = ExtremeApt(1, 64);
    QJsonObject page;
    page = Packaged(CalPage(kAptPage), EEditors::None);
    PutRow(page, Group("group7"), "paLowPaGain", {"1", "2"});
    const Apt after = Built(page, record);
    EXPECT_EQ(after.paGain[2][0], 32);
    EXPECT_EQ(after.paGain[2][1], 64);
    for (int i = 2; i < 64; ++i)
        EXPECT_EQ(after.paGain[2][i], record.paGain[2][i]);
}

TEST(AptCommandTest, LongArrayStaysInItsTable)
{
    QStringList texts;
    for (int i = 0; i < 100; ++i)
        texts.append("5");
    QJsonObject page = Page();
    Apt expected = Built(page);
    for (int16_t &offset : expected.powerDetectorTempOffset[0])
        offset = 160;
    PutRow(page, Group("group10"), "paHighPd", texts);
    EXPECT_TRUE(SameBytes(Built(page), expected));
    PutRow(page, kFreqGroup, "ulFreq", texts);
    EXPECT_EQ(Built(page).blockCount, 4u);
}

TEST(AptCommandTest, TextThatIsNoNumberGives0)
{
    Apt record = {};
    record.normalTempIndex = 9;
    record.couplerLoss[1] = 77;
    record.paGain[0][3] = 88;
    QJsonObject page = Page();
    Put(page, Group("group11"), {{"normalTempIndex", "none"}, {"couplerLossMiddle", "1.2.3"}});
    PutRow(page, Group("group7"), "paHighPaGain", {"0", "0", "0", "x"});
    const Apt after = Built(page, record);
    EXPECT_EQ(after.normalTempIndex, 0);
    EXPECT_EQ(after.couplerLoss[1], 0);
    EXPECT_EQ(after.paGain[0][3], 0);
}

TEST(AptCommandTest, DocumentThatWasNeverPackagedLeavesTheRecord)
{
    const Apt record = ExtremeApt(4, 33);
    EXPECT_TRUE(SameBytes(Built(CalPage(kAptPage), record), record));
    EXPECT_TRUE(SameBytes(Built({}, record), record));
}

TEST(AptCommandTest, VoltageThatIsNoOptionLeavesTheByte)
{
    Apt record = {};
    record.level[2].dc2dcLevel = 200;
    QJsonObject page = Page();
    Put(page, Group("group5"), {{"dc2dcLevel3", ""}});
    EXPECT_EQ(Built(page, record).level[2].dc2dcLevel, 200);
    Put(page, Group("group5"), {{"dc2dcLevel3", "9.9V"}});
    EXPECT_EQ(Built(page, record).level[2].dc2dcLevel, 200);
}

// The editor of prf knows no fraction: only a number that differs from the shown one is an edit.
TEST(AptCommandTest, EditOfAValueThatWasShownShortTakesTheNewValue)
{
    Apt record = {};
    record.level[0].prf = 33;       // shown as 1
    record.level[1].paGain = -160;  // shown as 0, the least that the editor has
    record.level[2].paMode = 7;     // no option
    QJsonObject page = Page();
    Put(page, Group("group3"), {{"pRf1", "1"}});
    Put(page, Group("group4"), {{"paGain2", "0.00000"}});
    Put(page, Group("group2"), {{"paMode3", ""}});
    Apt after = Built(page, record);
    EXPECT_EQ(after.level[0].prf, 33);
    EXPECT_EQ(after.level[1].paGain, -160);
    EXPECT_EQ(after.level[2].paMode, 7);
    Put(page, Group("group3"), {{"pRf1", "2"}});
    Put(page, Group("group4"), {{"paGain2", "0.03125"}});
    Put(page, Group("group2"), {{"paMode3", "0"}});
    after = Built(page, record);
    EXPECT_EQ(after.level[0].prf, 64);
    EXPECT_EQ(after.level[1].paGain, 1);
    EXPECT_EQ(after.level[2].paMode, 0);
}

// A route on two bands has the data of one and the limits of the other.
TEST(AptCommandTest, FrequencyBeyondTheLimitsOfTheRouteMayStandAtTheirEndOrInTheirMiddle)
{
    const QJsonObject limits = {{"12", QJsonObject{{"min", 0}, {"max", 3800000}}}};
    QJsonObject page = Page();
    ASSERT_TRUE(ModifyJsonValue(page, Group("group12") + ".memberProperty.ulFreq.trait.valuePair",
                                limits, 0));
    Put(page, "calDataIf.config.group1", {{"txRoute", "12"}});
    Apt record = {};
    record.freq[0] = 3900000;
    for (const char *shown : {"3800000", "1900000"}) {
        PutRow(page, kFreqGroup, "ulFreq", {shown});
        EXPECT_EQ(Built(page, record).freq[0], 3900000u) << shown;
    }
    PutRow(page, kFreqGroup, "ulFreq", {"3799999"});
    EXPECT_EQ(Built(page, record).freq[0], 3799999u);
}

}  // namespace
