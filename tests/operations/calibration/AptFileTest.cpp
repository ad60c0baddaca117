// The APT item and its INI file: what it writes, what it makes of what people write.
#include "Support/CalIniFile.h"
#include "Support/Log.h"
#include "tests/common/LogCapture.h"
#include "tests/operations/calibration/CalFixture.h"

namespace {

const QString kZeros64 = QString("0.00000") + QString(",0.00000").repeated(63);
const QString kZeros10 = QString("0.00000") + QString(",0.00000").repeated(9);
const QString kZeros8 = QString("0.00000") + QString(",0.00000").repeated(7);

class AptFileTest : public CCalTest
{
protected:
    const SAptRouteBwRecord &Record(uint16_t route, uint16_t region) const
    {
        return *m_item.GetAptCalibrationData(route, region);
    }

    CMultiRatAptProfileV7 m_item{ERadioKind::Nr};
};

}  // namespace

TEST_F(AptFileTest, SectionHasAllKeysInTheirOrderAndFormat)
{
    ASSERT_EQ(LoadText(m_item, "[NR n78 CA1 BW1 TPC]\n"), kDone);
    SAptRouteBwRecord record = Record(14, 1);
    record.normalTempIndex = 4;
    record.paControlLevel = 10;
    record.prfIndex[2] = 2;
    record.freq[0] = 3500010;
    record.level[1] = {2, 34, 1, 0, -1, 976};
    record.couplerLoss[1] = -816;
    record.paGain[2][63] = 33;
    m_item.SetAptCalibrationData(14, 1, record);
    const QByteArray bytes = SaveBytes(m_item);
    EXPECT_EQ(Sections(bytes), QStringList("NR n78 CA1 BW1 TPC"));
    const QStringList expected = {
        "RF Chip ID = VR6240",
        "Route = 14",
        "Temperature Index = 4",
        "Pa section number = 10",
        "Pa mode number = 3",
        "Pa mode prf_idx = 0,0,2",
        "Tx compensation pa gain frequency(1KHz) = 3500010" + QString(",0").repeated(63),
        "Pa mode map = 0,2,0,0,0,0,0,0,0,0",
        "Pa control dc2dc level = 0.1V,3.4V" + QString(",0.1V").repeated(8),
        "Pa control prf = 0.00000,-0.03125" + QString(",0.00000").repeated(8),
        "Pa control pa gain = 0.00000,30.50000" + QString(",0.00000").repeated(8),
        "256QAM usage = 0,1,0,0,0,0,0,0,0,0",
        "Tx compensation power detector coupler loss 0 = 0.000000",
        "Tx compensation power detector coupler loss 1 = -25.500000",
        "Tx compensation power detector coupler loss 2 = 0.000000",
        "Temperature Offset pa gain pa 0 = " + kZeros8,
        "Temperature Offset pa gain pa 1 = " + kZeros8,
        "Temperature Offset pa gain pa 2 = " + kZeros8,
        "Temperature Offset Power detector pa 0 = " + kZeros8,
        "Temperature Offset Power detector pa 1 = " + kZeros8,
        "Temperature Offset Power detector pa 2 = " + kZeros8,
        "Tx compensation pa gain pa 0 = " + kZeros64,
        "Tx compensation pa gain pa 1 = " + kZeros64,
        "Tx compensation pa gain pa 2 = 0.00000" + QString(",0.00000").repeated(62) + ",1.03125",
        "Tx compensation power detector pa 0 = " + kZeros64,
        "Tx compensation power detector pa 1 = " + kZeros64,
        "Tx compensation power detector pa 2 = " + kZeros64,
    };
    EXPECT_EQ(SectionLines(bytes, "NR n78 CA1 BW1 TPC"), expected);
}

TEST_F(AptFileTest, EveryValueComesBackAtTheExtremesOfItsType)
{
    const std::vector<SCalPlace> places = WalkRoutes(*m_target.GetRouteTableNr(), ECalRoute::Tx);
    ASSERT_EQ(LoadText(m_item, BareFile(ECalRoute::Tx)), kDone);
    std::mt19937 random(6);
    for (const SCalPlace &place : places) {
        const auto region = static_cast<uint16_t>(place.region);
        const uint16_t band = Record(place.route, region).band;
        m_item.SetAptCalibrationData(
            place.route, region,
            ExtremeApt(random, band, place.route, static_cast<int>(random() % 65)));
    }
    ASSERT_EQ(SaveFile(m_item), kDone);
    CMultiRatAptProfileV7 other(ERadioKind::Nr);
    ASSERT_EQ(LoadFile(other), kDone);
    for (const SCalPlace &place : places) {
        const auto region = static_cast<uint16_t>(place.region);
        const auto *record = other.GetAptCalibrationData(place.route, region);
        ASSERT_EQ(BytesOf(*record), BytesOf(Record(place.route, region)))
            << "route " << place.route << " region " << place.region;
    }
    EXPECT_EQ(SaveBytes(other), m_folder.Bytes());
}

