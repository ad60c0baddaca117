// What tells the pages apart, and the two stops of the target.
//
// A page's id is the place of its row in the page table (PageTable.h). Constant data.
#pragma once

enum class EPageId
{
    Rssi = 0,
    RssiScan = 1,
    ContRx = 2,
    RouteCalculator = 3,
    RxPathLoss = 4,
    RsrpForce = 5,
    RsrpNormal = 6,
    SingleToneTx = 7,
    PuschTxForce = 8,
    PuschTxNormal = 9,
    PrachTx = 10,
    PucchTx = 11,
    SrsTx = 12,
    AptProfile = 13,
    CcaBwCalculator = 14,
    ErrorPage = 15,  // end mark, and the id of a name that no page has
};

// The two stops of the target.
enum class EStop
{
    Nr,        // PUSCH, RSRP
    MultiRat,  // single tone, continuous RX
};
