// A guarded write from its begin to its outcome; flash is the witness.
#include "Controller/guard/GuardedWrite.h"

#include <algorithm>

#include <unistd.h>

#include "Operations/calibration/CalItemByL1Operation.h"
#include "Operations/calibration/CalRecords.h"
#include "tests/controller/guard/GuardFixture.h"

namespace {

constexpr char kSet[] = "VOND_MMRf_SetCalDataV7_r";
const QStringList kThree = {"TX route 1 BW0", "TX route 1 BW1", "TX route 2 BW0"};

class CGuardedWriteTest : public CGuardTest
{
protected:
    // A write of the edited file up to its sending.
    std::unique_ptr<CGuardedWrite> Ready()
    {
        const QString file = EditedApt();
        std::unique_ptr<CGuardedWrite> write = Begun(ECalItem::Apt);
        EXPECT_EQ(write->WantFile(file, {}), QString());
        EXPECT_EQ(write->SaveBackup(Path("backups")), QString());
        VondSim_ClearJournal();
        return write;
    }
};

TEST_F(CGuardedWriteTest, OnlyRecordsThatDifferAreSentAndTheyAreVerified)
{
    const auto write = Ready();
    EXPECT_EQ(write->ChangedRecords(), kThree);
    EXPECT_EQ(write->Changes().Count(), 3u);
    const SGuardedOutcome outcome = write->Carry();
    EXPECT_EQ(outcome.end, EGuardedEnd::Verified);
    EXPECT_EQ(outcome.written, kThree);
    ASSERT_EQ(CountCalls(kSet), 1);
    EXPECT_EQ(RequestNumber(JournalOf(kSet)[0], "txCount"), 3);
    EXPECT_EQ(outcome.rest->Count(), 0u);
}

TEST_F(CGuardedWriteTest, AFileThatIsInFlashWritesNothing)
{
    const QString file = Edited(ECalItem::PathLoss, "Comp Route", "1", 1);
    const auto write = Begun(ECalItem::PathLoss);
    VondSim_ClearJournal();
    EXPECT_EQ(write->WantFile(file, {}), QString());
    EXPECT_TRUE(write->ChangedRecords().isEmpty());
    EXPECT_EQ(write->Carry().end, EGuardedEnd::Same);
    EXPECT_EQ(CountCalls(kSet), 0);
}

TEST_F(CGuardedWriteTest, ARestoreBringsEveryByteBack)
{
    for (const ECalItem item : {ECalItem::Apt, ECalItem::PathLoss}) {
        const SCalBlockImage before = Flash(item);
        SCalBlockImage other = before;  // with bytes that no INI file holds
        for (SCalBlockRecord &record : other.records) {
            for (std::size_t i = 4; i < record.blocks.size(); i += 97)
                record.blocks[i] ^= uint8_t(i % CalBlockSize(record.kind) < 160 ? 0 : 0x15);
        }
        other.records[1].blocks.clear();
        std::vector<ECalSent> sent;
        ASSERT_EQ(FindCalItem(item).make()->DownloadBlocks(other, sent), 0u);
        const SCalBlockImage odd = Flash(item);
        ASSERT_FALSE(IsSame(odd, before));

        auto keep = Begun(item);
        ASSERT_EQ(keep->SaveBackup(Path("backups")), QString());
        const QString backup = keep->BackupFile();
        keep.reset();
        ASSERT_EQ(FindCalItem(item).make()->DownloadBlocks(before, sent), 0u);
        ASSERT_TRUE(IsSame(Flash(item), before));

        auto restore = Begun(item);
        ASSERT_EQ(restore->WantFile(backup, {.isRestore = true}), QString());
        EXPECT_EQ(restore->Carry().end, EGuardedEnd::Verified);
        EXPECT_TRUE(IsSame(Flash(item), odd));
    }
}

TEST_F(CGuardedWriteTest, AStuckFieldIsNamed)
{
    const auto write = Ready();
    VondSim_AddFault(R"({"kind": "stuck", "record": "apt", "route": 1, "bandwidth": 50000,
                         "block": 1, "field": "couplerLoss[0]"})");
    const SGuardedOutcome outcome = write->Carry();
    EXPECT_EQ(outcome.end, EGuardedEnd::Different);
    EXPECT_EQ(outcome.written, QStringList({kThree[0], kThree[2]}));
    EXPECT_EQ(outcome.notWritten, QStringList({kThree[1]}));
    ASSERT_EQ(outcome.rest->Count(), 1u);
    EXPECT_EQ(outcome.rest->At(0).field, "couplerLoss[0]");
    EXPECT_EQ(outcome.rest->At(0).left, "1.5 dB");
    EXPECT_TRUE(outcome.text.contains("TX route 1 BW1 couplerLoss[0]: 1.5 dB wanted, "))
        << outcome.text.toStdString();
    EXPECT_TRUE(outcome.text.contains("quorlin cal restore '" + write->BackupFile() + "'"));
}

