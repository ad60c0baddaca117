#include "Model/MemberPath.h"

QString PathFromObjectName(const QString &objectName)
{
    QString path = objectName;
    return path.replace(QLatin1Char('_'), QLatin1Char('.'));
}

bool IsBoundName(const QString &objectName)
{
    return objectName.contains(QLatin1String("cmdIf_")) ||
           objectName.contains(QLatin1String("calDataIf_"));
}

bool IsCaptionName(const QString &objectName)
{
    return objectName.contains(QLatin1String("caption"));
}

bool IsResultName(const QString &objectName)
{
    return objectName.contains(QLatin1String("cmdIf_response_")) ||
           objectName.contains(QLatin1String("calDataIf_data_"));
}

QString GroupPrefix(const QString &memberPath)
{
    const int position = memberPath.indexOf(kMemberProperty);
    return position > 0 ? memberPath.left(position) : QString();
}

QString GroupPath(const QString &memberPath)
{
    QString group = GroupPrefix(memberPath);
    group.chop(1);
    return group;
}

QString GroupPropertyPath(const QString &memberPath)
{
    return GroupPrefix(memberPath) + kMemberProperty;
}

QString GroupValuePath(const QString &memberPath)
{
    return GroupPrefix(memberPath) + kMemberValue;
}

QString MemberKey(const QString &memberPath)
{
    return memberPath.mid(memberPath.lastIndexOf(QLatin1Char('.')) + 1);
}

QString ParentPath(const QString &path)
{
    return path.left(qMax(0, path.lastIndexOf(QLatin1Char('.'))));
}
