#include "tests/controller/responses/RsrpReports.h"

#include <QJsonArray>

#include "Model/JsonPath.h"

const QStringList kEight = {"RSRP0",  "RSRP1",   "RSSI0",    "RSSI1",
                            "BadBLK", "GoodBLK", "TotalBLK", "BLER"};
const QStringList kTwelve = {"RSRP0", "RSRP1", "RSSI0",  "RSSI1",   "RSRP2",    "RSRP3",
                             "RSSI2", "RSSI3", "BadBLK", "GoodBLK", "TotalBLK", "BLER"};

Report Measured(int count)
{
    Report report = {};
    report.reportCount = static_cast<uint8_t>(count);
    for (int i = 0; i < kVondMaxReports; ++i) {
        const auto power = [i](int dbm) { return static_cast<int16_t>(dbm * 128 + i * 32); };
        report.RSRP0[i] = power(-80);
        report.RSRP1[i] = power(-81);
        report.RSRP2[i] = power(-82);
        report.RSRP3[i] = power(-83);
        report.RSSI0[i] = power(-50);
        report.RSSI1[i] = power(-51);
        report.RSSI2[i] = power(-52);
        report.RSSI3[i] = power(-53);
    }
    report.BadBLK = 1;
    report.GoodBLK = 3;
    return report;
}

QJsonObject NormalDocument(const char *mimoType)
{
    QJsonObject document = PackagedPage(kNormal);
    Put(document, "cmdIf.request.group1", {{"mimoType", mimoType}});
    return document;
}

void Fetch(QJsonObject &document, const Report &report, bool success)
{
    CNrDataModelResponseBuilder().UpdateMixRxResultV7(document, report, success);
}

void FetchNormal(QJsonObject &document, const Report &report, bool success)
{
    CNrDataModelResponseBuilder().UpdateMixRxNormalResultV7(document, report, success);
}

void Clean(QJsonObject &document)
{
    CNrDataModelResponseBuilder().CleanMixRxReportV7(document);
}

Lines Rows(const QJsonObject &document, const char *group, const QStringList &members)
{
    Lines lines;
    for (const QJsonValue &row :
         GetJsonValueConst(document, QString(group) + ".instanceList").toArray()) {
        QString line = row.toString() + ":";
        for (const QString &member : members)
            line +=
                ' ' + GetJsonValueConst(document, QString("%1.memberProperty.%2.%3.defaultValue")
                                                      .arg(group, member, row.toString()))
                          .toString("-");
        lines.push_back(line.toStdString());
    }
    return lines;
}

Lines Rows(const QJsonObject &document)
{
    return Rows(document, kGroup1, kEight);
}
