#include "View/engine/Binding.h"

#include "Model/JsonPath.h"
#include "Model/MemberPath.h"
#include "View/engine/ModelInterface.h"

QString SBinding::AbsolutePath(const QString &relativePath) const
{
    return AbsoluteModelPath(relativePath, modelInterface == eInterfaceCmdIf);
}

bool SBinding::StoreMemberValue(const QString &path, const QJsonValue &value) const
{
    const QString valuePath = GroupValuePath(path);
    const QString leafPath = valuePath + QLatin1Char('.') + MemberKey(path);
    if (HasJsonValue(document, leafPath))
        return ModifyJsonValue(document, leafPath, value, 0);
    if (!HasJsonValue(document, valuePath))
        return InsertJsonObject(document, GroupPath(path), QStringLiteral("memberValue"),
                                MemberKey(path), value);
    QJsonObject values = GetJsonValue(document, valuePath).toObject();
    values.insert(MemberKey(path), value);
    return ModifyJsonValue(document, valuePath, values, 0);
}
