// Two images of a calibration item, compared: what flash, memory and files hold.
#include "Operations/calibration/CalComparison.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <set>

#include "tests/operations/calibration/CalFixture.h"

namespace {

class CalComparisonTest : public CCalTest
{
protected:
    static CMultiRatAptProfileV7 &Read(CMultiRatAptProfileV7 &item)
    {
        EXPECT_EQ(item.UploadFromFlash(), 0u);
        return item;
    }

    // What memory holds after a change of one record.
    template <typename Change>
    SCalImage Changed(uint16_t route, uint16_t region, Change change)
    {
        SAptRouteBwRecord record = *m_apt.GetAptCalibrationData(route, region);
        change(record);
        m_apt.SetAptCalibrationData(route, region, record);
        return m_apt.Image();
    }

    // A route of the DUT that has a record.
    SCalPlace First() const { return m_flash.records.front().place; }

    void SetUp() override
    {
        CCalTest::SetUp();
        m_flash = Read(m_apt).Image();
        ASSERT_FALSE(m_flash.records.empty());
    }

    CMultiRatAptProfileV7 m_apt{ERadioKind::Nr};
    SCalImage m_flash;
};

TEST_F(CalComparisonTest, TwoReadsOfOneFlashAreTheSame)
{
    CMultiRatAptProfileV7 again(ERadioKind::Nr);
    const CCalComparison comparison(m_flash, Read(again).Image());
    EXPECT_EQ(comparison.Count(), 0u);
    EXPECT_TRUE(comparison.ByRoute().empty());
    EXPECT_TRUE(comparison.ByField().empty());
}

TEST_F(CalComparisonTest, EveryRecordOfTheDutIsInTheImageOnce)
{
    std::set<std::pair<uint16_t, int>> seen;
    for (const SCalImageRecord &record : m_flash.records) {
        EXPECT_EQ(record.bytes.size(), sizeof(SAptRouteBwRecord));
        EXPECT_TRUE(seen.emplace(record.place.route, record.place.region).second);
        const SAptRouteBwRecord *held = m_apt.GetAptCalibrationData(
            record.place.route, static_cast<uint16_t>(record.place.region));
        EXPECT_EQ(std::memcmp(record.bytes.data(), held, sizeof(*held)), 0);
    }
    for (const SCalPlace &place : WalkRoutes(*CTargetCapability().GetRouteTableNr(), ECalRoute::Tx))
        EXPECT_EQ(seen.count({place.route, place.region}), 1u) << place.route;
}

TEST_F(CalComparisonTest, DifferenceNamesPlaceFieldAndBothValues)
{
    const SCalPlace at = First();
    int16_t before = 0;
    const SCalImage image =
        Changed(at.route, static_cast<uint16_t>(at.region), [&](SAptRouteBwRecord &record) {
            before = record.paGain[1][17];
            record.paGain[1][17] = static_cast<int16_t>(before + 16);
            record.freq[2] += 60;
        });
    const CCalComparison comparison(m_flash, image);
    ASSERT_EQ(comparison.Count(), 2u);
    const SCalDifference frequency = comparison.At(0);
    EXPECT_EQ(frequency.field, "freq[2]");
    EXPECT_EQ(frequency.unit, "kHz");
    EXPECT_EQ(frequency.difference, 60);
    const SCalDifference gain = comparison.At(1);
    EXPECT_EQ(gain.kind, ECalRoute::Tx);
    EXPECT_EQ(gain.place.route, at.route);
    EXPECT_EQ(gain.place.region, at.region);
    EXPECT_EQ(gain.place.bwKhz, at.bwKhz);
    EXPECT_EQ(gain.lack, ECalLack::None);
    EXPECT_EQ(gain.field, "paGain[1][17]");
    EXPECT_EQ(gain.unit, "dB");
    EXPECT_EQ(gain.difference, 0.5);
    EXPECT_NE(gain.left, gain.right);
    EXPECT_TRUE(gain.left.ends_with(" dB")) << gain.left;
}

TEST_F(CalComparisonTest, SpotHasTheNumbersOfItsDifference)
{
    SCalImage other = m_flash;
    other.records.erase(other.records.begin() + 1);
    for (SCalImageRecord &record : other.records) {
        for (std::size_t byte = 0; byte < record.bytes.size(); byte += 7)
            record.bytes[byte] ^= 0x11;
    }
    const CCalComparison comparison(m_flash, other);
    std::map<uint32_t, std::size_t> ofRecord;
    for (std::size_t i = 0; i < comparison.Count(); ++i) {
        const SCalDifference difference = comparison.At(i);
        const SCalDifferenceSpot spot = comparison.SpotAt(i);
        ++ofRecord[spot.record];
        ASSERT_EQ(spot.field == nullptr, difference.lack != ECalLack::None);
        ASSERT_EQ(spot.difference, difference.difference) << difference.field;
        if (spot.difference) {
            ASSERT_DOUBLE_EQ(*spot.right - *spot.left, *spot.difference);
        }
    }
    ASSERT_EQ(comparison.ByRoute().size(), ofRecord.size());
    for (const SCalStatistic &route : comparison.ByRoute())
        EXPECT_EQ(route.count, ofRecord[route.record]) << route.name;
}

TEST_F(CalComparisonTest, EveryByteOfARecordCounts)
{
    for (const ECalRoute kind : {ECalRoute::Tx, ECalRoute::Type1, ECalRoute::Type2}) {
        const std::size_t size = CalRecordLayout(kind).size;
        SCalImage left;
        left.records.push_back({kind, {}, std::vector<uint8_t>(size)});
        for (std::size_t byte = 0; byte < size; ++byte) {
            SCalImage right = left;
            right.records[0].bytes[byte] = 1;
            const CCalComparison comparison(left, std::move(right));
            ASSERT_EQ(comparison.Count(), 1u) << RouteName(kind) << " byte " << byte;
            ASSERT_NE(comparison.At(0).field, "") << RouteName(kind) << " byte " << byte;
            byte += size > 10000 ? 12 : 0;
        }
    }
}

TEST_F(CalComparisonTest, ToleranceIsOfDecibelsAlone)
{
    const SCalPlace at = First();
    const SCalImage image =
        Changed(at.route, static_cast<uint16_t>(at.region), [](SAptRouteBwRecord &record) {
            record.couplerLoss[0] = static_cast<int16_t>(record.couplerLoss[0] + 3);
            record.couplerLoss[1] = static_cast<int16_t>(record.couplerLoss[1] - 4);
            record.prfIndex[0] ^= 1;
        });
    const CCalComparison comparison(m_flash, image, 0.1);
    ASSERT_EQ(comparison.Count(), 2u);
    EXPECT_EQ(comparison.At(0).field, "prfIndex[0]");
    EXPECT_EQ(comparison.At(1).field, "couplerLoss[1]");
    EXPECT_EQ(comparison.At(1).difference, -0.125);
}

TEST_F(CalComparisonTest, RecordThatOneSideLacksIsTold)
{
    SCalImage less = m_flash;
    const SCalPlace gone = less.records[1].place;
    less.records.erase(less.records.begin() + 1);
    const CCalComparison right(m_flash, less);
    ASSERT_EQ(right.Count(), 1u);
    EXPECT_EQ(right.At(0).lack, ECalLack::Right);
    EXPECT_EQ(right.At(0).place.route, gone.route);
    EXPECT_EQ(right.At(0).field, "");
    const CCalComparison left(less, m_flash);
    ASSERT_EQ(left.Count(), 1u);
    EXPECT_EQ(left.At(0).lack, ECalLack::Left);
    EXPECT_EQ(left.At(0).place.region, gone.region);
    EXPECT_TRUE(left.ByField().empty());
    EXPECT_EQ(left.ByRoute().at(0).count, 1u);
}

TEST_F(CalComparisonTest, StatisticsCountByRouteAndByField)
{
    const SCalPlace at = First();
    const SCalImage image =
        Changed(at.route, static_cast<uint16_t>(at.region), [](SAptRouteBwRecord &record) {
            for (int i = 0; i < 10; ++i)
                record.paGain[0][i] = static_cast<int16_t>(record.paGain[0][i] - i - 1);
            record.level[3].prf = static_cast<int16_t>(record.level[3].prf + 64);
        });
    const CCalComparison comparison(m_flash, image);
    ASSERT_EQ(comparison.ByRoute().size(), 1u);
    EXPECT_EQ(comparison.ByRoute()[0].name, "TX " + PlaceText(at, ECalRoute::Tx));
    EXPECT_EQ(comparison.ByRoute()[0].count, 11u);
    const std::vector<SCalStatistic> fields = comparison.ByField();
    ASSERT_EQ(fields.size(), 2u);
    EXPECT_EQ(fields[0].name, "level.prf");
    EXPECT_EQ(fields[0].largest, 2);
    EXPECT_EQ(fields[1].name, "paGain");
    EXPECT_EQ(fields[1].count, 10u);
    EXPECT_EQ(fields[1].largest, 10 / 32.0);
    EXPECT_EQ(fields[1].unit, "dB");
}

// A load may count one block more than flash has, without a frequency: see FileBlockCount.
TEST_F(CalComparisonTest, FileDiffersFromTheFlashItCameFromInBlockCountsAlone)
{
    ASSERT_EQ(SaveFile(m_apt), kDone);
    CMultiRatAptProfileV7 file(ERadioKind::Nr);
    ASSERT_EQ(LoadFile(file), kDone);
    const CCalComparison comparison(m_flash, file.Image());
    for (std::size_t i = 0; i < comparison.Count(); ++i) {
        EXPECT_EQ(comparison.At(i).field, "blockCount");
        EXPECT_EQ(comparison.At(i).difference, 1);
    }
    EXPECT_LT(comparison.Count(), m_flash.records.size());
}

}  // namespace
