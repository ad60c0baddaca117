// CCalArea for a kind of route, which tells its differences as types and static functions:
//
//   struct STxKind
//   {
//       using Record = SAptRouteBwRecord;
//       using Block = SAptBlock;
//       static constexpr ECalRoute kRoute = ECalRoute::Tx;
//       static constexpr int kBlocksOfRound = kVondCalTxBlocks;   // entries, too
//       static constexpr const char *kName = "TX";
//       // Blocks that the flash holds; any number, as the target told it.
//       static SFlashBlocks BlocksInFlash(const SMMCalBlkInfoCnfV7 &info, const SCalPlace &place);
//       // Write entry number index, which becomes the last one.
//       static void Ask(SMMGetCalDataReqV7 &request, int index, const SCalEntry &entry);
//       static void List(SMMSetCalDataReqV7 &request, int index, const SCalEntry &entry);
//       static Block *Blocks(SMMSetCalDataReqV7 &request);
//       // The count is the target's; entries are read below kBlocksOfRound alone.
//       static int EntryCount(const SMMGetCalDataCnfV7 &answer);
//       // Field orders in which targets answer an entry, by their names in the log. With more than
//       // one, each entry is read in the order in which it names what was asked for.
//       static constexpr std::array<const char *, 1> kEntryOrders = {"count, route"};
//       static SCalEntry Entry(const SMMGetCalDataCnfV7 &answer, int index, int order);
//       static const Block *Blocks(const SMMGetCalDataCnfV7 &answer);
//       // Block k of a record, 0 to 3: out of it, and back into it.
//       static void Cut(const Record &record, int k, Block &block);
//       static void Join(const Block &block, int k, Record &record);
//   };
#pragma once

#include <algorithm>
#include <array>
#include <cstring>
#include <map>
#include <memory>
#include <utility>
#include <vector>

#include "Operations/calibration/CalArea.h"
#include "Operations/calibration/CalStore.h"
#include "Support/Log.h"

struct SCalEntry
{
    uint16_t route = 0;
    uint32_t bwKhz = 0;  // 0 on RX
    int blocks = 0;
};

template <typename TKind>
class CCalAreaOf : public CCalArea
{
public:
    using Record = typename TKind::Record;

    explicit CCalAreaOf(CCalStore<Record> &store) : m_store(store) {}

    ECalRoute Kind() const override { return TKind::kRoute; }
    int BlocksOfRound() const override { return TKind::kBlocksOfRound; }
    const char *Name() const override { return TKind::kName; }
    bool IsValid(const SCalPlace &place) const override { return m_store.IsValid(place); }
    bool HasValid() const override { return m_store.HasValid(); }
    bool IsEdited(const SCalPlace &place) const override { return m_store.IsEdited(place); }
    std::vector<uint8_t> Bytes(const SCalPlace &place) const override
    {
        const auto *bytes =
            reinterpret_cast<const uint8_t *>(m_store.Find(place.route, place.region));
        return {bytes, bytes + sizeof(Record)};
    }
    bool TakeBytes(const SCalPlace &place, const std::vector<uint8_t> &bytes) override;
    void Forget() override { m_store.Forget(); }
    bool HasArrived(const SCalPlace &place) const override { return m_store.HasArrived(place); }
    void ForgetArrivals() override { m_store.ForgetArrivals(); }
    void Restore(const SCalPlace &place, const SCalState &state) override;

    int BlocksToWrite(const SCalPlace &place) const override;
    void Put(SMMSetCalDataReqV7 &request, const CCalRounds::SPlace &at, const SCalPlace &place,
             int blocks) const override;
    void PutBlocks(SMMSetCalDataReqV7 &request, const CCalRounds::SPlace &at,
                   const SCalPlace &place, const std::vector<uint8_t> &blocks) const override;
    void BeginUpload() override;
    SFlashBlocks BlocksInFlash(const SMMCalBlkInfoCnfV7 &info,
                               const SCalPlace &place) const override
    {
        return TKind::BlocksInFlash(info, place);
    }
    void Ask(SMMGetCalDataReqV7 &request, int entry, const SCalPlace &place, int blocks) override;
    void Take(const SMMGetCalDataCnfV7 &answer, std::vector<SCalLeftOut> &leftOut) override;
    void KeepBlocks() override { m_isKeeping = true; }
    void TakeNone(const SCalPlace &place) override
    {
        if (m_isKeeping)
            m_kept.insert_or_assign(NameOf(place), std::vector<uint8_t>());
    }
    std::optional<std::vector<uint8_t>> KeptBlocks(const SCalPlace &place) const override
    {
        const auto found = m_kept.find(NameOf(place));
        return found == m_kept.end() ? std::nullopt : std::optional(found->second);
    }

    // The blocks of a record that go into a round.
    static int BlocksOf(const Record &record);

private:
    static constexpr bool kHasOrders = TKind::kEntryOrders.size() > 1;
    static constexpr int kNoOrder = -1;

    // A record that was asked for in this round.
    struct SAsked
    {
        SCalPlace place;
        int blocks = 0;
        int read = 0;                      // the index of its next block
        std::unique_ptr<Record> incoming;  // what has come of it
        std::vector<uint8_t> kept;         // the same as blocks
    };

