// Counts, indexes and gains of an answer reach the readers as the target gave them, also those
// beyond their tables; whoever looks one up in a table minds its end.
#include <cstddef>

#include "Operations/tests/MultiRatRssiV7.h"
#include "Operations/tests/NrRsrpV7.h"
#include "tests/operations/TargetFixture.h"

namespace {

class AnswersAsGivenTest : public CTargetTest
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

TEST_F(AnswersAsGivenTest, ReportCountIsTheTargets)
{
    for (const int count : {9, 10, 11, 255}) {
        VondSim_ClearFaults();
        AnswerBytes(kReport, offsetof(NRfTestResult_GetMixRxReportV7, reportCount),
                    QByteArray(1, static_cast<char>(count)).toHex().toStdString());
        EXPECT_EQ(Report().reportCount, count);
        EXPECT_EQ(m_status, 0u);
    }
}

TEST_F(AnswersAsGivenTest, ReadingsOfAReportStayAsTheyCame)
{
    AnswerBytes(kReport, offsetof(NRfTestResult_GetMixRxReportV7, reportCount), "0c");
    AnswerBytes(kReport, offsetof(NRfTestResult_GetMixRxReportV7, RSSI0[9]), "0080");
    AnswerBytes(kReport, offsetof(NRfTestResult_GetMixRxReportV7, GoodBLK), "ffffffffffffffff");
    const NRfTestResult_GetMixRxReportV7 report = Report();
    EXPECT_EQ(report.RSSI0[9], -32768);
    EXPECT_EQ(report.GoodBLK, 0xFFFFFFFFu);
    EXPECT_EQ(report.BadBLK, 0xFFFFFFFFu);
}

TEST_F(AnswersAsGivenTest, GainSearchIsTheTargets)
{
    AnswerBytes(kGainSearch, offsetof(SMMGainSearchCnfV7, simultaneous), "0200000012ff1100");
    const SMMGainSearchCnfV7 answer = Search(1);
    EXPECT_EQ(answer.simultaneous, 2u);
    EXPECT_EQ(answer.gain.simultaneous.path0MainGainIdx, 18);
    EXPECT_EQ(answer.gain.simultaneous.path0DivGainIdx, 255);
    EXPECT_EQ(answer.gain.simultaneous.path1MainGainIdx, 17);
}

TEST_F(AnswersAsGivenTest, GainModesOfOnePathAreTheTargets)
{
    AnswerBytes(kRssi, offsetof(SMMRssiCnfV7, rows.single.mainG), "07ff03fe");
    const auto rows = Rssi(1).rows.single;
    EXPECT_EQ(rows.mainG, 7);
    EXPECT_EQ(rows.divG, 255);
    EXPECT_EQ(rows.maing, 3);
    EXPECT_EQ(rows.divg, 254);
}

TEST_F(AnswersAsGivenTest, GainModesOfBothPathsAreTheTargets)
{
    AnswerBytes(kRssi, offsetof(SMMRssiCnfV7, rows.simultaneous.mainG), "0607020310ff");
    const auto rows = Rssi(0).rows.simultaneous;
    EXPECT_EQ(rows.mainG, 6);
    EXPECT_EQ(rows.divG, 7);
    EXPECT_EQ(rows.path0Maing, 2);
    EXPECT_EQ(rows.path0Divg, 3);
    EXPECT_EQ(rows.path1Maing, 16);
    EXPECT_EQ(rows.path1Divg, 255);
}

}  // namespace
