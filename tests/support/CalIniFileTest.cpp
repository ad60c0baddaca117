// Typed reads and writes of CCalIniFile and its failure texts.

#include "Support/CalIniFile.h"

#include <climits>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <limits>

#include <sys/stat.h>

#include <gtest/gtest.h>

#include "tests/support/IniTestFolder.h"

namespace {

class CalIniFile : public testing::Test
{
protected:
    // Takes an installed locale, or compiles one into the folder of the test.
    bool UseLocaleWithComma()
    {
        if (std::setlocale(LC_ALL, "de_DE.UTF-8"))
            return true;
        const std::string locale = m_folder.Path("de_DE.UTF-8");
        if (std::system(("localedef -i de_DE -f UTF-8 '" + locale + "' 2>/dev/null").c_str()) != 0)
            return false;
        qputenv("LOCPATH", QByteArray::fromStdString(m_folder.Path(".")));
        const bool used = std::setlocale(LC_ALL, "de_DE.UTF-8");
        qunsetenv("LOCPATH");
        return used;
    }

    CIniTestFolder m_folder;
};

}  // namespace

TEST_F(CalIniFile, MissingFileThrowsOnTheFirstReadNotOnConstruction)
{
    CCalIniFile file(m_folder.WidePath().c_str());
    EXPECT_EQ(FailureOf([&] { file.ReadString("S", "k", "d"); }),
              "Read S::k from " + m_folder.Path() + " failed (load file failed)");
    EXPECT_EQ(FailureOf([&] { file.ReadInt("S", "k", 1); }),
              "Read S::k from " + m_folder.Path() + " failed (load file failed)");
    EXPECT_FALSE(file.Load());
    EXPECT_FALSE(m_folder.Exists());
}

TEST_F(CalIniFile, SectionQueriesOnAMissingFileNameTheSectionOnly)
{
    CCalIniFile file(m_folder.WidePath().c_str());
    const std::string text = "Read NR n78 from " + m_folder.Path() + " failed (load file failed)";
    EXPECT_EQ(FailureOf([&] { file.HasSection("NR n78"); }), text);
    EXPECT_EQ(FailureOf([&] { file.ReadSectionKeys("NR n78"); }), text);
}

TEST_F(CalIniFile, NullPathIsAnEmptyPath)
{
    CCalIniFile file(nullptr);
    EXPECT_FALSE(file.Load());
    EXPECT_EQ(FailureOf([&] { file.HasSection("S"); }), "Read S from  failed (load file failed)");
    EXPECT_EQ(FailureOf([&] { file.WriteString("S", "k", "v"); }),
              "Write S::k to  failed (create file failed)");
}

TEST_F(CalIniFile, ReadIntOfAnAbsentKeyReturnsTheDefault)
{
    m_folder.Put("[S]\nother = 1\n");
    CCalIniFile file(m_folder.WidePath().c_str());
    EXPECT_EQ(file.ReadInt("S", "k", -37), -37);
    EXPECT_EQ(file.ReadInt("absent", "k", INT_MIN), INT_MIN);
    EXPECT_EQ(file.ReadInt("S", "k", INT_MAX), INT_MAX);
}

TEST_F(CalIniFile, ReadIntOfANonNumericValueReturns0)
{
    m_folder.Put("[S]\nword = seven\nempty =\nhex = 0x10\n");
    CCalIniFile file(m_folder.WidePath().c_str());
    EXPECT_EQ(file.ReadInt("S", "word", 5), 0);
    EXPECT_EQ(file.ReadInt("S", "empty", 5), 0);
    EXPECT_EQ(file.ReadInt("S", "hex", 5), 0);
}

TEST_F(CalIniFile, ReadIntTakesTheLeadingDecimalNumber)
{
    m_folder.Put("[S]\na = 42\nb = -7dB\nc = 99999999999999999999\nd = -99999999999\n");
    CCalIniFile file(m_folder.WidePath().c_str());
    EXPECT_EQ(file.ReadInt("S", "a", 0), 42);
    EXPECT_EQ(file.ReadInt("S", "b", 0), -7);
    EXPECT_EQ(file.ReadInt("S", "c", 0), INT_MAX);
    EXPECT_EQ(file.ReadInt("S", "d", 0), INT_MIN);
}

