// What a guarded write refuses before it writes, and its backups.
#include <algorithm>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "Controller/guard/CalBackup.h"
#include "Controller/guard/DutLock.h"
#include "Operations/calibration/CalItemByL1Operation.h"
#include "Operations/calibration/CalRecords.h"
#include "Operations/link/TargetLink.h"
#include "Support/CalIniFile.h"
#include "tests/controller/guard/GuardFixture.h"

namespace {

class CGuardRefusalTest : public CGuardTest
{
protected:
    std::string Why(const QString &file, const SGuardOptions &options = {})
    {
        const auto write = Begun(ECalItem::Apt);
        return write->WantFile(file, options).toStdString();
    }
    // A backup with a part of its JSON replaced.
    QString BrokenBackup(const QByteArray &from, const QByteArray &to)
    {
        const auto look = Begun(ECalItem::Apt);
        EXPECT_EQ(look->SaveJson(Path("good.json")), QString());
        QByteArray text = Bytes(Path("good.json"));
        const int at = text.indexOf(from);
        EXPECT_GE(at, 0) << from.toStdString();
        return Put("broken.json", text.replace(at, from.size(), to));
    }
};

bool Has(const std::string &text, const char *words)
{
    return text.find(words) != std::string::npos;
}

TEST_F(CGuardRefusalTest, AFileOfAnotherRouteIsRefusedUnlessItIsAllowed)
{
    const QString file = Edited(ECalItem::Apt, "Route", "12", 2);
    const std::string why = Why(file);
    EXPECT_TRUE(Has(why, "2 of its sections name another route")) << why;
    EXPECT_TRUE(Has(why, "[NR n1 BW0 TPC] goes to TX route 1 BW0, but its Route is 12")) << why;
    EXPECT_EQ(Why(file, {.mayTakeOtherRoutes = true}), "");
    EXPECT_EQ(Why(file, {.only = {"3"}}), "");  // of the chosen routes alone
}

TEST_F(CGuardRefusalTest, ValuesBeyondTheEditorsAreRefusedAndNamed)
{
    const std::string why = Why(Edited(ECalItem::Apt, "Pa mode map", "9", 1));
    EXPECT_TRUE(Has(why, "TX route 1 BW0 level[0].paMode: 9 is not within")) << why;
}

TEST_F(CGuardRefusalTest, TextsThatAreNoNumbersAreRefused)
{
    const std::string why = Why(Edited(ECalItem::Apt, "Temperature Index", "three", 1));
    EXPECT_TRUE(Has(why, "[NR n1 BW0 TPC] Temperature Index: \"three\"")) << why;
}

TEST_F(CGuardRefusalTest, AFileOfAnotherChipIsRefused)
{
    EXPECT_TRUE(Has(Why(Edited(ECalItem::Apt, "RF Chip ID", "VR1", 1)), "mismatch"));
    EXPECT_TRUE(Has(Why(BrokenBackup("\"chip\": \"", "\"chip\": \"X")), "RF chip X"));
}

TEST_F(CGuardRefusalTest, FilesThatAreNoneAreRefusedInWords)
{
    EXPECT_TRUE(Has(Why(Path("none.ini")), "there is no such file"));
    EXPECT_TRUE(Has(Why(Path("none.json")), "there is no such file"));
    EXPECT_TRUE(Has(Why(m_folder.path()), "it is no file"));
    ASSERT_TRUE(QDir(m_folder.path()).mkdir("folder.json"));
    EXPECT_TRUE(Has(Why(Path("folder.json")), "folder.json cannot be read: it is no file"));
    EXPECT_TRUE(Has(Why(Put("empty.ini", "")), "does not exist in this file"));
    EXPECT_TRUE(Has(Why(Put("empty.json", "")), "may be cut or damaged"));
    EXPECT_TRUE(Has(Why(Put("other.json", "{}")), "it is no backup of calibration data"));
    for (const char *name : {"huge.ini", "huge.json"}) {
        QFile file(Path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.resize(qint64(500) << 20));
        EXPECT_TRUE(Has(Why(Path(name)), "it has 500 MB")) << name;
    }
}

TEST_F(CGuardRefusalTest, EveryCutOfABackupIsRefused)
{
    const auto look = Begun(ECalItem::PathLoss);
    ASSERT_EQ(look->SaveJson(Path("good.json")), QString());
    const QByteArray text = Bytes(Path("good.json"));
    SCalBackup backup;
    for (int end = 0; end < text.trimmed().size(); end += 1 + text.size() / 200)
        EXPECT_NE(ReadCalBackup(Put("cut.json", text.left(end)), backup), QString()) << end;
    EXPECT_EQ(ReadCalBackup(Path("good.json"), backup), QString());
    EXPECT_TRUE(IsSame(backup.image, look->Flash()));
}

TEST_F(CGuardRefusalTest, ABackupThatIsNotAsItHasToBeIsRefusedWithThePlace)
{
    struct SBroken
    {
        const char *from, *to, *words;
    };
    const SBroken kBroken[] = {
        {"\"version\": 1", "\"version\": 2", "its version is not 1"},
        {"\"item\": \"apt\"", "\"item\": \"rx-path-loss\"", "is a backup of \"rx-path-loss\""},
        {"\"chip\"", "\"chp\"", "\"chip\" is missing"},
        {"\"item\": \"apt\"", "\"item\": 7", "\"item\" is no text"},
        {"\"unread\": [", "\"unread\": 7, \"more\": [", "\"unread\" is no list"},
        {"\"blocks\": [", "\"blocks\": [\"\", \"\", \"\", \"\", \"\",",
         "blocks, more than the 4 of a record"},
        {"\"records\": [", "\"records\": [7,", "records[0]: it is no object"},
        {"\"kind\": \"TX\"", "\"kind\": \"RX\"", "\"kind\" is none of TX, T1, T2"},
        {"                \"0", "                \"z", "a block is not 904 hexadecimal digits"},
        {"\"bandwidth\": ", "\"bandwidth\": 1", "has no region up to"},
        {"\"band\": 1,", "\"band\": 2,", "of a DUT with another route table"},
    };
    for (const SBroken &broken : kBroken) {
        const std::string why = Why(BrokenBackup(broken.from, broken.to));
        EXPECT_TRUE(Has(why, broken.words)) << broken.from << ": " << why;
    }
}

TEST_F(CGuardRefusalTest, ABackupOfADutWithOtherRoutesIsRefused)
{
    const QString backup = BrokenBackup("\"unread\"", "\"unread\"");
    PlugHandsetWith(R"("txRoutes": [{"band": 78, "route": 77, "regions": [
        {"kHz": 100000, "antMask": 1, "feRoute": 7, "port": "TX_0", "stx": 0}]}],
        "rxType1Routes": [], "rxType2Routes": [], "txLimits": [], "rxLimits": [])");
    EXPECT_TRUE(Has(Why(backup), "The DUT has no TX route 1 BW0"));
}

