// The DL frequency that goes with an UL one: the duplex distance of the band.

#include "tests/simulator/radio/MeasuringFixture.h"

namespace {

class DlFrequencyTest : public CMeasuringTest
{
protected:
    SNrDlFreqCnfV7 Of(uint16_t band, uint32_t ulFrequency)
    {
        SNrDlFreqCmdV7 command = {};
        command.band = band;
        command.ulFrequency = ulFrequency;
        return DlFreq(command);
    }
};

// Default TX-RX separations of TS 38.101-1 table 5.4.4-1, kHz; a TDD band has none.
TEST_F(DlFrequencyTest, IsTheUplinkAndTheDuplexDistanceOfTheBand)
{
    const struct
    {
        uint16_t band;
        uint32_t ulFrequency;
        int32_t distance;
    } rows[] = {
        {1, 1950000, 190000}, {2, 1880000, 80000},  {3, 1747500, 95000},   {5, 836500, 45000},
        {7, 2535000, 120000}, {8, 897500, 45000},   {12, 707500, 30000},   {20, 847000, -41000},
        {25, 1882500, 80000}, {28, 725500, 55000},  {66, 1745000, 400000}, {70, 1702500, 300000},
        {71, 680500, -46000}, {74, 1448500, 48000}, {38, 2595000, 0},      {40, 2350000, 0},
        {41, 2593000, 0},     {78, 3549990, 0},     {79, 4700010, 0},
    };
    ASSERT_EQ(VondSim_SetProfile("largest"), 0);
    for (const auto &row : rows) {
        const SNrDlFreqCnfV7 answer = Of(row.band, row.ulFrequency);
        EXPECT_EQ(answer.status, 0u) << row.band;
        EXPECT_EQ(int64_t(answer.dlFrequency) - row.ulFrequency, row.distance) << row.band;
    }
}

TEST_F(DlFrequencyTest, ThatDoesNotExistIsAFrequencyMismatch)
{
    SNrDlFreqCmdV7 command = {};
    command.band = 80;
    command.ulFrequency = 1747500;
    const SNrDlFreqCnfV7 answer = DlFreq(command);
    EXPECT_EQ(answer.status, 1u);
    EXPECT_EQ(answer.dlFrequency, 0u);
    command.band = 1;
    EXPECT_EQ(DlFreq(command).status, 1u);
    command = DlFreqCommand();
    command.ulFrequency = 1950002;
    EXPECT_EQ(DlFreq(command).status, 1u);
}

TEST_F(DlFrequencyTest, OfAnUnknownBandOrRouteIsRefused)
{
    SNrDlFreqCmdV7 command = DlFreqCommand();
    SNrDlFreqCnfV7 answer = {};
    command.band = 0;
    EXPECT_EQ(ErrorText(VOND_NRf_GetDlFreqV7_r(kHandle, kTimeoutMs, &command, &answer)),
              "Target: unknown band");
    command.band = 75;
    EXPECT_EQ(ErrorText(VOND_NRf_GetDlFreqV7_r(kHandle, kTimeoutMs, &command, &answer)),
              "Target: band does not support the direction");
    command = DlFreqCommand();
    command.txRoute = 3;
    EXPECT_EQ(ErrorText(VOND_NRf_GetDlFreqV7_r(kHandle, kTimeoutMs, &command, &answer)),
              "Target: route does not serve the band");
    // Without force the route word means nothing.
    command.forced = 0;
    EXPECT_EQ(DlFreq(command).dlFrequency, 2140000u);
}

}  // namespace
