// Which calibration items a file holds, as the core tells it.
#include <QTemporaryDir>

#include "Support/CalIniFile.h"
#include "tests/controller/core/CoreFixture.h"

namespace {

constexpr char kGetCalData[] = "VOND_MMRf_GetCalDataV7_r";

class CalItemInFileTest : public CCoreTest
{
protected:
    QStringList ItemsIn(const char *text)
    {
        const QString path = m_folder.filePath("cal.ini");
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        file.close();
        CCalIniFile ini(path.toStdWString().c_str());
        return Items(&ini);
    }
    QStringList Items(CCalIniFile *file)
    {
        QStringList items{"old"};
        m_core.GetCalItemInFile(items, file);
        return items;
    }

    QTemporaryDir m_folder;
};

TEST_F(CalItemInFileTest, ItemsAreThoseWithASectionPathLossFirst)
{
    EXPECT_EQ(ItemsIn("[NR n1 BW0 TPC]\n[NR n1 RX loss]\n"),
              QStringList({"RX PathLoss", "APT Profile"}));
    EXPECT_EQ(ItemsIn("[NR n1 BW0 TPC]\n"), QStringList("APT Profile"));
    EXPECT_EQ(ItemsIn("[NR n1 RXD loss]\n"), QStringList("RX PathLoss"));
    EXPECT_EQ(ItemsIn("[NR n1 Route NCCA0 RX loss]\n"), QStringList("RX PathLoss"));
}

TEST_F(CalItemInFileTest, FileWithoutASectionOfTheDutHasNoItem)
{
    EXPECT_EQ(ItemsIn(""), QStringList());
    EXPECT_EQ(ItemsIn("[NR n66 BW0 TPC]\n[LTE BAND1 RX loss]\n"), QStringList());
}

TEST_F(CalItemInFileTest, AnotherChipDoesNotMatter)
{
    EXPECT_EQ(ItemsIn("[NR n1 BW0 TPC]\nRF Chip ID = other\n"), QStringList("APT Profile"));
}

TEST_F(CalItemInFileTest, FileThatCantBeReadHasNoItem)
{
    CCalIniFile missing(m_folder.filePath("none.ini").toStdWString().c_str());
    EXPECT_EQ(Items(&missing), QStringList());
    EXPECT_EQ(Items(nullptr), QStringList());
}

TEST_F(CalItemInFileTest, UnsupportedTargetHasNoItemInAnyFile)
{
    for (const char *profile : {"c2k", "no-nr", "unplugged"}) {
        Plug(profile);
        EXPECT_EQ(ItemsIn("[NR n1 BW0 TPC]\n[NR n1 RX loss]\n"), QStringList()) << profile;
    }
}

TEST_F(CalItemInFileTest, AskingReadsNoDataAndLoadsNoRecord)
{
    ItemsIn("[NR n1 BW0 TPC]\n[NR n1 RX loss]\n");
    EXPECT_EQ(CountCalls(kGetCalData), 0);
    Run([this] { m_core.DownloadToFlashStart({"APT Profile", "RX PathLoss"}); });
    EXPECT_EQ(CountCalls("VOND_MMRf_SetCalDataV7_r"), 0);
}

}  // namespace
