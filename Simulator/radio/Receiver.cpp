#include "Simulator/radio/Receiver.h"

#include <algorithm>
#include <cmath>

#include "Simulator/radio/Limiter.h"
#include "Vond/VondGainRecords.h"

namespace {

constexpr double kNoiseDensity = -174.0;  // dBm/Hz, kT at 290 K
constexpr double kAdcNoise = -80.0;       // dBm at the ADC: 72 dB below its full scale
constexpr double kEdgeLoss = 1.5;         // dB, of the filter at its edges
constexpr double kBestRfGain = 45.0;      // dB; the gain's residual error grows away from it
constexpr double kGainError = 0.02;       // dB a dB
constexpr double kKnee = 3.0;  // sharpness of the limiter, straight to 5 dB below full scale

// Blocks at the rate of 5 %: the reference channel's -1 dB and 2.5 dB of implementation margin, as
// 3GPP TS 38.101-1 reckons reference sensitivity.
constexpr double kSensitivityRatio = 1.5;
constexpr double kHalfFall = 1.0;    // dB from 5 % to 50 %, and from there to 95 %
constexpr double kLogOdds5 = 2.944;  // ln(0.95 / 0.05)

double Milliwatt(double dBm)
{
    return std::pow(10.0, dBm / 10.0);
}

double DBm(double milliwatt)
{
    return 10.0 * std::log10(milliwatt);
}

// At the ADC, with its own noise.
double AtAdc(double power, double rfGain)
{
    return Limited(PowerSum(power + rfGain, kAdcNoise), kAdcFullScale, kKnee);
}

}  // namespace

double PowerSum(double one, double other)
{
    return DBm(Milliwatt(one) + Milliwatt(other));
}

double ThermalNoise(double bandwidthHz, double noiseFigure)
{
    return kNoiseDensity + 10.0 * std::log10(bandwidthHz) + noiseFigure;
}

double FilterLoss(uint32_t kHz, const SFreqLimits &range)
{
    const double half = (double(range.high) - range.low) / 2.0;
    if (half <= 0.0)
        return 0.0;
    const double off = (double(kHz) - range.low) / half - 1.0;
    return kEdgeLoss * off * off;
}

double RfGainOf(uint8_t elna, uint8_t mode, bool lowPower)
{
    return 60.0 - 8.0 * elna - 2.5 * mode - (lowPower ? kLowPowerLoss : 0.0);
}

SGainMode NearestMode(double rfGain, bool lowPower)
{
    SGainMode nearest;
    double distance = 1e9;
    for (uint8_t elna = 0; elna <= kVondHighestElnaMode; ++elna) {
        for (uint8_t mode = 0; mode <= kVondHighestGainMode; ++mode) {
            const double off = std::fabs(rfGain - RfGainOf(elna, mode, lowPower));
            if (off < distance) {
                distance = off;
                nearest = {elna, mode};
            }
        }
    }
    return nearest;
}

uint8_t GainIndex(uint8_t elna, uint8_t mode)
{
    return static_cast<uint8_t>(std::min<int>(3 * elna + mode, kVondHighestGainIdx));
}

double ReadingOf(double power, double rfGain, double digitalGain)
{
    const double word =
        Limited(AtAdc(power, rfGain) + digitalGain, kAdcFullScale + kDigitalLift, kKnee);
    return word - digitalGain - rfGain + kGainError * (rfGain - kBestRfGain);
}

double GainInForce(double input, bool lowPower)
{
    const double lowest = RfGainOf(kVondHighestElnaMode, kVondHighestGainMode, lowPower);
    return std::clamp(kAdcTarget - input, lowest, RfGainOf(0, 0, lowPower));
}

SReception Receive(double signal, double noise, bool lowPower)
{
    const double input = PowerSum(signal, noise);
    const double gain = GainInForce(input, lowPower);
    SReception reception;
    reception.total = Limited(input + gain, kAdcFullScale, kKnee) - gain;
    const double compression = input - reception.total;
    reception.signal = signal - compression;
    // What the limiter cuts off counts as distortion.
    const double lost = Milliwatt(input) - Milliwatt(reception.total);
    reception.ratio = reception.signal - DBm(Milliwatt(noise - compression) + std::max(lost, 0.0));
    return reception;
}

double BlockErrorRate(double ratio)
{
    const double middle = kSensitivityRatio - kHalfFall;
    return 1.0 / (1.0 + std::exp(kLogOdds5 / kHalfFall * (ratio - middle)));
}
