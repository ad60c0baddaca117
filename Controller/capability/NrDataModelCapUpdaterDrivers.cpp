// The drivers. What the update of a page is made of stands in CapUpdatePages.h; the RSRP pages go
// their own way here.
#include "Controller/capability/NrDataModelCapUpdater.h"

#include <algorithm>

#include "Controller/capability/CapUpdatePages.h"
#include "Controller/capability/DocumentWriter.h"
#include "Controller/capability/EntryTable.h"
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

bool CNrDataModelCapUpdater::Update(QJsonObject &doc, const SPageUpdate &page)
{
    QJsonArray bands;
    return UpdateBandAndFrequency(doc, page.freq, page.withRangeCheck) &&
           GetSupportedBandArray(bands, page.freq.bandFilter) &&
           std::all_of(std::begin(page.steps), std::end(page.steps),
                       [&](CapUpdateStep step) { return !step || step(*this, doc, bands); });
}

bool CNrDataModelCapUpdater::UpdatePuschTxForceModeV7(QJsonObject &doc)
{
    return Update(doc, kPuschForcedUpdate);
}

bool CNrDataModelCapUpdater::UpdatePuschTxNormalModeV7(QJsonObject &doc)
{
    return Update(doc, kPuschNormalUpdate);
}

bool CNrDataModelCapUpdater::UpdateSingleToneTxV7(QJsonObject &doc)
{
    return Update(doc, kSingleToneUpdate);
}

bool CNrDataModelCapUpdater::UpdateAptProfileV7(QJsonObject &doc)
{
    return Update(doc, kAptProfileUpdate);
}

bool CNrDataModelCapUpdater::UpdateContRxV7(QJsonObject &doc)
{
    return Update(doc, kContRxUpdate);
}

bool CNrDataModelCapUpdater::UpdateRssiV7(QJsonObject &doc)
{
    return Update(doc, kRssiUpdate);
}

bool CNrDataModelCapUpdater::UpdatePathLossV7(QJsonObject &doc)
{
    return Update(doc, kPathLossUpdate);
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
