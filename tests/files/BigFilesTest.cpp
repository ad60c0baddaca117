// Files of 500 MB: refused with words, without the memory of their size. They are sparse, behind a good
// beginning.
#include <filesystem>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <QFileInfo>

#include "Controller/guard/CalBackup.h"
#include "Host/door/TraceSource.h"
#include "Support/CalIniFile.h"
#include "Support/Settings.h"
#include "View/results/ResultFile.h"
#include "tests/cli/CliFolder.h"

namespace {

constexpr std::uintmax_t kBig = 500u * 1024 * 1024;
constexpr long kMostMemoryKb = 300 * 1024;

std::string MakeBig(const CCliFolder &folder, const std::string &name, const std::string &begin)
{
    const std::string path = folder.Write(name, begin);
    std::filesystem::resize_file(path, kBig);
    return path;
}

// In a child, whose memory is measured. True when it says so.
bool HoldsInAChild(const std::function<bool()> &run)
{
    const pid_t child = fork();
    if (child == 0)
        _exit(run() ? 0 : 1);
    int status = 0;
    rusage used = {};
    wait4(child, &status, 0, &used);
    EXPECT_LT(used.ru_maxrss, kMostMemoryKb) << "kB of memory";
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

struct SBigFile
{
    const char *name;
    const char *begin;
    const char *command;
};

constexpr char kHeader[] =
    R"({"vondTrace":1,"tool":"0.1","time":"2026-11-22T00:00:00.000Z","core":"","coreBuildId":"","app":"","appBuildId":""})"
    "\n";

const SBigFile kBigFiles[] = {
    {"a.jsonl", kHeader, "trace show big/a.jsonl"},
    {"a.jsonl", kHeader, "trace summary big/a.jsonl"},
    {"a.jsonl", kHeader, "trace diff big/a.jsonl big/a.jsonl"},
    {"plan.yaml", "quorlin: 1\nplan: x\n", "run --check big/plan.yaml --profile handset"},
    {"cal.ini", "[TX Route 1 BW0]\r\n", "cal diff dut big/cal.ini --item apt --profile handset"},
    {"cal.json", "{\"format\": \"quorlin-rf calibration\",",
     "cal diff dut big/cal.json --item apt --profile handset"},
    {"cal.json", "{\"format\": \"quorlin-rf calibration\",",
     "cal restore big/cal.json --yes --profile handset"},
    {"dut.json", "{\"name\": \"x\",", "cal read --item apt --to a.ini --profile big/dut.json"},
    {"answer.bin", "x", "decode VOND_NRf_GetChipIdName answer @big/answer.bin"},
};

TEST(BigFilesTest, theProgramRefusesThem)
{
    for (const SBigFile &row : kBigFiles) {
        const CCliFolder folder;
        std::filesystem::create_directory(folder.Path("big"));
        MakeBig(folder, std::string("big/") + row.name, row.begin);
        HoldsInAChild([&] {
            const SCliRun run = folder.Run(row.command);
            EXPECT_GT(run.exitCode, 0) << row.command;
            EXPECT_NE(run.err.find(std::string("big/") + row.name), std::string::npos)
                << row.command << '\n'
                << run.err;
            rusage used = {};
            getrusage(RUSAGE_CHILDREN, &used);
            EXPECT_LT(used.ru_maxrss, kMostMemoryKb) << row.command;
            if (::testing::Test::HasFailure())
                std::fflush(stdout);
            return !::testing::Test::HasFailure();
        })
            ? void()
            : (void)(ADD_FAILURE() << row.command);
    }
}

TEST(BigFilesTest, aFlashIsRefused)
{
    const CCliFolder folder;
    const std::string path = MakeBig(folder, "flash.bin", "VondSim flash 1\n");
    EXPECT_TRUE(HoldsInAChild([&] {
        const SCliRun run =
            folder.Shell("VOND_SIM_FLASH=" + path +
                         " $QUORLIN cal read --item apt --to a.ini --profile handset");
        rusage used = {};
        getrusage(RUSAGE_CHILDREN, &used);
        EXPECT_LT(used.ru_maxrss, kMostMemoryKb);
        EXPECT_NE(run.err.find("flash.bin"), std::string::npos) << run.err;
        return !::testing::Test::HasFailure();
    }));
}

TEST(BigFilesTest, aSettingsFileOfTheUserIsNoExports)
{
    const CCliFolder folder;
    MakeBig(folder, "rsrp.json", "{\"tool\": \"0\", \"chip\": \"x\", \"rest\": \"");
    EXPECT_TRUE(HoldsInAChild([&] {
        return RefuseResultFile(QString::fromStdString(folder.Path("rsrp.csv")))
            .contains("rsrp.json");
    }));
}

TEST(BigFilesTest, settingsOfTheToolAreKeptBesideANewFile)
{
    const CCliFolder folder;
    const QString file = QString::fromStdString(MakeBig(folder, "settings.ini", "[a]\nb=1\n"));
    EXPECT_TRUE(HoldsInAChild([&] {
        CSettings settings(file);
        settings.SetValue("a/b", 2);
        return settings.Save() && QFileInfo(file).size() < 100 &&
               QFileInfo(file + ".broken").size() == static_cast<qint64>(kBig);
    }));
}

TEST(BigFilesTest, iniAndBackupAreRefused)
{
    const CCliFolder folder;
    const QString ini = QString::fromStdString(MakeBig(folder, "a.ini", "[a]\r\nb = 1\r\n"));
    const QString json = QString::fromStdString(MakeBig(folder, "a.json", "{"));
    EXPECT_TRUE(HoldsInAChild([&] {
        SCalBackup backup;
        return !CCalIniFile(ini.toStdWString().c_str()).Load() &&
               ReadCalBackup(json, backup).contains("500 MB");
    }));
}

// The panel reads as far as it is asked to.
TEST(BigFilesTest, theDoorPanelEndsAtALineThatIsTooLong)
{
    const CCliFolder folder;
    const QString file = QString::fromStdString(MakeBig(folder, "a.jsonl", kHeader));
    EXPECT_TRUE(HoldsInAChild([&] {
        CTraceSource source(file);
        SDoorNews news;
        source.Poll(news, DoorClock::now() + std::chrono::seconds(60));
        return !news.hasMore && source.About().contains("too long");
    }));
}

}  // namespace
