// Collects the entries of objects that share their keys and whose values are texts, or lists of
// texts, and makes the objects at once.
//
// A QJsonValue of a text is three blocks of memory, and an object makes five more when it takes it
// over. Here an entry is JSON in one buffer, and the parser makes the objects, see
// docs/decisions/0005-qt-json-containers.md. Entries may come in any order, and a key that comes
// again replaces its values. Where values are arrays or objects that are there already, which an
// object takes over as they are, CEntryTable is the better table.
//
// A value type; any thread.
//
//   CTextTable table(2);
//   table.Put("1,BW0", QString("7"), QStringList{"1", "2"});
//   const QJsonObject routes = table.ToObject(1);   // {"1,BW0": ["1", "2"]}
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <QJsonObject>
#include <QString>
#include <QStringList>

class CTextTable
{
public:
    explicit CTextTable(std::size_t columns = 1) : m_columns(columns) {}

    // One value for each column.
    template <typename... Values>
    void Put(const QString &key, const Values &...values)
    {
        BeginEntry(key);
        (Add(values), ...);
    }

    QJsonObject ToObject(std::size_t column = 0);

private:
    // Where an entry stands among the sorted ones. The head of its key, in one number, settles most
    // comparisons without a look at the text.
    struct SPlace
    {
        uint64_t head;
        uint32_t entry;
    };

    void BeginEntry(const QString &key);
    void BeginPart() { m_bounds.push_back(static_cast<uint32_t>(m_json.size())); }
    void Add(std::string_view latin1);
    void Add(const QString &text);
    void Add(const QStringList &texts);
    template <std::size_t count>
    void Add(const std::array<std::string, count> &texts)
    {
        for (const std::string &text : texts)
            Add(std::string_view(text));
    }

    void AppendQuoted(std::string_view utf8);
    void AppendQuoted(const QString &text);
    // part: 0 the key, then the values.
    std::string_view Part(std::size_t entry, std::size_t part) const;
    void Sort();

    std::size_t m_columns;
    std::string m_json;              // of each entry its parts: the key with a colon, the values
    std::vector<uint32_t> m_bounds;  // where each part begins
    std::vector<SPlace> m_sorted;    // the last entry of each key, in the order of the keys
};
