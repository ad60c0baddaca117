// Which values of a file are odd for the page, and what is kept of them.
#include "Operations/calibration/CalValueWatch.h"

#include <map>

#include <gtest/gtest.h>

#include "Operations/calibration/CalRecords.h"

namespace {

constexpr size_t kRoute = offsetof(SAptRouteBwRecord, route);
constexpr size_t kIndex = offsetof(SAptRouteBwRecord, normalTempIndex);
constexpr size_t kFrequency = offsetof(SAptRouteBwRecord, freq);
constexpr size_t kCoupler = offsetof(SAptRouteBwRecord, couplerLoss);

class CGivenLimits : public ICalPageLimits
{
public:
    const SCalShown *Of(ECalRoute, const SCalPlace &, size_t offset) override
    {
        const auto found = shown.find(offset);
        return found == shown.end() ? nullptr : &found->second;
    }

    std::map<size_t, SCalShown> shown;
};

class CalValueWatch : public testing::Test
{
protected:
    void SetUp() override
    {
        m_watch.BeginRecord(ECalRoute::Tx, {}, &m_record);
        m_watch.BeginKey(m_section, "key");
    }
    // As a load does it: the watch sees the value, and the record takes it.
    template <typename T>
    void See(T &field, int64_t value, bool isNumber = true)
    {
        CCalCell cell(field);
        m_watch.See(cell, "text", ECalValue::Number, value, isNumber);
        cell.Set(value);
    }
    int OddOnes()
    {
        m_watch.EndRecord();
        const int count = m_remarks.oddValueCount;
        m_remarks = {};
        return count;
    }
    std::string PageOf(int64_t value)
    {
        See(m_record.couplerLoss[0], value);
        m_watch.EndRecord();
        const std::string page =
            m_remarks.oddValues.empty() ? "not odd" : m_remarks.oddValues[0].page;
        m_remarks = {};
        return page;
    }

    const std::string m_section = "section";
    SAptRouteBwRecord m_record = {};
    CGivenLimits m_limits;
    SCalMoveRemarks m_remarks;
    CCalValueWatch m_watch{&m_limits, m_remarks};
};

}  // namespace

TEST_F(CalValueWatch, AValueIsOddBeyondALimitAndNotAtIt)
{
    m_limits.shown[kCoupler] = {-5, 7};
    for (const int64_t value : {-5, 0, 7}) {
        See(m_record.couplerLoss[0], value);
        EXPECT_EQ(OddOnes(), 0) << value;
    }
    for (const int64_t value : {-6, 8}) {
        See(m_record.couplerLoss[0], value);
        EXPECT_EQ(OddOnes(), 1) << value;
    }
}

TEST_F(CalValueWatch, ZeroIsOddWhereItStandsForNoUnusedPlace)
{
    m_limits.shown[kFrequency] = {100, 200, false, 1, true};
    See(m_record.freq[0], 0);
    EXPECT_EQ(OddOnes(), 0);
    See(m_record.freq[0], 1);
    EXPECT_EQ(OddOnes(), 1);
    m_limits.shown[kFrequency].isZeroFree = false;
    See(m_record.freq[0], 0);
    EXPECT_EQ(OddOnes(), 1);
}

TEST_F(CalValueWatch, BandAndRouteAreOfTheSectionsNameAndNeverOdd)
{
    m_limits.shown[kRoute] = {1, 2};
    m_limits.shown[kIndex] = {1, 2};
    See(m_record.band, 9, false);
    See(m_record.route, 9, false);
    EXPECT_EQ(OddOnes(), 0);
    See(m_record.normalTempIndex, 9);  // the field behind them
    EXPECT_EQ(OddOnes(), 1);
}

TEST_F(CalValueWatch, TextThatIsNoNumberIsOddWhateverTheLimitsAre)
{
    m_limits.shown[kIndex] = {0, 7};
    See(m_record.normalTempIndex, 0, false);
    See(m_record.paControlLevel, 0, false);  // not on the page
    See(m_record.normalTempIndex, 8);
    m_watch.EndRecord();
    EXPECT_EQ(m_remarks.oddValueCount, 3);
    EXPECT_EQ(m_remarks.noNumberCount, 2);
    ASSERT_EQ(m_remarks.oddValues.size(), 3u);
    EXPECT_TRUE(m_remarks.oddValues[0].isOnPage);
    EXPECT_FALSE(m_remarks.oddValues[1].isOnPage);
    EXPECT_EQ(m_remarks.oddValues[1].page, "");
    EXPECT_EQ(m_remarks.oddValues[2].memory, "8");
    EXPECT_EQ(m_remarks.oddValues[2].page, "7");
}

