#include "Simulator/radio/Measurements.h"

#include <algorithm>
#include <cmath>

#include "Simulator/radio/Checks.h"
#include "Simulator/radio/Receiver.h"

namespace {

constexpr int kBlocksAMeasurement = 20;
constexpr uint8_t kForcedLpm = 1;         // lpmHpmConf
constexpr double kSyncRatio = -10.0;      // dB; below it no SSB is detected
constexpr double kBroadcastRatio = -8.0;  // dB; below it the PBCH is not decoded
constexpr double kSssGain = 21.0;         // dB: 127 elements of the SSS add up coherently

int16_t Fixed(double value, int unitsADb)
{
    const double scaled = std::round(value * unitsADb);
    return static_cast<int16_t>(std::clamp(scaled, -32768.0, 32767.0));
}

// Power of the cell at an antenna connector of the route.
double CellPower(const SProfile &profile, const SCarrierPlace &place, uint16_t route, int antenna)
{
    return profile.radio.LevelOf(place.band) - profile.radio.LossOf(route) -
           FilterLoss(place.kHz, DownlinkLimits(profile, place)) - kDiversityLoss * antenna;
}

int16_t DigitalGain(double rfGain, double cellPower)
{
    const double gain = kAdcTarget + kDigitalLift - (cellPower + rfGain);
    return Fixed(std::clamp(gain, -42.0, 54.0), 32);
}

// One RSSI measurement: the places are the frequencies of one route.
class CRssiMeter
{
public:
    CRssiMeter(const SProfile &profile, const SMMRssiCmdV7 &command, ICalibration &calibration,
               CNoise &noise)
        : m_profile(profile), m_command(command), m_calibration(calibration), m_noise(noise)
    {
        SRxRouteChoice choice;
        ChooseRxRoute(profile, command.band, command.rxRoute, command.routeKind, choice);
        m_isType2 = choice.type2;
    }

    // Gains in 1/32 dB; antennas of path 0 are 0 and 1, of path 1 are 2 and 3. The other path's RF
    // gain is there while both run.
    int16_t Read(uint32_t kHz, int antenna, int16_t rfGain, int16_t digitalGain,
                 std::optional<int16_t> otherRfGain = std::nullopt)
    {
        const SProfileRadio &radio = m_profile.radio;
        const SCarrierPlace place = {m_command.band, kHz, true, m_command.rxRoute, false};
        const double cell = CellPower(m_profile, place, m_command.rxRoute, antenna) +
                            radio.fluctuationDb * m_noise.Bell();
        const double figure = radio.noiseFigureDb + (m_command.lowPower == 1 ? kLowPowerLoss : 0.0);
        const double input = PowerSum(cell, ThermalNoise(kRssiBandwidth, figure));
        SRxPlace calibrated = {.route = m_command.rxRoute,
                               .isType2 = m_isType2,
                               .kHz = kHz,
                               .antenna = antenna,
                               .mode = Mode(rfGain),
                               .isLowPower = m_command.lowPower == 1};
        if (otherRfGain)
            calibrated.otherMode = Mode(*otherRfGain).mode;
        return Fixed(ReadingOf(input, rfGain / 32.0, digitalGain / 32.0) +
                         m_calibration.RxError(calibrated),
                     32);
    }

