#include "tests/controller/commands/PageDocuments.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include "Model/JsonPath.h"
#include "Model/ModelResources.h"
#include "Model/ModelText.h"

namespace {

constexpr int kScalars = 1;
constexpr int kColumnTable = 3;

QJsonObject PackagedGroup(const QJsonObject &group)
{
    const QJsonObject members = group["memberProperty"].toObject();
    const bool table = group["groupType"].toInt() == kColumnTable;
    QJsonObject values;
    for (const QJsonValue &name : group["memberList"].toArray()) {
        const QJsonValue text = GetJsonValueConst(members, name.toString() + ".trait.defaultValue");
        QJsonArray row;
        for (int i = 0; table && i < members["dimentionCount"].toInt(); ++i)
            row.append(text);
        values.insert(name.toString(), table ? QJsonValue(row) : text);
    }
    QJsonObject packaged = group;
    packaged.insert("memberValue", values);
    return packaged;
}

std::string TextOf(const QJsonValue &value)
{
    if (value.isUndefined())
        return {};
    const std::string text = ModelToText({{"v", value}});
    return text.substr(5, text.size() - 6);  // {"v":...}
}

void AddChanges(const std::string &path, const QJsonValue &before, const QJsonValue &after,
                Changes &changes)
{
    if (before == after)
        return;
    // Key by key: an object that was there, or a new one with something in it.
    const bool isTree = after.isObject() && (before.isObject() || before.isUndefined()) &&
                        !(before.isUndefined() && after.toObject().isEmpty());
    if (!isTree) {
        changes[path] = TextOf(after);
        return;
    }
    const QJsonObject was = before.toObject();
    const QJsonObject is = after.toObject();
    for (const QString &key : was.keys() + is.keys())
        AddChanges(path + (path.empty() ? "" : ".") + key.toStdString(), was.value(key),
                   is.value(key), changes);
}

}  // namespace

QJsonObject PackagedDocument(QJsonObject document)
{
    QJsonObject sections = document["cmdIf"].toObject();
    for (const QString &section : sections.keys()) {
        QJsonObject groups = sections[section].toObject();
        for (const QString &key : groups.keys()) {
            const QJsonObject group = groups[key].toObject();
            const int type = group["groupType"].toInt();
            if (type == kScalars || type == kColumnTable)
                groups[key] = PackagedGroup(group);
        }
        sections[section] = groups;
    }
    document["cmdIf"] = sections;
    return document;
}

QJsonObject PackagedPage(const char *name)
{
    InitModelResources();
    QFile file(QStringLiteral(":/%1.json").arg(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return PackagedDocument(QJsonDocument::fromJson(file.readAll()).object());
}

void Put(QJsonObject &document, const QString &group, const TextMap &values)
{
    for (auto value = values.begin(); value != values.end(); ++value)
        EXPECT_TRUE(
            ModifyJsonValue(document, group + ".memberValue." + value.key(), value.value(), 0));
}

void PutRow(QJsonObject &document, const QString &group, const QString &member,
            const QStringList &texts)
{
    EXPECT_TRUE(ModifyJsonValue(document, group + ".memberValue." + member,
                                QJsonArray::fromStringList(texts), 0));
}

std::string TextAt(const QJsonObject &document, const QString &path)
{
    const QJsonValue value = GetJsonValueConst(document, path);
    EXPECT_FALSE(value.isUndefined()) << "nothing at " << qPrintable(path);
    return TextOf(value);
}

Changes ChangesBetween(const QJsonObject &before, const QJsonObject &after)
{
    Changes changes;
    AddChanges({}, before, after, changes);
    return changes;
}

Changes ReportsOf(const QStringList &messages)
{
    return {{"modelIntegrity.integrity", "false"},
            {"modelIntegrity.messageList", TextOf(QJsonArray::fromStringList(messages))}};
}
