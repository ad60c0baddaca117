// What the editors of a calibration page show of a record's fields, by the page's document.
#include "Controller/calibration/CalPageLimits.h"

#include <gtest/gtest.h>

#include <QJsonArray>

#include "Model/JsonPath.h"
#include "tests/controller/calibration/CalPages.h"

namespace {

using Apt = SAptRouteBwRecord;
using Type1 = SMMType1PathlossByRouteV7;
using Type2 = SMMType2PathlossByRouteV7;

constexpr size_t kPrf1 = offsetof(Apt, level[0].prf);
constexpr char kConfig[] = "calDataIf.config.group1.memberProperty.";
constexpr char kData[] = "calDataIf.data.";

QJsonObject Limits(double least, double most)
{
    return {{"min", least}, {"max", most}};
}

class CalPageLimits : public testing::Test
{
protected:
    void SetUp() override
    {
        m_apt = CalPage(kAptPage);
        Set(m_apt, kConfig + QString("txRoute.trait.valuePair"),
            QJsonObject{{"n1", QJsonArray{"1", "2"}},
                        {"n77", QJsonArray{"3"}},
                        {"n78", QJsonArray{"3", "4"}}});
        Set(m_apt, kData + QString("group12.memberProperty.ulFreq.trait.valuePair"),
            QJsonObject{{"1", Limits(1920000, 1980000)},
                        {"3", Limits(3300000, 3800000)},
                        {"4", Limits(3300000, 3700000)}});
    }
    static void Set(QJsonObject &document, const QString &path, const QJsonValue &value)
    {
        ASSERT_TRUE(ModifyJsonValue(document, path, value, 0)) << qPrintable(path);
    }
    static std::string Text(const SCalShown *shown)
    {
        if (!shown)
            return "not on the page";
        return std::to_string(shown->least) + " to " + std::to_string(shown->most) +
               (shown->isList ? ", a list" : "") +
               (shown->unit == 1 ? "" : ", unit " + std::to_string(shown->unit)) +
               (shown->isZeroFree ? ", or 0" : "");
    }
    std::string Of(const QJsonObject &document, ECalRoute kind, size_t offset, uint16_t route = 1)
    {
        CCalPageLimits limits(document);
        return Text(limits.Of(kind, {.route = route}, offset));
    }
    std::string OfPrf(double least, double most)
    {
        Set(m_apt, kData + QString("group3.memberProperty.pRf1.trait.value"), Limits(least, most));
        return Of(m_apt, ECalRoute::Tx, kPrf1);
    }

    QJsonObject m_apt;
};

}  // namespace

TEST_F(CalPageLimits, ANumberHasTheLimitsOfItsMember)
{
    EXPECT_EQ(Of(m_apt, ECalRoute::Tx, offsetof(Apt, normalTempIndex)), "0 to 255");
    EXPECT_EQ(Of(m_apt, ECalRoute::Tx, offsetof(Apt, reserved7)), "not on the page");
    EXPECT_EQ(Of(m_apt, ECalRoute::Tx, offsetof(Apt, band)), "not on the page");
}

TEST_F(CalPageLimits, AListHasTheLeastAndTheGreatestOfItsNumbersInAnyOrder)
{
    EXPECT_EQ(Of(m_apt, ECalRoute::Tx, offsetof(Apt, level[0].paMode)), "0 to 2, a list");
    Set(m_apt, kData + QString("group2.memberProperty.paMode1.trait.value"),
        QJsonArray{"4", "9", "2", "7"});
    EXPECT_EQ(Of(m_apt, ECalRoute::Tx, offsetof(Apt, level[0].paMode)), "2 to 9, a list");
    Set(m_apt, kData + QString("group2.memberProperty.paMode1.trait.value"), QJsonArray());
    EXPECT_EQ(Of(m_apt, ECalRoute::Tx, offsetof(Apt, level[0].paMode)), "not on the page");
}

TEST_F(CalPageLimits, AListOfOptionsCountsThemFromOne)
{
    EXPECT_EQ(Of(m_apt, ECalRoute::Tx, offsetof(Apt, level[0].dc2dcLevel)), "1 to 55, a list");
}

// In 1/32 dB: what lies between two of them counts to neither.
TEST_F(CalPageLimits, DbLimitsAreThoseOfTheUnitsWithinThem)
{
    const size_t coupler = offsetof(Apt, couplerLoss);
    const QString path = kData + QString("group11.memberProperty.couplerLossHigh.trait.value");
    Set(m_apt, path, Limits(-1, 2));
    EXPECT_EQ(Of(m_apt, ECalRoute::Tx, coupler), "-32 to 64");
    Set(m_apt, path, Limits(-1.01, 2.01));
    EXPECT_EQ(Of(m_apt, ECalRoute::Tx, coupler), "-32 to 64");
    Set(m_apt, path, Limits(0.01, 1.99));
    EXPECT_EQ(Of(m_apt, ECalRoute::Tx, coupler), "1 to 63");
}

