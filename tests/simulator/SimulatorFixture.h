// What all tests of the simulated DUT share: a fresh DUT for each test, and commands that the
// handset profile accepts as they stand, for a test to bend.
#pragma once

#include "Simulator/VondSim.h"
#include "Vond/VondApp.h"
#include "Vond/VondCore.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

constexpr uint32_t HANDLE = 0x51;
constexpr uint32_t TIMEOUT_MS = 10000;

// The handset profile, no faults, no journal.
class CSimulatorTest : public ::testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;
};

// Continuous RX on n1, type 1 route 1, path 0.
SMMContRxCmdV7 ContRxCommand();
// Continuous RX on n1, type 2 route 101, both paths.
SMMContRxCmdV7 ContRxBothPathsCommand();
// RSSI on n78, type 2 route 105, path 1, two frequencies.
SMMRssiCmdV7 RssiCommand();
SMMRssiCmdV7 RssiBothPathsCommand();
// G1 with g1 on both antennas, one path, high power mode.
SMMGainSearchCmdV7 GainSearchCommand();
// Single tone on n41, TX route 9, region 40 MHz, 10 dBm.
SMMSingleToneCmdV7 SingleToneCommand();
// PUSCH on n3, TX route 3, 20 MHz at 15 kHz, 5.5 dBm.
SNrPuschTxCmdV7 PuschForcedCommand();
// PUSCH on n78 with n80 as second carrier.
SNrPuschTxCmdV7 PuschNormalCommand();
// RSRP on n1, type 1 route 1, five measurements a report, receiver alone.
SNrRsrpCmdV7 RsrpForcedCommand();
// RSRP on n78 with 4x4 MIMO, ten measurements a report.
SNrRsrpCmdV7 RsrpNormalCommand();
// Forced, n1, TX route 1.
SNrDlFreqCmdV7 DlFreqCommand();

// The words that VOND_GetErrorString has for a result.
std::string ErrorText(VOND_RESULT result);
// JSON of a profile that lays the given keys over the handset.
std::string HandsetWith(const std::string &keys);
// The bytes of a call's request or answer in the journal.
std::vector<uint8_t> RequestBytes(uint32_t index);
std::vector<uint8_t> AnswerBytes(uint32_t index);
SVondSimCall CallAt(uint32_t index);
SVondSimCall LastCall();
