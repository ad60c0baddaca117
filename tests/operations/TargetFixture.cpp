#include "tests/operations/TargetFixture.h"

#include "Operations/link/TargetLink.h"

namespace {

constexpr const char *kOffered[] = {kLteCapability, kMmCapability,  kNrCapability, kRouteConfig,
                                    kBandRxInfo,    kRxRouteValues, kRouteDetail,  kContRx,
                                    kMmStop,        kNrStop};

void AddFault(const std::string &function, const std::string &kind)
{
    const std::string text = R"({"function": ")" + function + R"(", "kind": )" + kind + "}";
    ASSERT_EQ(VondSim_AddFault(text.c_str()), 0) << text;
}

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
    AddFault(function, R"("fail", "result": )" + std::to_string(result));
}

void AnswerStatus(const std::string &function, uint32_t status)
{
    AddFault(function, R"("status", "status": )" + std::to_string(status));
}

void Noise(const std::string &function, int seed)
{
    AddFault(function, R"("noise", "seed": )" + std::to_string(seed));
}

void AnswerBytes(const std::string &function, int offset, const std::string &hex)
{
    AddFault(function,
             R"("bytes", "offset": )" + std::to_string(offset) + R"(, "hex": ")" + hex + "\"");
}

void NoErrorTexts()
{
    AddFault(kErrorString, R"("nullText")");
}

void ExpectOneCall(const char *function, const QByteArray &request)
{
    const auto calls = JournalOf(function);
    ASSERT_EQ(calls.size(), 1) << function;
    EXPECT_EQ(calls[0].call.handle, kHandle);
    EXPECT_EQ(calls[0].call.timeoutMs, 10000u);
    EXPECT_EQ(calls[0].request, request);
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
