#include "Simulator/basis/JsonReader.h"

#include <stdexcept>
#include <utility>

using nlohmann::json;

CJsonReader::CJsonReader(const json &json, std::string place)
    : m_json(json), m_place(std::move(place))
{
    if (!m_json.is_object())
        Fail(m_place, "is not an object");
}

bool CJsonReader::Boolean(const char *key, std::optional<bool> fallback)
{
    if (fallback && !Has(key))
        return *fallback;
    const json &value = Take(key);
    if (!value.is_boolean())
        Fail(Place(key), "is neither true nor false");
    return value.get<bool>();
}

double CJsonReader::Real(const char *key, double least, double most, std::optional<double> fallback)
{
    if (fallback && !Has(key))
        return *fallback;
    const json &value = Take(key);
    if (!value.is_number())
        Fail(Place(key), "is not a number");
    const double number = value.get<double>();
    if (!(number >= least && number <= most))
        Fail(Place(key), value.dump() + " is out of limits");
    return number;
}

std::string CJsonReader::Text(const char *key, std::size_t longest,
                              std::optional<std::string> fallback)
{
    if (fallback && !Has(key))
        return *fallback;
    return TextOf(Take(key), Place(key), longest);
}

const json &CJsonReader::Take(const char *key)
{
    m_taken.insert(key);
    const auto found = m_json.find(key);
    if (found == m_json.end())
        Fail(Place(key), "is missing");
    return *found;
}

void CJsonReader::Each(const char *key, std::size_t most,
                       const std::function<void(const json &, const std::string &)> &use)
{
    if (!Has(key)) {
        m_taken.insert(key);
        return;
    }
    const json &array = Take(key);
    if (!array.is_array())
        Fail(Place(key), "is not an array");
    if (array.size() > most)
        Fail(Place(key),
             std::to_string(array.size()) + " entries, at most " + std::to_string(most) + " fit");
    for (std::size_t i = 0; i < array.size(); ++i)
        use(array[i], Place(key) + "[" + std::to_string(i) + "]");
}

std::string CJsonReader::Place(const std::string &key) const
{
    return m_place.empty() ? key : m_place + "." + key;
}

void CJsonReader::Done() const
{
    for (const auto &item : m_json.items()) {
        if (m_taken.count(item.key()) == 0)
            Fail(Place(item.key()), "is an unknown key");
    }
}

int64_t CJsonReader::IntegerOf(const json &json, const std::string &place, int64_t least,
                               int64_t most)
{
    if (!json.is_number_integer())
        Fail(place, "is not a whole number");
    const bool tooLarge = json.is_number_unsigned() && json.get<uint64_t>() > uint64_t(INT64_MAX);
    const int64_t number = tooLarge ? INT64_MAX : json.get<int64_t>();
    if (tooLarge || number < least || number > most)
        Fail(place, json.dump() + " is not within " + std::to_string(least) + " to " +
                        std::to_string(most));
    return number;
}

std::string CJsonReader::TextOf(const json &json, const std::string &place, std::size_t longest)
{
    if (!json.is_string())
        Fail(place, "is not a text");
    std::string text = json.get<std::string>();
    if (text.size() > longest)
        Fail(place, "is longer than " + std::to_string(longest) + " bytes");
    if (text.find('\0') != std::string::npos)
        Fail(place, "holds a zero byte");
    return text;
}

void CJsonReader::Fail(const std::string &place, const std::string &reason)
{
    throw std::runtime_error((place.empty() ? std::string("profile") : place) + ": " + reason);
}
