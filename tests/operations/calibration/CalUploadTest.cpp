// Uploads of the calibration items: what is asked for, what becomes of the answers.
#include <array>
#include <cstddef>
#include <set>

#include "Operations/link/TargetLink.h"
#include "Support/Log.h"
#include "tests/common/AnswerField.h"
#include "tests/common/LogCapture.h"
#include "tests/operations/calibration/CalFixture.h"

namespace {

using SType1 = SMMType1PathlossByRouteV7;
using SType2 = SMMType2PathlossByRouteV7;

class CalUploadTest : public CCalTest
{
protected:
    static std::vector<SMMGetCalDataCnfV7> Answers()
    {
        std::vector<SMMGetCalDataCnfV7> answers;
        for (const SJournalCall &call : JournalOf(kGetCalData))
            answers.push_back(RecordOf<SMMGetCalDataCnfV7>(call.answer));
        return answers;
    }

    // Sections that a save holds tell which records are valid.
    QStringList ValidSections(ICalItemByL1Operation &item) { return Sections(SaveBytes(item)); }

    CMultiRatAptProfileV7 m_apt{ERadioKind::Nr};
    CMultiRatPathLossV7 m_pathLoss{ERadioKind::Nr};
};

// A record's block of 16 subbands, as the wire has it.
template <typename TKind>
QByteArray BlockOf(const typename TKind::Record &record, int k)
{
    auto block = std::make_unique<typename TKind::Block>();
    TKind::Cut(record, k, *block);
    return BytesOf(*block);
}

void Put16(QByteArray &bytes, int offset, int value)
{
    bytes[offset] = static_cast<char>(value);
    bytes[offset + 1] = static_cast<char>(value >> 8);
}

}  // namespace

TEST_F(CalUploadTest, AptRecordsAreTheAnsweredBlocks)
{
    ASSERT_EQ(m_apt.UploadFromFlash(), 0u);
    EXPECT_TRUE(m_apt.HasData());
    int blocks = 0;
    for (const SMMGetCalDataCnfV7 &answer : Answers()) {
        int next = 0;
        for (int i = 0; i < answer.txCount; ++i) {
            const SMMCalTxEntryV7 &entry = answer.tx[i];
            const SMMRfRouteTableV7 &table = *m_target.GetRouteTableNr();
            const auto *row = std::find_if(table.txRoute, table.txRoute + table.txRouteCount,
                                           [&](const auto &r) { return r.route == entry.route; });
            const auto *region = std::find(row->bwRegionKhz, row->bwRegionKhz + 4, entry.bandwidth);
            const auto *record = m_apt.GetAptCalibrationData(
                entry.route, static_cast<uint16_t>(region - row->bwRegionKhz));
            EXPECT_EQ(record->route, entry.route);
            EXPECT_EQ(record->blockCount, entry.blockCount);
            for (int k = 0; k < entry.blockCount; ++k, ++blocks)
                ASSERT_EQ(BlockOf<SAptKind>(*record, k), BytesOf(answer.txBlock[next++]));
        }
    }
    EXPECT_GT(blocks, 39);
}

TEST_F(CalUploadTest, PathLossRecordsAreTheAnsweredBlocks)
{
    ASSERT_EQ(m_pathLoss.UploadFromFlash(), 0u);
    int routes = 0;
    for (const SMMGetCalDataCnfV7 &answer : Answers()) {
        int next = 0;
        for (int i = 0; i < answer.type1Count; ++i, ++routes) {
            const auto *record =
                m_pathLoss.GetPathLossCalibrationData<SType1>(answer.type1[i].route);
            EXPECT_EQ(record->blockCount, answer.type1[i].blockCount);
            for (int k = 0; k < answer.type1[i].blockCount; ++k)
                ASSERT_EQ(BlockOf<SType1Kind>(*record, k), BytesOf(answer.type1Block[next++]));
        }
        next = 0;
        for (int i = 0; i < answer.type2Count; ++i, ++routes) {
            const auto *record =
                m_pathLoss.GetPathLossCalibrationData<SType2>(answer.type2Route[i]);
            EXPECT_EQ(record->blockCount, answer.type2BlockCount[i]);
            for (int k = 0; k < answer.type2BlockCount[i]; ++k)
                ASSERT_EQ(BlockOf<SType2Kind>(*record, k), BytesOf(answer.type2Block[next++]));
        }
    }
    EXPECT_EQ(routes, 17 + 8) << "a route that stands on two bands is one";
}

