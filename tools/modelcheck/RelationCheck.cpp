#include "tools/modelcheck/Checks.h"
#include "tools/modelcheck/FormatKeys.h"

namespace {

// The two relations are twins: values, and enable status.
struct SRelation
{
    const char *publishList;
    const char *what;
    EKind notPublished;
    bool SFormatType::*canPublish;
    const char *publishers;  // data types that can, in words
    // Whether the target names the publisher among those that form its key.
    bool (*subscribes)(const SPageMember &target, const QString &publisher);
    // The paths that the member says form its key, and where it says so.
    QStringList (*keyPaths)(const SPageMember &member);
    const char *(*keyList)(const SPageMember &member);
    bool (*canFollow)(const SPageMember &target);
};

bool SubscribesValue(const SPageMember &target, const QString &publisher)
{
    return target.Publishers().contains(publisher);
}

// Without a list the key is the publisher's text, whoever that is.
bool SubscribesStatus(const SPageMember &target, const QString &publisher)
{
    const QStringList list = target.List("subscribeEnableStatusList");
    return list.isEmpty() || list.contains(publisher);
}

const char *ValueKeyList(const SPageMember &member)
{
    return member.Has("subscribeValue") ? "subscribeValue" : "subscribeValueList";
}

bool FollowsValue(const SPageMember &target)
{
    return target.groupType == 1 || (target.groupType == 3 && target.type->followsAsRow);
}

const SRelation kRelations[] = {
    {"publishValueList", "values", EKind::SubscribeNotPublished, &SFormatType::publishesValue,
     "a list or a boolean", SubscribesValue,
     [](const SPageMember &member) { return member.Publishers(); }, ValueKeyList, FollowsValue},
    {"publishEnableStatusList", "enable status", EKind::StatusSubscribeNotPublished,
     &SFormatType::publishesStatus, "a list, a boolean or a range", SubscribesStatus,
     [](const SPageMember &member) { return member.List("subscribeEnableStatusList"); },
     [](const SPageMember &) { return "subscribeEnableStatusList"; },
     [](const SPageMember &target) { return target.groupType != 2; }},
};

void AddUnnamed(const QString &path, const QString &named, const SReport &report)
{
    report.Add(EKind::PathNamesNothing, path, QStringLiteral("\"%1\" names no member").arg(named));
}

void CheckTarget(const SRelation &relation, const SPageMember &publisher, const SPageMember &target,
                 const SReport &report)
{
    const QString path =
        Element(Below(publisher.path, relation.publishList), RelativePath(target.path));
    if (!relation.subscribes(target, RelativePath(publisher.path)))
        report.Add(EKind::PublishNotSubscribed, path,
                   QStringLiteral("publishes %1 to \"%2\", which does not subscribe to it")
                       .arg(QLatin1String(relation.what), RelativePath(target.path)));
    if (target.type && target.groupType && !relation.canFollow(target))
        report.Add(EKind::CannotFollow, path,
                   QStringLiteral("publishes %1 to \"%2\", a %3 of groupType %4 that cannot follow")
                       .arg(QLatin1String(relation.what), RelativePath(target.path),
                            QLatin1String(target.type->name))
                       .arg(target.groupType));
}

void CheckPublisher(const SRelation &relation, const SPage &page, const SPageMember &member,
                    const SReport &report)
{
    const QString path = Below(member.path, relation.publishList);
    const QStringList targets = member.List(relation.publishList);
    for (const QString &named : targets) {
        const SPageMember *target = page.Target(member, named);
        if (target)
            CheckTarget(relation, member, *target, report);
        else
            AddUnnamed(Element(path, named), named, report);
    }
    const bool canPublish =
        member.type && member.groupType == 1 && member.type->*relation.canPublish;
    if (!targets.isEmpty() && member.type && member.groupType && !canPublish)
        report.Add(
            EKind::CannotPublish, path,
            QStringLiteral("a %1 of groupType %2 publishes no %3; only %4 of groupType 1 does")
                .arg(QLatin1String(member.type->name))
                .arg(member.groupType)
                .arg(QLatin1String(relation.what), QLatin1String(relation.publishers)));
}

void CheckSubscriber(const SRelation &relation, const SPage &page, const SPageMember &member,
                     const SReport &report)
{
    const QString path = Below(member.path, QLatin1String(relation.keyList(member)));
    for (const QString &named : relation.keyPaths(member)) {
        const SPageMember *publisher = page.Target(member, named);
        if (!publisher)
            AddUnnamed(Element(path, named), named, report);
        else if (!publisher->List(relation.publishList).contains(RelativePath(member.path)))
            report.Add(relation.notPublished, Element(path, named),
                       QStringLiteral("subscribes to \"%1\", which publishes no %2 to it")
                           .arg(named, QLatin1String(relation.what)));
    }
}

// enableStatusPair is of use only to a member that someone publishes enable status to.
void CheckStatusPairs(const SPage &page, const SReport &report)
{
    QStringList published;
    for (const SPageMember &member : page.members) {
        for (const QString &named : member.List("publishEnableStatusList")) {
            const SPageMember *target = page.Target(member, named);
            if (!target)
                continue;
            published.append(target->path);
            if (!target->TraitHas("enableStatusPair"))
                report.Add(EKind::StatusTargetWithoutPair,
                           Element(Below(member.path, "publishEnableStatusList"), named),
                           QStringLiteral("publishes enable status to \"%1\", which has no "
                                          "enableStatusPair")
                               .arg(named));
        }
    }
    for (const SPageMember &member : page.members) {
        if (member.TraitHas("enableStatusPair") && !published.contains(member.path))
            report.Add(EKind::StatusPairUnpublished, Below(member.TraitPath(), "enableStatusPair"),
                       "no member publishes enable status to this one");
    }
}

}  // namespace

void CheckRelations(const SPage &page, const SReport &report)
{
    for (const SRelation &relation : kRelations) {
        for (const SPageMember &member : page.members) {
            CheckPublisher(relation, page, member, report);
            CheckSubscriber(relation, page, member, report);
        }
    }
    CheckStatusPairs(page, report);
}
