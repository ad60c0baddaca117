#include "View/results/ResultSettings.h"

#include <QJsonArray>

#include "Model/JsonPath.h"
#include "View/results/ResultHeader.h"

namespace {

QJsonObject RequestOf(const QJsonObject &document)
{
    return GetJsonValueConst(document, QStringLiteral("cmdIf.request")).toObject();
}

QJsonValue ValueOf(const QJsonObject &settings, const SSettingMember &member)
{
    return settings.value(member.group).toObject().value(member.member);
}

bool IsColumn(const QVector<QJsonObject> &settings, const QStringList &always,
              const SSettingMember &member)
{
    if (settings.isEmpty() || !ValueOf(settings.first(), member).isString())
        return false;
    if (always.contains(member.group + QLatin1Char('.') + member.member))
        return true;
    for (const QJsonObject &other : settings) {
        if (ValueOf(other, member) != ValueOf(settings.first(), member))
            return true;
    }
    return false;
}

}  // namespace

QJsonObject SettingsObject(const SResultOrigin &origin, const QJsonObject &request)
{
    return {
        {QStringLiteral("version"), origin.version}, {QStringLiteral("page"), origin.page},
        {QStringLiteral("tool"), origin.tool},       {QStringLiteral("chip"), origin.chip},
        {QStringLiteral("request"), request},
    };
}

QVector<SSettingMember> SettingMembers(const QJsonObject &document)
{
    QVector<SSettingMember> members;
    const QJsonObject request = RequestOf(document);
    for (const QString &group : request.keys()) {
        const QJsonObject record = request.value(group).toObject();
        const QJsonObject properties = record.value(QLatin1String("memberProperty")).toObject();
        for (const QJsonValue &name : record.value(QLatin1String("memberList")).toArray()) {
            const QJsonObject member = properties.value(name.toString()).toObject();
            const QString caption = member.value(QLatin1String("caption")).toString();
            members.append({group, name.toString(), ResultHeader(name.toString(), caption)});
        }
    }
    return members;
}

SSettingColumns SettingColumns(const QVector<QJsonObject> &settings, const QStringList &always,
                               const QVector<SSettingMember> &members)
{
    SSettingColumns columns;
    columns.values.resize(settings.size());
    for (const SSettingMember &member : members) {
        if (!IsColumn(settings, always, member))
            continue;
        columns.headers.append(member.header);
        for (int i = 0; i < settings.size(); ++i)
            columns.values[i].append(ValueOf(settings.at(i), member).toString());
    }
    return columns;
}
