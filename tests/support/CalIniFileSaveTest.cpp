// What CCalIniFile puts on disk: the exact bytes, one save for each write or one for a batch, and
// an old file that survives a save which fails.

#include "Support/CalIniFile.h"

#include <csignal>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "tests/support/IniTestFolder.h"
#include "tests/support/SaveCounter.h"

namespace {

constexpr int kRunLength = 25;

void WriteRun(CCalIniFile &file)
{
    for (int i = 0; i < kRunLength; ++i)
        file.WriteInt(i % 2 ? "Odd" : "Even", "key " + std::to_string(i % 7), i);
}

// Runs the body in a child process that can't make a file longer than the limit, as on a full disk.
// Returns what the body returns, 0 to 255, or -1 when the child died otherwise.
template <class TBody>
int RunOnFullDisk(rlim_t limit, TBody body)
{
    const pid_t child = fork();
    if (child == 0) {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit size = {limit, limit};
        setrlimit(RLIMIT_FSIZE, &size);
        _exit(body());
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

class CalIniFileSave : public testing::Test
{
protected:
    QString FolderPath() const { return QFileInfo(QString::fromStdString(m_folder.Path())).path(); }

    CIniTestFolder m_folder;
};

}  // namespace

TEST_F(CalIniFileSave, FileHasByteOrderMarkCrLfAndBlanksAroundTheEqualsSign)
{
    CCalIniFile file(m_folder.WidePath().c_str());
    file.WriteString("NR n78 BW0 TPC", "RF Chip ID", "TL-CHIP");
    file.WriteInt("NR n78 BW0 TPC", "Route", 7);
    file.WriteDouble("NR n1 RX loss", "Loss", -30.5);
    EXPECT_EQ(m_folder.Bytes(), "\xEF\xBB\xBF[NR n78 BW0 TPC]\r\n"
                                "RF Chip ID = TL-CHIP\r\n"
                                "Route = 7\r\n"
                                "\r\n\r\n"
                                "[NR n1 RX loss]\r\n"
                                "Loss = -30.500000\r\n");
}

TEST_F(CalIniFileSave, CommentsAndOtherSectionsStayAndLineEndsAreCrLfOnce)
{
    m_folder.Put("\xEF\xBB\xBF; head\r\n\r\n[A]\r\n; why\r\n; not\r\nx = 1\r\n[B]\ny=2\n");
    {
        CCalIniFile file(m_folder.WidePath().c_str());
        file.WriteInt("B", "y", 3);
    }
    const QByteArray bytes = m_folder.Bytes();
    EXPECT_EQ(bytes, "\xEF\xBB\xBF; head\r\n\r\n\r\n[A]\r\n\r\n; why\r\n; not\r\nx = 1\r\n\r\n\r\n"
                     "[B]\r\ny = 3\r\n");
    {
        CCalIniFile file(m_folder.WidePath().c_str());
        file.WriteInt("B", "y", 3);
    }
    EXPECT_EQ(m_folder.Bytes(), bytes) << "a save of the same values changed the file";
}

TEST_F(CalIniFileSave, LoneWriteIsOnDiskAtOnce)
{
    CSaveCounter saves(FolderPath());
    CCalIniFile file(m_folder.WidePath().c_str());
    file.WriteInt("S", "k", 1);
    EXPECT_EQ(m_folder.Bytes(), "\xEF\xBB\xBF[S]\r\nk = 1\r\n");
    WriteRun(file);
    EXPECT_EQ(saves.Count("cal.ini"), 1 + kRunLength);
}

TEST_F(CalIniFileSave, BatchSavesOnceAndTheSameBytes)
{
    for (const char *name : {"lone.ini", "batch.ini"})
        m_folder.Put("; head\n\n[Even]\nkey 2 = old\nkey 2 = older\n", name);
    CCalIniFile lone(m_folder.WidePath("lone.ini").c_str());
    WriteRun(lone);

    const QByteArray before = m_folder.Bytes("batch.ini");
    CSaveCounter saves(FolderPath());
    CCalIniFile file(m_folder.WidePath("batch.ini").c_str());
    CCalIniFile::CBatch batch(file);
    WriteRun(file);
    EXPECT_EQ(m_folder.Bytes("batch.ini"), before);
    EXPECT_EQ(file.ReadInt("Even", "key 3", 0), 24);
    batch.Commit();
    EXPECT_EQ(m_folder.Bytes("batch.ini"), m_folder.Bytes("lone.ini"));
    EXPECT_EQ(saves.Count("batch.ini"), 1);
    batch.Commit();
    EXPECT_EQ(saves.Count("batch.ini"), 1) << "a second Commit saved again";
}

TEST_F(CalIniFileSave, BatchLeftByAnExceptionSavesWhatWasWritten)
{
    CCalIniFile file(m_folder.WidePath().c_str());
    try {
        CCalIniFile::CBatch batch(file);
        file.WriteInt("S", "k", 1);
        throw std::logic_error("in the middle");
    } catch (const std::logic_error &) {
    }
    EXPECT_EQ(m_folder.Bytes(), "\xEF\xBB\xBF[S]\r\nk = 1\r\n");
}

TEST_F(CalIniFileSave, InnerBatchLeavesTheSaveToTheOuterOne)
{
    CSaveCounter saves(FolderPath());
    CCalIniFile file(m_folder.WidePath().c_str());
    {
        CCalIniFile::CBatch outer(file);
        {
            CCalIniFile::CBatch inner(file);
            file.WriteInt("S", "k", 1);
            inner.Commit();
        }
        EXPECT_FALSE(m_folder.Exists());
        file.WriteInt("S", "l", 2);
    }
    EXPECT_EQ(saves.Count("cal.ini"), 1);
    EXPECT_EQ(m_folder.Bytes(), "\xEF\xBB\xBF[S]\r\nk = 1\r\nl = 2\r\n");
    file.WriteInt("S", "m", 3);
    EXPECT_EQ(saves.Count("cal.ini"), 2) << "a write behind the batch is lone again";
}

TEST_F(CalIniFileSave, BatchWithoutWritesMakesNoFile)
{
    CCalIniFile file(m_folder.WidePath().c_str());
    CCalIniFile::CBatch(file).Commit();
    EXPECT_FALSE(m_folder.Exists());
}

TEST_F(CalIniFileSave, WriteIntoAMissingFolderFailsWithItsWords)
{
    CCalIniFile file(m_folder.WidePath("absent/cal.ini").c_str());
    EXPECT_EQ(FailureOf([&] { file.WriteDouble("S", "k", 1); }),
              "Write S::k to " + m_folder.Path("absent/cal.ini") + " failed (create file failed)");
    EXPECT_TRUE(m_folder.Files().isEmpty());
}

// Too large to be an INI file of this tool: it is something else, and stays.
TEST_F(CalIniFileSave, WriteIntoAFileThatCantBeReadFailsAndLeavesIt)
{
    constexpr qint64 kTooLarge = 256 * 1024 * 1024 + 1;
    m_folder.Put("not ours");
    ASSERT_TRUE(QFile::resize(QString::fromStdString(m_folder.Path()), kTooLarge));
    CCalIniFile file(m_folder.WidePath().c_str());
    CCalIniFile::CBatch batch(file);
    EXPECT_EQ(FailureOf([&] { file.WriteString("s", "k", "v"); }),
              "Write s::k to " + m_folder.Path() + " failed (create file failed)");
    EXPECT_EQ(FailureOf([&] { batch.Commit(); }), "");
    EXPECT_EQ(QFileInfo(QString::fromStdString(m_folder.Path())).size(), kTooLarge);
}

TEST_F(CalIniFileSave, WriteWithoutAPathFailsBeforeTheCommit)
{
    CCalIniFile file(nullptr);
    CCalIniFile::CBatch batch(file);
    EXPECT_EQ(FailureOf([&] { file.WriteString("s", "k", "v"); }),
              "Write s::k to  failed (create file failed)");
    EXPECT_EQ(FailureOf([&] { batch.Commit(); }), "");
}

TEST_F(CalIniFileSave, CommitNamesTheFirstWriteThatIsNotSaved)
{
    CCalIniFile file(m_folder.WidePath("absent/cal.ini").c_str());
    CCalIniFile::CBatch batch(file);
    file.WriteInt("S", "first", 1);
    file.WriteInt("S", "second", 2);
    EXPECT_EQ(FailureOf([&] { batch.Commit(); }), "Write S::first to " +
                                                      m_folder.Path("absent/cal.ini") +
                                                      " failed (create file failed)");
}

TEST_F(CalIniFileSave, BatchDestroyedWithoutCommitIsSilentAboutAFailure)
{
    CCalIniFile file(m_folder.WidePath("absent/cal.ini").c_str());
    {
        CCalIniFile::CBatch batch(file);
        file.WriteInt("S", "k", 1);
    }
    EXPECT_FALSE(m_folder.Exists("absent"));
    EXPECT_EQ(file.ReadInt("S", "k", 0), 1);
}

TEST_F(CalIniFileSave, ValueOfAFailedWriteGoesOutWithTheNextSave)
{
    CCalIniFile file(m_folder.WidePath("late/cal.ini").c_str());
    EXPECT_NE(FailureOf([&] { file.WriteInt("S", "k", 1); }), "");
    ASSERT_TRUE(QDir(FolderPath()).mkdir("late"));
    file.WriteInt("S", "l", 2);
    EXPECT_EQ(m_folder.Bytes("late/cal.ini"), "\xEF\xBB\xBF[S]\r\nk = 1\r\nl = 2\r\n");
}

TEST_F(CalIniFileSave, FullDiskLeavesTheOldFileWholeAndThrows)
{
    const QByteArray old = "[S]\r\nk = old\r\n" + QByteArray("; ") + QByteArray(2000, 'x') +
                           "\r\n"
                           "z = 1\r\n";
    m_folder.Put(old);
    const std::string expected =
        "Write S::k to " + m_folder.Path() + " failed (create file failed)";
    const int outcome = RunOnFullDisk(1000, [&] {
        CCalIniFile file(m_folder.WidePath().c_str());
        return FailureOf([&] { file.WriteString("S", "k", "new"); }) == expected ? 7 : 1;
    });
    EXPECT_EQ(outcome, 7);
    EXPECT_EQ(m_folder.Bytes(), old);
    EXPECT_EQ(m_folder.Files(), QStringList("cal.ini")) << "a half-written file was left behind";
}

TEST_F(CalIniFileSave, FullDiskFailsTheCommitOfABatchToo)
{
    m_folder.Put("[S]\nk = old\n");
    const int outcome = RunOnFullDisk(500, [&] {
        CCalIniFile file(m_folder.WidePath().c_str());
        CCalIniFile::CBatch batch(file);
        for (int i = 0; i < 100; ++i)
            file.WriteInt("S", "key " + std::to_string(i), i);
        return FailureOf([&] { batch.Commit(); }).empty() ? 1 : 7;
    });
    EXPECT_EQ(outcome, 7);
    EXPECT_EQ(m_folder.Bytes(), "[S]\nk = old\n");
}

TEST_F(CalIniFileSave, SameWriteSucceedsWhenTheLimitLeavesRoom)
{
    m_folder.Put("[S]\nk = old\n");
    const int outcome = RunOnFullDisk(100000, [&] {
        CCalIniFile file(m_folder.WidePath().c_str());
        return FailureOf([&] { file.WriteString("S", "k", "new"); }).empty() ? 7 : 1;
    });
    EXPECT_EQ(outcome, 7);
    EXPECT_EQ(m_folder.Bytes(), "\xEF\xBB\xBF[S]\r\nk = new\r\n");
}
