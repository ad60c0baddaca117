// Limits of the VRB start and length by bandwidth, the same for every page and band: any RB count
// that the 3GPP tables know, whether the band at hand offers it or not. Constant; any thread.
//
//   VrbRanges().start["25 RB"];    // {"min": 0, "max": 24, "value": 0}
//   VrbRanges().length["25 RB"];   // {"min": 1, "max": 25, "value": 1}
#pragma once

#include <QJsonObject>

struct SVrbRanges
{
    QJsonObject start;
    QJsonObject length;
};

SVrbRanges VrbRanges();
