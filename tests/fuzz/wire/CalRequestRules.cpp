#include "tests/fuzz/wire/CalRequestRules.h"

#include <algorithm>

#include "Trace/dictionary/CalRecordLayouts.h"
#include "tests/fuzz/common/FuzzTarget.h"

namespace {

template <typename T>
bool IsZero(const T &value)
{
    const auto *bytes = reinterpret_cast<const uint8_t *>(&value);
    return std::all_of(bytes, bytes + sizeof value, [](uint8_t byte) { return byte == 0; });
}

// Of the request and of its entries. Blocks are passed over: they go back as they came.
bool IsReservedZero(const SLayout &layout, const uint8_t *bytes)
{
    for (const SField &field : layout.fields) {
        const uint8_t *at = bytes + field.at.offset;
        if (field.at.isReserved &&
            std::any_of(at, at + field.at.size, [](uint8_t byte) { return byte != 0; }))
            return false;
        if (field.at.type != EFieldType::Record || field.at.name.ends_with("Block"))
            continue;
        for (uint32_t i = 0; i < CountOf(field.at); ++i, at += field.at.size) {
            if (!IsReservedZero(*field.at.record, at))
                return false;
        }
    }
    return true;
}

template <typename Request>
void RequireReservedZero(const Request &request)
{
    Require(IsReservedZero(kLayoutOf<Request>, reinterpret_cast<const uint8_t *>(&request)),
            "reserved bytes are 0");
}

// blocksOf(i): the block count of entry i; isEmpty(i): nothing stands in it.
template <typename BlocksOf, typename IsEmpty>
int CheckPart(int count, int limit, const BlocksOf &blocksOf, const IsEmpty &isEmpty)
{
    Require(count <= limit, "a round has no more entries than room");
    int blocks = 0;
    for (int i = 0; i < limit; ++i) {
        Require(i < count || isEmpty(i), "behind the entries in use a request is empty");
        if (i < count) {
            Require(blocksOf(i) <= kVondCalMaxBlocks, "a route has at most 4 blocks");
            blocks += blocksOf(i);
        }
    }
    Require(blocks <= limit, "a round has no more blocks than room");
    return blocks;
}

template <typename Entry, std::size_t limit>
int CheckPart(int count, const Entry (&entries)[limit])
{
    return CheckPart(
        count, static_cast<int>(limit), [&](int i) { return entries[i].blockCount; },
        [&](int i) { return IsZero(entries[i]); });
}

// What lies behind the blocks in use.
template <typename Block, std::size_t limit>
bool IsRestZero(const Block (&blocks)[limit], int used)
{
    return std::all_of(blocks + used, blocks + limit,
                       [](const Block &block) { return IsZero(block); });
}

}  // namespace

void CheckRequest(const SMMGetCalDataReqV7 &request)
{
    Require(request.radioKind == 1, "calibration data is of NR");
    Require(request.type1Count + request.type2Count + request.txCount > 0,
            "no round goes out empty");
    RequireReservedZero(request);
    CheckPart(request.type1Count, request.type1);
    CheckPart(request.type2Count, request.type2);
    CheckPart(request.txCount, request.tx);
    for (const SMMCalTxRequestEntryV7 &entry : request.tx)
        Require(entry.route == entry.routeAgain, "a TX entry names its route twice");
}

void CheckRequest(const SMMSetCalDataReqV7 &request)
{
    Require(request.radioKind == 1, "calibration data is of NR");
    Require(request.version == kVondCalVersion, "a download tells its version");
    Require(request.type1Count + request.type2Count + request.txCount > 0,
            "no round goes out empty");
    RequireReservedZero(request);
    const int type1 = CheckPart(request.type1Count, request.type1);
    const int type2 = CheckPart(
        request.type2Count, kVondCalType2Blocks, [&](int i) { return request.type2BlockCount[i]; },
        [&](int i) { return request.type2BlockCount[i] == 0 && request.type2Route[i] == 0; });
    const int tx = CheckPart(request.txCount, request.tx);
    Require(IsRestZero(request.type1Block, type1) && IsRestZero(request.type2Block, type2) &&
                IsRestZero(request.txBlock, tx),
            "behind the blocks in use a request is empty");
}
