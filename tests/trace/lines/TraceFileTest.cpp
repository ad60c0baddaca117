// The file of a trace when things go wrong, and when several processes write it.
#include "Trace/lines/TraceFile.h"

#include <csignal>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

namespace {

class TraceFileTest : public ::testing::Test
{
protected:
    TraceFileTest() { std::filesystem::create_directory(m_folder); }
    ~TraceFileTest() override
    {
        std::error_code error;
        std::filesystem::remove_all(m_folder, error);
    }

    static std::string TextOf(const std::string &path)
    {
        std::ostringstream text;
        text << std::ifstream(path).rdbuf();
        return text.str();
    }
    // Runs in a child, whose exit code counts what failed.
    template <class Work>
    static void InAChild(const Work &work)
    {
        const pid_t child = fork();
        if (child == 0) {
            work();
            _exit(::testing::Test::HasFailure() ? 1 : 0);
        }
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        EXPECT_EQ(status, 0);
    }

    const std::string m_folder =
        ::testing::TempDir() + "trace-file-" + std::to_string(getpid()) + "/";
    const std::string m_path = m_folder + "run.jsonl";
};

std::string LineOf(char letter, std::size_t size)
{
    return std::string(size - 1, letter) + "\n";
}

TEST_F(TraceFileTest, FileThatCannotBeOpenedIsToldOnce)
{
    ::testing::internal::CaptureStderr();
    CTraceFile file(m_folder + "nowhere/run.jsonl", "Test");
    EXPECT_FALSE(file.IsOpen());
    file.Append("line\n");
    EXPECT_EQ(::testing::internal::GetCapturedStderr(),
              "Test: trace " + m_folder +
                  "nowhere/run.jsonl can't be opened: No such file or directory\n");
}

TEST_F(TraceFileTest, FileIsEmptiedWhenItIsOpened)
{
    std::ofstream(m_path) << "what was there";
    CTraceFile file(m_path, "Test");
    file.Append("line\n");
    EXPECT_EQ(TextOf(m_path), "line\n");
}

TEST_F(TraceFileTest, FullDiskIsToldOnce)
{
    ::testing::internal::CaptureStderr();
    CTraceFile file("/dev/full", "Test");
    EXPECT_TRUE(file.IsOpen());
    errno = 77;
    for (int i = 0; i < 3; ++i)
        file.Append("line\n");
    EXPECT_EQ(errno, 77);
    EXPECT_FALSE(file.IsOpen());
    EXPECT_EQ(::testing::internal::GetCapturedStderr(),
              "Test: trace /dev/full ends here, the calls go on: No space left on device\n");
}

TEST_F(TraceFileTest, LimitOfTheFileSizeEndsTheTraceWithAWholeLine)
{
    InAChild([&] {
        const rlimit limit = {1000, 1000};
        ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
        signal(SIGXFSZ, SIG_DFL);
        CTraceFile file(m_path, "Test");
        ::testing::internal::CaptureStderr();
        for (int i = 0; i < 8; ++i)
            file.Append(LineOf('a', 300));
        EXPECT_FALSE(file.IsOpen());
        EXPECT_EQ(::testing::internal::GetCapturedStderr(),
                  "Test: trace " + m_path + " ends here, the calls go on: File too large\n");
        sigset_t pending;
        sigpending(&pending);
        EXPECT_FALSE(sigismember(&pending, SIGXFSZ));
    });
    EXPECT_EQ(TextOf(m_path), LineOf('a', 300) + LineOf('a', 300) + LineOf('a', 300));
}

TEST_F(TraceFileTest, PipeThatNobodyReadsEndsNoProgram)
{
    const std::string pipe = m_folder + "pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    InAChild([&] {
        signal(SIGPIPE, SIG_DFL);
        const int reader = open(pipe.c_str(), O_RDONLY | O_NONBLOCK);
        CTraceFile file(pipe, "Test");
        EXPECT_TRUE(file.IsOpen());
        close(reader);
        file.Append("line\n");
        EXPECT_FALSE(file.IsOpen());
    });
}

