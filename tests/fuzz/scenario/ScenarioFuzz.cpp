// Fuzz target of the simulated DUT's scenarios: any bytes for a scenario, then calls to the DUT.
//
// - A scenario is taken or refused. A refused one has a reason in one line and changes nothing; a
//   taken one reads as it was given.
// - The same scenario does the same to the same calls.
// - The state of a DUT can be saved as a scenario, and what was saved is taken and leads to the same
//   state again.
#include <memory>
#include <string>
#include <vector>

#include "Simulator/VondSim.h"
#include "Vond/VondCore.h"
#include "tests/common/GoodCommands.h"
#include "tests/fuzz/common/FuzzTarget.h"

namespace {

constexpr uint32_t kHandle = 1;
constexpr uint32_t kTimeoutMs = 1000;
constexpr int kRounds = 6;

template <class Read>
std::string TextOf(const Read &read)
{
    std::string text(read(nullptr, 0u), '\0');
    read(text.data(), static_cast<uint32_t>(text.size()) + 1);
    return text;
}

std::string State()
{
    return TextOf([](char *text, uint32_t size) {
        return VondSim_GetStateAsScenario("saved", "", text, size);
    });
}

// All that a scenario changes.
std::string Everything()
{
    return State() + TextOf(VondSim_GetRadioText) + TextOf(VondSim_GetScenarioText) +
           std::to_string(VondSim_FaultCount()) + std::to_string(VondSim_IsPlugged());
}

// Words of JSON can be escaped; whatever is, may be any of them.
bool MayDelay(const std::string &text)
{
    return text.find("delay") != std::string::npos || text.find('\\') != std::string::npos;
}

// Delays are left out: they would be slept through.
bool PutInPlace(const std::string &text)
{
    const bool isTaken = VondSim_SetScenarioText(text.c_str()) == 0;
    if (MayDelay(text))
        VondSim_ClearFaults();
    return isTaken;
}

template <class Record>
void Keep(std::string &bytes, const Record &record)
{
    bytes.append(reinterpret_cast<const char *>(&record), sizeof(record));
}

// What calls of a test, a power reading and a download bring, as one text of bytes.
std::string Play()
{
    std::string bytes;
    const SNrRsrpCmdV7 rsrp = RsrpForcedCommand();
    const SMMSingleToneCmdV7 tone = SingleToneCommand();
    const auto download = std::make_unique<SMMSetCalDataReqV7>();
    download->radioKind = 1;
    download->version = kVondCalVersion;
    download->type1Count = 1;
    download->type1[0] = {1, 1};
    download->type1Block[0].band = 1;
    for (int round = 0; round < kRounds; ++round) {
        uint32_t status = 0;
        NRfTestResult_GetMixRxReportV7 report = {};
        int16_t power = 0;
        SMMSetCalDataCnfV7 verdict = {};
        Keep(bytes, VOND_NRf_RsrpV7_r(kHandle, kTimeoutMs, &rsrp, &status));
        Keep(bytes, VOND_NRf_GetMixRxReportV7_r(kHandle, kTimeoutMs, &report));
        Keep(bytes, VOND_NRf_TestStop_r(kHandle, kTimeoutMs));
        Keep(bytes, VOND_MMRf_SingleToneTxV7_r(kHandle, kTimeoutMs, &tone));
        Keep(bytes, VOND_MMRf_GetPdValueV7_r(kHandle, kTimeoutMs, 1, &power));
        Keep(bytes, VOND_MMRf_TestStopV7_r(kHandle, kTimeoutMs, 1));
        Keep(bytes, VOND_MMRf_SetCalDataV7_r(kHandle, kTimeoutMs, download.get(), &verdict));
        bytes += VOND_GetErrorString(0) != nullptr ? 't' : '0';
        Keep(bytes, status);
        Keep(bytes, report);
        Keep(bytes, power);
        Keep(bytes, verdict);
    }
    return bytes;
}

// The DUT as it was when the process began.
void BeginAnew()
{
    VondSim_SetScenario("");
    VondSim_ClearFaults();
    VondSim_SetProfile("handset");
}

std::string PlayFromTheStart(const std::string &text)
{
    BeginAnew();
    PutInPlace(text);
    return Play();
}

void CheckSavedState()
{
    const std::string saved = State();
    BeginAnew();
    Require(VondSim_SetScenarioText(saved.c_str()) == 0, "a saved state is a scenario");
    Require(State() == saved, "a saved state leads to the same state");
}

void CheckTaken(const std::string &given)
{
    Require(TextOf(VondSim_GetScenarioText) == given, "a scenario reads as it was given");
    CheckSavedState();
    Require(PlayFromTheStart(given) == PlayFromTheStart(given),
            "a scenario does the same to the same calls");
    CheckSavedState();
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    VondSim_Reset();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::string text(reinterpret_cast<const char *>(data), size);
    const std::string given = text.c_str();  // a C text ends with its first zero byte
    BeginAnew();
    const std::string before = Everything();
    if (given.empty()) {
        Require(PutInPlace(given), "no scenario at all can be put in place");
    } else if (PutInPlace(given)) {
        CheckTaken(given);
    } else {
        Require(Everything() == before, "a refused scenario changes nothing");
        const std::string reason = TextOf(VondSim_GetError);
        Require(!reason.empty() && reason.find('\n') == std::string::npos,
                "a refusal has a reason in one line");
    }
    VondSim_ClearJournal();
    return 0;
}
