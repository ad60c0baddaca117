#include "Simulator/radio/Radio.h"

#include "Simulator/radio/Checks.h"

namespace {

// Duplex distance: downlink minus uplink. It is the same over a whole FDD band.
int64_t DuplexDistance(const SProfileBand &band)
{
    return int64_t(band.downlink.low) - int64_t(band.uplink.low);
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
        m_running = ERunningTest::ContRx;
    return verdict;
}

SVerdict CRadio::StartSingleTone(const SProfile &profile, const SMMSingleToneCmdV7 &command)
{
    if (m_running != ERunningTest::None)
        return EResult::TestRunning;
    const SVerdict verdict = CheckSingleTone(profile, command);
    if (verdict.Ok()) {
        m_running = ERunningTest::SingleToneTx;
        Transmit(command.txPowerValue);
    }
    return verdict;
}

SVerdict CRadio::StartPuschTx(const SProfile &profile, const SNrPuschTxCmdV7 &command)
{
    if (m_running != ERunningTest::None)
        return EResult::TestRunning;
    const SVerdict verdict = CheckPuschTx(profile, command);
    if (verdict.Ok()) {
        const SNrPuschCcV7 &carrier =
            command.forced == 1 ? command.forcedMode.carrier : command.normalMode.carrier[0];
        m_running = ERunningTest::PuschTx;
        Transmit(carrier.txPowerValue);
    }
    return verdict;
}

SVerdict CRadio::StartRsrp(const SProfile &profile, const SNrRsrpCmdV7 &command)
{
    if (m_running != ERunningTest::None)
        return EResult::TestRunning;
    const SVerdict verdict = CheckRsrp(profile, command);
    if (!verdict.Ok())
        return verdict;
    const SRsrpRun run = RsrpRun(profile, command);
    if (const EStatus cell = CellStatus(run); cell != EStatus::Success)
        return cell;
    m_running = ERunningTest::Rsrp;
    m_rsrp = run;
    const SNrRsrpCommonV7 &carrier = command.forced == 1 ? command.forcedMode.carrier.common
                                                         : command.normalMode.carrier[0].common;
    if (carrier.trxMode == 1)
        Transmit(carrier.txPowerValue);
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

SVerdict CRadio::Rssi(const SProfile &profile, const SMMRssiCmdV7 &command, SMMRssiCnfV7 &answer)
{
    if (m_running != ERunningTest::None)
        return EResult::TestRunning;
    const SVerdict verdict = CheckRssi(profile, command);
    if (verdict.Ok())
        answer = MeasureRssi(profile, command, m_noise);
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

SVerdict CRadio::PdValue(const SProfile &profile, uint32_t kind, int16_t &value)
{
    if (kind != 1)
        return EResult::PdKind;
    if (!m_transmits)
        return EResult::NotTransmitting;
    value = MeasurePd(profile.radio, m_txPower, m_noise);
    return {};
}

void CRadio::MixRxReport(NRfTestResult_GetMixRxReportV7 &report)
{
    report = {};
    if (m_running == ERunningTest::Rsrp) {
        const SMixRxReading reading = MeasureMixRx(m_rsrp, m_noise);
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

void CRadio::Transmit(int16_t txPower)
{
    m_transmits = true;
    m_txPower = txPower;
}

void CRadio::Stop(ERunningTest one, ERunningTest other)
{
    if (m_running != one && m_running != other)
        return;
    m_running = ERunningTest::None;
    m_transmits = false;
}
