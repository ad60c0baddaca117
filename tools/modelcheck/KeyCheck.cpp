#include <QHash>
#include <QJsonArray>
#include <QSet>

#include "Model/JsonPath.h"
#include "Model/MemberPath.h"
#include "tools/modelcheck/Checks.h"
#include "tools/modelcheck/FormatKeys.h"

namespace {

constexpr const char *kNameLists[] = {
    "subscribeValueList",
    "publishValueList",
    "publishEnableStatusList",
    "subscribeEnableStatusList",
};

void CheckTwice(const QStringList &texts, const QString &path, const SReport &report)
{
    QSet<QString> seen;
    for (const QString &text : texts) {
        if (seen.contains(text))
            report.Add(EKind::DuplicateEntry, Element(path, text),
                       QStringLiteral("\"%1\" stands there twice").arg(text));
        seen.insert(text);
    }
}

// A widget's name turns each "_" into a point, and a point splits a path.
void CheckKeyLetters(const QString &key, const QString &path, const SReport &report)
{
    if (key.contains(QLatin1Char('_')) || key.contains(QLatin1Char('.')))
        report.Add(
            EKind::KeyLetters, path,
            QStringLiteral("key \"%1\" holds \"_\" or \".\": no widget can be named after it")
                .arg(key));
}

void CheckInterface(const SPage &page, const SReport &report)
{
    const bool hasCmdIf = IsJsonValueValid(page.document.value("cmdIf"));
    if (hasCmdIf == IsJsonValueValid(page.document.value("calDataIf")))
        report.Add(EKind::Interface, "(document)",
                   hasCmdIf ? "has both cmdIf and calDataIf" : "has neither cmdIf nor calDataIf");
}

void CheckSections(const SPage &page, bool isCmdIf, const SReport &report)
{
    const QString word = AbsoluteModelPath(QString(), isCmdIf).chopped(1);
    if (!page.document.value(word).isObject())
        return;
    const QJsonObject sections = page.document.value(word).toObject();
    CheckKeys({sections, word}, SectionKeys(isCmdIf), report);
    for (auto section = sections.begin(); section != sections.end(); ++section) {
        const QJsonObject groups = section.value().toObject();
        for (auto group = groups.begin(); group != groups.end(); ++group) {
            const QString path = Below(Below(word, section.key()), group.key());
            CheckKeyLetters(group.key(), path, report);
            if (!group.value().isObject())
                report.Add(EKind::WrongType, path, "is not an object");
        }
    }
}

void CheckGroupType(const SPageGroup &group, const SReport &report)
{
    if (!group.type && IsJsonValueValid(group.object.value("groupType")))
        report.Add(EKind::GroupType, Below(group.path, "groupType"), "groupType is not 1, 2 or 3");
}

void CheckMemberList(const SPageGroup &group, const SReport &report)
{
    const QString listPath = Below(group.path, "memberList");
    CheckTwice(group.members, listPath, report);
    for (const QString &member : group.members) {
        if (!group.properties.contains(member))
            report.Add(EKind::ListWithoutMember, Element(listPath, member),
                       QStringLiteral("\"%1\" has no object in memberProperty").arg(member));
    }
}

// memberProperty holds members, and the four keys of a column table beside them.
void CheckProperties(const SPageGroup &group, const SReport &report)
{
    const QString path = Below(group.path, "memberProperty");
    QJsonObject columns;
    for (auto it = group.properties.begin(); it != group.properties.end(); ++it) {
        const QString &key = it.key();
        const bool isListed = group.members.contains(key);
        if (ColumnKeys().Find(key) || (!isListed && !it.value().isObject()))
            columns.insert(key, it.value());
        else if (!it.value().isObject())
            report.Add(EKind::WrongType, Below(path, key), "is not an object");
        else if (!isListed)
            report.Add(EKind::MemberNotListed, Below(path, key),
                       QStringLiteral("\"%1\" is not in memberList").arg(key));
    }
    if (group.object.contains("memberProperty"))
        CheckKeys({columns, path, group.type}, ColumnKeys(), report);
}

void CheckColumnCaptions(const SPageGroup &group, const SReport &report)
{
    const QJsonValue captions = group.properties.value("colFieldCaptionList");
    const int columns = group.properties.value("dimentionCount").toInt();
    const QString path = Below(group.path, "memberProperty");
    if (captions.isArray() && captions.toArray().size() != columns)
        report.Add(EKind::ColumnCaptions, Below(path, "colFieldCaptionList"),
                   QStringLiteral("%1 captions for %2 columns")
                       .arg(captions.toArray().size())
                       .arg(columns));
    for (const char *key : {"startIndex", "indexStep"}) {
        if (group.type == 3 && !captions.isArray() &&
            !IsJsonValueValid(group.properties.value(QLatin1String(key))))
            report.Add(EKind::MissingKey, Below(path, key),
                       QStringLiteral("key \"%1\" is missing, and there is no colFieldCaptionList")
                           .arg(QLatin1String(key)));
    }
}

// The rows of a row table come at run time.
void CheckInstances(const SPageGroup &group, const SReport &report)
{
    for (const char *key : {"instanceList", "instanceProperty"}) {
        const QJsonValue value = group.object.value(QLatin1String(key));
        if (!value.toArray().isEmpty() || !value.toObject().isEmpty())
            report.Add(EKind::RunTimeKey, Below(group.path, key),
                       QStringLiteral("\"%1\" is filled at run time").arg(QLatin1String(key)));
    }
}

void CheckGroup(const SPageGroup &group, const SReport &report)
{
    CheckGroupType(group, report);
    CheckKeys({group.object, group.path, group.type}, GroupKeys(), report);
    CheckMemberList(group, report);
    CheckProperties(group, report);
    CheckColumnCaptions(group, report);
    CheckInstances(group, report);
}

void CheckDataType(const SPageMember &member, const SReport &report)
{
    const QString path = Below(member.TraitPath(), "dataType");
    const QJsonValue name = member.trait.value("dataType");
    if (!member.type && name.isString())
        report.Add(EKind::DataType, path,
                   QStringLiteral("unknown data type \"%1\"").arg(name.toString()));
    if (member.type && member.groupType && !(member.type->groups & GroupBit(member.groupType)))
        report.Add(EKind::TypeInGroup, path,
                   QStringLiteral("data type \"%1\" cannot be shown in groupType %2")
                       .arg(QLatin1String(member.type->name))
                       .arg(member.groupType));
}

void CheckMember(const SPageMember &member, const QStringList &instances, const SReport &report)
{
    CheckKeyLetters(member.key, member.path, report);
    if (IsCaptionName(member.key))
        report.Add(EKind::KeyCaption, member.path,
                   QStringLiteral("key \"%1\" holds the word \"caption\": a widget named after it "
                                  "counts as a caption")
                       .arg(member.key));
    CheckKeys({member.object, member.path, member.groupType}, MemberKeys(), report, instances);
    if (member.object.value("trait").isObject())
        CheckKeys({member.trait, member.TraitPath(), member.groupType}, TraitKeys(), report);
    CheckDataType(member, report);
    for (const char *key : kNameLists)
        CheckTwice(member.List(key), Below(member.path, key), report);
}

}  // namespace

void CheckDocumentKeys(const SPage &page, const SReport &report)
{
    CheckInterface(page, report);
    CheckKeys({page.document, QString()}, RootKeys(), report);
    for (const bool isCmdIf : {true, false})
        CheckSections(page, isCmdIf, report);
    QHash<QString, QStringList> instances;  // by the path of memberProperty
    for (const SPageGroup &group : page.groups) {
        CheckGroup(group, report);
        if (group.type == 2)
            instances.insert(Below(group.path, "memberProperty"),
                             Texts(group.object.value("instanceList")));
    }
    for (const SPageMember &member : page.members)
        CheckMember(member, instances.value(ParentPath(member.path)), report);
}
