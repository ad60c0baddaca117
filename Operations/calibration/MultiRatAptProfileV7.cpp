#include "Operations/calibration/MultiRatAptProfileV7.h"

#include "Operations/calibration/CalVerdictText.h"

namespace {

QString AptRefusedText(const SMMCalVerdictV7 &verdict)
{
    return QStringLiteral("L1 status code = %1 (SUCCESS = 1)\n").arg(verdict.status) +
           VerdictText(verdict.txText);
}

}  // namespace

CMultiRatAptProfileV7::CMultiRatAptProfileV7(ERadioKind kind)
    : ICalItemByL1Operation(kind,
                            {{"add to upload: current route "},
                             "Failed to get Blk info before reading APT from target: ",
                             "INI file is NULL",
                             AptRefusedText},
                            {{&m_area, &m_sections}})
{
}

const SAptRouteBwRecord *CMultiRatAptProfileV7::GetAptCalibrationData(uint16_t route,
                                                                      uint16_t bwIdx) const
{
    return m_records.Find(route, bwIdx);
}

bool CMultiRatAptProfileV7::SetAptCalibrationData(uint16_t route, uint16_t bwIdx,
                                                  const SAptRouteBwRecord &record)
{
    return m_records.Put(route, bwIdx, record);
}
