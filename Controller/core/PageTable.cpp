#include "Controller/core/PageTable.h"

#include <algorithm>
#include <array>

#include "Controller/capability/NrDataModelCapUpdater.h"
#include "Controller/core/TestSteps.h"

namespace {

using Updater = CNrDataModelCapUpdater;
using Builder = CNrCoreCmdBuilder;
using Responses = CNrDataModelResponseBuilder;
using Operations = STestOperations;

constexpr STestSummary kTransmits = {
    .frequency = "group1.ulFrequency", .power = "group1.txPowerValue", .transmits = true};

constexpr std::array kPages = {
    SPageRow{.id = EPageId::Rssi,
             .name = "RSSI",
             .className = "CNrRssiDockWidgetV7",
             .tab = 1,
             .resource = ":/NrRssiV7.json",
             .driver = &Updater::UpdateRssiV7,
             .step = &RunRssiTest},
    SPageRow{.id = EPageId::RssiScan, .name = "RSSI Scan"},
    SPageRow{.id = EPageId::ContRx,
             .name = "Continuous RX",
             .className = "CNrContRxDockWidgetV7",
             .tab = 3,
             .resource = ":/NrContRxV7.json",
             .driver = &Updater::UpdateContRxV7,
             .step = &RunCommand<&Builder::GetContRxCmdV7, &Operations::contRx,
                                 &CMultiRatContRxV7::RunContRx>,
             .stop = EStop::MultiRat,
             .summary = {.frequency = "group1.dlFrequency"}},
    SPageRow{.id = EPageId::RouteCalculator, .name = "Route Calculator"},
    SPageRow{.id = EPageId::RxPathLoss,
             .name = "RX PathLoss",
             .className = "CNrRxPathlossDockWidgetV7",
             .tab = 2,
             .resource = ":/NrRxPathLossV7.json",
             .driver = &Updater::UpdatePathLossV7},
    SPageRow{.id = EPageId::RsrpForce,
             .name = "RSRP Force Mode",
             .className = "CNrRsrpForceDockWidgetV7",
             .tab = 4,
             .resource = ":/NrRsrpForceModeV7.json",
             .driver = &Updater::UpdateRsrpForceModeV7,
             .step =
                 &RunCommand<&Builder::GetRsrpForceCmdV7, &Operations::rsrp, &CNrRsrpV7::RunRsrp>,
             .stop = EStop::Nr,
             .summary = {.frequency = "group1.dlFrequency",
                         .power = "group3.txPowerValue",
                         .transmitsBy = "group1.trxMode"},
             .showReport = &Responses::UpdateMixRxResultV7},
    SPageRow{.id = EPageId::RsrpNormal,
             .name = "RSRP Normal Mode",
             .className = "CNrRsrpNormalDockWidgetV7",
             .tab = 5,
             .resource = ":/NrRsrpNormalModeV7.json",
             .driver = &Updater::UpdateRsrpNormalModeV7,
             .step =
                 &RunCommand<&Builder::GetRsrpNormalCmdV7, &Operations::rsrp, &CNrRsrpV7::RunRsrp>,
             .stop = EStop::Nr,
             .summary = {.frequency = "group1.dlFrequency",
                         .power = "group2.txPowerValue",
                         .transmitsBy = "group1.trxMode"},
             .showReport = &Responses::UpdateMixRxNormalResultV7},
    SPageRow{.id = EPageId::SingleToneTx,
             .name = "Single Tone TX",
             .className = "CNrSingleToneTxDockWidgetV7",
             .tab = 6,
             .resource = ":/NrSingleToneTxV7.json",
             .driver = &Updater::UpdateSingleToneTxV7,
             .step = &RunCommand<&Builder::GetSingleToneTxCmdV7, &Operations::singleToneTx,
                                 &CMultiRatSingleToneTxV7::RunSingleTone>,
             .stop = EStop::MultiRat,
             .summary = kTransmits},
    SPageRow{.id = EPageId::PuschTxForce,
             .name = "PUSCH TX Force Mode",
             .className = "CNrPuschTxForcedDockWidgetV7",
             .tab = 8,
             .resource = ":/NrPuschTxForceModeV7.json",
             .driver = &Updater::UpdatePuschTxForceModeV7,
             .step = &RunCommand<&Builder::GetPuschTxForceCmdV7, &Operations::puschTx,
                                 &CNrPuschTxV7::RunPuschTx>,
             .stop = EStop::Nr,
             .summary = kTransmits},
    SPageRow{.id = EPageId::PuschTxNormal,
             .name = "PUSCH TX Normal Mode",
             .className = "CNrPuschTxNormalDockWidgetV7",
             .tab = 9,
             .resource = ":/NrPuschTxNormalModeV7.json",
             .driver = &Updater::UpdatePuschTxNormalModeV7,
             .step = &RunCommand<&Builder::GetPuschTxNormalCmdV7, &Operations::puschTx,
                                 &CNrPuschTxV7::RunPuschTx>,
             .stop = EStop::Nr,
             .summary = kTransmits},
    SPageRow{.id = EPageId::PrachTx, .name = "PRACH TX"},
    SPageRow{.id = EPageId::PucchTx, .name = "PUCCH TX"},
    SPageRow{.id = EPageId::SrsTx, .name = "SRS TX"},
    SPageRow{.id = EPageId::AptProfile,
             .name = "APT Profile",
             .className = "CNrAptProfileDockWidgetV7",
             .tab = 7,
             .resource = ":/NrAptProfileV7.json",
             .driver = &Updater::UpdateAptProfileV7},
    SPageRow{.id = EPageId::CcaBwCalculator, .name = "CCA BW Calculator"},
    SPageRow{.id = EPageId::ErrorPage, .name = "Error Page"},
};

constexpr bool PositionsAreIds()
{
    for (size_t i = 0; i < kPages.size(); ++i) {
        if (static_cast<size_t>(kPages[i].id) != i)
            return false;
    }
    return kPages.back().id == EPageId::ErrorPage;
}
static_assert(PositionsAreIds(), "kPages is indexed by page id");

constexpr const SPageRow *PageAtTab(int tab)
{
    const auto *row = std::find_if(kPages.begin(), kPages.end(),
                                   [tab](const SPageRow &page) { return page.tab == tab; });
    return row == kPages.end() ? nullptr : row;
}

constexpr int kTabs = static_cast<int>(std::count_if(
    kPages.begin(), kPages.end(), [](const SPageRow &page) { return page.className != nullptr; }));

constexpr bool TabsHaveTheirPages()
{
    for (int tab = 1; tab <= kTabs; ++tab) {
        const SPageRow *page = PageAtTab(tab);
        if (!page || !page->className)
            return false;
    }
    return true;
}
static_assert(TabsHaveTheirPages(), "a page that is shown has a tab of its own");

// GCC compares no function with null in a constant while it sanitizes (its bug 71962).
#ifndef __SANITIZE_ADDRESS__
constexpr bool RowsAreWhole()
{
    return std::all_of(kPages.begin(), kPages.end(), [](const SPageRow &page) {
        return (page.className != nullptr) == (page.resource != nullptr) &&
               (page.resource != nullptr) == (page.driver != nullptr) &&
               (page.step != nullptr || !page.stop);
    });
}
static_assert(RowsAreWhole(), "a page that is shown has a document and a driver");
#endif

}  // namespace

const SPageRow &FindPage(EPageId id)
{
    return kPages[static_cast<size_t>(id)];
}

QString PageName(EPageId id)
{
    return QString::fromLatin1(FindPage(id).name);
}

EPageId PageByName(const QString &name)
{
    const auto *const row = std::find_if(kPages.begin(), kPages.end(), [&](const SPageRow &page) {
        return name == QLatin1String(page.name);
    });
    return row == kPages.end() ? EPageId::ErrorPage : row->id;
}

std::deque<EPageId> ShownPages()
{
    std::deque<EPageId> pages;
    for (int tab = 1; tab <= kTabs; ++tab)
        pages.push_back(PageAtTab(tab)->id);
    return pages;
}

QStringList ShownPageClasses()
{
    QStringList classes;
    for (const EPageId page : ShownPages())
        classes.append(QString::fromLatin1(FindPage(page).className));
    return classes;
}
