#include "Simulator/Measurements.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace {

constexpr double CELL_POWER = -60.0;    // dBm, at every antenna
constexpr double DIVERSITY_LOSS = 0.8;  // dB, of each further antenna
constexpr double BEST_RF_GAIN = 45.0;   // dB; reading errors grow away from it
constexpr double GAIN_ERROR = 0.02;     // dB a dB
constexpr double TOTAL_GAIN = 62.0;     // dB, that a gain search aims for
constexpr int BLOCKS_A_MEASUREMENT = 20;

// A fixed sequence of numbers from a seed (splitmix64).
class CRipple
{
public:
    explicit CRipple(uint64_t seed) : m_state(seed) {}

    uint64_t Next()
    {
        m_state += 0x9e3779b97f4a7c15u;
        uint64_t mixed = m_state;
        mixed = (mixed ^ (mixed >> 30)) * 0xbf58476d1ce4e5b9u;
        mixed = (mixed ^ (mixed >> 27)) * 0x94d049bb133111ebu;
        return mixed ^ (mixed >> 31);
    }

    // Within plus or minus width.
    double Next(double width)
    {
        return (static_cast<double>(Next() >> 11) / 4503599627370496.0 - 1.0) * width;
    }

private:
    uint64_t m_state;
};

// FNV-1a over the bytes of a record.
template <class Record>
uint64_t SeedOf(const Record &record)
{
    unsigned char bytes[sizeof(Record)];
    std::memcpy(bytes, &record, sizeof(Record));
    uint64_t hash = 0xcbf29ce484222325u;
    for (const unsigned char byte : bytes)
        hash = (hash ^ byte) * 0x100000001b3u;
    return hash;
}

int16_t Fixed(double value, int unitsADb)
{
    const double scaled = std::round(value * unitsADb);
    return static_cast<int16_t>(std::clamp(scaled, -32768.0, 32767.0));
}

// Slow swing of cables and filters over frequency.
double SwingOf(uint32_t kHz)
{
    return 1.5 * std::cos(kHz / 7000.0);
}

double RfGainOf(uint8_t elna, uint8_t mode, bool lowPower)
{
    return 60.0 - 8.0 * elna - 2.5 * mode - (lowPower ? 1.5 : 0.0);
}

struct SGainMode
{
    uint8_t elna = 0;  // G
    uint8_t mode = 0;  // g
};

// The gain mode whose RF gain is nearest to the one that is set.
SGainMode NearestMode(int16_t rfGain, bool lowPower)
{
    SGainMode nearest;
    double distance = 1e9;
    for (uint8_t elna = 0; elna < 7; ++elna) {
        for (uint8_t mode = 0; mode < 3; ++mode) {
            const double off = std::fabs(rfGain / 32.0 - RfGainOf(elna, mode, lowPower));
            if (off < distance) {
                distance = off;
                nearest = {elna, mode};
            }
        }
    }
    return nearest;
}

double RssiOf(uint32_t kHz, int antenna, int16_t rfGain, CRipple &ripple)
{
    return CELL_POWER + SwingOf(kHz) - DIVERSITY_LOSS * antenna +
           GAIN_ERROR * (rfGain / 32.0 - BEST_RF_GAIN) + ripple.Next(0.1);
}

int16_t DigitalGain(double rfGain, CRipple &ripple)
{
    return Fixed(std::clamp(TOTAL_GAIN - rfGain + ripple.Next(0.25), -42.0, 54.0), 32);
}

uint8_t GainIndex(uint8_t elna, uint8_t mode)
{
    return static_cast<uint8_t>(std::min(3 * elna + mode, 17));
}

}  // namespace

int16_t MeasurePd(int16_t txPower, uint32_t ulFrequencyKhz)
{
    CRipple ripple(ulFrequencyKhz * 65536ull + static_cast<uint16_t>(txPower));
    return static_cast<int16_t>(txPower + static_cast<int>(std::lround(ripple.Next(64.0))));
}

SMMGainSearchCnfV7 SearchGain(const SMMGainSearchCmdV7 &command)
{
    SMMGainSearchCnfV7 answer = {};
    CRipple ripple(SeedOf(command));
    const bool lowPower = command.lowPower == 1;
    const uint8_t mainG = command.elnaModeMain;
    const uint8_t divG = command.elnaModeDiv;
    const uint8_t *search = command.search;
    const double path0Main = RfGainOf(mainG, search[0], lowPower);
    const double path0Div = RfGainOf(divG, search[1], lowPower);
    answer.adviseDlPower = Fixed(-20.0 - path0Main, 32);
    answer.simultaneous = command.simultaneous;
    if (command.simultaneous == 0) {
        auto &gain = answer.gain.single;
        gain.mainRfGain = Fixed(path0Main, 32);
        gain.divRfGain = Fixed(path0Div, 32);
        gain.mainDigitalGain = DigitalGain(path0Main, ripple);
        gain.divDigitalGain = DigitalGain(path0Div, ripple);
        return answer;
    }
    const double path1Main = RfGainOf(mainG, search[2], lowPower);
    const double path1Div = RfGainOf(divG, search[3], lowPower);
    auto &gain = answer.gain.simultaneous;
    gain.path0MainGainIdx = GainIndex(mainG, search[0]);
    gain.path0DivGainIdx = GainIndex(divG, search[1]);
    gain.path1MainGainIdx = GainIndex(mainG, search[2]);
    gain.path1DivGainIdx = GainIndex(divG, search[3]);
    gain.path0MainRfGain = Fixed(path0Main, 32);
    gain.path0DivRfGain = Fixed(path0Div, 32);
    gain.path1MainRfGain = Fixed(path1Main, 32);
    gain.path1DivRfGain = Fixed(path1Div, 32);
    gain.path0MainDigitalGain = DigitalGain(path0Main, ripple);
    gain.path0DivDigitalGain = DigitalGain(path0Div, ripple);
    gain.path1MainDigitalGain = DigitalGain(path1Main, ripple);
    gain.path1DivDigitalGain = DigitalGain(path1Div, ripple);
    return answer;
}

