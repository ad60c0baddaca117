#include "Simulator/radio/Radio.h"

#include "Simulator/radio/Checks.h"

namespace {

// Duplex distance: downlink minus uplink. It is the same over a whole FDD band.
int64_t DuplexDistance(const SProfileBand &band)
{
    return int64_t(band.downlink.low) - int64_t(band.uplink.low);
}

// The TX route that the DUT takes by itself; 0 when none serves the band.
uint16_t TxRouteOfBand(const SProfile &profile, uint16_t band)
{
    for (const SProfileTxRoute &row : profile.txRoutes) {
        if (row.band == band)
            return row.route;
    }
    return 0;
}

SRadioUse UseOf(const SMMContRxCmdV7 &command)
{
    return {.band = command.band, .route = command.rxRoute, .downlink = command.dlFrequency};
}

SRadioUse UseOf(const SMMSingleToneCmdV7 &command)
{
    return {.band = command.band,
            .route = command.txRoute,
            .isTransmitting = true,
            .txPower = command.txPowerValue / 256.0,
            .tx = {command.txRoute, command.band, command.ulFrequency, command.aggBwKhzRange}};
}

SRadioUse UseOf(const SProfile &profile, const SNrPuschTxCmdV7 &command)
{
    const bool isForced = command.forced == 1;
    const SNrPuschCcV7 &carrier =
        isForced ? command.forcedMode.carrier : command.normalMode.carrier[0];
    const uint16_t route = isForced ? carrier.txRoute : TxRouteOfBand(profile, carrier.band);
    return {.band = carrier.band,
            .route = isForced ? carrier.txRoute : uint16_t(0),
            .isTransmitting = true,
            .txPower = carrier.txPowerValue / 256.0,
            .tx = {route, carrier.band, carrier.ulFrequency, carrier.ulBandwidth}};
}

SRadioUse UseOf(const SProfile &profile, const SNrRsrpCmdV7 &command)
{
    const bool isForced = command.forced == 1;
    const SNrRsrpForcedCcV7 &forced = command.forcedMode.carrier;
    const SNrRsrpCommonV7 &carrier =
        isForced ? forced.common : command.normalMode.carrier[0].common;
    SRadioUse use = {.band = carrier.band,
                     .route = isForced ? forced.rxRoute : uint16_t(0),
                     .downlink = carrier.dlFrequency};
    if (carrier.trxMode != 1)
        return use;
    const auto uplink = static_cast<uint32_t>(carrier.dlFrequency -
                                              DuplexDistance(*FindBand(profile, carrier.band)));
    use.isTransmitting = true;
    use.txPower = carrier.txPowerValue / 256.0;
    use.tx = {isForced ? forced.txRoute : TxRouteOfBand(profile, carrier.band), carrier.band,
              uplink, carrier.dlBandwidth};
    return use;
}

}  // namespace

const char *TestName(ERunningTest test)
{
    switch (test) {
    case ERunningTest::ContRx:
        return "ContRx";
    case ERunningTest::SingleToneTx:
        return "SingleToneTx";
    case ERunningTest::PuschTx:
        return "PuschTx";
    case ERunningTest::Rsrp:
        return "Rsrp";
    case ERunningTest::None:
        break;
    }
    return "";
}

SVerdict CRadio::StartContRx(const SProfile &profile, const SMMContRxCmdV7 &command)
{
    if (m_running != ERunningTest::None)
        return EResult::TestRunning;
    const SVerdict verdict = CheckContRx(profile, command);
    if (verdict.Ok())
        Start(ERunningTest::ContRx, UseOf(command));
    return verdict;
}

SVerdict CRadio::StartSingleTone(const SProfile &profile, const SMMSingleToneCmdV7 &command)
{
    if (m_running != ERunningTest::None)
        return EResult::TestRunning;
    const SVerdict verdict = CheckSingleTone(profile, command);
    if (verdict.Ok())
        Start(ERunningTest::SingleToneTx, UseOf(command));
    return verdict;
}

