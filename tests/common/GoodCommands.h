// Commands that the simulated handset accepts as they stand, for a test to bend. Constants; any
// thread.
//
//   SNrRsrpCmdV7 command = RsrpForcedCommand();
//   command.forcedMode.carrier.common.measCnt = 10;
#pragma once

#include "Vond/VondCommandRecords.h"

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
