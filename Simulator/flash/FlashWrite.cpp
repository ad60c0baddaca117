#include "Simulator/flash/FlashWrite.h"

#include <algorithm>
#include <cstring>
#include <utility>

CFlashWrite::CFlashWrite(SFlashImage &image, const SFlashFaults &faults)
    : m_image(image), m_faults(faults)
{
}

void CFlashWrite::Round(const SCalRound &round)
{
    Area(round.type1);
    Area(round.type2);
    Area(round.tx);
}

void CFlashWrite::Undo()
{
    UndoRecords<SMMType1PathlossBlockV7>();
    UndoRecords<SMMType2PathlossBlockV7>();
    UndoRecords<SAptBlock>();
}

template <class Block>
void CFlashWrite::Area(const SCalArea<Block> &area)
{
    const Block *block = area.blocks;
    for (const SCalEntry &entry : area.entries) {
        if (m_isCut)
            return;
        Record(entry.key, std::vector<Block>(block, block + entry.blockCount));
        block += entry.blockCount;
    }
}

template <class Block>
void CFlashWrite::Record(const SCalKey &key, std::vector<Block> blocks)
{
    std::vector<Block> &record = m_image.Table<Block>().at(key);
    const STornRecord name = {SCalKind<Block>::kId, key};
    const std::size_t left = m_faults.cut ? m_faults.cut->blocksBefore - m_blocks : blocks.size();
    m_isCut = m_faults.cut && left < blocks.size();
    m_blocks += static_cast<uint32_t>(std::min(left, blocks.size()));
    if (m_isCut)
        Cut(blocks, record, left);
    KeepStuckFields(key, blocks, record);
    record.swap(blocks);
    std::get<std::vector<SOld<Block>>>(m_old).push_back(
        {key, std::move(blocks), m_image.torn.count(name) != 0});
    if (m_isCut)
        m_image.torn.insert(name);
    else
        m_image.torn.erase(name);
}

// The blocks that were written, then the old ones: a record that was longer keeps its length.
template <class Block>
void CFlashWrite::Cut(std::vector<Block> &blocks, const std::vector<Block> &old,
                      std::size_t whole) const
{
    const Block interrupted = blocks[whole];
    blocks.resize(whole);
    if (old.size() > whole)
        blocks.insert(blocks.end(), old.begin() + static_cast<std::ptrdiff_t>(whole), old.end());
    if (!m_faults.cut->isTorn)
        return;
    if (blocks.size() == whole)
        blocks.push_back({});
    std::memcpy(&blocks[whole], &interrupted, sizeof(Block) / 2);
}

template <class Block>
void CFlashWrite::KeepStuckFields(const SCalKey &key, std::vector<Block> &blocks,
                                  const std::vector<Block> &old) const
{
    for (const SStuckField &field : m_faults.stuck) {
        if (static_cast<uint32_t>(field.record) != SCalKind<Block>::kId ||
            !(key == SCalKey{field.route, field.bandwidth}) ||
            field.block >= std::min(blocks.size(), old.size()))
            continue;
        std::memcpy(reinterpret_cast<char *>(&blocks[field.block]) + field.offset,
                    reinterpret_cast<const char *>(&old[field.block]) + field.offset, field.size);
    }
}

// In reverse: a record may stand in the round twice.
template <class Block>
void CFlashWrite::UndoRecords()
{
    auto &records = std::get<std::vector<SOld<Block>>>(m_old);
    for (auto old = records.rbegin(); old != records.rend(); ++old) {
        m_image.Table<Block>().at(old->key).swap(old->blocks);
        const STornRecord name = {SCalKind<Block>::kId, old->key};
        if (old->isTorn)
            m_image.torn.insert(name);
        else
            m_image.torn.erase(name);
    }
    records.clear();
}
