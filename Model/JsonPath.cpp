#include "Model/JsonPath.h"

#include <QStringView>

#include "Model/ModelLog.h"

namespace {

struct SSplit
{
    QStringView head;
    QStringView tail;  // empty at the last segment
};

SSplit Split(QStringView path)
{
    const auto point = path.indexOf(QLatin1Char('.'));
    if (point < 0)
        return {path, {}};
    return {path.left(point), point == 0 ? QStringView() : path.mid(point + 1)};
}

QJsonValue Read(const QJsonObject &object, QStringView path)
{
    SSplit step = Split(path);
    QJsonValue value = object.value(step.head);
    while (!step.tail.isEmpty()) {
        step = Split(step.tail);
        value = value.toObject().value(step.head);
    }
    return value;
}

// The first segment of the path that names nothing; a null view when the whole path exists.
QStringView FirstMissing(const QJsonObject &object, QStringView path)
{
    QJsonObject parent = object;
    for (SSplit step = Split(path);; step = Split(step.tail)) {
        const QJsonValue value = parent.value(step.head);
        if (!IsJsonValueValid(value))
            return step.head.isNull() ? QStringView(u"") : step.head;
        if (step.tail.isEmpty())
            return {};
        parent = value.toObject();
    }
}

// Applies change to the place of a value that is known to exist. Each parent drops its child before
// the child is changed. Otherwise the child would be shared, and Qt would copy it whole.
// A text read from an object shares the object too, so the old value is not even looked at.
template <typename Change>
void Rewrite(QJsonObject &object, QStringView path, const Change &change)
{
    const SSplit step = Split(path);
    const auto place = object.find(step.head);
    if (step.tail.isEmpty()) {
        change(*place);
        return;
    }
    QJsonObject child = QJsonValue(*place).toObject();
    *place = QJsonValue();
    Rewrite(child, step.tail, change);
    *place = child;
}

// Logs the first segment that is missing.
bool LogMissing(const char *words, QStringView segment)
{
    qCDebug(lcModel) << words << segment.toString();
    return false;
}

}  // namespace

bool IsJsonValueValid(const QJsonValue &value)
{
    return !value.isUndefined() && !value.isNull();
}

QJsonValue GetJsonValue(QJsonObject &object, const QString &path)
{
    const QStringView head = Split(path).head;
    if (object.contains(head))
        return Read(object, path);
    object.insert(head.toString(), QJsonValue());
    return {};
}

QJsonValue GetJsonValueConst(const QJsonObject &object, const QString &path)
{
    return Read(object, path);
}

bool HasJsonValue(const QJsonObject &object, const QString &path)
{
    return FirstMissing(object, path).isNull();
}

bool ModifyJsonValue(QJsonObject &object, const QString &path, const QJsonValue &value, int depth)
{
    const QStringView missing = FirstMissing(object, path);
    if (!missing.isNull()) {
        LogMissing("Error: modify non-existing property", missing);
        if (depth == 0 && IsJsonValueValid(object.value(Split(path).head)))
            qCDebug(lcModel) << "path: " << path;
        return false;
    }
    Rewrite(object, path, [&value](QJsonValueRef place) { place = value; });
    return true;
}

bool InsertJsonObject(QJsonObject &object, const QString &path, const QString &key,
                      const QString &subKey, const QJsonValue &value)
{
    const QStringView missing = FirstMissing(object, path);
    if (!missing.isNull())
        return LogMissing("modify non-existing property", missing);
    Rewrite(object, path, [&](QJsonValueRef place) {
        QJsonObject target = QJsonValue(place).toObject();
        place = QJsonValue();
        target.insert(key, QJsonObject{{subKey, value}});
        place = target;
    });
    return true;
}

bool RemoveJsonValue(QJsonObject &object, const QString &parentPath, const QString &key)
{
    QJsonValue parent = GetJsonValueConst(object, parentPath);
    if (!IsJsonValueValid(parent)) {
        qCDebug(lcModel) << "Error: modify non-existing property" << parentPath;
        return false;
    }
    if (!IsJsonValueValid(parent.toObject().value(key))) {
        qCDebug(lcModel) << "Error: remove non-existing property" << key << "in" << parentPath;
        return false;
    }
    parent = QJsonValue();  // or it would share what is about to change
    Rewrite(object, parentPath, [&key](QJsonValueRef place) {
        QJsonObject holder = QJsonValue(place).toObject();
        place = QJsonValue();
        holder.remove(key);
        place = holder;
    });
    return true;
}

int GetJsonIntFromString(QJsonObject &object, const QString &path)
{
    return GetJsonValue(object, path).toString().toInt(nullptr, 10);
}

int FindStringInJsonArray(const QJsonArray &array, const QString &text)
{
    for (int i = 0; i < array.size(); ++i) {
        const QJsonValue element = array.at(i);
        if (element.isString() && element.toString() == text)
            return i;
    }
    return -1;
}

QString AbsoluteModelPath(const QString &relativePath, bool isCmdIf)
{
    return QStringLiteral("%1.").arg(isCmdIf ? QLatin1String("cmdIf")
                                             : QLatin1String("calDataIf")) +
           relativePath;
}
