#include "Model/ModelQuery.h"

#include "Model/JsonPath.h"
#include "Model/MemberPath.h"
#include "Model/ModelLog.h"

namespace {

QString Swapped(QString path, QLatin1String from, QLatin1String to)
{
    return path.replace(from, to);
}

}  // namespace

int GetUiIndexByMemberValue(QJsonObject document, const QString &memberValuePath)
{
    const int position = memberValuePath.indexOf(kMemberValue);
    const QString group = memberValuePath.left(qMax(0, position));
    const int groupType = GetJsonValueConst(document, group + QLatin1String("groupType")).toInt();

    QString value = GetJsonValueConst(document, memberValuePath).toString();
    QString memberPath = Swapped(memberValuePath, kMemberValue, kMemberProperty);
    if (groupType != 1)
        memberPath = ParentPath(memberPath);

    const QJsonValue member = GetJsonValueConst(document, memberPath);
    if (!IsJsonValueValid(member))
        return -1;
    const QJsonValue trait = member.toObject().value(QLatin1String("trait"));
    if (!IsJsonValueValid(trait))
        return -1;
    const QJsonObject traitObject = trait.toObject();
    if (traitObject.value(QLatin1String("dataType")).toString() != QLatin1String("list"))
        return -1;
    if (groupType != 1)
        value = GetJsonValueConst(document, Swapped(memberPath, kMemberProperty, kMemberValue))
                    .toString();

    QString listPath = QStringLiteral("value");
    const QJsonValue publisher = member.toObject().value(QLatin1String("subscribeValue"));
    if (IsJsonValueValid(publisher)) {
        const bool isCmdIf = memberValuePath.startsWith(QLatin1String("cmdIf"));
        const QString keyPath = Swapped(AbsoluteModelPath(publisher.toString(), isCmdIf),
                                        kMemberProperty, kMemberValue);
        listPath = QLatin1String("valuePair.") + GetJsonValueConst(document, keyPath).toString();
    }
    const int index =
        FindStringInJsonArray(GetJsonValueConst(traitObject, listPath).toArray(), value);
    qCDebug(lcModel) << "----> GetUiIndexByMemberValue <----";
    qCDebug(lcModel) << " valueForWidget: " << value << " index:" << index;
    return index;
}
