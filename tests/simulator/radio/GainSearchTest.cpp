// The gain search: gains that the DUT has, and a cell power that suits them.

#include "tests/simulator/radio/MeasuringFixture.h"

namespace {

double RfGain(int elna, int mode, int lowPower)
{
    return 60.0 - 8.0 * elna - 2.5 * mode - (lowPower == 1 ? 1.5 : 0.0);
}

class GainSearchTest : public CMeasuringTest
{
protected:
    void SetUp() override
    {
        CMeasuringTest::SetUp();
        const uint32_t nr = 1;
        ASSERT_EQ(VOND_MMRf_GetRouteConfigV7_r(kHandle, kTimeoutMs, &nr, &m_config), VOND_SUCCESS);
    }

    // What the DUT itself says of its tables.
    bool Has(int lowPower, int elna, int mode) const
    {
        return m_config.rxGainInfo[lowPower].t1[elna][mode] == 1;
    }

    // The power mode, G and g of the main antenna; diversity has what every table has, G0 and g0.
    static SMMGainSearchCmdV7 Command(int lowPower, int elna, int mode)
    {
        SMMGainSearchCmdV7 command = {};
        command.radioKind = 1;
        command.lowPower = static_cast<uint32_t>(lowPower);
        command.elnaModeMain = static_cast<uint8_t>(elna);
        command.search[0] = static_cast<uint8_t>(mode);
        return command;
    }

    SMMRfRouteConfigV7 m_config = {};
};

TEST_F(GainSearchTest, FollowsTheGainModes)
{
    const SMMGainSearchCnfV7 answer = Search(Command(0, 1, 1));
    EXPECT_EQ(answer.simultaneous, 0u);
    // G1 with g1: 60 - 8 - 2.5 dB; G0 with g0: 60 dB.
    EXPECT_EQ(answer.gain.single.mainRfGain, 1584);
    EXPECT_EQ(answer.gain.single.divRfGain, 1920);
    // 12 dB lift the ADC's target to the nominal word; diversity has 10.5 dB more in front already.
    EXPECT_EQ(answer.gain.single.mainDigitalGain, 12 * 32);
    EXPECT_EQ(answer.gain.single.divDigitalGain, 48);
    // The ADC is best used at -20 dBm.
    EXPECT_EQ(answer.adviseDlPower, -640 - 1584);
}

TEST_F(GainSearchTest, OfBothPathsTellsGainIndexes)
{
    SMMGainSearchCmdV7 command = GainSearchCommand();
    command.simultaneous = 1;
    command.search[3] = 2;
    const SMMGainSearchCnfV7 answer = Search(command);
    EXPECT_EQ(answer.simultaneous, 1u);
    EXPECT_EQ(answer.gain.simultaneous.path0MainGainIdx, 4);
    EXPECT_EQ(answer.gain.simultaneous.path1DivGainIdx, 5);
    EXPECT_EQ(answer.gain.simultaneous.path1DivRfGain, (52 * 32) - 160);
}

TEST_F(GainSearchTest, AdvisesTheGainsOfTheTablesAndRefusesTheOthers)
{
    for (int lowPower = 0; lowPower < 2; ++lowPower) {
        for (int elna = 0; elna < 7; ++elna) {
            for (int mode = 0; mode < 3; ++mode) {
                const SMMGainSearchCmdV7 command = Command(lowPower, elna, mode);
                SMMGainSearchCnfV7 answer = {};
                const VOND_RESULT result =
                    VOND_MMRf_GainSearchV7_r(kHandle, kTimeoutMs, &command, &answer);
                const bool has = Has(lowPower, elna, mode);
                EXPECT_EQ(ErrorText(result), has ? "Success" : "Target: gain mode is not supported")
                    << lowPower << " G" << elna << " g" << mode;
                EXPECT_EQ(answer.gain.single.mainRfGain,
                          has ? RfGain(elna, mode, lowPower) * 32 : 0);
            }
        }
    }
}

// Whatever is advised, an RSSI command and the page's spin boxes can carry.
TEST_F(GainSearchTest, EveryGainOfTheLargestTablesIsWithinTheReceiversLimits)
{
    ASSERT_EQ(VondSim_SetProfile("largest"), 0);
    for (int elna = 0; elna < 7; ++elna) {
        SMMGainSearchCmdV7 command = Command(1, elna, 2);
        command.simultaneous = 1;
        command.elnaModeDiv = static_cast<uint8_t>(6 - elna);
        const auto gain = Search(command).gain.simultaneous;
        for (const int16_t rf : {gain.path0MainRfGain, gain.path0DivRfGain, gain.path1MainRfGain,
                                 gain.path1DivRfGain}) {
            EXPECT_GE(rf, 0);
            EXPECT_LE(rf, 70 * 32);
        }
        for (const int16_t digital : {gain.path0MainDigitalGain, gain.path0DivDigitalGain,
                                      gain.path1MainDigitalGain, gain.path1DivDigitalGain}) {
            EXPECT_GE(digital, -42 * 32);
            EXPECT_LE(digital, 54 * 32);
        }
        for (const uint8_t index : {gain.path0MainGainIdx, gain.path0DivGainIdx,
                                    gain.path1MainGainIdx, gain.path1DivGainIdx})
            EXPECT_LE(index, 17);
    }
}

// The round trip of the page: search, set the test set to the advised power, measure.
TEST_F(GainSearchTest, AdvisedGainsAndPowerMeasureRight)
{
    for (int elna = 0; elna < 7; ++elna) {
        for (int mode = 0; mode < 3; ++mode) {
            if (!Has(0, elna, mode))
                continue;
            SMMGainSearchCmdV7 search = Command(0, elna, mode);
            search.elnaModeDiv = search.elnaModeMain;
            search.search[1] = search.search[0];
            const SMMGainSearchCnfV7 gains = Search(search);
            Plug(QuietRadio(gains.adviseDlPower * kPer32));
            SMMRssiCmdV7 command = RssiCommand();
            command.path = 0;
            command.dlFrequency[0] = 3550000;
            command.gain = gains.gain;
            const auto rows = Rssi(command).rows.single;
            // The residual error of the gain is all that is off.
            EXPECT_NEAR(rows.row[0].rssiMain * kPer32, gains.adviseDlPower * kPer32, 1.0);
            EXPECT_EQ(rows.mainG, elna);
            EXPECT_EQ(rows.maing, mode);
            EXPECT_EQ(rows.divG, elna);
            EXPECT_EQ(rows.divg, mode);
        }
    }
}

TEST_F(GainSearchTest, IsTheSameEveryTime)
{
    const SMMGainSearchCnfV7 first = Search(GainSearchCommand());
    const SMMGainSearchCnfV7 second = Search(GainSearchCommand());
    EXPECT_EQ(first.gain.single.mainDigitalGain, second.gain.single.mainDigitalGain);
    EXPECT_EQ(first.adviseDlPower, second.adviseDlPower);
}

}  // namespace
