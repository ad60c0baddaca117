#include "View/engine/ScalarGroup.h"

#include "Model/JsonPath.h"
#include "Model/MemberPath.h"
#include "Support/Log.h"
#include "View/editors/EditSession.h"
#include "View/engine/Binding.h"
#include "View/engine/ChangeRecorder.h"
#include "View/engine/DataTypes.h"
#include "View/engine/InitEntry.h"
#include "View/engine/RangeCheck.h"

namespace {

const QLatin1String kTrait("trait");
const QLatin1String kDataType("dataType");
const QLatin1String kDefaultValue("defaultValue");

bool PublishesTo(const QJsonObject &member, const char *list)
{
    return !member.value(QLatin1String(list)).toArray().isEmpty();
}

// Behind Init of the widget, which publishes nothing.
void FollowChanges(const SBinding &binding, QWidget *widget, const SDataType &type,
                   const QJsonObject &member, const QJsonObject &entry)
{
    if (type.checkSlot && HasJsonValue(entry, QStringLiteral("rangeCheck"))) {
        SetRangeChecked(widget);
        QObject::connect(widget, SIGNAL(editingFinished()), &binding.page, type.checkSlot);
    }
    if (type.valueSignal && PublishesTo(member, "publishValueList")) {
        qCDebug(lcEngine) << "---> [Init][type1] Has the publish value list: register value "
                             "publish and subscribe <---";
        QObject::connect(widget, type.valueSignal, &binding.page, type.valueSlot);
    }
    if (type.statusSignal && PublishesTo(member, "publishEnableStatusList")) {
        qCDebug(lcEngine) << "---> [Init][type1] Has the enable status list: register enable "
                             "status publish and subscribe <---";
        QObject::connect(widget, type.statusSignal, &binding.page, type.statusSlot);
    }
}

}  // namespace

void InitScalarMember(const SBinding &binding, const QString &path, QWidget *widget)
{
    const QJsonObject member = GetJsonValue(binding.document, path).toObject();
    if (member.value(QLatin1String("defaultSupport")).toInt() == 0) {
        widget->setVisible(false);
        return;
    }
    if (member.value(QLatin1String("defaultEnableStatus")).toInt() == 0)
        widget->setEnabled(false);

    const QJsonValue trait = member.value(kTrait);
    qCDebug(lcEngine) << "---> [Init][type1] Trait object <---" << trait;
    if (!IsJsonValueValid(trait)) {
        qCCritical(lcEngine) << "---> [Fail][Init][type1]Cannot get the Trait JSON Object <---";
        return;
    }
    const SDataType *type = FindScalarType(trait.toObject().value(kDataType).toString(), widget);
    if (!type) {
        qCCritical(lcEngine)
            << "---> [Fail][Init][type1]cannot find the mapping of Data Type and QWidget <---";
        return;
    }
    qCDebug(lcEngine) << type->initLog;
    const QJsonValue entry =
        type->readsEntry ? ResolveInitEntry(binding, member, trait) : QJsonValue();
    type->init(widget, member, entry);
    binding.edits.Watch(widget);
    const int id = binding.changes.Member(path);
    binding.changes.Watch(widget, id, -1);
    binding.changes.Start(id, ShownText(widget), trait.toObject().value(kDefaultValue).toString());
    FollowChanges(binding, widget, *type, member, entry.toObject());
}

void UpdateScalarMember(const SBinding &binding, const QString &path, QWidget *widget)
{
    const QJsonObject member = GetJsonValueConst(binding.update, path).toObject();
    const QJsonValue trait = member.value(kTrait);
    qCDebug(lcEngine) << "---> [Update][type1] Trait JSON object <---" << trait;
    if (!IsJsonValueValid(trait)) {
        qCCritical(lcEngine) << "---> [Fail][Update][type1] Cannot get the trait info <---";
        return;
    }
    const QString dataType = trait.toObject().value(kDataType).toString();
    const QJsonValue value = trait.toObject().value(kDefaultValue);
    qCDebug(lcEngine) << "---> [Update][type1] DataType <---" << dataType;
    qCDebug(lcEngine) << "---> [Update][type1] Value to update <---" << value;
    if (!IsJsonValueValid(value))
        return;
    const SDataType *type = FindScalarType(dataType, widget);
    if (type && type->show) {
        CChangeRecorder *const changes =
            binding.changes.IsWatched(widget) ? nullptr : &binding.changes;
        const CChangeStep step(changes, {.cause = EChangeCause::Result},
                               binding.changes.Member(path), -1, widget);
        type->show(widget, member, value.toString());
    } else {
        qCCritical(lcEngine) << "---> [Fail][Update][type1] Not support this data type yet <---";
    }
}

void PackageScalarMember(const SBinding &binding, const QString &path, QWidget *widget)
{
    const SDataType *type = FindScalarTypeOfWidget(widget);
    if (!type || !type->text) {
        qCCritical(lcEngine) << widget->metaObject()->className()
                             << "---> [Fail][Package][type1] : Not support this type yet <--- ";
        return;
    }
    const QString value = type->text(widget);
    qCDebug(lcEngine) << "---> [Package][type1] Path in memberValue <--- " << GroupValuePath(path)
                      << " " << MemberKey(path);
    qCDebug(lcEngine) << "---> [Package][type1] Value <--- " << value;
    if (!binding.StoreMemberValue(path, value))
        qCCritical(lcEngine) << "---> [Fail][Package][type1] : memberValuePath <--- "
                             << GroupValuePath(path);
}
