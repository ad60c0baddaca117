// Downloads of the calibration items: the exact bytes of every round, and what a failure leaves.
#include <array>
#include <cstddef>
#include <cstring>
#include <set>

#include "Operations/link/TargetLink.h"
#include "Support/Log.h"
#include "tests/common/AnswerField.h"
#include "tests/common/LogCapture.h"
#include "tests/operations/calibration/CalFixture.h"

namespace {

using SType1 = SMMType1PathlossByRouteV7;
using SType2 = SMMType2PathlossByRouteV7;

class CalDownloadTest : public CCalTest
{
protected:
    static std::vector<SMMSetCalDataReqV7> Requests()
    {
        std::vector<SMMSetCalDataReqV7> requests;
        for (const SJournalCall &call : JournalOf(kSetCalData))
            requests.push_back(RecordOf<SMMSetCalDataReqV7>(call.request));
        return requests;
    }

    CMultiRatAptProfileV7 m_apt{ERadioKind::Nr};
    CMultiRatPathLossV7 m_pathLoss{ERadioKind::Nr};
};

// The request that writes back what an answer of the flash brought, field by field.
QByteArray WriteBack(const QByteArray &answer)
{
    const auto from = RecordOf<SMMGetCalDataCnfV7>(answer);
    SMMSetCalDataReqV7 to{};
    to.radioKind = 1;
    to.version = 1;
    to.type1Count = from.type1Count;
    to.type2Count = from.type2Count;
    to.txCount = from.txCount;
    std::memcpy(to.type1, from.type1, sizeof to.type1);
    std::memcpy(to.type2BlockCount, from.type2BlockCount, sizeof to.type2BlockCount);
    std::memcpy(to.type2Route, from.type2Route, sizeof to.type2Route);
    std::memcpy(to.tx, from.tx, sizeof to.tx);
    std::memcpy(to.type1Block, from.type1Block, sizeof to.type1Block);
    std::memcpy(to.type2Block, from.type2Block, sizeof to.type2Block);
    std::memcpy(to.txBlock, from.txBlock, sizeof to.txBlock);
    return BytesOf(to);
}

void CheckWriteBack(ICalItemByL1Operation &item)
{
    VondSim_ClearJournal();
    ASSERT_EQ(item.UploadFromFlash(), 0u);
    ASSERT_EQ(item.DownloadToFlash(), 0u);
    const auto read = JournalOf(kGetCalData);
    const auto written = JournalOf(kSetCalData);
    ASSERT_EQ(read.size(), written.size());
    for (int round = 0; round < read.size(); ++round) {
        ASSERT_EQ(written[round].request, WriteBack(read[round].answer)) << "round " << round + 1;
        EXPECT_EQ(written[round].call.handle, kHandle);
        EXPECT_EQ(written[round].call.timeoutMs, 10000u);
    }
}

}  // namespace

TEST_F(CalDownloadTest, NothingValidMakesNoCallAndIsTold)
{
    EXPECT_EQ(m_apt.DownloadToFlash(), 2u);
    EXPECT_EQ(m_pathLoss.DownloadToFlash(), 2u);
    EXPECT_EQ(m_apt.GetErrorMessage(), QString());
    EXPECT_EQ(CountCalls(kSetCalData), 0);
}

TEST_F(CalDownloadTest, StoredRecordThatWasNeverReadIsNotWritten)
{
    std::mt19937 random(1);
    m_apt.SetAptCalibrationData(1, 0, ExtremeApt(random, 1, 1, 16));
    m_pathLoss.SetPathLossCalibrationData(1, *ExtremePathLoss<SType1>(random, 1, 1, 16));
    EXPECT_EQ(m_apt.DownloadToFlash(), 2u);
    EXPECT_EQ(m_pathLoss.DownloadToFlash(), 2u);
    EXPECT_EQ(CountCalls(kSetCalData), 0);
}

TEST_F(CalDownloadTest, EveryRoundIsWrittenBackByteForByte)
{
    CheckWriteBack(m_apt);
    CheckWriteBack(m_pathLoss);
}

TEST_F(CalDownloadTest, EveryRoundOfTheLargestIsWrittenBackByteForByte)
{
    PlugLargest();
    CheckWriteBack(m_apt);
    CheckWriteBack(m_pathLoss);
}

