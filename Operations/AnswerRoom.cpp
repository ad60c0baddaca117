#include "Operations/AnswerRoom.h"

#include <algorithm>
#include <initializer_list>

#include "Support/Log.h"

namespace {

struct SHeld
{
    const char *name;
    uint8_t &value;
    uint8_t highest;
};

void Hold(std::initializer_list<SHeld> numbers)
{
    for (const SHeld &number : numbers) {
        if (number.value > number.highest) {
            qCDebug(lcTarget) << "answer holds" << number.name << number.value << "above"
                              << number.highest;
            number.value = number.highest;
        }
    }
}

}  // namespace

void HoldToRoom(NRfTestResult_GetMixRxReportV7 &report)
{
    Hold({{"reportCount", report.reportCount, VOND_MAX_REPORTS}});
}

void HoldToRoom(SMMGainSearchCnfV7 &result)
{
    if (result.simultaneous != 1) {
        result.simultaneous = 0;
        return;
    }
    auto &gain = result.gain.simultaneous;
    Hold({{"path0MainGainIdx", gain.path0MainGainIdx, VOND_HIGHEST_GAIN_IDX},
          {"path0DivGainIdx", gain.path0DivGainIdx, VOND_HIGHEST_GAIN_IDX},
          {"path1MainGainIdx", gain.path1MainGainIdx, VOND_HIGHEST_GAIN_IDX},
          {"path1DivGainIdx", gain.path1DivGainIdx, VOND_HIGHEST_GAIN_IDX}});
}

void HoldToRoom(SMMRssiCnfV7 &result, bool singlePath)
{
    if (singlePath) {
        auto &rows = result.rows.single;
        Hold({{"mainG", rows.mainG, VOND_HIGHEST_ELNA_MODE},
              {"divG", rows.divG, VOND_HIGHEST_ELNA_MODE},
              {"maing", rows.maing, VOND_HIGHEST_GAIN_MODE},
              {"divg", rows.divg, VOND_HIGHEST_GAIN_MODE}});
        return;
    }
    auto &rows = result.rows.simultaneous;
    Hold({{"mainG", rows.mainG, VOND_HIGHEST_ELNA_MODE},
          {"divG", rows.divG, VOND_HIGHEST_ELNA_MODE},
          {"path0Maing", rows.path0Maing, VOND_HIGHEST_GAIN_MODE},
          {"path0Divg", rows.path0Divg, VOND_HIGHEST_GAIN_MODE},
          {"path1Maing", rows.path1Maing, VOND_HIGHEST_GAIN_MODE},
          {"path1Divg", rows.path1Divg, VOND_HIGHEST_GAIN_MODE}});
}
