#include "tests/hands/rules/RunningRule.h"

#include <cstring>

#include <QPushButton>

#include "Simulator/VondSim.h"

namespace {

// Pages that start a test of the DUT.
struct STestRow
{
    const char *test;
    const char *className;
};
constexpr STestRow kTests[] = {
    {"ContRx", "CNrContRxDockWidgetV7"},         {"SingleToneTx", "CNrSingleToneTxDockWidgetV7"},
    {"PuschTx", "CNrPuschTxForcedDockWidgetV7"}, {"PuschTx", "CNrPuschTxNormalDockWidgetV7"},
    {"Rsrp", "CNrRsrpForceDockWidgetV7"},        {"Rsrp", "CNrRsrpNormalDockWidgetV7"},
};

// The button's own state: a page behind another one is off as a whole.
bool IsOn(const QDockWidget *page, const char *button)
{
    const auto *found = page ? page->findChild<QPushButton *>(button) : nullptr;
    return found && found->isEnabledTo(const_cast<QDockWidget *>(page));
}

}  // namespace

QString CRunningRule::After(const SDeed &)
{
    if (!m_desk.IsQuiet())
        return {};
    const char *test = VondSim_RunningTest();
    bool isSeen = *test == 0 || m_desk.IsRfOffMarked();
    for (const STestRow &row : kTests) {
        const QDockWidget *page = m_desk.Page(row.className);
        isSeen = isSeen || (std::strcmp(row.test, test) == 0 && IsOn(page, "m_stop"));
        if (page && !m_desk.isHostDisabled && !IsOn(page, "m_start") && !IsOn(page, "m_stop"))
            return page->windowTitle() + " has neither Start nor Stop";
    }
    return isSeen ? QString() : QString("%1 runs unseen").arg(test);
}
