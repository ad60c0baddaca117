#include "Vond/VondCommandRecords.h"
#include "tests/trace/records/FilledGains.h"
#include "tests/trace/records/FilledRecords.h"

namespace {

void FillPuschCarrier(CRecordFiller &filler, const std::string &prefix, SNrPuschCcV7 &carrier)
{
    FILL(prefix, carrier, band);
    FILL(prefix, carrier, tddSlotConfig);
    FILL(prefix, carrier, ulFrequency);
    FILL(prefix, carrier, sulFreqShift);
    FILL(prefix, carrier, cellId);
    FILL(prefix, carrier, ulBandwidth);
    FILL(prefix, carrier, vrbStart);
    FILL(prefix, carrier, vrbLength);
    FILL(prefix, carrier, txScs);
    FILL(prefix, carrier, mcsMode);
    FILL(prefix, carrier, txPowerValue);
    FILL(prefix, carrier, networkSelection);
    FILL(prefix, carrier, txCloseLoopDisble);
    FILL(prefix, carrier, amprEnbl);
    FILL(prefix, carrier, txRoute);
    FILL(prefix, carrier, enableCsr);
    FILL(prefix, carrier, enableMimo);
}

CRecordFiller Pusch(uint8_t forced)
{
    CRecordFiller filler;
    auto &command = filler.New<SNrPuschTxCmdV7>();
    FILL_WITH("", command, forced, forced);
    if (forced == 1) {
        FillPuschCarrier(filler, "forcedMode.carrier.", command.forcedMode.carrier);
        return filler;
    }
    FILL("", command, normalMode.ulCCNum);
    FillPuschCarrier(filler, "normalMode.carrier[0].", command.normalMode.carrier[0]);
    FillPuschCarrier(filler, "normalMode.carrier[1].", command.normalMode.carrier[1]);
    return filler;
}

void FillRsrpCommon(CRecordFiller &filler, const std::string &prefix, SNrRsrpCommonV7 &common)
{
    FILL(prefix, common, measCnt);
    FILL(prefix, common, dlFrequency);
    FILL(prefix, common, rxScs);
    FILL(prefix, common, band);
    FILL(prefix, common, tddSlotConfig);
    FILL(prefix, common, dlBandwidth);
    FILL(prefix, common, trxMode);
    FILL(prefix, common, txPowerValue);
    FILL(prefix, common, vrbStart);
    FILL(prefix, common, vrbLength);
    FILL(prefix, common, mcsMode);
}

CRecordFiller ForcedRsrp()
{
    CRecordFiller filler;
    auto &command = filler.New<SNrRsrpCmdV7>();
    FILL_WITH("", command, forced, 1);
    FillRsrpCommon(filler, "forcedMode.carrier.common.", command.forcedMode.carrier.common);
    FILL("", command, forcedMode.carrier.rxRoute);
    FILL("", command, forcedMode.carrier.txRoute);
    FILL("", command, forcedMode.carrier.lpmHpmConf);
    return filler;
}

CRecordFiller NormalRsrp()
{
    CRecordFiller filler;
    auto &command = filler.New<SNrRsrpCmdV7>();
    FILL_WITH("", command, forced, 0);
    FILL("", command, normalMode.carrierCount);
    FillRsrpCommon(filler, "normalMode.carrier[0].common.", command.normalMode.carrier[0].common);
    FILL("", command, normalMode.carrier[0].mimo4x4);
    FillRsrpCommon(filler, "normalMode.carrier[1].common.", command.normalMode.carrier[1].common);
    FILL("", command, normalMode.carrier[1].mimo4x4);
    return filler;
}

CRecordFiller DlFreq()
{
    CRecordFiller filler;
    auto &command = filler.New<SNrDlFreqCmdV7>();
    FILL("", command, band);
    FILL("", command, ulFrequency);
    FILL("", command, forced);
    FILL("", command, txRoute);
    return filler;
}

CRecordFiller SingleTone()
{
    CRecordFiller filler;
    auto &command = filler.New<SMMSingleToneCmdV7>();
    FILL("", command, radioKind);
    FILL("", command, band);
    FILL("", command, txRoute);
    FILL("", command, afcdac);
    FILL("", command, txPowerValue);
    FILL("", command, ulFrequency);
    FILL("", command, aggBwKhzRange);
    FILL("", command, ulFreqOffset);
    FILL("", command, afcDataType);
    return filler;
}

CRecordFiller ContRx(uint8_t singlePath)
{
    CRecordFiller filler;
    auto &command = filler.New<SMMContRxCmdV7>();
    FILL("", command, routeKind);
    FILL("", command, lowPower);
    FILL("", command, dlBandwidth);
    FILL("", command, band);
    FILL("", command, rxRoute);
    FILL_WITH("", command, singlePath, singlePath);
    FILL("", command, path);
    FILL("", command, dlFrequency);
    if (singlePath == 1) {
        FILL("", command, gain.single.mainRfGain);
        FILL("", command, gain.single.divRfGain);
        return filler;
    }
    FILL("", command, gain.simultaneous.path0MainGainIdx);
    FILL("", command, gain.simultaneous.path0DivGainIdx);
    FILL("", command, gain.simultaneous.path1MainGainIdx);
    FILL("", command, gain.simultaneous.path1DivGainIdx);
    FILL("", command, gain.simultaneous.path0MainRfGain);
    FILL("", command, gain.simultaneous.path0DivRfGain);
    FILL("", command, gain.simultaneous.path1MainRfGain);
    FILL("", command, gain.simultaneous.path1DivRfGain);
    return filler;
}

CRecordFiller GainSearch()
{
    CRecordFiller filler;
    auto &command = filler.New<SMMGainSearchCmdV7>();
    FILL("", command, radioKind);
    FILL("", command, lowPower);
    FILL("", command, simultaneous);
    FILL("", command, elnaModeMain);
    FILL("", command, elnaModeDiv);
    FILL("", command, search);
    return filler;
}

}  // namespace