TEST_F(CGuardRefusalTest, ABackupOfADutWithOtherBandwidthsIsRefused)
{
    const QString backup = BrokenBackup("\"unread\"", "\"unread\"");
    PlugHandsetWith(R"("txRoutes": [{"band": 1, "route": 1, "regions": [
        {"kHz": 7000, "antMask": 1, "feRoute": 7, "port": "TX_0", "stx": 0}]}],
        "rxType1Routes": [], "rxType2Routes": [], "txLimits": [], "rxLimits": [])");
    const std::string why = Why(backup);
    EXPECT_TRUE(
        Has(why, "The DUT has no region up to 20000 kHz on TX route 1, of which the backup"))
        << why;
}

// A file of 64 frequencies has a block more than a transfer of type 2 holds.
TEST_F(CGuardRefusalTest, ARecordThatNoTransferHoldsIsRefused)
{
    auto item = FindCalItem(ECalItem::PathLoss).make();
    ASSERT_EQ(item->UploadFromFlash(), 0u);
    SCalImage image = item->Image();
    const auto at = std::find_if(image.records.begin(), image.records.end(),
                                 [](const auto &one) { return one.kind == ECalRoute::Type2; });
    ASSERT_NE(at, image.records.end());
    auto *record = reinterpret_cast<SMMType2PathlossByRouteV7 *>(at->bytes.data());
    record->blockCount = kVondCalMaxBlocks;
    std::fill_n(record->freq, kVondCalMaxSubbands, 2000000);
    const auto write = Begun(ECalItem::PathLoss);
    const std::string why = write->WantImage(image, {}).toStdString();
    EXPECT_TRUE(Has(why, "has 4 blocks, more than the 3 that one transfer holds")) << why;
    EXPECT_TRUE(write->ChangedRecords().isEmpty());
}

