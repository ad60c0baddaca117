#include "tests/common/GoodCommands.h"

namespace {

SNrPuschCcV7 PuschCarrier()
{
    SNrPuschCcV7 carrier = {};
    carrier.band = 3;
    carrier.ulFrequency = 1747500;
    carrier.cellId = 1;
    carrier.ulBandwidth = 20000;
    carrier.vrbLength = 106;
    carrier.mcsMode = 2;
    carrier.txPowerValue = 1408;
    return carrier;
}

SNrRsrpCommonV7 RsrpCarrier(uint16_t band, uint32_t dlFrequency, uint8_t measCnt)
{
    SNrRsrpCommonV7 carrier = {};
    carrier.measCnt = measCnt;
    carrier.dlFrequency = dlFrequency;
    carrier.band = band;
    carrier.dlBandwidth = 10000;
    return carrier;
}

}  // namespace

SMMContRxCmdV7 ContRxCommand()
{
    SMMContRxCmdV7 command = {};
    command.routeKind = 1;
    command.dlBandwidth = 5000;
    command.band = 1;
    command.rxRoute = 1;
    command.singlePath = 1;
    command.path = 0;
    command.gain.single.mainRfGain = 1923;
    command.gain.single.divRfGain = 1923;
    command.dlFrequency = 2140000;
    return command;
}

SMMContRxCmdV7 ContRxBothPathsCommand()
{
    SMMContRxCmdV7 command = ContRxCommand();
    command.routeKind = 3;
    command.rxRoute = 101;
    command.singlePath = 0;
    command.path = 3;
    command.gain = {};
    command.gain.simultaneous.path0MainGainIdx = 16;
    command.gain.simultaneous.path1DivGainIdx = 17;
    command.gain.simultaneous.path0MainRfGain = 1923;
    return command;
}

SMMRssiCmdV7 RssiCommand()
{
    SMMRssiCmdV7 command = {};
    command.routeKind = 3;
    command.dlFrequency[0] = 3350000;
    command.dlFrequency[1] = 3360001;
    command.band = 78;
    command.rxRoute = 105;
    command.singlePath = 1;
    command.numFreq = 2;
    command.path = 1;
    command.gain.single.mainRfGain = 52 * 32;
    command.gain.single.divRfGain = 36 * 32;
    return command;
}

SMMRssiCmdV7 RssiBothPathsCommand()
{
    SMMRssiCmdV7 command = RssiCommand();
    command.singlePath = 0;
    command.path = 3;
    command.gain = {};
    command.gain.simultaneous.path0MainRfGain = 60 * 32;
    command.gain.simultaneous.path1MainRfGain = 55 * 32;
    return command;
}

SMMGainSearchCmdV7 GainSearchCommand()
{
    SMMGainSearchCmdV7 command = {};
    command.radioKind = 1;
    command.elnaModeMain = 1;
    command.elnaModeDiv = 1;
    command.search[0] = 1;
    command.search[1] = 1;
    return command;
}

SMMSingleToneCmdV7 SingleToneCommand()
{
    SMMSingleToneCmdV7 command = {};
    command.radioKind = 1;
    command.band = 41;
    command.txRoute = 9;
    command.afcdac = 4096;
    command.txPowerValue = 2560;
    command.ulFrequency = 2593000;
    command.aggBwKhzRange = 40000;
    command.ulFreqOffset = -540;
    command.afcDataType = 1;
    return command;
}

SNrPuschTxCmdV7 PuschForcedCommand()
{
    SNrPuschTxCmdV7 command = {};
    command.forced = 1;
    command.forcedMode.carrier = PuschCarrier();
    command.forcedMode.carrier.txRoute = 3;
    return command;
}

SNrPuschTxCmdV7 PuschNormalCommand()
{
    SNrPuschTxCmdV7 command = {};
    command.normalMode.ulCCNum = 2;
    command.normalMode.carrier[0] = PuschCarrier();
    command.normalMode.carrier[0].band = 78;
    command.normalMode.carrier[0].ulFrequency = 3549990;
    command.normalMode.carrier[0].enableMimo = 1;
    command.normalMode.carrier[1] = PuschCarrier();
    command.normalMode.carrier[1].band = 80;
    return command;
}

SNrRsrpCmdV7 RsrpForcedCommand()
{
    SNrRsrpCmdV7 command = {};
    command.forced = 1;
    command.forcedMode.carrier.common = RsrpCarrier(1, 2140000, 5);
    command.forcedMode.carrier.rxRoute = 1;
    command.forcedMode.carrier.lpmHpmConf = 3;
    return command;
}

SNrRsrpCmdV7 RsrpNormalCommand()
{
    SNrRsrpCmdV7 command = {};
    command.normalMode.carrierCount = 1;
    command.normalMode.carrier[0].common = RsrpCarrier(78, 3549990, 10);
    command.normalMode.carrier[0].mimo4x4 = 1;
    return command;
}

SNrDlFreqCmdV7 DlFreqCommand()
{
    SNrDlFreqCmdV7 command = {};
    command.band = 1;
    command.ulFrequency = 1950000;
    command.forced = 1;
    command.txRoute = 1;
    return command;
}
