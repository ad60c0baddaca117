#include "tests/fuzz/engine/FuzzVariant.h"

#include <iterator>

#include <QJsonArray>

namespace {

constexpr int kLongLength = 300;  // characters
constexpr int kManyRows = 260;    // more than a row table holds editors for
constexpr int kManyRowsHow = 15;  // "y" in an action

const char *const kTexts[] = {
    "",
    "0",
    "1",
    "-1",
    "5",
    "true",
    "false",
    "n1",
    "n78",
    "FF",
    "ff",
    "zz",
    "0x10",
    "4294967295",
    "4294967296",
    "2147483647",
    "-2147483648",
    "99999999999",
    "1.5",
    "1,5",
    "-0.000004",
    "1e300",
    "1e999",
    "-inf",
    "nan",
    "NA",
    " 7 ",
    "<b>",
    "\u0663",
    "1 000",
    "\xf0\x9f\x93\xb6",
    "a.b",
};

// What differs, and the byte's rest that says how.
using GroupChange = void (*)(QJsonObject &group, int how);

QJsonArray MemberKeys(const QJsonObject &group)
{
    return group.value(QLatin1String("memberList")).toArray();
}

// Gives each member of the list what change makes of it.
template <typename Change>
void ChangeMembers(QJsonObject &group, Change change)
{
    QJsonObject properties = group.value(QLatin1String("memberProperty")).toObject();
    for (const QJsonValue &key : MemberKeys(group)) {
        QJsonObject member = properties.value(key.toString()).toObject();
        change(member);
        properties.insert(key.toString(), member);
    }
    group.insert(QLatin1String("memberProperty"), properties);
}

void NewValues(QJsonObject &group, int how)
{
    const QString text = FuzzText(static_cast<uint8_t>(how));
    ChangeMembers(group, [&](QJsonObject &member) {
        QJsonObject trait = member.value(QLatin1String("trait")).toObject();
        const bool isArray = trait.value(QLatin1String("defaultValue")).isArray();
        trait.insert(QLatin1String("defaultValue"),
                     isArray ? QJsonValue(QJsonArray{QString::number(how), text})
                             : QJsonValue(text));
        member.insert(QLatin1String("trait"), trait);
    });
}

void MoreRows(QJsonObject &group, int how)
{
    QJsonArray instances = group.value(QLatin1String("instanceList")).toArray();
    const int more = how == kManyRowsHow ? kManyRows : how + 1;
    const int first = instances.size();
    for (int i = 0; i < more; ++i)
        instances.append(QStringLiteral("i%1").arg(first + i));
    group.insert(QLatin1String("instanceList"), instances);
    ChangeMembers(group, [&](QJsonObject &member) {
        for (int i = 0; i < more; ++i)
            member.insert(QStringLiteral("i%1").arg(first + i),
                          QJsonObject{{QStringLiteral("defaultValue"),
                                       FuzzText(static_cast<uint8_t>(how + i))}});
    });
}

void FewerRows(QJsonObject &group, int how)
{
    QJsonArray instances = group.value(QLatin1String("instanceList")).toArray();
    while (instances.size() > how / 4)
        instances.removeLast();
    group.insert(QLatin1String("instanceList"), instances);
}

void FewerMembers(QJsonObject &group, int how)
{
    if (how % 2 == 0) {
        group.insert(QLatin1String("memberProperty"), QJsonObject());
        return;
    }
    QJsonArray members = MemberKeys(group);
    if (!members.isEmpty())
        members.removeFirst();
    group.insert(QLatin1String("memberList"), members);
}

void OtherColumns(QJsonObject &group, int how)
{
    QJsonObject properties = group.value(QLatin1String("memberProperty")).toObject();
    properties.insert(QLatin1String("dimentionCount"), how - 4);
    group.insert(QLatin1String("memberProperty"), properties);
}

void OtherTypes(QJsonObject &group, int how)
{
    static const char *const kTypes[] = {"list",    "range",         "pointRange", "label",
                                         "boolean", "unsignedRange", "other"};
    group.insert(QLatin1String("groupType"), how % 4);
    const QLatin1String type(kTypes[how % std::size(kTypes)]);
    ChangeMembers(group, [&](QJsonObject &member) {
        QJsonObject trait = member.value(QLatin1String("trait")).toObject();
        trait.insert(QLatin1String("dataType"), type);
        member.insert(QLatin1String("trait"), trait);
    });
}

void Nothing(QJsonObject &, int) {}

constexpr GroupChange kChanges[] = {NewValues,    MoreRows,   FewerRows, FewerMembers,
                                    OtherColumns, OtherTypes, Nothing,   NewValues};
constexpr int kRecordChange = 6;

// A record of failed patches, or the mark of a document without data.
void AddRecord(QJsonObject &document, int how)
{
    if (how % 2 == 0)
        document.insert(QLatin1String("modelIntegrity"),
                        QJsonObject{{"integrity", how % 4 == 0},
                                    {"messageList", QJsonArray{"bands", "<i>routes", 3}}});
    if (how % 3 == 0)
        document.insert(QLatin1String("emptyModel"), QString());
}

}  // namespace

QJsonObject FuzzVariant(const QJsonObject &document, const QString &word, const QString &section,
                        uint8_t how)
{
    const int change = how % std::size(kChanges);
    const int rest = how / static_cast<int>(std::size(kChanges));
    QJsonObject altered = document;
    QJsonObject sections = altered.value(word).toObject();
    QJsonObject groups = sections.value(section).toObject();
    for (const QString &key : groups.keys()) {
        QJsonObject group = groups.value(key).toObject();
        kChanges[change](group, rest);
        groups.insert(key, group);
    }
    sections.insert(section, groups);
    altered.insert(word, sections);
    if (change == kRecordChange)
        AddRecord(altered, rest);
    return altered;
}

QString FuzzText(uint8_t how)
{
    const size_t index = how % (std::size(kTexts) + 1);
    return index < std::size(kTexts) ? QString::fromUtf8(kTexts[index])
                                     : QString(kLongLength, QLatin1Char('9'));
}