TEST_F(CalDownloadTest, FlashIsAsItWasAfterReadAndWrite)
{
    const FlashImage before = ReadFlash();
    ASSERT_EQ(m_apt.UploadFromFlash(), 0u);
    ASSERT_EQ(m_apt.DownloadToFlash(), 0u);
    ASSERT_EQ(m_pathLoss.UploadFromFlash(), 0u);
    ASSERT_EQ(m_pathLoss.DownloadToFlash(), 0u);
    EXPECT_EQ(ReadFlash(), before);
}

TEST_F(CalDownloadTest, HundredThirtySixBlocksGoInTwoRoundsSplitAtARoute)
{
    // 39 records of 3 blocks, 19 of them with one more.
    PlugHandsetWith(R"("calibration": {"txSubbands": {"default": 48, "n41": 64, "n79": 64,
                                                      "n5": 64, "n28": 64, "n80": 64}})");
    ASSERT_EQ(m_apt.UploadFromFlash(), 0u);
    ASSERT_EQ(m_apt.DownloadToFlash(), 0u);
    const auto requests = Requests();
    ASSERT_EQ(requests.size(), 2u);
    EXPECT_EQ(requests[0].txCount, 38);
    ASSERT_EQ(requests[1].txCount, 1);
    EXPECT_EQ(requests[1].tx[0].route, 18);
    EXPECT_EQ(requests[1].tx[0].blockCount, 4);
    int first = 0;
    for (int i = 0; i < 38; ++i)
        first += requests[0].tx[i].blockCount;
    EXPECT_EQ(first, 132);
}

TEST_F(CalDownloadTest, HundredThirtyFiveBlocksGoInOneRound)
{
    // 39 records of 3 blocks, 18 of them with one more.
    PlugHandsetWith(R"("calibration": {"txSubbands": {"default": 48, "n41": 64, "n79": 64,
                                                      "n5": 64, "n28": 64}})");
    ASSERT_EQ(m_apt.UploadFromFlash(), 0u);
    ASSERT_EQ(m_apt.DownloadToFlash(), 0u);
    const auto requests = Requests();
    ASSERT_EQ(requests.size(), 1u);
    ASSERT_EQ(requests[0].txCount, 39);
    int blocks = 0;
    for (int i = 0; i < 39; ++i)
        blocks += requests[0].tx[i].blockCount;
    EXPECT_EQ(blocks, 135);
    EXPECT_NE(requests[0].txBlock[134].band, 0);
}

TEST_F(CalDownloadTest, FiftyFiveType1BlocksGoInOneRound)
{
    // 17 routes of 3 blocks, 4 of them with one more.
    PlugHandsetWith(R"("calibration": {"rxType1Subbands": {"default": 48, "n1": 64, "n3": 64},
                                       "rxType2Subbands": {"default": 0}})");
    ASSERT_EQ(m_pathLoss.UploadFromFlash(), 0u);
    ASSERT_EQ(m_pathLoss.DownloadToFlash(), 0u);
    EXPECT_EQ(CountCalls(kGetCalData), 1);
    const auto requests = Requests();
    ASSERT_EQ(requests.size(), 1u);
    ASSERT_EQ(requests[0].type1Count, 17);
    int blocks = 0;
    for (int i = 0; i < 17; ++i)
        blocks += requests[0].type1[i].blockCount;
    EXPECT_EQ(blocks, 55);
    EXPECT_NE(requests[0].type1Block[54].band, 0);
}

TEST_F(CalDownloadTest, FourType2BlocksOverTwoRoutesGoInTwoRounds)
{
    PlugHandsetWith(R"("calibration": {"rxType1Subbands": {"default": 0},
                           "rxType2Subbands": {"default": 0, "n41": 32}})");
    ASSERT_EQ(m_pathLoss.UploadFromFlash(), 0u);
    ASSERT_EQ(m_pathLoss.DownloadToFlash(), 0u);
    const auto requests = Requests();
    ASSERT_EQ(requests.size(), 2u);
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(requests[round].type2Count, 1);
        EXPECT_EQ(requests[round].type2Route[0], 102 + round);
        EXPECT_EQ(requests[round].type2BlockCount[0], 2);
    }
}

