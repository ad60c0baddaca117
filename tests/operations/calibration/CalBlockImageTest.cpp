// Records as blocks: what an upload keeps, what a download of chosen ones sends.
#include "Operations/calibration/CalBlockImage.h"

#include <algorithm>

#include "Operations/calibration/CalBlockDifferences.h"
#include "Operations/calibration/CalComparison.h"
#include "tests/operations/calibration/CalFixture.h"

namespace {

using Sent = std::vector<ECalSent>;

SCalBlockImage ReadBlocks(ICalItemByL1Operation &item)
{
    item.KeepBlocks();
    EXPECT_EQ(item.UploadFromFlash(), 0u);
    return item.Blocks();
}

// Of each block of the records a byte that no field shows.
void FillReserved(SCalBlockImage &image)
{
    for (SCalBlockRecord &record : image.records) {
        const std::size_t size = CalBlockSize(record.kind);
        for (std::size_t at = 0; at < record.blocks.size(); at += size)
            record.blocks[at + (record.kind == ECalRoute::Tx ? 450 : 2)] = 0x5A;
    }
}

template <typename Item>
class CalBlockImageTest : public CCalTest
{
protected:
    Item m_item{ERadioKind::Nr};
};
using Items = ::testing::Types<CMultiRatAptProfileV7, CMultiRatPathLossV7>;
TYPED_TEST_SUITE(CalBlockImageTest, Items);

TYPED_TEST(CalBlockImageTest, JoinedBlocksAreTheRecordsOfTheUpload)
{
    const SCalBlockImage blocks = ReadBlocks(this->m_item);
    ASSERT_FALSE(blocks.records.empty());
    const SCalImage joined = JoinedImage(blocks);
    EXPECT_EQ(joined.records.size(), this->m_item.Image().records.size());
    EXPECT_EQ(CCalComparison(joined, this->m_item.Image()).Count(), 0u);
}

TYPED_TEST(CalBlockImageTest, ReservedBytesPassThroughFlashAndBack)
{
    SCalBlockImage blocks = ReadBlocks(this->m_item);
    FillReserved(blocks);
    Sent sent;
    ASSERT_EQ(this->m_item.DownloadBlocks(blocks, sent), 0u);
    const SCalBlockImage back = ReadBlocks(this->m_item);
    ASSERT_EQ(back.records.size(), blocks.records.size());
    for (std::size_t i = 0; i < back.records.size(); ++i)
        EXPECT_EQ(back.records[i].blocks, blocks.records[i].blocks) << i;
}

TYPED_TEST(CalBlockImageTest, ARecordOverItsBlocksKeepsBytesThatNoFieldHolds)
{
    SCalBlockImage blocks = ReadBlocks(this->m_item);
    FillReserved(blocks);
    for (const SCalImageRecord &record : JoinedImage(blocks).records) {
        const SCalBlockRecord *before = blocks.Find(record.kind, record.place);
        EXPECT_EQ(BlocksOver(record, before), before->blocks);
    }
}

TYPED_TEST(CalBlockImageTest, AllRecordsAreSentAsADownloadSendsThem)
{
    const SCalBlockImage blocks = ReadBlocks(this->m_item);
    ASSERT_EQ(this->m_item.DownloadToFlash(), 0u);
    const auto whole = JournalOf(kSetCalData);
    VondSim_ClearJournal();
    Sent sent;
    ASSERT_EQ(this->m_item.DownloadBlocks(blocks, sent), 0u);
    const auto chosen = JournalOf(kSetCalData);
    ASSERT_EQ(chosen.size(), whole.size());
    for (int i = 0; i < chosen.size(); ++i)
        EXPECT_EQ(chosen[i].request, whole[i].request) << "round " << i;
    EXPECT_EQ(std::count(sent.begin(), sent.end(), ECalSent::Accepted),
              static_cast<std::ptrdiff_t>(sent.size()));
}

TYPED_TEST(CalBlockImageTest, OnlyTheChosenRecordsAreSent)
{
    const SCalBlockImage blocks = ReadBlocks(this->m_item);
    const FlashImage before = ReadFlash();
    SCalBlockImage chosen = {{blocks.records[2], blocks.records[0]}};
    FillReserved(chosen);
    VondSim_ClearJournal();
    Sent sent;
    ASSERT_EQ(this->m_item.DownloadBlocks(chosen, sent), 0u);
    ASSERT_EQ(CountCalls(kSetCalData), 1);
    const auto request = RecordOf<SMMSetCalDataReqV7>(JournalOf(kSetCalData)[0].request);
    EXPECT_EQ(request.type1Count + request.type2Count + request.txCount, 2);
    const FlashImage after = ReadFlash();
    std::size_t changed = 0;
    for (const auto &[name, record] : before)
        changed += after.at(name) == record ? 0u : 1u;
    EXPECT_EQ(changed, 2u);
}

TYPED_TEST(CalBlockImageTest, ARecordWithoutABlockEmptiesItInFlash)
{
    const SCalBlockImage blocks = ReadBlocks(this->m_item);
    const SCalBlockImage none = {{{blocks.records[1].kind, blocks.records[1].place, {}}}};
    Sent sent;
    ASSERT_EQ(this->m_item.DownloadBlocks(none, sent), 0u);
    const SCalBlockImage back = ReadBlocks(this->m_item);
    const SCalBlockRecord *record = back.Find(none.records[0].kind, none.records[0].place);
    ASSERT_NE(record, nullptr);
    EXPECT_TRUE(record->blocks.empty());
}

TYPED_TEST(CalBlockImageTest, TheRecordsOfAFailedRoundAreUnknownAndTheRestIsNotSent)
{
    PlugLargest();
    const SCalBlockImage blocks = ReadBlocks(this->m_item);
    VondSim_AddFault(
        R"({"function": "VOND_MMRf_SetCalDataV7_r", "kind": "fail", "result": 7, "nth": 2})");
    Sent sent;
    EXPECT_NE(this->m_item.DownloadBlocks(blocks, sent), 0u);
    ASSERT_EQ(CountCalls(kSetCalData), 2);
    const auto accepted = std::find(sent.begin(), sent.end(), ECalSent::Unknown);
    const auto notSent = std::find(sent.begin(), sent.end(), ECalSent::NotSent);
    EXPECT_NE(accepted, sent.begin());
    EXPECT_TRUE(std::all_of(sent.begin(), accepted,
                            [](ECalSent end) { return end == ECalSent::Accepted; }));
    EXPECT_TRUE(
        std::all_of(accepted, notSent, [](ECalSent end) { return end == ECalSent::Unknown; }));
    EXPECT_TRUE(
        std::all_of(notSent, sent.end(), [](ECalSent end) { return end == ECalSent::NotSent; }));
    EXPECT_NE(notSent, sent.end());
}

TYPED_TEST(CalBlockImageTest, WhatHasNoPlaceOrIsCutIsNotSent)
{
    const SCalBlockImage blocks = ReadBlocks(this->m_item);
    SCalBlockImage odd = {{blocks.records[0], blocks.records[1]}};
    odd.records[0].place.route = 9999;
    odd.records[1].blocks.pop_back();
    Sent sent;
    EXPECT_EQ(this->m_item.DownloadBlocks(odd, sent), 2u);
    EXPECT_EQ(sent, Sent(2, ECalSent::NotSent));
    EXPECT_EQ(CountCalls(kSetCalData), 0);
}

class CalBlockWordsTest : public CCalTest
{
};

TEST_F(CalBlockWordsTest, ADifferenceIsNamedByItsBlockAndField)
{
    CMultiRatAptProfileV7 item(ERadioKind::Nr);
    const SCalBlockImage blocks = ReadBlocks(item);
    SCalBlockRecord other = blocks.records[0];
    other.blocks[450] = 1;
    const std::vector<std::string> lines = CalBlockDifferences(blocks.records[0], &other);
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0], "block 1 reserved450: 0000 wanted, 0100 in flash");
}

