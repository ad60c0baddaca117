#include "View/engine/DataTypes.h"

#include "View/engine/DataTypeRows.h"
#include "View/engine/WidgetIndex.h"

namespace {

// Made at run time: Qt's SIGNAL() and SLOT() are no constants in a debug build.
const SDataType kTypes[] = {
    ListType(), RangeType(), PointRangeType(), LabelType(), BooleanType(), UnsignedRangeType(),
};

template <typename Match>
const SDataType *FindRow(Match match)
{
    for (const SDataType &row : kTypes) {
        if (match(row))
            return &row;
    }
    return nullptr;
}

}  // namespace

const SDataType *FindDataType(const QString &name)
{
    return FindRow([&](const SDataType &row) { return name == QLatin1String(row.name); });
}

const SDataType *FindScalarType(const QString &name, const QWidget *widget)
{
    return FindRow([&](const SDataType &row) {
        return row.init && name == QLatin1String(row.name) && IsExactClass(widget, row.className);
    });
}

const SDataType *FindScalarTypeOfWidget(const QWidget *widget)
{
    return FindRow(
        [&](const SDataType &row) { return row.init && IsExactClass(widget, row.className); });
}
