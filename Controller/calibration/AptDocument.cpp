#include "Controller/calibration/AptDocument.h"

#include "Controller/calibration/CalCmdBuilder.h"
#include "Controller/calibration/CalEdits.h"
#include "Controller/calibration/CalResponseBuilder.h"
#include "Controller/calibration/CalWalks.h"
#include "Controller/fields/CommandFields.h"
#include "Support/Log.h"

namespace {

// The record that a packaged page selects.
struct STxPlace
{
    uint16_t route;
    uint16_t bwIdx;  // bandwidth region
};

STxPlace TxPlaceOf(const QJsonObject &document)
{
    constexpr int kPrefixLength = 2;  // "BW"
    const CPackagedGroup config(document, "calDataIf.config.group1");
    return {.route = DecimalInt<uint16_t>(config.Text("txRoute")),
            .bwIdx = DecimalInt<uint16_t>(config.Text("aggBwRegion").mid(kPrefixLength))};
}

STxPlace ReadTxPlace(const QJsonObject &document, const char *logName)
{
    const STxPlace place = TxPlaceOf(document);
    qCDebug(lcCore) << logName << place.route << " bwIdx-" << place.bwIdx;
    return place;
}

}  // namespace

SCalName SelectedAptRecord(const QJsonObject &document)
{
    const STxPlace place = TxPlaceOf(document);
    return {.kind = ECalRoute::Tx, .route = place.route, .region = place.bwIdx};
}

std::optional<QJsonObject> ShowAptDocument(const CMultiRatAptProfileV7 &item,
                                           const QJsonObject &document, const SSupportedGains &)
{
    const STxPlace place = ReadTxPlace(document, "GetAptCalibrationData: route ");
    const SAptRouteBwRecord *record = item.GetAptCalibrationData(place.route, place.bwIdx);
    if (!record)
        return std::nullopt;
    return CCalResponseBuilder().ShowApt(document, *record);
}

void StoreAptDocument(CMultiRatAptProfileV7 &item, const QJsonObject &document)
{
    const STxPlace place = ReadTxPlace(document, "SetAptCalibrationData: route ");
    const SAptRouteBwRecord *own = item.GetAptCalibrationData(place.route, place.bwIdx);
    if (!own)
        return;
    SAptRouteBwRecord record = CCalCmdBuilder().GetAptCmdV7(document, *own);
    item.SetAptCalibrationData(place.route, place.bwIdx, record);
    if (HoldsEdits(document, [&](ICalMove &move) { MoveApt(move, record); }))
        item.NoteEdit(place.route, place.bwIdx);
}