TEST_F(CalUploadTest, AptRequestListsEachRegionOnceInTheOrderOfTheTable)
{
    PlugHandsetWith(R"("calibration": {"txSubbands": {"default": 20, "n41": 64}})");
    ASSERT_EQ(m_apt.UploadFromFlash(), 0u);
    ASSERT_EQ(CountCalls(kGetCalData), 1);
    QByteArray expected(2404, '\0');
    expected[0] = 1;
    std::set<std::pair<int, int>> seen;
    int at = 244;
    for (const SCalPlace &place : WalkRoutes(*m_target.GetRouteTableNr(), ECalRoute::Tx)) {
        if (!seen.insert({place.route, place.region}).second)
            continue;
        Put16(expected, at, place.band == 41 ? 4 : 2);
        Put16(expected, at + 2, place.route);
        Put16(expected, at + 4, static_cast<int>(place.bwKhz & 0xFFFF));
        Put16(expected, at + 6, static_cast<int>(place.bwKhz >> 16));
        Put16(expected, at + 12, place.route);
        at += 16;
    }
    Put16(expected, 8, 39);
    EXPECT_EQ(at, 244 + 16 * 39);
    ExpectOneCall(kGetCalData, expected);
    ExpectOneCall(kBlockInfo, QByteArray::fromHex("01000000"));
}

TEST_F(CalUploadTest, PathLossRequestHoldsBothTypesTogether)
{
    PlugHandsetWith(R"("calibration": {"rxType1Subbands": {"default": 5},
                                       "rxType2Subbands": {"default": 40}})");
    ASSERT_EQ(m_pathLoss.UploadFromFlash(), 0u);
    const auto calls = JournalOf(kGetCalData);
    ASSERT_EQ(calls.size(), 8) << "a round for each type 2 route";
    QByteArray expected(2404, '\0');
    expected[0] = 1;
    Put16(expected, 4, 17);
    Put16(expected, 6, 1);
    for (int route = 1; route <= 17; ++route) {
        Put16(expected, 12 + 4 * (route - 1), 1);
        Put16(expected, 14 + 4 * (route - 1), route);
    }
    Put16(expected, 232, 3);
    Put16(expected, 234, 101);
    EXPECT_EQ(calls[0].request, expected);
    QByteArray last(2404, '\0');
    last[0] = 1;
    Put16(last, 6, 1);
    Put16(last, 232, 3);
    Put16(last, 234, 108);
    EXPECT_EQ(calls[7].request, last);
    EXPECT_EQ(calls[7].call.timeoutMs, 10000u);
}

TEST_F(CalUploadTest, EmptyFlashMovesNothing)
{
    PlugHandsetWith(R"("calibration": {"txSubbands": {"default": 0}})");
    EXPECT_EQ(m_apt.UploadFromFlash(), 2u);
    EXPECT_EQ(m_apt.GetErrorMessage(), QString());
    EXPECT_FALSE(m_apt.HasData());
    EXPECT_EQ(CountCalls(kGetCalData), 0);
}

TEST_F(CalUploadTest, MissingRouteTableEndsTheUploadAndKeepsTheRecords)
{
    ASSERT_EQ(m_apt.UploadFromFlash(), 0u);
    Fault(kRouteConfig);
    CTargetCapability::Reset();
    EXPECT_EQ(m_apt.UploadFromFlash(), 1u);
    EXPECT_EQ(m_apt.GetErrorMessage(), QString("Fail to get the route info"));
    EXPECT_TRUE(m_apt.HasData());
    EXPECT_EQ(CountCalls(kBlockInfo), 1);
}

