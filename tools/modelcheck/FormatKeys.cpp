#include "tools/modelcheck/FormatKeys.h"

#include <cmath>

#include <QJsonArray>

#include "Model/JsonPath.h"

namespace {

constexpr unsigned kScalar = GroupBit(1);
constexpr unsigned kRowTable = GroupBit(2);
constexpr unsigned kColumnTable = GroupBit(3);
constexpr unsigned kEditors = kScalar | kColumnTable;

constexpr SKey kRootKeys[] = {
    {"modelName", EForm::Text, kAllGroups, kAllGroups},
    {"modelVersion", EForm::Number, kAllGroups, kAllGroups},
    {"cmdIf", EForm::Object},
    {"calDataIf", EForm::Object},
    {"modelIntegrity", EForm::Other, kAllGroups, 0, true},
    {"emptyModel", EForm::Other, kAllGroups, 0, true},
};

constexpr SKey kCmdIfKeys[] = {
    {"request", EForm::Object, kAllGroups, kAllGroups},
    {"response", EForm::Object, kAllGroups, kAllGroups},
};

constexpr SKey kCalDataIfKeys[] = {
    {"config", EForm::Object, kAllGroups, kAllGroups},
    {"data", EForm::Object, kAllGroups, kAllGroups},
};

constexpr SKey kGroupKeys[] = {
    {"groupName", EForm::Text, kEditors},
    {"groupType", EForm::Other, kAllGroups, kAllGroups},
    {"memberList", EForm::TextList, kAllGroups, kAllGroups},
    {"memberProperty", EForm::Object, kAllGroups, kAllGroups},
    {"instanceList", EForm::TextList, kRowTable, kRowTable},
    {"instanceProperty", EForm::Object, kRowTable, kRowTable},
    {"memberValue", EForm::Other, kEditors, 0, true},
};

constexpr SKey kColumnKeys[] = {
    {"dimentionCount", EForm::Whole, kColumnTable, kColumnTable},
    {"startIndex", EForm::Whole, kColumnTable},
    {"indexStep", EForm::Whole, kColumnTable},
    {"colFieldCaptionList", EForm::TextList, kColumnTable},
};

constexpr SKey kMemberKeys[] = {
    {"caption", EForm::Text},
    // Absent reads as 0: the member is hidden and disabled. A row table counts it as supported.
    {"defaultSupport", EForm::Flag, kAllGroups, kEditors},
    {"defaultEnableStatus", EForm::Flag, kEditors, kEditors},
    {"subscribeValue", EForm::Text, kEditors},
    {"subscribeValueList", EForm::TextList, kEditors},
    {"publishValueList", EForm::TextList, kEditors},
    {"publishEnableStatusList", EForm::TextList, kEditors},
    {"subscribeEnableStatusList", EForm::TextList, kEditors},
    {"trait", EForm::Object, kAllGroups, kAllGroups},
};

constexpr SKey kTraitKeys[] = {
    {"dataType", EForm::Text, kAllGroups, kAllGroups},
    {"defaultValue", EForm::Other, kAllGroups, kEditors},
    {"value", EForm::Other},
    {"valuePair", EForm::Object, kEditors},
    {"enableStatusPair", EForm::Object, kEditors},
};

// Outside of a group, and in a group whose type is unknown, all keys of the level are known.
bool AppliesTo(unsigned groups, int groupType)
{
    const unsigned bit = GroupBit(groupType);
    return bit ? (groups & bit) != 0 : groups == kAllGroups;
}

bool IsWhole(const QJsonValue &value)
{
    return value.isDouble() && std::floor(value.toDouble()) == value.toDouble();
}

bool IsTextList(const QJsonValue &value)
{
    if (!value.isArray())
        return false;
    const QJsonArray array = value.toArray();
    for (const QJsonValue &element : array) {
        if (!element.isString())
            return false;
    }
    return true;
}

bool IsUnsignedText(const QJsonValue &value)
{
    bool ok = false;
    value.toString().toUInt(&ok, 10);
    return ok;
}

bool IsBoolean(const QJsonValue &value)
{
    return value == QJsonValue("true") || value == QJsonValue("false");
}

struct SFormRow
{
    EForm form;
    const char *name;
    bool (*holds)(const QJsonValue &value);
};

const SFormRow kForms[] = {
    {EForm::Text, "a text", [](const QJsonValue &v) { return v.isString(); }},
    {EForm::UnsignedText, "the text of a decimal number without a sign", IsUnsignedText},
    {EForm::Number, "a number", [](const QJsonValue &v) { return v.isDouble(); }},
    {EForm::Whole, "a whole number", IsWhole},
    {EForm::Flag, "1 or 0", [](const QJsonValue &v) { return v == 0 || v == 1; }},
    {EForm::Object, "an object", [](const QJsonValue &v) { return v.isObject(); }},
    {EForm::Entry, "an object", [](const QJsonValue &v) { return v.isObject(); }},
    {EForm::TextList, "an array of texts", IsTextList},
    {EForm::TrueFalse, "[\"true\", \"false\"]",
     [](const QJsonValue &v) {
         return v == QJsonArray({"true", "false"});
     }},
    {EForm::Boolean, "\"true\" or \"false\"", IsBoolean},
    {EForm::Other, "", [](const QJsonValue &) { return true; }},
};

const SFormRow &FormRow(EForm form)
{
    const SFormRow *row = kForms;
    while (row->form != form)
        ++row;
    return *row;
}

void CheckPresent(const SPlace &place, const SKey &key, const QJsonValue &value,
                  const SReport &report)
{
    const QString path = Below(place.path, QLatin1String(key.name));
    if (!AppliesTo(key.groups, place.groupType) && GroupBit(place.groupType)) {
        report.Add(EKind::UnknownKey, path,
                   QStringLiteral("key \"%1\" has no meaning in groupType %2")
                       .arg(QLatin1String(key.name))
                       .arg(place.groupType));
    } else if (key.isRunTime) {
        report.Add(EKind::RunTimeKey, path,
                   QStringLiteral("key \"%1\" is made at run time").arg(QLatin1String(key.name)));
    } else if (!HasForm(value, key.form)) {
        report.Add(EKind::WrongType, path, QStringLiteral("is not %1").arg(FormName(key.form)));
    }
}

}  // namespace

