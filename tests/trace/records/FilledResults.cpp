#include "Vond/VondResultRecords.h"
#include "tests/trace/records/FilledGains.h"
#include "tests/trace/records/FilledRecords.h"

namespace {

CRecordFiller DlFreq()
{
    CRecordFiller filler;
    auto &answer = filler.New<SNrDlFreqCnfV7>();
    FILL("", answer, status);
    FILL("", answer, dlFrequency);
    return filler;
}

CRecordFiller MixRxReport()
{
    CRecordFiller filler;
    auto &report = filler.New<NRfTestResult_GetMixRxReportV7>();
    FILL("", report, reportCount);
    FILL("", report, RSSI0);
    FILL("", report, RSSI1);
    FILL("", report, RSSI2);
    FILL("", report, RSSI3);
    FILL("", report, RSRP0);
    FILL("", report, RSRP1);
    FILL("", report, RSRP2);
    FILL("", report, RSRP3);
    FILL("", report, GoodBLK);
    FILL("", report, BadBLK);
    return filler;
}

CRecordFiller GainSearch(uint32_t simultaneous)
{
    CRecordFiller filler;
    auto &answer = filler.New<SMMGainSearchCnfV7>();
    FILL("", answer, adviseDlPower);
    FILL_WITH("", answer, simultaneous, simultaneous);
    FillGains(filler, answer.gain, simultaneous != 1);
    return filler;
}

CRecordFiller RssiOfOnePath()
{
    CRecordFiller filler;
    auto &answer = filler.New<SMMRssiCnfV7>();
    FILL("", answer, dlFrequency);
    for (int i = 0; i < kVondMaxRssiRows; ++i) {
        auto &row = answer.rows.single.row[i];
        const std::string prefix = "rows.single.row[" + std::to_string(i) + "].";
        FILL(prefix, row, rssiMain);
        FILL(prefix, row, rssiDiv);
    }
    FILL("", answer, rows.single.mainG);
    FILL("", answer, rows.single.divG);
    FILL("", answer, rows.single.maing);
    FILL("", answer, rows.single.divg);
    return filler;
}

CRecordFiller RssiOfBothPaths()
{
    CRecordFiller filler;
    auto &answer = filler.New<SMMRssiCnfV7>();
    FILL("", answer, dlFrequency);
    for (int i = 0; i < kVondMaxRssiRows; ++i) {
        auto &row = answer.rows.simultaneous.row[i];
        const std::string prefix = "rows.simultaneous.row[" + std::to_string(i) + "].";
        FILL(prefix, row, path0Main);
        FILL(prefix, row, path0Div);
        FILL(prefix, row, path1Main);
        FILL(prefix, row, path1Div);
    }
    FILL("", answer, rows.simultaneous.mainG);
    FILL("", answer, rows.simultaneous.divG);
    FILL("", answer, rows.simultaneous.path0Maing);
    FILL("", answer, rows.simultaneous.path0Divg);
    FILL("", answer, rows.simultaneous.path1Maing);
    FILL("", answer, rows.simultaneous.path1Divg);
    return filler;
}

}  // namespace

std::vector<SFilledRecord> FilledResults()
{
    using F = EFunction;
    return {
        FilledAnswer(F::GetDlFreq, DlFreq()),
        FilledAnswer(F::GetMixRxReport, MixRxReport()),
        FilledAnswer(F::GainSearch, GainSearch(1)),
        FilledAnswer(F::GainSearch, GainSearch(0)),
        FilledAnswer(F::Rssi, RssiOfOnePath(), FilledRssi(1).Bytes()),
        FilledAnswer(F::Rssi, RssiOfBothPaths(), FilledRssi(0).Bytes()),
    };
}
