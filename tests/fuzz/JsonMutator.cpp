#include "tests/fuzz/JsonMutator.h"

#include <iterator>

#include <QJsonArray>
#include <QJsonObject>
#include <QVector>

#include "tests/fuzz/FuzzInput.h"
#include "tests/fuzz/FuzzVariant.h"

namespace {

const char *const kMembers[] = {"a", "b", "c", "n", "m", "x", "y", "t", "on", "of", "f", "r", ""};
const char *const kGroups[] = {"request.g1",  "request.g2",  "config.g1",   "config.g2",
                               "response.g1", "response.g2", "response.g3", "data.g1",
                               "data.g2",     "data.g3"};
const char *const kKeys[] = {
    "groupType",
    "memberList",
    "memberProperty",
    "memberValue",
    "instanceList",
    "instanceProperty",
    "dimentionCount",
    "startIndex",
    "indexStep",
    "colFieldCaptionList",
    "caption",
    "defaultSupport",
    "defaultEnableStatus",
    "subscribeValue",
    "subscribeValueList",
    "publishValueList",
    "publishEnableStatusList",
    "subscribeEnableStatusList",
    "trait",
    "dataType",
    "defaultValue",
    "value",
    "valuePair",
    "enableStatusPair",
    "min",
    "max",
    "decimals",
    "displayBase",
    "rangeCheck",
    "modelIntegrity",
    "integrity",
    "messageList",
    "emptyModel",
    "i0",
    "1",
    "true",
};
const char *const kWords[] = {"list",          "range", "pointRange",        "label", "boolean",
                              "unsignedRange", "1,2",   "0,1920000~1980000", "1~5,7", "~",
                              ",~,-5~"};
constexpr double kNumbers[] = {0,    1,       2,        3,      4,           16,
                               36,   37,      -1,       0.5,    9,           17,
                               64,   99,      1023,     1025,   2147483647,  -2147483648.0,
                               1e19, 1.7e308, -1.7e308, 5e-324, 4294967295.0};
constexpr char kActionKeys[] = "vvvvtttwwfpouuaaehskl";
constexpr int kShown = 94;  // printable characters behind the blank

class CJsonMutator
{
public:
    explicit CJsonMutator(std::mt19937 &random) : m_random(random) {}

    QJsonObject Mutate(const QJsonObject &document)
    {
        m_nodes.clear();
        Collect(document);
        m_countdown = Below(m_nodes.size());
        return Rebuild(document).toObject();
    }

    int Below(int limit)
    {
        return limit > 0 ? static_cast<int>(m_random() % static_cast<unsigned>(limit)) : 0;
    }

private:
    template <typename Item, size_t count>
    const Item &One(const Item (&items)[count])
    {
        return items[Below(static_cast<int>(count))];
    }

    void Collect(const QJsonValue &value)
    {
        m_nodes.append(value);
        if (value.isObject()) {
            for (const QJsonValue &inner : value.toObject())
                Collect(inner);
        } else if (value.isArray()) {
            for (const QJsonValue &inner : value.toArray())
                Collect(inner);
        }
    }

    // The value with the node changed at which the countdown ends.
    QJsonValue Rebuild(const QJsonValue &value)
    {
        if (m_countdown-- == 0)
            return Changed(value);
        if (value.isObject()) {
            QJsonObject object = value.toObject();
            for (const QString &key : object.keys())
                object.insert(key, Rebuild(QJsonValue(object.value(key))));
            return object;
        }
        if (value.isArray()) {
            QJsonArray array;
            for (const QJsonValue &inner : value.toArray())
                array.append(Rebuild(inner));
            return array;
        }
        return value;
    }

    QJsonValue Changed(const QJsonValue &value)
    {
        if (value.isObject() && Below(8) != 0)
            return ChangedObject(value.toObject());
        if (value.isArray() && Below(6) != 0)
            return ChangedArray(value.toArray());
        if (value.isDouble() && Below(3) != 0)
            return value.toDouble() + Below(5) - 2;
        if (value.isString() && Below(3) != 0)
            return Text();
        return Fresh();
    }

    QJsonValue ChangedObject(QJsonObject object)
    {
        const QStringList keys = object.keys();
        const QString key = keys.isEmpty() ? QString() : keys[Below(keys.size())];
        switch (Below(5)) {
        case 0:
            object.remove(key);
            break;
        case 1:
            object.insert(Key(), object.value(key));
            break;
        case 2:
            object.insert(Key(), object.take(key));
            break;
        default:
            object.insert(Key(), Fresh());
        }
        return object;
    }

    QJsonValue ChangedArray(QJsonArray array)
    {
        const int at = Below(array.size());
        switch (Below(4)) {
        case 0:
            if (!array.isEmpty())
                array.removeAt(at);
            break;
        case 1:
            if (!array.isEmpty())
                array.insert(at, QJsonValue(array.at(Below(array.size()))));
            break;
        default:
            array.insert(at, Below(3) == 0 ? Fresh() : QJsonValue(Text()));
        }
        return array;
    }

    // Something new, or something that stands elsewhere in the document.
    QJsonValue Fresh()
    {
        switch (Below(8)) {
        case 0:
            return One(kNumbers);
        case 1:
            return Text();
        case 2:
            return QJsonValue();
        case 3:
            return QJsonArray{Text(), Text()};
        case 4:
            return QJsonObject{{QStringLiteral("min"), One(kNumbers)},
                               {QStringLiteral("max"), One(kNumbers)}};
        default:
            return m_nodes[Below(m_nodes.size())];
        }
    }

    QString Key() { return QLatin1String(Below(3) == 0 ? One(kMembers) : One(kKeys)); }

    QString Text()
    {
        switch (Below(4)) {
        case 0:
            return FuzzText(static_cast<uint8_t>(Below(256)));
        case 1:
            return QLatin1String(One(kGroups)) + QLatin1String(".memberProperty.") +
                   QLatin1String(One(kMembers));
        case 2:
            return QLatin1String(One(kMembers));
        default:
            return QLatin1String(One(kWords));
        }
    }

    std::mt19937 &m_random;
    QVector<QJsonValue> m_nodes;  // all values of the document, each before what it holds
    int m_countdown = 0;
};

QByteArray MutateActions(QByteArray actions, CJsonMutator &mutator)
{
    const int at = mutator.Below(actions.size() / 4 + 1) * 4;
    if (mutator.Below(3) == 0) {
        actions.remove(at, 4);
        return actions;
    }
    QByteArray action("    ");
    action[0] = kActionKeys[mutator.Below(static_cast<int>(sizeof(kActionKeys)) - 1)];
    action[1] = static_cast<char>('a' + mutator.Below(26));
    action[2] = static_cast<char>(' ' + 1 + mutator.Below(kShown));
    return actions.insert(at, action);
}

}  // namespace

QByteArray MutateJson(const QByteArray &text, std::mt19937 &random)
{
    const QJsonDocument document = ReadJson(text);
    if (!document.isObject())
        return text;
    CJsonMutator mutator(random);
    return QJsonDocument(mutator.Mutate(document.object())).toJson(QJsonDocument::Compact);
}

QByteArray MutateInput(const QByteArray &input, std::mt19937 &random)
{
    CJsonMutator mutator(random);
    QList<QByteArray> parts = CutInput(input);
    if (parts.size() < 2)
        parts.append(QByteArray());
    const int part = mutator.Below(2) == 0 ? 0 : mutator.Below(parts.size());
    parts[part] = part == 1 ? MutateActions(parts[part], mutator) : MutateJson(parts[part], random);
    return JoinInput(parts);
}
