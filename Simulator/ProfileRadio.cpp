#include "Simulator/ProfileRadio.h"

using nlohmann::json;

namespace {

// Numbers by "default" and by name, such as {"default": -65, "n78": -68}.
struct SNumberTable
{
    const char *key;
    std::string prefix;  // of a name, before its number
    double least;
    double most;
};

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

void ReadNumberTable(CJsonReader &reader, const SNumberTable &table, double &fallback,
                     std::map<uint16_t, double> &numbers)
{
    if (!reader.Has(table.key))
        return;
    const json &values = reader.Take(table.key);
    CJsonReader part(values, reader.Place(table.key));
    for (const auto &item : values.items()) {
        const double number = part.Real(item.key().c_str(), table.least, table.most);
        if (item.key() == "default")
            fallback = number;
        else
            numbers[NumberOfName(item.key(), table, part.Place(item.key()))] = number;
    }
}

}  // namespace

void ReadRadio(CJsonReader &reader, SProfile &profile)
{
    if (!reader.Has("radio"))
        return;
    SProfileRadio &radio = profile.radio;
    CJsonReader part(reader.Take("radio"), "radio");
    radio.seed = part.Integer<uint32_t>("seed", 0, UINT32_MAX, radio.seed);
    radio.fluctuationDb = part.Real("fluctuationDb", 0.0, 20.0, radio.fluctuationDb);
    radio.noiseFigureDb = part.Real("noiseFigureDb", 0.0, 40.0, radio.noiseFigureDb);
    ReadNumberTable(part, {"levelDbm", "n", -200.0, 30.0}, radio.levelDbm, radio.bandLevelDbm);
    ReadNumberTable(part, {"pathLossDb", "", 0.0, 120.0}, radio.pathLossDb, radio.routeLossDb);
    if (part.Has("powerDetector")) {
        CJsonReader detector(part.Take("powerDetector"), part.Place("powerDetector"));
        radio.pdSlope = detector.Real("slope", 0.0, 2.0, radio.pdSlope);
        radio.pdOffsetDb = detector.Real("offsetDb", -50.0, 50.0, radio.pdOffsetDb);
        detector.Done();
    }
    part.Done();
}