TEST_F(CalDownloadTest, LpmEditChangesTheFirstHalfOfItsPairAlone)
{
    const FlashImage before = ReadFlash();
    ASSERT_EQ(m_pathLoss.UploadFromFlash(), 0u);
    auto record = std::make_unique<SType1>(*m_pathLoss.GetPathLossCalibrationData<SType1>(1));
    for (int subband = 0; subband < kVondCalMaxSubbands; ++subband)
        record->loss[subband][9].lpm = -123;
    m_pathLoss.SetPathLossCalibrationData(1, *record);
    ASSERT_EQ(m_pathLoss.DownloadToFlash(), 0u);
    FlashImage after = ReadFlash();
    constexpr int kLoss = offsetof(SMMType1PathlossBlockV7, loss);
    constexpr int kRow = sizeof(SMMType1PathlossBlockV7::loss[0]);
    int changed = 0;
    for (size_t k = 0; k < after.at("T1 1").size(); ++k) {
        const QByteArray &block = after["T1 1"][k];
        const QByteArray &old = before.at("T1 1")[k];
        for (int i = 0; i < block.size(); ++i) {
            if (block[i] == old[i])
                continue;
            ++changed;
            const int inPair = (i - kLoss) % kRow - int(sizeof(SMMLossPair)) * 9;
            EXPECT_TRUE(inPair == 0 || inPair == 1) << i;
        }
    }
    EXPECT_GT(changed, 0);
    after["T1 1"] = before.at("T1 1");
    EXPECT_EQ(after, before) << "another record changed";
}

TEST_F(CalDownloadTest, ExtremesOfEveryTypeArriveInFlash)
{
    ASSERT_EQ(m_apt.UploadFromFlash(), 0u);
    std::mt19937 random(3);
    std::vector<SAptRouteBwRecord> records;
    for (uint16_t region = 0; region < 4; ++region) {
        SAptRouteBwRecord record = ExtremeApt(random, 41, 9, 0);
        const SAptRouteBwRecord &own = *m_apt.GetAptCalibrationData(9, region);
        std::copy(std::begin(own.freq), std::end(own.freq), record.freq);
        record.blockCount = kVondCalMaxBlocks;
        records.push_back(record);
        m_apt.SetAptCalibrationData(9, region, record);
    }
    ASSERT_EQ(m_apt.DownloadToFlash(), 0u);
    CMultiRatAptProfileV7 other(ERadioKind::Nr);
    ASSERT_EQ(other.UploadFromFlash(), 0u);
    for (uint16_t region = 0; region < 4; ++region)
        EXPECT_EQ(BytesOf(*other.GetAptCalibrationData(9, region)), BytesOf(records[region]));
}

TEST_F(CalDownloadTest, Type2RecordIsSentWithoutItsEmptyTrailingBlocks)
{
    PlugHandsetWith(R"("calibration": {"rxType2Subbands": {"default": 48}})");
    ASSERT_EQ(m_pathLoss.UploadFromFlash(), 0u);
    const FlashImage before = ReadFlash();
    // Through a file, which makes 4 blocks of 48 frequencies.
    ASSERT_EQ(SaveFile(m_pathLoss), kDone);
    CMultiRatPathLossV7 other(ERadioKind::Nr);
    ASSERT_EQ(LoadFile(other), kDone);
    ASSERT_EQ(other.GetPathLossCalibrationData<SType2>(101)->blockCount, 4u);
    ASSERT_EQ(other.DownloadToFlash(), 0u);
    EXPECT_EQ(Requests().back().type2BlockCount[0], 3);
    const FlashImage after = ReadFlash();
    for (const auto &[key, blocks] : before) {
        if (key[1] == '2') {
            EXPECT_EQ(after.at(key), blocks) << key;
        }
    }
}