TEST_F(CGuardedWriteTest, ARefusedRoundHasWrittenNothing)
{
    const auto write = Ready();
    const SCalBlockImage before = write->Flash();
    Fault(kSet, 7);
    const SGuardedOutcome outcome = write->Carry();
    EXPECT_EQ(outcome.end, EGuardedEnd::NotWritten);
    EXPECT_EQ(outcome.notWritten, kThree);
    EXPECT_FALSE(outcome.trouble.isEmpty());
    EXPECT_TRUE(IsSame(Flash(ECalItem::Apt), before));
}

TEST_F(CGuardedWriteTest, AnAnswerThatIsLostIsMadeUpForByTheReadBack)
{
    const auto write = Ready();
    AnswerBytes(kSet, 0, "00");
    const SGuardedOutcome outcome = write->Carry();
    EXPECT_EQ(outcome.end, EGuardedEnd::Verified);
    EXPECT_FALSE(outcome.trouble.isEmpty());
}

TEST_F(CGuardedWriteTest, WithoutAReadBackTheAnswersCount)
{
    const auto write = Ready();
    Fault("VOND_MMRf_GetCalDataV7_r");
    SGuardedOutcome outcome = write->Carry();
    EXPECT_EQ(outcome.end, EGuardedEnd::Unknown);
    EXPECT_EQ(outcome.written, kThree);
    EXPECT_FALSE(outcome.isReadBack);
    EXPECT_TRUE(outcome.text.contains("Accepted by the DUT: TX route 1 BW0"));
}

TEST_F(CGuardedWriteTest, WhatTheCutRoundHadIsUnknown)
{
    const auto write = Ready();
    VondSim_AddFault(R"({"kind": "powerCut", "block": 2, "torn": true})");
    const SGuardedOutcome outcome = write->Carry();
    EXPECT_EQ(outcome.end, EGuardedEnd::Unknown);
    EXPECT_EQ(outcome.unknown, kThree);
    EXPECT_TRUE(outcome.written.isEmpty());
}

// The joined record of a torn one may look as wanted, while its first block is not.
TEST_F(CGuardedWriteTest, AfterACutBothWaysLeadOut)
{
    const SCalBlockImage old = Flash(ECalItem::Apt);
    for (const bool isRestore : {true, false}) {
        auto write = Ready();
        const QString backup = write->BackupFile();
        VondSim_AddFault(R"({"kind": "powerCut", "block": 2, "torn": true})");
        EXPECT_EQ(write->Carry().end, EGuardedEnd::Unknown);
        write.reset();
        VondSim_SetPlugged(1);
        auto further = Begun(ECalItem::Apt);
        ASSERT_EQ(
            further->WantFile(isRestore ? backup : Path("edited.ini"), {.isRestore = isRestore}),
            QString());
        EXPECT_EQ(further->Carry().end, EGuardedEnd::Verified);
        EXPECT_EQ(IsSame(Flash(ECalItem::Apt), old), isRestore);
    }
}

