// Checks of the receive commands.

#include "Simulator/radio/Checks.h"

#include <initializer_list>

namespace {

constexpr uint8_t kMostMeasurements = 10;

// The parts that the gain blocks of continuous RX and RSSI have in common, by field name.
template <class Single>
SVerdict CheckSingleRfGains(const Single &gain)
{
    for (const int16_t value : {gain.mainRfGain, gain.divRfGain}) {
        if (const SVerdict verdict = CheckRfGain(value); !verdict.Ok())
            return verdict;
    }
    return {};
}

template <class Both>
SVerdict CheckBothRfGains(const Both &gain)
{
    for (const uint8_t index : {gain.path0MainGainIdx, gain.path0DivGainIdx, gain.path1MainGainIdx,
                                gain.path1DivGainIdx}) {
        if (const SVerdict verdict = CheckGainIndex(index); !verdict.Ok())
            return verdict;
    }
    for (const int16_t value :
         {gain.path0MainRfGain, gain.path0DivRfGain, gain.path1MainRfGain, gain.path1DivRfGain}) {
        if (const SVerdict verdict = CheckRfGain(value); !verdict.Ok())
            return verdict;
    }
    return {};
}

SVerdict CheckDigitalGains(std::initializer_list<int16_t> gains)
{
    for (const int16_t value : gains) {
        if (const SVerdict verdict = CheckDigitalGain(value); !verdict.Ok())
            return verdict;
    }
    return {};
}

// Route, power mode and path words, which continuous RX and RSSI share.
template <class Command>
SVerdict CheckReceiver(const SProfile &profile, const Command &command)
{
    if (FindBand(profile, command.band) == nullptr)
        return EResult::UnknownBand;
    SRxRouteChoice choice;
    const SVerdict route =
        ChooseRxRoute(profile, command.band, command.rxRoute, command.routeKind, choice);
    if (!route.Ok())
        return route;
    if (command.lowPower > 1)
        return EResult::PowerMode;
    return CheckPath(choice, command.singlePath, command.path);
}

bool Allowed(const SMMRfRxGainInfoV7 &gain, uint8_t elna, uint8_t path0)
{
    return elna < 7 && path0 < 3 && gain.t1[elna][path0] == 1;
}

bool AllowedTogether(const SMMRfRxGainInfoV7 &gain, uint8_t elna, uint8_t path0, uint8_t path1)
{
    return elna < 7 && path0 < 3 && path1 < 3 && gain.t2[elna][path0][path1] == 1;
}

// Pseudo TX/RX: the transmitter runs on the same band, at the same bandwidth.
SVerdict CheckPseudoTx(const SProfile &profile, const SNrRsrpCommonV7 &carrier)
{
    const SProfileBand *band = FindBand(profile, carrier.band);
    if (band == nullptr || !band->uplink.Exists())
        return EResult::RouteDirection;
    return CheckAllocation({carrier.rxScs, carrier.dlBandwidth, carrier.vrbStart, carrier.vrbLength,
                            carrier.mcsMode, carrier.txPowerValue});
}

SVerdict CheckRsrpCarrier(const SProfile &profile, const SNrRsrpCommonV7 &carrier,
                          const SCarrierPlace &place)
{
    if (const SVerdict verdict = CheckDownlink(profile, place); !verdict.Ok())
        return verdict;
    if (const SVerdict verdict = CheckChannel(carrier.rxScs, carrier.dlBandwidth); !verdict.Ok())
        return verdict;
    if (carrier.measCnt < 1 || carrier.measCnt > kMostMeasurements)
        return EResult::MeasureCount;
    if (carrier.tddSlotConfig > kHighestSlotFormat)
        return EResult::SlotFormat;
    if (carrier.trxMode > 1)
        return EResult::Flag;
    return carrier.trxMode == 1 ? CheckPseudoTx(profile, carrier) : SVerdict();
}

SVerdict CheckForcedRsrp(const SProfile &profile, const SNrRsrpForcedCcV7 &carrier)
{
    const SNrRsrpCommonV7 &common = carrier.common;
    const SVerdict place = CheckRsrpCarrier(
        profile, common, {common.band, common.dlFrequency, true, carrier.rxRoute, true});
    if (!place.Ok())
        return place;
    const SProfileRxRoute *route = FindRoute(profile.rxType1Routes, carrier.rxRoute, common.band);
    if (route == nullptr)
        return EResult::RouteKind;
    if (carrier.lpmHpmConf < 1 || carrier.lpmHpmConf > 3)
        return EResult::PowerMode;
    if (common.trxMode == 0)
        return {};
    if (FindRoute(profile.txRoutes, carrier.txRoute) == nullptr)
        return EResult::UnknownRoute;
    if (FindRoute(profile.txRoutes, carrier.txRoute, common.band) == nullptr)
        return EResult::RouteNotOnBand;
    for (const uint16_t paired : route->txRoutes) {
        if (paired == carrier.txRoute)
            return {};
    }
    return EResult::RoutePairing;
}

SVerdict CheckNormalRsrp(const SProfile &profile, const SNrRsrpNormalV7 &command)
{
    if (command.carrierCount != 1)
        return EResult::CarrierCount;
    const SNrRsrpCcV7 &carrier = command.carrier[0];
    const SNrRsrpCommonV7 &common = carrier.common;
    const SVerdict place =
        CheckRsrpCarrier(profile, common, {common.band, common.dlFrequency, false, 0, true});
    if (!place.Ok())
        return place;
    if (carrier.mimo4x4 > 1)
        return EResult::Flag;
    if (carrier.mimo4x4 == 1 && !FindBand(profile, common.band)->rx4x4)
        return EResult::Mimo;
    return {};
}

}  // namespace

