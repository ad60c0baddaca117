#include "Operations/calibration/MultiRatPathLossV7.h"

#include "Operations/calibration/CalVerdictText.h"

namespace {

QString PathLossRefusedText(const SMMCalVerdictV7 &verdict)
{
    return QStringLiteral("L1 status code = %1 (SUCCESS = 1)\n Type1: ").arg(verdict.status) +
           VerdictText(verdict.type1Text) + QLatin1String("\n Type2: ") +
           VerdictText(verdict.type2Text);
}

}  // namespace

CMultiRatPathLossV7::CMultiRatPathLossV7(ERadioKind kind)
    : ICalItemByL1Operation(
          kind,
          {{"add for upload: T1 current route ", "add for upload: T2 current route "},
           "Failed to get Blk info before reading RX path loss from target: ",
           "",
           PathLossRefusedText},
          {{&m_type1Area, &m_type1Sections}, {&m_type2Area, &m_type2Sections}})
{
}

uint32_t CMultiRatPathLossV7::LoadFromFile(CCalIniFile *type1File, CCalIniFile *type2File)
{
    return Load({type1File, type2File});
}

uint32_t CMultiRatPathLossV7::SaveToFile(CCalIniFile *type1File, CCalIniFile *type2File)
{
    return Save({type1File, type2File});
}
