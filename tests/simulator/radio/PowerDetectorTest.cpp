// The power detector: a straight line over the TX power, while something is transmitted.

#include "tests/simulator/radio/MeasuringFixture.h"

namespace {

class PowerDetectorTest : public CMeasuringTest
{
protected:
    double Read()
    {
        int16_t value = 0;
        EXPECT_EQ(VOND_MMRf_GetPdValueV7_r(kHandle, kTimeoutMs, 1, &value), VOND_SUCCESS);
        return value * kPer256;
    }

    // Reading in dBm while a tone of that power in dBm is on.
    double ReadingAt(double power)
    {
        SMMSingleToneCmdV7 command = SingleToneCommand();
        command.txPowerValue = static_cast<int16_t>(power * 256);
        EXPECT_EQ(VOND_MMRf_SingleToneTxV7_r(kHandle, kTimeoutMs, &command), VOND_SUCCESS);
        const double reading = Read();
        EXPECT_EQ(VOND_MMRf_TestStopV7_r(kHandle, kTimeoutMs, 1), VOND_SUCCESS);
        return reading;
    }
};

// The coupler and the diode of a detector have a gain error (slope) and a bias (offset), which a
// calibration is to find.
TEST_F(PowerDetectorTest, ReadsTheTxPowerBySlopeAndOffset)
{
    Plug(QuietRadio(-65, R"("powerDetector": {"slope": 0.95, "offsetDb": -1.5})"));
    for (const double power : {-50.0, -10.5, 0.0, 10.0, 23.0})
        EXPECT_NEAR(ReadingAt(power), 0.95 * power - 1.5, 0.003) << power;
}

TEST_F(PowerDetectorTest, HandsetReadsWithinADecibelOfTheTxPowerInItsUsualRange)
{
    for (const double power : {0.0, 10.0, 20.0, 23.0})
        EXPECT_NEAR(ReadingAt(power), power, 1.0) << power;
    EXPECT_NEAR(ReadingAt(20.0) - ReadingAt(10.0), 9.8, 0.4);
}

TEST_F(PowerDetectorTest, ReadingsOfOneToneStrayByTheFluctuationAtMost)
{
    const SMMSingleToneCmdV7 command = SingleToneCommand();
    ASSERT_EQ(VOND_MMRf_SingleToneTxV7_r(kHandle, kTimeoutMs, &command), VOND_SUCCESS);
    bool strays = false;
    const double first = Read();
    for (int i = 0; i < 100; ++i) {
        const double reading = Read();
        EXPECT_NEAR(reading, 0.98 * 10.0 + 0.6, 0.205);
        strays = strays || reading != first;
    }
    EXPECT_TRUE(strays);
}

TEST_F(PowerDetectorTest, ReadsTheTransmissionsOfPuschAndPseudoTx)
{
    Plug(QuietRadio(-65, R"("powerDetector": {"slope": 1, "offsetDb": 0})"));
    uint32_t status = 0;
    const SNrPuschTxCmdV7 pusch = PuschForcedCommand();
    ASSERT_EQ(VOND_NRf_PuschTxV7_r(kHandle, kTimeoutMs, &pusch, &status), VOND_SUCCESS);
    EXPECT_NEAR(Read(), 5.5, 0.003);
    VOND_NRf_TestStop_r(kHandle, kTimeoutMs);
    SNrRsrpCmdV7 rsrp = RsrpForcedCommand();
    rsrp.forcedMode.carrier.common.trxMode = 1;
    rsrp.forcedMode.carrier.common.txPowerValue = 23 * 256;
    rsrp.forcedMode.carrier.common.vrbLength = 1;
    rsrp.forcedMode.carrier.txRoute = 1;
    StartRsrp(rsrp);
    EXPECT_NEAR(Read(), 23.0, 0.003);
}

TEST_F(PowerDetectorTest, NeedsATransmitter)
{
    int16_t value = 77;
    EXPECT_EQ(ErrorText(VOND_MMRf_GetPdValueV7_r(kHandle, kTimeoutMs, 1, &value)),
              "Target: nothing is being transmitted");
    const SMMContRxCmdV7 command = ContRxCommand();
    ASSERT_EQ(VOND_MMRf_ContRxV7_r(kHandle, kTimeoutMs, &command), VOND_SUCCESS);
    EXPECT_NE(VOND_MMRf_GetPdValueV7_r(kHandle, kTimeoutMs, 1, &value), VOND_SUCCESS);
    EXPECT_EQ(value, 77);
    EXPECT_EQ(ErrorText(VOND_MMRf_GetPdValueV7_r(kHandle, kTimeoutMs, 2, &value)),
              "Target: unknown power detector");
}

}  // namespace
