#include "Controller/NrCoreCmdBuilder.h"

#include "Controller/CommandConversions.h"
#include "Model/JsonPath.h"

namespace {

constexpr uint32_t kRouteKindPlain = 1;
constexpr uint32_t kRouteKindGainMode = 3;  // a type 2 route whose gain mode flag is set
constexpr uint32_t kPathBoth = 3;           // no single path is meant

// The packaged values of one group.
class CGroupValues
{
public:
    CGroupValues(const QJsonObject &document, const char *path)
        : m_values(GetJsonValueConst(document, QLatin1String(path)).toObject())
    {
    }

    QString Text(const char *member) const
    {
        return m_values.value(QLatin1String(member)).toString();
    }
    template <typename Int>
    Int Number(const char *member) const
    {
        return DecimalInt<Int>(Text(member));
    }
    int16_t Gain(const char *member) const { return FixedPoint(Text(member), kGainScale); }

private:
    QJsonObject m_values;
};

// The members of the gain block, a row a path.
struct SPathGainMembers
{
    const char *mainRfGain;
    const char *divRfGain;
    const char *mainGainIdx;
    const char *divGainIdx;
};

constexpr SPathGainMembers kPathGains[] = {
    {"path0MainRfGain", "path0DivRfGain", "path0MainGainIdx", "path0DivGainIdx"},
    {"path1MainRfGain", "path1DivRfGain", "path1MainGainIdx", "path1DivGainIdx"},
};

// Which path a CAL type such as "Partial-On Path1" asks for.
uint32_t PathOf(const QString &calType, bool singlePath)
{
    if (singlePath && calType.contains(QLatin1String("Path0")))
        return 0;
    if (singlePath && calType.contains(QLatin1String("Path1")))
        return 1;
    return kPathBoth;
}

// "5M" is 5000 kHz.
uint32_t BandwidthKhzOfMhzText(const QString &text)
{
    return DecimalInt<uint32_t>(text.chopped(qMin(1, text.size()))) * 1000;
}

}  // namespace

SMMContRxCmdV7 CNrCoreCmdBuilder::GetContRxCmdV7(QJsonObject document) const
{
    const CGroupValues values(document, "cmdIf.request.group1.memberValue");
    const QString calType = values.Text("calType");
    const bool singlePath = !calType.contains(QLatin1String("Simultaneously"));

    SMMContRxCmdV7 command = {};
    command.rxRoute = values.Number<uint16_t>("rxRoute");
    command.routeKind =
        m_target.GetType2RouteGainFlag(command.rxRoute) != 0 ? kRouteKindGainMode : kRouteKindPlain;
    command.lowPower = values.Text("powerMode").contains(QLatin1String("HPM")) ? 0 : 1;
    command.dlBandwidth = BandwidthKhzOfMhzText(values.Text("dlBw"));
    command.band = BandNumber(values.Text("band"));
    command.singlePath = singlePath ? 1 : 0;
    command.path = PathOf(calType, singlePath);
    command.dlFrequency = values.Number<uint32_t>("dlFrequency");

    if (singlePath && command.path != kPathBoth) {
        const SPathGainMembers &members = kPathGains[command.path];
        command.gain.single.mainRfGain = values.Gain(members.mainRfGain);
        command.gain.single.divRfGain = values.Gain(members.divRfGain);
    } else if (!singlePath) {
        auto &gain = command.gain.simultaneous;
        gain.path0MainGainIdx = values.Number<uint8_t>(kPathGains[0].mainGainIdx);
        gain.path0DivGainIdx = values.Number<uint8_t>(kPathGains[0].divGainIdx);
        gain.path1MainGainIdx = values.Number<uint8_t>(kPathGains[1].mainGainIdx);
        gain.path1DivGainIdx = values.Number<uint8_t>(kPathGains[1].divGainIdx);
        gain.path0MainRfGain = values.Gain(kPathGains[0].mainRfGain);
        gain.path0DivRfGain = values.Gain(kPathGains[0].divRfGain);
        gain.path1MainRfGain = values.Gain(kPathGains[1].mainRfGain);
        gain.path1DivRfGain = values.Gain(kPathGains[1].divRfGain);
    }
    return command;
}
