#include "tests/fuzz/common/JsonMutator.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QVector>

// GCC names the sanitizer in a macro, clang as a feature; Qt makes the latter harmless elsewhere.
#if defined(__SANITIZE_ADDRESS__) || __has_feature(address_sanitizer)
extern "C" void __lsan_disable();
extern "C" void __lsan_enable();
#else
static void __lsan_disable() {}
static void __lsan_enable() {}
#endif

namespace {

class CJsonMutator
{
public:
    CJsonMutator(const SJsonWords &words, std::mt19937 &random) : m_words(words), m_random(random)
    {
    }

    QJsonObject Mutate(const QJsonObject &document)
    {
        m_nodes.clear();
        Collect(document);
        m_countdown = Below(m_nodes.size());
        return Rebuild(document).toObject();
    }

private:
    int Below(int limit) { return FuzzBelow(m_random, limit); }

    template <typename Item>
    const Item &One(const std::vector<Item> &items)
    {
        return items[static_cast<size_t>(Below(static_cast<int>(items.size())))];
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
            return One(m_words.numbers);
        case 1:
            return Text();
        case 2:
            return QJsonValue();
        case 3:
            return QJsonArray{Text(), Text()};
        case 4:
            return QJsonObject{{QStringLiteral("min"), One(m_words.numbers)},
                               {QStringLiteral("max"), One(m_words.numbers)}};
        default:
            return m_nodes[Below(m_nodes.size())];
        }
    }

    QString Key() { return QLatin1String(One(m_words.keys)); }
    QString Text() { return m_words.text(m_random); }

    const SJsonWords &m_words;
    std::mt19937 &m_random;
    QVector<QJsonValue> m_nodes;  // all values of the document, each before what it holds
    int m_countdown = 0;
};

}  // namespace

// Qt's parser loses the memory of doubled keys, and what it had of a text that proves to be no JSON
// only behind its first members.
QJsonDocument ReadJson(const QByteArray &text)
{
    __lsan_disable();
    const QJsonDocument document = QJsonDocument::fromJson(text);
    __lsan_enable();
    return document;
}

QByteArray MutateJson(const QByteArray &text, const SJsonWords &words, std::mt19937 &random)
{
    const QJsonDocument document = ReadJson(text);
    if (!document.isObject())
        return text;
    CJsonMutator mutator(words, random);
    return QJsonDocument(mutator.Mutate(document.object())).toJson(QJsonDocument::Compact);
}