const SKey *SKeyTable::Find(const QString &name) const
{
    for (const SKey &key : *this) {
        if (name == QLatin1String(key.name))
            return &key;
    }
    return nullptr;
}

SKeyTable RootKeys()
{
    return KeyTable(kRootKeys);
}

SKeyTable SectionKeys(bool isCmdIf)
{
    return isCmdIf ? KeyTable(kCmdIfKeys) : KeyTable(kCalDataIfKeys);
}

SKeyTable GroupKeys()
{
    return KeyTable(kGroupKeys);
}

SKeyTable ColumnKeys()
{
    return KeyTable(kColumnKeys);
}

SKeyTable MemberKeys()
{
    return KeyTable(kMemberKeys);
}

SKeyTable TraitKeys()
{
    return KeyTable(kTraitKeys);
}

QString FormName(EForm form)
{
    return QLatin1String(FormRow(form).name);
}

bool HasForm(const QJsonValue &value, EForm form)
{
    return FormRow(form).holds(value);
}

QString Below(const QString &path, const QString &key)
{
    return path.isEmpty() ? key : path + QLatin1Char('.') + key;
}

void CheckKeys(const SPlace &place, SKeyTable table, const SReport &report,
               const QStringList &others)
{
    for (auto it = place.object.begin(); it != place.object.end(); ++it) {
        const SKey *key = table.Find(it.key());
        if (!key && !others.contains(it.key()))
            report.Add(EKind::UnknownKey, Below(place.path, it.key()),
                       QStringLiteral("unknown key \"%1\"").arg(it.key()));
        else if (key && IsJsonValueValid(it.value()))
            CheckPresent(place, *key, it.value(), report);
    }
    for (const SKey &key : table) {
        if (AppliesTo(key.required, place.groupType) &&
            !IsJsonValueValid(place.object.value(QLatin1String(key.name))))
            report.Add(EKind::MissingKey, Below(place.path, QLatin1String(key.name)),
                       QStringLiteral("key \"%1\" is missing").arg(QLatin1String(key.name)));
    }
}
