// The selection of a path loss page, and what a power mode stands for.
//
// Pure functions, any thread.
//
//   const SLossConfig config = ReadLossConfig(document);
//   ShownPowerMode(config.powerMode).half;   // &SMMLossPair::hpm for "HPM"
#pragma once

#include <array>
#include <optional>

#include <QJsonObject>
#include <QString>

#include "Operations/calibration/CalRecords.h"
#include "Vond/VondCapabilityRecords.h"

struct SLossConfig
{
    QString powerMode;  // "HPM" or "LPM"
    int path;           // SRX path
    int bigG;           // number of the gain mode "G0" to "G6"
    int freqIdx;        // subband
};

// The packaged selection; a text that is no number counts as 0.
SLossConfig ReadLossConfig(const QJsonObject &document);
void LogType2Config(const SLossConfig &config);

constexpr uint32_t kPowerModes = 2;
// The gains that the DUT supports.
struct SSupportedGains
{
    // By SPowerMode::gainMode; none where the read failed.
    std::array<std::optional<SMMRfRxGainInfoV7>, kPowerModes> byMode{};
};

struct SPowerMode
{
    uint32_t gainMode;  // of the supported gains
    int16_t SMMLossPair::*half;
    const char *noGains;  // message of a failed read of the supported gains
};
// The mode that a page's losses go to; any text without "LPM" means HPM.
const SPowerMode &StoredPowerMode(const QString &text);
// The mode that a page is shown; any text without an "H" means LPM.
const SPowerMode &ShownPowerMode(const QString &text);
