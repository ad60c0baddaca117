// Commands of the multi-RAT receiver: continuous RX, and RSSI with its gain search.
#include "Controller/commands/NrCoreCmdBuilder.h"

#include "Controller/fields/CommandFields.h"
#include "Controller/fields/PathGainFields.h"

namespace {

constexpr char kRequest[] = "cmdIf.request.group1";

constexpr uint32_t kRouteKindPlain = 1;
constexpr uint32_t kRouteKindGainMode = 3;  // a type 2 route whose gain mode flag is set
constexpr uint32_t kPathBoth = 3;           // no single path is meant

// High power wherever the text says so; all else is low power.
uint8_t LowPowerFlag(const QString &text)
{
    return text.contains(QLatin1String("HPM")) ? 0 : 1;
}
using AsLowPower = AsConverted<LowPowerFlag>;

// "5M" is 5000.
uint32_t MegahertzLetter(const QString &text)
{
    return KhzOfMhzText(text, 1);
}

bool IsSimultaneous(const QString &calType)
{
    return calType.contains(QLatin1String("Simultaneously"));
}

// Which path a CAL type such as "Partial-On Path1" asks for.
uint32_t PathOf(const QString &calType)
{
    if (IsSimultaneous(calType))
        return kPathBoth;
    if (calType.contains(QLatin1String("Path0")))
        return 0;
    return calType.contains(QLatin1String("Path1")) ? 1 : kPathBoth;
}

// What continuous RX and RSSI tell the receiver alike.
template <typename Command>
constexpr SCommandField<Command> kReceiver[] = {
    Field<&Command::lowPower, AsLowPower>("powerMode"),
    Field<&Command::band, AsBand>("band"),
    Field<&Command::rxRoute, AsNumber>("rxRoute"),
};

template <typename Command>
void FillReceiver(const CPackagedGroup &values, const CTargetCapability &target, Command &command)
{
    FillFields(kReceiver<Command>, values, command);
    command.routeKind =
        target.GetType2RouteGainFlag(command.rxRoute) != 0 ? kRouteKindGainMode : kRouteKindPlain;
    const QString calType = values.Text("calType");
    command.singlePath = IsSimultaneous(calType) ? 0 : 1;
    command.path = PathOf(calType);
}

// Gains in the layout that the command says. One path that is neither 0 nor 1 has no gains.
template <typename Command, typename SingleRows, typename BothRows>
void FillGains(const SingleRows &singleRows, const BothRows &bothRows, const CPackagedGroup &values,
               Command &command)
{
    if (command.singlePath == 0) {
        for (const auto &row : bothRows)
            command.gain.simultaneous.*row.gain = FixedPoint(values.Text(row.member), kGainScale);
    } else if (command.path != kPathBoth) {
        for (const auto &row : singleRows)
            command.gain.single.*row.gain =
                FixedPoint(values.Text(row.member[command.path]), kGainScale);
    }
}

template <typename Command>
void FillRfGains(const CPackagedGroup &values, Command &command)
{
    using Gains = decltype(Command::gain);
    FillGains(kSingleRfGains<Gains>, kBothRfGains<Gains>, values, command);
    if (command.singlePath != 0)
        return;
    for (const auto &row : kGainIndexes<Gains>)
        command.gain.simultaneous.*row.index = DecimalInt<uint8_t>(values.Text(row.member));
}

constexpr SCommandField<SMMContRxCmdV7> kContRx[] = {
    Field<&SMMContRxCmdV7::dlBandwidth, AsConverted<MegahertzLetter>>("dlBw"),
    Field<&SMMContRxCmdV7::dlFrequency, AsNumber>("dlFrequency"),
};

constexpr SCommandField<SMMRssiCmdV7> kRssi[] = {
    Field<&SMMRssiCmdV7::numFreq, AsNumber>("numFreq"),
};

constexpr SCommandField<SMMGainSearchCmdV7> kGainSearch[] = {
    Field<&SMMGainSearchCmdV7::lowPower, AsLowPower>("powerMode"),
    Field<&SMMGainSearchCmdV7::elnaModeMain, AsGainMode>("elnaModeMain"),
    Field<&SMMGainSearchCmdV7::elnaModeDiv, AsGainMode>("elnaModeDiv"),
};

// Gain modes to begin the search with; a row a path.
constexpr const char *kSearchMembers[kPathCount][2] = {
    {"path0MainSearch", "path0DivSearch"},
    {"path1MainSearch", "path1DivSearch"},
};

}  // namespace

SMMContRxCmdV7 CNrCoreCmdBuilder::GetContRxCmdV7(QJsonObject document) const
{
    const CPackagedGroup values(document, kRequest);
    SMMContRxCmdV7 command = {};
    FillReceiver(values, m_target, command);
    FillFields(kContRx, values, command);
    FillRfGains(values, command);
    return command;
}

SMMGainSearchCmdV7 CNrCoreCmdBuilder::GetGainSearchCmdV7(QJsonObject document) const
{
    const CPackagedGroup values(document, kRequest);
    const QString calType = values.Text("calType");
    const bool simultaneous = IsSimultaneous(calType);

    SMMGainSearchCmdV7 command = {};
    command.radioKind = kRadioNr;
    command.simultaneous = simultaneous ? 1 : 0;
    FillFields(kGainSearch, values, command);

    const int first = simultaneous || calType.contains(QLatin1String("Path0")) ? 0 : 1;
    const int last = simultaneous ? kPathCount - 1 : first;
    uint8_t *search = command.search;
    for (int path = first; path <= last; ++path) {
        for (const char *member : kSearchMembers[path])
            *search++ = GainModeNumber(values.Text(member));
    }
    return command;
}

SMMRssiCmdV7 CNrCoreCmdBuilder::GetRssiCmdV7(QJsonObject document) const
{
    const CPackagedGroup values(document, kRequest);
    SMMRssiCmdV7 command = {};
    FillReceiver(values, m_target, command);
    FillFields(kRssi, values, command);

    const QJsonArray frequencies =
        CPackagedGroup(document, "cmdIf.request.group2").Texts("dlFrequency");
    const int count = qMin<int>(command.numFreq, std::size(command.dlFrequency));
    for (int i = 0; i < count; ++i)
        command.dlFrequency[i] = DecimalInt<uint32_t>(frequencies.at(i).toString());

    // The gains are those that the last gain search has shown.
    const CPackagedGroup found(document, "cmdIf.response.group1");
    FillRfGains(found, command);
    using Gains = decltype(command.gain);
    FillGains(kSingleDigitalGains<Gains>, kBothDigitalGains<Gains>, found, command);
    return command;
}
