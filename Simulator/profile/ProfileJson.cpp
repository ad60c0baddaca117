#include "Simulator/profile/ProfileJson.h"

#include <stdexcept>

#include "Simulator/basis/JsonText.h"
#include "Simulator/profile/BuiltinProfiles.h"
#include "Simulator/profile/ProfileCalibration.h"
#include "Simulator/profile/ProfileRadio.h"
#include "Simulator/profile/ProfileTables.h"

using nlohmann::json;

namespace {

const char *BuiltinText(const std::string &name)
{
    for (std::size_t i = 0; const SBuiltinProfile *profile = BuiltinProfile(i); ++i) {
        if (name == profile->name)
            return profile->text;
    }
    return nullptr;
}

std::string BuiltinNames()
{
    std::string names;
    for (std::size_t i = 0; const SBuiltinProfile *profile = BuiltinProfile(i); ++i)
        names += (i == 0 ? "" : ", ") + std::string(profile->name);
    return names;
}

// Lays the profile over the built-in that its "base" names; a built-in may have a base of its own.
json WithBase(json own, int depth)
{
    if (!own.is_object() || !own.contains("base"))
        return own;
    const std::string base = CJsonReader::TextOf(own["base"], "base", 64);
    own.erase("base");
    const char *text = BuiltinText(base);
    if (text == nullptr || depth == 0)
        CJsonReader::Fail("base", "\"" + base + "\" is none of " + BuiltinNames());
    json merged = WithBase(ParseJsonText(text), depth - 1);
    merged.merge_patch(own);
    return merged;
}

SProfileChip ReadChip(CJsonReader &reader, const char *key)
{
    SProfileChip chip;
    CJsonReader part(reader.Take(key), reader.Place(key));
    chip.id = part.Integer<uint32_t>("id", 0, UINT32_MAX);
    part.Each("names", 64, [&](const json &entry, const std::string &place) {
        CJsonReader row(entry, place);
        chip.names.push_back({row.Integer<uint32_t>("id", 0, UINT32_MAX), row.Text("name", 63)});
        row.Done();
    });
    part.Done();
    return chip;
}

void ReadIdentity(CJsonReader &reader, SProfile &profile)
{
    profile.name = reader.Text("name", 63);
    reader.Text("about", 1000, "");
    profile.plugged = reader.Boolean("plugged", true);

    CJsonReader modem(reader.Take("modem"), "modem");
    profile.modemIndex = modem.Integer<int32_t>("index", 0, 255);
    profile.modemService = modem.Integer<int32_t>("serviceType", 0, 255);
    modem.Done();

    profile.lteChip = ReadChip(reader, "lteChip");
    profile.nrChip = ReadChip(reader, "nrChip");

    CJsonReader world(reader.Take("worldMode"), "worldMode");
    profile.ratValid = world.Boolean("valid");
    profile.worldMode = world.Integer<uint32_t>("mask", 0, (1 << 30) - 1);
    world.Done();

    profile.generation = reader.Integer<uint8_t>("generation", 0, 255);
    profile.rasterCheck = reader.Boolean("rasterCheck", true);
}

void ReadFunctions(CJsonReader &reader, SProfile &profile)
{
    const json all = "all";
    if (!reader.Has("functions") || reader.Take("functions") == all)
        return;
    profile.allFunctions = false;
    reader.Each("functions", static_cast<std::size_t>(EFunction::Count),
                [&](const json &entry, const std::string &place) {
                    const std::string name = CJsonReader::TextOf(entry, place, 63);
                    if (FindFunction(name) == nullptr)
                        CJsonReader::Fail(place, "\"" + name + "\" is an unknown function");
                    profile.functions.push_back(name);
                });
}

void ReadFaults(CJsonReader &reader, SProfile &profile)
{
    reader.Each("faults", 1000, [&](const json &entry, const std::string &place) {
        ParseFault(entry, place);
        profile.faults.push_back(entry.dump());
    });
}

SProfile ReadProfile(const json &whole)
{
    SProfile profile;
    CJsonReader reader(whole, "");
    ReadIdentity(reader, profile);
    ReadFunctions(reader, profile);
    ReadBands(reader, profile);
    ReadRoutes(reader, profile);
    ReadGainTables(reader, profile);
    ReadRadio(reader, profile);
    ReadCalibration(reader, profile);
    ReadFaults(reader, profile);
    reader.Done();
    CheckTables(profile);
    return profile;
}

}  // namespace

const SProfileBand *FindBand(const SProfile &profile, uint32_t band)
{
    for (const SProfileBand &row : profile.bands) {
        if (row.band == band)
            return &row;
    }
    return nullptr;
}

std::string ReadProfileText(const std::string &nameOrPath)
{
    if (const char *text = BuiltinText(nameOrPath))
        return text;
    return ReadTextFile(nameOrPath, "a profile file",
                        "no such file, and none of the built-in profiles " + BuiltinNames());
}

SProfile ParseProfile(const std::string &text, const std::string &source)
{
    try {
        return ReadProfile(WithBase(ParseJsonText(text), 4));
    } catch (const std::exception &error) {
        throw std::runtime_error(source + ": " + OneLine(error.what()));
    }
}

SProfile UnpluggedProfile()
{
    SProfile profile;
    profile.name = "unplugged";
    profile.plugged = false;
    return profile;
}