// Exactly 32 frequencies, in the second block another one than before: two blocks, also from a record in
// which the new frequencies stand already.
TEST_F(CGuardedWriteTest, TheBlockCountOfAFileDoesNotHangOnWhatACutHasLeft)
{
    SCalBlockImage flash = Flash(ECalItem::Apt);
    SCalImage image = JoinedImage(flash);
    const auto at =
        std::find_if(image.records.begin(), image.records.end(), [](const auto &record) {
            return record.bytes[offsetof(SAptRouteBwRecord, blockCount)] == 2;
        });
    ASSERT_NE(at, image.records.end());
    auto *record = reinterpret_cast<SAptRouteBwRecord *>(at->bytes.data());
    for (int i = 0; i < kVondCalMaxSubbands; ++i)
        record->freq[i] = i < 32 ? record->freq[0] : 0;
    const SCalBlockRecord *before = flash.Find(at->kind, at->place);
    for (const uint32_t known : {1u, 2u, 3u}) {
        SCalBlockRecord torn = *before;
        torn.blocks.resize(known * CalBlockSize(at->kind));
        CountFileBlocks(*at, &torn);
        EXPECT_EQ(record->blockCount, std::max(2u, known));
    }
    CountFileBlocks(*at, nullptr);
    EXPECT_EQ(record->blockCount, 2u);
}

TEST_F(CGuardedWriteTest, BlocksThatRepeatAValueDifferentlyAreMendedAndTold)
{
    SCalBlockImage flash = Flash(ECalItem::Apt);
    const auto torn =
        std::find_if(flash.records.begin(), flash.records.end(), [](const SCalBlockRecord &record) {
            return record.blocks.size() > CalBlockSize(record.kind);
        });
    ASSERT_NE(torn, flash.records.end());
    torn->blocks[2] ^= 1;  // the temperature index of the first block alone
    std::vector<ECalSent> sent;
    ASSERT_EQ(FindCalItem(ECalItem::Apt).make()->DownloadBlocks({{*torn}}, sent), 0u);

    const QString file = Edited(ECalItem::Apt, "Route", "1", 1);
    const auto write = Begun(ECalItem::Apt);
    ASSERT_EQ(write->WantFile(file, {}), QString());
    EXPECT_EQ(write->Changes().Count(), 0u);
    ASSERT_EQ(write->ChangedRecords().size(), 1);
    EXPECT_EQ(write->Notes().size(), 1);
    EXPECT_EQ(write->Carry().end, EGuardedEnd::Verified);
}

TEST_F(CGuardedWriteTest, BytesThatNoFieldShowsAreNamedWhenTheyAreNotMended)
{
    SCalBlockImage flash = Flash(ECalItem::Apt);
    const auto torn =
        std::find_if(flash.records.begin(), flash.records.end(), [](const SCalBlockRecord &record) {
            return record.blocks.size() > CalBlockSize(record.kind);
        });
    ASSERT_NE(torn, flash.records.end());
    torn->blocks[2] ^= 1;
    std::vector<ECalSent> sent;
    ASSERT_EQ(FindCalItem(ECalItem::Apt).make()->DownloadBlocks({{*torn}}, sent), 0u);
    const QString file = Edited(ECalItem::Apt, "Route", "1", 1);
    const auto write = Begun(ECalItem::Apt);
    ASSERT_EQ(write->WantFile(file, {}), QString());
    Fault(kSet, 7);
    const SGuardedOutcome outcome = write->Carry();
    EXPECT_EQ(outcome.end, EGuardedEnd::NotWritten);
    const QString name = QString::fromStdString(CalRecordName(torn->kind, torn->place));
    EXPECT_TRUE(outcome.text.contains(name + " block 1 ")) << outcome.text.toStdString();
}

