// The RSRP test, its reports and their reset, as the target sees them.
#include "Operations/tests/NrRsrpV7.h"
#include "Operations/tests/TestStop.h"
#include "tests/common/GoodCommands.h"
#include "tests/operations/TargetFixture.h"

namespace {

SNrRsrpCmdV7 ForcedCommand(uint8_t measCnt = 5)
{
    SNrRsrpCmdV7 command = RsrpForcedCommand();
    command.forcedMode.carrier.common.measCnt = measCnt;
    return command;
}

class RsrpTest : public CTargetTest
{
protected:
    void Start(const SNrRsrpCmdV7 &command) { ASSERT_EQ(m_rsrp.RunRsrp(&command), 0u); }

    CNrRsrpV7 m_rsrp;
};

TEST_F(RsrpTest, ForcedStartSendsItsCommandOnce)
{
    const SNrRsrpCmdV7 command = ForcedCommand();
    EXPECT_EQ(m_rsrp.RunRsrp(&command), 0u);
    EXPECT_STREQ(VondSim_RunningTest(), "Rsrp");
    ExpectOneCall(kRsrp, QByteArray::fromHex("01000000 05000000 60a72000 00000000 0100 00 00"
                                             "10270000 00 00 0000 0000 0000 00000000"
                                             "0100 0000 03 000000") +
                             QByteArray(36, '\0'));
    EXPECT_EQ(VondSim_CallCount(), 1u);
}

TEST_F(RsrpTest, NormalStartSendsItsCommandOnce)
{
    const SNrRsrpCmdV7 command = RsrpNormalCommand();
    EXPECT_EQ(m_rsrp.RunRsrp(&command), 0u);
    ExpectOneCall(kRsrp, QByteArray::fromHex("00000000 01000000 0a000000 262b3600 00000000 4e00"
                                             "00 00 10270000 00 00 0000 0000 0000 00000000"
                                             "01 000000") +
                             QByteArray(36, '\0'));
}

TEST_F(RsrpTest, StatusTwoIsATargetFailureInWords)
{
    AnswerStatus(kRsrp, 2);
    const SNrRsrpCmdV7 command = ForcedCommand();
    EXPECT_EQ(m_rsrp.RunRsrp(&command), 203u);
    EXPECT_EQ(m_rsrp.GetErrorMessage(),
              QString("Status error code (2) :NL1TST_CNF_STATUS_CELL_NOT_EXIST.\n\nDetails: Cell "
                      "SSB can't be detected."));
    EXPECT_EQ(CountCalls(kRsrp), 1);
}

TEST_F(RsrpTest, StatusComesBeforeAFailingResult)
{
    Fault(kRsrp, 7);
    AnswerStatus(kRsrp, 3);
    const SNrRsrpCmdV7 command = ForcedCommand();
    EXPECT_EQ(m_rsrp.RunRsrp(&command), 203u);
    EXPECT_EQ(m_rsrp.GetErrorMessage(),
              QString("Status error code (3) :NL1TST_CNF_STATUS_MB_MIB_DECODE_ERROR.\n\nDetails: "
                      "Cell PBCH can't be detected."));
}

TEST_F(RsrpTest, RefusedStartKeepsTheLibrarysWords)
{
    const SNrRsrpCmdV7 command = ForcedCommand(11);
    EXPECT_EQ(m_rsrp.RunRsrp(&command), 3u);
    EXPECT_EQ(m_rsrp.GetErrorMessage(), QString("Target: measure count is out of limits"));
    EXPECT_STREQ(VondSim_RunningTest(), "");
}

TEST_F(RsrpTest, NullErrorTextLeavesAnEmptyMessageAndStillThree)
{
    NoErrorTexts();
    Fault(kRsrp);
    const SNrRsrpCmdV7 command = ForcedCommand();
    EXPECT_EQ(m_rsrp.RunRsrp(&command), 3u);
    EXPECT_TRUE(m_rsrp.GetErrorMessage().isEmpty());
}

TEST_F(RsrpTest, ReportIsTheTargetsAnswerByteForByte)
{
    Start(ForcedCommand());
    NRfTestResult_GetMixRxReportV7 report = {};
    EXPECT_EQ(m_rsrp.GetMixRxReport(&report), 0u);
    ExpectOneCall(kReport, QByteArray());
    EXPECT_EQ(BytesOf(report), JournalOf(kReport).value(0).answer);
    EXPECT_EQ(report.reportCount, 5);
    EXPECT_GT(report.GoodBLK, 0u);
}

TEST_F(RsrpTest, ReportOfAnIdleTargetHasNoRowsAndNoBlocks)
{
    NRfTestResult_GetMixRxReportV7 report = {};
    EXPECT_EQ(m_rsrp.GetMixRxReport(&report), 0u);
    EXPECT_EQ(report.reportCount, 0);
    // Without a block there is no error ratio to speak of.
    EXPECT_EQ(report.GoodBLK, 0u);
    EXPECT_EQ(report.BadBLK, 0u);
}

TEST_F(RsrpTest, FailedFetchKeepsTheLibrarysWordsAndTheReportClear)
{
    Start(ForcedCommand());
    Fault(kReport, 2);
    NRfTestResult_GetMixRxReportV7 report = {};
    EXPECT_EQ(m_rsrp.GetMixRxReport(&report), 3u);
    EXPECT_EQ(m_rsrp.GetErrorMessage(), QString("Connection: the target did not answer in time"));
    EXPECT_EQ(BytesOf(report), QByteArray(sizeof report, '\0'));
    EXPECT_EQ(CountCalls(kReport), 1);
    EXPECT_STREQ(VondSim_RunningTest(), "Rsrp");
}

TEST_F(RsrpTest, ResetStartsTheBlockCountsAnew)
{
    Start(ForcedCommand());
    NRfTestResult_GetMixRxReportV7 first = {};
    NRfTestResult_GetMixRxReportV7 second = {};
    m_rsrp.GetMixRxReport(&first);
    m_rsrp.GetMixRxReport(&second);
    EXPECT_EQ(second.GoodBLK + second.BadBLK, 2 * (first.GoodBLK + first.BadBLK));
    EXPECT_EQ(m_rsrp.ResetMixRxReport(), 0u);
    ExpectOneCall(kResetReport, QByteArray());
    NRfTestResult_GetMixRxReportV7 third = {};
    m_rsrp.GetMixRxReport(&third);
    EXPECT_EQ(third.GoodBLK + third.BadBLK, first.GoodBLK + first.BadBLK);
}

TEST_F(RsrpTest, FailedResetKeepsTheLibrarysWords)
{
    Fault(kResetReport);
    EXPECT_EQ(m_rsrp.ResetMixRxReport(), 3u);
    EXPECT_EQ(m_rsrp.GetErrorMessage(), QString("Target: failure on demand"));
    EXPECT_EQ(CountCalls(kResetReport), 1);
}

TEST_F(RsrpTest, NrStopEndsTheTest)
{
    Start(ForcedCommand());
    EXPECT_EQ(CNrTestStop().Stop(), 0u);
    EXPECT_STREQ(VondSim_RunningTest(), "");
}

}  // namespace
