// Calibration files that can't be read or written, or hold anything but calibration data.
#include <csignal>

#include <sys/inotify.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "Support/CalIniFile.h"
#include "tests/operations/calibration/CalFixture.h"

namespace {

// Both items; what holds for files holds for either.
class CalFileBrokenTest : public CCalTest
{
protected:
    template <typename Check>
    void ForEachItem(Check check)
    {
        CMultiRatAptProfileV7 apt(ERadioKind::Nr);
        CMultiRatPathLossV7 pathLoss(ERadioKind::Nr);
        check(static_cast<ICalItemByL1Operation &>(apt), BareFile(ECalRoute::Tx),
              std::string("NR n1 BW0 TPC"));
        check(static_cast<ICalItemByL1Operation &>(pathLoss), BareFile(ECalRoute::Type1),
              std::string("NR n1 RX loss"));
    }
};

QByteArray Noise(int size)
{
    std::mt19937 random(25);
    QByteArray bytes(size, '\0');
    for (char &byte : bytes)
        byte = static_cast<char>(random());
    return bytes;
}

// How often the events of a watch put a file of that name in place.
int CountSaves(int watch, const std::string &name)
{
    int count = 0;
    alignas(inotify_event) char buffer[65536];
    const ssize_t size = read(watch, buffer, sizeof buffer);
    for (ssize_t at = 0; at < size;) {
        const auto *event = reinterpret_cast<const inotify_event *>(buffer + at);
        count += (event->mask & (IN_MOVED_TO | IN_CREATE)) && event->len > 0 && name == event->name;
        at += static_cast<ssize_t>(sizeof(inotify_event)) + event->len;
    }
    return count;
}

// Runs the body in a child process that can't make a file longer than the limit, as on a full disk.
template <typename Body>
bool HoldsOnFullDisk(rlim_t limit, Body body)
{
    const pid_t child = fork();
    if (child == 0) {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit size = {limit, limit};
        setrlimit(RLIMIT_FSIZE, &size);
        _exit(body() ? 7 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 7;
}

}  // namespace

TEST_F(CalFileBrokenTest, MissingFileThrowsItsWords)
{
    ForEachItem([&](ICalItemByL1Operation &item, const QByteArray &, const std::string &section) {
        EXPECT_EQ(LoadFile(item, "absent.ini"),
                  (SOutcome{0, "threw Read " + section + " from " + m_folder.Path("absent.ini") +
                                   " failed (load file failed)"}));
        EXPECT_FALSE(item.HasData());
    });
}

TEST_F(CalFileBrokenTest, FolderInPlaceOfAFileThrowsItsWords)
{
    ForEachItem([&](ICalItemByL1Operation &item, const QByteArray &bare, const std::string &) {
        EXPECT_EQ(LoadFile(item, ".").text.rfind("threw Read ", 0), 0u);
        ASSERT_EQ(LoadText(item, bare), kDone);
        EXPECT_EQ(SaveFile(item, ".").text.rfind("threw Write ", 0), 0u);
    });
}

TEST_F(CalFileBrokenTest, FolderThatTakesNoFileThrowsTheFirstWrite)
{
    ForEachItem([&](ICalItemByL1Operation &item, const QByteArray &bare,
                    const std::string &section) {
        ASSERT_EQ(LoadText(item, bare), kDone);
        // Read-only for everyone, also for root, whom no mode of a folder stops.
        CCalIniFile file(L"/proc/cal.ini");
        EXPECT_EQ(FailureOf([&] { item.SaveToFile(&file); }),
                  "Write " + section + "::RF Chip ID to /proc/cal.ini failed (create file failed)");
        EXPECT_TRUE(item.HasData());
    });
}

TEST_F(CalFileBrokenTest, FullDiskLeavesTheFileThatWasThere)
{
    ForEachItem(
        [&](ICalItemByL1Operation &item, const QByteArray &bare, const std::string &section) {
            ASSERT_EQ(LoadText(item, bare), kDone);
            const QByteArray old = "[Of somebody else]\r\nk = 1\r\n";
            m_folder.Put(old);
            const SOutcome expected = {0, "threw Write " + section + "::RF Chip ID to " +
                                              m_folder.Path() + " failed (create file failed)"};
            EXPECT_TRUE(HoldsOnFullDisk(4000, [&] { return SaveFile(item) == expected; }));
            EXPECT_EQ(m_folder.Bytes(), old);
        });
}

TEST_F(CalFileBrokenTest, ExportKeepsWhatElseTheFileHolds)
{
    ForEachItem([&](ICalItemByL1Operation &item, const QByteArray &bare, const std::string &) {
        ASSERT_EQ(LoadText(item, bare), kDone);
        m_folder.Put("[Of somebody else]\r\nk = 1\r\n");
        ASSERT_EQ(SaveFile(item), kDone);
        EXPECT_EQ(Sections(m_folder.Bytes()).first(), QString("Of somebody else"));
        EXPECT_EQ(IniValue(m_folder.Bytes(), "Of somebody else", "k"), QString("1"));
    });
}

TEST_F(CalFileBrokenTest, ExportIsOneSave)
{
    ForEachItem([&](ICalItemByL1Operation &item, const QByteArray &bare, const std::string &) {
        ASSERT_EQ(LoadText(item, bare), kDone);
        const int watch = inotify_init1(IN_NONBLOCK);
        // With what comes between two saves, or else the kernel would merge them into one event.
        ASSERT_GE(
            inotify_add_watch(
                watch,
                QFileInfo(QString::fromStdString(m_folder.Path())).path().toUtf8().constData(),
                IN_MOVED_TO | IN_CREATE | IN_MOVED_FROM | IN_DELETE),
            0);
        ASSERT_EQ(SaveFile(item), kDone);
        EXPECT_EQ(CountSaves(watch, "cal.ini"), 1);
        close(watch);
    });
}

TEST_F(CalFileBrokenTest, ExportWithoutAValidRecordMakesNoFile)
{
    ForEachItem([&](ICalItemByL1Operation &item, const QByteArray &, const std::string &) {
        EXPECT_EQ(SaveFile(item), kDone);
        EXPECT_FALSE(m_folder.Exists());
    });
}

TEST_F(CalFileBrokenTest, NoiseHasNoneOfTheSections)
{
    m_folder.Put(Noise(10 * 1024 * 1024));
    ForEachItem([&](ICalItemByL1Operation &item, const QByteArray &, const std::string &) {
        EXPECT_EQ(LoadFile(item), (SOutcome{51, ""}));
        EXPECT_FALSE(item.HasData());
    });
}

TEST_F(CalFileBrokenTest, NoiseBehindEveryKeyIsHeldToTheRecords)
{
    // Values of noise, without what would end a line.
    QByteArray noise = Noise(3000);
    for (char &byte : noise)
        byte = byte == '\n' || byte == '\r' || byte == '\0' ? ',' : byte;
    ForEachItem([&](ICalItemByL1Operation &item, const QByteArray &bare, const std::string &) {
        QByteArray text = bare;
        text.replace("=\n", "=" + noise + "\n").replace("= 1\n", "=" + noise + "\n");
        EXPECT_EQ(LoadText(item, text), kDone);
        EXPECT_TRUE(item.HasData());
    });
}

TEST_F(CalFileBrokenTest, ProgressCountsTheRoutesOfAFile)
{
    ForEachItem([&](ICalItemByL1Operation &item, const QByteArray &bare, const std::string &) {
        std::vector<std::array<int, 3>> calls;
        item.SetProgress([&](int round, int done, int all) {
            calls.push_back({round, done, all});
        });
        ASSERT_EQ(LoadText(item, bare), kDone);
        ASSERT_FALSE(calls.empty());
        for (size_t i = 0; i < calls.size(); ++i) {
            EXPECT_EQ(calls[i][0], 0);
            EXPECT_GE(calls[i][1], i > 0 ? calls[i - 1][1] : 1);
            EXPECT_EQ(calls[i][2], calls[0][2]);
        }
        EXPECT_EQ(calls.back()[1], calls.back()[2]);
    });
}
