// Where a capability update writes: document paths and path records as constant data.
//
// A page describes itself by constexpr records of these types, a path being the group, the member
// and the leaf below it. Lists of paths may be empty: that output is then not written. Every path
// must exist in the page's document, which carries a sample entry for it; a write to one that does
// not is a failure that the page reports. Constant data, any thread.
//
//   constexpr SPaths kBand{ValueOf("cmdIf.request.group1", "band")};
//   kBand.begin()->Text();   // "cmdIf.request.group1.memberProperty.band.trait.value"
#pragma once

#include <QJsonArray>
#include <QString>

#include "Operations/capability/CapabilityInfo.h"

class CNrDataModelCapUpdater;
class QJsonObject;

struct SPath
{
    const char *group = "";   // dotted path of the group
    const char *member = "";  // key in memberProperty
    const char *leaf = "";    // what of the member, with its leading point

    QString Text() const
    {
        return QLatin1String(group) + QLatin1String(".memberProperty.") + QLatin1String(member) +
               QLatin1String(leaf);
    }
};

constexpr SPath ValueOf(const char *group, const char *member)
{
    return {group, member, ".trait.value"};
}
constexpr SPath ValuePairOf(const char *group, const char *member)
{
    return {group, member, ".trait.valuePair"};
}
constexpr SPath DefaultOf(const char *group, const char *member)
{
    return {group, member, ".trait.defaultValue"};
}
constexpr SPath EnablePairOf(const char *group, const char *member)
{
    return {group, member, ".trait.enableStatusPair"};
}
constexpr SPath DefaultEnableOf(const char *group, const char *member)
{
    return {group, member, ".defaultEnableStatus"};
}

// A list of paths. Two is the most that a page wants of one output.
class SPaths
{
public:
    constexpr SPaths() = default;
    constexpr SPaths(SPath only) : m_paths{only, {}}, m_count(1) {}
    constexpr SPaths(SPath first, SPath second) : m_paths{first, second}, m_count(2) {}

    constexpr const SPath *begin() const { return m_paths; }
    constexpr const SPath *end() const { return m_paths + m_count; }
    constexpr bool IsEmpty() const { return m_count == 0; }
    constexpr SPaths First() const { return m_count > 0 ? SPaths(m_paths[0]) : SPaths(); }
    constexpr SPaths Second() const { return m_count > 1 ? SPaths(m_paths[1]) : SPaths(); }

private:
    SPath m_paths[2];
    int m_count = 0;
};

// Which bands of the DUT a page takes.
struct SBandFilterV7
{
    EBandDirection direction = EBandDirection::Rx;
    bool fddOnly = false;   // plain FDD bands alone
    bool mimoOnly = false;  // bands with UL MIMO (TX) or 4x4 (RX) alone
};

struct SBandFreqPathV7
{
    SBandFilterV7 bandFilter;
    SPaths bandValuePaths;
    SPaths bandDefaultPaths;
    bool useRouteRange = false;  // ranges by route, from the DUT; otherwise by band, from 3GPP
    SPaths freqValuePairPaths;
};

// The records below have two parts: what a page describes once, and the bands of the DUT that a
// step works on.
struct SModulationTxCommonPaths
{
    SPaths routeValuePairPaths;
    SPaths slotEnablePairPaths;
    SPaths scsValuePairPaths;
    SPaths bwValuePairPaths;
    SPaths vrbStartValuePairPaths;
    SPaths vrbLengthValuePairPaths;
    SPaths mimoValuePairPaths;
    SPaths mimoEnablePairPaths;
    SPaths routeDefaultPaths;
    SPaths slotDefaultEnablePaths;
    SPaths mimoDefaultEnablePaths;
    SPaths scsDefaultPaths;
    SPaths bwDefaultPaths;
};

struct SCWTxCommonPaths
{
    SPaths routeValuePairPath;
    SPaths bwRegionValuePairPath;
    SPaths bwRangeValuePairPath;
    SPaths routeDefaultPath;
    SPaths bwRegionDefaultPath;
    SPaths bwRangeDefaultPath;
};

struct SRxCommonPaths
{
    SPaths routeValuePairPaths;
    SPaths slotEnablePairPaths;
    SPaths scsValuePairPaths;
    SPaths rbBwValuePairPaths;
    SPaths vrbStartValuePairPaths;
    SPaths vrbLengthValuePairPaths;
    SPaths mhzBwValuePairPaths;
    SPaths slotDefaultEnablePaths;
    SPaths scsDefaultPaths;
    SPaths rbBwDefaultPaths;
    SPaths routeDefaultPaths;
    SPaths mhzBwDefaultPaths;
    bool byRouteType = false;  // key routes by band and type, and offer type 2 routes
    SPaths routeTypeValuePairPaths;
};

// The members of the five labels of a hardware setting, TX or RX.
struct SHwLabelNames
{
    const char *feRoute;
    const char *port;
    const char *stx;  // srx on an RX page
    const char *antMask;
    const char *mimoPair;
};

// The paths of the five labels.
struct SHwLabelPaths
{
    SPaths feRoute;
    SPaths port;
    SPaths stx;
    SPaths antMask;
    SPaths mimoPair;
};

struct SHwSettingPaths
{
    SHwLabelPaths valuePairs;
    SHwLabelPaths defaults;
    bool byRouteType = false;       // RX: key the labels by route and type
    SHwLabelPaths path1ValuePairs;  // RX: the labels of path 1
};

struct SRxGainInfoPathV7
{
    SPaths path0ValuePairPaths;
    SPaths path1ValuePairPaths;
    SPaths path0DefaultPaths;
    SPaths path1DefaultPaths;
};

// A step of an update. False when it failed; the document tells why.
using CapUpdateStep = bool (*)(CNrDataModelCapUpdater &updater, QJsonObject &doc,
                               const QJsonArray &bands);

// The whole update of a page.
struct SPageUpdate
{
    const SBandFreqPathV7 &freq;  // bands and frequencies, its first step
    bool withRangeCheck;          // 0 is allowed, too, and the page marks what is out of range
    CapUpdateStep steps[3];       // the further ones, in order; null behind the last
};

template <typename Paths>
struct SPathsForBands : Paths
{
    QJsonArray bands;  // band names to work on, in the DUT's order
};
using SModulationTxCommonPathV7 = SPathsForBands<SModulationTxCommonPaths>;
using SCWTxCommonPathV7 = SPathsForBands<SCWTxCommonPaths>;
using SRxCommonPathV7 = SPathsForBands<SRxCommonPaths>;
using SHwSettingV7 = SPathsForBands<SHwSettingPaths>;
