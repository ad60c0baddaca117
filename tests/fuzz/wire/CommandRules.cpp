#include "tests/fuzz/wire/CommandRules.h"

#include <algorithm>
#include <span>

#include "Controller/commands/NrCoreCmdBuilder.h"
#include "Trace/dictionary/CommandLayouts.h"
#include "Trace/dictionary/Decode.h"
#include "tests/fuzz/common/FuzzTarget.h"

namespace {

template <typename Record>
bool SameBytes(const Record &a, const Record &b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

template <typename T>
bool IsZero(const T &value)
{
    const auto *bytes = reinterpret_cast<const uint8_t *>(&value);
    return std::all_of(bytes, bytes + sizeof value, [](uint8_t byte) { return byte == 0; });
}

bool HasName(const SFieldValue &value)
{
    const auto &names = value.field->values;
    return names.empty() || std::any_of(names.begin(), names.end(), [&](const SValueName &name) {
               return name.value == value.number;
           });
}

// A value of 0 is what a document without the member gives.
template <typename Command>
void CheckFields(const Command &command)
{
    const std::span bytes(reinterpret_cast<const uint8_t *>(&command), sizeof command);
    Decode(kLayoutOf<Command>, bytes, {}, [](const SFieldValue &value) {
        Require(!value.field->at.isReserved || !value.IsSet(), "reserved bytes are 0");
        Require(value.number == 0 || HasName(value), "a flag or an enumeration has a known value");
    });
}

template <typename Build>
auto Twice(const Build &build)
{
    const auto command = build();
    CheckFields(command);
    Require(SameBytes(command, build()), "the same document makes the same command");
    return command;
}

void CheckPusch(const CNrCoreCmdBuilder &builder, const QJsonObject &document)
{
    const auto forced = Twice([&] { return builder.GetPuschTxForceCmdV7(document); });
    Require(forced.forced == 1, "a forced command says so");
    Require(forced.forcedMode.carrier.enableMimo == 0, "a forced carrier has no MIMO");

    const auto normal = Twice([&] { return builder.GetPuschTxNormalCmdV7(document); });
    const SNrPuschTxNormalV7 &mode = normal.normalMode;
    Require(normal.forced == 0, "a normal command says so");
    for (const SNrPuschCcV7 &carrier : mode.carrier)
        Require(carrier.txRoute == 0, "a normal carrier has no route");
    SNrPuschCcV7 second = mode.carrier[1];
    second.enableCsr = 0;
    Require(mode.ulCCNum == 2 || IsZero(second), "one carrier leaves the second empty");

    for (bool isNormal : {false, true}) {
        const auto ask = Twice([&] { return builder.GetPuschDlFreqCmd(document, isNormal); });
        Require(ask.forced == (isNormal ? 0 : 1) && (!isNormal || ask.txRoute == 0),
                "a downlink question is of one mode");
    }
}

void CheckRsrpCommon(const SNrRsrpCommonV7 &carrier)
{
    Require(carrier.trxMode == 1 || (carrier.txPowerValue == 0 && carrier.vrbStart == 0 &&
                                     carrier.vrbLength == 0 && carrier.mcsMode == 0),
            "without pseudo TX there is no transmitter");
}

void CheckRsrp(const CNrCoreCmdBuilder &builder, const QJsonObject &document)
{
    const auto forced = Twice([&] { return builder.GetRsrpForceCmdV7(document); });
    const SNrRsrpForcedCcV7 &carrier = forced.forcedMode.carrier;
    CheckRsrpCommon(carrier.common);
    Require(forced.forced == 1, "a forced command says so");
    Require(carrier.common.trxMode == 1 || carrier.txRoute == 0,
            "without pseudo TX there is no transmitter");

    const auto normal = Twice([&] { return builder.GetRsrpNormalCmdV7(document); });
    const SNrRsrpNormalV7 &mode = normal.normalMode;
    CheckRsrpCommon(mode.carrier[0].common);
    Require(normal.forced == 0 && mode.carrierCount == 1, "a normal command says so");
    Require(IsZero(mode.carrier[1]), "the second carrier is empty");
}

template <typename Command>
void CheckReceiver(const Command &command)
{
    Require(command.routeKind == 1 || command.routeKind == 3, "a route kind is 1 or 3");
    Require(command.singlePath == 1 || command.path == 3, "both paths are no single path");
    Require(command.singlePath == 0 || command.path != 3 || IsZero(command.gain),
            "no path has no gains");
}

void CheckReceivers(const CNrCoreCmdBuilder &builder, const QJsonObject &document)
{
    CheckReceiver(Twice([&] { return builder.GetContRxCmdV7(document); }));

    const auto search = Twice([&] { return builder.GetGainSearchCmdV7(document); });
    Require(search.radioKind == 1, "a test is of NR");
    Require(search.simultaneous == 1 || (search.search[2] == 0 && search.search[3] == 0),
            "one path is searched alone");

    const auto rssi = Twice([&] { return builder.GetRssiCmdV7(document); });
    CheckReceiver(rssi);
    for (int i = rssi.numFreq; i < static_cast<int>(std::size(rssi.dlFrequency)); ++i)
        Require(rssi.dlFrequency[i] == 0, "a frequency that does not count is 0");
}

void CheckSingleTone(const CNrCoreCmdBuilder &builder, const QJsonObject &document)
{
    const auto tone = Twice([&] { return builder.GetSingleToneTxCmdV7(document); });
    Require(tone.radioKind == 1, "a test is of NR");
    Require(tone.ulFreqOffset >= -540 && tone.ulFreqOffset <= 540 && tone.ulFreqOffset % 90 == 0,
            "a tone offset is one of thirteen");
}

}  // namespace

void CheckCommands(const CCommandInput &input)
{
    const CNrCoreCmdBuilder builder;
    if (input.IsFor({EPageId::PuschTxForce, EPageId::PuschTxNormal}))
        CheckPusch(builder, input.Document());
    if (input.IsFor({EPageId::RsrpForce, EPageId::RsrpNormal}))
        CheckRsrp(builder, input.Document());
    if (input.IsFor({EPageId::ContRx, EPageId::Rssi}))
        CheckReceivers(builder, input.Document());
    if (input.IsFor({EPageId::SingleToneTx}))
        CheckSingleTone(builder, input.Document());
}
