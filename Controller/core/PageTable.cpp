#include "Controller/core/PageTable.h"

#include <iterator>

#include "Controller/capability/NrDataModelCapUpdater.h"

namespace {

// A row's position is its id.
constexpr SPageRow kPages[] = {
    {EPageId::Rssi, "RSSI", ":/NrRssiV7.json", &CNrDataModelCapUpdater::UpdateRssiV7},
    {EPageId::RssiScan, "RSSI Scan", nullptr, nullptr},
    {EPageId::ContRx, "Continuous RX", ":/NrContRxV7.json",
     &CNrDataModelCapUpdater::UpdateContRxV7},
    {EPageId::RouteCalculator, "Route Calculator", nullptr, nullptr},
    {EPageId::RxPathLoss, "RX PathLoss", ":/NrRxPathLossV7.json",
     &CNrDataModelCapUpdater::UpdatePathLossV7},
    {EPageId::RsrpForce, "RSRP Force Mode", ":/NrRsrpForceModeV7.json",
     &CNrDataModelCapUpdater::UpdateRsrpForceModeV7},
    {EPageId::RsrpNormal, "RSRP Normal Mode", ":/NrRsrpNormalModeV7.json",
     &CNrDataModelCapUpdater::UpdateRsrpNormalModeV7},
    {EPageId::SingleToneTx, "Single Tone TX", ":/NrSingleToneTxV7.json",
     &CNrDataModelCapUpdater::UpdateSingleToneTxV7},
    {EPageId::PuschTxForce, "PUSCH TX Force Mode", ":/NrPuschTxForceModeV7.json",
     &CNrDataModelCapUpdater::UpdatePuschTxForceModeV7},
    {EPageId::PuschTxNormal, "PUSCH TX Normal Mode", ":/NrPuschTxNormalModeV7.json",
     &CNrDataModelCapUpdater::UpdatePuschTxNormalModeV7},
    {EPageId::PrachTx, "PRACH TX", nullptr, nullptr},
    {EPageId::PucchTx, "PUCCH TX", nullptr, nullptr},
    {EPageId::SrsTx, "SRS TX", nullptr, nullptr},
    {EPageId::AptProfile, "APT Profile", ":/NrAptProfileV7.json",
     &CNrDataModelCapUpdater::UpdateAptProfileV7},
    {EPageId::CcaBwCalculator, "CCA BW Calculator", nullptr, nullptr},
    {EPageId::ErrorPage, "Error Page", nullptr, nullptr},
};

constexpr bool PositionsAreIds()
{
    for (int i = 0; i < static_cast<int>(std::size(kPages)); ++i) {
        if (static_cast<int>(kPages[i].id) != i)
            return false;
    }
    return true;
}
static_assert(PositionsAreIds(), "kPages is indexed by page id");

constexpr const char *kShownPages[] = {
    "CNrRssiDockWidgetV7",       "CNrRxPathlossDockWidgetV7",    "CNrContRxDockWidgetV7",
    "CNrRsrpForceDockWidgetV7",  "CNrRsrpNormalDockWidgetV7",    "CNrSingleToneTxDockWidgetV7",
    "CNrAptProfileDockWidgetV7", "CNrPuschTxForcedDockWidgetV7", "CNrPuschTxNormalDockWidgetV7",
};

}  // namespace

const SPageRow &FindPage(EPageId id)
{
    return kPages[static_cast<int>(id)];
}

QString PageName(EPageId id)
{
    return QString::fromLatin1(FindPage(id).name);
}

QMap<QString, int> BuildPageMap()
{
    QMap<QString, int> map;
    for (const SPageRow &row : kPages) {
        if (row.id != EPageId::ErrorPage)
            map.insert(QString::fromLatin1(row.name), static_cast<int>(row.id));
    }
    return map;
}

QStringList ShownPageClasses()
{
    QStringList classes;
    for (const char *name : kShownPages)
        classes.append(QString::fromLatin1(name));
    return classes;
}
