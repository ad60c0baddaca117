// What the drivers of the transmitting pages write.
#include "tests/controller/capability/WrittenPaths.h"

namespace {

const PathTable kPuschForced{
    {"R1", "band.trait.value", "Update band failed"},
    {"R1", "band.trait.defaultValue", "Update band default value failed"},
    {"R1", "ulFrequency.trait.valuePair", "Update frequency value failed"},
    {"R1", "tddSlotConfig.trait.enableStatusPair", "Update slot format failed"},
    {"R1", "tddSlotConfig.defaultEnableStatus", "Update slot format default enable failed"},
    {"R1", "txRoute.trait.valuePair", "Update route failed"},
    {"R1", "txRoute.trait.defaultValue", "Update route default value failed"},
    {"R1", "ulBandwidth.trait.valuePair", "Update UL Bandwidth failed"},
    {"R1", "ulBandwidth.trait.defaultValue", "Update UL Bandwidth default value failed"},
    {"R1", "txScs.trait.valuePair", "Update SCS failed"},
    {"R1", "txScs.trait.defaultValue", "Update SCS default value failed"},
    {"R1", "vrbStart.trait.valuePair", "Update VRB start range failed"},
    {"R1", "vrbLength.trait.valuePair", "Update VRB length range failed"},
};

const PathTable kPuschNormal{
    {"R1", "band.trait.value", "Update band failed"},
    {"R2", "band.trait.value", "Update band failed"},
    {"R1", "band.trait.defaultValue", "Update band default value failed"},
    {"R2", "band.trait.defaultValue", "Update band default value failed"},
    {"R1", "ulFrequency.trait.valuePair", "Update frequency value failed"},
    {"R2", "ulFrequency.trait.valuePair", "Update frequency value failed"},
    {"R1", "tddSlotConfig.trait.enableStatusPair", "Update slot format failed"},
    {"R2", "tddSlotConfig.trait.enableStatusPair", "Update slot format failed"},
    {"R1", "tddSlotConfig.defaultEnableStatus", "Update slot format default enable failed"},
    {"R1", "enableMimo.trait.valuePair", "Update mimo band value pair failed"},
    {"R2", "enableMimo.trait.valuePair", "Update mimo band value pair failed"},
    {"R1", "enableMimo.trait.enableStatusPair", "Update mimo enable failed"},
    {"R2", "enableMimo.trait.enableStatusPair", "Update mimo enable failed"},
    {"R1", "enableMimo.defaultEnableStatus", "Update mimo enable default enable failed"},
    {"R1", "ulBandwidth.trait.valuePair", "Update UL Bandwidth failed"},
    {"R2", "ulBandwidth.trait.valuePair", "Update UL Bandwidth failed"},
    {"R1", "ulBandwidth.trait.defaultValue", "Update UL Bandwidth default value failed"},
    {"R2", "ulBandwidth.trait.defaultValue", "Update UL Bandwidth default value failed"},
    {"R1", "txScs.trait.valuePair", "Update SCS failed"},
    {"R2", "txScs.trait.valuePair", "Update SCS failed"},
    {"R1", "txScs.trait.defaultValue", "Update SCS default value failed"},
    {"R2", "txScs.trait.defaultValue", "Update SCS default value failed"},
    {"R1", "vrbStart.trait.valuePair", "Update VRB start range failed"},
    {"R2", "vrbStart.trait.valuePair", "Update VRB start range failed"},
    {"R1", "vrbLength.trait.valuePair", "Update VRB length range failed"},
    {"R2", "vrbLength.trait.valuePair", "Update VRB length range failed"},
};

const PathTable kSingleTone{
    {"R1", "band.trait.value", "Update band failed"},
    {"R1", "band.trait.defaultValue", "Update band default value failed"},
    {"R1", "ulFrequency.trait.valuePair", "Update frequency value failed"},
    {"R1", "txRoute.trait.valuePair", "Update comp rRoute failed", "Update comp route failed"},
    {"R1", "txRoute.trait.defaultValue", "Update comp Route default value  failed",
     "Update comp route default value failed"},
    {"R1", "aggBwRegion.trait.valuePair", "Update BW region failed"},
    {"R1", "aggBwRegion.trait.defaultValue", "Update BW region default value  failed",
     "Update BW region default value failed"},
    {"R1", "aggBwKhzRange.trait.valuePair", "Update BW region failed"},
    {"R1", "aggBwKhzRange.trait.defaultValue", "Update BW range default value  failed",
     "Update BW range default value failed"},
};

constexpr char kAptConfig[] = "calDataIf.config.group1";
const PathTable kAptProfile{
    {kAptConfig, "band.trait.value", "Update band failed"},
    {kAptConfig, "band.trait.defaultValue", "Update band default value failed"},
    {"calDataIf.data.group12", "ulFreq.trait.valuePair", "Update frequency value failed"},
    {kAptConfig, "txRoute.trait.valuePair", "Update comp rRoute failed",
     "Update comp route failed"},
    {kAptConfig, "txRoute.trait.defaultValue", "Update comp Route default value  failed",
     "Update comp route default value failed"},
    {kAptConfig, "aggBwRegion.trait.valuePair", "Update BW region failed"},
    {kAptConfig, "aggBwRegion.trait.defaultValue", "Update BW region default value  failed",
     "Update BW region default value failed"},
};

PathTable Labels(const char *group)
{
    return HardwareRows(group, "feRouteNum", "port", "stx", "antMask", "mimoPairNum");
}

}  // namespace

PathTable TxPathTable(EPageId id)
{
    switch (id) {
    case EPageId::PuschTxForce:
        return kPuschForced + Labels("R2");
    case EPageId::PuschTxNormal:
        return kPuschNormal;
    case EPageId::SingleToneTx:
        return kSingleTone + Labels("R2");
    case EPageId::AptProfile:
        return kAptProfile + Labels("calDataIf.config.group2");
    default:
        return {};
    }
}