    SGainMode Mode(int16_t rfGain) const
    {
        return NearestMode(rfGain / 32.0, m_command.lowPower == 1);
    }

private:
    const SProfile &m_profile;
    const SMMRssiCmdV7 &m_command;
    ICalibration &m_calibration;
    CNoise &m_noise;
    bool m_isType2 = false;
};

void MeasureOnePath(const SMMRssiCmdV7 &command, CRssiMeter &meter, SMMRssiCnfV7 &answer)
{
    const auto &gain = command.gain.single;
    auto &rows = answer.rows.single;
    const int first = command.path == 1 ? 2 : 0;
    for (int i = 0; i < command.numFreq; ++i) {
        const uint32_t kHz = command.dlFrequency[i];
        auto &row = rows.row[i];
        row.rssiMain = meter.Read(kHz, first, gain.mainRfGain, gain.mainDigitalGain);
        row.rssiDiv = meter.Read(kHz, first + 1, gain.divRfGain, gain.divDigitalGain);
    }
    const SGainMode main = meter.Mode(gain.mainRfGain);
    const SGainMode div = meter.Mode(gain.divRfGain);
    rows.mainG = main.elna;
    rows.divG = div.elna;
    rows.maing = main.mode;
    rows.divg = div.mode;
}

void MeasureBothPaths(const SMMRssiCmdV7 &command, CRssiMeter &meter, SMMRssiCnfV7 &answer)
{
    const auto &gain = command.gain.simultaneous;
    auto &rows = answer.rows.simultaneous;
    for (int i = 0; i < command.numFreq; ++i) {
        const uint32_t kHz = command.dlFrequency[i];
        auto &row = rows.row[i];
        row.path0Main = meter.Read(kHz, 0, gain.path0MainRfGain, gain.path0MainDigitalGain,
                                   gain.path1MainRfGain);
        row.path0Div =
            meter.Read(kHz, 1, gain.path0DivRfGain, gain.path0DivDigitalGain, gain.path1DivRfGain);
        row.path1Main = meter.Read(kHz, 2, gain.path1MainRfGain, gain.path1MainDigitalGain,
                                   gain.path0MainRfGain);
        row.path1Div =
            meter.Read(kHz, 3, gain.path1DivRfGain, gain.path1DivDigitalGain, gain.path0DivRfGain);
    }
    // The eLNA is in front of both paths.
    rows.mainG = meter.Mode(gain.path0MainRfGain).elna;
    rows.divG = meter.Mode(gain.path0DivRfGain).elna;
    rows.path0Maing = meter.Mode(gain.path0MainRfGain).mode;
    rows.path0Divg = meter.Mode(gain.path0DivRfGain).mode;
    rows.path1Maing = meter.Mode(gain.path1MainRfGain).mode;
    rows.path1Divg = meter.Mode(gain.path1DivRfGain).mode;
}

// The route that the DUT takes by itself: the first one that serves the band; none when none does.
SRxRouteChoice RouteOfBand(const SProfile &profile, uint16_t band)
{
    for (const auto *routes : {&profile.rxType1Routes, &profile.rxType2Routes}) {
        for (const SProfileRxRoute &row : *routes) {
            if (row.band == band)
                return {&row, routes == &profile.rxType2Routes};
        }
    }
    return {};
}

// The ratio of all antennas together: the sum of their ratios.
double CombinedRatio(const SRsrpRun &run, const SReception *receptions)
{
    double combined = receptions[0].ratio;
    for (int antenna = 1; antenna < run.antennas; ++antenna)
        combined = PowerSum(combined, receptions[antenna].ratio);
    return combined;
}

// What the antenna's readings say too much, at the gain that its signal asks for.
double RxErrorOf(const SRsrpRun &run, int antenna, ICalibration &calibration)
{
    const double signal = run.cellPower - kDiversityLoss * antenna;
    const double gain = GainInForce(PowerSum(signal, run.noise), run.lowPower);
    return calibration.RxError({.route = run.route,
                                .isType2 = run.isType2,
                                .kHz = run.kHz,
                                .antenna = antenna,
                                .mode = NearestMode(gain, run.lowPower),
                                .isLowPower = run.lowPower});
}

SReception ReceptionOf(const SRsrpRun &run, int antenna, double fluctuation)
{
    const double signal = run.cellPower - kDiversityLoss * antenna + fluctuation;
    return Receive(signal, run.noise, run.lowPower);
}

}  // namespace

int16_t MeasurePd(const SProfileRadio &radio, const STxOutput &output, CNoise &noise)
{
    return Fixed(radio.pdSlope * output.power + radio.pdOffsetDb + output.detectorError +
                     radio.fluctuationDb * noise.Bell(),
                 256);
}

