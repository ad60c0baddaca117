#include "tests/controller/PageDocuments.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <gtest/gtest.h>

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

}  // namespace

QJsonObject PackagedPage(const char *name)
{
    InitModelResources();
    QFile file(QStringLiteral(":/%1.json").arg(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    QJsonObject document = QJsonDocument::fromJson(file.readAll()).object();
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
    const std::string text = ModelToText({{"at", GetJsonValueConst(document, path)}});
    const std::string frame = R"({"at":)";
    EXPECT_EQ(text.compare(0, frame.size(), frame), 0) << "nothing at " << qPrintable(path);
    return text.size() > frame.size() ? text.substr(frame.size(), text.size() - frame.size() - 1)
                                      : std::string();
}
