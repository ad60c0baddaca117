// The gain search and the RSSI measurement, as the target sees them.
#include "Operations/tests/MultiRatRssiV7.h"
#include "tests/common/GoodCommands.h"
#include "tests/operations/TargetFixture.h"

namespace {

SMMGainSearchCmdV7 SearchCommand()
{
    SMMGainSearchCmdV7 command = GainSearchCommand();
    command.simultaneous = 1;
    command.search[1] = 0;
    command.search[3] = 2;
    return command;
}

SMMRssiCmdV7 DigitalGainCommand()
{
    SMMRssiCmdV7 command = RssiCommand();
    command.gain.single.mainRfGain = 1584;
    command.gain.single.divRfGain = 1664;
    command.gain.single.mainDigitalGain = -32;
    return command;
}

class RssiTest : public CTargetTest
{
protected:
    CMultiRatRssiV7 m_rssi;
};

TEST_F(RssiTest, GainSearchSendsItsCommandOnceAndBringsTheAnswer)
{
    SMMGainSearchCnfV7 answer = {};
    EXPECT_EQ(m_rssi.RunGainSearch(SearchCommand(), &answer), 0u);
    ExpectOneCall(kGainSearch, QByteArray::fromHex("01000000 00000000 01000000 01 01 01000002"
                                                   "0000"));
    EXPECT_EQ(BytesOf(answer), JournalOf(kGainSearch).value(0).answer);
    EXPECT_EQ(answer.simultaneous, 1u);
    EXPECT_EQ(answer.gain.simultaneous.path1DivGainIdx, 5);
    EXPECT_EQ(VondSim_CallCount(), 1u);
}

TEST_F(RssiTest, RefusedGainSearchKeepsTheLibrarysWords)
{
    SMMGainSearchCmdV7 command = SearchCommand();
    command.elnaModeMain = 7;
    SMMGainSearchCnfV7 answer = {};
    EXPECT_EQ(m_rssi.RunGainSearch(command, &answer), 3u);
    EXPECT_EQ(m_rssi.GetErrorMessage(), QString("Target: gain mode is not supported"));
    EXPECT_EQ(BytesOf(answer), QByteArray(sizeof answer, '\0'));
    EXPECT_EQ(CountCalls(kGainSearch), 1);
}

TEST_F(RssiTest, MeasurementSendsItsCommandOnceAndBringsTheAnswer)
{
    SMMRssiCnfV7 answer = {};
    EXPECT_EQ(m_rssi.RunRssi(DigitalGainCommand(), &answer), 0u);
    ExpectOneCall(kRssi, QByteArray::fromHex("03000000 00000000 f01d3300 01453300 00000000"
                                             "00000000 00000000 4e00 6900 01 02 0000 01000000"
                                             "3006 8006 e0ff 0000") +
                             QByteArray(12, '\0'));
    EXPECT_EQ(BytesOf(answer), JournalOf(kRssi).value(0).answer);
    EXPECT_EQ(answer.dlFrequency[1], 3360001u);
    EXPECT_LT(answer.rows.single.row[1].rssiMain, 0);
    EXPECT_STREQ(VondSim_RunningTest(), "");
}

TEST_F(RssiTest, RefusedMeasurementKeepsTheLibrarysWords)
{
    SMMRssiCmdV7 command = DigitalGainCommand();
    command.numFreq = 0;
    SMMRssiCnfV7 answer = {};
    EXPECT_EQ(m_rssi.RunRssi(command, &answer), 3u);
    EXPECT_EQ(m_rssi.GetErrorMessage(), QString("Target: frequency count is out of limits"));
    EXPECT_EQ(CountCalls(kRssi), 1);
}

TEST_F(RssiTest, NullErrorTextLeavesAnEmptyMessageAndStillThree)
{
    NoErrorTexts();
    Fault(kRssi);
    SMMRssiCnfV7 answer = {};
    EXPECT_EQ(m_rssi.RunRssi(DigitalGainCommand(), &answer), 3u);
    EXPECT_TRUE(m_rssi.GetErrorMessage().isEmpty());
}

TEST_F(RssiTest, AdvisedGainsAreGoodForTheMeasurementAsTheyCame)
{
    SMMGainSearchCnfV7 gains = {};
    ASSERT_EQ(m_rssi.RunGainSearch(SearchCommand(), &gains), 0u);
    SMMRssiCmdV7 command = DigitalGainCommand();
    command.singlePath = 0;
    command.path = 3;
    command.gain = gains.gain;
    SMMRssiCnfV7 answer = {};
    EXPECT_EQ(m_rssi.RunRssi(command, &answer), 0u);
    EXPECT_EQ(answer.rows.simultaneous.mainG, 1);
    EXPECT_EQ(answer.rows.simultaneous.path0Maing, 1);
    EXPECT_EQ(answer.rows.simultaneous.path1Divg, 2);
}

}  // namespace
