// What the tests of the calibration functions share: rounds of an upload and of a download, built
// entry by entry as the tool builds them.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "tests/simulator/SimulatorFixture.h"

using SType1Block = SMMType1PathlossBlockV7;
using SType2Block = SMMType2PathlossBlockV7;

// One round of an upload.
class CCalUpload
{
public:
    CCalUpload();

    CCalUpload &Type1(uint16_t route, uint16_t blockCount);
    CCalUpload &Type2(uint16_t route, uint16_t blockCount);
    CCalUpload &Tx(uint16_t route, uint32_t bandwidth, uint16_t blockCount);

    SMMGetCalDataReqV7 &Request() { return *m_request; }
    // The result must be success; the verdict is the caller's to look at.
    const SMMGetCalDataCnfV7 &Send();

private:
    std::unique_ptr<SMMGetCalDataReqV7> m_request;
    std::unique_ptr<SMMGetCalDataCnfV7> m_answer;
};

// One round of a download.
class CCalDownload
{
public:
    CCalDownload();

    CCalDownload &Type1(uint16_t route, const std::vector<SType1Block> &blocks);
    CCalDownload &Type2(uint16_t route, const std::vector<SType2Block> &blocks);
    CCalDownload &Tx(uint16_t route, uint32_t bandwidth, const std::vector<SAptBlock> &blocks);

    SMMSetCalDataReqV7 &Request() { return *m_request; }
    // The result must be success; the verdict is the caller's to look at.
    SMMSetCalDataCnfV7 Send();

private:
    std::unique_ptr<SMMSetCalDataReqV7> m_request;
    int m_type1Blocks = 0;
    int m_type2Blocks = 0;
    int m_txBlocks = 0;
};

class CCalTest : public CSimulatorTest
{
protected:
    // Block information of the NR side.
    static std::unique_ptr<SMMCalBlkInfoCnfV7> Info();
    // The whole record as the flash holds it.
    static std::vector<SType1Block> Type1(uint16_t route);
    static std::vector<SType2Block> Type2(uint16_t route);
    static std::vector<SAptBlock> Tx(uint16_t route, uint32_t bandwidth);
};

// Every byte of the blocks.
template <class Block>
std::vector<uint8_t> BytesOf(const std::vector<Block> &blocks)
{
    const auto *bytes = reinterpret_cast<const uint8_t *>(blocks.data());
    return std::vector<uint8_t>(bytes, bytes + blocks.size() * sizeof(Block));
}

// The frequencies of all blocks, kHz, without the zeros of the tail.
template <class Block>
std::vector<uint32_t> FrequenciesOf(const std::vector<Block> &blocks)
{
    std::vector<uint32_t> frequencies;
    for (const Block &block : blocks)
        frequencies.insert(frequencies.end(), std::begin(block.freq), std::end(block.freq));
    while (!frequencies.empty() && frequencies.back() == 0)
        frequencies.pop_back();
    return frequencies;
}
