// What the calibration data in the flash does to a reading, and to the power that is transmitted.
//
// The radio asks, the flash answers (flash/FlashCalibration.h). Losses, gains and errors are dB,
// powers dBm, frequencies and bandwidths kHz. No locks: the owner keeps calls apart.
#pragma once

#include <cstdint>
#include <optional>

#include "Simulator/radio/Receiver.h"

// One receive path with the gain that is in force.
struct SRxPlace
{
    uint16_t route = 0;
    bool isType2 = false;
    uint32_t kHz = 0;
    int antenna = 0;  // 0 and 1: main and diversity of path 0, 2 and 3: of path 1
    SGainMode mode = {};
    bool isLowPower = false;
    std::optional<uint8_t> otherMode = {};  // g of the other path while both run
};

// One transmitter; route 0 is one that nobody calibrates.
struct STxPlace
{
    uint16_t route = 0;
    uint16_t band = 0;
    uint32_t kHz = 0;
    uint32_t bandwidth = 0;
};

struct STxOutput
{
    double power = 0.0;          // at the connector
    double detectorError = 0.0;  // what the power detector says too much
};

class ICalibration
{
public:
    virtual ~ICalibration() = default;

    // What a reading says too much: the loss that the flash holds minus the true one, and what it
    // holds for the temperature.
    virtual double RxError(const SRxPlace &place) = 0;
    // What becomes of a power that is set.
    virtual STxOutput Output(const STxPlace &place, double power) = 0;
};
