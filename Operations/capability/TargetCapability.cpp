#include "Operations/capability/TargetCapability.h"

#include <algorithm>

#include <QHash>

#include "Operations/capability/CapabilityCache.h"
#include "Support/Log.h"
#include "Vond/VondCore.h"

namespace {

CapabilityCache &Cache()
{
    return CapabilityCache::Get();
}

const SMMRfRouteTableV7 *TableOf(const SCachedRead<SMMRfRouteConfigV7> &read)
{
    return read.flags.succeeded ? &read.record.routes : nullptr;
}

bool ReadHardware()
{
    Cache().ReadNrDetail();
    return Cache().nrDetail.flags.succeeded;
}

// Numbers as decimal texts; the same number is the same text, since RX routes share their TX
// routes.
class CNumberTexts
{
public:
    const QString &Of(uint16_t number)
    {
        QString &text = m_texts[number];
        if (text.isNull())
            text = QString::number(number);
        return text;
    }

private:
    QHash<uint16_t, QString> m_texts;
};

// TX routes that can pair with an RX route; every row of that route adds its own.
QStringList PairedTxRoutes(uint16_t route, CNumberTexts &numbers)
{
    QStringList texts;
    const SNRfRxRouteValues &values = Cache().nrDetail.record.rxRouteValues;
    for (int i = 0; i < values.count; ++i) {
        const SNRfRxRouteValueEntry &entry = values.entry[i];
        if (entry.route != route)
            continue;
        for (int j = 0; j < entry.valueCount; ++j)
            texts.append(numbers.Of(entry.value[j]));
    }
    return texts;
}

template <typename Route>
void AppendRxRoutes(std::vector<SRxRouteInfoV7> &routes, const Route *table, int count,
                    uint32_t routeType, const SRxRouteHw *hardware)
{
    CNumberTexts numbers;
    for (int i = 0; i < count; ++i) {
        SRxRouteInfoV7 info;
        info.band = table[i].band;
        info.route = table[i].route;
        info.routeType = routeType;
        if (hardware) {
            info.hwValid = 1;
            info.hw = hardware[i];
            if (routeType == 1)
                info.txRoutes = PairedTxRoutes(info.route, numbers);
        }
        routes.push_back(std::move(info));
    }
}

}  // namespace

uint32_t CTargetCapability::GetRfChipIdLte() const
{
    Cache().ReadLteCapability();
    return Cache().lteCapability.record.rfChipId;
}

uint32_t CTargetCapability::GetRfChipIdNr() const
{
    Cache().ReadNrCapability();
    return Cache().nrCapability.record.rfChipId;
}

const char *CTargetCapability::GetRfChipNameNr() const
{
    return VOND_NRf_GetChipIdName(GetRfChipIdNr());
}

bool CTargetCapability::IsRatInfoValid() const
{
    Cache().ReadMmCapability();
    return VondItemValid(Cache().mmCapability.record.worldMode);
}

uint32_t CTargetCapability::GetRatMask() const
{
    return IsRatInfoValid() ? VondItemValue(Cache().mmCapability.record.worldMode) : 0;
}

SVondSupportFlags CTargetCapability::GetMmSupportFlags() const
{
    Cache().ReadMmCapability();
    return Cache().mmCapability.flags;
}

SVondSupportFlags CTargetCapability::GetNrSupportFlags() const
{
    Cache().ReadNrCapability();
    return Cache().nrCapability.flags;
}

SVondSupportFlags CTargetCapability::GetNrRouteSupportFlags() const
{
    Cache().ReadNrRoutes();
    return Cache().nrRoutes.flags;
}

uint8_t CTargetCapability::GetNrGeneration() const
{
    Cache().ReadNrCapability();
    const uint32_t word = Cache().nrCapability.record.generation;
    return VondItemValid(word) ? static_cast<uint8_t>(VondItemValue(word)) : 0;
}

const SMMRfRouteTableV7 *CTargetCapability::GetRouteTableLte() const
{
    Cache().ReadLteRoutes();
    return TableOf(Cache().lteRoutes);
}

const SMMRfRouteTableV7 *CTargetCapability::GetRouteTableNr() const
{
    Cache().ReadNrRoutes();
    return TableOf(Cache().nrRoutes);
}

