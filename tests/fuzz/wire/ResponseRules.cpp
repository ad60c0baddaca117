#include "tests/fuzz/wire/ResponseRules.h"

#include <QJsonArray>

#include "Controller/responses/NrDataModelResponseBuilder.h"
#include "tests/fuzz/common/FuzzTarget.h"
#include "tests/fuzz/wire/OutsideRule.h"

namespace {

using Builder = CNrDataModelResponseBuilder;

constexpr int kMaxNewRows = kVondMaxReports + 1;  // of a fetch: the measurements and a marker

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
    struct SShow
    {
        EPageId page;
        void (Builder::*update)(QJsonObject &, const NRfTestResult_GetMixRxReportV7 &, bool) const;
    };
    static constexpr SShow kShows[] = {
        {EPageId::RsrpForce, &Builder::UpdateMixRxResultV7},
        {EPageId::RsrpNormal, &Builder::UpdateMixRxNormalResultV7},
    };
    for (const SShow &show : kShows) {
        if (!input.IsFor({show.page}))
            continue;
        const QJsonObject shown = CheckWrite(input.Document(), [&](QJsonObject &document) {
            (builder.*show.update)(document, report, input.IsGood());
        });
        for (const char *group : {"group1", "group2"})
            Require(Rows(shown, group) <= Rows(input.Document(), group) + kMaxNewRows,
                    "a fetch adds at most 11 rows");
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

}  // namespace

void CheckResponses(const CCommandInput &input)
{
    const Builder builder;
    if (input.IsFor({EPageId::RsrpForce, EPageId::RsrpNormal}))
        CheckReports(input, builder);
    if (input.IsFor({EPageId::Rssi}))
        CheckRssi(input, builder);
}
