#include "View/engine/DataTypes.h"

#include "View/editors/ExactClass.h"
#include "View/engine/DataTypeRows.h"

namespace {

// Made at run time: Qt's SIGNAL() and SLOT() are no constants in a debug build.
std::vector<SDataType> AllTypes()
{
    std::vector<SDataType> types = TextTypes();
    const std::vector<SDataType> numbers = NumberTypes();
    types.insert(types.end(), numbers.begin(), numbers.end());
    return types;
}

const std::vector<SDataType> &Types()
{
    static const std::vector<SDataType> types = AllTypes();
    return types;
}

template <typename Match>
const SDataType *FindRow(Match match)
{
    for (const SDataType &row : Types()) {
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
