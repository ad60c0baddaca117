// Files that a user, a full disk or another program broke: no crash, and nothing lost but what
// can't be read.

#include "Support/CalIniFile.h"

#include <random>

#include <gtest/gtest.h>

#include "tests/support/IniTestFolder.h"

namespace {

const QByteArray kWholeFile = "\xEF\xBB\xBF; calibration of board 7\r\n\r\n"
                              "[NR n78 BW0 TPC]\r\n"
                              "RF Chip ID = TL-CHIP\r\n"
                              "Route = 7\r\n"
                              "; by hand \xC2\xB1 0.5 dB\r\n"
                              "Pa mode map = 0,0,1,1,2,2,2,2,0,0\r\n"
                              "\r\n\r\n"
                              "[NR n78 Route CA1 RXD loss]\r\n"
                              "Comp Route = 12\r\n";

class CalIniFileBroken : public testing::Test
{
protected:
    // Reads, writes and reads again; the written value must come back whatever the rest holds.
    void UseFile(const QByteArray &bytes)
    {
        m_folder.Put(bytes);
        {
            CCalIniFile file(m_folder.WidePath().c_str());
            ASSERT_TRUE(file.Load());
            file.HasSection("NR n78 BW0 TPC");
            file.ReadInt("NR n78 BW0 TPC", "Route", 0);
            file.ReadSectionKeys("NR n78 BW0 TPC");
            file.WriteString("Probe", "value", "5");
        }
        // The first save may tidy up; from the second on the file stays as it is.
        QByteArray saved;
        for (int round = 0; round < 2; ++round) {
            saved = m_folder.Bytes();
            CCalIniFile file(m_folder.WidePath().c_str());
            ASSERT_EQ(file.ReadString("Probe", "value", ""), "5");
            file.WriteString("Probe", "value", "5");
        }
        ASSERT_EQ(m_folder.Bytes(), saved) << "a third save changed the file";
    }

    CIniTestFolder m_folder;
};

}  // namespace

TEST_F(CalIniFileBroken, FileCutAtAnyByteCanBeUsed)
{
    for (int length = 0; length <= kWholeFile.size(); ++length)
        ASSERT_NO_FATAL_FAILURE(UseFile(kWholeFile.left(length))) << "cut at " << length;
}

TEST_F(CalIniFileBroken, CutFileKeepsTheLinesBeforeTheCut)
{
    m_folder.Put(kWholeFile.left(kWholeFile.indexOf("mode map")));
    CCalIniFile file(m_folder.WidePath().c_str());
    EXPECT_EQ(file.ReadString("NR n78 BW0 TPC", "RF Chip ID", ""), "TL-CHIP");
    EXPECT_EQ(file.ReadInt("NR n78 BW0 TPC", "Route", 0), 7);
    EXPECT_EQ(file.ReadString("NR n78 BW0 TPC", "Pa mode map", "none"), "none");
}

TEST_F(CalIniFileBroken, AnyBytesCanBeUsed)
{
    std::mt19937 random(20250);  // a fixed seed: the same files in every run
    const QByteArray alphabet =
        QByteArray("[]=;#\r\n \t<ab\xC3\xE4\xF0\xFF\x80\xEF\xBB\xBF") + '\0';
    for (int round = 0; round < 300; ++round) {
        QByteArray bytes;
        for (auto left = random() % 120; left > 0; --left)
            bytes += alphabet.at(int(random() % unsigned(alphabet.size())));
        ASSERT_NO_FATAL_FAILURE(UseFile(bytes)) << "round " << round << ' ' << bytes.toHex().data();
    }
}

TEST_F(CalIniFileBroken, AnyByteOfAWholeFileMayBeDamaged)
{
    for (int at = 0; at < kWholeFile.size(); ++at) {
        for (char damage : {'\0', '\xFF', '\n', '['}) {
            QByteArray bytes = kWholeFile;
            bytes[at] = damage;
            ASSERT_NO_FATAL_FAILURE(UseFile(bytes)) << "at " << at;
        }
    }
}

TEST_F(CalIniFileBroken, BytesThatAreNoUtf8ReadAsReplacement)
{
    m_folder.Put("[S]\nk = a\xFF"
                 "b\nl = 2\n");
    CCalIniFile file(m_folder.WidePath().c_str());
    EXPECT_EQ(file.ReadString("S", "k", ""), "a\xEF\xBF\xBD"
                                             "b");
    EXPECT_EQ(file.ReadInt("S", "l", 0), 2);
}

TEST_F(CalIniFileBroken, NulDoesNotHideTheLinesBehindIt)
{
    m_folder.Put(QByteArray("[S]\nk = 1\n") + QByteArray(8, '\0') + "\nl = 2\n");
    CCalIniFile file(m_folder.WidePath().c_str());
    EXPECT_EQ(file.ReadInt("S", "k", 0), 1);
    EXPECT_EQ(file.ReadInt("S", "l", 0), 2);
}

TEST_F(CalIniFileBroken, UnreadableLinesAreLostOnTheNextSave)
{
    m_folder.Put("[S]\nno equals sign\n= no key\nk = 1\n");
    {
        CCalIniFile file(m_folder.WidePath().c_str());
        file.WriteInt("S", "l", 2);
    }
    EXPECT_EQ(m_folder.Bytes(), "\xEF\xBB\xBF[S]\r\nk = 1\r\nl = 2\r\n");
}

TEST_F(CalIniFileBroken, SectionWithABrokenHeadingIsSkippedAndTheOthersStay)
{
    m_folder.Put("[A]\na = 1\n[Broken\nb = 2\nbb = 3\n[C]\nc = 4\n");
    {
        CCalIniFile file(m_folder.WidePath().c_str());
        EXPECT_EQ(file.ReadSectionKeys("A"), std::vector<std::string>{"a"});
        EXPECT_FALSE(file.HasSection("Broken"));
        EXPECT_EQ(file.ReadInt("C", "c", 0), 4);
        file.WriteInt("A", "a", 1);
    }
    EXPECT_EQ(m_folder.Bytes(), "\xEF\xBB\xBF[A]\r\na = 1\r\n\r\n\r\n[C]\r\nc = 4\r\n");
}
