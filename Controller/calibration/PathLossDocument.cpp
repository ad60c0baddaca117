#include "Controller/calibration/PathLossDocument.h"

#include <memory>

#include "Controller/calibration/CalCmdBuilder.h"
#include "Controller/calibration/CalEdits.h"
#include "Controller/calibration/CalResponseBuilder.h"
#include "Controller/calibration/CalWalks.h"
#include "Controller/fields/CommandFields.h"
#include "Support/Log.h"

namespace {

// The record that a packaged page selects.
struct SRxPlace
{
    uint16_t route;
    bool isType2;
};

// Both directions log the line of storing: users' log filters know it so.
SRxPlace ReadRxPlace(const QJsonObject &document)
{
    const SCalName name = SelectedPathLossRecord(document);
    const CPackagedGroup config(document, "calDataIf.config.group1");
    qCDebug(lcCore) << "SetPathLossCalibrationData: routeType " << config.Text("routeType")
                    << " rxRoute-" << name.route;
    return {.route = name.route, .isType2 = name.kind == ECalRoute::Type2};
}

template <typename Record, typename Build, typename Walk>
void Store(CMultiRatPathLossV7 &item, uint16_t route, const QJsonObject &document, Build build,
           Walk walk)
{
    const Record &own = *item.GetPathLossCalibrationData<Record>(route);
    const auto record = std::make_unique<Record>((CCalCmdBuilder().*build)(document, own));
    item.SetPathLossCalibrationData(route, *record);
    const SLossConfig config = ReadLossConfig(document);
    const SLossView view{.half = StoredPowerMode(config.powerMode).half,
                         .freqIdx = config.freqIdx,
                         .path = config.path,
                         .bigG = config.bigG};
    if (HoldsEdits(document, [&](ICalMove &move) { walk(move, *record, view); }))
        item.NoteEdit<Record>(route);
}

}  // namespace

SCalName SelectedPathLossRecord(const QJsonObject &document)
{
    const CPackagedGroup config(document, "calDataIf.config.group1");
    const bool isType2 = config.Text("routeType").contains(QLatin1Char('2'));
    return {.kind = isType2 ? ECalRoute::Type2 : ECalRoute::Type1,
            .route = DecimalInt<uint16_t>(config.Text("route"))};
}

std::optional<QJsonObject> ShowPathLossDocument(const CMultiRatPathLossV7 &item,
                                                const QJsonObject &document,
                                                const SSupportedGains &gains)
{
    const SRxPlace place = ReadRxPlace(document);
    const auto &known =
        gains.byMode.at(ShownPowerMode(ReadLossConfig(document).powerMode).gainMode);
    const SMMRfRxGainInfoV7 *const shown = known ? &*known : nullptr;
    const CCalResponseBuilder builder;
    if (place.isType2)
        return builder.ShowType2PathLoss(
            document, *item.GetPathLossCalibrationData<SMMType2PathlossByRouteV7>(place.route),
            shown);
    return builder.ShowType1PathLoss(
        document, *item.GetPathLossCalibrationData<SMMType1PathlossByRouteV7>(place.route), shown);
}

void StorePathLossDocument(CMultiRatPathLossV7 &item, const QJsonObject &document)
{
    const SRxPlace place = ReadRxPlace(document);
    if (place.isType2)
        Store<SMMType2PathlossByRouteV7>(item, place.route, document,
                                         &CCalCmdBuilder::GetType2PathLossCmdV7, MoveType2);
    else
        Store<SMMType1PathlossByRouteV7>(item, place.route, document,
                                         &CCalCmdBuilder::GetType1PathLossCmdV7, MoveType1);
}