SVerdict CheckContRx(const SProfile &profile, const SMMContRxCmdV7 &command)
{
    if (const SVerdict verdict = CheckReceiver(profile, command); !verdict.Ok())
        return verdict;
    const SVerdict place =
        CheckDownlink(profile, {command.band, command.dlFrequency, true, command.rxRoute, false});
    if (!place.Ok())
        return place;
    if (!IsChannelBandwidth(command.dlBandwidth))
        return EResult::Bandwidth;
    return command.singlePath == 1 ? CheckSingleRfGains(command.gain.single)
                                   : CheckBothRfGains(command.gain.simultaneous);
}

SVerdict CheckRssi(const SProfile &profile, const SMMRssiCmdV7 &command)
{
    if (const SVerdict verdict = CheckReceiver(profile, command); !verdict.Ok())
        return verdict;
    if (command.numFreq < 1 || command.numFreq > 5)
        return EResult::FrequencyCount;
    for (uint8_t i = 0; i < command.numFreq; ++i) {
        const SVerdict place = CheckDownlink(
            profile, {command.band, command.dlFrequency[i], true, command.rxRoute, false});
        if (!place.Ok())
            return place;
    }
    if (command.singlePath == 1) {
        const auto &gain = command.gain.single;
        const SVerdict verdict = CheckSingleRfGains(gain);
        return verdict.Ok() ? CheckDigitalGains({gain.mainDigitalGain, gain.divDigitalGain})
                            : verdict;
    }
    const auto &gain = command.gain.simultaneous;
    const SVerdict verdict = CheckBothRfGains(gain);
    return verdict.Ok() ? CheckDigitalGains({gain.path0MainDigitalGain, gain.path0DivDigitalGain,
                                             gain.path1MainDigitalGain, gain.path1DivDigitalGain})
                        : verdict;
}

SVerdict CheckGainSearch(const SProfile &profile, const SMMGainSearchCmdV7 &command)
{
    if (command.radioKind != 1)
        return EResult::RadioKind;
    if (command.lowPower > 1)
        return EResult::PowerMode;
    if (command.simultaneous > 1)
        return EResult::Flag;
    const SMMRfRxGainInfoV7 &gain = profile.gain[command.lowPower];
    const uint8_t *search = command.search;
    const bool good = command.simultaneous == 1
                          ? AllowedTogether(gain, command.elnaModeMain, search[0], search[2]) &&
                                AllowedTogether(gain, command.elnaModeDiv, search[1], search[3])
                          : Allowed(gain, command.elnaModeMain, search[0]) &&
                                Allowed(gain, command.elnaModeDiv, search[1]);
    return good ? SVerdict() : SVerdict(EResult::GainMode);
}

SVerdict CheckRsrp(const SProfile &profile, const SNrRsrpCmdV7 &command)
{
    if (command.forced > 1)
        return EResult::Flag;
    return command.forced == 1 ? CheckForcedRsrp(profile, command.forcedMode.carrier)
                               : CheckNormalRsrp(profile, command.normalMode);
}
