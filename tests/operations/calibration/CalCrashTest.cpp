// A save of calibration data whose process dies, or whose disk is full, at any of its system calls:
// the file is the old one or the new one, whole. Prints what was run, by system call.
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <map>
#include <set>
#include <vector>

#include <sched.h>
#include <sys/mount.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QLoggingCategory>

#include "Support/CalIniFile.h"
#include "tests/common/TracedChild.h"
#include "tests/operations/calibration/CalFixture.h"
#include "tests/support/SaveCounter.h"

namespace {

using Apt = CMultiRatAptProfileV7;
using PathLoss = CMultiRatPathLossV7;

constexpr char kName[] = "cal.ini";

// What a child tells its parent, which sees its exit code alone.
enum EChild
{
    kSaved = 0,
    kFailedInItsWords = 1,
    kFailedOtherwise = 2,
    kNoDiskOfItsOwn = 3,
    kOldFileHarmed = 4,
    kFileLeftBehind = 5,
};

bool PutFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return bytes.isNull() ||
           (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush());
}

// A disk of that many bytes, for this process alone, which is its own little system from here on.
bool MountDisk(const std::string &folder, int bytes)
{
    const QByteArray user = "0 " + QByteArray::number(getuid()) + " 1";
    const QByteArray group = "0 " + QByteArray::number(getgid()) + " 1";
    const std::string size = "size=" + std::to_string(bytes);
    return unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0 && PutFile("/proc/self/setgroups", "deny") &&
           PutFile("/proc/self/uid_map", user) && PutFile("/proc/self/gid_map", group) &&
           mount("none", folder.c_str(), "tmpfs", 0, size.c_str()) == 0;
}

// Cases of a campaign by system call.
class CCaseTable
{
public:
    void Add(long call, bool held)
    {
        ++m_rows[SystemCallName(call)].run;
        m_rows[SystemCallName(call)].held += held;
    }
    void Print(const std::string &title) const
    {
        std::printf("\n| %s | cases run | cases held |\n|---|---:|---:|\n", title.c_str());
        SRow all;
        for (const auto &[name, row] : m_rows) {
            std::printf("| %s | %d | %d |\n", name.c_str(), row.run, row.held);
            all = {all.run + row.run, all.held + row.held};
        }
        std::printf("| all | %d | %d |\n\n", all.run, all.held);
    }

private:
    struct SRow
    {
        int run = 0;
        int held = 0;
    };

    std::map<std::string, SRow> m_rows;
};

template <typename Item>
class CalCrashTest : public CCalTest
{
protected:
    void SetUp() override
    {
        CCalTest::SetUp();
        QLoggingCategory::setFilterRules("quorlin.*.debug=false");  // a log is system calls, too
        ASSERT_EQ(m_item.UploadFromFlash(), 0u);
    }

    static bool CanTrace()
    {
        const auto go = [](const SSystemCall &) { return STracedFate::Go(); };
        return RunTraced([] { return 0; }, go).traced;
    }

    // The file of an earlier export on another board, to which somebody added lines of his own; a
    // null one stands for no file.
    std::vector<QByteArray> OldFiles()
    {
        QByteArray old = "; by hand\r\n\r\n[Own notes]\r\nk = 1\r\n\r\n" + SaveBytes(m_item);
        old.replace("\xEF\xBB\xBF", "");
        old.replace("0.00000", "0.50000");
        return {old, QByteArray()};
    }

    void PutOld(const QByteArray &old)
    {
        for (const QString &name : m_folder.Files())
            QFile::remove(QString::fromStdString(m_folder.Path(name)));
        if (!old.isNull())
            m_folder.Put(old, kName);
    }

    // The child's work.
    int Save(const std::string &folder = {})
    {
        const std::string path = folder.empty() ? m_folder.Path(kName) : folder + '/' + kName;
        CCalIniFile file(QString::fromStdString(path).toStdWString().c_str());
        try {
            return m_item.SaveToFile(&file) == 0 ? kSaved : kFailedOtherwise;
        } catch (const std::runtime_error &failure) {
            return failure.what() == Words(path) ? kFailedInItsWords : kFailedOtherwise;
        }
    }

    // The first key that an export writes stands in its failure.
    static std::string Words(const std::string &path)
    {
        const std::string first =
            std::is_same_v<Item, Apt> ? "NR n1 BW0 TPC::RF Chip ID" : "NR n1 RX loss::RF Chip ID";
        return "Write " + first + " to " + path + " failed (create file failed)";
    }

