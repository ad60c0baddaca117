#include "tools/modelcheck/Page.h"

#include <QJsonArray>

#include "Model/JsonPath.h"
#include "tools/modelcheck/FormatKeys.h"

namespace {

void AddMember(SPage &page, const SPageGroup &group, const QString &key, bool isCmdIf)
{
    SPageMember member;
    member.path = Below(Below(group.path, "memberProperty"), key);
    member.key = key;
    member.isCmdIf = isCmdIf;
    member.groupType = group.type;
    member.object = group.properties.value(key).toObject();
    member.trait = member.object.value("trait").toObject();
    member.type = FindFormatType(member.trait.value("dataType").toString());
    page.members.insert(member.path, member);
}

void AddGroup(SPage &page, const QString &path, const QJsonObject &object, bool isCmdIf)
{
    SPageGroup group;
    group.path = path;
    group.object = object;
    const int type = object.value("groupType").toInt();
    group.type = GroupBit(type) ? type : 0;
    group.properties = object.value("memberProperty").toObject();
    group.members = Texts(object.value("memberList"));
    for (auto it = group.properties.begin(); it != group.properties.end(); ++it) {
        if (it.value().isObject())
            AddMember(page, group, it.key(), isCmdIf);
    }
    page.groups.push_back(group);
}

void AddInterface(SPage &page, bool isCmdIf)
{
    const QString word = AbsoluteModelPath(QString(), isCmdIf).chopped(1);
    const QJsonObject sections = page.document.value(word).toObject();
    for (auto section = sections.begin(); section != sections.end(); ++section) {
        const QJsonObject groups = section.value().toObject();
        for (auto group = groups.begin(); group != groups.end(); ++group) {
            if (group.value().isObject())
                AddGroup(page, Below(Below(word, section.key()), group.key()),
                         group.value().toObject(), isCmdIf);
        }
    }
}

}  // namespace

QString SPageMember::TraitPath() const
{
    return Below(path, "trait");
}

bool SPageMember::Has(const char *name) const
{
    return IsJsonValueValid(object.value(QLatin1String(name)));
}

bool SPageMember::TraitHas(const char *name) const
{
    return IsJsonValueValid(trait.value(QLatin1String(name)));
}

QStringList SPageMember::List(const char *name) const
{
    return Texts(object.value(QLatin1String(name)));
}

QStringList SPageMember::Publishers() const
{
    if (Has("subscribeValue"))
        return {object.value("subscribeValue").toString()};
    return List("subscribeValueList");
}

const SPageMember *SPage::Find(const QString &path) const
{
    const auto it = members.find(path);
    return it == members.end() ? nullptr : &*it;
}

const SPageMember *SPage::Target(const SPageMember &from, const QString &relativePath) const
{
    return Find(AbsoluteModelPath(relativePath, from.isCmdIf));
}

QJsonValue SPage::StartEntry(const SPageMember &member) const
{
    const QStringList publishers = member.Publishers();
    // The list cells of a column table follow no one.
    const bool isListRow = member.groupType == 3 && member.type && !member.type->followsAsRow &&
                           member.type->value == EForm::TextList;
    if (publishers.isEmpty() || isListRow)
        return member.trait.value("value");
    QStringList defaults;
    for (const QString &path : publishers) {
        const SPageMember *publisher = Target(member, path);
        if (publisher)
            defaults.append(publisher->trait.value("defaultValue").toString());
    }
    return GetJsonValueConst(member.trait.value("valuePair").toObject(),
                             defaults.join(QLatin1Char(',')));
}

SPage ReadPage(const QJsonObject &document)
{
    SPage page;
    page.document = document;
    for (const bool isCmdIf : {true, false})
        AddInterface(page, isCmdIf);
    return page;
}

QString RelativePath(const QString &path)
{
    return path.mid(path.indexOf(QLatin1Char('.')) + 1);
}

QStringList Texts(const QJsonValue &array)
{
    QStringList texts;
    const QJsonArray elements = array.toArray();
    for (const QJsonValue &element : elements) {
        if (element.isString())
            texts.append(element.toString());
    }
    return texts;
}
