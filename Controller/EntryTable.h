// Collects the entries of objects that share their keys, and makes the objects at once.
//
// Qt 5.15 keeps the keys of an object sorted in one array, so that inserting them in any other
// order costs the square of their number. Here entries may come in any order: a key that comes
// again replaces its values, and a missing value leaves its key out. Making the objects costs n log
// n. A value type; any thread.
//
//   CEntryTable<2> vrb;
//   vrb.Put("25 RB", {start, length});
//   const QJsonObject starts = vrb.ToObject(0);
#pragma once

#include <algorithm>
#include <array>
#include <numeric>
#include <vector>

#include <QJsonObject>
#include <QJsonValue>
#include <QString>

template <std::size_t Columns>
class CEntryTable
{
public:
    using TValues = std::array<QJsonValue, Columns>;

    void Put(const QString &key, const TValues &values)
    {
        m_rows.push_back({key, values});
        m_sorted.clear();
    }

    QJsonObject ToObject(std::size_t column)
    {
        Sort();
        QJsonObject object;
        for (const std::size_t row : m_sorted) {
            if (!m_rows[row].values[column].isUndefined())
                object.insert(m_rows[row].key, m_rows[row].values[column]);
        }
        return object;
    }

private:
    struct SRow
    {
        QString key;
        TValues values;
    };

    // The rows in the order of their keys, each key once: its last row.
    void Sort()
    {
        if (!m_sorted.empty())
            return;
        m_sorted.resize(m_rows.size());
        std::iota(m_sorted.begin(), m_sorted.end(), std::size_t(0));
        std::sort(m_sorted.begin(), m_sorted.end(), [this](std::size_t a, std::size_t b) {
            const int order = QString::compare(m_rows[a].key, m_rows[b].key);
            return order != 0 ? order < 0 : a > b;
        });
        m_sorted.erase(std::unique(m_sorted.begin(), m_sorted.end(),
                                   [this](std::size_t a, std::size_t b) {
                                       return m_rows[a].key == m_rows[b].key;
                                   }),
                       m_sorted.end());
    }

    std::vector<SRow> m_rows;  // in the order in which they came
    std::vector<std::size_t> m_sorted;
};

// One object alone.
class CObjectTable
{
public:
    void Put(const QString &key, const QJsonValue &value) { m_table.Put(key, {value}); }
    QJsonObject ToObject() { return m_table.ToObject(0); }

private:
    CEntryTable<1> m_table;
};