TEST_F(CalDownloadTest, Type2RecordOfFourBlocksIsNotSentAndTold)
{
    ASSERT_EQ(m_pathLoss.UploadFromFlash(), 0u);
    const FlashImage before = ReadFlash();
    auto record = std::make_unique<SType2>(*m_pathLoss.GetPathLossCalibrationData<SType2>(105));
    record->blockCount = 4;
    record->freq[63] = 3500010;
    m_pathLoss.SetPathLossCalibrationData(105, *record);
    EXPECT_EQ(m_pathLoss.DownloadToFlash(), 1u);
    EXPECT_EQ(m_pathLoss.GetErrorMessage(),
              QString("T2 route 105 has 4 blocks, more than the 3 that one transfer holds. "
                      "It was not written."));
    int routes = 0;
    for (const SMMSetCalDataReqV7 &request : Requests()) {
        routes += request.type1Count + request.type2Count;
        for (int i = 0; i < request.type2Count; ++i)
            EXPECT_NE(request.type2Route[i], 105);
    }
    EXPECT_EQ(routes, 17 + 7) << "the others were written";
    EXPECT_EQ(ReadFlash(), before);
}

TEST_F(CalDownloadTest, FailureOfARoundCountsMoreThanARecordThatWasLeftOut)
{
    ASSERT_EQ(m_pathLoss.UploadFromFlash(), 0u);
    auto record = std::make_unique<SType2>(*m_pathLoss.GetPathLossCalibrationData<SType2>(101));
    record->blockCount = 4;
    record->freq[63] = 2140000;
    m_pathLoss.SetPathLossCalibrationData(101, *record);
    Fault(kSetCalData, 11);
    EXPECT_EQ(m_pathLoss.DownloadToFlash(), 3u);
    EXPECT_EQ(m_pathLoss.GetErrorMessage(), VondErrorText(11));
}

TEST_F(CalDownloadTest, RefusedRoundIsToldAndEndsTheDownload)
{
    ASSERT_EQ(m_apt.UploadFromFlash(), 0u);
    ASSERT_EQ(m_pathLoss.UploadFromFlash(), 0u);
    AnswerField(kSetCalData, "status", 0);
    AnswerField(kSetCalData, "type1Text", "t1");
    AnswerField(kSetCalData, "type2Text", "t2");
    AnswerField(kSetCalData, "txText", "tx");
    EXPECT_EQ(m_apt.DownloadToFlash(), 203u);
    EXPECT_EQ(m_apt.GetErrorMessage(), QString("L1 status code = 0 (SUCCESS = 1)\ntx"));
    EXPECT_EQ(m_pathLoss.DownloadToFlash(), 203u);
    EXPECT_EQ(m_pathLoss.GetErrorMessage(),
              QString("L1 status code = 0 (SUCCESS = 1)\n Type1: t1\n Type2: t2"));
    EXPECT_EQ(CountCalls(kSetCalData), 2);
}

TEST_F(CalDownloadTest, ResultElevenIsAcceptedAndThenTheLibrarysFailure)
{
    ASSERT_EQ(m_apt.UploadFromFlash(), 0u);
    Fault(kSetCalData, 11);
    EXPECT_EQ(m_apt.DownloadToFlash(), 3u);
    EXPECT_EQ(m_apt.GetErrorMessage(), VondErrorText(11));
}

TEST_F(CalDownloadTest, FailureOfALaterRoundLeavesWhatWasSent)
{
    ASSERT_EQ(m_pathLoss.UploadFromFlash(), 0u);
    auto record = std::make_unique<SType1>(*m_pathLoss.GetPathLossCalibrationData<SType1>(1));
    record->plOffset[0] = 99;
    m_pathLoss.SetPathLossCalibrationData(1, *record);
    ASSERT_EQ(VondSim_AddFault(R"({"function": "VOND_MMRf_SetCalDataV7_r", "kind": "fail",
                                   "result": 4, "nth": 2})"),
              0);
    EXPECT_EQ(m_pathLoss.DownloadToFlash(), 203u) << "a verdict that never came is no success";
    EXPECT_EQ(CountCalls(kSetCalData), 2);
    CMultiRatPathLossV7 other(ERadioKind::Nr);
    ASSERT_EQ(other.UploadFromFlash(), 0u);
    EXPECT_EQ(other.GetPathLossCalibrationData<SType1>(1)->plOffset[0], 99);
}

TEST_F(CalDownloadTest, BlockCountOfAStoredRecordIsHeldToItsRoom)
{
    ASSERT_EQ(m_apt.UploadFromFlash(), 0u);
    SAptRouteBwRecord record = *m_apt.GetAptCalibrationData(1, 0);
    record.blockCount = 400;
    EXPECT_TRUE(m_apt.SetAptCalibrationData(1, 0, record));
    EXPECT_EQ(m_apt.GetAptCalibrationData(1, 0)->blockCount, 4u);
    EXPECT_FALSE(m_apt.SetAptCalibrationData(1, 4, record));
    EXPECT_EQ(m_apt.GetAptCalibrationData(1, 4), nullptr);
}