// A fraction is cut off toward 0, so the last whole one takes all that lie beyond it.
TEST_F(CalPageLimits, WholeDbTakeTheFractionsThatTheEditorCutsOff)
{
    EXPECT_EQ(OfPrf(-1024, 1023), "-32799 to 32767, unit 32");
    EXPECT_EQ(OfPrf(0, 0), "-31 to 31, unit 32");
    EXPECT_EQ(OfPrf(2, 5), "64 to 191, unit 32");
    EXPECT_EQ(OfPrf(-5, -2), "-191 to -64, unit 32");
}

TEST_F(CalPageLimits, AMemberWithOneLimitOrNoneHasNoLimits)
{
    const QString path = kData + QString("group3.memberProperty.pRf1.trait.value");
    for (const QJsonObject &entry : {QJsonObject{{"min", 1}}, QJsonObject{{"max", 1}}}) {
        Set(m_apt, path, entry);
        EXPECT_EQ(Of(m_apt, ECalRoute::Tx, kPrf1), "not on the page");
    }
}

TEST_F(CalPageLimits, EachColumnOfATableHasTheLimitsOfItsMember)
{
    Set(m_apt, kData + QString("group8.memberProperty.paHighPaGain.trait.value"), Limits(-1, 1));
    Set(m_apt, kData + QString("group8.memberProperty.paMiddlePaGain.trait.value"), Limits(-2, 2));
    CCalPageLimits limits(m_apt);
    const size_t first = offsetof(Apt, paGainTempOffset);
    for (size_t i = 0; i < kVondCalTemperatures; ++i) {
        const size_t high = first + i * sizeof(int16_t);
        const size_t middle = high + kVondCalTemperatures * sizeof(int16_t);
        EXPECT_EQ(Text(limits.Of(ECalRoute::Tx, {}, high)), "-32 to 32") << i;
        EXPECT_EQ(Text(limits.Of(ECalRoute::Tx, {}, middle)), "-64 to 64") << i;
    }
}

TEST_F(CalPageLimits, AFrequencyHasTheLimitsOfItsRoute)
{
    const size_t last = offsetof(Apt, freq) + (kVondCalMaxSubbands - 1) * sizeof(uint32_t);
    for (const size_t offset : {offsetof(Apt, freq), last}) {
        EXPECT_EQ(Of(m_apt, ECalRoute::Tx, offset, 1), "1920000 to 1980000, or 0");
        EXPECT_EQ(Of(m_apt, ECalRoute::Tx, offset, 4), "3300000 to 3700000, or 0");
    }
    EXPECT_NE(Of(m_apt, ECalRoute::Tx, last + sizeof(uint32_t)), "1920000 to 1980000, or 0");
    EXPECT_NE(Of(m_apt, ECalRoute::Tx, offsetof(Apt, blockCount)), "1920000 to 1980000, or 0");
}

TEST_F(CalPageLimits, ARouteOfTwoBandsOrWithoutLimitsHasThoseOfTheFieldAlone)
{
    const std::string any = "0 to 4294967295";
    EXPECT_EQ(Of(m_apt, ECalRoute::Tx, offsetof(Apt, freq), 3), any);  // n77 and n78
    EXPECT_EQ(Of(m_apt, ECalRoute::Tx, offsetof(Apt, freq), 2), any);  // no frequencies known
    EXPECT_EQ(Of(m_apt, ECalRoute::Tx, offsetof(Apt, freq), 9), any);  // no such route
}

TEST_F(CalPageLimits, ABandWithTwoTypesOfRouteIsOneBand)
{
    QJsonObject page = CalPage(kPathLossPage);
    Set(page, kConfig + QString("route.trait.valuePair"),
        QJsonObject{{"n1,type1", QJsonArray{"7"}}, {"n1,type2", QJsonArray{"7"}}});
    Set(page, kData + QString("group4.memberProperty.freq.trait.valuePair"),
        QJsonObject{{"7", Limits(2110000, 2170000)}});
    EXPECT_EQ(Of(page, ECalRoute::Type1, offsetof(Type1, freq), 7), "2110000 to 2170000, or 0");
    EXPECT_EQ(Of(page, ECalRoute::Type2, offsetof(Type2, freq), 7), "2110000 to 2170000, or 0");
}

// The page shows the losses of one subband at a time, in the same editors.
TEST_F(CalPageLimits, ALossHasTheLimitsOfItsPlaceInTheFirstSubband)
{
    QJsonObject page = CalPage(kPathLossPage);
    Set(page, kData + QString("group5.memberProperty.main.trait.value"), Limits(-7, 7));
    CCalPageLimits limits(page);
    const size_t main =
        offsetof(Type2, loss) + VondPartialOnPair(EVondRxPath::Main, 0, 0) * sizeof(SMMLossPair);
    const size_t subband = sizeof(Type2::loss[0]);
    for (const size_t i : {size_t(0), size_t(1), size_t(kVondCalMaxSubbands - 1)})
        EXPECT_EQ(Text(limits.Of(ECalRoute::Type2, {}, main + i * subband)), "-224 to 224") << i;
    EXPECT_EQ(Text(limits.Of(ECalRoute::Type2, {}, offsetof(Type2, plOffset))), "-320 to 320");
}
