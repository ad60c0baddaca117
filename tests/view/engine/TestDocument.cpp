#include "tests/view/engine/TestDocument.h"

#include <QJsonDocument>

#include "Model/ModelText.h"

namespace {

QJsonDocument Parse(QString text)
{
    QJsonParseError error;
    const QJsonDocument document =
        QJsonDocument::fromJson(text.replace('\'', '"').toUtf8(), &error);
    if (document.isNull())
        qFatal("%s in %s", qPrintable(error.errorString()), qPrintable(text));
    return document;
}

QString Section(const QString &path)
{
    return path.section('.', 0, 0);
}

QString GroupKey(const QString &path)
{
    return path.section('.', 1, 1);
}

QString MemberName(const QString &path)
{
    return path.section('.', 2);
}

}  // namespace

QJsonObject JsonObject(const QString &text)
{
    return Parse(text).object();
}

QJsonArray JsonArray(const QString &text)
{
    return Parse(text).array();
}

CTestDocument::CTestDocument(int modelInterface) : m_modelInterface(modelInterface)
{
    m_root = {{"modelName", "Test"}, {"modelVersion", 1}};
}

QString CTestDocument::Word() const
{
    return m_modelInterface == eInterfaceCmdIf ? "cmdIf" : "calDataIf";
}

QString CTestDocument::ObjectName(const QString &member) const
{
    return Word() + '_' + Section(member) + '_' + GroupKey(member) + "_memberProperty_" +
           MemberName(member);
}

QJsonObject CTestDocument::GroupObject(const QString &group) const
{
    return m_sections[Section(group)].toObject()[GroupKey(group)].toObject();
}

void CTestDocument::SetGroupObject(const QString &group, const QJsonObject &object)
{
    QJsonObject section = m_sections[Section(group)].toObject();
    section[GroupKey(group)] = object;
    m_sections[Section(group)] = section;
}

CTestDocument &CTestDocument::Group(const QString &group, int groupType, const QString &keys)
{
    QJsonObject object = JsonObject(keys);
    object["groupType"] = groupType;
    object["memberList"] = QJsonArray();
    object["memberProperty"] = QJsonObject();
    SetGroupObject(group, object);
    return *this;
}

CTestDocument &CTestDocument::ColumnTable(const QString &group, int columns, const QString &keys)
{
    Group(group, 3);
    QJsonObject object = GroupObject(group);
    QJsonObject properties = JsonObject(keys);
    properties["dimentionCount"] = columns;
    if (!properties.contains("colFieldCaptionList") && !properties.contains("startIndex")) {
        properties["startIndex"] = 0;
        properties["indexStep"] = 1;
    }
    object["memberProperty"] = properties;
    SetGroupObject(group, object);
    return *this;
}

CTestDocument &CTestDocument::Member(const QString &member, const QString &json)
{
    return Member(member, JsonObject(json));
}

CTestDocument &CTestDocument::Member(const QString &member, const QJsonObject &json)
{
    const QString group = member.section('.', 0, 1);
    if (GroupObject(group).isEmpty())
        Group(group, 1);
    QJsonObject object = GroupObject(group);
    QJsonObject memberObject = json;
    if (object["groupType"].toInt() != 2) {
        for (const char *key : {"defaultSupport", "defaultEnableStatus"}) {
            if (!memberObject.contains(key))
                memberObject[key] = 1;
        }
    }
    QJsonObject properties = object["memberProperty"].toObject();
    QJsonArray list = object["memberList"].toArray();
    if (!list.contains(MemberName(member)))
        list.append(MemberName(member));
    properties[MemberName(member)] = memberObject;
    object["memberProperty"] = properties;
    object["memberList"] = list;
    SetGroupObject(group, object);
    return *this;
}

CTestDocument &CTestDocument::Root(const QString &key, const QJsonValue &value)
{
    m_root[key] = value;
    return *this;
}

QJsonObject CTestDocument::Json() const
{
    QJsonObject document = m_root;
    document[Word()] = m_sections;
    return document;
}

std::string CTestDocument::Text() const
{
    return ModelToText(Json());
}
