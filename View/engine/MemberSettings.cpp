#include "View/engine/MemberSettings.h"

#include "Model/JsonPath.h"
#include "Model/MemberPath.h"

QJsonObject PackagedValues(const QJsonObject &document, const QString &section)
{
    QJsonObject values;
    const QJsonObject groups = GetJsonValueConst(document, section).toObject();
    for (const QString &group : groups.keys()) {
        const QJsonObject held = groups.value(group).toObject().value(kMemberValue).toObject();
        if (!held.isEmpty())
            values.insert(group, held);
    }
    return values;
}