TEST_F(CalDownloadTest, RouteNumbersAbove100HaveRecordsOfTheirOwn)
{
    AnswerBytes(kRouteConfig, offsetof(SMMRfRouteConfigV7, routes.txRoute[0].route), "ffff");
    AnswerBytes(kRouteConfig, offsetof(SMMRfRouteConfigV7, routes.rxType1Route[0].route),
                "6500");  // 101, as of type 2
    CTargetCapability::Reset();
    ASSERT_EQ(LoadText(m_apt, "[NR n1 BW0 TPC]\nTemperature Index = 5\n"), kDone);
    ASSERT_EQ(LoadText(m_pathLoss, BareFile(ECalRoute::Type1) + BareFile(ECalRoute::Type2)), kDone);
    EXPECT_EQ(m_apt.GetAptCalibrationData(65535, 0)->normalTempIndex, 5);
    SType1 type1 = *m_pathLoss.GetPathLossCalibrationData<SType1>(101);
    EXPECT_EQ(type1.route, 101);
    type1.plOffset[0] = 7;
    m_pathLoss.SetPathLossCalibrationData(101, type1);
    EXPECT_EQ(m_pathLoss.GetPathLossCalibrationData<SType2>(101)->plOffset[0], 0);
    m_apt.DownloadToFlash();  // the DUT knows no such routes: what it is sent is what counts
    m_pathLoss.DownloadToFlash();
    const auto requests = Requests();
    ASSERT_EQ(requests.size(), 2u);
    EXPECT_EQ(requests[0].tx[0].route, 65535);
    EXPECT_EQ(requests[0].txBlock[0].normalTempIndex, 5);
    EXPECT_EQ(requests[1].type1[0].route, 101);
    EXPECT_EQ(requests[1].type1Block[0].plOffset[0], 7);
}

TEST_F(CalDownloadTest, MissingRouteTableEndsTheDownload)
{
    ASSERT_EQ(m_apt.UploadFromFlash(), 0u);
    Fault(kRouteConfig);
    CTargetCapability::Reset();
    EXPECT_EQ(m_apt.DownloadToFlash(), 1u);
    EXPECT_EQ(m_apt.GetErrorMessage(), QString("Fail to get the route info"));
    EXPECT_EQ(CountCalls(kSetCalData), 0);
}

TEST_F(CalDownloadTest, ProgressTellsRoundsAndRoutes)
{
    PlugHandsetWith(R"("calibration": {"rxType1Subbands": {"default": 0},
                           "rxType2Subbands": {"default": 0, "n41": 32}})");
    ASSERT_EQ(m_pathLoss.UploadFromFlash(), 0u);
    std::vector<std::array<int, 3>> calls;
    m_pathLoss.SetProgress([&](int round, int done, int all) {
        calls.push_back({round, done, all});
    });
    ASSERT_EQ(m_pathLoss.DownloadToFlash(), 0u);
    const std::vector<std::array<int, 3>> expected = {{1, 0, 26}, {2, 20, 26}, {2, 26, 26}};
    EXPECT_EQ(calls, expected);
}

TEST_F(CalDownloadTest, LogFollowsTheRecords)
{
    ASSERT_EQ(LoadText(m_apt, "[NR n1 BW0 TPC]\n"), kDone);
    const LogCapture log(lcCalibration());
    ASSERT_EQ(m_apt.DownloadToFlash(), 0u);
    const QStringList lines = log.Lines(QtDebugMsg);
    EXPECT_EQ(lines.mid(0, 5),
              (QStringList{"add to download: route 1 bw20000    isValid = true",
                           "    current total blk num = 0, to be added blk num = 1",
                           "[TX][request] data info: route = 1, blknum = 1",
                           "         [request] current blk data idx = 0, band = 1",
                           "add to download: route 1 bw50000    isValid = false"}));
    EXPECT_EQ(lines.last(), QString("-----> total blk num: 1 start download...."));
}
