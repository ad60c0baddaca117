// Sections that are written as a whole: the bytes and the values of a write of each key.
#include "Support/CalIniFile.h"

#include <random>

#include <gtest/gtest.h>

#include "Support/IniSection.h"
#include "Support/WideText.h"
#include "tests/support/IniTestFolder.h"

namespace {

using Lines = std::vector<std::pair<std::string, std::string>>;

class CalIniFileSection : public testing::Test
{
protected:
    static void WriteWhole(CCalIniFile &file, const std::string &name, const Lines &lines)
    {
        CIniSection section(name);
        for (const auto &[key, value] : lines)
            section.Key(key) += value;
        file.WriteSection(std::move(section));
    }
    static void WriteEach(CCalIniFile &file, const std::string &name, const Lines &lines)
    {
        for (const auto &[key, value] : lines)
            file.WriteString(name, key, value);
    }

    CIniTestFolder m_folder;
};

}  // namespace

TEST_F(CalIniFileSection, NewSectionsStandInTheFileInTheirOrder)
{
    CCalIniFile file(m_folder.WidePath().c_str());
    CCalIniFile::CBatch batch(file);
    WriteWhole(file, "NR n78 BW0 TPC", {{"RF Chip ID", "TL-CHIP"}, {"Route", "7"}});
    WriteWhole(file, "NR n1 RX loss", {{"Loss", "-30.5,1"}, {"Empty", ""}});
    EXPECT_FALSE(m_folder.Exists());
    batch.Commit();
    EXPECT_EQ(m_folder.Bytes(), "\xEF\xBB\xBF[NR n78 BW0 TPC]\r\n"
                                "RF Chip ID = TL-CHIP\r\n"
                                "Route = 7\r\n"
                                "\r\n\r\n"
                                "[NR n1 RX loss]\r\n"
                                "Loss = -30.5,1\r\n"
                                "Empty = \r\n");
}

TEST_F(CalIniFileSection, WrittenValuesAreReadBackFromTheSameObject)
{
    CCalIniFile file(m_folder.WidePath().c_str());
    WriteWhole(file, "S", {{"Key", "1"}});
    WriteWhole(file, "T", {{"k", "2"}, {"l", "3"}});
    EXPECT_TRUE(file.HasSection("t"));
    EXPECT_EQ(file.ReadInt("s", "KEY", 0), 1);
    EXPECT_EQ(file.ReadSectionKeys("T"), (std::vector<std::string>{"k", "l"}));
    WriteWhole(file, "U", {{"m", "4"}});
    EXPECT_EQ(file.ReadInt("U", "m", 0), 4) << "a look at the file before hid the section";
}

TEST_F(CalIniFileSection, SectionThatIsThereKeepsItsOtherKeysAndComments)
{
    m_folder.Put("; head\r\n\r\n[S]\r\n; why\r\nk = 1\r\nk = 2\r\nother = 3\r\n");
    CCalIniFile file(m_folder.WidePath().c_str());
    WriteWhole(file, "s", {{"K", "4"}, {"new", "5"}});
    EXPECT_EQ(m_folder.Bytes(), "\xEF\xBB\xBF; head\r\n\r\n\r\n[S]\r\n\r\n; why\r\nK = 4\r\n"
                                "other = 3\r\nnew = 5\r\n");
}

TEST_F(CalIniFileSection, SecondWriteOfANewSectionReplacesItsValues)
{
    CCalIniFile file(m_folder.WidePath().c_str());
    CCalIniFile::CBatch batch(file);
    WriteWhole(file, "S", {{"k", "1"}, {"l", "2"}});
    WriteWhole(file, "s", {{"K", "3"}});
    batch.Commit();
    EXPECT_EQ(m_folder.Bytes(), "\xEF\xBB\xBF[S]\r\nK = 3\r\nl = 2\r\n");
}

TEST_F(CalIniFileSection, TextThatIsNotPlainIsHeldToALine)
{
    CCalIniFile file(m_folder.WidePath().c_str());
    WriteWhole(file, "S \xC2\xB1", {{"k", "a\nb"}, {"l\r", "\xFF"}});
    EXPECT_EQ(m_folder.Bytes(), "\xEF\xBB\xBF[S \xC2\xB1]\r\nk = a b\r\nl  = \xEF\xBF\xBD\r\n");
}

TEST_F(CalIniFileSection, TextOfWhichNothingIsPlainIsHeldToALine)
{
    CCalIniFile file(m_folder.WidePath().c_str());
    WriteWhole(file, "\xC2\xB1", {{"\xC2\xB5", "\xFF"}});
    EXPECT_EQ(m_folder.Bytes(), "\xEF\xBB\xBF[\xC2\xB1]\r\n\xC2\xB5 = \xEF\xBF\xBD\r\n");
}

TEST_F(CalIniFileSection, SectionWithoutKeysIsNoWrite)
{
    CCalIniFile file(m_folder.WidePath().c_str());
    file.WriteSection(CIniSection("S"));
    EXPECT_FALSE(m_folder.Exists());
}