TEST_F(AptFileTest, AbsentKeysReadAsTheirDefaults)
{
    ASSERT_EQ(LoadText(m_item, "[NR n1 BW0 TPC]\n"), kDone);
    SAptRouteBwRecord expected = {};
    expected.band = 1;
    expected.route = 1;
    expected.normalTempIndex = 3;
    expected.paControlLevel = 8;
    expected.paModeCount = 3;
    for (SAptLevel &level : expected.level)
        level.dc2dcLevel = 1;
    expected.blockCount = 1;
    EXPECT_EQ(BytesOf(Record(1, 0)), BytesOf(expected));
}

TEST_F(AptFileTest, DefaultsTakeThePlaceOfWhatWasInMemory)
{
    ASSERT_EQ(LoadText(m_item, "[NR n1 BW0 TPC]\nPa mode map = 1,1\nTemperature Index = 7"), kDone);
    ASSERT_EQ(LoadText(m_item, "[NR n1 BW0 TPC]\n"), kDone);
    EXPECT_EQ(Record(1, 0).level[0].paMode, 0);
    EXPECT_EQ(Record(1, 0).normalTempIndex, 3);
}

TEST_F(AptFileTest, FileWithNoneOfTheSectionsIsToldSo)
{
    EXPECT_EQ(LoadText(m_item, "[NR n66 BW0 TPC]\nRoute = 1\n"), (SOutcome{51, ""}));
    EXPECT_EQ(LoadText(m_item, ""), (SOutcome{51, ""}));
    EXPECT_FALSE(m_item.HasData());
}

TEST_F(AptFileTest, FileWithSomeSectionsFillsThoseRecordsAlone)
{
    EXPECT_EQ(LoadText(m_item, "[NR n3 CA1 BW0 TPC]\n[NR n41 CA2 BW3 TPC]\n"), kDone);
    EXPECT_TRUE(m_item.HasData());
    EXPECT_EQ(Sections(SaveBytes(m_item)),
              (QStringList{"NR n3 CA1 BW0 TPC", "NR n41 CA2 BW3 TPC"}));
    EXPECT_EQ(Record(4, 0).band, 3);
    EXPECT_EQ(Record(11, 3).band, 41);
    EXPECT_EQ(BytesOf(Record(1, 0)), BytesOf(SAptRouteBwRecord{}));
}

TEST_F(AptFileTest, SectionsFollowTheRouteTable)
{
    ASSERT_EQ(LoadText(m_item, BareFile(ECalRoute::Tx)), kDone);
    QStringList expected;
    for (const auto &[route, regions] : std::vector<std::pair<QString, int>>{{"n1", 2},
                                                                             {"n1 CA1", 2},
                                                                             {"n3", 2},
                                                                             {"n3 CA1", 2},
                                                                             {"n5", 1},
                                                                             {"n7", 2},
                                                                             {"n7 CA1", 2},
                                                                             {"n28", 1},
                                                                             {"n41", 4},
                                                                             {"n41 CA1", 4},
                                                                             {"n41 CA2", 4},
                                                                             {"n77", 2},
                                                                             {"n77 CA1", 2},
                                                                             {"n78", 2},
                                                                             {"n78 CA1", 2},
                                                                             {"n78 CA2", 2},
                                                                             {"n79", 2},
                                                                             {"n79 CA1", 2},
                                                                             {"n80", 1}}) {
        for (int region = 0; region < regions; ++region)
            expected.append(QString("NR %1 BW%2 TPC").arg(route).arg(region));
    }
    EXPECT_EQ(Sections(SaveBytes(m_item)), expected);
}

