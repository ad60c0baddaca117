#include "Operations/calibration/CalImage.h"

#include "Operations/calibration/CalRecordLayouts.h"

const SLayout &CalRecordLayout(ECalRoute kind)
{
    switch (kind) {
    case ECalRoute::Type1:
        return kLayoutOf<SMMType1PathlossByRouteV7>;
    case ECalRoute::Type2:
        return kLayoutOf<SMMType2PathlossByRouteV7>;
    default:
        return kLayoutOf<SAptRouteBwRecord>;
    }
}
