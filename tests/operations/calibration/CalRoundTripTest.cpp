// Calibration data on its whole way, flash to memory to file and back, and random images in rounds.
#include <algorithm>

#include "tests/operations/calibration/CalFixture.h"

namespace {

using SType1 = SMMType1PathlossByRouteV7;
using SType2 = SMMType2PathlossByRouteV7;

class CalRoundTripTest : public CCalTest
{
protected:
    // Reads the flash, writes it through a file and another memory, and looks at it again.
    template <typename Item>
    void CheckWayThroughAFile()
    {
        const FlashImage before = WithoutEmptyBlocks(ReadFlash());
        Item reader(ERadioKind::Nr);
        ASSERT_EQ(reader.UploadFromFlash(), 0u);
        ASSERT_EQ(SaveFile(reader), kDone);
        Item writer(ERadioKind::Nr);
        ASSERT_EQ(LoadFile(writer), kDone);
        ASSERT_EQ(writer.DownloadToFlash(), 0u);
        const FlashImage after = WithoutEmptyBlocks(ReadFlash());
        ASSERT_EQ(after.size(), before.size());
        for (const auto &[key, blocks] : before)
            ASSERT_EQ(after.at(key), blocks) << key;
    }

    // Extremes in all places but the frequencies, which the DUT holds to its bands.
    void FillFlashWithExtremes(unsigned seed)
    {
        std::mt19937 random(seed);
        const SMMRfRouteTableV7 &table = *m_target.GetRouteTableNr();
        CMultiRatAptProfileV7 apt(ERadioKind::Nr);
        CMultiRatPathLossV7 pathLoss(ERadioKind::Nr);
        ASSERT_EQ(apt.UploadFromFlash(), 0u);
        ASSERT_EQ(pathLoss.UploadFromFlash(), 0u);
        for (const SCalPlace &place : WalkRoutes(table, ECalRoute::Tx)) {
            const auto region = static_cast<uint16_t>(place.region);
            const auto &own = *apt.GetAptCalibrationData(place.route, region);
            SAptRouteBwRecord record = ExtremeApt(random, own.band, own.route, 64);
            TakeFrequencies(own, record);
            apt.SetAptCalibrationData(place.route, region, record);
        }
        for (const SCalPlace &place : WalkRoutes(table, ECalRoute::Type1))
            SetExtremes<SType1>(random, pathLoss, place.route);
        for (const SCalPlace &place : WalkRoutes(table, ECalRoute::Type2))
            SetExtremes<SType2>(random, pathLoss, place.route);
        ASSERT_EQ(apt.DownloadToFlash(), 0u);
        ASSERT_EQ(pathLoss.DownloadToFlash(), 0u);
    }

private:
    // The losses of subbands without a frequency stay 0: a file knows no end of the block.
    template <typename Record>
    static void TakeFrequencies(const Record &own, Record &record)
    {
        std::copy(std::begin(own.freq), std::end(own.freq), record.freq);
        record.blockCount = own.blockCount;
        ClearBehind(record, static_cast<int>(own.blockCount) * kVondCalBlockSubbands);
    }
    static void ClearBehind(SAptRouteBwRecord &record, int first)
    {
        for (int pa = 0; pa < kVondAptPaModes; ++pa) {
            std::fill(record.paGain[pa] + first, std::end(record.paGain[pa]), int16_t(0));
            std::fill(record.powerDetector[pa] + first, std::end(record.powerDetector[pa]),
                      int16_t(0));
        }
    }
    template <typename Record>
    static void ClearBehind(Record &record, int first)
    {
        for (int i = first; i < kVondCalMaxSubbands; ++i)
            std::fill(std::begin(record.loss[i]), std::end(record.loss[i]), SMMLossPair{});
    }
    template <typename Record>
    static void SetExtremes(std::mt19937 &random, CMultiRatPathLossV7 &item, uint16_t route)
    {
        const Record &own = *item.GetPathLossCalibrationData<Record>(route);
        const auto record = ExtremePathLoss<Record>(random, own.band, own.route, 64);
        TakeFrequencies(own, *record);
        item.SetPathLossCalibrationData(route, *record);
    }
};

// The blocks of each entry of a download, by region of the record.
struct SRound
{
    std::vector<std::pair<int, int>> routes[3];  // route number and blocks
};

SRound RoundOf(const SMMSetCalDataReqV7 &request)
{
    SRound round;
    for (int i = 0; i < request.type1Count; ++i)
        round.routes[0].emplace_back(request.type1[i].route, request.type1[i].blockCount);
    for (int i = 0; i < request.type2Count; ++i)
        round.routes[1].emplace_back(request.type2Route[i], request.type2BlockCount[i]);
    for (int i = 0; i < request.txCount; ++i)
        round.routes[2].emplace_back(request.tx[i].route, request.tx[i].blockCount);
    return round;
}

int BlocksOf(const std::vector<std::pair<int, int>> &routes)
{
    int blocks = 0;
    for (const auto &route : routes)
        blocks += route.second;
    return blocks;
}

// All routes in the order in which they went out; the limits held.
std::vector<std::pair<int, int>> SentRoutes(size_t &rounds, bool &everyRoundWasNeeded)
{
    constexpr int kLimits[] = {55, 3, 135};
    std::vector<std::pair<int, int>> all;
    std::vector<SRound> sent;
    for (const SJournalCall &call : JournalOf(kSetCalData))
        sent.push_back(RoundOf(RecordOf<SMMSetCalDataReqV7>(call.request)));
    everyRoundWasNeeded = true;
    for (size_t i = 0; i < sent.size(); ++i) {
        bool firstRouteWouldHaveFitted = i > 0;
        bool seen = false;
        for (int part = 0; part < 3; ++part) {
            const auto &routes = sent[i].routes[part];
            EXPECT_LE(BlocksOf(routes), kLimits[part]);
            all.insert(all.end(), routes.begin(), routes.end());
            if (i > 0 && !seen && !routes.empty()) {
                seen = true;
                const auto &last = sent[i - 1].routes[part];
                firstRouteWouldHaveFitted = BlocksOf(last) + routes[0].second <= kLimits[part] &&
                                            last.size() < static_cast<size_t>(kLimits[part]);
            }
        }
        // Without a split a packing in order is least when no round could have taken one more.
        everyRoundWasNeeded = everyRoundWasNeeded && !firstRouteWouldHaveFitted;
    }
    rounds = sent.size();
    return all;
}

// The sections of some of the records.
QByteArray SomeSections(std::mt19937 &random, const QByteArray &bare)
{
    QByteArray some;
    for (const QByteArray &section : bare.split('[')) {
        if (!section.isEmpty() && random() % 3 != 0)
            some += "[" + section;
    }
    return some;
}

}  // namespace