TEST_F(CalValueWatch, AnEditorWithLimitsShowsTheNearerOne)
{
    m_limits.shown[kCoupler] = {-5, 7};
    EXPECT_EQ(PageOf(-6), "-5");
    EXPECT_EQ(PageOf(8), "7");
}

TEST_F(CalValueWatch, AListShowsNothingForWhatItLacks)
{
    m_limits.shown[kCoupler] = {1, 3, true};
    EXPECT_EQ(PageOf(0), "");
    EXPECT_EQ(PageOf(4), "");
    See(m_record.couplerLoss[0], 0, false);
    See(m_record.couplerLoss[0], 3);  // what is in memory at the end is on the page
    m_watch.EndRecord();
    EXPECT_EQ(m_remarks.oddValues.at(0).page, "3");
    m_remarks = {};
    See(m_record.couplerLoss[0], 0, false);
    See(m_record.couplerLoss[0], 1);
    m_watch.EndRecord();
    EXPECT_EQ(m_remarks.oddValues.at(0).page, "1");
}

// The record may hold less than the file said: the page shows the whole multiple of what it holds.
TEST_F(CalValueWatch, AnEditorOfWholeUnitsCutsAFractionOff)
{
    m_limits.shown[kCoupler] = {-100, 100, false, 32};
    EXPECT_EQ(PageOf(101), "96");
    EXPECT_EQ(PageOf(-101), "-96");
    m_limits.shown[kCoupler].unit = 1;
    EXPECT_EQ(PageOf(101), "100");
}

TEST_F(CalValueWatch, TenAreKeptOfAllRecordsAndAllAreCounted)
{
    m_limits.shown[kIndex] = {0, 7};
    for (int record = 0; record < 3; ++record) {
        m_watch.BeginRecord(ECalRoute::Tx, {}, &m_record);
        for (int i = 0; i < 4; ++i)
            See(m_record.normalTempIndex, 8, i != 0);
        m_watch.EndRecord();
    }
    EXPECT_EQ(m_remarks.oddValues.size(), 10u);
    EXPECT_EQ(m_remarks.oddValueCount, 12);
    EXPECT_EQ(m_remarks.noNumberCount, 3);
}

TEST_F(CalValueWatch, ARecordThatIsNotTakenOverLeavesNoRemark)
{
    See(m_record.normalTempIndex, 8, false);
    m_watch.BeginRecord(ECalRoute::Tx, {}, &m_record);
    See(m_record.normalTempIndex, 9, false);
    m_watch.EndRecord();
    m_watch.EndRecord();  // tells nothing twice
    EXPECT_EQ(m_remarks.oddValueCount, 1);
    EXPECT_EQ(m_remarks.noNumberCount, 1);
    EXPECT_EQ(m_remarks.oddValues.size(), 1u);
}

TEST_F(CalValueWatch, AListIsFineWhenEachOfItsNumbersIsShown)
{
    for (size_t i = 0; i < 3; ++i)
        m_limits.shown[kCoupler + i * sizeof(int16_t)] = {static_cast<int64_t>(i), 10};
    const CCalCell first(m_record.couplerLoss[0]);
    const auto areFine = [&](std::vector<int64_t> values) {
        return m_watch.AreFine(first, sizeof(int16_t), values);
    };
    EXPECT_TRUE(areFine({0, 1, 2}));
    EXPECT_TRUE(areFine({}));
    EXPECT_FALSE(areFine({0, 1, 1}));   // the last one's own limit
    EXPECT_FALSE(areFine({0, 11, 2}));  // one in the middle
    EXPECT_FALSE(areFine({-1, 1, 2}));  // the first one
    m_limits.shown[kRoute] = {1, 2};
    m_limits.shown[kIndex] = {1, 2};
    EXPECT_FALSE(m_watch.AreFine(CCalCell(m_record.normalTempIndex), 1, std::vector<int64_t>{9}));
    EXPECT_TRUE(
        m_watch.AreFine(CCalCell(m_record.band), sizeof(uint16_t), std::vector<int64_t>{9, 9}));
}

TEST_F(CalValueWatch, WithoutLimitsTextThatIsNoNumberAloneIsOdd)
{
    CCalValueWatch watch(nullptr, m_remarks);
    watch.BeginRecord(ECalRoute::Tx, {}, &m_record);
    watch.BeginKey(m_section, "key");
    const CCalCell cell(m_record.normalTempIndex);
    EXPECT_TRUE(watch.AreFine(cell, 1, std::vector<int64_t>{INT64_MAX}));
    watch.See(cell, "text", ECalValue::Number, INT64_MAX, true);
    watch.See(cell, "text", ECalValue::Number, 0, false);
    watch.EndRecord();
    EXPECT_EQ(m_remarks.oddValueCount, 1);
}
