// Alters a JSON text so that it stays one: a value, a key or an element at a time.
//
// Changed bytes seldom leave JSON behind, and what is none is all alike to its reader. The keys,
// texts and numbers put in are those of the format at hand. The same random numbers make the same
// change. Pure; any thread.
//
//   const SJsonWords words{{"band", "route"}, {0, 1, 65536}, [](std::mt19937 &) { return ...; }};
//   const QByteArray altered = MutateJson(text, words, random);
#pragma once

#include <functional>
#include <random>
#include <vector>

#include <QByteArray>
#include <QJsonDocument>
#include <QString>

// What a format is made of; keys and numbers hold at least one.
struct SJsonWords
{
    std::vector<const char *> keys;
    std::vector<double> numbers;
    std::function<QString(std::mt19937 &)> text;  // a value
};

// A JSON text altered; one that is no object comes back as it is.
QByteArray MutateJson(const QByteArray &text, const SJsonWords &words, std::mt19937 &random);

// A JSON text; null when it is none. Qt's own parser loses memory on some texts, which this keeps
// from the leak sanitizer, so that it speaks up for the leaks of others alone.
QJsonDocument ReadJson(const QByteArray &text);

// 0 to limit - 1; 0 when there is no such number. The standard distributions differ between
// libraries; a remainder does not.
inline int FuzzBelow(std::mt19937 &random, int limit)
{
    return limit > 0 ? static_cast<int>(random() % static_cast<unsigned>(limit)) : 0;
}

template <typename Item, size_t count>
const Item &FuzzOne(const Item (&items)[count], std::mt19937 &random)
{
    return items[FuzzBelow(random, static_cast<int>(count))];
}
