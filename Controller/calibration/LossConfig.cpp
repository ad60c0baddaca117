#include "Controller/calibration/LossConfig.h"

#include "Controller/fields/CommandFields.h"
#include "Support/Log.h"

namespace {

constexpr SPowerMode kHpm{0, &SMMLossPair::hpm, "Get gain hpm info failed"};
constexpr SPowerMode kLpm{1, &SMMLossPair::lpm, "Get gain lpm info failed"};

}  // namespace

SLossConfig ReadLossConfig(const QJsonObject &document)
{
    const CPackagedGroup config(document, "calDataIf.config.group1");
    return {config.Text("powerMode"), DecimalInt<int>(config.Text("path")),
            GainModeNumber(config.Text("type2GainModeIdx")),
            DecimalInt<int>(config.Text("freqIdx"))};
}

void LogType2Config(const SLossConfig &config)
{
    qCDebug(lcCommand) << "GetType2PathLossDataModelV7: powerMode:" << config.powerMode
                       << " path:" << config.path << " freqIdx:" << config.freqIdx
                       << " type2GainModeIdx: " << config.bigG;
}

const SPowerMode &StoredPowerMode(const QString &text)
{
    return text.contains(QLatin1String("LPM")) ? kLpm : kHpm;
}

const SPowerMode &ShownPowerMode(const QString &text)
{
    return text.contains(QLatin1Char('H')) ? kHpm : kLpm;
}
