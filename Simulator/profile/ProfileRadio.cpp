#include "Simulator/profile/ProfileRadio.h"

#include "Simulator/profile/NumberTable.h"

using nlohmann::json;

namespace {

json TableJson(double fallback, const std::map<uint16_t, double> &numbers, const char *prefix)
{
    json table = {{"default", fallback}};
    for (const auto &[number, value] : numbers)
        table[prefix + std::to_string(number)] = value;
    return table;
}

SProfileRadio ReadRadioObject(const json &whole, const std::string &place)
{
    SProfileRadio radio;
    CJsonReader part(whole, place);
    radio.seed = part.Integer<uint32_t>("seed", 0, UINT32_MAX, radio.seed);
    radio.fluctuationDb = part.Real("fluctuationDb", 0.0, 20.0, radio.fluctuationDb);
    radio.noiseFigureDb = part.Real("noiseFigureDb", 0.0, 40.0, radio.noiseFigureDb);
    radio.temperatureC = part.Real("temperatureC", -40.0, 125.0, radio.temperatureC);
    ReadNumberTable(part, {"levelDbm", "n", -200.0, 30.0}, radio.levelDbm, radio.bandLevelDbm);
    ReadNumberTable(part, {"pathLossDb", "", 0.0, 120.0}, radio.pathLossDb, radio.routeLossDb);
    if (part.Has("powerDetector")) {
        CJsonReader detector(part.Take("powerDetector"), part.Place("powerDetector"));
        radio.pdSlope = detector.Real("slope", 0.0, 2.0, radio.pdSlope);
        radio.pdOffsetDb = detector.Real("offsetDb", -50.0, 50.0, radio.pdOffsetDb);
        detector.Done();
    }
    part.Done();
    return radio;
}

}  // namespace

void ReadRadio(CJsonReader &reader, SProfile &profile)
{
    if (reader.Has("radio"))
        profile.radio = ReadRadioObject(reader.Take("radio"), "radio");
}

json RadioJson(const SProfileRadio &radio)
{
    return {{"seed", radio.seed},
            {"fluctuationDb", radio.fluctuationDb},
            {"noiseFigureDb", radio.noiseFigureDb},
            {"temperatureC", radio.temperatureC},
            {"levelDbm", TableJson(radio.levelDbm, radio.bandLevelDbm, "n")},
            {"pathLossDb", TableJson(radio.pathLossDb, radio.routeLossDb, "")},
            {"powerDetector", {{"slope", radio.pdSlope}, {"offsetDb", radio.pdOffsetDb}}}};
}

SProfileRadio ChangedRadio(const SProfileRadio &radio, const json &changes,
                           const std::string &place)
{
    if (!changes.is_object())
        CJsonReader::Fail(place, "is not an object");
    json merged = RadioJson(radio);
    merged.merge_patch(changes);
    return ReadRadioObject(merged, place);
}
