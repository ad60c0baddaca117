#include "tests/fuzz/wire/CalDocumentRules.h"

#include <memory>

#include "Controller/calibration/CalCmdBuilder.h"
#include "Controller/calibration/CalResponseBuilder.h"
#include "Controller/calibration/LossConfig.h"
#include "Model/ModelText.h"
#include "tests/controller/calibration/CalPages.h"
#include "tests/fuzz/common/FuzzTarget.h"
#include "tests/fuzz/wire/OutsideRule.h"

namespace {

// Fills a record twice, and gives the outcome to keeps with what it was before.
template <typename Record, typename Fill, typename Keeps>
void CheckFill(const CCommandInput &input, const Fill &fill, const Keeps &keeps)
{
    const auto before = std::make_unique<Record>();
    input.Fill(*before);
    before->blockCount %= kVondCalMaxBlocks + 1;
    const auto after = std::make_unique<Record>(fill(*before));
    Require(after->band == before->band && after->route == before->route,
            "a page changes no band and no route");
    Require(after->blockCount <= kVondCalMaxBlocks, "a record has at most 4 blocks");
    keeps(*before, *after);
    Require(SameBytes(*after, Record(fill(*after))), "a document's second time changes nothing");
}

void KeepsApt(const SAptRouteBwRecord &before, const SAptRouteBwRecord &after)
{
    Require(after.paModeCount == before.paModeCount && after.reserved7 == before.reserved7 &&
                after.reserved187 == before.reserved187 &&
                SameBytes(after.reserved194, before.reserved194) &&
                SameBytes(after.prfIndex, before.prfIndex),
            "what the APT page does not show stays");
}

// isShown: subbands that the page may change.
template <typename Record, typename IsShown>
void KeepsLoss(const Record &before, const Record &after, int16_t SMMLossPair::*other,
               const IsShown &isShown)
{
    for (int subband = 0; subband < kVondCalMaxSubbands; ++subband) {
        Require(isShown(subband) || SameBytes(before.loss[subband], after.loss[subband]),
                "the losses of other subbands stay");
        for (std::size_t pair = 0; pair < std::size(before.loss[subband]); ++pair)
            Require(before.loss[subband][pair].*other == after.loss[subband][pair].*other,
                    "the losses of the other power mode stay");
    }
}

// The packaged power mode is one that both directions understand alike.
bool IsPowerModeClear(const QJsonObject &document)
{
    const QString mode =
        document["calDataIf"]["config"]["group1"]["memberValue"]["powerMode"].toString();
    return mode == QLatin1String("HPM") || mode == QLatin1String("LPM");
}

// Does the page show the record with its own limits and options?
bool IsDataOfBase(const CCommandInput &input, EPageId page)
{
    return input.Page() == page &&
           input.Document()["calDataIf"]["data"] == input.Base()["calDataIf"]["data"] &&
           (page == EPageId::AptProfile || IsPowerModeClear(input.Document()));
}

template <typename Record, typename Show, typename Fill>
void CheckShow(const CCommandInput &input, EPageId page, const Show &show, const Fill &fill)
{
    const auto record = std::make_unique<Record>();
    input.Fill(*record);
    const QJsonObject document = ModelFromText(show(input.Document(), *record));
    CheckOutside(input.Document(), document, "calDataIf", "data");
    // What could not be shown is not given back either.
    if (document.contains("modelIntegrity"))
        return;
    Require(ModelFromText(show(document, *record)) == document,
            "a record shown again changes nothing");
    if (!IsDataOfBase(input, page))
        return;
    for (EEditors editors : {EEditors::None, EEditors::OfThePage}) {
        const auto back = std::make_unique<Record>(fill(Packaged(document, editors), *record));
        back->blockCount = record->blockCount;  // a page counts them anew
        Require(std::memcmp(back.get(), record.get(), sizeof(Record)) == 0,
                "what a page shows and gives back stays as it was");
    }
}

}  // namespace

void CheckCalCommands(const CCommandInput &input)
{
    const CCalCmdBuilder builder;
    const QJsonObject &document = input.Document();
    if (input.IsFor({EPageId::AptProfile}))
        CheckFill<SAptRouteBwRecord>(
            input, [&](const auto &record) { return builder.GetAptCmdV7(document, record); },
            KeepsApt);
    if (!input.IsFor({EPageId::RxPathLoss}))
        return;
    const SLossConfig config = ReadLossConfig(document);
    const bool isLow = config.powerMode.contains(QLatin1String("LPM"));
    const auto other = isLow ? &SMMLossPair::hpm : &SMMLossPair::lpm;
    CheckFill<SMMType1PathlossByRouteV7>(
        input, [&](const auto &record) { return builder.GetType1PathLossCmdV7(document, record); },
        [&](const auto &before, const auto &after) {
            KeepsLoss(before, after, other, [](int) { return true; });
        });
    CheckFill<SMMType2PathlossByRouteV7>(
        input, [&](const auto &record) { return builder.GetType2PathLossCmdV7(document, record); },
        [&](const auto &before, const auto &after) {
            KeepsLoss(before, after, other, [&](int i) { return i == config.freqIdx; });
        });
}

void CheckCalResponses(const CCommandInput &input)
{
    const CCalResponseBuilder show;
    const CCalCmdBuilder fill;
    if (input.IsFor({EPageId::AptProfile}))
        CheckShow<SAptRouteBwRecord>(
            input, EPageId::AptProfile,
            [&](const QJsonObject &d, const auto &r) { return show.GetAptDataModelV7(d, r); },
            [&](const QJsonObject &d, const auto &r) { return fill.GetAptCmdV7(d, r); });
    if (!input.IsFor({EPageId::RxPathLoss}))
        return;
    CheckShow<SMMType1PathlossByRouteV7>(
        input, EPageId::RxPathLoss,
        [&](const QJsonObject &d, const auto &r) { return show.GetType1PathLossDataModelV7(d, r); },
        [&](const QJsonObject &d, const auto &r) { return fill.GetType1PathLossCmdV7(d, r); });
    CheckShow<SMMType2PathlossByRouteV7>(
        input, EPageId::RxPathLoss,
        [&](const QJsonObject &d, const auto &r) { return show.GetType2PathLossDataModelV7(d, r); },
        [&](const QJsonObject &d, const auto &r) { return fill.GetType2PathLossCmdV7(d, r); });
}
