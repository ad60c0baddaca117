#include "Controller/calibration/CalCmdBuilder.h"

#include "Controller/calibration/CalWalks.h"
#include "Controller/calibration/LossConfig.h"
#include "Support/Log.h"

SAptRouteBwRecord CCalCmdBuilder::GetAptCmdV7(QJsonObject document, SAptRouteBwRecord record) const
{
    CCalFill fill(document);
    MoveApt(fill, record);
    return record;
}

SMMType1PathlossByRouteV7
CCalCmdBuilder::GetType1PathLossCmdV7(const QJsonObject &document,
                                      SMMType1PathlossByRouteV7 record) const
{
    const SLossConfig config = ReadLossConfig(document);
    qCDebug(lcCommand) << "GetType1PathLossCmdV7: powerMode:" << config.powerMode;
    CCalFill fill(document);
    MoveType1(fill, record, {StoredPowerMode(config.powerMode).half});
    return record;
}

SMMType2PathlossByRouteV7
CCalCmdBuilder::GetType2PathLossCmdV7(const QJsonObject &document,
                                      SMMType2PathlossByRouteV7 record) const
{
    const SLossConfig config = ReadLossConfig(document);
    // The log line of the response: users' log filters know it for both directions.
    LogType2Config(config);
    CCalFill fill(document);
    MoveType2(fill, record,
              {StoredPowerMode(config.powerMode).half, config.freqIdx, config.path, config.bigG});
    return record;
}