TEST_F(CalIniFile, KeysDifferingOnlyInCaseAreOneKey)
{
    m_folder.Put("[S]\nRoute = 1\n");
    CCalIniFile file(m_folder.WidePath().c_str());
    EXPECT_EQ(file.ReadString("s", "ROUTE", ""), "1");
    file.WriteString("S", "rOUTE", "2");
    EXPECT_EQ(file.ReadString("S", "Route", ""), "2");
    EXPECT_EQ(file.ReadSectionKeys("S").size(), 1u);
}

TEST_F(CalIniFile, ReadStringReturnsTheDefaultOnlyForAnAbsentKey)
{
    m_folder.Put("[S]\nempty =\n");
    CCalIniFile file(m_folder.WidePath().c_str());
    EXPECT_EQ(file.ReadString("S", "empty", "d"), "");
    EXPECT_EQ(file.ReadString("S", "absent", "d"), "d");
    EXPECT_EQ(file.ReadString("T", "empty", "d"), "d");
}

TEST_F(CalIniFile, HasSectionTellsPresence)
{
    m_folder.Put("[NR n78 RX loss]\n");
    CCalIniFile file(m_folder.WidePath().c_str());
    EXPECT_TRUE(file.HasSection("NR n78 RX loss"));
    EXPECT_TRUE(file.HasSection("nr N78 rx LOSS"));
    EXPECT_FALSE(file.HasSection("NR n7 RX loss"));
}

TEST_F(CalIniFile, SectionKeysComeOnceEachInTheOrderOfTheFile)
{
    m_folder.Put("[S]\nzulu = 1\nalpha = 2\nzulu = 3\nMike = 4\n");
    CCalIniFile file(m_folder.WidePath().c_str());
    EXPECT_EQ(file.ReadSectionKeys("S"), (std::vector<std::string>{"zulu", "alpha", "Mike"}));
    EXPECT_TRUE(file.ReadSectionKeys("absent").empty());
}

TEST_F(CalIniFile, FileIsLoadedOnce)
{
    m_folder.Put("[S]\nk = 1\n");
    CCalIniFile file(m_folder.WidePath().c_str());
    EXPECT_EQ(file.ReadInt("S", "k", 0), 1);
    m_folder.Put("[S]\nk = 2\n");
    EXPECT_TRUE(file.Load());
    EXPECT_EQ(file.ReadInt("S", "k", 0), 1);
}

TEST_F(CalIniFile, FileThatAppearsAfterAFailedReadIsLoaded)
{
    CCalIniFile file(m_folder.WidePath().c_str());
    EXPECT_FALSE(file.Load());
    m_folder.Put("[S]\nk = 1\n");
    EXPECT_EQ(file.ReadInt("S", "k", 0), 1);
}

TEST_F(CalIniFile, EmptyFileLoadsAndHoldsNothing)
{
    m_folder.Put("");
    CCalIniFile file(m_folder.WidePath().c_str());
    EXPECT_TRUE(file.Load());
    EXPECT_FALSE(file.HasSection("S"));
    EXPECT_EQ(file.ReadString("S", "k", "d"), "d");
}

TEST_F(CalIniFile, FolderInPlaceOfTheFileIsUnreadable)
{
    ASSERT_TRUE(QDir().mkpath(QString::fromStdString(m_folder.Path())));
    CCalIniFile file(m_folder.WidePath().c_str());
    EXPECT_FALSE(file.Load());
    EXPECT_NE(FailureOf([&] { file.WriteInt("S", "k", 1); }), "");
}

TEST_F(CalIniFile, PipeInPlaceOfTheFileIsUnreadableAndDoesNotBlock)
{
    ASSERT_EQ(mkfifo(m_folder.Path().c_str(), 0600), 0);
    CCalIniFile file(m_folder.WidePath().c_str());
    EXPECT_FALSE(file.Load());
}

