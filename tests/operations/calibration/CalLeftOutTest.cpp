// What an upload makes of answers that are cut, in another field order or with totals alone, and
// what the moves of an item tell that they left out.
#include <cstddef>

#include "Support/Log.h"
#include "tests/common/LogCapture.h"
#include "tests/operations/calibration/CalFixture.h"

namespace {

using SType2 = SMMType2PathlossByRouteV7;

class CalLeftOutTest : public CCalTest
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

// Where a TX entry stands in an answer, and the block counts of a TX row's regions.
int TxEntry(int index)
{
    return offsetof(SMMGetCalDataCnfV7, tx) + index * int(sizeof(SMMCalTxEntryV7));
}

int TxRegions(int row)
{
    return offsetof(SMMCalBlkInfoCnfV7, tx) + row * int(sizeof(SMMCalTxRowV7)) +
           int(offsetof(SMMCalTxRowV7, blockCount));
}

// A TX entry with its fields as count, route, bandwidth.
std::string CountFirst(const SMMCalTxEntryV7 &entry)
{
    const SMMCalTxEntryCountFirstV7 other{entry.blockCount, entry.route, entry.bandwidth};
    return BytesOf(other).toHex().toStdString();
}

int TimesLogged(const LogCapture &log, const QString &order)
{
    return log.Lines(QtDebugMsg).filter("TX answer entries are \"" + order + "\"").size() +
           log.Lines(QtDebugMsg).filter("TX answer entries are " + order).size();
}

}  // namespace

TEST_F(CalLeftOutTest, RecordWhoseAnswerIsCutStaysAsItWas)
{
    PlugHandsetWith(R"("calibration": {"txSubbands": {"default": 20}})");
    ASSERT_EQ(m_apt.UploadFromFlash(), 0u);
    SAptRouteBwRecord record = *m_apt.GetAptCalibrationData(1, 0);
    record.paGain[0][0] = 123;
    m_apt.SetAptCalibrationData(1, 0, record);
    AnswerBytes(kGetCalData, offsetof(SMMGetCalDataCnfV7, tx[0].blockCount),
                "0100");  // one block of two
    EXPECT_EQ(m_apt.UploadFromFlash(), 0u);
    EXPECT_EQ(BytesOf(*m_apt.GetAptCalibrationData(1, 0)), BytesOf(record));
    ASSERT_FALSE(m_apt.Remarks().leftOut.empty());
    const SCalLeftOut &first = m_apt.Remarks().leftOut.front();
    EXPECT_EQ(first.place.route, 1);
    EXPECT_EQ(first.why, ECalLeftOut::AnswerCut);
    EXPECT_EQ(first.count, 1);
    EXPECT_EQ(first.most, 2);
    EXPECT_TRUE(ValidSections(m_apt).contains("NR n1 BW0 TPC"));
}

TEST_F(CalLeftOutTest, EntriesInEitherFieldOrderFillTheSameRecords)
{
    ASSERT_EQ(m_apt.UploadFromFlash(), 0u);
    const QByteArray records = SaveBytes(m_apt);
    const SMMGetCalDataCnfV7 answer = Answers().front();
    const std::pair<int, int> turned[] = {{0, answer.txCount}, {0, 1}, {1, 2}, {5, 20}};
    for (const auto &[first, end] : turned) {
        VondSim_ClearFaults();
        for (int i = first; i < end; ++i)
            AnswerBytes(kGetCalData, TxEntry(i), CountFirst(answer.tx[i]));
        const LogCapture log(lcCalibration());
        CMultiRatAptProfileV7 item(ERadioKind::Nr);
        EXPECT_EQ(item.UploadFromFlash(), 0u);
        EXPECT_TRUE(SaveBytes(item) == records) << first << " to " << end;
        EXPECT_TRUE(item.Remarks().leftOut.empty());
        EXPECT_EQ(TimesLogged(log, "count, route, bandwidth"), 1);
        EXPECT_EQ(TimesLogged(log, "bandwidth, count, route"),
                  end - first == answer.txCount ? 0 : 1);
    }
}

