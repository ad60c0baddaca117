// Calibration records of the core as pages see them.
#include "Controller/CommandFields.h"
#include "Controller/NrCore.h"
#include "Model/ModelText.h"
#include "Support/Log.h"

namespace {

// The record that a packaged calibration page selects.
struct STxPlace
{
    uint16_t route;
    uint16_t bwIdx;  // bandwidth region
};

STxPlace ReadTxPlace(const QJsonObject &document, const char *logName)
{
    constexpr int kPrefixLength = 2;  // "BW"
    const CPackagedGroup config(document, "calDataIf.config.group1");
    const STxPlace place{DecimalInt<uint16_t>(config.Text("txRoute")),
                         DecimalInt<uint16_t>(config.Text("aggBwRegion").mid(kPrefixLength))};
    qCDebug(lcCore) << logName << place.route << " bwIdx-" << place.bwIdx;
    return place;
}

struct SRxPlace
{
    uint16_t route;
    bool isType2;
};

// Logged with the words of storing by both directions, as users' log filters know it.
SRxPlace ReadRxPlace(const QJsonObject &document)
{
    const CPackagedGroup config(document, "calDataIf.config.group1");
    const QString type = config.Text("routeType");
    const SRxPlace place{DecimalInt<uint16_t>(config.Text("route")),
                         type.contains(QLatin1Char('2'))};
    qCDebug(lcCore) << "SetPathLossCalibrationData: routeType " << type << " rxRoute-"
                    << place.route;
    return place;
}

}  // namespace

std::string CNrCore::GetAptCalibrationData(std::string document)
{
    const CLockSentry lock(m_targetLock);
    RenewCalItems();
    const QJsonObject object = ModelFromText(document);
    if (m_target.GetNrGeneration() != 1)
        return {};
    const STxPlace place = ReadTxPlace(object, "GetAptCalibrationData: route ");
    const SAptRouteBwRecord *record = m_aptProfile->GetAptCalibrationData(place.route, place.bwIdx);
    return record ? m_responseBuilder.GetAptDataModelV7(object, *record) : document;
}

void CNrCore::SetAptCalibrationData(const std::string &document)
{
    const CLockSentry lock(m_targetLock);
    RenewCalItems();
    const QJsonObject object = ModelFromText(document);
    if (m_target.GetNrGeneration() != 1)
        return;
    const STxPlace place = ReadTxPlace(object, "SetAptCalibrationData: route ");
    const SAptRouteBwRecord *record = m_aptProfile->GetAptCalibrationData(place.route, place.bwIdx);
    if (record)
        m_aptProfile->SetAptCalibrationData(place.route, place.bwIdx,
                                            m_cmdBuilder.GetAptCmdV7(object, *record));
}

std::string CNrCore::GetPathLossCalibrationData(std::string document)
{
    const CLockSentry lock(m_targetLock);
    RenewCalItems();
    const QJsonObject object = ModelFromText(document);
    if (m_target.GetNrGeneration() != 1)
        return {};
    const SRxPlace place = ReadRxPlace(object);
    if (place.isType2)
        return m_responseBuilder.GetType2PathLossDataModelV7(
            object,
            *m_pathLoss->GetPathLossCalibrationData<SMMType2PathlossByRouteV7>(place.route));
    return m_responseBuilder.GetType1PathLossDataModelV7(
        object, *m_pathLoss->GetPathLossCalibrationData<SMMType1PathlossByRouteV7>(place.route));
}

void CNrCore::SetPathLossCalibrationData(const std::string &document)
{
    const CLockSentry lock(m_targetLock);
    RenewCalItems();
    const QJsonObject object = ModelFromText(document);
    if (m_target.GetNrGeneration() != 1)
        return;
    const SRxPlace place = ReadRxPlace(object);
    const auto store = [&](auto build, const auto *record) {
        m_pathLoss->SetPathLossCalibrationData(place.route, (m_cmdBuilder.*build)(object, *record));
    };
    if (place.isType2)
        store(&CNrCoreCmdBuilder::GetType2PathLossCmdV7,
              m_pathLoss->GetPathLossCalibrationData<SMMType2PathlossByRouteV7>(place.route));
    else
        store(&CNrCoreCmdBuilder::GetType1PathLossCmdV7,
              m_pathLoss->GetPathLossCalibrationData<SMMType1PathlossByRouteV7>(place.route));
}
