#include "tests/fuzz/wire/CommandRules.h"

#include <algorithm>
#include <memory>

#include "Controller/calibration/CalCmdBuilder.h"
#include "Controller/calibration/LossConfig.h"
#include "Controller/commands/NrCoreCmdBuilder.h"
#include "Controller/fields/CommandConversions.h"
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

template <typename Build>
auto Twice(const Build &build)
{
    const auto command = build();
    Require(SameBytes(command, build()), "the same document makes the same command");
    return command;
}

bool IsFlag(uint32_t value)
{
    return value <= 1;
}

void CheckCarrier(const SNrPuschCcV7 &carrier)
{
    Require(carrier.txScs <= NL1TST_SCS_60_KHZ, "an SCS is one of three");
    Require(carrier.mcsMode <= NL1TST_MCS_DFT_S_256QAM, "a modulation is one of nine");
    Require(IsFlag(carrier.sulFreqShift) && IsFlag(carrier.txCloseLoopDisble) &&
                IsFlag(carrier.amprEnbl) && IsFlag(carrier.enableCsr) && IsFlag(carrier.enableMimo),
            "a flag is 0 or 1");
    Require(carrier.reserved3 == 0 && carrier.reserved9 == 0 && IsZero(carrier.reserved30) &&
                IsZero(carrier.reserved42),
            "reserved bytes are 0");
}

void CheckPusch(const CNrCoreCmdBuilder &builder, const QJsonObject &document)
{
    const auto forced = Twice([&] { return builder.GetPuschTxForceCmdV7(document); });
    Require(forced.forced == 1 && IsZero(forced.reserved1) && IsZero(forced.forcedMode.reserved44),
            "a forced command says so");
    Require(forced.forcedMode.carrier.enableMimo == 0, "a forced carrier has no MIMO");
    CheckCarrier(forced.forcedMode.carrier);

    const auto normal = Twice([&] { return builder.GetPuschTxNormalCmdV7(document); });
    const SNrPuschTxNormalV7 &mode = normal.normalMode;
    Require(normal.forced == 0 && IsZero(normal.reserved1) && IsZero(mode.reserved1),
            "a normal command says so");
    for (const SNrPuschCcV7 &carrier : mode.carrier) {
        CheckCarrier(carrier);
        Require(carrier.txRoute == 0, "a normal carrier has no route");
    }
    SNrPuschCcV7 second = mode.carrier[1];
    second.enableCsr = 0;
    Require(mode.ulCCNum == 2 || IsZero(second), "one carrier leaves the second empty");

    for (bool isNormal : {false, true}) {
        const auto ask = Twice([&] { return builder.GetPuschDlFreqCmd(document, isNormal); });
        Require(ask.forced == (isNormal ? 0 : 1) && ask.reserved9 == 0 && IsZero(ask.reserved2) &&
                    (!isNormal || ask.txRoute == 0),
                "a downlink question is of one mode");
    }
}

void CheckRsrpCommon(const SNrRsrpCommonV7 &carrier)
{
    Require(carrier.rxScs <= NL1TST_SCS_60_KHZ, "an SCS is one of three");
    Require(carrier.mcsMode <= NL1TST_MCS_DFT_S_256QAM, "a modulation is one of nine");
    Require(IsFlag(carrier.trxMode), "a flag is 0 or 1");
    Require(carrier.trxMode == 1 || (carrier.txPowerValue == 0 && carrier.vrbStart == 0 &&
                                     carrier.vrbLength == 0 && carrier.mcsMode == 0),
            "without pseudo TX there is no transmitter");
    Require(IsZero(carrier.reserved1) && carrier.reserved15 == 0 && carrier.reserved21 == 0,
            "reserved bytes are 0");
}

void CheckRsrp(const CNrCoreCmdBuilder &builder, const QJsonObject &document)
{
    const auto forced = Twice([&] { return builder.GetRsrpForceCmdV7(document); });
    const SNrRsrpForcedCcV7 &carrier = forced.forcedMode.carrier;
    CheckRsrpCommon(carrier.common);
    Require(forced.forced == 1 && carrier.lpmHpmConf <= 3, "a forced command says so");
    Require(carrier.common.trxMode == 1 || carrier.txRoute == 0,
            "without pseudo TX there is no transmitter");
    Require(IsZero(forced.reserved1) && IsZero(forced.forcedMode.reserved40) &&
                IsZero(carrier.reserved37),
            "reserved bytes are 0");

    const auto normal = Twice([&] { return builder.GetRsrpNormalCmdV7(document); });
    const SNrRsrpNormalV7 &mode = normal.normalMode;
    CheckRsrpCommon(mode.carrier[0].common);
    Require(normal.forced == 0 && mode.carrierCount == 1 && IsFlag(mode.carrier[0].mimo4x4),
            "a normal command says so");
    Require(IsZero(normal.reserved1) && IsZero(mode.reserved1) &&
                IsZero(mode.carrier[0].reserved33) && IsZero(mode.carrier[1]),
            "reserved bytes are 0");
}