TEST_F(CGuardedWriteTest, RecordsThatShouldGoOrComeAreNamedWhenTheyDoNot)
{
    const SCalBlockImage before = Flash(ECalItem::Apt);
    SCalBlockImage other = before;
    other.records[1].blocks.clear();
    std::vector<ECalSent> sent;
    for (const bool isGoing : {true, false}) {
        ASSERT_EQ(FindCalItem(ECalItem::Apt).make()->DownloadBlocks(isGoing ? other : before, sent),
                  0u);
        auto keep = Begun(ECalItem::Apt);
        ASSERT_EQ(keep->SaveBackup(Path("backups")), QString());
        const QString backup = keep->BackupFile();
        keep.reset();
        ASSERT_EQ(FindCalItem(ECalItem::Apt).make()->DownloadBlocks(isGoing ? before : other, sent),
                  0u);
        const auto restore = Begun(ECalItem::Apt);
        ASSERT_EQ(restore->WantFile(backup, {.isRestore = true}), QString());
        Fault(kSet, 7);
        const SGuardedOutcome outcome = restore->Carry();
        EXPECT_EQ(outcome.notWritten, QStringList({kThree[1]}));
        EXPECT_TRUE(
            outcome.text.contains(kThree[1] + (isGoing ? ": still in flash" : ": not in flash")))
            << outcome.text.toStdString();
        VondSim_ClearFaults();
    }
}

TEST_F(CGuardedWriteTest, ARecordThatTheReadBackLeavesOutIsUnknown)
{
    auto item = FindCalItem(ECalItem::PathLoss).make();
    ASSERT_EQ(item->UploadFromFlash(), 0u);
    SCalImage image = item->Image();
    const auto first =
        std::find_if(image.records.begin(), image.records.end(),
                     [](const SCalImageRecord &record) { return record.kind == ECalRoute::Type1; });
    ASSERT_NE(first, image.records.end());
    first->bytes[offsetof(SMMType1PathlossByRouteV7, plOffset)] ^= 1;
    const auto write = Begun(ECalItem::PathLoss);
    ASSERT_EQ(write->WantImage(image, {}), QString());
    const QStringList changed = write->ChangedRecords();
    ASSERT_EQ(changed.size(), 1);
    AnswerBytes("VOND_MMRf_GetCalBlkInfoV7_r", 8, "0500");  // five blocks
    const SGuardedOutcome outcome = write->Carry();
    EXPECT_EQ(outcome.end, EGuardedEnd::Unknown);
    EXPECT_TRUE(outcome.isReadBack);
    EXPECT_EQ(outcome.unknown, changed);
}

// Another program without the lock, or the DUT itself.
TEST_F(CGuardedWriteTest, ARecordThatWasNotSentAndIsOtherAllTheSameIsNamed)
{
    const auto write = Ready();
    SCalBlockRecord bystander = write->Flash().records.back();
    ASSERT_FALSE(
        kThree.contains(QString::fromStdString(CalRecordName(bystander.kind, bystander.place))));
    bystander.blocks[4] ^= 1;
    std::vector<ECalSent> sent;
    ASSERT_EQ(FindCalItem(ECalItem::Apt).make()->DownloadBlocks({{bystander}}, sent), 0u);
    const SGuardedOutcome outcome = write->Carry();
    EXPECT_EQ(outcome.end, EGuardedEnd::Different);
    EXPECT_EQ(outcome.written, kThree);
    EXPECT_EQ(
        outcome.different,
        QStringList({QString::fromStdString(CalRecordName(bystander.kind, bystander.place))}));
}