TEST_F(CalUploadTest, FailedBlockInfoIsToldAndLeavesWhatWasValid)
{
    ASSERT_EQ(m_apt.UploadFromFlash(), 0u);
    ASSERT_EQ(m_pathLoss.UploadFromFlash(), 0u);
    Fault(kBlockInfo);
    EXPECT_EQ(m_apt.UploadFromFlash(), 3u);
    EXPECT_EQ(m_apt.GetErrorMessage(),
              QString("Failed to get Blk info before reading APT from target: "
                      "Target: failure on demand"));
    EXPECT_TRUE(m_apt.HasData());
    EXPECT_EQ(m_pathLoss.UploadFromFlash(), 3u);
    EXPECT_EQ(m_pathLoss.GetErrorMessage(),
              QString("Failed to get Blk info before reading RX path loss from target: "
                      "Target: failure on demand"));
    EXPECT_TRUE(m_pathLoss.HasData());
}

TEST_F(CalUploadTest, RefusedRoundIsToldWithTheTextOfTheItem)
{
    const LogCapture log(lcCalibration());
    AnswerField(kGetCalData, "verdict.status", 0);
    AnswerField(kGetCalData, "verdict.type1Text", "t1");
    AnswerField(kGetCalData, "verdict.type2Text", "t2");
    AnswerField(kGetCalData, "verdict.txText", "tx");
    EXPECT_EQ(m_apt.UploadFromFlash(), 203u);
    EXPECT_EQ(m_apt.GetErrorMessage(), QString("L1 status code = 0 (SUCCESS = 1)\ntx"));
    EXPECT_EQ(m_pathLoss.UploadFromFlash(), 203u);
    EXPECT_EQ(m_pathLoss.GetErrorMessage(),
              QString("L1 status code = 0 (SUCCESS = 1)\n Type1: t1\n Type2: t2"));
    EXPECT_FALSE(m_apt.HasData() || m_pathLoss.HasData());
    EXPECT_EQ(CountCalls(kGetCalData), 2) << "nothing follows a refused round";
    EXPECT_TRUE(log.Holds(QtDebugMsg, "-----> receive from target failed"));
}

TEST_F(CalUploadTest, StatusThatIsNeitherOneNorZeroIsToldAsItIs)
{
    AnswerField(kGetCalData, "verdict.status", 5);
    AnswerField(kGetCalData, "verdict.txText", "");
    EXPECT_EQ(m_apt.UploadFromFlash(), 203u);
    EXPECT_EQ(m_apt.GetErrorMessage(), QString("L1 status code = 5 (SUCCESS = 1)\n"));
}

TEST_F(CalUploadTest, TextThatFillsItsRoomEndsThere)
{
    AnswerField(kGetCalData, "verdict.status", 0);
    for (const char *text : {"verdict.type1Text", "verdict.type2Text", "verdict.txText"})
        AnswerField(kGetCalData, text, std::string(64, 'w'));
    EXPECT_EQ(m_apt.UploadFromFlash(), 203u);
    EXPECT_EQ(m_apt.GetErrorMessage(),
              "L1 status code = 0 (SUCCESS = 1)\n" + QString(64, QChar('w')));
}

TEST_F(CalUploadTest, ResultElevenIsAcceptedAndThenTheLibrarysFailure)
{
    const LogCapture log(lcCalibration());
    Fault(kGetCalData, 11);
    EXPECT_EQ(m_apt.UploadFromFlash(), 3u);
    EXPECT_EQ(m_apt.GetErrorMessage(), VondErrorText(11));
    EXPECT_FALSE(m_apt.HasData());
    EXPECT_TRUE(log.Holds(QtDebugMsg, "-----> receive from target..."));
    EXPECT_FALSE(log.Holds(QtDebugMsg, "-----> receive from target failed"));
}

TEST_F(CalUploadTest, AcceptedStatusWithAFailingResultIsTheLibrarysFailure)
{
    Fault(kGetCalData, 4);
    AnswerField(kGetCalData, "verdict.status", 1);
    EXPECT_EQ(m_apt.UploadFromFlash(), 3u);
    EXPECT_EQ(m_apt.GetErrorMessage(), QString("Target: failure on demand"));
}

