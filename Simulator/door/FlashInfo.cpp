#include "Simulator/door/FlashInfo.h"

#include <cstdio>
#include <cstring>

namespace {

using SType1Block = SMMType1PathlossBlockV7;
using SType2Block = SMMType2PathlossBlockV7;

template <class Block>
constexpr const char *kItemName = "";
template <>
constexpr const char *kItemName<SType1Block> = "type1";
template <>
constexpr const char *kItemName<SType2Block> = "type2";
template <>
constexpr const char *kItemName<SAptBlock> = "apt";

template <class Block>
bool IsSame(const std::vector<Block> &one, const std::vector<Block> &other)
{
    return one.size() == other.size() &&
           (one.empty() || std::memcmp(one.data(), other.data(), one.size() * sizeof(Block)) == 0);
}

template <class Block>
SVondSimFlashRecord RecordOf(const SFlashImage &image, const SFlashImage &factory,
                             const SCalKey &key, const std::vector<Block> &blocks)
{
    SVondSimFlashRecord record = {};
    std::snprintf(record.item, sizeof(record.item), "%s", kItemName<Block>);
    record.route = key.route;
    record.bandwidth = key.bandwidth;
    record.blockCount = static_cast<uint32_t>(blocks.size());
    record.byteCount = static_cast<uint32_t>(blocks.size() * sizeof(Block));
    record.isChanged = IsSame(blocks, factory.Table<Block>().at(key)) ? 0 : 1;
    record.isTorn = image.torn.count({SCalKind<Block>::kId, key}) != 0 ? 1 : 0;
    return record;
}

template <class Block>
SVondSimFlashItem ItemOf(const SFlashImage &image, const SFlashImage &factory)
{
    SVondSimFlashItem item = {};
    std::snprintf(item.item, sizeof(item.item), "%s", kItemName<Block>);
    for (const auto &[key, blocks] : image.Table<Block>()) {
        const SVondSimFlashRecord record = RecordOf(image, factory, key, blocks);
        ++item.recordCount;
        item.blockCount += record.blockCount;
        item.byteCount += record.byteCount;
        item.changedCount += static_cast<uint32_t>(record.isChanged);
        item.tornCount += static_cast<uint32_t>(record.isTorn);
    }
    return item;
}

// Counts the index down over the table's records.
template <class Block>
bool FindRecord(const SFlashImage &image, const SFlashImage &factory, uint32_t &index,
                SVondSimFlashRecord &record)
{
    const FlashTable<Block> &table = image.Table<Block>();
    if (index >= table.size()) {
        index -= static_cast<uint32_t>(table.size());
        return false;
    }
    const auto found = std::next(table.begin(), index);
    record = RecordOf(image, factory, found->first, found->second);
    return true;
}

}  // namespace

bool TellFlashItem(const SProfile &profile, CFlash &flash, uint32_t index, SVondSimFlashItem &item)
{
    if (index > 2)
        return false;
    const SFlashImage &image = flash.Image(profile);
    const SFlashImage &factory = flash.Factory(profile);
    item = index == 0   ? ItemOf<SType1Block>(image, factory)
           : index == 1 ? ItemOf<SType2Block>(image, factory)
                        : ItemOf<SAptBlock>(image, factory);
    return true;
}

bool TellFlashRecord(const SProfile &profile, CFlash &flash, uint32_t index,
                     SVondSimFlashRecord &record)
{
    const SFlashImage &image = flash.Image(profile);
    const SFlashImage &factory = flash.Factory(profile);
    return FindRecord<SType1Block>(image, factory, index, record) ||
           FindRecord<SType2Block>(image, factory, index, record) ||
           FindRecord<SAptBlock>(image, factory, index, record);
}

uint32_t FlashRecordCount(const SProfile &profile, CFlash &flash)
{
    const SFlashImage &image = flash.Image(profile);
    return static_cast<uint32_t>(image.Table<SType1Block>().size() +
                                 image.Table<SType2Block>().size() +
                                 image.Table<SAptBlock>().size());
}