void FillGains(CRecordFiller &filler, UMMRssiGainV7 &gain, bool isSingle)
{
    if (isSingle) {
        FILL("gain.", gain, single.mainRfGain);
        FILL("gain.", gain, single.divRfGain);
        FILL("gain.", gain, single.mainDigitalGain);
        FILL("gain.", gain, single.divDigitalGain);
        return;
    }
    FILL("gain.", gain, simultaneous.path0MainGainIdx);
    FILL("gain.", gain, simultaneous.path0DivGainIdx);
    FILL("gain.", gain, simultaneous.path1MainGainIdx);
    FILL("gain.", gain, simultaneous.path1DivGainIdx);
    FILL("gain.", gain, simultaneous.path0MainRfGain);
    FILL("gain.", gain, simultaneous.path0DivRfGain);
    FILL("gain.", gain, simultaneous.path1MainRfGain);
    FILL("gain.", gain, simultaneous.path1DivRfGain);
    FILL("gain.", gain, simultaneous.path0MainDigitalGain);
    FILL("gain.", gain, simultaneous.path0DivDigitalGain);
    FILL("gain.", gain, simultaneous.path1MainDigitalGain);
    FILL("gain.", gain, simultaneous.path1DivDigitalGain);
}

CRecordFiller FilledRssi(uint8_t singlePath)
{
    CRecordFiller filler;
    auto &command = filler.New<SMMRssiCmdV7>();
    FILL("", command, routeKind);
    FILL("", command, lowPower);
    FILL("", command, dlFrequency);
    FILL("", command, band);
    FILL("", command, rxRoute);
    FILL_WITH("", command, singlePath, singlePath);
    FILL("", command, numFreq);
    FILL("", command, path);
    FillGains(filler, command.gain, singlePath == 1);
    return filler;
}

std::vector<SFilledRecord> FilledCommands()
{
    using F = EFunction;
    return {
        FilledRequest(F::PuschTx, Pusch(1)),          FilledRequest(F::PuschTx, Pusch(0)),
        FilledRequest(F::PuschTx, Pusch(2)),          FilledRequest(F::Rsrp, ForcedRsrp()),
        FilledRequest(F::Rsrp, NormalRsrp()),         FilledRequest(F::GetDlFreq, DlFreq()),
        FilledRequest(F::SingleToneTx, SingleTone()), FilledRequest(F::ContRx, ContRx(1)),
        FilledRequest(F::ContRx, ContRx(0)),          FilledRequest(F::GainSearch, GainSearch()),
        FilledRequest(F::Rssi, FilledRssi(1)),        FilledRequest(F::Rssi, FilledRssi(0)),
    };
}
