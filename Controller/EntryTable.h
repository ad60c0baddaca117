// Collects the entries of objects that share their keys, and makes the objects at once.
//
// Qt 5.15 keeps the keys of an object sorted in one array, so that inserting them in any other
// order costs the square of their number. Here entries may come in any order: a key that comes
// again replaces its values, and a missing value leaves its key out. Making the objects costs n log
// n. A value type; any thread.
//
//   CEntryTable<2> vrb;
//   vrb.Put("25 RB", {start, length});
//   const auto [starts, lengths] = vrb.ToObjects();
#pragma once

#include <algorithm>
#include <array>
#include <vector>

#include <QJsonObject>
#include <QJsonValue>
#include <QString>

template <std::size_t Columns>
class CEntryTable
{
public:
    using TValues = std::array<QJsonValue, Columns>;

    void Put(const QString &key, const TValues &values) { m_rows.push_back({key, values}); }

    std::array<QJsonObject, Columns> ToObjects() const
    {
        std::vector<const SRow *> sorted;
        sorted.reserve(m_rows.size());
        for (const SRow &row : m_rows)
            sorted.push_back(&row);
        std::stable_sort(sorted.begin(), sorted.end(),
                         [](const SRow *a, const SRow *b) { return a->key < b->key; });

        std::array<QJsonObject, Columns> objects;
        for (std::size_t i = 0; i < sorted.size(); ++i) {
            if (i + 1 < sorted.size() && sorted[i + 1]->key == sorted[i]->key)
                continue;
            for (std::size_t c = 0; c < Columns; ++c) {
                if (!sorted[i]->values[c].isUndefined())
                    objects[c].insert(sorted[i]->key, sorted[i]->values[c]);
            }
        }
        return objects;
    }

private:
    struct SRow
    {
        QString key;
        TValues values;
    };
    std::vector<SRow> m_rows;  // in the order in which they came
};

// One object alone.
class CObjectTable
{
public:
    void Put(const QString &key, const QJsonValue &value) { m_table.Put(key, {value}); }
    QJsonObject ToObject() const { return m_table.ToObjects()[0]; }

private:
    CEntryTable<1> m_table;
};
