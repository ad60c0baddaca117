// The cached capability reads: each is made once per connection, on first demand.
//
// All state is static and process-wide. A read is made once until the next reset, whether it
// succeeds or fails; its flags tell. Not thread-safe on purpose: readers run one at a time under
// the core's lock. RequestReset alone may be called from any thread, at any time, also while a read
// is under way: the caches are emptied by the next read, on the reader's own thread.
//
// Counts beyond the tables' sizes are cut to these sizes, so that the counts of a cached record can
// be trusted.
//
//   CapabilityCache &cache = CapabilityCache::Get();
//   cache.ReadNrRoutes();
//   if (cache.nrRoutes.flags.succeeded) use(cache.nrRoutes.record);
#pragma once

#include <atomic>

#include "Operations/capability/CapabilityInfo.h"

template <typename Record>
struct SCachedRead
{
    SVondSupportFlags flags;
    Record record = {};
};

// The three records of the NR detail read. All are read, or none counts.
struct SNrRouteDetail
{
    SNRfBandRxInfo bandRxInfo;
    SNRfRxRouteValues rxRouteValues;
    SMMRfRouteDetailCnfV7 hardware;
};

class CapabilityCache
{
public:
    static CapabilityCache &Get();

    void RequestReset() { m_resetRequested.store(true); }

    // Each makes its read if it has not been attempted. False when this call's read failed; the
    // flags tell of earlier ones.
    bool ReadLteCapability();
    bool ReadMmCapability();
    bool ReadNrCapability();
    bool ReadLteRoutes();
    bool ReadNrRoutes();
    bool ReadNrDetail();

    SCachedRead<SERfCapability> lteCapability;
    SCachedRead<SMMRfCapability> mmCapability;
    SCachedRead<SNRfCapability> nrCapability;
    SCachedRead<SMMRfRouteConfigV7> lteRoutes;
    SCachedRead<SMMRfRouteConfigV7> nrRoutes;
    SCachedRead<SNrRouteDetail> nrDetail;

private:
    CapabilityCache() = default;
    void ResetIfRequested();

    std::atomic<bool> m_resetRequested{false};
};

// Lists the routes of a table in the order in which the target answers them. TX routes are listed
// once a bandwidth region; the target's counter is a byte, so rows from the 256th on are left out.
SMMRfRouteDetailReqV7 BuildRouteDetailRequest(const SMMRfRouteTableV7 &table);
constexpr int kMaxDetailRows = 255;
