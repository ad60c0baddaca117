// Moves fields between a record of a whole route and its block k: SBlockCut fills the block,
// SBlockJoin the record. So each list of fields stands in the code once.
//
// Whole moves what all blocks of a route repeat; Subbands moves the 16 entries of a table of 64
// that are the block's. k is 0 to 3.
//
//   template <typename Mover, typename Record, typename Block>
//   void Move(const Mover &mover, Record &record, Block &block)
//   {
//       mover.Whole(record.band, block.band);
//       mover.Subbands(record.freq, block.freq);
//   }
//   Move(SBlockCut{0}, record, block);
#pragma once

#include <cstddef>

#include "Vond/VondCalBlocks.h"

template <typename T>
void CopyField(const T &from, T &to)
{
    to = from;
}
template <typename T, size_t count>
void CopyField(const T (&from)[count], T (&to)[count])
{
    for (size_t i = 0; i < count; ++i)
        CopyField(from[i], to[i]);
}

struct SBlockCut
{
    int k;

    template <typename T>
    void Whole(const T &record, T &block) const
    {
        CopyField(record, block);
    }
    template <typename T>
    void Subbands(const T (&record)[kVondCalMaxSubbands], T (&block)[kVondCalBlockSubbands]) const
    {
        for (int i = 0; i < kVondCalBlockSubbands; ++i)
            CopyField(record[k * kVondCalBlockSubbands + i], block[i]);
    }
};

struct SBlockJoin
{
    int k;

    template <typename T>
    void Whole(T &record, const T &block) const
    {
        CopyField(block, record);
    }
    template <typename T>
    void Subbands(T (&record)[kVondCalMaxSubbands], const T (&block)[kVondCalBlockSubbands]) const
    {
        for (int i = 0; i < kVondCalBlockSubbands; ++i)
            CopyField(block[i], record[k * kVondCalBlockSubbands + i]);
    }
};
