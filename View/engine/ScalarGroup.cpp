// groupType 1: one value in one editor widget.
#include "Model/JsonPath.h"
#include "Model/MemberPath.h"
#include "Support/Log.h"
#include "View/engine/AutoBindingDataModelDockWidget.h"
#include "View/engine/DataTypes.h"
#include "View/engine/WidgetIndex.h"

namespace {

const QLatin1String kTrait("trait");
const QLatin1String kDataType("dataType");
const QLatin1String kDefaultValue("defaultValue");

QJsonValue ValuePairEntry(const QJsonValue &trait, const QString &key)
{
    return GetJsonValueConst(trait.toObject(), QLatin1String("valuePair.") + key);
}

bool PublishesTo(const QJsonObject &member, const char *list)
{
    return !member.value(QLatin1String(list)).toArray().isEmpty();
}

}  // namespace

QJsonValue CAutoBindingDataModelDockWidget::ResolveInitEntry(const QJsonValue &member,
                                                             const QJsonValue &trait)
{
    const QJsonObject memberObject = member.toObject();
    const QJsonValue publisher = memberObject.value(QLatin1String("subscribeValue"));
    const QJsonArray publishers = memberObject.value(QLatin1String("subscribeValueList")).toArray();
    QJsonValue entry;
    if (IsJsonValueValid(publisher)) {
        const QString path = AbsoluteModelPath(publisher.toString());
        qCDebug(lcEngine) << "---> [Init] Has the subscibe value <---";
        const QJsonValue source = GetJsonValue(m_dataModel, path);
        if (!IsJsonValueValid(source)) {
            qCCritical(lcEngine) << "---> [Init] Failed to initialize:  Cannot get the mapping "
                                    "data by KEY info <---";
            return {};
        }
        const QString key =
            GetJsonValueConst(source.toObject(), QStringLiteral("trait.defaultValue")).toString();
        qCDebug(lcEngine) << "---> [Init] Subscribe Key info <--- " << path
                          << " default value: " << key;
        entry = ValuePairEntry(trait, key);
    } else if (!publishers.isEmpty()) {
        qCDebug(lcEngine) << "---> [Init] Has the subscribeValueList <--- ";
        const QString key = BuildInitKey(publishers);
        qCDebug(lcEngine) << "---> [Init] Rebuild the key <--- " << key;
        entry = ValuePairEntry(trait, key);
    } else {
        entry = trait.toObject().value(QLatin1String("value"));
    }
    qCDebug(lcEngine) << "---> [Init] Final value oject <--- " << entry;
    return entry;
}

QString CAutoBindingDataModelDockWidget::BuildInitKey(const QJsonArray &subscribeValueList)
{
    const CIndexScope index(this);
    QString key;
    for (int i = 0; i < subscribeValueList.size(); ++i) {
        const QString path = AbsoluteModelPath(subscribeValueList.at(i).toString());
        qCDebug(lcEngine) << "---> subscribeValue <---" << path;
        const QString trait = path + QLatin1String(".trait.");
        if (!index->Find(path) || !HasJsonValue(m_dataModel, trait + kDataType))
            continue;
        key += GetJsonValue(m_dataModel, trait + kDefaultValue).toString();
        if (i + 1 < subscribeValueList.size())
            key += QLatin1Char(',');
    }
    return key;
}

void CAutoBindingDataModelDockWidget::InitScalarMember(const QString &path, QWidget *widget)
{
    const QJsonObject member = GetJsonValue(m_dataModel, path).toObject();
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
    const QJsonValue entry = type->readsEntry ? ResolveInitEntry(member, trait) : QJsonValue();
    type->init(widget, member, entry);
    m_edits.Watch(widget);

    // After the widget is filled: Init itself publishes nothing.
    if (type->checkSlot && HasJsonValue(entry.toObject(), QStringLiteral("rangeCheck")))
        connect(widget, SIGNAL(editingFinished()), this, type->checkSlot);
    if (type->valueSignal && PublishesTo(member, "publishValueList")) {
        qCDebug(lcEngine) << "---> [Init][type1] Has the publish value list: register value "
                             "publish and subscribe <---";
        connect(widget, type->valueSignal, this, type->valueSlot);
    }
    if (type->statusSignal && PublishesTo(member, "publishEnableStatusList")) {
        qCDebug(lcEngine) << "---> [Init][type1] Has the enable status list: register enable "
                             "status publish and subscribe <---";
        connect(widget, type->statusSignal, this, type->statusSlot);
    }
}

void CAutoBindingDataModelDockWidget::UpdateScalarMember(const QString &path, QWidget *widget,
                                                         QJsonObject update)
{
    const QJsonObject member = GetJsonValue(update, path).toObject();
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
    if (type && type->show)
        type->show(widget, member, value.toString());
    else
        qCCritical(lcEngine) << "---> [Fail][Update][type1] Not support this data type yet <---";
}

void CAutoBindingDataModelDockWidget::PackageScalarMember(const QString &path, QWidget *widget)
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
    if (!StoreMemberValue(path, value))
        qCCritical(lcEngine) << "---> [Fail][Package][type1] : memberValuePath <--- "
                             << GroupValuePath(path);
}