// Two blocks of route 2 up to 65538 kHz are, in the other order, two of route 1 up to 131074 kHz,
// and the other way round. Route 3 leaves no doubt, in front of them or behind.
TEST_F(CalLeftOutTest, EntryThatFitsBothOrdersGoesByTheOneBefore)
{
    const auto row = [](int route, int kHz) {
        return R"({"band": 1, "route": )" + std::to_string(route) + R"(, "regions": [{"kHz": )" +
               std::to_string(kHz) + R"(, "antMask": 1, "feRoute": 7, "port": "TX_0", "stx": 0}]})";
    };
    const std::string plain = row(3, 20000);
    const std::string doubtful = row(2, 65538) + ", " + row(1, 131074);
    for (const std::string &rows : {plain + ", " + doubtful, doubtful + ", " + plain}) {
        PlugHandsetWith(R"("txRoutes": [)" + rows + R"(], "rxType1Routes": [],
            "rxType2Routes": [], "txLimits": [], "rxLimits": [],
            "calibration": {"txSubbands": {"default": 20}})");
        CMultiRatAptProfileV7 whole(ERadioKind::Nr);
        ASSERT_EQ(whole.UploadFromFlash(), 0u);
        const SMMGetCalDataCnfV7 answer = Answers().back();
        ASSERT_EQ(answer.txCount, 3);
        for (int i = 0; i < answer.txCount; ++i)
            AnswerBytes(kGetCalData, TxEntry(i), CountFirst(answer.tx[i]));
        CMultiRatAptProfileV7 item(ERadioKind::Nr);
        EXPECT_EQ(item.UploadFromFlash(), 0u);
        for (const uint16_t route : {uint16_t(1), uint16_t(2), uint16_t(3)})
            EXPECT_EQ(BytesOf(*item.GetAptCalibrationData(route, 0)),
                      BytesOf(*whole.GetAptCalibrationData(route, 0)));
        VondSim_ClearFaults();
    }
}

TEST_F(CalLeftOutTest, EntryWithACountAboveThatAskedForIsNotTaken)
{
    const LogCapture log(lcCalibration());
    PlugHandsetWith(R"("calibration": {"txSubbands": {"default": 20}})");
    AnswerBytes(kGetCalData, offsetof(SMMGetCalDataCnfV7, tx[0].blockCount),
                "0300");  // three blocks of two
    EXPECT_EQ(m_apt.UploadFromFlash(), 0u);
    EXPECT_TRUE(log.Holds(QtDebugMsg, "Can not get the bwIdx for route 1"));
    EXPECT_FALSE(ValidSections(m_apt).contains("NR n1 BW0 TPC"));
}

TEST_F(CalLeftOutTest, TotalOfARouteCountsWhereItsRegionsHaveNone)
{
    PlugHandsetWith(R"("calibration": {"txSubbands": {"default": 20}})");
    ASSERT_EQ(m_apt.UploadFromFlash(), 0u);
    const QByteArray records = SaveBytes(m_apt);
    const auto info = RecordOf<SMMCalBlkInfoCnfV7>(JournalOf(kBlockInfo).last().answer);
    for (int row = 0; row < info.txCount; ++row)
        AnswerBytes(kBlockInfo, TxRegions(row), "0000000000000000");
    CMultiRatAptProfileV7 item(ERadioKind::Nr);
    EXPECT_EQ(item.UploadFromFlash(), 0u);
    EXPECT_TRUE(item.Remarks().leftOut.empty());
    EXPECT_TRUE(SaveBytes(item) == records);
}

TEST_F(CalLeftOutTest, TotalThatTheRegionsDoNotShareEvenlyLeavesTheRouteOut)
{
    const SMMRfTxRouteV7 &route = m_target.GetRouteTableNr()->txRoute[0];
    ASSERT_GT(route.bwRegionCount, 1);
    AnswerBytes(kBlockInfo, offsetof(SMMCalBlkInfoCnfV7, tx[0].blockTotal), "01000000000000000000");
    EXPECT_EQ(m_apt.UploadFromFlash(), 0u);
    ASSERT_EQ(m_apt.Remarks().leftOut.size(), route.bwRegionCount);
    for (const SCalLeftOut &record : m_apt.Remarks().leftOut) {
        EXPECT_EQ(record.place.route, route.route);
        EXPECT_EQ(record.why, ECalLeftOut::TotalAlone);
    }
    EXPECT_FALSE(ValidSections(m_apt).contains("NR n1 BW0 TPC"));
}

