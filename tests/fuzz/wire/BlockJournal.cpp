#include "tests/fuzz/wire/BlockJournal.h"

#include <set>
#include <string>
#include <tuple>

#include "tests/fuzz/common/FuzzTarget.h"

namespace {

struct SEntry
{
    uint16_t route;
    uint32_t bandwidth;  // 0 on RX
    int blocks;
};

using Key = std::tuple<char, uint16_t, uint32_t, std::string>;  // kind, route, bandwidth, numbers
std::set<Key> s_kept;

template <typename T>
void Append(std::string &bytes, const T &numbers)
{
    bytes.append(reinterpret_cast<const char *>(&numbers), sizeof numbers);
}

template <typename Block>
std::string OwnNumbers(const Block &block)
{
    std::string bytes;
    Append(bytes, block.freq);
    Append(bytes, block.loss);
    return bytes;
}

std::string OwnNumbers(const SAptBlock &block)
{
    std::string bytes;
    Append(bytes, block.freq);
    for (const SAptPaPart &part : block.pa) {
        Append(bytes, part.paGain);
        Append(bytes, part.powerDetector);
    }
    return bytes;
}

// Visits the blocks of the entries, as far as there is room for them.
template <typename EntryOf, typename Block, std::size_t limit, typename Visit>
void ForEachBlock(char kind, int count, const EntryOf &entryOf, const Block (&blocks)[limit],
                  const Visit &visit)
{
    int next = 0;
    for (int i = 0; i < count && i < static_cast<int>(limit); ++i) {
        const SEntry entry = entryOf(i);
        if (entry.blocks > static_cast<int>(limit) - next)
            return;
        for (int k = 0; k < entry.blocks; ++k, ++next)
            visit(Key(kind, entry.route, entry.bandwidth, OwnNumbers(blocks[next])));
    }
}

// Both records have the same tables at different offsets.
template <typename Record, typename Visit>
void ForEachBlock(const Record &record, const Visit &visit)
{
    ForEachBlock(
        '1', record.type1Count,
        [&](int i) {
            return SEntry{record.type1[i].route, 0, record.type1[i].blockCount};
        },
        record.type1Block, visit);
    ForEachBlock(
        '2', record.type2Count,
        [&](int i) {
            return SEntry{record.type2Route[i], 0, record.type2BlockCount[i]};
        },
        record.type2Block, visit);
    ForEachBlock(
        'T', record.txCount,
        [&](int i) {
            return SEntry{record.tx[i].route, record.tx[i].bandwidth, record.tx[i].blockCount};
        },
        record.txBlock, visit);
}

}  // namespace

void BlockJournal::Clear()
{
    s_kept.clear();
}

int BlockJournal::Count()
{
    return static_cast<int>(s_kept.size());
}

void BlockJournal::Keep(const SMMGetCalDataCnfV7 &answer)
{
    ForEachBlock(answer, [](Key key) { s_kept.insert(std::move(key)); });
}

void BlockJournal::Check(const SMMSetCalDataReqV7 &request)
{
    ForEachBlock(request, [](const Key &key) {
        Require(s_kept.count(key) == 1, "what goes down has come up for the same route");
    });
}
