// Reports of the RSRP pages.
#include "Controller/responses/NrDataModelResponseBuilder.h"

#include "Controller/responses/RowTable.h"
#include "Model/JsonPath.h"
#include "Model/ModelQuery.h"
#include "Support/Log.h"

namespace {

using Report = NRfTestResult_GetMixRxReportV7;
using Powers = int16_t[kVondMaxReports];

constexpr double kPowerUnit = 0.0078125;  // 1/128 dB

QString BadBlocks(const Report &report)
{
    return QString::number(report.BadBLK);
}

QString GoodBlocks(const Report &report)
{
    return QString::number(report.GoodBLK);
}

uint32_t Total(const Report &report)
{
    return report.BadBLK + report.GoodBLK;
}

QString TotalBlocks(const Report &report)
{
    return QString::number(Total(report));
}

QString BlockErrorPercent(const Report &report)
{
    const uint32_t total = Total(report);
    if (total == 0)
        return QStringLiteral("NAN");
    return QString::number(static_cast<double>(report.BadBLK) / total * 100, 'f', 2);
}

// A column shows a power of each measurement, or a total that all rows of a report share.
struct SReportColumn
{
    const char *member;
    Powers Report::*powers;
    QString (*total)(const Report &report);
    bool fourAntennas;  // only in the table of four antennas
};

constexpr SReportColumn kColumns[] = {
    {"RSRP0", &Report::RSRP0, nullptr, false},  {"RSRP1", &Report::RSRP1, nullptr, false},
    {"RSSI0", &Report::RSSI0, nullptr, false},  {"RSSI1", &Report::RSSI1, nullptr, false},
    {"RSRP2", &Report::RSRP2, nullptr, true},   {"RSRP3", &Report::RSRP3, nullptr, true},
    {"RSSI2", &Report::RSSI2, nullptr, true},   {"RSSI3", &Report::RSSI3, nullptr, true},
    {"BadBLK", nullptr, &BadBlocks, false},     {"GoodBLK", nullptr, &GoodBlocks, false},
    {"TotalBLK", nullptr, &TotalBlocks, false}, {"BLER", nullptr, &BlockErrorPercent, false},
};

// The tables of the RSRP pages; the forced page has the first alone.
struct SReportTable
{
    const char *group;
    bool fourAntennas;
};

constexpr SReportTable kTwoAntennas{"cmdIf.response.group1", false};
constexpr SReportTable kFourAntennas{"cmdIf.response.group2", true};

template <typename Visit>
void ForEachColumn(const SReportTable &table, const Visit &visit)
{
    for (const SReportColumn &column : kColumns) {
        if (table.fourAntennas || !column.fourAntennas)
            visit(column);
    }
}

QStringList Members(const SReportTable &table)
{
    QStringList members;
    ForEachColumn(table, [&](const SReportColumn &c) { members.append(QLatin1String(c.member)); });
    return members;
}

void AppendReport(QJsonObject &document, const SReportTable &shown, const Report &report,
                  bool success)
{
    const QStringList members = Members(shown);
    CRowTable table(document, QLatin1String(shown.group), members);

    QStringList totals;
    ForEachColumn(shown, [&](const SReportColumn &column) {
        totals.append(column.total ? column.total(report) : QString());
    });
    const int count = qMin<int>(report.reportCount, kVondMaxReports);
    for (int i = 0; i < count; ++i) {
        QStringList texts = totals;
        int place = 0;
        ForEachColumn(shown, [&](const SReportColumn &column) {
            if (column.powers)
                texts[place] = QString::number((report.*column.powers)[i] * kPowerUnit, 'f', 2);
            ++place;
        });
        table.AddRow(texts);
    }
    if (count > 0 && success)
        return;
    const QString marker = success ? QStringLiteral("NO DATA") : QStringLiteral("FAIL");
    QStringList texts;
    for (int i = 0; i < members.size(); ++i)
        texts.append(marker);
    table.AddRow(texts);
}

}  // namespace

void CNrDataModelResponseBuilder::UpdateMixRxResultV7(QJsonObject &document, const Report &report,
                                                      bool success) const
{
    qCDebug(lcCommand) << "CLteDataModelResponseBuilder::UpdateMixRxResultV7 report num ="
                       << report.reportCount;
    AppendReport(document, kTwoAntennas, report, success);
}

void CNrDataModelResponseBuilder::UpdateMixRxNormalResultV7(QJsonObject &document,
                                                            const Report &report,
                                                            bool success) const
{
    qCDebug(lcCommand) << "CNrDataModelResponseBuilder::UpdateMixRxNormalResultV7 report num ="
                       << report.reportCount;
    const int mimoType = GetUiIndexByMemberValue(
        document, QStringLiteral("cmdIf.request.group1.memberValue.mimoType"));
    AppendReport(document, mimoType == 1 ? kFourAntennas : kTwoAntennas, report, success);
}

void CNrDataModelResponseBuilder::CleanMixRxReportV7(QJsonObject &document) const
{
    const QString name = GetJsonValueConst(document, QStringLiteral("modelName")).toString();
    const bool normal = name.contains(QLatin1String("Normal"));
    qCDebug(lcCommand) << "CleanMixRxReportV7: " << name << " maxGroup:" << (normal ? 2 : 1);
    for (const SReportTable &table : {kTwoAntennas, kFourAntennas}) {
        if (normal || !table.fourAntennas)
            CRowTable(document, QLatin1String(table.group), Members(table)).Clear();
    }
}
