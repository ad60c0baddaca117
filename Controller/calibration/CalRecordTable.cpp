#include "Controller/calibration/CalRecordTable.h"

#include <array>

#include "Controller/calibration/CalWalks.h"

namespace {

using Type1 = SMMType1PathlossByRouteV7;
using Type2 = SMMType2PathlossByRouteV7;

template <typename Record>
std::shared_ptr<void> Make()
{
    return std::make_shared<Record>();
}

void WalkApt(ICalMove &move, void *record)
{
    MoveApt(move, *static_cast<SAptRouteBwRecord *>(record));
}

void WalkType1(ICalMove &move, void *record)
{
    for (auto half : {&SMMLossPair::hpm, &SMMLossPair::lpm})
        MoveType1(move, *static_cast<Type1 *>(record), {.half = half});
}

void WalkType2(ICalMove &move, void *record)
{
    for (auto half : {&SMMLossPair::hpm, &SMMLossPair::lpm}) {
        for (int path = 0; path < kVondSrxPaths; ++path) {
            for (int bigG = 0; bigG < kVondGainRows; ++bigG)
                MoveType2(move, *static_cast<Type2 *>(record),
                          {.half = half, .path = path, .bigG = bigG});
        }
    }
}

constexpr std::array<SCalRecordRow, static_cast<size_t>(ECalRoute::Count)> kRecords = {
    SCalRecordRow{.kind = ECalRoute::Tx,
                  .freq = offsetof(SAptRouteBwRecord, freq),
                  .make = &Make<SAptRouteBwRecord>,
                  .walkAll = &WalkApt},
    SCalRecordRow{.kind = ECalRoute::Type1,
                  .freq = offsetof(Type1, freq),
                  .loss = offsetof(Type1, loss),
                  .lossOfSubband = sizeof(Type1::loss[0]),
                  .make = &Make<Type1>,
                  .walkAll = &WalkType1},
    SCalRecordRow{.kind = ECalRoute::Type2,
                  .freq = offsetof(Type2, freq),
                  .loss = offsetof(Type2, loss),
                  .lossOfSubband = sizeof(Type2::loss[0]),
                  .make = &Make<Type2>,
                  .walkAll = &WalkType2},
};

constexpr bool PositionsAreKinds()
{
    for (size_t i = 0; i < kRecords.size(); ++i) {
        if (static_cast<size_t>(kRecords[i].kind) != i)
            return false;
    }
    return true;
}
static_assert(PositionsAreKinds(), "kRecords is indexed by kind");

}  // namespace

const SCalRecordRow &FindCalRecord(ECalRoute kind)
{
    return kRecords[static_cast<size_t>(kind)];
}
