// What the drivers of the receiving pages write.
#include "tests/controller/capability/WrittenPaths.h"

namespace {

const PathTable kContRx{
    {"R1", "band.trait.value", "Update band failed"},
    {"R1", "band.trait.defaultValue", "Update band default value failed"},
    {"R1", "dlFrequency.trait.valuePair", "Update frequency value failed"},
    {"R1", "rxRoute.trait.valuePair", "Update route route failed"},
    {"R1", "rxRoute.trait.defaultValue", "Update route default value failed"},
    {"R1", "routeType.trait.valuePair", "Update route type failed"},
    {"R1", "dlBw.trait.valuePair", "Update UL Bandwidth failed"},
    {"R1", "dlBw.trait.defaultValue", "Update UL Bandwidth default value failed"},
};

const PathTable kRssi{
    {"R1", "band.trait.value", "Update band failed"},
    {"R1", "band.trait.defaultValue", "Update band default value failed"},
    {"R2", "dlFrequency.trait.valuePair", "Update frequency value failed"},
    {"R1", "rxRoute.trait.valuePair", "Update route route failed"},
    {"R1", "rxRoute.trait.defaultValue", "Update route default value failed"},
    {"R1", "routeType.trait.valuePair", "Update route type failed"},
    {"R1", "path0DivSearch.trait.valuePair", "Update type1 gain mode(gx) info failed",
     "Update path0 gain mode(gx) info failed"},
    {"R1", "path0MainSearch.trait.valuePair", "Update type1 gain mode(gx) info failed",
     "Update path0 gain mode(gx) info failed"},
    {"R1", "path1DivSearch.trait.valuePair", "Update path1 gain mode(gx) info failed"},
    {"R1", "path1MainSearch.trait.valuePair", "Update path1 gain mode(gx) info failed"},
};
const PathTable kRssiPath1{
    {"R4", "feRouteNumP1.trait.valuePair", "Update HW Setting FE Route# failed"},
    {"R4", "portP1.trait.valuePair", "Update HW Setting port failed"},
    {"R4", "srxP1.trait.valuePair", "Update HW Setting stx failed"},
    {"R4", "antMaskP1.trait.valuePair", "Update HW Setting antMask failed"},
    {"R4", "mimoPairNumP1.trait.valuePair", "Update HW Setting mimoPair failed"},
};

constexpr char kConfig[] = "calDataIf.config.group1";
constexpr char kMain[] = "calDataIf.data.group2";
constexpr char kDiv[] = "calDataIf.data.group3";
const PathTable kPathLoss{
    {kConfig, "band.trait.value", "Update band failed"},
    {kConfig, "band.trait.defaultValue", "Update band default value failed"},
    {"calDataIf.data.group4", "freq.trait.valuePair", "Update frequency value failed"},
    {kConfig, "route.trait.valuePair", "Update route route failed"},
    {kConfig, "route.trait.defaultValue", "Update route default value failed"},
    {kConfig, "routeType.trait.valuePair", "Update route type failed"},
    {kMain, "lna0.caption", "Update Type1 main table lna0caption failed"},
    {kDiv, "lna0.caption", "Update Type1 div table lna0caption failed"},
    {kMain, "lna1.caption", "Update Type1 main table lna1caption failed"},
    {kDiv, "lna1.caption", "Update Type1 div table lna1caption failed"},
    {kMain, "lna2.caption", "Update Type1 main table lna2caption failed"},
    {kDiv, "lna2.caption", "Update Type1 div table lna2caption failed"},
    {kMain, "lna3.caption", "Update Type1 main table lna3caption failed"},
    {kDiv, "lna3.caption", "Update Type1 div table lna3caption failed"},
    {kMain, "lna4.caption", "Update Type1 main table lna4caption failed"},
    {kDiv, "lna4.caption", "Update Type1 div table lna4caption failed"},
    {kMain, "lna5.caption", "Update Type1 main table lna5caption failed"},
    {kDiv, "lna5.caption", "Update Type1 div table lna5caption failed"},
    {kMain, "lna6.caption", "Update Type1 main table lna6caption failed"},
    {kDiv, "lna6.caption", "Update Type1 div table lna6caption failed"},
    {kMain, "lna7.caption", "Update Type1 main table lna7caption failed"},
    {kDiv, "lna7.caption", "Update Type1 div table lna7caption failed"},
    {"calDataIf.data.group5", "colFieldCaptionList",
     "Update Type2 partial-on colFieldCaptionList failed"},
    {kConfig, "scGainInfo.trait.valuePair.HPM", "Update scGainInfo HPM failed"},
    {kConfig, "scGainInfo.trait.valuePair.LPM", "Update scGainInfo LPM failed"},
};

const PathTable kRsrpBands{
    {"R1", "band.trait.valuePair", "Update band failed"},
    {"R1", "band.trait.defaultValue", "Update band default value failed"},
    {"R1", "dlFrequency.trait.valuePair", "Update frequency value failed"},
    {"R1", "tddSlotConfig.trait.enableStatusPair", "Update slot format failed"},
    {"R1", "tddSlotConfig.defaultEnableStatus", "Update slot format default enable failed"},
};
const PathTable kRsrpRoutes{
    {"R1", "rxRoute.trait.valuePair", "Update route route failed"},
    {"R1", "rxRoute.trait.defaultValue", "Update route default value failed"},
};
const PathTable kRsrpBandwidth{
    {"R1", "dlBandwidth.trait.valuePair", "Update UL Bandwidth failed"},
    {"R1", "dlBandwidth.trait.defaultValue", "Update UL Bandwidth RB default value failed"},
    {"R1", "rxScs.trait.valuePair", "Update SCS failed"},
    {"R1", "rxScs.trait.defaultValue", "Update SCS default value failed"},
};
PathTable RsrpVrb(const char *group)
{
    return {{group, "vrbStart.trait.valuePair", "Update VRB start range failed"},
            {group, "vrbLength.trait.valuePair", "Update VRB length range failed"}};
}
const PathTable kRsrpTxRoutes{
    {"R3", "txRoute.trait.valuePair", "Update tx list route by rx route value faile"},
    {"R3", "txRoute.trait.defaultValue", "Update  tx list route by rx route default value failed"},
};
const PathTable kPseudoTxLabels{
    {"R4", "feRouteNum.trait.valuePair", "Update HW Setting FE Route# failed"},
    {"R4", "feRouteNum.trait.defaultValue", "Update HW Setting FE Route# default value failed"},
    {"R4", "port.trait.valuePair", "Update HW Setting port failed"},
    {"R4", "port.trait.defaultValue", "Update HW Setting port default value failed"},
    {"R4", "stx.trait.valuePair", "Update HW Setting stx failed"},
    {"R4", "stx.trait.defaultValue", "Update HW Setting stx default value failedd",
     "Update HW Setting stx default value default value failed"},
};
PathTable PseudoTx(const char *group)
{
    return {{group, "band.trait.valuePair", "Update tx band value failed"},
            {group, "band.trait.defaultValue", "Update tx band value failed"},
            {group, "ulFrequency.trait.valuePair", "Update ulFrequency value failed"},
            {group, "ulFrequency.trait.defaultValue", "Update ulFrequency value failed"}};
}

}  // namespace

PathTable RxPathTable(EPageId id)
{
    switch (id) {
    case EPageId::ContRx:
        return kContRx;
    case EPageId::Rssi:
        return kRssi +
               HardwareRows("R3", "feRouteNumP0", "portP0", "srxP0", "antMaskP0", "mimoPairNumP0") +
               kRssiPath1;
    case EPageId::RxPathLoss:
        return kPathLoss;
    case EPageId::RsrpForce:
        return kRsrpBands + kRsrpRoutes + kRsrpBandwidth + RsrpVrb("R3") +
               HardwareRows("R2", "feRouteNum", "port", "srx", "antMask", "mimoPairNum") +
               kRsrpTxRoutes + kPseudoTxLabels + PseudoTx("R3");
    case EPageId::RsrpNormal:
        return kRsrpBands + kRsrpBandwidth + RsrpVrb("R2") + PseudoTx("R2");
    default:
        return {};
    }
}
