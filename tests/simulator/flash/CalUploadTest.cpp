// Rounds of an upload: the blocks of what was asked for, in that order, and nothing else.

#include <algorithm>
#include <cstring>

#include "tests/simulator/flash/CalFixture.h"

namespace {

class CalUploadTest : public CCalTest
{
};

template <class Block>
Block BlockAt(const SMMGetCalDataCnfV7 &answer, std::size_t offset)
{
    Block block;
    std::memcpy(&block, reinterpret_cast<const uint8_t *>(&answer) + offset, sizeof(block));
    return block;
}

bool IsZero(const SMMGetCalDataCnfV7 &answer, std::size_t from, std::size_t to)
{
    const auto *bytes = reinterpret_cast<const uint8_t *>(&answer);
    return std::all_of(bytes + from, bytes + to, [](uint8_t byte) { return byte == 0; });
}

TEST_F(CalUploadTest, RecordsComeInRequestOrder)
{
    CCalUpload upload;
    const SMMGetCalDataCnfV7 &answer = upload.Type1(13, 4)
                                           .Type1(5, 1)
                                           .Type2(101, 1)
                                           .Tx(16, 100000, 4)
                                           .Tx(1, 50000, 1)
                                           .Tx(1, 20000, 1)
                                           .Send();
    ASSERT_EQ(answer.verdict.status, 1);
    EXPECT_STREQ(answer.verdict.type1Text, "");
    EXPECT_EQ(answer.type1Count, 2);
    EXPECT_EQ(answer.type2Count, 1);
    EXPECT_EQ(answer.txCount, 3);
    EXPECT_EQ(answer.type1[0].route, 13);
    EXPECT_EQ(answer.type1[0].blockCount, 4);
    EXPECT_EQ(answer.type1[1].route, 5);
    EXPECT_EQ(answer.type2Route[0], 101);
    EXPECT_EQ(answer.type2BlockCount[0], 1);
    EXPECT_EQ(answer.tx[1].route, 1);
    EXPECT_EQ(answer.tx[1].bandwidth, 50000u);
    EXPECT_EQ(answer.tx[1].blockCount, 1);
    // Each against the record asked for alone, at its place on the wire.
    const std::vector<SType1Block> five = Type1(5);
    const auto block = BlockAt<SType1Block>(answer, 1536 + 4 * 1108);
    EXPECT_EQ(BytesOf(std::vector<SType1Block>{block}), BytesOf(five));
    EXPECT_EQ(BytesOf(std::vector<SType2Block>{BlockAt<SType2Block>(answer, 62476)}),
              BytesOf(Type2(101)));
    EXPECT_EQ(BytesOf(std::vector<SAptBlock>{BlockAt<SAptBlock>(answer, 117256 + 5 * 452)}),
              BytesOf(Tx(1, 20000)));
    EXPECT_NE(BytesOf(Tx(1, 20000)), BytesOf(Tx(1, 50000)));
}

TEST_F(CalUploadTest, NothingComesUnasked)
{
    CCalUpload upload;
    const SMMGetCalDataCnfV7 &answer = upload.Type1(5, 1).Send();
    ASSERT_EQ(answer.verdict.status, 1);
    EXPECT_TRUE(IsZero(answer, 1, 194));
    EXPECT_TRUE(IsZero(answer, 196, 200));
    EXPECT_TRUE(IsZero(answer, 204, 1536));
    EXPECT_TRUE(IsZero(answer, 1536 + 1108, sizeof(answer)));
}

TEST_F(CalUploadTest, EmptyRoundIsAnsweredEmpty)
{
    CCalUpload upload;
    const SMMGetCalDataCnfV7 &answer = upload.Send();
    EXPECT_EQ(answer.verdict.status, 1);
    EXPECT_TRUE(IsZero(answer, 1, sizeof(answer)));
}

TEST_F(CalUploadTest, SameRecordMayBeAskedForTwice)
{
    CCalUpload upload;
    const SMMGetCalDataCnfV7 &answer = upload.Type1(5, 1).Type1(5, 1).Send();
    ASSERT_EQ(answer.verdict.status, 1);
    EXPECT_EQ(answer.type1Count, 2);
    EXPECT_EQ(BytesOf(std::vector<SType1Block>{answer.type1Block[0]}),
              BytesOf(std::vector<SType1Block>{answer.type1Block[1]}));
}

TEST_F(CalUploadTest, FullRoundsOfEveryKindAreAnswered)
{
    ASSERT_EQ(VondSim_SetProfile("largest"), 0);
    CCalUpload upload;
    for (uint16_t route = 1; route <= 13; ++route)
        upload.Type1(route, 4);
    upload.Type2(101, 3);
    for (uint16_t i = 0; i < 33; ++i)
        upload.Tx(static_cast<uint16_t>(1 + i / 4), i % 4 == 3 ? 100000u : 20000u * (i % 4 + 1u),
                  4);
    const SMMGetCalDataCnfV7 &answer = upload.Send();
    ASSERT_EQ(answer.verdict.status, 1) << answer.verdict.txText;
    for (int i = 0; i < 13 * 4; ++i)
        EXPECT_NE(answer.type1Block[i].freq[15], 0u) << i;
    for (int i = 0; i < 3; ++i)
        EXPECT_NE(answer.type2Block[i].freq[15], 0u) << i;
    for (int i = 0; i < 33 * 4; ++i)
        EXPECT_NE(answer.txBlock[i].freq[15], 0u) << i;
    EXPECT_EQ(answer.txBlock[33 * 4].band, 0);
}

TEST_F(CalUploadTest, RouteOnTwoBandsHasOneRecord)
{
    const auto info = Info();
    int rows = 0;
    for (int i = 0; i < info->type1Count; ++i)
        rows += info->type1[i].route == 12 ? 1 : 0;
    EXPECT_EQ(rows, 2);  // n77 and n78
    EXPECT_EQ(Type1(12).front().band, 77);
}

TEST_F(CalUploadTest, JournalHasTheWholeRound)
{
    CCalUpload upload;
    const SMMGetCalDataCnfV7 &answer = upload.Type1(5, 1).Send();
    const uint32_t last = VondSim_CallCount() - 1;
    EXPECT_EQ(RequestBytes(last).size(), 2404u);
    const std::vector<uint8_t> bytes = AnswerBytes(last);
    ASSERT_EQ(bytes.size(), 178276u);
    EXPECT_EQ(std::memcmp(bytes.data(), &answer, bytes.size()), 0);
    Info();
    EXPECT_EQ(RequestBytes(last + 1), (std::vector<uint8_t>{1, 0, 0, 0}));
    EXPECT_EQ(AnswerBytes(last + 1).size(), 2406u);
}

TEST_F(CalUploadTest, NullPointersAreRefused)
{
    auto request = std::make_unique<SMMGetCalDataReqV7>();
    auto answer = std::make_unique<SMMGetCalDataCnfV7>();
    const std::string words = "Argument: null pointer";
    EXPECT_EQ(ErrorText(VOND_MMRf_GetCalDataV7_r(kHandle, kTimeoutMs, nullptr, answer.get())),
              words);
    EXPECT_EQ(ErrorText(VOND_MMRf_GetCalDataV7_r(kHandle, kTimeoutMs, request.get(), nullptr)),
              words);
    EXPECT_EQ(ErrorText(VOND_MMRf_GetCalBlkInfoV7_r(kHandle, kTimeoutMs, 1, nullptr)), words);
    EXPECT_EQ(ErrorText(VOND_MMRf_SetCalDataV7_r(kHandle, kTimeoutMs, nullptr, nullptr)), words);
}

}  // namespace
