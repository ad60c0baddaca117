// Images of a calibration item: out of memory and back into it.
#include "Operations/calibration/CalImage.h"

#include "Operations/calibration/CalComparison.h"
#include "tests/operations/calibration/CalFixture.h"

namespace {

std::size_t Differences(const SCalImage &left, const SCalImage &right)
{
    return CCalComparison(left, right).Count();
}

class CalImageTest : public CCalTest
{
protected:
    void SetUp() override
    {
        CCalTest::SetUp();
        ASSERT_EQ(m_item.UploadFromFlash(), 0u);
        m_flash = m_item.Image();
        ASSERT_GT(m_flash.records.size(), 2u);
    }

    CMultiRatPathLossV7 m_item{ERadioKind::Nr};
    SCalImage m_flash;
};

TEST_F(CalImageTest, AnotherItemTakesAnImageWhole)
{
    CMultiRatPathLossV7 other(ERadioKind::Nr);
    EXPECT_EQ(other.TakeImage(m_flash), 0);
    EXPECT_EQ(other.Image().records.size(), m_flash.records.size());
    EXPECT_EQ(Differences(other.Image(), m_flash), 0u);
}

TEST_F(CalImageTest, RecordsAreReplacedAndAllOthersStay)
{
    SCalImage one = {{m_flash.records[1]}};
    one.records[0].bytes[8] ^= 1;  // the first frequency
    EXPECT_EQ(m_item.TakeRecords(one), 0);
    EXPECT_EQ(m_item.Image().records.size(), m_flash.records.size());
    EXPECT_EQ(Differences(m_item.Image(), m_flash), 1u);
}

TEST_F(CalImageTest, OnlyTheRecordsOfATakenImageAreValid)
{
    EXPECT_EQ(m_item.TakeImage({{m_flash.records[1]}}), 0);
    ASSERT_EQ(m_item.Image().records.size(), 1u);
    EXPECT_EQ(m_item.Image().records[0].place.route, m_flash.records[1].place.route);
}

TEST_F(CalImageTest, RecordsWithoutAPlaceAreLeftOutAndCounted)
{
    SCalImage odd = {{m_flash.records[0], m_flash.records[0], m_flash.records[0]}};
    odd.records[0].place.route = 9999;
    odd.records[1].bytes.pop_back();
    odd.records[2].kind = ECalRoute::Tx;
    EXPECT_EQ(m_item.TakeRecords(odd), 3);
    EXPECT_EQ(Differences(m_item.Image(), m_flash), 0u);
}

TEST_F(CalImageTest, ARecordWithTooManyBlocksIsLeftOut)
{
    SCalImage odd = {{m_flash.records[0]}};
    odd.records[0].bytes[4] = 5;  // block count
    EXPECT_EQ(m_item.TakeRecords(odd), 1);
}

}  // namespace
