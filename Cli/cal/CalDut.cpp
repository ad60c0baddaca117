#include "Cli/cal/CalDut.h"

#include "Controller/calibration/CalPageLimits.h"
#include "Controller/core/NrCore.h"
#include "Controller/core/PageTable.h"
#include "Model/ModelText.h"
#include "Operations/capability/TargetCapability.h"

namespace {

constexpr int kCalGeneration = 1;

}  // namespace

QString LookAtDut(uint32_t handle)
{
    CNrCore::SetTargetHandle(handle);
    const SRfSupportStatus support = GetCore().GetSupportStatus();
    if (support.status == eSupported) {
        const int generation = CTargetCapability().GetNrGeneration();
        return generation == kCalGeneration
                   ? QString()
                   : QStringLiteral("The DUT cannot be used: its modem is of generation %1, and "
                                    "calibration data is moved on generation %2 alone.")
                         .arg(generation)
                         .arg(kCalGeneration);
    }
    QString why = QStringLiteral("The DUT cannot be used: %1").arg(support.message);
    if (!support.advice.isEmpty())
        why += QLatin1Char(' ') + support.advice;
    return why;
}

SGuardedItem GuardedItem(ECalItem item)
{
    const SCalItemRow &row = FindCalItem(item);
    const std::string page = GetCore().GetDataModel(PageName(row.page));
    return {.key = QString::fromLatin1(row.key),
            .scratch = row.make(),
            .limits = std::make_shared<CCalPageLimits>(ModelFromText(page))};
}
