#include "View/engine/TableGroup.h"

#include "Model/JsonPath.h"
#include "Model/MemberPath.h"
#include "Support/Log.h"
#include "View/engine/WidgetIndex.h"

namespace {

constexpr int kMaxColumns = 1024;  // the widest table of the pages has 64

int ReadColumns(const QJsonObject &properties)
{
    const int columns = properties.value(QLatin1String("dimentionCount")).toInt();
    if (columns > kMaxColumns)
        qCCritical(lcEngine) << "dimentionCount is cut to" << kMaxColumns << "from" << columns;
    return qBound(0, columns, kMaxColumns);
}

// A row's name is its number, from 1 on, and tells its place in the list.
bool IsRow(const QJsonArray &instances, const QString &key)
{
    const int number = key.toInt();
    return number >= 1 && number <= instances.size() && instances.at(number - 1).toString() == key;
}

// Built anew, in the order of its keys: to remove cell by cell would move all that lies behind
// each.
QJsonObject WithoutRows(const QJsonObject &member, const QJsonArray &instances)
{
    QJsonObject kept;
    for (auto entry = member.begin(); entry != member.end(); ++entry) {
        if (!IsRow(instances, entry.key()))
            kept.insert(entry.key(), entry.value());
    }
    return kept;
}

}  // namespace

STableGroup::STableGroup(const QJsonObject &document, const QString &memberPath)
    : group(GetJsonValueConst(document, GroupPath(memberPath)).toObject())
{
    properties = group.value(QLatin1String("memberProperty")).toObject();
    members = ToStringList(group.value(QLatin1String("memberList")).toArray());
    instances = group.value(QLatin1String("instanceList")).toArray();
    columns = ReadColumns(properties);
    for (const QString &member : qAsConst(members)) {
        // A key that stands twice in the list is still one row.
        if (Member(member, "defaultSupport").toDouble() == 1 && !rows.contains(member))
            rows.append(member);
    }
}

QJsonValue STableGroup::Member(const QString &member, const char *subPath) const
{
    return GetJsonValueConst(properties, member + QLatin1Char('.') + QLatin1String(subPath));
}

QStringList STableGroup::Captions(const QStringList &of) const
{
    QStringList captions;
    for (const QString &member : of)
        captions.append(Member(member, "caption").toString());
    return captions;
}

QJsonValue ColumnElement(const QJsonArray &array, int column)
{
    return array.isEmpty() ? QJsonValue(QJsonValue::Undefined)
                           : array.at(qMin(column, array.size() - 1));
}

QStringList ToStringList(const QJsonArray &array)
{
    QStringList texts;
    texts.reserve(array.size());
    for (const QJsonValue &element : array)
        texts.append(element.toString());
    return texts;
}

void DropRowCells(QJsonObject &document, const QString &memberPath)
{
    const STableGroup table(document, memberPath);
    QJsonObject properties = table.properties;
    for (const QString &member : table.members) {
        const QJsonValue content = table.properties.value(member);
        if (content.isObject())
            properties.insert(member, WithoutRows(content.toObject(), table.instances));
    }
    if (!table.instances.isEmpty() && !properties.isEmpty())
        ModifyJsonValue(document, GroupPropertyPath(memberPath), properties, 0);
}

QTableWidget *AsTable(QWidget *widget, const char *failure)
{
    auto *table = ExactCast<QTableWidget>(widget);
    if (!table)
        qCCritical(lcEngine) << failure;
    return table;
}
