// What a guarded write refuses before it writes, and its backups.
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "Controller/guard/CalBackup.h"
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

TEST_F(CGuardRefusalTest, AFolderThatTakesNoFileIsToldAndNothingIsWritten)
{
    const auto write = Begun(ECalItem::Apt);
    const QString file = Put("no-folder", "x");
    const QString why = write->SaveBackup(file + "/backups");
    EXPECT_TRUE(why.contains("No backup could be saved")) << why.toStdString();
    EXPECT_TRUE(write->BackupFile().isEmpty());
    EXPECT_EQ(CountCalls("VOND_MMRf_SetCalDataV7_r"), 0);
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
    ASSERT_EQ(write->SaveJson(Path("part.json")), QString());
    SCalBackup backup;
    ASSERT_EQ(ReadCalBackup(Path("part.json"), backup), QString());
    EXPECT_EQ(backup.unread.size(), 1);
}

}  // namespace