template <typename Command>
void CheckReceiver(const Command &command)
{
    Require(command.routeKind == 1 || command.routeKind == 3, "a route kind is 1 or 3");
    Require(IsFlag(command.lowPower) && IsFlag(command.singlePath), "a flag is 0 or 1");
    Require(command.path <= 1 || command.path == 3, "a path is 0, 1 or 3");
    Require(command.singlePath == 1 || command.path == 3, "both paths are no single path");
    Require(command.singlePath == 0 || command.path != 3 || IsZero(command.gain),
            "no path has no gains");
}

void CheckReceivers(const CNrCoreCmdBuilder &builder, const QJsonObject &document)
{
    const auto contRx = Twice([&] { return builder.GetContRxCmdV7(document); });
    CheckReceiver(contRx);
    Require(IsZero(contRx.reserved17), "reserved bytes are 0");

    const auto search = Twice([&] { return builder.GetGainSearchCmdV7(document); });
    Require(search.radioKind == 1 && IsFlag(search.lowPower) && IsFlag(search.simultaneous),
            "a flag is 0 or 1");
    Require(search.simultaneous == 1 || (search.search[2] == 0 && search.search[3] == 0),
            "one path is searched alone");
    Require(IsZero(search.reserved18), "reserved bytes are 0");

    const auto rssi = Twice([&] { return builder.GetRssiCmdV7(document); });
    CheckReceiver(rssi);
    for (int i = rssi.numFreq; i < static_cast<int>(std::size(rssi.dlFrequency)); ++i)
        Require(rssi.dlFrequency[i] == 0, "a frequency that does not count is 0");
    Require(IsZero(rssi.reserved34), "reserved bytes are 0");
}

void CheckSingleTone(const CNrCoreCmdBuilder &builder, const QJsonObject &document)
{
    const auto tone = Twice([&] { return builder.GetSingleToneTxCmdV7(document); });
    Require(tone.radioKind == 1 && IsFlag(tone.afcDataType), "a flag is 0 or 1");
    Require(tone.ulFreqOffset >= -540 && tone.ulFreqOffset <= 540 && tone.ulFreqOffset % 90 == 0,
            "a tone offset is one of thirteen");
}

// Fills a record twice, and gives the outcome to keeps with what it was before.
template <typename Record, typename Fill, typename Keeps>
void CheckFill(const CCommandInput &input, const Fill &fill, const Keeps &keeps)
{
    const auto before = std::make_unique<Record>();
    input.Fill(*before);
    before->blockCount %= kVondCalMaxBlocks + 1;
    const auto after = std::make_unique<Record>(fill(*before));
    Require(after->band == before->band && after->route == before->route,
            "a page changes no band and no route");
    Require(after->blockCount <= kVondCalMaxBlocks, "a record has at most 4 blocks");
    keeps(*before, *after);
    Require(SameBytes(*after, Record(fill(*after))), "a document's second time changes nothing");
}

void KeepsApt(const SAptRouteBwRecord &before, const SAptRouteBwRecord &after)
{
    Require(after.paModeCount == before.paModeCount && after.reserved7 == before.reserved7 &&
                after.reserved187 == before.reserved187 &&
                SameBytes(after.reserved194, before.reserved194) &&
                SameBytes(after.prfIndex, before.prfIndex),
            "what the APT page does not show stays");
}

// isShown: subbands that the page may change.
template <typename Record, typename IsShown>
void KeepsLoss(const Record &before, const Record &after, int16_t SMMLossPair::*other,
               const IsShown &isShown)
{
    for (int subband = 0; subband < kVondCalMaxSubbands; ++subband) {
        Require(isShown(subband) || SameBytes(before.loss[subband], after.loss[subband]),
                "the losses of other subbands stay");
        for (std::size_t pair = 0; pair < std::size(before.loss[subband]); ++pair)
            Require(before.loss[subband][pair].*other == after.loss[subband][pair].*other,
                    "the losses of the other power mode stay");
    }
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

void CheckCalCommands(const CCommandInput &input)
{
    const CCalCmdBuilder builder;
    const QJsonObject &document = input.Document();
    if (input.IsFor({EPageId::AptProfile}))
        CheckFill<SAptRouteBwRecord>(
            input, [&](const auto &record) { return builder.GetAptCmdV7(document, record); },
            KeepsApt);
    if (!input.IsFor({EPageId::RxPathLoss}))
        return;
    const SLossConfig config = ReadLossConfig(document);
    const bool isLow = config.powerMode.contains(QLatin1String("LPM"));
    const auto other = isLow ? &SMMLossPair::hpm : &SMMLossPair::lpm;
    CheckFill<SMMType1PathlossByRouteV7>(
        input, [&](const auto &record) { return builder.GetType1PathLossCmdV7(document, record); },
        [&](const auto &before, const auto &after) {
            KeepsLoss(before, after, other, [](int) { return true; });
        });
    CheckFill<SMMType2PathlossByRouteV7>(
        input, [&](const auto &record) { return builder.GetType2PathLossCmdV7(document, record); },
        [&](const auto &before, const auto &after) {
            KeepsLoss(before, after, other, [&](int i) { return i == config.freqIdx; });
        });
}