TEST_F(CalIniFileSection, FailedWriteNamesTheFirstKeyAndStaysInMemory)
{
    CCalIniFile file(m_folder.WidePath("late/cal.ini").c_str());
    EXPECT_EQ(FailureOf([&] {
                  WriteWhole(file, "S", {{"first", "1"}, {"second", "2"}});
              }),
              "Write S::first to " + m_folder.Path("late/cal.ini") +
                  " failed (create file failed)");
    EXPECT_EQ(file.ReadInt("S", "second", 0), 2);
    ASSERT_TRUE(QDir(QFileInfo(QString::fromStdString(m_folder.Path())).path()).mkdir("late"));
    file.WriteInt("S", "third", 3);
    EXPECT_EQ(m_folder.Bytes("late/cal.ini"),
              "\xEF\xBB\xBF[S]\r\nfirst = 1\r\nsecond = 2\r\nthird = 3\r\n");
}

TEST_F(CalIniFileSection, ReadSectionHasTheFirstValueOfEachKey)
{
    m_folder.Put("[S]\nzulu = 1\nalpha = \xC2\xB1\nZULU = 3\nMike =\n");
    CCalIniFile file(m_folder.WidePath().c_str());
    const CIniLines lines = file.ReadSection("s").value();
    EXPECT_EQ(lines.Name(), "s");
    EXPECT_STREQ(lines.Find("zulu"), L"1");
    EXPECT_STREQ(lines.Find("alpha"), L"\u00B1");
    EXPECT_STREQ(lines.Find("mike"), L"");
}

TEST_F(CalIniFileSection, KeysAreFoundInAnyOrderAndCase)
{
    m_folder.Put("[S]\na = 1\nb = 2\nc = 3\n");
    CCalIniFile file(m_folder.WidePath().c_str());
    const CIniLines lines = file.ReadSection("S").value();
    for (const char *key : {"c", "A", "b", "b", "C", "a"})
        EXPECT_STREQ(lines.Find(key), WideFromUtf8(file.ReadString("S", key, "")).c_str()) << key;
    EXPECT_EQ(lines.Find("d"), nullptr);
    EXPECT_EQ(lines.Find(""), nullptr);
}

TEST_F(CalIniFileSection, AnyKeysAreFoundAsByASingleRead)
{
    std::mt19937 random(78);
    constexpr std::string_view kLetters = "aAbBzZ_[]^1 -";
    const auto anyKey = [&] {
        std::string key(1, 'k');
        for (auto i = random() % 4; i > 0; --i)
            key += kLetters[random() % kLetters.size()];
        return key + 'k';
    };
    for (int round = 0; round < 300; ++round) {
        std::string text = "[S]\n";
        for (int line = 0; line < 12; ++line)
            text += anyKey() + " = " + std::to_string(line) + '\n';
        m_folder.Put(QByteArray::fromStdString(text));
        CCalIniFile file(m_folder.WidePath().c_str());
        const CIniLines lines = file.ReadSection("S").value();
        for (int look = 0; look < 40; ++look) {
            const std::string key = anyKey();
            const wchar_t *value = lines.Find(key);
            EXPECT_EQ(value ? Utf8FromWide(value) : "none", file.ReadString("S", key, "none"))
                << key;
        }
    }
}

TEST_F(CalIniFileSection, UnknownSectionIsNothingAndAMissingFileThrows)
{
    m_folder.Put("[S]\na = 1\n[Empty]\n");
    CCalIniFile file(m_folder.WidePath().c_str());
    EXPECT_FALSE(file.ReadSection("T"));
    ASSERT_TRUE(file.ReadSection("empty"));
    EXPECT_EQ(file.ReadSection("empty")->Find("a"), nullptr);
    CCalIniFile missing(m_folder.WidePath("missing.ini").c_str());
    EXPECT_EQ(FailureOf([&] { missing.ReadSection("T"); }),
              "Read T from " + m_folder.Path("missing.ini") + " failed (load file failed)");
}

TEST_F(CalIniFileSection, AnyRunOfWritesGivesTheBytesOfAWriteOfEachKey)
{
    std::mt19937 random(77);
    const char *const heads[] = {"", "; head\n", "; head\n\n[A]\n; of k0\nk0 = 1\n",
                                 "loose = 1\n[b]\nk1=2\n[Broken\n"};
    for (int round = 0; round < 300; ++round) {
        m_folder.Put(heads[random() % 4], "whole.ini");
        m_folder.Put(m_folder.Bytes("whole.ini"), "each.ini");
        {
            CCalIniFile whole(m_folder.WidePath("whole.ini").c_str());
            CCalIniFile each(m_folder.WidePath("each.ini").c_str());
            CCalIniFile::CBatch wholeBatch(whole);
            CCalIniFile::CBatch eachBatch(each);
            for (unsigned write = 0; write < 6; ++write) {
                const std::string name(1, "AaBbCcDd"[random() % 8]);
                Lines lines;
                for (int key = 0; key < 3; ++key) {
                    if (random() % 2)
                        lines.emplace_back(std::string("k") + std::to_string(key),
                                           std::to_string(random() % 9));
                }
                WriteEach(each, name, lines);
                WriteWhole(whole, name, lines);
                if (random() % 4 == 0) {
                    ASSERT_EQ(whole.ReadString(name, "k1", "none"),
                              each.ReadString(name, "k1", "none"));
                }
            }
        }
        ASSERT_EQ(m_folder.Bytes("whole.ini"), m_folder.Bytes("each.ini")) << "round " << round;
    }
}
