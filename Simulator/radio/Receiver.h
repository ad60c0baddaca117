// The physics of the simulated receiver: noise, gain steps, saturation, block error rate.
//
// Powers are dBm, gains, losses and ratios dB. The chain is: antenna connector, front end (filter,
// eLNA and mixer with the RF gain), ADC, digital gain. Powers are referred to the antenna connector
// unless told otherwise. Formulas and numbers are explained in docs/simulated-dut.md. No state, no
// locks.
//
//   const double noise = ThermalNoise(9.36e6, 6.0);        // -98.3 dBm in 52 resource blocks
//   const double rate = BlockErrorRate(-99.4 + 2.6 - noise);   // 5 %: the sensitivity
#pragma once

#include <cstdint>

#include "Simulator/basis/Bands.h"

constexpr double kAdcTarget = -20.0;      // dBm at the ADC: where its range is best used
constexpr double kAdcFullScale = -8.0;    // dBm at the ADC; 12 dB of crest factor above the target
constexpr double kDigitalLift = 12.0;     // dB from the ADC's target to the nominal sample word
constexpr double kLowPowerLoss = 1.5;     // dB of gain and of noise figure in low power mode
constexpr double kDiversityLoss = 0.8;    // dB, of each further antenna
constexpr double kRssiBandwidth = 5.0e6;  // Hz, measuring filter of the RSSI test

// Sum of two uncorrelated powers.
double PowerSum(double one, double other);
// Noise of the receiver in a bandwidth.
double ThermalNoise(double bandwidthHz, double noiseFigure);
// Loss of the front end filter: none in the middle of its range, 1.5 dB at the edges.
double FilterLoss(uint32_t kHz, const SFreqLimits &range);

// RF gain of a gain mode: G0 with g0 gives 60 dB; each step of G takes 8 dB, each step of g 2.5 dB,
// low power mode another 1.5 dB.
double RfGainOf(uint8_t elna, uint8_t mode, bool lowPower);

struct SGainMode
{
    uint8_t elna = 0;  // G, 0 to 6
    uint8_t mode = 0;  // g, 0 to 2
};

// The gain mode whose RF gain is nearest to the one that is set.
SGainMode NearestMode(double rfGain, bool lowPower);
// Type 2 gain index of a gain mode: 3 * G + g, at most 17.
uint8_t GainIndex(uint8_t elna, uint8_t mode);

// What the receiver reads of a power at its antenna connector with the gains that are forced.
double ReadingOf(double power, double rfGain, double digitalGain);

// A signal and the noise beside it, behind the receiver's own gain control.
struct SReception
{
    double signal = 0.0;
    double total = 0.0;  // signal and noise
    double ratio = 0.0;  // signal to noise and distortion
};

// The RF gain that the gain control sets for a power at the connector.
double GainInForce(double input, bool lowPower);
SReception Receive(double signal, double noise, bool lowPower);
// Share of the transport blocks that are lost, 0 to 1, at the ratio of all antennas together.
double BlockErrorRate(double ratio);
