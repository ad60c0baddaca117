// Result records: what the target measured.
//
// All records are little-endian and naturally aligned. The caller zeroes a record before the call.
#pragma once

#include "Vond/VondGainRecords.h"
#include "Vond/VondLayout.h"

constexpr int kVondMaxReports = 10;  // measurements of one RSRP report
constexpr int kVondMaxRssiRows = 5;  // frequencies of one RSSI measurement

// Answer of VOND_NRf_GetDlFreqV7_r.
struct SNrDlFreqCnfV7
{
    uint32_t status;       // 0: success, see VondStatusText
    uint32_t dlFrequency;  // kHz
};
VOND_SIZE(SNrDlFreqCnfV7, 8);

// Answer of VOND_NRf_GetMixRxReportV7_r. RSSI and RSRP are dBm in 1/128 dB, one column an antenna.
struct NRfTestResult_GetMixRxReportV7
{
    uint8_t reportCount;  // measurements in use, at most 10
    uint8_t reserved1[3];
    int16_t RSSI0[kVondMaxReports];
    int16_t RSSI1[kVondMaxReports];
    int16_t RSSI2[kVondMaxReports];
    int16_t RSSI3[kVondMaxReports];
    int16_t RSRP0[kVondMaxReports];
    int16_t RSRP1[kVondMaxReports];
    int16_t RSRP2[kVondMaxReports];
    int16_t RSRP3[kVondMaxReports];
    uint32_t GoodBLK;  // transport blocks received well since the last reset
    uint32_t BadBLK;   // transport blocks lost since the last reset
};
VOND_SIZE(NRfTestResult_GetMixRxReportV7, 172);

// Answer of VOND_MMRf_GainSearchV7_r.
struct SMMGainSearchCnfV7
{
    int16_t adviseDlPower;  // advised cell power, dBm in 1/32 dB
    uint8_t reserved2[2];
    uint32_t simultaneous;  // 1: both paths
    UMMRssiGainV7 gain;     // simultaneous says which layout holds
};
VOND_SIZE(SMMGainSearchCnfV7, 28);

// Rows of an RSSI measurement; the command's singlePath says which layout holds. RSSI is dBm in
// 1/32 dB; the G (eLNA) and g (gain mode) bytes are the gains in force.
union UMMRssiRowsV7
{
    struct
    {
        struct
        {
            int16_t rssiMain;
            int16_t rssiDiv;
        } row[kVondMaxRssiRows];
        uint8_t mainG;
        uint8_t divG;
        uint8_t maing;
        uint8_t divg;
        uint8_t reserved24[24];
    } single;
    struct
    {
        struct
        {
            int16_t path0Main;
            int16_t path0Div;
            int16_t path1Main;
            int16_t path1Div;
        } row[kVondMaxRssiRows];
        uint8_t mainG;
        uint8_t divG;
        uint8_t path0Maing;
        uint8_t path0Divg;
        uint8_t path1Maing;
        uint8_t path1Divg;
        uint8_t reserved46[2];
    } simultaneous;
};
VOND_SIZE(UMMRssiRowsV7, 48);

// Answer of VOND_MMRf_RssiV7_r.
struct SMMRssiCnfV7
{
    uint8_t reserved0[8];
    uint32_t dlFrequency[kVondMaxRssiRows];  // kHz, of each row
    UMMRssiRowsV7 rows;
};
VOND_SIZE(SMMRssiCnfV7, 76);