    // The system calls of a save that nothing disturbs.
    std::vector<long> Calls(const QByteArray &old)
    {
        PutOld(old);
        std::vector<long> calls;
        const STracedEnd end = Trace([&](const SSystemCall &call) {
            if (!call.done)
                calls.push_back(call.number);
            return STracedFate::Go();
        });
        EXPECT_EQ(end.result, kSaved);
        return calls;
    }

    template <typename Judge>
    STracedEnd Trace(const Judge &judge)
    {
        return RunTraced([this] { return Save(); }, judge);
    }

    Item m_item{ERadioKind::Nr};
};

using Items = testing::Types<Apt, PathLoss>;

struct SItemName
{
    template <typename Item>
    static std::string GetName(int)
    {
        return std::is_same_v<Item, Apt> ? "Apt" : "PathLoss";
    }
};
TYPED_TEST_SUITE(CalCrashTest, Items, SItemName);

// Calls that a full disk can fail.
const std::set<long> &CallsOfTheDisk()
{
    static const std::set<long> calls = {
        SYS_openat,
        SYS_write,
        SYS_pwrite64,
        SYS_fsync,
        SYS_fdatasync,
        SYS_ftruncate,
        SYS_linkat,
        SYS_renameat,
        SYS_renameat2,
#if defined(__x86_64__)
        SYS_rename,
        SYS_link
#endif
    };
    return calls;
}

}  // namespace

TYPED_TEST(CalCrashTest, DeathAtAnySystemCallLeavesTheOldFileOrTheNewOne)
{
    if (!this->CanTrace())
        GTEST_SKIP() << "the system forbids tracing a child";
    CCaseTable table;
    int old = 0;
    int fresh = 0;
    std::map<int, int> left;  // files beside the target, by number
    for (const QByteArray &before : this->OldFiles()) {
        this->PutOld(before);
        ASSERT_EQ(this->Save(), kSaved);
        const QByteArray after = this->m_folder.Bytes(kName);
        ASSERT_NE(after, before);
        for (bool done : {false, true}) {
            for (int at = 0;; ++at) {
                this->PutOld(before);
                long killedIn = 0;
                const STracedEnd end = this->Trace([&](const SSystemCall &call) {
                    if (call.index != at || call.done != done)
                        return STracedFate::Go();
                    killedIn = call.number;
                    return STracedFate::Kill();
                });
                const QByteArray now = this->m_folder.Bytes(kName);
                if (!end.killed) {  // fewer calls than that
                    EXPECT_EQ(end.result, kSaved);
                    EXPECT_EQ(now, after);
                    break;
                }
                const bool isOld = now == before && now.isNull() == before.isNull();
                const bool isNew = now == after;
                EXPECT_TRUE(isOld || isNew)
                    << SystemCallName(killedIn) << ", call " << at << (done ? ", done" : "");
                table.Add(killedIn, isOld || isNew);
                old += isOld;
                fresh += isNew;
                ++left[this->m_folder.Files().size() - (now.isNull() ? 0 : 1)];
            }
        }
    }
    table.Print("killed in");
    std::printf("old file %d times, new file %d times", old, fresh);
    for (const auto &[files, times] : left)
        std::printf("; %d other files in the folder %d times", files, times);
    std::printf("\n");
    EXPECT_GT(old, 0);
    EXPECT_GT(fresh, 0);
}

TYPED_TEST(CalCrashTest, DiskFullAtAnySystemCallLeavesTheOldFileAndTheWords)
{
    if (!this->CanTrace() || !CanFailSystemCalls())
        GTEST_SKIP() << "the system forbids tracing a child";
    CCaseTable table;
    for (const QByteArray &before : this->OldFiles()) {
        // Calls are counted among their like: those for memory differ from run to run.
        std::vector<long> calls = this->Calls(before);
        const auto isOfMemory = [](long number) { return CallsOfTheDisk().count(number) == 0; };
        calls.erase(std::remove_if(calls.begin(), calls.end(), isOfMemory), calls.end());
        const QByteArray after = this->m_folder.Bytes(kName);
        for (size_t at = 0; at < calls.size(); ++at) {
            this->PutOld(before);
            size_t seen = 0;
            const STracedEnd end = this->Trace([&](const SSystemCall &call) {
                const bool counts = !call.done && !isOfMemory(call.number);
                return counts && seen++ == at ? STracedFate::Fail(ENOSPC) : STracedFate::Go();
            });
            const QByteArray now = this->m_folder.Bytes(kName);
            const bool failed = end.result == kFailedInItsWords && now == before &&
                                this->m_folder.Files().size() == (before.isNull() ? 0 : 1);
            // A second way that did it is as good: the new file is whole, and nothing was told.
            const bool saved =
                end.result == kSaved && now == after && this->m_folder.Files().size() == 1;
            EXPECT_TRUE(failed || saved)
                << SystemCallName(calls[at]) << ", call " << at << ", result " << end.result
                << ", files: " << this->m_folder.Files().join(' ').toStdString();
            table.Add(calls[at], failed || saved);
        }
    }
    table.Print("disk full at");
}