TEST_F(CalBlockWordsTest, ARouteThatAFileNamesOtherwiseIsTold)
{
    CMultiRatAptProfileV7 item(ERadioKind::Nr);
    EXPECT_EQ(LoadText(item, "[NR n1 BW0 TPC]\nRoute = 2\n[NR n1 BW1 TPC]\nRoute = 1\n"
                             "[NR n3 BW0 TPC]\nTemperature Index = 3\n"),
              kDone);
    ASSERT_EQ(item.Remarks().otherRoutes.size(), 1u);
    const SCalOtherRoute &other = item.Remarks().otherRoutes[0];
    EXPECT_EQ(other.section + '|' + other.key + '|' + other.text, "NR n1 BW0 TPC|Route|2");
    EXPECT_EQ(other.place.route, 1);
    EXPECT_EQ(item.GetAptCalibrationData(1, 0)->route, 1);  // loaded by the section's name
    EXPECT_EQ(item.Remarks().loaded.size(), 3u);
}

TEST_F(CalBlockWordsTest, EachSectionOfAPathLossRecordTellsItsRoute)
{
    CMultiRatPathLossV7 item(ERadioKind::Nr);
    ASSERT_EQ(item.UploadFromFlash(), 0u);
    ASSERT_EQ(SaveFile(item), kDone);
    QByteArray text = m_folder.Bytes();
    const int main = text.indexOf("Comp Route = ");
    text.replace(main, 14, "Comp Route = x");
    EXPECT_EQ(LoadText(item, text), kDone);
    ASSERT_EQ(item.Remarks().otherRoutes.size(), 1u);
    EXPECT_EQ(item.Remarks().otherRoutes[0].text, "x");
}

}  // namespace
