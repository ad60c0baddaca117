// What the simulated receiver, transmitter and gain search measure: the wire records of Receiver.h.
//
// The model is a test set that feeds a cell to the DUT's antenna connectors, at the levels and
// through the path losses of the profile's "radio" key. Readings follow the command, the profile and
// the calibration data, and stray by a little chance that comes from the radio's noise source: a
// later reading differs, a run from the same seed does not. The commands are taken to have passed
// Checks.h. No state but the noise source's, no locks.
//
//   const SRsrpRun run = RsrpRun(profile, command);
//   const SMixRxReading reading = MeasureMixRx(run, calibration, noise);
#pragma once

#include "Simulator/basis/Results.h"
#include "Simulator/profile/Profile.h"
#include "Simulator/radio/Calibration.h"
#include "Simulator/radio/Noise.h"
#include "Vond/VondCommandRecords.h"
#include "Vond/VondResultRecords.h"

// Power detector reading in 1/256 dB: slope and offset of the profile over the power at the
// connector, and what the detector's calibration says too much.
int16_t MeasurePd(const SProfileRadio &radio, const STxOutput &output, CNoise &noise);

// A matter of tables, without chance: the gains of the modes asked for, the cell power that suits
// the main gain, and the digital gains that go with that power.
SMMGainSearchCnfV7 SearchGain(const SMMGainSearchCmdV7 &command);
SMMRssiCnfV7 MeasureRssi(const SProfile &profile, const SMMRssiCmdV7 &command,
                         ICalibration &calibration, CNoise &noise);

// What a running RSRP test needs to know for its reports. Powers are dBm at the antenna connector.
struct SRsrpRun
{
    uint8_t measCnt = 0;
    int antennas = 2;          // 2 or 4 columns
    double cellPower = 0.0;    // of the whole channel, at the first antenna
    double noise = 0.0;        // of the receiver, in the whole channel
    double elements = 0.0;     // dB: resource elements of the channel
    double fluctuation = 0.0;  // dB, at most
    bool lowPower = false;
    uint16_t route = 0;  // 0: the DUT has none for the band
    bool isType2 = false;
    uint32_t kHz = 0;
};

SRsrpRun RsrpRun(const SProfile &profile, const SNrRsrpCmdV7 &command);
// Whether the cell is strong enough to be found and read.
EStatus CellStatus(const SRsrpRun &run);

struct SMixRxReading
{
    NRfTestResult_GetMixRxReportV7 report = {};  // block counts 0
    uint32_t goodBlocks = 0;                     // of this reading alone
    uint32_t badBlocks = 0;
};

SMixRxReading MeasureMixRx(const SRsrpRun &run, ICalibration &calibration, CNoise &noise);
