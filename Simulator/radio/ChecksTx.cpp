// Checks of the transmit commands.

#include "Simulator/radio/Checks.h"

namespace {

constexpr uint16_t kHighestCellId = 1007;
constexpr int32_t kWidestToneOffset = 540;  // kHz

SVerdict CheckPuschCarrier(const SProfile &profile, const SNrPuschCcV7 &carrier, bool forced)
{
    const SVerdict place =
        CheckUplink(profile, {carrier.band, carrier.ulFrequency, forced, carrier.txRoute, true});
    if (!place.Ok())
        return place;
    if (carrier.tddSlotConfig > kHighestSlotFormat)
        return EResult::SlotFormat;
    if (carrier.cellId > kHighestCellId)
        return EResult::CellId;
    for (const uint8_t flag : {carrier.sulFreqShift, carrier.txCloseLoopDisble, carrier.amprEnbl,
                               carrier.enableCsr, carrier.enableMimo}) {
        if (flag > 1)
            return EResult::Flag;
    }
    if (carrier.enableMimo == 1 && !FindBand(profile, carrier.band)->ulMimo)
        return EResult::Mimo;
    return CheckAllocation({carrier.txScs, carrier.ulBandwidth, carrier.vrbStart, carrier.vrbLength,
                            carrier.mcsMode, carrier.txPowerValue});
}

}  // namespace

SVerdict CheckSingleTone(const SProfile &profile, const SMMSingleToneCmdV7 &command)
{
    if (command.radioKind != 1)
        return EResult::RadioKind;
    const SVerdict place =
        CheckUplink(profile, {command.band, command.ulFrequency, true, command.txRoute, false});
    if (!place.Ok())
        return place;
    if (const SVerdict verdict = CheckTxPower(command.txPowerValue); !verdict.Ok())
        return verdict;
    if (command.ulFreqOffset < -kWidestToneOffset || command.ulFreqOffset > kWidestToneOffset ||
        command.afcDataType > 1)
        return EResult::Tone;
    for (const SProfileBwRegion &region :
         FindRoute(profile.txRoutes, command.txRoute, command.band)->regions) {
        if (region.kHz == command.aggBwKhzRange)
            return {};
    }
    return EResult::BandwidthRegion;
}

SVerdict CheckPuschTx(const SProfile &profile, const SNrPuschTxCmdV7 &command)
{
    if (command.forced > 1)
        return EResult::Flag;
    if (command.forced == 1)
        return CheckPuschCarrier(profile, command.forcedMode.carrier, true);
    if (command.normalMode.ulCCNum < 1 || command.normalMode.ulCCNum > 2)
        return EResult::CarrierCount;
    for (uint8_t i = 0; i < command.normalMode.ulCCNum; ++i) {
        const SVerdict verdict = CheckPuschCarrier(profile, command.normalMode.carrier[i], false);
        if (!verdict.Ok())
            return verdict;
    }
    return {};
}
