// Rounds of a download: what was sent is what is there afterwards, byte for byte.

#include <cstring>

#include "tests/simulator/flash/CalFixture.h"

namespace {

class CalDownloadTest : public CCalTest
{
};

// Every byte but band and frequencies at its extreme.
template <class Block>
void FillExtreme(Block &block, uint8_t byte)
{
    const Block before = block;
    std::memset(&block, byte, sizeof(block));
    block.band = before.band;
    std::copy(std::begin(before.freq), std::end(before.freq), block.freq);
}

TEST_F(CalDownloadTest, WhatWasReadCanBeWrittenElsewhereAndRead)
{
    std::vector<SType1Block> type1 = Type1(1);
    std::vector<SType2Block> type2 = Type2(105);
    std::vector<SAptBlock> tx = Tx(14, 100000);
    type1[3].loss[1][15].hpm = -1;
    type2[2].loss[15][283].lpm = 77;
    tx[3].pa[2].powerDetector[15] = -123;
    CCalDownload download;
    ASSERT_EQ(download.Type1(1, type1).Type2(105, type2).Tx(14, 100000, tx).Send().status, 1);
    EXPECT_EQ(BytesOf(Type1(1)), BytesOf(type1));
    EXPECT_EQ(BytesOf(Type2(105)), BytesOf(type2));
    EXPECT_EQ(BytesOf(Tx(14, 100000)), BytesOf(tx));
}

TEST_F(CalDownloadTest, OtherRecordsStayAsTheyWere)
{
    const auto before = BytesOf(Tx(14, 20000));
    const auto neighbour = BytesOf(Type1(2));
    std::vector<SType1Block> type1 = Type1(1);
    type1.resize(1);
    ASSERT_EQ(CCalDownload().Type1(1, type1).Tx(14, 100000, {}).Send().status, 1);
    EXPECT_EQ(BytesOf(Tx(14, 20000)), before);
    EXPECT_EQ(BytesOf(Type1(2)), neighbour);
    EXPECT_EQ(Type1(1).size(), 1u);
    EXPECT_TRUE(Tx(14, 100000).empty());
}

TEST_F(CalDownloadTest, ValuesAtTheExtremesOfTheirTypesAreKept)
{
    for (const uint8_t byte : {uint8_t(0xff), uint8_t(0x80), uint8_t(0x7f)}) {
        std::vector<SType1Block> type1 = Type1(1);
        std::vector<SType2Block> type2 = Type2(105);
        std::vector<SAptBlock> tx = Tx(14, 100000);
        for (SType1Block &block : type1)
            FillExtreme(block, byte);
        for (SType2Block &block : type2)
            FillExtreme(block, byte);
        for (SAptBlock &block : tx)
            FillExtreme(block, byte);
        CCalDownload download;
        const SMMSetCalDataCnfV7 answer =
            download.Type1(1, type1).Type2(105, type2).Tx(14, 100000, tx).Send();
        ASSERT_EQ(answer.status, 1);
        EXPECT_EQ(BytesOf(Type1(1)), BytesOf(type1));
        EXPECT_EQ(BytesOf(Type2(105)), BytesOf(type2));
        EXPECT_EQ(BytesOf(Tx(14, 100000)), BytesOf(tx));
    }
}

TEST_F(CalDownloadTest, LimitsThemselvesAreInside)
{
    std::vector<SType1Block> blocks = Type1(14);  // limits of its own: 3400 to 3600 MHz
    blocks[0].freq[0] = 3400000;
    blocks[0].freq[1] = 3600000;
    EXPECT_EQ(CCalDownload().Type1(14, blocks).Send().status, 1);
}

TEST_F(CalDownloadTest, BlockWithoutFrequenciesIsTaken)
{
    std::vector<SAptBlock> blocks = Tx(5, 20000);
    ASSERT_EQ(blocks.size(), 1u);
    blocks.push_back(blocks.front());
    std::fill(std::begin(blocks[1].freq), std::end(blocks[1].freq), 0u);
    ASSERT_EQ(CCalDownload().Tx(5, 20000, blocks).Send().status, 1);
    EXPECT_EQ(BytesOf(Tx(5, 20000)), BytesOf(blocks));
}

TEST_F(CalDownloadTest, SecondBandOfARouteIsTaken)
{
    std::vector<SType1Block> blocks = Type1(12);
    ASSERT_EQ(blocks.front().band, 77);
    for (SType1Block &block : blocks) {
        block.band = 78;
        for (uint32_t &kHz : block.freq)
            kHz = kHz != 0 ? 3500010 : 0;
    }
    ASSERT_EQ(CCalDownload().Type1(12, blocks).Send().status, 1);
    EXPECT_EQ(BytesOf(Type1(12)), BytesOf(blocks));
}

TEST_F(CalDownloadTest, OfARecordSentTwiceTheLastStays)
{
    std::vector<SType1Block> first = Type1(5);
    std::vector<SType1Block> second = first;
    first[0].plOffset[0] = 1;
    second[0].plOffset[0] = 2;
    ASSERT_EQ(CCalDownload().Type1(5, first).Type1(5, second).Send().status, 1);
    EXPECT_EQ(Type1(5)[0].plOffset[0], 2);
}

TEST_F(CalDownloadTest, EmptyRoundIsTaken)
{
    const auto before = BytesOf(Type1(5));
    const SMMSetCalDataCnfV7 answer = CCalDownload().Send();
    EXPECT_EQ(answer.status, 1);
    EXPECT_STREQ(answer.txText, "");
    EXPECT_EQ(BytesOf(Type1(5)), before);
}

TEST_F(CalDownloadTest, AnotherProfileBringsItsOwnData)
{
    const auto factory = BytesOf(Type1(5));
    std::vector<SType1Block> blocks = Type1(5);
    blocks[0].plOffset[0] = 1234;
    ASSERT_EQ(CCalDownload().Type1(5, blocks).Send().status, 1);
    ASSERT_EQ(VondSim_SetProfile("handset"), 0);
    EXPECT_EQ(BytesOf(Type1(5)), factory);
}

TEST_F(CalDownloadTest, JournalHasTheWholeRound)
{
    CCalDownload download;
    download.Type1(5, Type1(5)).Send();
    const uint32_t last = VondSim_CallCount() - 1;
    const std::vector<uint8_t> bytes = RequestBytes(last);
    ASSERT_EQ(bytes.size(), 178096u);
    EXPECT_EQ(std::memcmp(bytes.data(), &download.Request(), bytes.size()), 0);
    EXPECT_EQ(AnswerBytes(last).size(), 193u);
}

}  // namespace
