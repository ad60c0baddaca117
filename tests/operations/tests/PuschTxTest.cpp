// PUSCH TX and the DL frequency of a carrier, as the target sees them.
#include "Operations/tests/NrPuschTxV7.h"
#include "Operations/tests/TestStop.h"
#include "tests/common/GoodCommands.h"
#include "tests/operations/TargetFixture.h"

namespace {

SNrPuschTxCmdV7 ForcedCommand()
{
    SNrPuschTxCmdV7 command = PuschForcedCommand();
    command.forcedMode.carrier.txPowerValue = -2688;  // -10.5 dBm
    return command;
}

class PuschTxTest : public CTargetTest
{
protected:
    CNrPuschTxV7 m_puschTx;
};

TEST_F(PuschTxTest, StartSendsItsCommandOnce)
{
    const SNrPuschTxCmdV7 command = ForcedCommand();
    EXPECT_EQ(m_puschTx.RunPuschTx(&command), 0u);
    EXPECT_STREQ(VondSim_RunningTest(), "PuschTx");
    ExpectOneCall(kPusch, BytesOf(command));
    EXPECT_EQ(VondSim_CallCount(), 1u);
    EXPECT_TRUE(m_puschTx.GetErrorMessage().isEmpty());
}

// Every byte that passes, so that a shifted field of the record cannot hide behind the record's own
// definition.
TEST_F(PuschTxTest, BytesOfAForcedStartLieWhereTheTargetReadsThem)
{
    const SNrPuschTxCmdV7 command = ForcedCommand();
    m_puschTx.RunPuschTx(&command);
    const QByteArray carrier = QByteArray::fromHex("0300 00 00 2caa1a00 00 00 0100 204e0000"
                                                   "0000 6a00 00000000 02000000 80f5 0000"
                                                   "00000000 00 00 0300 00 00 0000");
    ASSERT_EQ(carrier.size(), 44);
    ExpectOneCall(kPusch, QByteArray::fromHex("01000000") + carrier + QByteArray(48, '\0'));
}

TEST_F(PuschTxTest, BothCarriersOfANormalStartPass)
{
    SNrPuschTxCmdV7 command = {};
    command.normalMode.ulCCNum = 2;
    command.normalMode.carrier[0] = ForcedCommand().forcedMode.carrier;
    command.normalMode.carrier[1] = ForcedCommand().forcedMode.carrier;
    command.normalMode.carrier[1].band = 80;
    EXPECT_EQ(m_puschTx.RunPuschTx(&command), 0u);
    ExpectOneCall(kPusch, BytesOf(command));
    const SJournalCall call = JournalOf(kPusch).value(0);
    EXPECT_EQ(RequestNumber(call, "forced"), 0);
    EXPECT_EQ(RequestNumber(call, "normalMode.ulCCNum"), 2);
    EXPECT_EQ(RequestNumber(call, "normalMode.carrier[0].band"), 3);
    EXPECT_EQ(RequestNumber(call, "normalMode.carrier[1].band"), 80);
}

TEST_F(PuschTxTest, CarrierOffTheRasterIsATargetFailureInWords)
{
    SNrPuschTxCmdV7 command = ForcedCommand();
    command.forcedMode.carrier.ulFrequency += 1;
    EXPECT_EQ(m_puschTx.RunPuschTx(&command), 203u);
    EXPECT_EQ(m_puschTx.GetErrorMessage(),
              QString("Status error code (1) :NL1TST_CNF_STATUS_FREQ_MISMATCH.\n\nDetails: "
                      "Frequency cannot be exactly mapped to NR-ARFCN."));
    EXPECT_EQ(CountCalls(kPusch), 1);
    EXPECT_STREQ(VondSim_RunningTest(), "");
}

TEST_F(PuschTxTest, RefusedStartKeepsTheLibrarysWordsAndIsNotRepeated)
{
    SNrPuschTxCmdV7 command = ForcedCommand();
    command.forcedMode.carrier.txRoute = 1;
    EXPECT_EQ(m_puschTx.RunPuschTx(&command), 3u);
    EXPECT_EQ(m_puschTx.GetErrorMessage(), QString("Target: route does not serve the band"));
    EXPECT_EQ(CountCalls(kPusch), 1);
}

TEST_F(PuschTxTest, StatusComesBeforeAFailingResult)
{
    Fault(kPusch, 7);
    AnswerStatus(kPusch, 4);
    const SNrPuschTxCmdV7 command = ForcedCommand();
    EXPECT_EQ(m_puschTx.RunPuschTx(&command), 203u);
    EXPECT_EQ(m_puschTx.GetErrorMessage(),
              QString("Status error code (4) :NL1TST_CNF_STATUS_SCELL_NOT_EXIST.\n\nDetails: SCell "
                      "SSB can't be detected."));
}

TEST_F(PuschTxTest, SuccessLeavesTheTextOfTheLastFailure)
{
    SNrPuschTxCmdV7 command = ForcedCommand();
    command.forcedMode.carrier.band = 2;
    m_puschTx.RunPuschTx(&command);
    command = ForcedCommand();
    EXPECT_EQ(m_puschTx.RunPuschTx(&command), 0u);
    EXPECT_EQ(m_puschTx.GetErrorMessage(), QString("Target: unknown band"));
}

TEST_F(PuschTxTest, DlFrequencyIsTheTargetsAnswerInKhz)
{
    const SNrDlFreqCmdV7 command = DlFreqCommand();
    SNrDlFreqCnfV7 answer = {};
    EXPECT_EQ(m_puschTx.GetDlFreq(&command, &answer), 0u);
    EXPECT_EQ(answer.dlFrequency, 2140000u);
    ExpectOneCall(kDlFreq, QByteArray::fromHex("0100 0000 30c11d00 01 00 0100"));
}

TEST_F(PuschTxTest, DlFrequencyRecordIsClearedBeforeTheCall)
{
    Fault(kDlFreq, 2);
    const SNrDlFreqCmdV7 command = DlFreqCommand();
    SNrDlFreqCnfV7 answer = {9, 9};
    EXPECT_EQ(m_puschTx.GetDlFreq(&command, &answer), 3u);
    EXPECT_EQ(answer.status, 0u);
    EXPECT_EQ(answer.dlFrequency, 0u);
    EXPECT_EQ(m_puschTx.GetErrorMessage(),
              QString("Connection: the target did not answer in time"));
}

TEST_F(PuschTxTest, StatusInsideTheDlFrequencyRecordIsATargetFailure)
{
    AnswerStatus(kDlFreq, 5);
    const SNrDlFreqCmdV7 command = DlFreqCommand();
    SNrDlFreqCnfV7 answer = {};
    EXPECT_EQ(m_puschTx.GetDlFreq(&command, &answer), 203u);
    EXPECT_EQ(m_puschTx.GetErrorMessage(),
              QString("Status error code (5) :Not found status descrption"));
    EXPECT_EQ(CountCalls(kDlFreq), 1);
}

TEST_F(PuschTxTest, SecondStartIsRefusedUntilTheNrStop)
{
    const SNrPuschTxCmdV7 command = ForcedCommand();
    m_puschTx.RunPuschTx(&command);
    EXPECT_EQ(m_puschTx.RunPuschTx(&command), 3u);
    EXPECT_EQ(m_puschTx.GetErrorMessage(), QString("Target: a test is running already"));
    EXPECT_EQ(CNrTestStop().Stop(), 0u);
    EXPECT_EQ(m_puschTx.RunPuschTx(&command), 0u);
}

}  // namespace
