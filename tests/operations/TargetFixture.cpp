#include "tests/operations/TargetFixture.h"

#include "Operations/TargetLink.h"

namespace {

constexpr const char *kOffered[] = {kLteCapability, kMmCapability,  kNrCapability, kRouteConfig,
                                    kBandRxInfo,    kRxRouteValues, kRouteDetail,  kContRx,
                                    kMmStop,        kNrStop};

void Forget()
{
    CTargetCapability::Reset();
    VondSim_ClearJournal();
}

}  // namespace

void CTargetTest::SetUp()
{
    VondSim_Reset();
    Plug("handset");
    SetTargetHandle(kHandle);
}

void CTargetTest::TearDown()
{
    VondSim_Reset();
    SetTargetHandle(0);
    CTargetCapability::Reset();
}

void Plug(const std::string &profile)
{
    ASSERT_EQ(VondSim_SetProfile(profile.c_str()), 0) << profile;
    Forget();
}

void PlugHandsetWith(const std::string &keys)
{
    const std::string text = R"({"name": "bent handset", "base": "handset", )" + keys + "}";
    ASSERT_EQ(VondSim_SetProfileText(text.c_str()), 0) << text;
    Forget();
}

void PlugHandsetWithout(const std::string &function)
{
    std::string list;
    for (const char *name : kOffered) {
        if (name != function)
            list += (list.empty() ? "\"" : ", \"") + std::string(name) + "\"";
    }
    PlugHandsetWith("\"functions\": [" + list + "]");
}

void Fault(const std::string &function, int result)
{
    const std::string text = R"({"function": ")" + function + R"(", "kind": "fail", "result": )" +
                             std::to_string(result) + "}";
    ASSERT_EQ(VondSim_AddFault(text.c_str()), 0) << text;
}

void Noise(const std::string &function, int seed)
{
    const std::string text = R"({"function": ")" + function + R"(", "kind": "noise", "seed": )" +
                             std::to_string(seed) + "}";
    ASSERT_EQ(VondSim_AddFault(text.c_str()), 0) << text;
}

std::string FlagText(const SVondSupportFlags &flags)
{
    std::string text;
    if (flags.attempted)
        text += "attempted";
    if (flags.supported)
        text += " supported";
    if (flags.succeeded)
        text += " succeeded";
    return text;
}

std::vector<std::string> CalledFunctions()
{
    std::vector<std::string> names;
    for (const SJournalCall &entry : Journal()) {
        if (qstrcmp(entry.call.function, kErrorString) != 0)
            names.push_back(entry.call.function);
    }
    return names;
}
