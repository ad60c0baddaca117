// The radio of the simulated DUT: which continuous test runs, and what follows from it.
//
// One test runs at a time; any start or measurement that needs the radio is refused while one runs.
// Stopping an idle radio, or one that runs a test of the other kind, succeeds and changes nothing.
// Block counters count from the last reset on, across tests. Chance in the readings comes from one
// source that the seed starts; nothing grows with the number of readings. A running test follows
// changes of the profile's radio with its next reading. No lock: the owner keeps calls apart.
//
//   CRadio radio(profile.radio.seed);
//   SVerdict verdict = radio.StartContRx(profile, command);
//   radio.StopMultiMode();
#pragma once

#include <chrono>

#include "Simulator/basis/Results.h"
#include "Simulator/profile/Profile.h"
#include "Simulator/radio/Measurements.h"

enum class ERunningTest
{
    None,
    ContRx,
    SingleToneTx,
    PuschTx,
    Rsrp
};

// What the running test does; everything 0 while the radio is idle.
struct SRadioUse
{
    uint16_t band = 0;
    uint16_t route = 0;     // as the command names it; 0: the DUT takes its own
    uint32_t downlink = 0;  // kHz; 0: it receives nothing
    bool isTransmitting = false;
    double txPower = 0.0;  // dBm, as set
    STxPlace tx = {};
    std::chrono::steady_clock::time_point start = {};
};

// "" for none.
const char *TestName(ERunningTest test);

class CRadio
{
public:
    explicit CRadio(uint32_t seed = 1) : m_noise(seed) {}

    ERunningTest Running() const { return m_running; }
    const SRadioUse &Use() const { return m_use; }
    // Chance begins anew.
    void Seed(uint32_t seed) { m_noise = CNoise(seed); }

    SVerdict StartContRx(const SProfile &profile, const SMMContRxCmdV7 &command);
    SVerdict StartSingleTone(const SProfile &profile, const SMMSingleToneCmdV7 &command);
    SVerdict StartPuschTx(const SProfile &profile, const SNrPuschTxCmdV7 &command);
    // A cell that is too weak to be found or read is a status.
    SVerdict StartRsrp(const SProfile &profile, const SNrRsrpCmdV7 &command);
    void StopNr();
    // Kind 1 stops continuous RX and single tone.
    SVerdict StopMultiMode(uint32_t kind);

    SVerdict Rssi(const SProfile &profile, ICalibration &calibration, const SMMRssiCmdV7 &command,
                  SMMRssiCnfV7 &answer);
    SVerdict GainSearch(const SProfile &profile, const SMMGainSearchCmdV7 &command,
                        SMMGainSearchCnfV7 &answer) const;
    // Needs a transmitter that runs; kind is 1.
    SVerdict PdValue(const SProfile &profile, ICalibration &calibration, uint32_t kind,
                     int16_t &value);
    // While no RSRP test runs the report has no measurement, and the counters as they stand.
    void MixRxReport(const SProfile &profile, ICalibration &calibration,
                     NRfTestResult_GetMixRxReportV7 &report);
    void ResetMixRx();
    SVerdict DlFrequency(const SProfile &profile, const SNrDlFreqCmdV7 &command,
                         SNrDlFreqCnfV7 &answer) const;

private:
    void Start(ERunningTest test, const SRadioUse &use);
    void Stop(ERunningTest one, ERunningTest other);

    ERunningTest m_running = ERunningTest::None;
    SRadioUse m_use;
    SNrRsrpCmdV7 m_rsrp = {};  // of the running RSRP test
    CNoise m_noise;
    uint32_t m_goodBlocks = 0;
    uint32_t m_badBlocks = 0;
};
