#include "Operations/calibration/CalBlockImage.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>

#include "Operations/calibration/AptKind.h"
#include "Operations/calibration/PathLossKinds.h"
#include "Trace/dictionary/CalBlockLayouts.h"

namespace {

struct SBlockKind
{
    std::size_t blockSize;
    int blocksOfRound;
    const SLayout *layout;
    std::vector<uint8_t> (*join)(const SCalBlockRecord &record);
    std::vector<uint8_t> (*cut)(const SCalImageRecord &record, const SCalBlockRecord *before);
    void (*count)(SCalImageRecord &record, std::size_t blocksBefore);
};

template <typename TKind>
std::vector<uint8_t> JoinBlocks(const SCalBlockRecord &blocks)
{
    using Block = typename TKind::Block;
    const auto record = std::make_unique<typename TKind::Record>();
    record->route = blocks.place.route;
    const std::size_t count = blocks.blocks.size() / sizeof(Block);
    for (std::size_t k = 0; k < count; ++k) {
        Block block;
        std::memcpy(&block, blocks.blocks.data() + k * sizeof block, sizeof block);
        TKind::Join(block, static_cast<int>(k), *record);
    }
    record->blockCount = static_cast<uint32_t>(count);
    const auto *bytes = reinterpret_cast<const uint8_t *>(record.get());
    return {bytes, bytes + sizeof *record};
}

template <typename TKind>
std::vector<uint8_t> CutBlocks(const SCalImageRecord &image, const SCalBlockRecord *before)
{
    using Block = typename TKind::Block;
    const auto record = std::make_unique<typename TKind::Record>();
    if (image.bytes.size() != sizeof *record)
        return {};
    std::memcpy(record.get(), image.bytes.data(), sizeof *record);
    const int count = CCalAreaOf<TKind>::BlocksOf(*record);
    std::vector<uint8_t> blocks(static_cast<std::size_t>(count) * sizeof(Block));
    if (before)
        std::copy_n(before->blocks.begin(), std::min(blocks.size(), before->blocks.size()),
                    blocks.begin());
    for (int k = 0; k < count; ++k) {
        Block block;
        uint8_t *const at = blocks.data() + static_cast<std::size_t>(k) * sizeof block;
        std::memcpy(&block, at, sizeof block);
        TKind::Cut(*record, k, block);
        std::memcpy(at, &block, sizeof block);
    }
    return blocks;
}

template <typename TKind>
void CountBlocks(SCalImageRecord &image, std::size_t blocksBefore)
{
    const auto record = std::make_unique<typename TKind::Record>();
    if (image.bytes.size() != sizeof *record)
        return;
    std::memcpy(record.get(), image.bytes.data(), sizeof *record);
    std::size_t used = kVondCalMaxSubbands;
    while (used > 0 && record->freq[used - 1] == 0)
        --used;
    const std::size_t needed = (used + kVondCalBlockSubbands - 1) / kVondCalBlockSubbands;
    record->blockCount = static_cast<uint32_t>(std::max<std::size_t>({1, needed, blocksBefore}));
    std::memcpy(image.bytes.data(), record.get(), sizeof *record);
}

template <typename TKind>
const SBlockKind kBlockKind = {.blockSize = sizeof(typename TKind::Block),
                               .blocksOfRound = TKind::kBlocksOfRound,
                               .layout = &kLayoutOf<typename TKind::Block>,
                               .join = &JoinBlocks<TKind>,
                               .cut = &CutBlocks<TKind>,
                               .count = &CountBlocks<TKind>};

const SBlockKind &BlockKind(ECalRoute kind)
{
    switch (kind) {
    case ECalRoute::Type1:
        return kBlockKind<SType1Kind>;
    case ECalRoute::Type2:
        return kBlockKind<SType2Kind>;
    default:
        return kBlockKind<SAptKind>;
    }
}

}  // namespace

const SCalBlockRecord *SCalBlockImage::Find(ECalRoute kind, const SCalPlace &place) const
{
    const auto found =
        std::find_if(records.begin(), records.end(), [&](const SCalBlockRecord &record) {
            return record.kind == kind && record.place.route == place.route &&
                   record.place.region == place.region;
        });
    return found == records.end() ? nullptr : &*found;
}

std::size_t CalBlockSize(ECalRoute kind)
{
    return BlockKind(kind).blockSize;
}

const SLayout &CalBlockLayout(ECalRoute kind)
{
    return *BlockKind(kind).layout;
}

int CalBlocksOfRound(ECalRoute kind)
{
    return std::min(kVondCalMaxBlocks, BlockKind(kind).blocksOfRound);
}

SCalImage JoinedImage(const SCalBlockImage &image)
{
    SCalImage joined;
    for (const SCalBlockRecord &record : image.records) {
        const std::size_t blocks = record.blocks.size() / CalBlockSize(record.kind);
        if (blocks > 0 && blocks <= kVondCalMaxBlocks)
            joined.records.push_back(
                {record.kind, record.place, BlockKind(record.kind).join(record)});
    }
    return joined;
}

void CountFileBlocks(SCalImageRecord &record, const SCalBlockRecord *before)
{
    const std::size_t blocksBefore = before ? before->blocks.size() / CalBlockSize(record.kind) : 0;
    BlockKind(record.kind).count(record, std::min<std::size_t>(blocksBefore, kVondCalMaxBlocks));
}

std::vector<uint8_t> BlocksOver(const SCalImageRecord &record, const SCalBlockRecord *before)
{
    return BlockKind(record.kind).cut(record, before);
}

std::string CalRecordName(ECalRoute kind, const SCalPlace &place)
{
    std::string name = RouteName(kind) + std::string(" route ") + std::to_string(place.route);
    if (HasRegions(kind))
        name += " BW" + std::to_string(place.region);
    return name;
}