TEST_F(TraceFileTest, ForkedProcessesShareFileAndNumbers)
{
    constexpr int kChildren = 6;
    constexpr int kLines = 100;
    CTraceFile file(m_path, "Test");
    std::vector<pid_t> children;
    for (int i = 0; i < kChildren; ++i) {
        const pid_t child = fork();
        if (child == 0) {
            for (int k = 0; k < kLines; ++k)
                file.Append(std::to_string(file.NextIndex()) + "\n");
            _exit(0);
        }
        children.push_back(child);
    }
    for (const pid_t child : children)
        waitpid(child, nullptr, 0);
    std::set<std::string> numbers;
    std::istringstream lines(TextOf(m_path));
    for (std::string line; std::getline(lines, line);)
        numbers.insert(line);
    EXPECT_EQ(numbers.size(), static_cast<std::size_t>(kChildren * kLines));
    EXPECT_EQ(file.NextIndex(), static_cast<uint64_t>(kChildren * kLines));
}

TEST_F(TraceFileTest, FailureInOneProcessEndsTheTraceOfAll)
{
    CTraceFile file(m_path, "Test");
    InAChild([&] {
        const rlimit limit = {10, 10};
        ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
        ::testing::internal::CaptureStderr();
        file.Append(LineOf('a', 20));
        EXPECT_NE(::testing::internal::GetCapturedStderr(), "");
    });
    EXPECT_FALSE(file.IsOpen());
    file.Append("line\n");
    EXPECT_EQ(TextOf(m_path), "");
}

TEST_F(TraceFileTest, ProcessThatIsKilledInItsLineLeavesTheOthersWriting)
{
    const std::string line = LineOf('c', 100000);
    for (int round = 0; round < 10; ++round) {
        CTraceFile file(m_path, "Test");
        const pid_t child = fork();
        if (child == 0) {
            for (;;)
                file.Append(line);
        }
        while (std::filesystem::file_size(m_path) < 2 * line.size())
            file.Append("p\n");
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        file.Append("p\n");
        std::istringstream lines(TextOf(m_path));
        for (std::string read; std::getline(lines, read);)
            ASSERT_TRUE(read == "p" || read + "\n" == line) << read.size();
    }
}

TEST_F(TraceFileTest, SecondProgramWritesAFileOfItsOwn)
{
    CTraceFile first(m_path, "Test");
    first.Append("first\n");
    ::testing::internal::CaptureStderr();
    CTraceFile second(m_path, "Test");
    const std::string own = m_path + "." + std::to_string(getpid());
    EXPECT_EQ(::testing::internal::GetCapturedStderr(),
              "Test: trace " + m_path + " is being written by another program; this one writes " +
                  own + "\n");
    second.Append("second\n");
    EXPECT_EQ(TextOf(m_path), "first\n");
    EXPECT_EQ(TextOf(own), "second\n");
}

TEST_F(TraceFileTest, SignalsWaitUntilTheLineIsWritten)
{
    static int s_seen = 0;
    s_seen = 0;
    CTraceFile file(m_path, "Test");
    struct sigaction action = {};
    action.sa_handler = [](int) { ++s_seen; };
    struct sigaction before = {};
    sigaction(SIGALRM, &action, &before);
    const itimerval often = {{0, 50}, {0, 50}};
    setitimer(ITIMER_REAL, &often, nullptr);
    const std::string line = LineOf('s', 50000);
    for (int i = 0; i < 200 || s_seen == 0; ++i)
        file.Append(line);
    const itimerval never = {};
    setitimer(ITIMER_REAL, &never, nullptr);
    sigaction(SIGALRM, &before, nullptr);
    EXPECT_EQ(std::filesystem::file_size(m_path) % line.size(), 0u);
    EXPECT_TRUE(file.IsOpen());
}

}  // namespace
