#include "Controller/responses/RowTable.h"

#include <QSet>

#include "Model/JsonPath.h"

namespace {

// Moves the object under a key out of its parent, so that the two do not share it.
QJsonObject TakeObject(QJsonObject &parent, const QString &key)
{
    const auto place = parent.find(key);
    QJsonObject child = QJsonValue(*place).toObject();
    *place = QJsonObject();
    return child;
}

}  // namespace

CRowTable::CRowTable(QJsonObject &document, const QString &group, const QStringList &members)
    : m_document(document), m_memberPath(group + QLatin1String(".memberProperty")),
      m_rowPath(group + QLatin1String(".instanceList"))
{
    m_rows = GetJsonValueConst(document, m_rowPath).toArray();
    if (HasJsonValue(document, m_rowPath))
        ModifyJsonValue(document, m_rowPath, QJsonArray(), 0);

    m_hasMembers = GetJsonValueConst(document, m_memberPath).isObject();
    if (m_hasMembers) {
        m_members = GetJsonValueConst(document, m_memberPath).toObject();
        ModifyJsonValue(document, m_memberPath, QJsonObject(), 0);
    }
    m_columns.reserve(static_cast<std::size_t>(members.size()));
    for (const QString &member : members) {
        const bool exists = m_members.value(member).isObject();
        m_columns.push_back(
            {member, exists, exists ? TakeObject(m_members, member) : QJsonObject()});
    }
}

CRowTable::~CRowTable()
{
    for (SColumn &column : m_columns) {
        if (column.exists)
            m_members.insert(column.member, column.content);
    }
    if (m_hasMembers)
        ModifyJsonValue(m_document, m_memberPath, m_members, 0);
    ModifyJsonValue(m_document, m_rowPath, m_rows, 0);
}

void CRowTable::AddRow(const QStringList &texts)
{
    const QString row = QString::number(m_rows.size() + 1);
    m_rows.append(row);
    for (std::size_t i = 0; i < m_columns.size(); ++i) {
        if (m_columns[i].exists)
            m_columns[i].content.insert(row, QJsonObject{{QStringLiteral("defaultValue"),
                                                          texts.value(static_cast<int>(i))}});
    }
}

// Builds the objects anew from what stays, in the order of the keys. Removing row by row would move
// all entries behind each row.
void CRowTable::Clear()
{
    QSet<QString> listed;
    for (const QJsonValue &row : qAsConst(m_rows))
        listed.insert(row.toString());
    m_rows = QJsonArray();
    for (SColumn &column : m_columns) {
        QJsonObject kept;
        const QJsonObject &content = column.content;
        for (auto entry = content.begin(); entry != content.end(); ++entry) {
            if (!listed.contains(entry.key()))
                kept.insert(entry.key(), entry.value());
        }
        column.content = kept;
    }
}
