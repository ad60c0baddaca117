#include "View/results/ResultSource.h"

#include <QJsonArray>

#include "Model/JsonPath.h"
#include "View/results/ResultHeader.h"

namespace {

const QLatin1String kDefaultValue("defaultValue");

QJsonObject ResultGroup(const QJsonObject &document, const QString &group)
{
    return GetJsonValueConst(document, QStringLiteral("cmdIf.response.") + group).toObject();
}

QJsonObject Properties(const QJsonObject &group)
{
    return group.value(QLatin1String("memberProperty")).toObject();
}

QStringList Members(const QJsonObject &group)
{
    QStringList members;
    for (const QJsonValue &member : group.value(QLatin1String("memberList")).toArray())
        members.append(member.toString());
    return members;
}

QStringList HeadersOf(const QJsonObject &group, const QStringList &members)
{
    const QJsonObject properties = Properties(group);
    QStringList headers;
    for (const QString &member : members)
        headers.append(ResultHeader(
            member,
            properties.value(member).toObject().value(QLatin1String("caption")).toString()));
    return headers;
}

// What an answer has written for a member: a text, or an array of a column table's texts.
QJsonValue Answered(const QJsonObject &group, const QString &member)
{
    const QJsonObject property = Properties(group).value(member).toObject();
    return property.value(QLatin1String("trait")).toObject().value(kDefaultValue);
}

QStringList AnsweredTexts(const QJsonObject &group, const QStringList &members)
{
    QStringList texts;
    for (const QString &member : members)
        texts.append(Answered(group, member).toString());
    return texts;
}

}  // namespace

QStringList RowTableHeaders(const QJsonObject &document, const QString &group)
{
    const QJsonObject table = ResultGroup(document, group);
    return HeadersOf(table, Members(table));
}

QVector<QStringList> RowTableRows(const QJsonObject &document, const QString &group, int known)
{
    const QJsonObject table = ResultGroup(document, group);
    const QJsonArray listed = table.value(QLatin1String("instanceList")).toArray();
    QVector<QStringList> rows(qMax(0, listed.size() - known));
    const QJsonObject properties = Properties(table);
    for (const QString &member : Members(table)) {
        const QJsonObject column = properties.value(member).toObject();
        for (int i = 0; i < rows.size(); ++i)
            rows[i].append(column.value(listed.at(known + i).toString())
                               .toObject()
                               .value(kDefaultValue)
                               .toString());
    }
    return rows;
}

QStringList ScalarHeaders(const QJsonObject &document, const QString &group)
{
    return RowTableHeaders(document, group);
}

QVector<QStringList> ScalarRows(const QJsonObject &document, const QString &group, int)
{
    const QJsonObject record = ResultGroup(document, group);
    return {AnsweredTexts(record, Members(record))};
}