TEST_F(CalUploadTest, FailureOfALaterRoundKeepsWhatCameBefore)
{
    ASSERT_EQ(VondSim_AddFault(R"({"function": "VOND_MMRf_GetCalDataV7_r", "kind": "fail",
                                   "result": 4, "nth": 2})"),
              0);
    EXPECT_EQ(m_pathLoss.UploadFromFlash(), 203u);
    EXPECT_EQ(CountCalls(kGetCalData), 2);
    EXPECT_TRUE(m_pathLoss.HasData());
    EXPECT_EQ(ValidSections(m_pathLoss).first(), QString("NR n1 RX loss"));
}

TEST_F(CalUploadTest, RouteThatTheBlockInfoLacksIsLoggedAndSkipped)
{
    const LogCapture log(lcCalibration());
    AnswerField(kBlockInfo, "tx[0].route", 80);  // the first TX row tells of route 80
    EXPECT_EQ(m_apt.UploadFromFlash(), 0u);
    EXPECT_TRUE(log.Holds(QtDebugMsg, "Failed to get Blk info in L1 data: Route 1 bw20000"));
    const QStringList sections = ValidSections(m_apt);
    EXPECT_FALSE(sections.contains("NR n1 BW0 TPC"));
    EXPECT_TRUE(sections.contains("NR n1 CA1 BW0 TPC"));
}

TEST_F(CalUploadTest, Type2RouteWithMoreBlocksThanARoundHoldsStaysInvalid)
{
    const LogCapture log(lcCalibration());
    AnswerField(kBlockInfo, "type2[0].blockTotal", 4);  // of type 2 route 101
    EXPECT_EQ(m_pathLoss.UploadFromFlash(), 0u);
    EXPECT_TRUE(log.Holds(QtCriticalMsg, "T2 route 101 has 4 blocks in flash"));
    const QStringList sections = ValidSections(m_pathLoss);
    EXPECT_FALSE(sections.contains("NR n1 Route NCCA0 RX loss"));
    EXPECT_TRUE(sections.contains("NR n41 Route NCCA0 RX loss"));
}

TEST_F(CalUploadTest, RecordWithMoreBlocksThanItHoldsStaysInvalid)
{
    const LogCapture log(lcCalibration());
    AnswerField(kBlockInfo, "tx[0].blockCount[0]", 65535);  // region 0 of TX route 1
    EXPECT_EQ(m_apt.UploadFromFlash(), 0u);
    EXPECT_TRUE(log.Holds(QtCriticalMsg, "TX route 1 bw20000 has 65535 blocks in flash"));
    EXPECT_FALSE(ValidSections(m_apt).contains("NR n1 BW0 TPC"));
}

TEST_F(CalUploadTest, AnswerThatNamesAnotherRouteFillsNoRecord)
{
    const LogCapture log(lcCalibration());
    CMultiRatAptProfileV7 whole(ERadioKind::Nr);
    ASSERT_EQ(whole.UploadFromFlash(), 0u);
    AnswerField(kGetCalData, "tx[0].route", 32767);  // route of the first TX entry
    EXPECT_EQ(m_apt.UploadFromFlash(), 0u);
    EXPECT_TRUE(log.Holds(QtDebugMsg, "Can not get the bwIdx for route 32767"));
    EXPECT_FALSE(ValidSections(m_apt).contains("NR n1 BW0 TPC"));
    EXPECT_EQ(BytesOf(*m_apt.GetAptCalibrationData(1, 1)),
              BytesOf(*whole.GetAptCalibrationData(1, 1)))
        << "the next record has blocks that are not its own";
}

TEST_F(CalUploadTest, AnswerWithFewerBlocksThanAskedForLeavesTheRecordInvalid)
{
    PlugHandsetWith(R"("calibration": {"txSubbands": {"default": 20}})");
    AnswerField(kGetCalData, "tx[0].blockCount", 1);  // one block of two
    EXPECT_EQ(m_apt.UploadFromFlash(), 0u);
    EXPECT_FALSE(ValidSections(m_apt).contains("NR n1 BW0 TPC"));
}

