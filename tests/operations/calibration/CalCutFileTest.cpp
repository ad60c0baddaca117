// Calibration files that end too early, at any byte: records are taken over whole or not at all.
#include <map>
#include <set>

#include "tests/operations/calibration/CalFixture.h"

namespace {

using SType1 = SMMType1PathlossByRouteV7;
using Records = std::map<std::pair<int, int>, QByteArray>;  // by route and region

class CalCutFileTest : public CCalTest
{
protected:
    std::vector<SCalPlace> Places(ECalRoute kind) const
    {
        return WalkRoutes(*m_target.GetRouteTableNr(), kind);
    }
    Records RecordsOf(const CMultiRatAptProfileV7 &item) const
    {
        Records records;
        for (const SCalPlace &place : Places(ECalRoute::Tx))
            records[{place.route, place.region}] = BytesOf(
                *item.GetAptCalibrationData(place.route, static_cast<uint16_t>(place.region)));
        return records;
    }
    Records RecordsOf(const CMultiRatPathLossV7 &item) const
    {
        Records records;
        for (const SCalPlace &place : Places(ECalRoute::Type1))
            records[{place.route, 0}] =
                BytesOf(*item.GetPathLossCalibrationData<SType1>(place.route));
        return records;
    }

    // Loads the first bytes of a file over records of the bare file and looks at each record.
    template <typename Item>
    void CheckCuts(const Item &whole, const QByteArray &file, const QByteArray &bare,
                   std::set<uint32_t> codes)
    {
        const Records full = RecordsOf(whole);
        std::mt19937 random(18);
        for (int round = 0; round < 24; ++round) {
            const int size = static_cast<int>(random() % static_cast<unsigned>(file.size()));
            SCOPED_TRACE(size);
            Item item(ERadioKind::Nr);
            ASSERT_EQ(LoadText(item, bare), kDone);
            const Records old = RecordsOf(item);
            const SOutcome outcome = LoadText(item, file.left(size));
            EXPECT_TRUE(codes.count(outcome.code)) << outcome;
            int others = 0;
            for (const auto &[key, bytes] : RecordsOf(item))
                others += bytes != full.at(key) && bytes != old.at(key);
            EXPECT_LE(others, outcome.code == 0 ? 1 : 0) << outcome;
        }
    }
};

}  // namespace

TEST_F(CalCutFileTest, AptRecordsAreOldOrNewButForTheOneThatWasCut)
{
    CMultiRatAptProfileV7 item(ERadioKind::Nr);
    ASSERT_EQ(item.UploadFromFlash(), 0u);
    const QByteArray saved = SaveBytes(item);
    CMultiRatAptProfileV7 whole(ERadioKind::Nr);
    ASSERT_EQ(LoadText(whole, saved), kDone);
    CheckCuts(whole, saved, BareFile(ECalRoute::Tx), {0, 51, 53});
}

TEST_F(CalCutFileTest, PathLossRecordsAreOldOrNewButForTheOneThatWasCut)
{
    CMultiRatPathLossV7 item(ERadioKind::Nr);
    ASSERT_EQ(LoadText(item, BareFile(ECalRoute::Type1)), kDone);
    std::mt19937 random(4);
    for (const SCalPlace &place : Places(ECalRoute::Type1))
        item.SetPathLossCalibrationData(
            place.route, *ExtremePathLoss<SType1>(random, place.band, place.route, 40));
    const QByteArray saved = SaveBytes(item);
    CMultiRatPathLossV7 whole(ERadioKind::Nr);
    ASSERT_EQ(LoadText(whole, saved), kDone);
    CheckCuts(whole, saved, BareFile(ECalRoute::Type1), {0, 51, 52});
}
