#include "Runner/bench/PressGuard.h"

#include "Runner/bench/BenchPage.h"

namespace {

constexpr char kStartName[] = "m_start";
constexpr char kPowerKey[] = "txPowerValue";
constexpr char kWriteText[] = "Write";

SRefusal TooMuch(const SBenchMember &member, const QString &value, double maxDbm)
{
    return {QStringLiteral("%1 is %2 dBm, which is more than the %3 dBm that are allowed.")
                .arg(member.Name(), value)
                .arg(maxDbm)};
}

std::optional<SRefusal> GuardPower(const SPressLimits &limits, const CBenchPage &page)
{
    for (const SBenchMember &member : page.Members()) {
        if (member.key != QLatin1String(kPowerKey) || !member.isEnabled || !member.IsInput())
            continue;
        if (!limits.allowTransmit || !limits.maxDbm)
            return SRefusal{QStringLiteral("This press transmits, which is not allowed.")};
        for (const QString &value : member.values) {
            bool isNumber = false;
            const double power = value.toDouble(&isNumber);
            if (!isNumber || !(power <= *limits.maxDbm))
                return TooMuch(member, value, *limits.maxDbm);
        }
    }
    return std::nullopt;
}

}  // namespace

std::optional<SRefusal> GuardPress(const SPressLimits &limits, const CBenchPage &page,
                                   const QString &button)
{
    SBenchButton pressed;
    if (const auto refusal = page.FindButton(button, pressed))
        return refusal;
    if (pressed.text == QLatin1String(kWriteText) && !limits.allowWrite)
        return SRefusal{QStringLiteral("This press writes to the DUT, which is not allowed.")};
    return pressed.name == QLatin1String(kStartName) ? GuardPower(limits, page) : std::nullopt;
}
