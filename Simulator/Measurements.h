// What the simulated receiver, transmitter and gain search measure.
//
// The model is a test set that feeds a constant cell to all antennas: readings vary smoothly with
// frequency and gain, and carry a ripple that is drawn from the command, so that the same command
// always reads the same. A later reading of one running test differs by its sequence number. The
// commands are taken to have passed Checks.h. No state, no locks.
//
// RF gain model: G0 with g0 gives 60 dB; each step of G takes 8 dB, each step of g 2.5 dB, low
// power mode another 1.5 dB. Type 2 gain index: 3 * G + g, at most 17.
#pragma once

#include "Simulator/Profile.h"
#include "Vond/VondCommandRecords.h"
#include "Vond/VondResultRecords.h"

// Power detector reading in dBm, 1/256 dB: the TX power within a quarter of a dB.
int16_t MeasurePd(int16_t txPower, uint32_t ulFrequencyKhz);

SMMGainSearchCnfV7 SearchGain(const SMMGainSearchCmdV7 &command);
SMMRssiCnfV7 MeasureRssi(const SMMRssiCmdV7 &command);

// What a running RSRP test needs to know for its reports.
struct SRsrpRun
{
    uint8_t measCnt = 0;
    uint32_t dlFrequency = 0;  // kHz
    uint32_t resourceBlocks = 0;
    int antennas = 2;  // 2 or 4 columns
};

SRsrpRun RsrpRun(const SNrRsrpCmdV7 &command);

struct SMixRxReading
{
    NRfTestResult_GetMixRxReportV7 report = {};  // block counts 0
    uint32_t goodBlocks = 0;                     // of this reading alone
    uint32_t badBlocks = 0;
};

SMixRxReading MeasureMixRx(const SRsrpRun &run, uint32_t sequence);
