// The drivers: which steps a page takes, in order. What each step writes where stands in
// CapUpdatePages.h.
#include "Controller/capability/CapUpdatePages.h"
#include "Controller/capability/DocumentWriter.h"
#include "Controller/capability/EntryTable.h"
#include "Controller/capability/NrDataModelCapUpdater.h"
#include "Model/JsonPath.h"

using namespace CapUpdatePages;

namespace {

constexpr char kNoBands[] = "Get band info failed";
constexpr SPath kRsrpBandChoices = ValuePairOf(kRequest1, "band");
constexpr SPath kRsrpBandDefault = DefaultOf(kRequest1, "band");
constexpr SPath kRsrpFrequency = ValuePairOf(kRequest1, "dlFrequency");

// A step's record: where it writes, for these bands.
template <typename Paths>
SPathsForBands<Paths> For(const Paths &paths, const QJsonArray &bands)
{
    return {paths, bands};
}

}  // namespace

bool CNrDataModelCapUpdater::UpdatePuschTxForceModeV7(QJsonObject &doc)
{
    QJsonArray bands;
    return UpdateBandAndFrequency(doc, kModulatedOrToneFreq, false) &&
           GetSupportedBandArray(bands, kTx) &&
           UpdateModulationTxCommonV7(doc, For(kPuschForced, bands), false) &&
           UpdateTxHwSettingByScsRBv7(doc, For(kTxHw, bands));
}

bool CNrDataModelCapUpdater::UpdatePuschTxNormalModeV7(QJsonObject &doc)
{
    QJsonArray bands;
    return UpdateBandAndFrequency(doc, kPuschNormalFreq, false) &&
           GetSupportedBandArray(bands, kTx) &&
           UpdateModulationTxCommonV7(doc, For(kPuschNormal, bands), true);
}

bool CNrDataModelCapUpdater::UpdateSingleToneTxV7(QJsonObject &doc)
{
    QJsonArray bands;
    return UpdateBandAndFrequency(doc, kModulatedOrToneFreq, false) &&
           GetSupportedBandArray(bands, kTx) && UpdateCwTxCommonV7(doc, For(kSingleTone, bands)) &&
           UpdateTxHwSettingByBwRegion(doc, For(kTxHw, bands));
}

bool CNrDataModelCapUpdater::UpdateAptProfileV7(QJsonObject &doc)
{
    QJsonArray bands;
    return UpdateBandAndFrequency(doc, kAptFreq, true) && GetSupportedBandArray(bands, kTx) &&
           UpdateCwTxCommonV7(doc, For(kAptProfile, bands)) &&
           UpdateTxHwSettingByBwRegion(doc, For(kAptHw, bands));
}

bool CNrDataModelCapUpdater::UpdateContRxV7(QJsonObject &doc)
{
    QJsonArray bands;
    return UpdateBandAndFrequency(doc, kContRxFreq, false) && GetSupportedBandArray(bands, kRx) &&
           UpdateRxCommonV7(doc, For(kContRx, bands));
}

bool CNrDataModelCapUpdater::UpdateRssiV7(QJsonObject &doc)
{
    QJsonArray bands;
    return UpdateBandAndFrequency(doc, kRssiFreq, false) && GetSupportedBandArray(bands, kRx) &&
           UpdateRxCommonV7(doc, For(kRssi, bands)) && UpdateRSSIGainInfoV7(doc, kRssiGain) &&
           UpdateRxHwSettingAndTxRouteV7(doc, For(kRssiHw, bands), {}, {});
}

bool CNrDataModelCapUpdater::UpdatePathLossV7(QJsonObject &doc)
{
    QJsonArray bands;
    return UpdateBandAndFrequency(doc, kPathLossFreq, true) && GetSupportedBandArray(bands, kRx) &&
           UpdateRxCommonV7(doc, For(kPathLoss, bands)) && UpdateLnaCaptionsV7(doc);
}

