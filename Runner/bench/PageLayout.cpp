#include "Runner/bench/PageLayout.h"

#include <QJsonArray>
#include <QJsonDocument>

#include "Runner/bench/Units.h"

namespace {

const QLatin1String kInterfaces[] = {QLatin1String("cmdIf"), QLatin1String("calDataIf")};
const QLatin1String kSections[] = {QLatin1String("request"), QLatin1String("response"),
                                   QLatin1String("config"), QLatin1String("data")};

QString ObjectName(const QString &groupPath, const QString &key)
{
    return groupPath + QLatin1String("_memberProperty_") + key;
}

QTableWidget *FindTable(const QWidget *page, const QString &groupPath)
{
    const QString head = ObjectName(groupPath, {});
    for (QTableWidget *table : page->findChildren<QTableWidget *>()) {
        if (table->objectName().startsWith(head))
            return table;
    }
    return nullptr;
}

// Groups in the order of their numbers, others behind them.
QStringList SortedGroups(const QJsonObject &groups)
{
    QStringList names = groups.keys();
    std::stable_sort(names.begin(), names.end(), [](const QString &a, const QString &b) {
        return a.size() != b.size() ? a.size() < b.size() : a < b;
    });
    return names;
}

SBenchMember ReadMember(const SBenchMember &place, const QString &key, const QJsonObject &member)
{
    SBenchMember read = place;
    const QJsonObject trait = member.value(QLatin1String("trait")).toObject();
    read.key = key;
    read.caption = member.value(QLatin1String("caption")).toString().trimmed();
    read.type = trait.value(QLatin1String("dataType")).toString();
    read.unit = UnitOf(read.caption);
    read.base = trait.value(QLatin1String("value"))
                    .toObject()
                    .value(QLatin1String("displayBase"))
                    .toInt(read.base);
    return read;
}

}  // namespace

QJsonObject InterfaceOf(const QJsonObject &document, QString *name)
{
    for (const QLatin1String &interface : kInterfaces) {
        if (!document.contains(interface))
            continue;
        if (name)
            *name = interface;
        return document.value(interface).toObject();
    }
    return {};
}

CPageLayout::CPageLayout(const QWidget *page, const QString &documentText)
{
    QString interface;
    const QJsonObject sections =
        InterfaceOf(QJsonDocument::fromJson(documentText.toUtf8()).object(), &interface);
    for (const QLatin1String &section : kSections)
        AddSection(page, interface, section, sections.value(section).toObject());
}

void CPageLayout::AddSection(const QWidget *page, const QString &interface, const QString &section,
                             const QJsonObject &groups)
{
    for (const QString &name : SortedGroups(groups)) {
        const QJsonObject group = groups.value(name).toObject();
        SBenchMember place;
        place.section = section;
        place.group = name;
        place.groupName = group.value(QLatin1String("groupName")).toString().trimmed();
        AddGroup(page, interface + '_' + section + '_' + name, place, group);
    }
}

void CPageLayout::AddGroup(const QWidget *page, const QString &path, const SBenchMember &place,
                           const QJsonObject &group)
{
    const auto kind = static_cast<EGroupKind>(group.value(QLatin1String("groupType")).toInt());
    const QJsonObject members = group.value(QLatin1String("memberProperty")).toObject();
    QTableWidget *table = kind == EGroupKind::Scalars ? nullptr : FindTable(page, path);
    if (table)
        m_tables.append({place.section, place.group, kind, table});
    int row = 0;
    for (const QJsonValue &entry : group.value(QLatin1String("memberList")).toArray()) {
        const QString key = entry.toString();
        const QJsonObject member = members.value(key).toObject();
        const bool isSupported = member.value(QLatin1String("defaultSupport")).toInt() == 1;
        // A column table has a row for each supported member, a row table a column for each.
        if (kind == EGroupKind::Cells && !isSupported)
            continue;
        QWidget *widget =
            kind == EGroupKind::Scalars ? page->findChild<QWidget *>(ObjectName(path, key)) : table;
        if (widget)
            m_members.append({ReadMember(place, key, member), kind, widget, row});
        ++row;
    }
}
