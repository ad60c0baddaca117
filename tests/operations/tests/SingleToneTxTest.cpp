// Single tone TX and the power detector, as the target sees them.
#include "Operations/tests/MultiRatSingleToneTxV7.h"
#include "Operations/tests/TestStop.h"
#include "tests/common/GoodCommands.h"
#include "tests/operations/TargetFixture.h"

namespace {

SMMSingleToneCmdV7 Command()
{
    SMMSingleToneCmdV7 command = SingleToneCommand();
    command.txPowerValue = -2688;  // -10.5 dBm
    return command;
}

class SingleToneTxTest : public CTargetTest
{
protected:
    CMultiRatSingleToneTxV7 m_singleTone;
};

TEST_F(SingleToneTxTest, StartSendsItsCommandOnce)
{
    const SMMSingleToneCmdV7 command = Command();
    EXPECT_EQ(m_singleTone.RunSingleTone(&command), 0u);
    EXPECT_STREQ(VondSim_RunningTest(), "SingleToneTx");
    ExpectOneCall(kSingleTone, QByteArray::fromHex("01000000 2900 0900 0010 80f5 e8902700"
                                                   "409c0000 e4fdffff 01000000"));
    EXPECT_EQ(VondSim_CallCount(), 1u);
}

TEST_F(SingleToneTxTest, RefusedStartKeepsTheLibrarysWordsAndIsNotRepeated)
{
    SMMSingleToneCmdV7 command = Command();
    command.aggBwKhzRange = 50000;
    EXPECT_EQ(m_singleTone.RunSingleTone(&command), 3u);
    EXPECT_EQ(m_singleTone.GetErrorMessage(),
              QString("Target: route has no such bandwidth region"));
    EXPECT_EQ(CountCalls(kSingleTone), 1);
    EXPECT_STREQ(VondSim_RunningTest(), "");
}

TEST_F(SingleToneTxTest, NullErrorTextLeavesAnEmptyMessageAndStillThree)
{
    SMMSingleToneCmdV7 command = Command();
    command.band = 2;
    m_singleTone.RunSingleTone(&command);
    ASSERT_FALSE(m_singleTone.GetErrorMessage().isEmpty());
    NoErrorTexts();
    EXPECT_EQ(m_singleTone.RunSingleTone(&command), 3u);
    EXPECT_TRUE(m_singleTone.GetErrorMessage().isEmpty());
}

TEST_F(SingleToneTxTest, PdValueIsWhatTheDetectorReads)
{
    const SMMSingleToneCmdV7 command = Command();
    m_singleTone.RunSingleTone(&command);
    int16_t value = 0;
    EXPECT_EQ(m_singleTone.GetPdValue(1, &value), 0u);
    ExpectOneCall(kPdValue, QByteArray::fromHex("01000000"));
    EXPECT_EQ(BytesOf(value), JournalOf(kPdValue).value(0).answer);
    EXPECT_LT(value, 0);
}

TEST_F(SingleToneTxTest, PdValueKeepsItsSign)
{
    const SMMSingleToneCmdV7 command = Command();
    m_singleTone.RunSingleTone(&command);
    AnswerBytes(kPdValue, 0, "80ff");
    int16_t value = 0;
    EXPECT_EQ(m_singleTone.GetPdValue(1, &value), 0u);
    EXPECT_EQ(value, -128);  // -0.5 dBm
}

TEST_F(SingleToneTxTest, PdValueOfASilentTransmitterFailsAndLeavesTheValue)
{
    int16_t value = 77;
    EXPECT_EQ(m_singleTone.GetPdValue(1, &value), 3u);
    EXPECT_EQ(m_singleTone.GetErrorMessage(), QString("Target: nothing is being transmitted"));
    EXPECT_EQ(value, 77);
    EXPECT_EQ(CountCalls(kPdValue), 1);
}

TEST_F(SingleToneTxTest, MultiRatStopEndsTheTone)
{
    const SMMSingleToneCmdV7 command = Command();
    m_singleTone.RunSingleTone(&command);
    EXPECT_EQ(CMultiRatTestStopV7().Stop(1), 0u);
    EXPECT_STREQ(VondSim_RunningTest(), "");
}

}  // namespace