    static std::pair<uint16_t, int> NameOf(const SCalPlace &place)
    {
        return {place.route, place.region};
    }

    SAsked *FindAsked(const SCalEntry &entry);
    SAsked *AskedOf(const SCalEntry &entry);
    bool NamesAsked(const SMMGetCalDataCnfV7 &answer, int index, int order);
    void FindFirstOrder(const SMMGetCalDataCnfV7 &answer, int entries);
    SCalEntry EntryInItsOrder(const SMMGetCalDataCnfV7 &answer, int index);
    void TakeEntries(const SMMGetCalDataCnfV7 &answer);
    void TakeBlock(SAsked &asked, const typename TKind::Block &block);

    CCalStore<Record> &m_store;
    std::vector<SAsked> m_asked;
    int m_order = kNoOrder;  // of the entry before
    std::array<bool, TKind::kEntryOrders.size()> m_isLogged{};
    bool m_isKeeping = false;
    std::map<std::pair<uint16_t, int>, std::vector<uint8_t>> m_kept;
};

template <typename TKind>
bool CCalAreaOf<TKind>::TakeBytes(const SCalPlace &place, const std::vector<uint8_t> &bytes)
{
    if (bytes.size() != sizeof(Record))
        return false;
    Record record;
    std::memcpy(&record, bytes.data(), sizeof record);
    if (record.blockCount > kVondCalMaxBlocks || !m_store.Put(place.route, place.region, record))
        return false;
    m_store.SetValid(place);
    return true;
}

template <typename TKind>
void CCalAreaOf<TKind>::Restore(const SCalPlace &place, const SCalState &state)
{
    if (state.bytes.size() != sizeof(Record))
        return;
    Record record;
    std::memcpy(&record, state.bytes.data(), sizeof record);
    m_store.Restore(place, record, state.isValid, state.isEdited);
}

template <typename TKind>
int CCalAreaOf<TKind>::BlocksToWrite(const SCalPlace &place) const
{
    return BlocksOf(*m_store.Find(place.route, place.region));
}

template <typename TKind>
int CCalAreaOf<TKind>::BlocksOf(const Record &record)
{
    int blocks = static_cast<int>(std::min<uint32_t>(record.blockCount, kVondCalMaxBlocks));
    if (blocks <= TKind::kBlocksOfRound)
        return blocks;
    const auto isEmpty = [&record](int block) {
        const uint32_t *first = record.freq + block * kVondCalBlockSubbands;
        return std::all_of(first, first + kVondCalBlockSubbands,
                           [](uint32_t freq) { return freq == 0; });
    };
    while (blocks > 1 && isEmpty(blocks - 1))
        --blocks;
    return blocks;
}

template <typename TKind>
void CCalAreaOf<TKind>::Put(SMMSetCalDataReqV7 &request, const CCalRounds::SPlace &at,
                            const SCalPlace &place, int blocks) const
{
    const Record &record = *m_store.Find(place.route, place.region);
    qCDebug(lcCalibration).noquote().nospace()
        << "[" << TKind::kName << "][request] data info: route = " << place.route
        << ", blknum = " << blocks;
    TKind::List(request, at.entry, {place.route, place.bwKhz, blocks});
    for (int k = 0; k < blocks; ++k) {
        qCDebug(lcCalibration).noquote().nospace()
            << "         [request] current blk data idx = " << k << ", band = " << record.band;
        TKind::Cut(record, k, TKind::Blocks(request)[at.block + k]);
    }
}

template <typename TKind>
void CCalAreaOf<TKind>::PutBlocks(SMMSetCalDataReqV7 &request, const CCalRounds::SPlace &at,
                                  const SCalPlace &place, const std::vector<uint8_t> &blocks) const
{
    using Block = typename TKind::Block;
    const int count = static_cast<int>(blocks.size() / sizeof(Block));
    TKind::List(request, at.entry, {place.route, place.bwKhz, count});
    std::copy(blocks.begin(), blocks.end(),
              reinterpret_cast<uint8_t *>(TKind::Blocks(request) + at.block));
}

template <typename TKind>
void CCalAreaOf<TKind>::BeginUpload()
{
    m_kept.clear();
    m_asked.clear();
    m_order = kNoOrder;
    m_isLogged = {};
}

template <typename TKind>
void CCalAreaOf<TKind>::Ask(SMMGetCalDataReqV7 &request, int entry, const SCalPlace &place,
                            int blocks)
{
    TKind::Ask(request, entry, {place.route, place.bwKhz, blocks});
    m_asked.push_back({place, blocks, 0, nullptr, {}});
}

template <typename TKind>
void CCalAreaOf<TKind>::Take(const SMMGetCalDataCnfV7 &answer, std::vector<SCalLeftOut> &leftOut)
{
    TakeEntries(answer);
    for (const SAsked &asked : m_asked) {
        if (asked.read < asked.blocks)
            leftOut.push_back(
                {TKind::kRoute, asked.place, ECalLeftOut::AnswerCut, asked.read, asked.blocks});
    }
    m_asked.clear();
}

