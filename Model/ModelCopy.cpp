#include "Model/ModelCopy.h"

#include <QJsonArray>

namespace {

QJsonValue CopyValue(const QJsonValue &value)
{
    if (value.isObject())
        return CopyModel(value.toObject());
    if (value.isString())
        return value.toString();  // a value of its own: the old one holds on to its object
    if (!value.isArray())
        return value;
    QJsonArray copy;
    for (const QJsonValue &element : value.toArray())
        copy.append(CopyValue(element));
    return copy;
}

}  // namespace

// In the order of the keys: each goes to the end.
QJsonObject CopyModel(const QJsonObject &document)
{
    QJsonObject copy;
    for (auto entry = document.begin(); entry != document.end(); ++entry)
        copy.insert(entry.key(), CopyValue(entry.value()));
    return copy;
}