TEST_F(CGuardedWriteTest, OfManyDifferencesTheFirstTwentyAreToldAndTheOthersCounted)
{
    const QString file =
        Edited(ECalItem::Apt, "Tx compensation power detector coupler loss 0", "1.5", 23);
    const auto write = Begun(ECalItem::Apt);
    ASSERT_EQ(write->WantFile(file, {}), QString());
    ASSERT_EQ(write->Changes().Count(), 23u);
    Fault(kSet, 7);
    const SGuardedOutcome outcome = write->Carry();
    EXPECT_EQ(outcome.text.count(" 1.5 dB wanted, "), 20) << outcome.text.toStdString();
    EXPECT_TRUE(outcome.text.contains("\n... and 3 more values\n"));
}

TEST_F(CGuardedWriteTest, ABackupOfEmptyFlashIsOneFileAndEmptiesFlashAgain)
{
    const SCalBlockImage before = Flash(ECalItem::Apt);
    SCalBlockImage none = before;
    for (SCalBlockRecord &record : none.records)
        record.blocks.clear();
    std::vector<ECalSent> sent;
    ASSERT_EQ(FindCalItem(ECalItem::Apt).make()->DownloadBlocks(none, sent), 0u);
    auto keep = Begun(ECalItem::Apt);
    EXPECT_EQ(keep->SaveIni(Path("empty.ini")), "Flash has no record of this item.");
    ASSERT_EQ(keep->SaveBackup(Path("backups")), QString());
    const QString backup = keep->BackupFile();
    EXPECT_EQ(FilesOf(Path("backups")).size(), 1);
    keep.reset();
    ASSERT_EQ(FindCalItem(ECalItem::Apt).make()->DownloadBlocks(before, sent), 0u);
    const auto restore = Begun(ECalItem::Apt);
    ASSERT_EQ(restore->WantFile(backup, {.isRestore = true}), QString());
    EXPECT_EQ(restore->Carry().end, EGuardedEnd::Verified);
    EXPECT_TRUE(IsSame(Flash(ECalItem::Apt), none));
}

TEST_F(CGuardedWriteTest, MemoryOfAPageIsWrittenLikeAFile)
{
    auto item = FindCalItem(ECalItem::Apt).make();
    ASSERT_EQ(item->UploadFromFlash(), 0u);
    SCalImage image = item->Image();
    image.records[0].bytes[4] ^= 1;
    const auto write = Begun(ECalItem::Apt);
    ASSERT_EQ(write->WantImage(image, {}), QString());
    EXPECT_EQ(write->ChangedRecords(), QStringList({kThree[0]}));
    EXPECT_EQ(write->Carry().end, EGuardedEnd::Verified);
}

TEST_F(CGuardedWriteTest, TheIniFileOfABackupHoldsWhatFlashHeldAndNotWhatIsWanted)
{
    const QString ini = QString(Ready()->BackupFile()).replace(".json", ".ini");
    const auto write = Begun(ECalItem::Apt);
    ASSERT_EQ(write->WantFile(ini, {}), QString());
    EXPECT_EQ(write->ChangedRecords(), QStringList());
}

TEST_F(CGuardedWriteTest, TheSecondWriterIsToldWhoHoldsTheDut)
{
    auto first = Begun(ECalItem::Apt);
    const QString why = Write(ECalItem::PathLoss)->Begin();
    EXPECT_TRUE(why.contains(QString::number(getpid()))) << why.toStdString();
    EXPECT_EQ(Write(ECalItem::PathLoss)->BeginLook(), QString());
    first.reset();
    EXPECT_EQ(Write(ECalItem::PathLoss)->Begin(), QString());
}

TEST_F(CGuardedWriteTest, ProgressTellsEachStep)
{
    QString steps;
    const QString file = EditedApt();
    auto write = Write(ECalItem::Apt, [&steps](EGuardStep step, int, int) {
        const QString name = QString::number(static_cast<int>(step));
        if (!steps.endsWith(name))
            steps += name;
    });
    ASSERT_EQ(write->Begin(), QString());
    ASSERT_EQ(write->WantFile(file, {}), QString());
    EXPECT_EQ(write->Carry().end, EGuardedEnd::Verified);
    EXPECT_EQ(steps, "012");
}

}  // namespace
