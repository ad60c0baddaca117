#include "tests/fuzz/wire/ResponseRules.h"

#include <memory>
#include <string>

#include <QJsonArray>

#include "Controller/calibration/CalCmdBuilder.h"
#include "Controller/calibration/CalResponseBuilder.h"
#include "Controller/responses/NrDataModelResponseBuilder.h"
#include "Model/ModelText.h"
#include "tests/controller/calibration/CalPages.h"
#include "tests/fuzz/common/FuzzTarget.h"

namespace {

using Builder = CNrDataModelResponseBuilder;

constexpr int kMaxNewRows = kVondMaxReports + 1;  // of a fetch: the measurements and a marker

QJsonObject Without(QJsonObject document, const char *root, const char *section)
{
    QJsonObject sections = document[root].toObject();
    sections.remove(section);
    document[root] = sections;
    document.remove("modelIntegrity");
    return document;
}

void CheckOutside(const QJsonObject &before, const QJsonObject &after, const char *root,
                  const char *section)
{
    // A root that is no object has no sections, and stays as it is.
    if (!before[root].isObject()) {
        Require(before[root] == after[root], "a document without sections gets none");
        return;
    }
    Require(Without(before, root, section) == Without(after, root, section),
            "a response is written to its section alone");
}

int Rows(const QJsonObject &document, const char *group)
{
    return document["cmdIf"]["response"][group]["instanceList"].toArray().size();
}

template <typename Write>
QJsonObject CheckWrite(const QJsonObject &before, const Write &write)
{
    QJsonObject document = before;
    write(document);
    CheckOutside(before, document, "cmdIf", "response");
    return document;
}

void CheckReports(const CCommandInput &input, const Builder &builder)
{
    NRfTestResult_GetMixRxReportV7 report;
    input.Fill(report);
    for (auto update : {&Builder::UpdateMixRxResultV7, &Builder::UpdateMixRxNormalResultV7}) {
        const QJsonObject shown = CheckWrite(input.Document(), [&](QJsonObject &document) {
            (builder.*update)(document, report, input.IsGood());
        });
        for (const char *group : {"group1", "group2"})
            Require(Rows(shown, group) <= Rows(input.Document(), group) + kMaxNewRows,
                    "a fetch adds at most 11 rows");
        Require(ModelFromText(ModelToText(shown)) == shown, "a document travels as text");
        const QJsonObject clean =
            CheckWrite(shown, [&](QJsonObject &document) { builder.CleanMixRxReportV7(document); });
        Require(Rows(clean, "group1") == 0, "a cleaned table has no rows");
    }
}

void CheckRssi(const CCommandInput &input, const Builder &builder)
{
    CheckWrite(input.Document(), [&](QJsonObject &document) {
        SMMGainSearchCnfV7 gains;
        input.Fill(gains);
        builder.UpdateRssiGainResultV7(document, gains, input.IsGood());
    });
    CheckWrite(input.Document(), [&](QJsonObject &document) {
        SMMRssiCnfV7 result;
        input.Fill(result);
        builder.UpdateRssiResultV7(document, result, input.IsGood());
    });
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

void CheckResponses(const CCommandInput &input)
{
    const Builder builder;
    if (input.IsFor({EPageId::RsrpForce, EPageId::RsrpNormal}))
        CheckReports(input, builder);
    if (input.IsFor({EPageId::Rssi}))
        CheckRssi(input, builder);
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
