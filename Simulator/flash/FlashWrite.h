// The writing of one download into the flash, record by record and block by block, with what goes wrong
// meanwhile. The round must be one that the DUT takes. What was written can be undone.
//
//   CFlashWrite write(image, faults);
//   write.Round(CalRoundOf(request));
//   if (!flash.Keep())
//       write.Undo();
#pragma once

#include <tuple>
#include <vector>

#include "Simulator/faults/FlashFaults.h"
#include "Simulator/flash/CalRound.h"
#include "Simulator/flash/FlashImage.h"

class CFlashWrite
{
public:
    CFlashWrite(SFlashImage &image, const SFlashFaults &faults);

    // Type 1, type 2, TX; stops where the power is cut.
    void Round(const SCalRound &round);
    void Undo();

    uint32_t Blocks() const { return m_blocks; }  // written as a whole
    bool IsCut() const { return m_isCut; }

private:
    // A record as it was.
    template <class Block>
    struct SOld
    {
        SCalKey key;
        std::vector<Block> blocks;
        bool isTorn = false;
    };

    template <class Block>
    void Area(const SCalArea<Block> &area);
    template <class Block>
    void Record(const SCalKey &key, std::vector<Block> blocks);
    template <class Block>
    void Cut(std::vector<Block> &blocks, const std::vector<Block> &old, std::size_t whole) const;
    template <class Block>
    void KeepStuckFields(const SCalKey &key, std::vector<Block> &blocks,
                         const std::vector<Block> &old) const;
    template <class Block>
    void UndoRecords();

    SFlashImage &m_image;
    const SFlashFaults &m_faults;
    std::tuple<std::vector<SOld<SMMType1PathlossBlockV7>>,
               std::vector<SOld<SMMType2PathlossBlockV7>>, std::vector<SOld<SAptBlock>>>
        m_old;
    uint32_t m_blocks = 0;
    bool m_isCut = false;
};
