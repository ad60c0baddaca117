// One kind of route as it passes to and from the target's flash: type 1, type 2 or TX, each with a
// region of its own in the transfer records.
//
// This is what the transfers of an item see; CCalRegionOf fills it for a kind of route. A transfer
// is one thread's; the records of the store belong to it while it runs.
//
//   for (const SCalPlace &place : WalkRoutes(table, region.Kind()))
//       if (region.IsValid(place))
//           ... region.Put(request, at, place, region.BlocksToWrite(place));
#pragma once

#include "Operations/CalRounds.h"
#include "Operations/CalRoutes.h"
#include "Vond/VondCalRecords.h"

class CCalRegion
{
public:
    virtual ~CCalRegion() = default;

    virtual ECalRoute Kind() const = 0;
    virtual int BlocksOfRound() const = 0;
    virtual const char *Name() const = 0;  // "T1", "T2", "TX"

    virtual bool IsValid(const SCalPlace &place) const = 0;
    virtual bool HasValid() const = 0;

    // Download. The blocks that a record takes in a round: its own, at most 4. Trailing blocks
    // without a frequency are left out where the record would not fit into a round with them.
    virtual int BlocksToWrite(const SCalPlace &place) const = 0;
    // Writes a record's entry and blocks to a place that has room for them.
    virtual void Put(SMMSetCalDataReqV7 &request, const CCalRounds::SPlace &at,
                     const SCalPlace &place, int blocks) const = 0;

    // Upload. Makes all records invalid and forgets what was asked for.
    virtual void BeginUpload() = 0;
    // The blocks that the flash holds for a record, as the target told; 0 when it knows none.
    virtual int BlocksInFlash(const SMMCalBlkInfoCnfV7 &info, const SCalPlace &place) const = 0;
    // Writes a record's entry to a place that has room for it.
    virtual void Ask(SMMGetCalDataReqV7 &request, int entry, const SCalPlace &place,
                     int blocks) = 0;
    // Copies what came of the records that were asked for. A record becomes valid with its last
    // block; what was not asked for is logged and left out.
    virtual void Take(const SMMGetCalDataCnfV7 &answer) = 0;
};
