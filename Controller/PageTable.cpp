#include "Controller/PageTable.h"

#include <iterator>

namespace {

// A row's position is its id.
constexpr SPageRow kPages[] = {
    {EPageId::Rssi, "RSSI", nullptr},
    {EPageId::RssiScan, "RSSI Scan", nullptr},
    {EPageId::ContRx, "Continuous RX", ":/NrContRxV7.json"},
    {EPageId::RouteCalculator, "Route Calculator", nullptr},
    {EPageId::RxPathLoss, "RX PathLoss", nullptr},
    {EPageId::RsrpForce, "RSRP Force Mode", nullptr},
    {EPageId::RsrpNormal, "RSRP Normal Mode", nullptr},
    {EPageId::SingleToneTx, "Single Tone TX", nullptr},
    {EPageId::PuschTxForce, "PUSCH TX Force Mode", nullptr},
    {EPageId::PuschTxNormal, "PUSCH TX Normal Mode", nullptr},
    {EPageId::PrachTx, "PRACH TX", nullptr},
    {EPageId::PucchTx, "PUCCH TX", nullptr},
    {EPageId::SrsTx, "SRS TX", nullptr},
    {EPageId::AptProfile, "APT Profile", nullptr},
    {EPageId::CcaBwCalculator, "CCA BW Calculator", nullptr},
    {EPageId::ErrorPage, "Error Page", nullptr},
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
    "CNrContRxDockWidgetV7",
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
