#include "View/engine/GroupTypes.h"

#include "Model/JsonPath.h"
#include "Model/MemberPath.h"
#include "View/engine/ColumnTableGroup.h"
#include "View/engine/RowTableGroup.h"
#include "View/engine/ScalarGroup.h"

namespace {

constexpr SGroupType kGroupTypes[] = {
    // Each member in a widget of its own.
    {
        .number = 1,
        .init = InitScalarMember,
        .update = UpdateScalarMember,
        .package = PackageScalarMember,
        .relateValue = ApplyScalarValueRelevance,
        .relateStatus = ApplyScalarStatusRelevance,
    },
    // A growing table of results, for reading.
    {
        .number = 2,
        .init = InitRowTable,
        .update = UpdateRowTable,
        .append = AppendRowTable,
    },
    // Arrays that are edited in a table.
    {
        .number = 3,
        .init = InitColumnTable,
        .update = UpdateColumnTable,
        .package = PackageColumnTable,
        .relateValue = ApplyTableValueRelevance,
        .relateStatus = ApplyTableStatusRelevance,
    },
};

}  // namespace

const SGroupType *FindGroupType(int number)
{
    for (const SGroupType &row : kGroupTypes) {
        if (row.number == number)
            return &row;
    }
    return nullptr;
}

int GroupTypeOf(const QJsonObject &document, const QString &memberPath)
{
    const QString group = GroupPrefix(memberPath);
    return group.isEmpty()
               ? 0
               : GetJsonValueConst(document, group + QLatin1String("groupType")).toInt();
}