TEST_F(AptFileTest, LteSideHasItsOwnSectionNames)
{
    CCalStore<SAptRouteBwRecord> store(kVondMaxBwRegions);
    const CAptSections sections(store);
    SCalPlace place;
    place.band = 7;
    place.region = 2;
    EXPECT_EQ(sections.SectionsOf(ERadioKind::Lte, place),
              std::vector<std::string>{"LTE BAND7 BW2 TPC"});
    place.ordinal = 1;
    EXPECT_EQ(sections.SectionsOf(ERadioKind::Lte, place),
              std::vector<std::string>{"LTE BAND7 CA1 BW2 TPC"});
}

TEST_F(AptFileTest, RouteOnTwoBandsIsOneRecordOfTheFirstBandInTheFile)
{
    ASSERT_EQ(LoadText(m_item, "[NR n77 BW0 TPC]\n[NR n78 BW0 TPC]\nTemperature Index = 5\n"),
              kDone);
    EXPECT_EQ(Record(12, 0).band, 77);
    EXPECT_EQ(Record(12, 0).normalTempIndex, 5);
    CMultiRatAptProfileV7 other(ERadioKind::Nr);
    ASSERT_EQ(LoadText(other, "[NR n78 BW0 TPC]\n"), kDone);
    EXPECT_EQ(other.GetAptCalibrationData(12, 0)->band, 78);
}

TEST_F(AptFileTest, OtherChipIsRefusedBeforeARecordIsTouched)
{
    EXPECT_EQ(LoadText(m_item, "[NR n1 BW0 TPC]\nRF Chip ID = VR6240\n"
                               "[NR n80 BW0 TPC]\nRF Chip ID = VR6241\n"),
              (SOutcome{200, ""}));
    EXPECT_FALSE(m_item.HasData());
    EXPECT_EQ(BytesOf(Record(1, 0)), BytesOf(SAptRouteBwRecord{}));
}

TEST_F(AptFileTest, OtherChipInASectionThatTheTargetLacksDoesNotMatter)
{
    EXPECT_EQ(LoadText(m_item, "[NR n1 BW0 TPC]\nRF Chip ID = VR6240\n"
                               "[NR n66 BW0 TPC]\nRF Chip ID = VR6241\n"),
              kDone);
}

TEST_F(AptFileTest, ListWithFewerValuesLeavesTheTailZero)
{
    ASSERT_EQ(LoadText(m_item, "[NR n1 BW0 TPC]\nTx compensation pa gain pa 1 = 1.5,-2\n"
                               "Pa control dc2dc level = 3.4V,3.0V\n"),
              kDone);
    EXPECT_EQ(Record(1, 0).paGain[1][0], 48);
    EXPECT_EQ(Record(1, 0).paGain[1][1], -64);
    EXPECT_EQ(Record(1, 0).paGain[1][2], 0);
    EXPECT_EQ(Record(1, 0).level[1].dc2dcLevel, 30);
    EXPECT_EQ(Record(1, 0).level[2].dc2dcLevel, 0);
}

TEST_F(AptFileTest, ListWithMoreValuesLosesTheRest)
{
    ASSERT_EQ(LoadText(m_item, "[NR n1 BW0 TPC]\nPa mode prf_idx = 1,2,3,4,5\n"), kDone);
    EXPECT_EQ(Record(1, 0).prfIndex[2], 3);
    EXPECT_EQ(Record(1, 0).couplerLoss[0], 0);
}

TEST_F(AptFileTest, TenthOfAVoltIsOne)
{
    ASSERT_EQ(LoadText(m_item, "[NR n1 BW0 TPC]\nPa control dc2dc level = 0.1V,3.4V\n"), kDone);
    EXPECT_EQ(Record(1, 0).level[0].dc2dcLevel, 1);
    EXPECT_EQ(Record(1, 0).level[1].dc2dcLevel, 34);
}

TEST_F(AptFileTest, VoltageThatIsNoneFailsItsSectionAlone)
{
    ASSERT_EQ(LoadText(m_item, "[NR n1 BW1 TPC]\nTemperature Index = 6\n"), kDone);
    const QByteArray before = BytesOf(Record(1, 1));
    EXPECT_EQ(LoadText(m_item, "[NR n1 BW0 TPC]\nTemperature Index = 5\n"
                               "[NR n1 BW1 TPC]\nTemperature Index = 4\nPa section number = 2\n"
                               "Pa control dc2dc level = 3.4V,highV\n"
                               "[NR n1 CA1 BW0 TPC]\n"),
              (SOutcome{53, "invalid stod argument"}));
    EXPECT_EQ(BytesOf(Record(1, 1)), before) << "a section was taken over in half";
    EXPECT_EQ(Sections(SaveBytes(m_item)), (QStringList{"NR n1 BW0 TPC", "NR n1 BW1 TPC"}));
    EXPECT_EQ(LoadText(m_item, "[NR n1 BW1 TPC]\nPa control dc2dc level = 1e999V\n"),
              (SOutcome{53, "stod argument out of range"}));
    EXPECT_EQ(BytesOf(Record(1, 1)), before);
}