TYPED_TEST(CalCrashTest, SyncThatFailsIsAFailedSave)
{
    if (!this->CanTrace() || !CanFailSystemCalls())
        GTEST_SKIP() << "the system forbids tracing a child";
    for (const QByteArray &before : this->OldFiles()) {
        this->PutOld(before);
        const STracedEnd end = this->Trace([](const SSystemCall &call) {
            const bool sync = call.number == SYS_fsync || call.number == SYS_fdatasync;
            return sync && !call.done ? STracedFate::Fail(EIO) : STracedFate::Go();
        });
        EXPECT_EQ(end.result, kFailedInItsWords);
        EXPECT_EQ(this->m_folder.Bytes(kName), before);
        EXPECT_EQ(this->m_folder.Files().size(), before.isNull() ? 0 : 1);
    }
}

TYPED_TEST(CalCrashTest, ExportCommitsOnce)
{
    for (const QByteArray &before : this->OldFiles()) {
        this->PutOld(before);
        CSaveCounter saves(QFileInfo(QString::fromStdString(this->m_folder.Path(kName))).path());
        ASSERT_EQ(this->Save(), kSaved);
        EXPECT_EQ(saves.Count(kName), 1);
    }
}

TYPED_TEST(CalCrashTest, BytesAreOnTheDiskBeforeTheCommitAndNoneIsWrittenBehindIt)
{
    if (!this->CanTrace())
        GTEST_SKIP() << "the system forbids tracing a child";
    for (const QByteArray &before : this->OldFiles()) {
        this->PutOld(before);
        int writes = 0;
        int commits = 0;
        bool unsynced = false;
        this->Trace([&](const SSystemCall &call) {
            const std::string name = SystemCallName(call.number);
            if (!call.done || call.failed)
                return STracedFate::Go();
            if (name == "write") {
                ++writes;
                unsynced = true;
                EXPECT_EQ(commits, 0);
            } else if (name == "fsync" || name == "fdatasync") {
                unsynced = false;
            } else if (name.rfind("rename", 0) == 0 || name == "linkat") {
                ++commits;
                EXPECT_FALSE(unsynced);
            }
            return STracedFate::Go();
        });
        EXPECT_GT(writes, 0);
        EXPECT_GT(commits, 0);
    }
}

TYPED_TEST(CalCrashTest, FullDiskOfItsOwnLeavesTheOldFileAndTheWords)
{
    for (const QByteArray &before : this->OldFiles()) {
        this->PutOld(QByteArray());
        const std::string disk = this->m_folder.Path("disk");
        ASSERT_TRUE(QDir().mkdir(QString::fromStdString(disk)));
        const pid_t child = fork();
        if (child == 0) {
            // Room for the old file and some of the new one.
            const QString path = QString::fromStdString(disk + '/' + kName);
            if (!MountDisk(disk, before.size() + 40000) || !PutFile(path, before))
                _exit(kNoDiskOfItsOwn);
            const int result = this->Save(disk);
            QFile file(path);
            if (file.exists() == before.isNull() ||
                (file.open(QIODevice::ReadOnly) && file.readAll() != before))
                _exit(kOldFileHarmed);
            const int files = QDir(QString::fromStdString(disk))
                                  .entryList(QDir::AllEntries | QDir::NoDotAndDotDot)
                                  .size();
            _exit(files == (before.isNull() ? 0 : 1) ? result : kFileLeftBehind);
        }
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFEXITED(status));
        QDir().rmdir(QString::fromStdString(disk));
        if (WEXITSTATUS(status) == kNoDiskOfItsOwn)
            GTEST_SKIP() << "the system forbids a disk of the test's own";
        EXPECT_EQ(WEXITSTATUS(status), kFailedInItsWords);
    }
}