SMMRssiCnfV7 MeasureRssi(const SMMRssiCmdV7 &command)
{
    SMMRssiCnfV7 answer = {};
    CRipple ripple(SeedOf(command));
    const bool lowPower = command.lowPower == 1;
    const auto &one = command.gain.single;
    const auto &both = command.gain.simultaneous;
    for (int i = 0; i < command.numFreq; ++i) {
        const uint32_t kHz = command.dlFrequency[i];
        answer.dlFrequency[i] = kHz;
        if (command.singlePath == 1) {
            auto &row = answer.rows.single.row[i];
            row.rssiMain = Fixed(RssiOf(kHz, 0, one.mainRfGain, ripple), 32);
            row.rssiDiv = Fixed(RssiOf(kHz, 1, one.divRfGain, ripple), 32);
        } else {
            auto &row = answer.rows.simultaneous.row[i];
            row.path0Main = Fixed(RssiOf(kHz, 0, both.path0MainRfGain, ripple), 32);
            row.path0Div = Fixed(RssiOf(kHz, 1, both.path0DivRfGain, ripple), 32);
            row.path1Main = Fixed(RssiOf(kHz, 2, both.path1MainRfGain, ripple), 32);
            row.path1Div = Fixed(RssiOf(kHz, 3, both.path1DivRfGain, ripple), 32);
        }
    }
    if (command.singlePath == 1) {
        const SGainMode main = NearestMode(one.mainRfGain, lowPower);
        const SGainMode div = NearestMode(one.divRfGain, lowPower);
        auto &rows = answer.rows.single;
        rows.mainG = main.elna;
        rows.divG = div.elna;
        rows.maing = main.mode;
        rows.divg = div.mode;
    } else {
        const SGainMode main = NearestMode(both.path0MainRfGain, lowPower);
        const SGainMode div = NearestMode(both.path0DivRfGain, lowPower);
        auto &rows = answer.rows.simultaneous;
        rows.mainG = main.elna;
        rows.divG = div.elna;
        rows.path0Maing = main.mode;
        rows.path0Divg = div.mode;
        rows.path1Maing = NearestMode(both.path1MainRfGain, lowPower).mode;
        rows.path1Divg = NearestMode(both.path1DivRfGain, lowPower).mode;
    }
    return answer;
}

SRsrpRun RsrpRun(const SNrRsrpCmdV7 &command)
{
    const bool forced = command.forced == 1;
    const SNrRsrpCommonV7 &carrier =
        forced ? command.forcedMode.carrier.common : command.normalMode.carrier[0].common;
    SRsrpRun run;
    run.measCnt = carrier.measCnt;
    run.dlFrequency = carrier.dlFrequency;
    run.resourceBlocks = ResourceBlocks(carrier.rxScs, carrier.dlBandwidth);
    run.antennas = !forced && command.normalMode.carrier[0].mimo4x4 == 1 ? 4 : 2;
    return run;
}

SMixRxReading MeasureMixRx(const SRsrpRun &run, uint32_t sequence)
{
    SMixRxReading reading;
    NRfTestResult_GetMixRxReportV7 &report = reading.report;
    CRipple ripple((uint64_t(run.dlFrequency) << 32) ^ sequence);
    int16_t *const rssi[] = {report.RSSI0, report.RSSI1, report.RSSI2, report.RSSI3};
    int16_t *const rsrp[] = {report.RSRP0, report.RSRP1, report.RSRP2, report.RSRP3};
    // RSRP is the power of one resource element of twelve a block.
    const double share = 10.0 * std::log10(12.0 * std::max<uint32_t>(run.resourceBlocks, 1));
    report.reportCount = static_cast<uint8_t>(std::min<int>(run.measCnt, VOND_MAX_REPORTS));
    for (int i = 0; i < report.reportCount; ++i) {
        for (int antenna = 0; antenna < run.antennas; ++antenna) {
            const double power =
                CELL_POWER + SwingOf(run.dlFrequency) - DIVERSITY_LOSS * antenna + ripple.Next(0.5);
            rssi[antenna][i] = Fixed(power, 128);
            rsrp[antenna][i] = Fixed(power - share, 128);
        }
        const uint32_t bad = static_cast<uint32_t>(ripple.Next() % 3);
        reading.badBlocks += bad;
        reading.goodBlocks += BLOCKS_A_MEASUREMENT - bad;
    }
    return reading;
}
