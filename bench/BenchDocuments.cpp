#include "bench/BenchDocuments.h"

#include <QJsonArray>
#include <QString>

QJsonObject ColumnDocument(int first)
{
    QJsonArray members;
    QJsonArray values;
    for (int c = 0; c < kBenchColumns; ++c)
        values.append(QString::number((first + c) % 70));
    QJsonObject properties{{"dimentionCount", kBenchColumns}, {"startIndex", 0}, {"indexStep", 1}};
    for (int r = 0; r < kBenchRows; ++r) {
        const QString key = QString("row%1").arg(r);
        members.append(key);
        properties[key] =
            QJsonObject{{"caption", key},
                        {"defaultSupport", 1},
                        {"defaultEnableStatus", 1},
                        {"trait", QJsonObject{{"dataType", "pointRange"},
                                              {"defaultValue", values},
                                              {"value", QJsonObject{{"min", 0}, {"max", 70}}}}}};
    }
    const QJsonObject group{
        {"groupType", 3}, {"memberList", members}, {"memberProperty", properties}};
    return {{"cmdIf", QJsonObject{{"response", QJsonObject{{"group1", group}}}}}};
}

QJsonObject PackagedContRx()
{
    QJsonObject values{
        {"band", "n1"},       {"rxRoute", "1"},
        {"dlBw", "5M"},       {"dlFrequency", "1950000"},
        {"powerMode", "HPM"}, {"calType", "Simultaneously"},
    };
    for (const char *path : {"path0", "path1"}) {
        for (const char *antenna : {"Main", "Div"}) {
            values[QString(path) + antenna + "RfGain"] = "60.10";
            values[QString(path) + antenna + "GainIdx"] = "16";
        }
    }
    const QJsonObject group{{"memberValue", values}};
    return {{"cmdIf", QJsonObject{{"request", QJsonObject{{"group1", group}}}}}};
}
