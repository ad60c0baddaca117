#include "tests/files/ProgramFlow.h"

#include <csignal>
#include <cstdio>
#include <filesystem>
#include <vector>

#include <gtest/gtest.h>

#include <QDir>

#include "tests/files/FailingCalls.h"

namespace {

constexpr const char *kAllKinds[] = {"EIO", "ENOSPC", "EACCES", "short", "full", "exit", "kill"};
constexpr int kFewOf = 97;  // of all cases of a flow, where nobody asked for more

int Every()
{
    const char *const text = std::getenv("QUORLIN_FILES_EVERY");
    return text == nullptr ? kFewOf : std::max(1, std::atoi(text));
}

class CProgramTries
{
public:
    explicit CProgramTries(const SProgramFlow &flow) : m_flow(flow) {}

    SFlowCount Run()
    {
        Learn();
        int number = 0;
        for (int at = 1; at <= m_count.calls; ++at) {
            for (const std::string kind : kAllKinds) {
                const bool isOfWrites = kind == "short" || kind == "full";
                if (isOfWrites && !m_calls[at - 1].starts_with("write"))
                    continue;
                if (number++ % Every() == 0)
                    Try(at, kind);
            }
        }
        std::printf("| %s | %d | %d | %d | %d |\n", m_flow.name, m_count.calls, m_count.cases,
                    m_count.failed, m_count.killed);
        return m_count;
    }

private:
    SCliRun Shell(const CCliFolder &folder, int at, const std::string &kind) const
    {
        const std::string first = FIRST_PRELOAD;
        const std::string variables = "LD_PRELOAD=" + first + (first.empty() ? "" : ":") +
                                      FAILING_CALLS + " FAILING_CALLS_FOLDER=" + folder.Path("x") +
                                      " FAILING_CALLS_AT=" + std::to_string(at) +
                                      " FAILING_CALLS_KIND=" + kind +
                                      " FAILING_CALLS_LOG=" + folder.Path("calls");
        return folder.Shell("TRY='env " + variables + "'\n" + m_flow.command);
    }

    static SCliRun Good(const CCliFolder &folder, const SProgramFlow &flow)
    {
        return folder.Shell("TRY=env\n" + flow.command);
    }

    void Prepare(const CCliFolder &folder) const
    {
        std::filesystem::create_directory(folder.Path("x"));
        if (m_flow.prepare)
            m_flow.prepare(folder);
    }

    static FolderBytes FilesOf(const CCliFolder &folder)
    {
        return BytesOf(QString::fromStdString(folder.Path("x")));
    }

    void Learn()
    {
        const CCliFolder folder;
        Prepare(folder);
        const SCliRun run = Shell(folder, 0, "none");
        ASSERT_EQ(run.exitCode, 0) << run.out << run.err;
        EXPECT_TRUE(m_flow.isDone(FilesOf(folder)));
        ExpectWhole(FilesOf(folder), false);
        const SCliRun calls = folder.Shell("cat calls");
        for (std::size_t at = 0, end = 0; (end = calls.out.find('\n', at)) != std::string::npos;
             at = end + 1)
            m_calls.push_back(calls.out.substr(at, end - at));
        m_count.calls = static_cast<int>(m_calls.size());
        EXPECT_GT(m_count.calls, 0);
    }

    void Try(int at, const std::string &kind)
    {
        SCOPED_TRACE(std::string(m_flow.name) + ": " + kind + " at call " + std::to_string(at) +
                     ", " + m_calls[at - 1]);
        ++m_count.cases;
        const CCliFolder folder;
        Prepare(folder);
        const SCliRun run = Shell(folder, at, kind);
        const bool isKilled = kind == "exit" || kind == "kill";
        const FolderBytes files = FilesOf(folder);
        if (isKilled)
            ++m_count.killed;
        else if (run.exitCode != 0)
            ++m_count.failed;
        if (run.exitCode == 0) {
            const bool isTold = m_flow.goesOn && run.err.find("/x/") != std::string::npos;
            EXPECT_TRUE(isTold || m_flow.isDone(files)) << run.out << run.err;
        } else if (!isKilled) {
            EXPECT_GT(run.exitCode, 0) << "a signal";
            EXPECT_NE(run.err.find("x"), std::string::npos) << run.err;
            EXPECT_TRUE(run.err.find("x/") != std::string::npos ||
                        run.err.find("/x") != std::string::npos)
                << run.err;
        }
        ExpectWhole(files, isKilled);
        const SCliRun again = Good(folder, m_flow);
        EXPECT_EQ(again.exitCode, 0) << "the next try: " << again.err;
        EXPECT_TRUE(m_flow.isDone(FilesOf(folder))) << "the next try";
    }

    void ExpectWhole(const FolderBytes &files, bool isKilled) const
    {
        for (const QString &name : files.keys())
            EXPECT_TRUE(m_flow.isWhole(name, files[name], isKilled))
                << name.toStdString() << ", " << files[name].size() << " bytes";
    }

    const SProgramFlow &m_flow;
    SFlowCount m_count;
    std::vector<std::string> m_calls;
};

}  // namespace

SFlowCount TryEachCall(const SProgramFlow &flow)
{
    return CProgramTries(flow).Run();
}