TEST_F(CalLeftOutTest, RemarksNameWhatTheBlockInfoLacksAndWhatNoRoundHolds)
{
    AnswerBytes(kBlockInfo, offsetof(SMMCalBlkInfoCnfV7, type1[0].route),
                "5000");  // the first type 1 row tells of route 80
    AnswerBytes(kBlockInfo, offsetof(SMMCalBlkInfoCnfV7, type2[0].blockTotal),
                "0400");  // of type 2 route 101
    EXPECT_EQ(m_pathLoss.UploadFromFlash(), 0u);
    const auto &leftOut = m_pathLoss.Remarks().leftOut;
    ASSERT_EQ(leftOut.size(), 2u);
    EXPECT_EQ(leftOut[0].kind, ECalRoute::Type1);
    EXPECT_EQ(leftOut[0].place.route, 1);
    EXPECT_EQ(leftOut[0].why, ECalLeftOut::NotListed);
    EXPECT_EQ(leftOut[1].kind, ECalRoute::Type2);
    EXPECT_EQ(leftOut[1].place.route, 101);
    EXPECT_EQ(leftOut[1].why, ECalLeftOut::TooManyBlocks);
    VondSim_ClearFaults();
    EXPECT_EQ(m_pathLoss.UploadFromFlash(), 0u);
    EXPECT_TRUE(m_pathLoss.Remarks().leftOut.empty());
}

TEST_F(CalLeftOutTest, FlashWithoutARecordIsNothingToRemark)
{
    PlugHandsetWith(R"("calibration": {"txSubbands": {"default": 0, "n78": 20}})");
    EXPECT_EQ(m_apt.UploadFromFlash(), 0u);
    EXPECT_TRUE(m_apt.Remarks().leftOut.empty());
}

TEST_F(CalLeftOutTest, WriteAndExportNameEditsThatNothingHasFilled)
{
    ASSERT_EQ(m_apt.UploadFromFlash(), 0u);
    m_apt.NoteEdit(1, 0);
    m_pathLoss.NoteEdit<SType2>(102);
    EXPECT_EQ(m_apt.DownloadToFlash(), 0u);
    EXPECT_TRUE(m_apt.Remarks().leftOut.empty()) << "it is written";
    for (const bool isFile : {false, true}) {
        if (isFile)
            SaveFile(m_pathLoss);
        else
            EXPECT_EQ(m_pathLoss.DownloadToFlash(), 2u);
        ASSERT_EQ(m_pathLoss.Remarks().leftOut.size(), 1u);
        EXPECT_EQ(m_pathLoss.Remarks().leftOut[0].place.route, 102);
        EXPECT_EQ(m_pathLoss.Remarks().leftOut[0].why, ECalLeftOut::NeverFilled);
    }
    ASSERT_EQ(m_pathLoss.UploadFromFlash(), 0u);
    ASSERT_EQ(m_pathLoss.DownloadToFlash(), 0u);
    EXPECT_TRUE(m_pathLoss.Remarks().leftOut.empty());
}

TEST_F(CalLeftOutTest, LoadTellsTextsThatAreNoNumbers)
{
    ASSERT_EQ(m_apt.UploadFromFlash(), 0u);
    EXPECT_EQ(LoadText(m_apt, "[NR n1 BW0 TPC]\nTemperature Index = warm\nPa mode map = 1,,2\n"
                              "Pa control pa gain = 1.5dB, -2 ,1e999\n"),
              kDone);
    const SCalMoveRemarks &remarks = m_apt.Remarks();
    EXPECT_EQ(remarks.oddValueCount, 3);
    ASSERT_EQ(remarks.oddValues.size(), 3u);
    EXPECT_EQ(remarks.oddValues[0].section, "NR n1 BW0 TPC");
    EXPECT_EQ(remarks.oddValues[0].key, "Temperature Index");
    EXPECT_EQ(remarks.oddValues[0].text, "warm");
    EXPECT_EQ(remarks.oddValues[0].memory, "0");
    EXPECT_EQ(remarks.oddValues[1].key, "Pa mode map");
    EXPECT_EQ(remarks.oddValues[2].text, "1e999");
    EXPECT_EQ(remarks.oddValues[2].memory, "0.00000");
}

// A section that is not taken over leaves memory as it was.
TEST_F(CalLeftOutTest, ValuesOfASectionThatIsNotTakenOverAreNotTold)
{
    ASSERT_EQ(m_apt.UploadFromFlash(), 0u);
    EXPECT_EQ(LoadText(m_apt, "[NR n1 BW0 TPC]\nTemperature Index = warm\n"
                              "Pa control dc2dc level = much\n")
                  .code,
              53u);
    EXPECT_EQ(m_apt.Remarks().oddValueCount, 0);
    EXPECT_TRUE(m_apt.Remarks().oddValues.empty());
}