SVerdict CRadio::StartPuschTx(const SProfile &profile, const SNrPuschTxCmdV7 &command)
{
    if (m_running != ERunningTest::None)
        return EResult::TestRunning;
    const SVerdict verdict = CheckPuschTx(profile, command);
    if (verdict.Ok())
        Start(ERunningTest::PuschTx, UseOf(profile, command));
    return verdict;
}

SVerdict CRadio::StartRsrp(const SProfile &profile, const SNrRsrpCmdV7 &command)
{
    if (m_running != ERunningTest::None)
        return EResult::TestRunning;
    const SVerdict verdict = CheckRsrp(profile, command);
    if (!verdict.Ok())
        return verdict;
    if (const EStatus cell = CellStatus(RsrpRun(profile, command)); cell != EStatus::Success)
        return cell;
    Start(ERunningTest::Rsrp, UseOf(profile, command));
    m_rsrp = command;
    return verdict;
}

void CRadio::StopNr()
{
    Stop(ERunningTest::PuschTx, ERunningTest::Rsrp);
}

SVerdict CRadio::StopMultiMode(uint32_t kind)
{
    if (kind != 1)
        return EResult::StopKind;
    Stop(ERunningTest::ContRx, ERunningTest::SingleToneTx);
    return {};
}

SVerdict CRadio::Rssi(const SProfile &profile, ICalibration &calibration,
                      const SMMRssiCmdV7 &command, SMMRssiCnfV7 &answer)
{
    if (m_running != ERunningTest::None)
        return EResult::TestRunning;
    const SVerdict verdict = CheckRssi(profile, command);
    if (verdict.Ok())
        answer = MeasureRssi(profile, command, calibration, m_noise);
    return verdict;
}

SVerdict CRadio::GainSearch(const SProfile &profile, const SMMGainSearchCmdV7 &command,
                            SMMGainSearchCnfV7 &answer) const
{
    const SVerdict verdict = CheckGainSearch(profile, command);
    if (verdict.Ok())
        answer = SearchGain(command);
    return verdict;
}

SVerdict CRadio::PdValue(const SProfile &profile, ICalibration &calibration, uint32_t kind,
                         int16_t &value)
{
    if (kind != 1)
        return EResult::PdKind;
    if (!m_use.isTransmitting)
        return EResult::NotTransmitting;
    value = MeasurePd(profile.radio, calibration.Output(m_use.tx, m_use.txPower), m_noise);
    return {};
}

void CRadio::MixRxReport(const SProfile &profile, ICalibration &calibration,
                         NRfTestResult_GetMixRxReportV7 &report)
{
    report = {};
    if (m_running == ERunningTest::Rsrp) {
        const SMixRxReading reading = MeasureMixRx(RsrpRun(profile, m_rsrp), calibration, m_noise);
        report = reading.report;
        m_goodBlocks += reading.goodBlocks;
        m_badBlocks += reading.badBlocks;
    }
    report.GoodBLK = m_goodBlocks;
    report.BadBLK = m_badBlocks;
}

void CRadio::ResetMixRx()
{
    m_goodBlocks = 0;
    m_badBlocks = 0;
}

SVerdict CRadio::DlFrequency(const SProfile &profile, const SNrDlFreqCmdV7 &command,
                             SNrDlFreqCnfV7 &answer) const
{
    answer = {};
    if (command.forced > 1)
        return EResult::Flag;
    const SVerdict place = CheckUplink(
        profile, {command.band, command.ulFrequency, command.forced == 1, command.txRoute, true});
    if (!place.Ok())
        return place;
    const SProfileBand &band = *FindBand(profile, command.band);
    const auto downlink = static_cast<uint32_t>(command.ulFrequency + DuplexDistance(band));
    // A supplementary uplink has no downlink of its own to map to.
    if (!band.downlink.Holds(downlink))
        return EStatus::FreqMismatch;
    answer.dlFrequency = downlink;
    return {};
}

void CRadio::Start(ERunningTest test, const SRadioUse &use)
{
    m_running = test;
    m_use = use;
    m_use.start = std::chrono::steady_clock::now();
}

void CRadio::Stop(ERunningTest one, ERunningTest other)
{
    if (m_running != one && m_running != other)
        return;
    m_running = ERunningTest::None;
    m_use = {};
}
