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
        for (const SPlace &place : m_sorted) {
            const SRow &row = m_rows[place.row];
            if (!row.values[column].isUndefined())
                object.insert(row.key, row.values[column]);
        }
        return object;
    }

private:
    struct SRow
    {
        QString key;
        TValues values;
    };
    // Where a row stands among the sorted ones. The head of its key, in one number, settles most
    // comparisons without a look at the text.
    struct SPlace
    {
        quint64 head;
        std::size_t row;
    };

    static quint64 Head(const QString &key)
    {
        constexpr int kCharacters = sizeof(quint64) / sizeof(QChar);
        quint64 head = 0;
        for (int i = 0; i < kCharacters; ++i)
            head = head << 16 | (i < key.size() ? key[i].unicode() : 0);
        return head;
    }

    // The rows in the order of their keys, each key once: its last row.
    void Sort()
    {
        if (!m_sorted.empty())
            return;
        m_sorted.reserve(m_rows.size());
        for (std::size_t row = 0; row < m_rows.size(); ++row)
            m_sorted.push_back({Head(m_rows[row].key), row});
        std::sort(m_sorted.begin(), m_sorted.end(), [this](const SPlace &a, const SPlace &b) {
            if (a.head != b.head)
                return a.head < b.head;
            const int order = QString::compare(m_rows[a.row].key, m_rows[b.row].key);
            return order != 0 ? order < 0 : a.row > b.row;
        });
        const auto isSameKey = [this](const SPlace &a, const SPlace &b) {
            return a.head == b.head && m_rows[a.row].key == m_rows[b.row].key;
        };
        m_sorted.erase(std::unique(m_sorted.begin(), m_sorted.end(), isSameKey), m_sorted.end());
    }

    std::vector<SRow> m_rows;  // in the order in which they came
    std::vector<SPlace> m_sorted;
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
