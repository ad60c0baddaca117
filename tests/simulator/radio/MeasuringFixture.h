// What tests of readings share: commands sent, answers as values, and a quiet laboratory.
//
//   Plug(QuietRadio(-70));                       // every band at -70 dBm, nothing in between
//   StartRsrp(RsrpForcedCommand());
//   EXPECT_NEAR(Report().RSSI0[0] / 128.0, -70, 0.01);
#pragma once

#include "tests/simulator/SimulatorFixture.h"

// Units of the wire records.
constexpr double kPer128 = 1.0 / 128;
constexpr double kPer32 = 1.0 / 32;
constexpr double kPer256 = 1.0 / 256;

class CMeasuringTest : public CSimulatorTest
{
protected:
    void Plug(const std::string &profile);

    SMMRssiCnfV7 Rssi(const SMMRssiCmdV7 &command);
    SMMGainSearchCnfV7 Search(const SMMGainSearchCmdV7 &command);
    SNrDlFreqCnfV7 DlFreq(const SNrDlFreqCmdV7 &command);
    // The status word.
    uint32_t TryRsrp(const SNrRsrpCmdV7 &command);
    void StartRsrp(const SNrRsrpCmdV7 &command);
    void StopRsrp();
    NRfTestResult_GetMixRxReportV7 Report();
    // One report of a run of its own, counters from 0.
    NRfTestResult_GetMixRxReportV7 ReportOf(const SNrRsrpCmdV7 &command);
    // Share of the blocks that are lost in so many reports.
    double ErrorRate(const SNrRsrpCmdV7 &command, int reports = 20);
};

// The handset without chance, path losses or frequency limits of single routes, with every band at
// that level; further keys of "radio" go over it.
std::string QuietRadio(double levelDbm, const std::string &keys = "");
