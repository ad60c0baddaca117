// Files of results on the disk: whole or not at all.
#include "View/results/ResultFile.h"

#include <csignal>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>

#include "tests/view/results/SampleResults.h"

namespace {

QByteArray BytesOf(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void Put(const QString &name, const QByteArray &bytes)
{
    QFile file(name);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

// In a child process that can't make a file longer than the limit, as on a full disk.
bool HoldsWithoutRoom(rlim_t limit, const std::function<bool()> &body)
{
    const pid_t child = fork();
    if (child == 0) {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit size = {limit, limit};
        setrlimit(RLIMIT_FSIZE, &size);
        _exit(body() ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

class ResultFile : public testing::Test
{
protected:
    QString Path(const QString &name) const { return m_folder.filePath(name); }
    QStringList Names() const { return QDir(m_folder.path()).entryList(QDir::Files); }

    const QTemporaryDir m_folder;
    const SResultTable m_table = SampleResults(QVector<QStringList>(5000, {"-85.25", "NAN"}));
};

}  // namespace

TEST_F(ResultFile, csvHasItsSettingsBesideIt)
{
    EXPECT_EQ(WriteResultFile(Path("run.1.csv"), m_table, GoOn), "");
    EXPECT_EQ(Names(), QStringList({"run.1.csv", "run.1.json"}));
    EXPECT_EQ(QJsonDocument::fromJson(BytesOf(Path("run.1.json"))).object(), m_table.settings);
    EXPECT_EQ(BytesOf(Path("run.1.csv")).count("\r\n"), 5001);
}

TEST_F(ResultFile, jsonLinesIsOneFileBySuffix)
{
    EXPECT_EQ(WriteResultFile(Path("run.JSONL"), m_table, GoOn), "");
    EXPECT_EQ(Names(), QStringList({"run.JSONL"}));
    EXPECT_EQ(BytesOf(Path("run.JSONL")).count('\n'), 5001);
}

TEST_F(ResultFile, anotherSuffixIsRefused)
{
    for (const char *name : {"run.xlsx", "run", "run.csv.txt", "run.json"}) {
        EXPECT_EQ(WriteResultFile(Path(name), m_table, GoOn),
                  "Results go into a .csv or a .jsonl file.");
    }
    EXPECT_EQ(Names(), QStringList());
}

TEST_F(ResultFile, ownJsonFileOfTheUserIsNotReplaced)
{
    Put(Path("run.json"), R"({"version": 1, "page": "RSSI", "request": {}})");
    const QString failure = WriteResultFile(Path("run.csv"), m_table, GoOn);
    EXPECT_EQ(failure, Path("run.json") + " is not of an export. Please choose another name.");
    EXPECT_EQ(Names(), QStringList({"run.json"}));
    EXPECT_TRUE(BytesOf(Path("run.json")).contains("RSSI"));
}

TEST_F(ResultFile, anExportReplacesAnExport)
{
    ASSERT_EQ(WriteResultFile(Path("run.csv"), SampleResults({{"1", "old"}}), GoOn), "");
    EXPECT_EQ(WriteResultFile(Path("run.csv"), m_table, GoOn), "");
    EXPECT_EQ(BytesOf(Path("run.csv")).count("\r\n"), 5001);
}

TEST_F(ResultFile, fullDiskLeavesTheOldFiles)
{
    ASSERT_EQ(WriteResultFile(Path("run.csv"), SampleResults({{"1", "old"}}), GoOn), "");
    ASSERT_EQ(WriteResultFile(Path("run.jsonl"), SampleResults({{"1", "old"}}), GoOn), "");
    const QByteArray csv = BytesOf(Path("run.csv"));
    const QByteArray json = BytesOf(Path("run.json"));
    const QByteArray lines = BytesOf(Path("run.jsonl"));
    // No room at all, for the settings alone, and for some of the rows.
    for (const rlim_t limit : {0, 20, 1000, 100000}) {
        for (const char *name : {"run.csv", "run.jsonl"}) {
            EXPECT_TRUE(HoldsWithoutRoom(
                limit,
                [&] {
                    return WriteResultFile(Path(name), m_table, GoOn).contains("was not written: ");
                }))
                << name << ' ' << limit;
        }
        EXPECT_EQ(Names(), QStringList({"run.csv", "run.json", "run.jsonl"}));
        EXPECT_EQ(BytesOf(Path("run.csv")), csv);
        EXPECT_EQ(BytesOf(Path("run.json")), json);
        EXPECT_EQ(BytesOf(Path("run.jsonl")), lines);
    }
}

TEST_F(ResultFile, missingFolderIsTold)
{
    const QString file = Path("none/run.csv");
    EXPECT_TRUE(WriteResultFile(file, m_table, GoOn).contains("was not written: "));
    EXPECT_EQ(Names(), QStringList());
}

TEST_F(ResultFile, endedWriteLeavesNothing)
{
    for (const char *name : {"run.csv", "run.jsonl"}) {
        EXPECT_EQ(WriteResultFile(Path(name), m_table, [] { return false; }),
                  "The export was ended.");
        EXPECT_EQ(Names(), QStringList());
    }
}
