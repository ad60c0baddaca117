#include <QRegularExpression>

#include "Model/JsonPath.h"
#include "tools/modelcheck/Checks.h"
#include "tools/modelcheck/FormatKeys.h"

namespace {

// A number, or low~high; items stand between commas without blanks.
bool IsRangeList(const QString &text)
{
    static const QRegularExpression list(QStringLiteral(
        "^(-?\\d+(\\.\\d+)?(~-?\\d+(\\.\\d+)?)?)(,-?\\d+(\\.\\d+)?(~-?\\d+(\\.\\d+)?)?)*$"));
    return list.match(text).hasMatch();
}

void CheckRangeList(const QJsonObject &entry, const QString &path, const SReport &report)
{
    const QJsonValue list = entry.value("rangeCheck");
    if (list.isString() && !IsRangeList(list.toString()))
        report.Add(
            EKind::RangeList, Below(path, "rangeCheck"),
            QStringLiteral("\"%1\" is no list such as 0,1920000~1980000").arg(list.toString()));
}

double Limit(const QJsonValue &limit)
{
    return limit.isString() ? limit.toString().toDouble() : limit.toDouble();
}

void CheckLimits(const QJsonObject &entry, const QString &path, const SReport &report)
{
    const QJsonValue min = entry.value("min");
    const QJsonValue max = entry.value("max");
    if (IsJsonValueValid(min) && IsJsonValueValid(max) && Limit(min) > Limit(max))
        report.Add(EKind::LimitsReversed, path,
                   QStringLiteral("min %1 is above max %2")
                       .arg(min.toVariant().toString(), max.toVariant().toString()));
}

struct SEntry
{
    QJsonValue value;
    QString path;
    EForm form;
};

void CheckEntry(const SPageMember &member, const SEntry &entry, const SReport &report)
{
    if (!HasForm(entry.value, entry.form)) {
        report.Add(EKind::WrongType, entry.path,
                   QStringLiteral("is not %1, as data type \"%2\" wants")
                       .arg(FormName(entry.form), QLatin1String(member.type->name)));
        return;
    }
    if (entry.form != EForm::Entry)
        return;
    const QJsonObject object = entry.value.toObject();
    CheckKeys({object, entry.path, member.groupType}, member.type->entryKeys, report);
    CheckLimits(object, entry.path, report);
    CheckRangeList(object, entry.path, report);
}

// An entry is addressed by a path, and a point splits a path.
void CheckPairKey(const QString &key, const QString &path, const SReport &report)
{
    if (key.contains(QLatin1Char('.')))
        report.Add(EKind::KeyPoint, Element(path, key),
                   QStringLiteral("key \"%1\" holds a point: its entry cannot be found").arg(key));
}

void CheckValuePair(const SPageMember &member, const SReport &report)
{
    const QString path = Below(member.TraitPath(), "valuePair");
    const QJsonObject pair = member.trait.value("valuePair").toObject();
    for (auto it = pair.begin(); it != pair.end(); ++it) {
        CheckPairKey(it.key(), path, report);
        if (member.type)
            CheckEntry(member, {it.value(), Element(path, it.key()), member.type->pairEntry},
                       report);
    }
}

void CheckStatusPair(const SPageMember &member, const SReport &report)
{
    const QString path = Below(member.TraitPath(), "enableStatusPair");
    const QJsonObject pair = member.trait.value("enableStatusPair").toObject();
    for (auto it = pair.begin(); it != pair.end(); ++it) {
        CheckPairKey(it.key(), path, report);
        if (!HasForm(it.value(), EForm::Flag))
            report.Add(EKind::WrongType, Element(path, it.key()), "is not 1 or 0");
    }
}

// A member that subscribes reads valuePair, any other value.
void CheckSource(const SPageMember &member, const SReport &report)
{
    const bool subscribes = !member.Publishers().isEmpty();
    const bool hasPair = member.TraitHas("valuePair");
    const bool hasValue = member.TraitHas("value");
    // An unsignedRange row reads its limits from valuePair and its radix from value.
    const bool readsBoth =
        member.type && member.type->className == QLatin1String("CUnsignedSpinBox");
    if (member.Has("subscribeValue") && member.Has("subscribeValueList"))
        report.Add(EKind::TwoSubscriptions, member.path,
                   "has both subscribeValue and subscribeValueList");
    if (subscribes && !hasPair)
        report.Add(EKind::SubscribeWithoutPair, member.path, "subscribes, but has no valuePair");
    if (!subscribes && hasPair && member.groupType != 2)
        report.Add(EKind::PairWithoutSubscribe, Below(member.TraitPath(), "valuePair"),
                   "has a valuePair, but subscribes to nothing");
    if (hasPair && hasValue && !readsBoth)
        report.Add(EKind::ValueAndPair, member.TraitPath(),
                   QStringLiteral("has both value and valuePair; only %1 is read")
                       .arg(subscribes ? QLatin1String("valuePair") : QLatin1String("value")));
    if (member.type && member.type->needsValue && !hasPair && !hasValue && !subscribes)
        report.Add(EKind::MissingKey, Below(member.TraitPath(), "value"),
                   QStringLiteral("key \"value\" is missing: data type \"%1\" has nothing to offer")
                       .arg(QLatin1String(member.type->name)));
}

}  // namespace

void CheckEntries(const SPage &page, const SReport &report)
{
    for (const SPageMember &member : page.members) {
        if (member.type && member.TraitHas("value"))
            CheckEntry(member,
                       {member.trait.value("value"), Below(member.TraitPath(), "value"),
                        member.type->value},
                       report);
        CheckValuePair(member, report);
        CheckStatusPair(member, report);
        CheckSource(member, report);
    }
}