SMMGainSearchCnfV7 SearchGain(const SMMGainSearchCmdV7 &command)
{
    SMMGainSearchCnfV7 answer = {};
    const bool lowPower = command.lowPower == 1;
    const uint8_t mainG = command.elnaModeMain;
    const uint8_t divG = command.elnaModeDiv;
    const uint8_t *search = command.search;
    const double path0Main = RfGainOf(mainG, search[0], lowPower);
    const double path0Div = RfGainOf(divG, search[1], lowPower);
    const double advised = kAdcTarget - path0Main;
    answer.adviseDlPower = Fixed(advised, 32);
    answer.simultaneous = command.simultaneous;
    if (command.simultaneous == 0) {
        auto &gain = answer.gain.single;
        gain.mainRfGain = Fixed(path0Main, 32);
        gain.divRfGain = Fixed(path0Div, 32);
        gain.mainDigitalGain = DigitalGain(path0Main, advised);
        gain.divDigitalGain = DigitalGain(path0Div, advised);
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
    gain.path0MainDigitalGain = DigitalGain(path0Main, advised);
    gain.path0DivDigitalGain = DigitalGain(path0Div, advised);
    gain.path1MainDigitalGain = DigitalGain(path1Main, advised);
    gain.path1DivDigitalGain = DigitalGain(path1Div, advised);
    return answer;
}

SMMRssiCnfV7 MeasureRssi(const SProfile &profile, const SMMRssiCmdV7 &command,
                         ICalibration &calibration, CNoise &noise)
{
    SMMRssiCnfV7 answer = {};
    std::copy_n(command.dlFrequency, command.numFreq, answer.dlFrequency);
    CRssiMeter meter(profile, command, calibration, noise);
    if (command.singlePath == 1)
        MeasureOnePath(command, meter, answer);
    else
        MeasureBothPaths(command, meter, answer);
    return answer;
}

SRsrpRun RsrpRun(const SProfile &profile, const SNrRsrpCmdV7 &command)
{
    const bool forced = command.forced == 1;
    const SNrRsrpForcedCcV7 &forcedCarrier = command.forcedMode.carrier;
    const SNrRsrpCcV7 &normalCarrier = command.normalMode.carrier[0];
    const SNrRsrpCommonV7 &carrier = forced ? forcedCarrier.common : normalCarrier.common;
    const SRxRouteChoice own = RouteOfBand(profile, carrier.band);
    const uint16_t ownRoute = own.row != nullptr ? own.row->route : uint16_t(0);
    const uint16_t route = forced ? forcedCarrier.rxRoute : ownRoute;
    const double elements = 12.0 * ResourceBlocks(carrier.rxScs, carrier.dlBandwidth);
    const double spacing = 15.0e3 * (1u << carrier.rxScs);  // Hz
    SRsrpRun run;
    run.measCnt = carrier.measCnt;
    run.antennas = !forced && normalCarrier.mimo4x4 == 1 ? 4 : 2;
    run.cellPower =
        CellPower(profile, {carrier.band, carrier.dlFrequency, forced, route, true}, route, 0);
    run.route = route;
    run.isType2 = !forced && own.type2;  // forced mode takes type 1 alone
    run.kHz = carrier.dlFrequency;
    run.lowPower = forced && forcedCarrier.lpmHpmConf == kForcedLpm;
    run.noise = ThermalNoise(elements * spacing,
                             profile.radio.noiseFigureDb + (run.lowPower ? kLowPowerLoss : 0.0));
    run.elements = 10.0 * std::log10(elements);
    run.fluctuation = profile.radio.fluctuationDb;
    return run;
}

EStatus CellStatus(const SRsrpRun &run)
{
    SReception receptions[4];
    for (int antenna = 0; antenna < run.antennas; ++antenna)
        receptions[antenna] = ReceptionOf(run, antenna, 0.0);
    const double ratio = CombinedRatio(run, receptions);
    if (ratio < kSyncRatio)
        return EStatus::CellNotExist;
    return ratio < kBroadcastRatio ? EStatus::MibDecodeError : EStatus::Success;
}

SMixRxReading MeasureMixRx(const SRsrpRun &run, ICalibration &calibration, CNoise &noise)
{
    SMixRxReading reading;
    NRfTestResult_GetMixRxReportV7 &report = reading.report;
    int16_t *const rssi[] = {report.RSSI0, report.RSSI1, report.RSSI2, report.RSSI3};
    int16_t *const rsrp[] = {report.RSRP0, report.RSRP1, report.RSRP2, report.RSRP3};
    report.reportCount = static_cast<uint8_t>(std::min<int>(run.measCnt, kVondMaxReports));
    double error[4] = {};
    for (int antenna = 0; antenna < run.antennas; ++antenna)
        error[antenna] = RxErrorOf(run, antenna, calibration);
    for (int i = 0; i < report.reportCount; ++i) {
        SReception receptions[4];
        for (int antenna = 0; antenna < run.antennas; ++antenna) {
            SReception &reception = receptions[antenna];
            reception = ReceptionOf(run, antenna, run.fluctuation * noise.Bell());
            rssi[antenna][i] = Fixed(reception.total + error[antenna], 128);
            // RSRP is the power of one resource element. Noise that the estimate lets through is
            // its floor.
            const double element =
                PowerSum(reception.signal, reception.signal - reception.ratio - kSssGain);
            rsrp[antenna][i] = Fixed(element - run.elements + error[antenna], 128);
        }
        const double errorRate = BlockErrorRate(CombinedRatio(run, receptions));
        for (int block = 0; block < kBlocksAMeasurement; ++block)
            ++(noise.Uniform() < errorRate ? reading.badBlocks : reading.goodBlocks);
    }
    return reading;
}
