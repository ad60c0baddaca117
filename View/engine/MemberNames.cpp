#include "View/engine/MemberNames.h"

#include <QComboBox>
#include <QHash>
#include <QLabel>
#include <QTableWidget>

#include "Model/JsonPath.h"
#include "Model/MemberPath.h"
#include "View/access/CellNames.h"
#include "View/access/FormWords.h"
#include "View/access/ListAccess.h"
#include "View/engine/Binding.h"
#include "View/engine/GroupTypes.h"
#include "View/engine/MemberUnit.h"
#include "View/engine/TableGroup.h"

namespace {

const QLatin1String kCaptionEnd("_caption");
const QLatin1String kBetween(", ");
constexpr int kRowTable = 2;  // groupType

struct SNamed
{
    QWidget *widget = nullptr;
    QString key;
    QString caption;
    const QLabel *label = nullptr;  // its caption's; null when the form has none
};

QStringList UnitsOf(const STableGroup &group, const QStringList &members)
{
    QStringList units;
    for (const QString &member : members)
        units.append(UnitOf(member, group.Member(member, "caption").toString()));
    return units;
}

void NameTable(const SBinding &binding, const QString &path, QTableWidget *table)
{
    table->setAccessibleName(TitleOf(table));
    CCellNames *names = CCellNames::Of(table);
    if (!names)
        return;
    const STableGroup group(binding.document, path);
    if (GroupTypeOf(binding.document, path) == kRowTable)
        names->SetUnits(Qt::Horizontal, UnitsOf(group, group.members));
    else
        names->SetUnits(Qt::Vertical, UnitsOf(group, group.rows));
}

// Of several editors with the same caption, in words that the user sees.
QString NameAmongEqual(const SNamed &named)
{
    const SGridWords words = GridWords(named.widget);
    const bool isOwn = named.label || words.column.isEmpty();
    const QString name = isOwn ? named.caption : words.column;
    const bool tells = !words.row.isEmpty() && words.row != name;
    return tells ? name + kBetween + words.row : name;
}

void NameEditor(const SNamed &named, bool isShared, CSpokenLimits *limits)
{
    const QString unit = UnitOf(named.key, named.caption);
    if (qobject_cast<QLabel *>(named.widget)) {
        QStringList place = {named.caption.isEmpty() ? GridWords(named.widget).row : named.caption,
                             unit};
        place.removeAll(QString());
        SetSpokenPlace(named.widget, place.join(kBetween));
        return;
    }
    SetSpokenUnit(named.widget, unit);
    if (auto *list = qobject_cast<QComboBox *>(named.widget))
        NameByCaption(list);
    named.widget->setAccessibleName(isShared ? NameAmongEqual(named) : named.caption);
    limits->Follow(named.widget);
}

QHash<QString, QLabel *> CaptionLabels(const QList<QWidget *> &widgets)
{
    QHash<QString, QLabel *> labels;
    for (QWidget *widget : widgets) {
        auto *label = qobject_cast<QLabel *>(widget);
        const QString name = widget->objectName();
        if (label && IsCaptionName(name))
            labels.insert(name.chopped(kCaptionEnd.size()), label);
    }
    return labels;
}

SNamed Named(const SBinding &binding, QWidget *widget, QLabel *label)
{
    const QString path = PathFromObjectName(widget->objectName());
    const QString caption = GetJsonValueConst(binding.document, path)
                                .toObject()
                                .value(QLatin1String("caption"))
                                .toString();
    if (label && !qobject_cast<QLabel *>(widget))
        label->setBuddy(widget);
    const bool isOfLabel = label && !label->text().isEmpty();
    return {.widget = widget,
            .key = MemberKey(path),
            .caption = (isOfLabel ? label->text() : caption).simplified(),
            .label = label};
}

}  // namespace

void NameMembers(const SBinding &binding, const QList<QWidget *> &widgets)
{
    const QHash<QString, QLabel *> labels = CaptionLabels(widgets);
    QList<SNamed> members;
    QHash<QPair<const QWidget *, QString>, int> shares;  // by box and caption
    for (QWidget *widget : widgets) {
        const QString name = widget->objectName();
        if (!IsBoundName(name) || IsCaptionName(name))
            continue;
        if (auto *table = qobject_cast<QTableWidget *>(widget)) {
            NameTable(binding, PathFromObjectName(name), table);
            continue;
        }
        const SNamed named = Named(binding, widget, labels.value(name));
        members.append(named);
        if (!qobject_cast<QLabel *>(widget))
            ++shares[{widget->parentWidget(), named.caption}];
    }
    CSpokenLimits *limits = CSpokenLimits::Of(&binding.page);
    for (const SNamed &named : qAsConst(members))
        NameEditor(named, shares.value({named.widget->parentWidget(), named.caption}) > 1, limits);
}