template <typename TKind>
void CCalAreaOf<TKind>::TakeEntries(const SMMGetCalDataCnfV7 &answer)
{
    const int entries = std::min(TKind::EntryCount(answer), TKind::kBlocksOfRound);
    if (entries < TKind::EntryCount(answer))
        qCCritical(lcCalibration) << TKind::kName
                                  << "answer has too many entries:" << TKind::EntryCount(answer);
    FindFirstOrder(answer, entries);
    int next = 0;  // block of the answer
    for (int i = 0; i < entries; ++i) {
        const SCalEntry entry = EntryInItsOrder(answer, i);
        qCDebug(lcCalibration).noquote().nospace()
            << "[" << TKind::kName << "][confirm] data info: route = " << entry.route
            << ", blkNum = " << entry.blocks;
        if (entry.blocks > TKind::kBlocksOfRound - next) {
            qCCritical(lcCalibration) << TKind::kName << "answer has too many blocks";
            return;
        }
        SAsked *asked = AskedOf(entry);
        for (int k = 0; asked && k < entry.blocks; ++k)
            TakeBlock(*asked, TKind::Blocks(answer)[next + k]);
        next += entry.blocks;
    }
}

template <typename TKind>
typename CCalAreaOf<TKind>::SAsked *CCalAreaOf<TKind>::FindAsked(const SCalEntry &entry)
{
    const auto asked = std::find_if(m_asked.begin(), m_asked.end(), [&entry](const SAsked &one) {
        return one.place.route == entry.route && one.place.bwKhz == entry.bwKhz;
    });
    // Read in the wrong order, a bandwidth looks like a count.
    const bool isTaken = asked != m_asked.end() && (!kHasOrders || entry.blocks <= asked->blocks);
    return isTaken ? &*asked : nullptr;
}

template <typename TKind>
typename CCalAreaOf<TKind>::SAsked *CCalAreaOf<TKind>::AskedOf(const SCalEntry &entry)
{
    SAsked *const asked = FindAsked(entry);
    if (!asked)
        qCDebug(lcCalibration) << "Can not get the bwIdx for route" << entry.route << "bw"
                               << entry.bwKhz;
    return asked;
}

template <typename TKind>
bool CCalAreaOf<TKind>::NamesAsked(const SMMGetCalDataCnfV7 &answer, int index, int order)
{
    return FindAsked(TKind::Entry(answer, index, order)) != nullptr;
}

// No entry comes before the first one: it takes the order of the first entry that leaves no doubt.
template <typename TKind>
void CCalAreaOf<TKind>::FindFirstOrder(const SMMGetCalDataCnfV7 &answer, int entries)
{
    if (m_order != kNoOrder)
        return;
    m_order = 0;
    for (int i = 0; kHasOrders && i < entries; ++i) {
        const bool first = NamesAsked(answer, i, 0);
        if (first == NamesAsked(answer, i, 1))
            continue;
        m_order = first ? 0 : 1;
        return;
    }
}

template <typename TKind>
SCalEntry CCalAreaOf<TKind>::EntryInItsOrder(const SMMGetCalDataCnfV7 &answer, int index)
{
    if constexpr (kHasOrders) {
        const bool first = NamesAsked(answer, index, 0);
        const bool second = NamesAsked(answer, index, 1);
        if (first != second)
            m_order = first ? 0 : 1;
        if ((first || second) && !m_isLogged[m_order]) {
            m_isLogged[m_order] = true;
            qCDebug(lcCalibration).noquote()
                << TKind::kName << "answer entries are" << TKind::kEntryOrders[m_order];
        }
    }
    return TKind::Entry(answer, index, m_order);
}

template <typename TKind>
void CCalAreaOf<TKind>::TakeBlock(SAsked &asked, const typename TKind::Block &block)
{
    if (asked.read == asked.blocks) {
        qCCritical(lcCalibration) << TKind::kName << "answer has a block too many for route"
                                  << asked.place.route;
        return;
    }
    qCDebug(lcCalibration).noquote().nospace()
        << "         [request] current blk data idx = " << asked.read;
    qCDebug(lcCalibration).noquote().nospace() << "         [confirm]blk_data_idx = " << asked.read;
    if (!asked.incoming) {
        asked.incoming = std::make_unique<Record>();
        asked.incoming->route = asked.place.route;
    }
    TKind::Join(block, asked.read, *asked.incoming);
    if (m_isKeeping) {
        const auto *bytes = reinterpret_cast<const uint8_t *>(&block);
        asked.kept.insert(asked.kept.end(), bytes, bytes + sizeof block);
    }
    asked.incoming->blockCount = static_cast<uint32_t>(++asked.read);
    if (asked.read == asked.blocks) {
        m_store.At(asked.place) = *asked.incoming;
        m_store.SetValid(asked.place);
        if (m_isKeeping)
            m_kept.insert_or_assign(NameOf(asked.place), std::move(asked.kept));
        qCDebug(lcCalibration) << "UploadFromFlashInternal reset currblkIdx ";
    }
}