TEST_F(AptFileTest, FrequenciesBeforeTheFirstZeroSetTheBlocks)
{
    const LogCapture log(lcCalibration());
    const std::vector<std::pair<int, uint32_t>> expected = {
        {0, 1}, {1, 1}, {15, 1}, {16, 2}, {17, 2}, {31, 2}, {32, 3}, {48, 4}, {62, 4}, {64, 4}};
    for (const auto &[frequencies, blocks] : expected) {
        QByteArray list;
        for (int i = 0; i < frequencies; ++i)
            list += "1920000,";
        list += "0,1930000";
        ASSERT_EQ(LoadText(m_item, "[NR n1 BW0 TPC]\nTx compensation pa gain frequency(1KHz) = " +
                                       list + "\n"),
                  kDone);
        EXPECT_EQ(Record(1, 0).blockCount, blocks) << frequencies;
    }
    EXPECT_TRUE(log.Holds(QtDebugMsg, "section blk count 4"));
}

TEST_F(AptFileTest, FrequenciesThatTheRecordHasLeaveItsBlocks)
{
    const QByteArray section = "[NR n1 BW0 TPC]\nTx compensation pa gain frequency(1KHz) = " +
                               QByteArray("1920000,").repeated(32) + "0\n";
    ASSERT_EQ(LoadText(m_item, section), kDone);
    SAptRouteBwRecord record = Record(1, 0);
    ASSERT_EQ(record.blockCount, 3u);
    record.blockCount = 2;  // as a DUT says whose blocks are full
    m_item.SetAptCalibrationData(1, 0, record);
    ASSERT_EQ(LoadText(m_item, section), kDone);
    EXPECT_EQ(Record(1, 0).blockCount, 2u) << "the next Write would send a block of zeros";
}

TEST_F(AptFileTest, NumberOfARouteInTheFileCannotMoveItsSection)
{
    ASSERT_EQ(LoadText(m_item, "[NR n1 BW0 TPC]\nRoute = 9\nTemperature Index = 1\n"), kDone);
    EXPECT_EQ(Record(1, 0).route, 1);
    EXPECT_EQ(Record(9, 0).normalTempIndex, 0);
}

TEST_F(AptFileTest, NullFileIsToldInWords)
{
    EXPECT_EQ(m_item.LoadFromFile(nullptr), 50u);
    EXPECT_EQ(m_item.GetErrorMessage(), QString("INI file is NULL"));
    EXPECT_EQ(m_item.SaveToFile(nullptr), 50u);
    EXPECT_EQ(m_item.GetErrorMessage(), QString("INI file is NULL"));
}

TEST_F(AptFileTest, GoodMoveClearsTheTextOfTheLastFailure)
{
    m_item.LoadFromFile(nullptr);
    EXPECT_EQ(LoadText(m_item, "[NR n1 BW0 TPC]\n"), kDone);
}

TEST_F(AptFileTest, MissingRouteTableEndsLoadAndSave)
{
    Fault(kRouteConfig);
    EXPECT_EQ(LoadText(m_item, "[NR n1 BW0 TPC]\n"), (SOutcome{1, "Fail to get the route info"}));
    EXPECT_EQ(SaveFile(m_item), (SOutcome{1, "Fail to get the route info"}));
}

TEST_F(AptFileTest, LogNamesEachSectionAndRoute)
{
    const LogCapture log(lcCalibration());
    ASSERT_EQ(LoadText(m_item, "[NR n3 BW1 TPC]\n"), kDone);
    SaveBytes(m_item);
    EXPECT_TRUE(log.Holds(QtDebugMsg, "Read file: NR n3 BW1 TPC, route = 3"));
    EXPECT_TRUE(log.Holds(QtDebugMsg, "Write file: NR n3 BW1 TPC, route = 3"));
}