TEST_F(CGuardRefusalTest, ChosenRoutesThatTheFileLacksAreNamed)
{
    const QString file = EditedApt();
    EXPECT_EQ(Why(file, {.only = {"99"}}), "There is no record of route 99 to write.");
    EXPECT_TRUE(Has(Why(file, {.only = {"1", "T2:1"}}), "route T2:1"));
    const auto write = Begun(ECalItem::Apt);
    ASSERT_EQ(write->WantFile(file, {.only = {"tx:2"}}), QString());
    EXPECT_EQ(write->ChangedRecords(), QStringList({"TX route 2 BW0"}));
}

TEST_F(CGuardRefusalTest, ABackupIsTwoFilesAndNeverOverwritesOne)
{
    const auto write = Begun(ECalItem::Apt);
    const QString folder = Path("new/folder");
    for (int i = 1; i <= 3; ++i) {
        ASSERT_EQ(write->SaveBackup(folder), QString());
        EXPECT_EQ(FilesOf(folder).size(), 2 * i);
    }
    const QString name = write->BackupFile();
    EXPECT_TRUE(name.startsWith(folder + "/apt-VR6240-handle23063-")) << name.toStdString();
    EXPECT_TRUE(QFile::exists(QString(name).replace(".json", ".ini")));
    EXPECT_EQ(QDir(folder).entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot).size(), 0);
}

// One of the two files of a backup may have been moved away.
TEST_F(CGuardRefusalTest, ABackupTakesNoNameWhoseIniFileIsThere)
{
    const auto write = Begun(ECalItem::Apt);
    ASSERT_EQ(write->SaveBackup(Path("other")), QString());
    const QString stem = QFileInfo(write->BackupFile()).fileName().section("-handle", 0, 0);
    ASSERT_TRUE(QDir().mkpath(Path("taken")));
    const QDateTime now = QDateTime::currentDateTime();
    QStringList taken;  // in the next ten minutes
    for (int second = 0; second < 600; ++second)
        taken.append(QString("taken/%1-handle23063-%2")
                         .arg(stem, now.addSecs(second).toString("yyyyMMdd-HHmmss")));
    for (const QString &name : taken)
        Put(name + ".ini", "mine");
    ASSERT_EQ(write->SaveBackup(Path("taken")), QString());
    EXPECT_TRUE(write->BackupFile().endsWith("-2.json")) << write->BackupFile().toStdString();
    for (const QString &name : taken)
        EXPECT_EQ(Bytes(Path(name + ".ini")), "mine");
}

