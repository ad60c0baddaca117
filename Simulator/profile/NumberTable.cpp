#include "Simulator/profile/NumberTable.h"

using nlohmann::json;

namespace {

uint16_t NumberOfName(const std::string &name, const SNumberTable &table, const std::string &place)
{
    const std::string digits = name.substr(0, table.prefix.size()) == table.prefix
                                   ? name.substr(table.prefix.size())
                                   : std::string();
    uint32_t number = 0;
    for (const char digit : digits) {
        if (digit < '0' || digit > '9' || number > 6553)
            CJsonReader::Fail(place, "is an unknown key");
        number = number * 10 + static_cast<uint32_t>(digit - '0');
    }
    if (digits.empty() || number > UINT16_MAX || std::to_string(number) != digits)
        CJsonReader::Fail(place, "is an unknown key");
    return static_cast<uint16_t>(number);
}

// take(the table's reader, key) reads one number.
template <class Fallback, class Number, class Take>
void ReadRows(CJsonReader &reader, const SNumberTable &table, Fallback &fallback,
              std::map<uint16_t, Number> &numbers, const Take &take)
{
    if (!reader.Has(table.key))
        return;
    const json &values = reader.Take(table.key);
    CJsonReader part(values, reader.Place(table.key));
    for (const auto &item : values.items()) {
        const Number number = take(part, item.key().c_str());
        if (item.key() == "default")
            fallback = number;
        else
            numbers[NumberOfName(item.key(), table, part.Place(item.key()))] = number;
    }
}

}  // namespace

void ReadNumberTable(CJsonReader &reader, const SNumberTable &table, double &fallback,
                     std::map<uint16_t, double> &numbers)
{
    ReadRows(reader, table, fallback, numbers, [&](CJsonReader &part, const char *key) {
        return part.Real(key, table.least, table.most);
    });
}

void ReadNumberTable(CJsonReader &reader, const SNumberTable &table, std::optional<int> &fallback,
                     std::map<uint16_t, int> &numbers)
{
    ReadRows(reader, table, fallback, numbers, [&](CJsonReader &part, const char *key) {
        return part.Integer<int>(key, static_cast<int64_t>(table.least),
                                 static_cast<int64_t>(table.most));
    });
}