bool CNrDataModelCapUpdater::UpdateRsrpForceModeV7(QJsonObject &doc)
{
    CDocumentWriter writer(doc);
    QJsonArray bands;
    QJsonArray fddBands;
    if (!GetSupportedBandArray(bands, kRx) || !GetSupportedBandArray(fddBands, kRxFdd))
        return writer.Fail(kNoBands);
    const QJsonObject choices{{"DL RX", bands}, {"Pseudo TX/RX", fddBands}};
    return writer.Write(
               {{kRsrpBandChoices, choices, "Update band failed"},
                {kRsrpBandDefault, bands.at(0).toString(), "Update band default value failed"}}) &&
           UpdateRsrpFrequency(doc, bands, true) && UpdateRxCommonV7(doc, For(kRsrpForce, bands)) &&
           UpdateRxHwSettingAndTxRouteV7(doc, For(kRsrpForceHw, bands),
                                         ValuePairOf(kRequest3, "txRoute"),
                                         DefaultOf(kRequest3, "txRoute")) &&
           (fddBands.isEmpty() || (UpdateTxHwSettingByScsRBv7(doc, For(kPseudoTxHw, fddBands)) &&
                                   UpdatePseudoTx(doc, fddBands, kRequest3)));
}

bool CNrDataModelCapUpdater::UpdateRsrpNormalModeV7(QJsonObject &doc)
{
    CDocumentWriter writer(doc);
    QJsonArray bands;
    QJsonArray mimoBands;
    QJsonArray fddBands;
    QJsonArray fddMimoBands;
    if (!GetSupportedBandArray(bands, kRx) || !GetSupportedBandArray(mimoBands, kRxMimo) ||
        !GetSupportedBandArray(fddBands, kRxFdd) ||
        !GetSupportedBandArray(fddMimoBands, kRxFddMimo))
        return writer.Fail(kNoBands);
    const QJsonObject choices{{"DL RX,2x2", bands},
                              {"DL RX,4x4", mimoBands},
                              {"Pseudo TX/RX,2x2", fddBands},
                              {"Pseudo TX/RX,4x4", fddMimoBands}};
    return writer.Write(
               {{kRsrpBandChoices, choices, "Update band failed"},
                {kRsrpBandDefault, bands.at(0).toString(), "Update band default value failed"}}) &&
           UpdateRsrpFrequency(doc, bands, false) &&
           UpdateRxCommonV7(doc, For(kRsrpNormal, bands)) &&
           (fddBands.isEmpty() || UpdatePseudoTx(doc, fddBands, kRequest2));
}

bool CNrDataModelCapUpdater::UpdateRsrpFrequency(QJsonObject &doc, const QJsonArray &bands,
                                                 bool useRouteRange)
{
    CDocumentWriter writer(doc);
    const QJsonObject frequencies =
        GetFrequencyJsonObjectPair(EBandDirection::Rx, bands, useRouteRange, false);
    if (frequencies.isEmpty() && bands.isEmpty())
        return writer.Fail("Get frequency value relation failed");
    return writer.Write(kRsrpFrequency, frequencies, "Update frequency value failed");
}

bool CNrDataModelCapUpdater::UpdatePseudoTx(QJsonObject &doc, const QJsonArray &bands,
                                            const char *group)
{
    const QJsonObject operatingBand = Table3gpp("operatingBand");
    CEntryTable<2> byBand;  // the band's name, the distance from its DL to its UL frequency
    for (const QJsonValue &element : bands) {
        const QString name = element.toString();
        byBand.Put(name, {name, GetJsonValueConst(operatingBand,
                                                  name + QLatin1String(".diffFreqInTxRx"))});
    }
    // The defaults are fixed and do not follow the DUT: the page computes both from the carrier
    // that is chosen.
    return CDocumentWriter(doc).Write({
        {ValuePairOf(group, "band"), byBand.ToObject(0), "Update tx band value failed"},
        {DefaultOf(group, "band"), "n1", "Update tx band value failed"},
        {ValuePairOf(group, "ulFrequency"), byBand.ToObject(1), "Update ulFrequency value failed"},
        {DefaultOf(group, "ulFrequency"), "1920000", "Update ulFrequency value failed"},
    });
}