const SMMRfRxGainInfoV7 *CTargetCapability::GetSupportRxGainInfoV7(ERadioKind kind,
                                                                   uint32_t pwrMode) const
{
    if (pwrMode >= kVondRxPowerModes) {
        qCDebug(lcTarget, "GetSupportRxGainInfoV7: pwrMode(%d) >= MMTST_RX_PWR_MODE_NUM(%d)",
                static_cast<int>(pwrMode), kVondRxPowerModes);
        return nullptr;
    }
    const bool lte = kind == ERadioKind::Lte;
    lte ? Cache().ReadLteRoutes() : Cache().ReadNrRoutes();
    const SCachedRead<SMMRfRouteConfigV7> &read = lte ? Cache().lteRoutes : Cache().nrRoutes;
    return read.flags.succeeded ? &read.record.rxGainInfo[pwrMode] : nullptr;
}

uint8_t CTargetCapability::GetType2RouteGainFlag(uint16_t route) const
{
    const SMMRfRouteTableV7 *table = GetRouteTableNr();
    if (!table)
        return 0;
    const auto *end = table->rxType2Route + table->rxType2RouteCount;
    const auto *row = std::find_if(table->rxType2Route, end, [route](const SMMRfRxType2RouteV7 &r) {
        return r.route == route;
    });
    return row == end ? 0 : row->gainModeFlag;
}

bool CTargetCapability::GetFreqRangeBlock(SRouteFreqRangeV7 &range) const
{
    if (!GetNrSupportFlags().succeeded)
        return false;
    Cache().ReadNrRoutes();
    if (Cache().nrRoutes.flags.succeeded)
        range = Cache().nrRoutes.record.freqRange;
    return true;
}

bool CTargetCapability::GetBandList(EBandDirection direction,
                                    std::vector<SBandCapEntry> &bands) const
{
    bands.clear();
    if (GetNrGeneration() != 1)
        return true;
    if (!GetRouteTableNr() || !ReadHardware())
        return false;

    const bool tx = direction == EBandDirection::Tx;
    const SNRfBandRxInfo &mimo = Cache().nrDetail.record.bandRxInfo;
    const uint8_t *mimoFlags = tx ? mimo.ulMimo : mimo.rx4x4;
    const SMMRfRouteConfigV7 &config = Cache().nrRoutes.record;
    for (uint32_t i = 0; i < config.bandCount; ++i) {
        const SMMRfBandEntryV7 &entry = config.band[i];
        if (tx ? entry.downlinkOnly : entry.uplinkOnly)
            continue;
        SBandCapEntry band;
        band.band = entry.band;
        band.supplementary = entry.downlinkOnly || entry.uplinkOnly ? 1 : 0;
        for (int row = 0; row < mimo.count; ++row) {
            if (mimo.band[row] == entry.band)
                band.mimoSupported = mimoFlags[row];
        }
        bands.push_back(band);
    }
    return true;
}

bool CTargetCapability::GetTxCommonPathV7(std::vector<STxRouteInfoV7> &routes,
                                          bool withHardware) const
{
    routes.clear();
    const SMMRfRouteTableV7 *table = GetRouteTableNr();
    if (!table || (withHardware && !ReadHardware()))
        return false;

    int pair = 0;  // row of the detail answer: one for each region of each route
    for (int i = 0; i < table->txRouteCount; ++i) {
        const SMMRfTxRouteV7 &row = table->txRoute[i];
        STxRouteInfoV7 info;
        info.band = row.band;
        info.route = row.route;
        info.bwRegionCount = row.bwRegionCount;
        std::copy(std::begin(row.bwRegionKhz), std::end(row.bwRegionKhz), info.bwRegionLimitKhz);
        // Rows that the target could not be asked for keep no hardware.
        info.hwValid = withHardware && pair + row.bwRegionCount <= kMaxDetailRows;
        for (int region = 0; region < row.bwRegionCount; ++region, ++pair) {
            if (info.hwValid)
                info.bwRegion[region] = Cache().nrDetail.record.hardware.txPair[pair];
        }
        routes.push_back(info);
    }
    return true;
}

bool CTargetCapability::GetRxCommonPathV7(std::vector<SRxRouteInfoV7> &routes,
                                          bool withHardware) const
{
    routes.clear();
    const SMMRfRouteTableV7 *table = GetRouteTableNr();
    if (!table || (withHardware && !ReadHardware()))
        return false;
    const SMMRfRouteDetailCnfV7 &hardware = Cache().nrDetail.record.hardware;
    AppendRxRoutes(routes, table->rxType1Route, table->rxType1RouteCount, 1,
                   withHardware ? hardware.rxType1 : nullptr);
    AppendRxRoutes(routes, table->rxType2Route, table->rxType2RouteCount, 2,
                   withHardware ? hardware.rxType2 : nullptr);
    return true;
}

void CTargetCapability::Reset()
{
    Cache().RequestReset();
}
