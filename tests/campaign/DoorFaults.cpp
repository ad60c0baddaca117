#include "tests/campaign/DoorFaults.h"

#include <array>
#include <iterator>

#include "Simulator/VondSim.h"
#include "Vond/VondCalRecords.h"

namespace {

constexpr const char *kNames[] = {"fail", "null text", "late text", "status", "noise", "late"};
static_assert(std::size(kNames) == static_cast<std::size_t>(EFault::Count));

constexpr uint32_t kLastStatus = 5;  // one beyond the statuses that have a text
constexpr int kSecondMs = 1000;
constexpr char kErrorText[] = "VOND_GetErrorString";

QByteArray g_held;  // function behind a closed gate

QByteArray NameOf(const SFunction &function)
{
    return QByteArray(function.name.data(), static_cast<int>(function.name.size()));
}

void Add(const QByteArray &function, const SDoorFault &fault, const QByteArray &keys)
{
    QByteArray json = R"({"function": ")" + function + R"(", )" + keys;
    if (fault.isLastCallOnly)
        json += R"(, "nth": )" + QByteArray::number(fault.calls);
    if (VondSim_AddFault((json + "}").constData()) != 0)
        qFatal("no fault: %s", json.constData());
}

void AddText(const QByteArray &keys)
{
    const QByteArray json = R"({"function": ")" + QByteArray(kErrorText) + R"(", )" + keys + "}";
    if (VondSim_AddFault(json.constData()) != 0)
        qFatal("no fault: %s", json.constData());
}

QByteArray Result(const SDoorFault &fault)
{
    return R"("kind": "fail", "result": )" + QByteArray::number(fault.result);
}

// A verdict with its three texts, as the answer of a transfer begins.
QByteArray Verdict(uint32_t status, bool hasTexts)
{
    SMMCalVerdictV7 verdict = {};
    verdict.status = static_cast<uint8_t>(status);
    QByteArray bytes(reinterpret_cast<const char *>(&verdict), sizeof verdict);
    constexpr int kTextSize = 64;
    for (int text = 0; hasTexts && text < 3; ++text)
        bytes.replace(1 + text * kTextSize, static_cast<int>(qstrlen(kVerdictTexts[text])),
                      kVerdictTexts[text]);
    return R"("kind": "bytes", "hex": ")" + bytes.toHex() + '"';
}

void Wait(const QByteArray &function, const SDoorFault &fault, EDelay delay, bool isText)
{
    const QByteArray keys = R"("kind": "delay", "ms": )" + QByteArray::number(kSecondMs);
    if (delay == EDelay::Gate) {
        g_held = function;
        VondSim_Hold(function.constData());
    } else if (isText) {
        AddText(keys);
    } else {
        Add(function, fault, keys);
    }
}

}  // namespace

const char *FaultName(EFault kind)
{
    return kNames[static_cast<std::size_t>(kind)];
}

QString SDoorFault::Name() const
{
    QString name = FaultName(kind);
    if (kind == EFault::Fail)
        name += QString(" %1").arg(result);
    if (kind == EFault::Status)
        name += QString(" %1").arg(status);
    if (kind == EFault::Noise)
        name += QString(" %1").arg(seed);
    if (isVerdictGood)
        name += ", accepted";
    if (isLastCallOnly)
        name += ", last call";
    return name;
}

bool IsTransfer(const SFunction &function)
{
    return function.id == EFunction::GetCalData || function.id == EFunction::SetCalData;
}

std::vector<SDoorFault> FaultsOf(const SFunction &function, int calls, int noises)
{
    std::vector<SDoorFault> faults;
    if (function.kind == EFunctionKind::Library) {
        faults.push_back({&function, EFault::NoText});
    } else {
        faults.push_back({&function, EFault::Fail, kFailure});
        for (int seed = 1; seed <= noises; ++seed)
            faults.push_back({&function, EFault::Noise, 0, 0, static_cast<uint32_t>(seed)});
    }
    if (function.HasStatus()) {
        for (uint32_t status = 1; status <= kLastStatus; ++status)
            faults.push_back({&function, EFault::Status, 0, status});
    }
    if (IsTransfer(function)) {
        faults.push_back({&function, EFault::Fail, kAcceptedFailure});
        faults.push_back({&function, EFault::Fail, kFailure, 0, 1, true});
        for (const uint32_t status : {0u, 2u, 255u})
            faults.push_back({&function, EFault::Status, 0, status});
    }
    const std::size_t once = faults.size();
    for (std::size_t i = 0; calls > 1 && i < once; ++i) {
        faults.push_back(faults[i]);
        faults.back().isLastCallOnly = true;
    }
    faults.push_back({&function, EFault::Late});
    for (SDoorFault &fault : faults)
        fault.calls = calls;
    return faults;
}

std::vector<SDoorFault> TextFaultsOf(const SDoorFault &failure)
{
    std::vector<SDoorFault> faults(2, failure);
    faults[0].kind = EFault::NoText;
    faults[1].kind = EFault::LateText;
    return faults;
}

void Lay(const SDoorFault &fault, EDelay delay)
{
    const QByteArray function = NameOf(*fault.function);
    switch (fault.kind) {
    case EFault::NoText:
        if (fault.function->kind == EFunctionKind::Library) {
            Add(function, fault, R"("kind": "nullText")");
            return;
        }
        AddText(R"("kind": "nullText")");
        break;
    case EFault::LateText:
        Wait(kErrorText, fault, delay, true);
        break;
    case EFault::Late:
        Wait(function, fault, delay, false);
        return;
    case EFault::Status:
        Add(function, fault,
            IsTransfer(*fault.function)
                ? Verdict(fault.status, true)
                : R"("kind": "status", "status": )" + QByteArray::number(fault.status));
        return;
    case EFault::Noise:
        Add(function, fault, R"("kind": "noise", "seed": )" + QByteArray::number(fault.seed));
        return;
    case EFault::Fail:
    case EFault::Count:
        break;
    }
    Add(function, fault, Result(fault));
    if (fault.isVerdictGood)
        Add(function, fault, Verdict(1, false));
}

QByteArray WaitingFunction(const SDoorFault &fault)
{
    return fault.kind == EFault::LateText ? QByteArray(kErrorText) : NameOf(*fault.function);
}

void ClearDoor()
{
    VondSim_ClearFaults();
    if (!g_held.isEmpty())
        VondSim_Release(g_held.constData());
    g_held.clear();
}