TEST_F(CalUploadTest, CountsBeyondTheTablesAreNotFollowed)
{
    const LogCapture log(lcCalibration());
    for (const char *count : {"type1Count", "type2Count", "txCount"})
        AnswerField(kBlockInfo, count, 65535);
    EXPECT_EQ(m_apt.UploadFromFlash(), 0u);
    EXPECT_EQ(m_pathLoss.UploadFromFlash(), 0u);
    for (const char *count : {"type1Count", "type2Count", "txCount"})
        AnswerField(kGetCalData, count, 65535);
    AnswerField(kGetCalData, "type1[0].blockCount", 65535);
    AnswerField(kGetCalData, "type2BlockCount[0]", 65535);
    AnswerField(kGetCalData, "tx[0].blockCount", 65535);
    const QByteArray before = SaveBytes(m_apt);
    CMultiRatAptProfileV7 fresh(ERadioKind::Nr);
    EXPECT_EQ(fresh.UploadFromFlash(), 0u);
    EXPECT_FALSE(fresh.HasData());
    EXPECT_EQ(m_apt.UploadFromFlash(), 0u);
    EXPECT_EQ(m_pathLoss.UploadFromFlash(), 0u);
    EXPECT_EQ(SaveBytes(m_apt), before);
    EXPECT_TRUE(log.Holds(QtCriticalMsg, "TX answer has too many entries: 65535"));
    EXPECT_TRUE(log.Holds(QtCriticalMsg, "TX answer has too many blocks"));
}

TEST_F(CalUploadTest, NoiseInPlaceOfAnswersEndsInACodeAndHarmsNothing)
{
    for (int seed = 1; seed <= 20; ++seed) {
        VondSim_ClearFaults();
        Noise(kBlockInfo, seed);
        Noise(kGetCalData, 100 + seed);
        AnswerField(kGetCalData, "verdict.status", 1);
        for (uint32_t code : {m_apt.UploadFromFlash(), m_pathLoss.UploadFromFlash()})
            EXPECT_TRUE(code == 0 || code == 2) << code;
    }
}

TEST_F(CalUploadTest, RecordStartsAnewWhateverMemoryHeld)
{
    PlugHandsetWith(R"("calibration": {"txSubbands": {"default": 20}})");
    std::mt19937 random(1);
    m_apt.SetAptCalibrationData(1, 0, ExtremeApt(random, 1, 1, 64));
    ASSERT_EQ(m_apt.UploadFromFlash(), 0u);
    const SAptRouteBwRecord &record = *m_apt.GetAptCalibrationData(1, 0);
    EXPECT_EQ(record.blockCount, 2u);
    EXPECT_NE(record.freq[19], 0u);
    for (int i = 32; i < kVondCalMaxSubbands; ++i) {
        EXPECT_EQ(record.freq[i], 0u);
        EXPECT_EQ(record.paGain[2][i], 0);
    }
}

TEST_F(CalUploadTest, ProgressTellsRoundsAndRoutes)
{
    PlugHandsetWith(R"("calibration": {"rxType1Subbands": {"default": 64},
                                       "rxType2Subbands": {"default": 0}})");
    std::vector<std::array<int, 3>> calls;
    m_pathLoss.SetProgress([&](int round, int done, int all) {
        calls.push_back({round, done, all});
    });
    ASSERT_EQ(m_pathLoss.UploadFromFlash(), 0u);
    // 55 blocks hold 13 routes of 4, the last of which is the table's 14th row: route 12 stands
    // there twice.
    const std::vector<std::array<int, 3>> expected = {{1, 0, 26}, {2, 14, 26}, {2, 26, 26}};
    EXPECT_EQ(calls, expected);
}

TEST_F(CalUploadTest, LogFollowsTheBlocks)
{
    const LogCapture log(lcCalibration());
    ASSERT_EQ(m_apt.UploadFromFlash(), 0u);
    ASSERT_EQ(m_pathLoss.UploadFromFlash(), 0u);
    for (const char *line :
         {"add to upload: current route 1 bw20000", "add for upload: T1 current route 1",
          "add for upload: T2 current route 101", " start upload....",
          "-----> receive from target...", "[T1][confirm] data info: route = 1, blkNum = ",
          "         [request] current blk data idx = 0", "         [confirm]blk_data_idx = 0",
          "UploadFromFlashInternal reset currblkIdx "})
        EXPECT_TRUE(log.Holds(QtDebugMsg, line)) << line;
}