TEST_F(CGuardRefusalTest, ADutWhoseLockNamesNobodyIsHeldByAnotherProgram)
{
    const QByteArray name = QFile::encodeName(CDutLock::FileOf(TargetHandle()));
    const int file = open(name.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    ASSERT_GE(file, 0);
    ASSERT_EQ(flock(file, LOCK_EX | LOCK_NB), 0);
    const std::string why = Write(ECalItem::Apt)->Begin().toStdString();
    EXPECT_TRUE(Has(why, "is being written by another program. Wait")) << why;
    close(file);
    EXPECT_EQ(Write(ECalItem::Apt)->Begin(), QString());
}

TEST_F(CGuardRefusalTest, AnIniFileThatCannotBeWrittenIsToldInWords)
{
    const auto look = Write(ECalItem::Apt);
    ASSERT_EQ(look->BeginLook(), QString());
    const QString file = Put("no-folder", "x") + "/flash.ini";
    const std::string why = look->SaveIni(file).toStdString();
    EXPECT_TRUE(Has(why, "no-folder/flash.ini failed")) << why;
}

TEST_F(CGuardRefusalTest, AFolderThatTakesNoFileIsToldAndNothingIsWritten)
{
    const auto write = Begun(ECalItem::Apt);
    const QString file = Put("no-folder", "x");
    const QString why = write->SaveBackup(file + "/backups");
    EXPECT_TRUE(why.contains("No backup could be saved")) << why.toStdString();
    EXPECT_TRUE(write->BackupFile().isEmpty());
    EXPECT_EQ(CountCalls("VOND_MMRf_SetCalDataV7_r"), 0);
}

TEST_F(CGuardRefusalTest, AWriteThatWasPlannedBeforeAResetSendsNothing)
{
    Run([this] { m_core.UploadFromFlashStart({CalItemName(ECalItem::Apt)}); });
    const QString file = EditedApt();
    Run([&] {
        m_core.LoadFromFileStart(std::make_shared<CCalIniFile>(file.toStdWString().c_str()),
                                 {CalItemName(ECalItem::Apt)});
    });
    SGuardedPlan plan = m_core.PlanGuardedWrite(ECalItem::Apt);
    ASSERT_EQ(plan.records.size(), 3) << plan.refusal.toStdString();
    plan.backupFolder = Path("backups");
    m_core.ResetTargetCache();
    const SGuardedReport report = m_core.CarryGuardedWrite(plan);
    EXPECT_EQ(report.text,
              "The tool was reset since the question was asked. Nothing was sent to the target.");
    EXPECT_TRUE(report.hasFailed);
    EXPECT_EQ(CountCalls("VOND_MMRf_SetCalDataV7_r"), 0);
    EXPECT_EQ(Write(ECalItem::Apt)->Begin(), QString());
}

TEST_F(CGuardRefusalTest, FlashThatCannotBeReadEndsTheWriteAtItsBegin)
{
    for (const char *function : {"VOND_MMRf_GetCalBlkInfoV7_r", "VOND_MMRf_GetCalDataV7_r"}) {
        Plug("handset");
        Fault(function);
        const auto write = Write(ECalItem::Apt);
        EXPECT_TRUE(write->Begin().startsWith("Flash could not be read: ")) << function;
    }
    EXPECT_EQ(CountCalls("VOND_MMRf_SetCalDataV7_r"), 0);
}

TEST_F(CGuardRefusalTest, RecordsThatCannotBeReadAreToldAndNotInTheBackup)
{
    const auto good = Begun(ECalItem::PathLoss);
    const std::size_t all = good->Flash().records.size();
    AnswerBytes("VOND_MMRf_GetCalBlkInfoV7_r", 8, "0500");  // the first type 1 route: five blocks
    const auto write = Write(ECalItem::PathLoss);
    ASSERT_EQ(write->BeginLook(), QString());
    EXPECT_EQ(write->Flash().records.size(), all - 1);
    ASSERT_EQ(write->Unread().size(), 1);
    EXPECT_TRUE(write->Unread()[0].contains("5 blocks in flash"));
    ASSERT_EQ(write->WantImage({}, {}), QString());
    ASSERT_EQ(write->Notes().size(), 1);
    EXPECT_TRUE(write->Notes()[0].contains("could not be read, so the backup lacks it: "));
    ASSERT_EQ(write->SaveJson(Path("part.json")), QString());
    SCalBackup backup;
    ASSERT_EQ(ReadCalBackup(Path("part.json"), backup), QString());
    EXPECT_EQ(backup.unread.size(), 1);
}

}  // namespace
