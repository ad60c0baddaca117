#include "tests/fuzz/wire/FuzzPages.h"

#include <algorithm>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include "Controller/NrDataModelCapUpdater.h"
#include "Model/ModelResources.h"
#include "tests/fuzz/common/FuzzTarget.h"

namespace {

constexpr int kScalars = 1;
constexpr int kColumnTable = 3;

constexpr int kDecimals = 5;

QString EditorText(const QJsonObject &trait, const QString &text)
{
    const QString type = trait["dataType"].toString();
    const QJsonValue entry = trait["value"];
    if (type == QLatin1String("list"))
        return entry.toArray().contains(text) ? text : QString();
    const QJsonObject limits = entry.toObject();
    if (limits.isEmpty())
        return text;
    const double held =
        std::clamp(text.toDouble(), limits["min"].toDouble(), limits["max"].toDouble());
    return QString::number(held, 'f', type == QLatin1String("range") ? 0 : kDecimals);
}

// A column table repeats its last text.
QJsonValue PackagedMember(const QJsonObject &trait, bool isTable, int columns, EEditors editors)
{
    const auto packaged = [&](const QJsonValue &given) {
        const QString text = given.toString(QStringLiteral("0"));
        return editors == EEditors::None ? text : EditorText(trait, text);
    };
    const QJsonValue given = trait["defaultValue"];
    if (!isTable)
        return packaged(given);
    const QJsonArray texts = given.isArray() ? given.toArray() : QJsonArray{given};
    QJsonArray row;
    for (int i = 0; i < columns; ++i)
        row.append(packaged(texts.at(std::min(i, texts.size() - 1))));
    return row;
}

QJsonObject PackagedGroup(QJsonObject group, bool isSelection, EEditors editors)
{
    const QJsonObject members = group["memberProperty"].toObject();
    const bool isTable = group["groupType"].toInt() == kColumnTable;
    QJsonObject values = group["memberValue"].toObject();
    for (const QJsonValue &name : group["memberList"].toArray()) {
        const QString member = name.toString();
        if (isSelection && values.contains(member))
            continue;
        const QJsonObject trait = members[member].toObject()["trait"].toObject();
        values[member] = PackagedMember(trait, isTable, members["dimentionCount"].toInt(), editors);
    }
    group["memberValue"] = values;
    return group;
}

}  // namespace

EPageId PageOf(const QString &name)
{
    const auto *page = std::find_if(std::begin(kFuzzPages), std::end(kFuzzPages),
                                    [&](EPageId id) { return PageName(id) == name; });
    return page == std::end(kFuzzPages) ? kFuzzPages[0] : *page;
}

QString RootOf(EPageId id)
{
    return id == EPageId::RxPathLoss || id == EPageId::AptProfile ? QStringLiteral("calDataIf")
                                                                  : QStringLiteral("cmdIf");
}

QJsonObject TemplatePage(EPageId id)
{
    InitModelResources();
    QFile file(QString::fromLatin1(FindPage(id).resource));
    Require(file.open(QIODevice::ReadOnly), "the library carries the page's document");
    return QJsonDocument::fromJson(file.readAll()).object();
}

QJsonObject PatchedPage(EPageId id)
{
    QJsonObject document = TemplatePage(id);
    CNrDataModelCapUpdater updater;
    updater.ResetCapabilityCache();
    (updater.*FindPage(id).driver)(document);
    return document;
}

QJsonObject Packaged(QJsonObject document, EEditors editors)
{
    for (const QString &root : {QStringLiteral("cmdIf"), QStringLiteral("calDataIf")}) {
        QJsonObject sections = document[root].toObject();
        for (const QString &section : sections.keys()) {
            QJsonObject groups = sections[section].toObject();
            for (const QString &key : groups.keys()) {
                const QJsonObject group = groups[key].toObject();
                const int type = group["groupType"].toInt();
                if (type == kScalars || type == kColumnTable)
                    groups[key] = PackagedGroup(group, section == QLatin1String("config"), editors);
            }
            sections[section] = groups;
        }
        if (document.contains(root))
            document[root] = sections;
    }
    return document;
}

QJsonValue Merged(const QJsonValue &value, const QJsonValue &patch)
{
    if (!patch.isObject())
        return patch;
    const QJsonObject changes = patch.toObject();
    QJsonObject merged = value.toObject();
    for (auto change = changes.begin(); change != changes.end(); ++change) {
        if (change->isNull())
            merged.remove(change.key());
        else
            merged.insert(change.key(), Merged(QJsonValue(merged.value(change.key())), *change));
    }
    return merged;
}
