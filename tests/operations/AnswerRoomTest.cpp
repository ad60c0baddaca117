// A target that answers counts and indexes beyond their tables: readers get what the table holds.
#include "Operations/MultiRatRssiV7.h"
#include "Operations/NrRsrpV7.h"
#include "tests/operations/TargetFixture.h"

namespace {

class AnswerRoomTest : public CTargetTest
{
protected:
    NRfTestResult_GetMixRxReportV7 Report()
    {
        NRfTestResult_GetMixRxReportV7 report = {};
        m_status = CNrRsrpV7().GetMixRxReport(&report);
        return report;
    }

    SMMGainSearchCnfV7 Search(uint32_t simultaneous)
    {
        SMMGainSearchCmdV7 command = {};
        command.radioKind = 1;
        command.simultaneous = simultaneous;
        SMMGainSearchCnfV7 answer = {};
        m_status = CMultiRatRssiV7().RunGainSearch(command, &answer);
        return answer;
    }

    SMMRssiCnfV7 Rssi(uint8_t singlePath)
    {
        SMMRssiCmdV7 command = {};
        command.routeKind = 3;
        command.dlFrequency[0] = 3350000;
        command.band = 78;
        command.rxRoute = 105;
        command.singlePath = singlePath;
        command.numFreq = 1;
        command.path = singlePath == 1 ? 0 : 3;
        SMMRssiCnfV7 answer = {};
        m_status = CMultiRatRssiV7().RunRssi(command, &answer);
        return answer;
    }

    uint32_t m_status = 0;
};

TEST_F(AnswerRoomTest, ReportCountAboveTenIsTen)
{
    for (const char *count : {"0b", "0c", "ff"}) {
        VondSim_ClearFaults();
        AnswerBytes(kReport, 0, count);
        EXPECT_EQ(Report().reportCount, 10) << count;
        EXPECT_EQ(m_status, 0u);
    }
}

TEST_F(AnswerRoomTest, ReportCountUpToTenStays)
{
    AnswerBytes(kReport, 0, "0a");
    EXPECT_EQ(Report().reportCount, 10);
    AnswerBytes(kReport, 0, "09");
    EXPECT_EQ(Report().reportCount, 9);
}

TEST_F(AnswerRoomTest, ReportCountOfAFailedFetchIsHeldToo)
{
    Fault(kReport);
    AnswerBytes(kReport, 0, "ff");
    EXPECT_EQ(Report().reportCount, 10);
    EXPECT_EQ(m_status, 3u);
}

TEST_F(AnswerRoomTest, ReadingsOfAReportStayAsTheyCame)
{
    AnswerBytes(kReport, 0, "0c");
    AnswerBytes(kReport, 22, "0080");
    AnswerBytes(kReport, 164, "ffffffffffffffff");
    const NRfTestResult_GetMixRxReportV7 report = Report();
    EXPECT_EQ(report.RSSI0[9], -32768);
    EXPECT_EQ(report.GoodBLK, 0xFFFFFFFFu);
    EXPECT_EQ(report.BadBLK, 0xFFFFFFFFu);
}

TEST_F(AnswerRoomTest, GainIndexesAboveTheTableAreItsLast)
{
    AnswerBytes(kGainSearch, 8, "1211ff00");
    const auto gain = Search(1).gain.simultaneous;
    EXPECT_EQ(gain.path0MainGainIdx, 17);
    EXPECT_EQ(gain.path0DivGainIdx, 17);
    EXPECT_EQ(gain.path1MainGainIdx, 17);
    EXPECT_EQ(gain.path1DivGainIdx, 0);
}

// The bytes of the gain indexes are gains in the layout of one path.
TEST_F(AnswerRoomTest, GainsOfOnePathAreNotTakenForIndexes)
{
    AnswerBytes(kGainSearch, 8, "ff7f0180");
    const auto gain = Search(0).gain.single;
    EXPECT_EQ(gain.mainRfGain, 32767);
    EXPECT_EQ(gain.divRfGain, -32767);
}

TEST_F(AnswerRoomTest, UnknownLayoutWordIsThatOfOnePath)
{
    AnswerBytes(kGainSearch, 4, "02000000ffff");
    const SMMGainSearchCnfV7 answer = Search(1);
    EXPECT_EQ(answer.simultaneous, 0u);
    EXPECT_EQ(answer.gain.single.mainRfGain, -1);
}

TEST_F(AnswerRoomTest, GainModesOfOnePathAreHeldToTheirTables)
{
    AnswerBytes(kRssi, 48, "07ff03ff");
    const auto rows = Rssi(1).rows.single;
    EXPECT_EQ(rows.mainG, 6);
    EXPECT_EQ(rows.divG, 6);
    EXPECT_EQ(rows.maing, 2);
    EXPECT_EQ(rows.divg, 2);
}

TEST_F(AnswerRoomTest, GainModesOfBothPathsAreHeldToTheirTables)
{
    AnswerBytes(kRssi, 68, "0607020310ff");
    const SMMRssiCnfV7 answer = Rssi(0);
    const auto &rows = answer.rows.simultaneous;
    EXPECT_EQ(rows.mainG, 6);
    EXPECT_EQ(rows.divG, 6);
    EXPECT_EQ(rows.path0Maing, 2);
    EXPECT_EQ(rows.path0Divg, 2);
    EXPECT_EQ(rows.path1Maing, 2);
    EXPECT_EQ(rows.path1Divg, 2);
}

// Where one layout has its gain modes, the other has readings.
TEST_F(AnswerRoomTest, ReadingsOfBothPathsAreNotTakenForGainModes)
{
    AnswerBytes(kRssi, 48, "ffffffff");
    const auto row = Rssi(0).rows.simultaneous.row[2];
    EXPECT_EQ(row.path1Main, -1);
    EXPECT_EQ(row.path1Div, -1);
}

TEST_F(AnswerRoomTest, NoiseIsHeldWhateverItHolds)
{
    for (int seed = 1; seed <= 200; ++seed) {
        VondSim_ClearFaults();
        for (const char *function : {kReport, kGainSearch, kRssi})
            Noise(function, seed);
        EXPECT_LE(Report().reportCount, 10);
        const SMMGainSearchCnfV7 gains = Search(1);
        EXPECT_LE(gains.simultaneous, 1u);
        const SMMRssiCnfV7 answer = Rssi(static_cast<uint8_t>(seed % 2));
        EXPECT_LE(seed % 2 == 1 ? answer.rows.single.mainG : answer.rows.simultaneous.mainG, 6);
    }
}

}  // namespace