TEST_F(CalRoundTripTest, HandsetsFlashComesBackThroughAFile)
{
    CheckWayThroughAFile<CMultiRatAptProfileV7>();
    CheckWayThroughAFile<CMultiRatPathLossV7>();
}

TEST_F(CalRoundTripTest, LargestsFlashComesBackThroughAFile)
{
    PlugLargest();
    CheckWayThroughAFile<CMultiRatAptProfileV7>();
    CheckWayThroughAFile<CMultiRatPathLossV7>();
}

TEST_F(CalRoundTripTest, ExtremesInFlashComeBackThroughAFile)
{
    FillFlashWithExtremes(11);
    CheckWayThroughAFile<CMultiRatAptProfileV7>();
    CheckWayThroughAFile<CMultiRatPathLossV7>();
}

TEST_F(CalRoundTripTest, ExtremesInTheLargestsFlashComeBackThroughAFile)
{
    PlugLargest();
    FillFlashWithExtremes(12);
    CheckWayThroughAFile<CMultiRatAptProfileV7>();
    CheckWayThroughAFile<CMultiRatPathLossV7>();
}

TEST_F(CalRoundTripTest, RandomAptImagesGoInTheFewestRounds)
{
    PlugLargest();
    const QByteArray bare = BareFile(ECalRoute::Tx);
    for (unsigned seed = 1; seed <= 8; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        CMultiRatAptProfileV7 item(ERadioKind::Nr);
        const QByteArray some = SomeSections(random, bare);
        ASSERT_EQ(LoadText(item, some), kDone);
        std::vector<std::pair<int, int>> expected;
        for (const SCalPlace &place : WalkRoutes(*m_target.GetRouteTableNr(), ECalRoute::Tx)) {
            const QByteArray name =
                "n" + QByteArray::number(place.band) +
                (place.ordinal ? " CA" + QByteArray::number(place.ordinal) : QByteArray()) + " BW" +
                QByteArray::number(place.region) + " TPC]";
            if (!some.contains(name))
                continue;
            const auto region = static_cast<uint16_t>(place.region);
            SAptRouteBwRecord record = *item.GetAptCalibrationData(place.route, region);
            record.blockCount = static_cast<uint32_t>(random() % 5);
            item.SetAptCalibrationData(place.route, region, record);
            expected.emplace_back(place.route, static_cast<int>(record.blockCount));
        }
        VondSim_ClearJournal();
        ASSERT_EQ(item.DownloadToFlash(), 0u);
        size_t rounds = 0;
        bool least = false;
        EXPECT_EQ(SentRoutes(rounds, least), expected);
        EXPECT_GT(rounds, 1u);
        EXPECT_TRUE(least) << "a round had room for the first route of the next";
    }
}

TEST_F(CalRoundTripTest, RandomPathLossImagesGoInTheFewestRounds)
{
    const QByteArray bare = BareFile(ECalRoute::Type1) + BareFile(ECalRoute::Type2);
    for (unsigned seed = 1; seed <= 20; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        CMultiRatPathLossV7 item(ERadioKind::Nr);
        ASSERT_EQ(LoadText(item, SomeSections(random, bare)), kDone);
        VondSim_ClearJournal();
        ASSERT_EQ(item.DownloadToFlash(), 0u);
        size_t rounds = 0;
        bool least = false;
        const auto first = SentRoutes(rounds, least);
        // The same routes again, with as many blocks as come.
        std::vector<std::pair<int, int>> expected;
        for (const auto &[route, blocks] : first) {
            const int most = route > 100 ? 3 : 4;
            const int count = static_cast<int>(random() % static_cast<unsigned>(most + 1));
            expected.emplace_back(route, count);
            if (route > 100) {
                auto record = std::make_unique<SType2>(
                    *item.GetPathLossCalibrationData<SType2>(static_cast<uint16_t>(route)));
                record->blockCount = static_cast<uint32_t>(count);
                item.SetPathLossCalibrationData(static_cast<uint16_t>(route), *record);
            } else {
                auto record = std::make_unique<SType1>(
                    *item.GetPathLossCalibrationData<SType1>(static_cast<uint16_t>(route)));
                record->blockCount = static_cast<uint32_t>(count);
                item.SetPathLossCalibrationData(static_cast<uint16_t>(route), *record);
            }
        }
        VondSim_ClearJournal();
        ASSERT_EQ(item.DownloadToFlash(), 0u);
        EXPECT_EQ(SentRoutes(rounds, least), expected);
        EXPECT_TRUE(least) << "a round had room for the first route of the next";
    }
}