TEST_F(CalIniFile, WrittenValuesAreReadByAnotherObject)
{
    {
        CCalIniFile file(m_folder.WidePath().c_str());
        file.WriteString("NR n78", "RF Chip ID", "TL-CHIP");
        file.WriteInt("NR n78", "Route", -12);
        file.WriteDouble("NR n78", "Loss", 0.5);
        EXPECT_EQ(file.ReadInt("NR n78", "Route", 0), -12);
    }
    CCalIniFile file(m_folder.WidePath().c_str());
    EXPECT_EQ(file.ReadString("NR n78", "RF Chip ID", ""), "TL-CHIP");
    EXPECT_EQ(file.ReadInt("NR n78", "Route", 0), -12);
    EXPECT_EQ(file.ReadString("NR n78", "Loss", ""), "0.500000");
}

TEST_F(CalIniFile, NonAsciiNamesValuesAndPathsComeBack)
{
    const QString name = QString::fromUtf8("\xE6\xA0\xA1\xE5\x87\x86.ini");
    {
        CCalIniFile file(m_folder.WidePath(name).c_str());
        file.WriteString("B\xC3\xA4nder",
                         "\xC2\xB0"
                         "C",
                         "\xF0\x9F\x93\xA1 25");
    }
    CCalIniFile file(m_folder.WidePath(name).c_str());
    EXPECT_EQ(file.ReadString("B\xC3\xA4nder",
                              "\xC2\xB0"
                              "C",
                              ""),
              "\xF0\x9F\x93\xA1 25");
    EXPECT_EQ(file.ReadSectionKeys("B\xC3\xA4nder"), std::vector<std::string>{"\xC2\xB0"
                                                                              "C"});
}

TEST_F(CalIniFile, WriteReplacesAllValuesOfAKeyAndKeepsItsPlace)
{
    m_folder.Put("[S]\na = 1\nk = 1\nk = 2\nz = 1\n");
    {
        CCalIniFile file(m_folder.WidePath().c_str());
        file.WriteInt("S", "k", 3);
    }
    EXPECT_EQ(m_folder.Bytes(), "\xEF\xBB\xBF[S]\r\na = 1\r\nk = 3\r\nz = 1\r\n");
}

TEST_F(CalIniFile, DoublesHaveAPointAndSixDecimals)
{
    CCalIniFile file(m_folder.WidePath().c_str());
    file.WriteDouble("S", "quarter", -0.25);
    file.WriteDouble("S", "third", 1.0 / 3);
    file.WriteDouble("S", "great", 1e300);
    EXPECT_EQ(file.ReadString("S", "quarter", ""), "-0.250000");
    EXPECT_EQ(file.ReadString("S", "third", ""), "0.333333");
    char great[400];
    std::snprintf(great, sizeof(great), "%lf", 1e300);
    EXPECT_EQ(file.ReadString("S", "great", ""), great);
}

TEST_F(CalIniFile, GreatestDoubleFits)
{
    CCalIniFile file(m_folder.WidePath().c_str());
    file.WriteDouble("S", "k", -std::numeric_limits<double>::max());
    char text[400];
    std::snprintf(text, sizeof(text), "%lf", -std::numeric_limits<double>::max());
    EXPECT_EQ(file.ReadString("S", "k", ""), text);
}

TEST_F(CalIniFile, DoublesKeepTheirPointInALocaleWithComma)
{
    if (!UseLocaleWithComma())
        GTEST_SKIP() << "no locale with a decimal comma, and none can be made";
    CCalIniFile file(m_folder.WidePath().c_str());
    file.WriteDouble("S", "k", 1.5);
    std::setlocale(LC_ALL, "C");
    EXPECT_EQ(file.ReadString("S", "k", ""), "1.500000");
}

TEST_F(CalIniFile, LineBreaksInAValueCannotBringInOtherLines)
{
    {
        CCalIniFile file(m_folder.WidePath().c_str());
        file.WriteString("S", "k", "a\r\n[T]\nx = 1");
    }
    CCalIniFile file(m_folder.WidePath().c_str());
    EXPECT_FALSE(file.HasSection("T"));
    EXPECT_EQ(file.ReadString("S", "k", ""), "a  [T] x = 1");
}
