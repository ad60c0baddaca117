#include "View/engine/InitEntry.h"

#include "Model/JsonPath.h"
#include "Support/Log.h"
#include "View/engine/Binding.h"
#include "View/engine/WidgetIndex.h"

namespace {

QJsonValue ValuePairEntry(const QJsonValue &trait, const QString &key)
{
    return GetJsonValueConst(trait.toObject(), QLatin1String("valuePair.") + key);
}

}  // namespace

QJsonValue ResolveInitEntry(const SBinding &binding, const QJsonValue &member,
                            const QJsonValue &trait)
{
    const QJsonObject memberObject = member.toObject();
    const QJsonValue publisher = memberObject.value(QLatin1String("subscribeValue"));
    const QJsonArray publishers = memberObject.value(QLatin1String("subscribeValueList")).toArray();
    QJsonValue entry;
    if (IsJsonValueValid(publisher)) {
        const QString path = binding.AbsolutePath(publisher.toString());
        qCDebug(lcEngine) << "---> [Init] Has the subscibe value <---";
        const QJsonValue source = GetJsonValue(binding.document, path);
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
        const QString key = BuildInitKey(binding, publishers);
        qCDebug(lcEngine) << "---> [Init] Rebuild the key <--- " << key;
        entry = ValuePairEntry(trait, key);
    } else {
        entry = trait.toObject().value(QLatin1String("value"));
    }
    qCDebug(lcEngine) << "---> [Init] Final value oject <--- " << entry;
    return entry;
}

QString BuildInitKey(const SBinding &binding, const QJsonArray &subscribeValueList)
{
    QString key;
    for (int i = 0; i < subscribeValueList.size(); ++i) {
        const QString path = binding.AbsolutePath(subscribeValueList.at(i).toString());
        qCDebug(lcEngine) << "---> subscribeValue <---" << path;
        const QString trait = path + QLatin1String(".trait.");
        if (!binding.index.Find(path) ||
            !HasJsonValue(binding.document, trait + QLatin1String("dataType")))
            continue;
        key += GetJsonValue(binding.document, trait + QLatin1String("defaultValue")).toString();
        if (i + 1 < subscribeValueList.size())
            key += QLatin1Char(',');
    }
    return key;
}
