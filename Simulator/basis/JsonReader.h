// Strict reading of JSON objects: each value is checked for its type and limits as it is taken, and
// keys that nobody took are errors. Every failure is a std::runtime_error that names the place,
// such as "bands[2].band: 0 is not within 1 to 65535".
//
//   CJsonReader reader(json, "bands[2]");
//   band.band = reader.Integer<uint16_t>("band", 1, 65535);
//   reader.Done();
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <set>
#include <string>

#include <nlohmann/json.hpp>

class CJsonReader
{
public:
    // Throws when json is no object; keeps a reference to it.
    CJsonReader(const nlohmann::json &json, std::string place);

    bool Has(const char *key) const { return m_json.contains(key); }

    // Without a fallback the key must be there.
    template <class Number>
    Number Integer(const char *key, int64_t least, int64_t most,
                   std::optional<Number> fallback = std::nullopt)
    {
        if (fallback && !Has(key))
            return *fallback;
        return static_cast<Number>(IntegerOf(Take(key), Place(key), least, most));
    }
    bool Boolean(const char *key, std::optional<bool> fallback = std::nullopt);
    double Real(const char *key, double least, double most,
                std::optional<double> fallback = std::nullopt);
    std::string Text(const char *key, std::size_t longest,
                     std::optional<std::string> fallback = std::nullopt);
    const nlohmann::json &Take(const char *key);
    // Calls use(element, its place) for each element of an array; a missing key is an empty array.
    void Each(const char *key, std::size_t most,
              const std::function<void(const nlohmann::json &, const std::string &)> &use);
    std::string Place(const std::string &key) const;

    // Throws when the object has a key that was not asked for.
    void Done() const;

    static int64_t IntegerOf(const nlohmann::json &json, const std::string &place, int64_t least,
                             int64_t most);
    static std::string TextOf(const nlohmann::json &json, const std::string &place,
                              std::size_t longest);
    [[noreturn]] static void Fail(const std::string &place, const std::string &reason);

private:
    const nlohmann::json &m_json;
    std::string m_place;
    std::set<std::string> m_taken;
};
