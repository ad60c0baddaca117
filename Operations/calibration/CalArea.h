// The area of a kind of route in the transfer records: type 1, type 2 and TX have one each. Records
// pass through it to the target's flash and back.
//
// This is what the transfers of an item see; CCalAreaOf fills it for a kind of route. A transfer
// is one thread's; the records of the store belong to it while it runs.
//
//   for (const SCalPlace &place : WalkRoutes(table, area.Kind()))
//       if (area.IsValid(place))
//           ... area.Put(request, at, place, area.BlocksToWrite(place));
#pragma once

#include <optional>
#include <vector>

#include "Operations/calibration/CalRemarks.h"
#include "Operations/calibration/CalRounds.h"
#include "Operations/calibration/CalRoutes.h"
#include "Operations/calibration/CalState.h"
#include "Vond/VondCalRecords.h"

// What the block information tells of a record in flash.
struct SFlashBlocks
{
    enum EKnown
    {
        eCounted,  // so many blocks; 0: there is none
        eNotListed,
        eTotalAlone,  // so many for all bandwidth regions of the route, which they don't fill evenly
    };

    EKnown known = eNotListed;
    int count = 0;
};

class CCalArea
{
public:
    virtual ~CCalArea() = default;

    virtual ECalRoute Kind() const = 0;
    virtual int BlocksOfRound() const = 0;
    virtual const char *Name() const = 0;  // "T1", "T2", "TX"

    virtual bool IsValid(const SCalPlace &place) const = 0;
    virtual bool HasValid() const = 0;
    virtual bool IsEdited(const SCalPlace &place) const = 0;  // by a user, and not valid
    // Of the record, which has to be there.
    virtual std::vector<uint8_t> Bytes(const SCalPlace &place) const = 0;
    // Replaces the record whole and makes it valid. False, and nothing is changed, when the bytes are
    // not as many as the record has, or when it has more than 4 blocks.
    virtual bool TakeBytes(const SCalPlace &place, const std::vector<uint8_t> &bytes) = 0;
    // No record is valid from now on, or edited; they keep their bytes.
    virtual void Forget() = 0;
    // Filled since ForgetArrivals.
    virtual bool HasArrived(const SCalPlace &place) const = 0;
    virtual void ForgetArrivals() = 0;
    // Brings a record back to what it was; one of another size stays as it is.
    virtual void Restore(const SCalPlace &place, const SCalState &state) = 0;

    // Download. The blocks that a record takes in a round: its own, at most 4. Trailing blocks
    // without a frequency are left out where the record would not fit into a round with them.
    virtual int BlocksToWrite(const SCalPlace &place) const = 0;
    // Writes a record's entry and blocks to a place that has room for them.
    virtual void Put(SMMSetCalDataReqV7 &request, const CCalRounds::SPlace &at,
                     const SCalPlace &place, int blocks) const = 0;
    // The same with whole blocks, as flash has them; none empties the record there.
    virtual void PutBlocks(SMMSetCalDataReqV7 &request, const CCalRounds::SPlace &at,
                           const SCalPlace &place, const std::vector<uint8_t> &blocks) const = 0;

    // Upload. Forgets what was asked for; records stay as they are until they come in.
    virtual void BeginUpload() = 0;
    virtual SFlashBlocks BlocksInFlash(const SMMCalBlkInfoCnfV7 &info,
                                       const SCalPlace &place) const = 0;
    // Writes a record's entry to a place that has room for it.
    virtual void Ask(SMMGetCalDataReqV7 &request, int entry, const SCalPlace &place,
                     int blocks) = 0;
    // Takes over what came of the records that this round asked for. A record is replaced, and
    // valid, with its last block; one that lacks a block stays as it was and is a remark. What was
    // not asked for is logged and left out.
    virtual void Take(const SMMGetCalDataCnfV7 &answer, std::vector<SCalLeftOut> &leftOut) = 0;
    // From now on the blocks of each upload are kept as they come.
    virtual void KeepBlocks() = 0;
    // Tells that flash has no block of a record.
    virtual void TakeNone(const SCalPlace &place) = 0;
    // The blocks of the last upload, one after another; nothing where it has not read the record.
    virtual std::optional<std::vector<uint8_t>> KeptBlocks(const SCalPlace &place) const = 0;
};
