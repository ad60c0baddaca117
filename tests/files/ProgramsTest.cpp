// The program's flows that write files, each of their system calls gone wrong.
#include <filesystem>

#include <gtest/gtest.h>

#include <QJsonDocument>

#include "tests/cli/CalFolder.h"
#include "tests/files/ProgramFlow.h"

namespace {

constexpr char kVariables[] = "export VOND_SIM_FLASH=$PWD/x/flash.bin XDG_RUNTIME_DIR=$PWD/x "
                              "XDG_DATA_HOME=$PWD/x VOND_SIM_PROFILE=handset && ";
const QString kIni = "to.ini";
const QString kJson = "to.json";
constexpr char kCouplerLoss[] = "Tx compensation power detector coupler loss 0";

// A DUT whose flash is written, and files of calibration data beside it; made once.
class CCalSource : public CCalFolder
{
public:
    CCalSource()
    {
        Edit("apt", kCouplerLoss, "1.25", 1, "first.ini");
        EXPECT_EQ(Cal("write --item apt --from first.ini --yes --backup first").exitCode, 0);
        Edit("apt", kCouplerLoss, "1.5", 3, "new.ini");
    }

    void LayDown(const CCliFolder &folder) const
    {
        folder.Write("x/flash.bin", Flash());
        folder.Write("new.ini", Bytes("new.ini"));
    }
};

const CCalSource &Source()
{
    static const CCalSource source;
    return source;
}

bool IsJson(const QByteArray &bytes)
{
    return !QJsonDocument::fromJson(bytes).isNull();
}

// A flash that is neither is of a DUT that got a part of the records; a torn one cannot be read, and the
// next try would say so.
bool IsWholeFlash(const QByteArray &bytes)
{
    return bytes.size() == static_cast<int>(Source().Flash().size());
}

TEST(ProgramsTest, readOfCalibrationData)
{
    for (const QString &name : {kIni, kJson}) {
        TryEachCall({.name = name == kIni ? "cal read, INI" : "cal read, JSON",
                     .prepare =
                         [&](const CCliFolder &folder) {
                             Source().LayDown(folder);
                             if (name == kIni)
                                 return;
                             folder.Write("x/" + name.toStdString(),
                                          "{\"format\": \"quorlin-rf calibration\"}");
                         },
                     .command = std::string(kVariables) +
                                "$TRY $QUORLIN cal read --item apt --to x/" + name.toStdString(),
                     .isDone =
                         [&](const FolderBytes &files) {
                             const QByteArray bytes = files.value(name);
                             return bytes.size() > 1000 && (name == kIni || IsJson(bytes));
                         },
                     .isWhole =
                         [&](const QString &file, const QByteArray &bytes, bool isKilled) {
                             if (file == "flash.bin")
                                 return IsWholeFlash(bytes);
                             if (file != name)
                                 return isKilled;
                             return file == kIni ? bytes.endsWith('\n') : IsJson(bytes);
                         },
                     .goesOn = true});
    }
}

TEST(ProgramsTest, guardedWrite)
{
    TryEachCall({.name = "cal write",
                 .prepare = [](const CCliFolder &folder) { Source().LayDown(folder); },
                 .command = std::string(kVariables) +
                            "$TRY $QUORLIN cal write --item apt --from new.ini --yes --backup x/b",
                 .isDone =
                     [](const FolderBytes &files) {
                         return files.value("flash.bin").toStdString() != Source().Flash();
                     },
                 .isWhole =
                     [](const QString &file, const QByteArray &bytes, bool isKilled) {
                         if (file == "flash.bin")
                             return IsWholeFlash(bytes);
                         if (!file.startsWith("b/apt-"))
                             return isKilled;
                         return file.endsWith("ini") ? bytes.endsWith('\n') : IsJson(bytes);
                     },
                 .goesOn = true});
}

constexpr char kPlan[] = R"(quorlin: 1
plan: One tone
transmit: {max_dbm: 10}
steps:
  - step: first
    page: Single Tone TX
    sweep: {txPowerValue: [0]}
    press: [Start, Fetch PD]
    then: [Stop]
)";

TEST(ProgramsTest, reportsOfARun)
{
    TryEachCall(
        {.name = "run",
         .prepare = [](const CCliFolder &folder) { folder.Write("plan.yaml", kPlan); },
         .command = "rm -rf x/out; $TRY $QUORLIN run plan.yaml --profile handset --allow-transmit"
                    " --out x/out",
         .isDone =
             [](const FolderBytes &files) {
                 return files.value("out/results.jsonl").count('\n') == 1 &&
                        files.value("out/results.csv").count('\n') > 1 &&
                        files.value("out/report.html").contains("pass") &&
                        files.value("out/junit.xml").trimmed().endsWith("</testsuites>");
             },
         .isWhole =
             [](const QString &file, const QByteArray &bytes, bool isKilled) {
                 if (file == "out/results.jsonl" || file == "out/results.csv")
                     return isKilled || bytes.isEmpty() || bytes.endsWith('\n');
                 if (file == "out/junit.xml")
                     return bytes.trimmed().endsWith("</testsuites>");
                 return file == "out/report.html" ? bytes.trimmed().endsWith("</html>") : isKilled;
             }});
}

TEST(ProgramsTest, recordedRun)
{
    TryEachCall(
        {.name = "recorded run",
         .prepare = [](const CCliFolder &folder) { folder.Write("plan.yaml", kPlan); },
         .command = "rm -rf out x/*; $TRY $QUORLIN run plan.yaml --profile handset --allow-transmit"
                    " --out out --record x/run.jsonl",
         .isDone = [](const FolderBytes &files) { return files["run.jsonl"].count('\n') > 25; },
         .isWhole =
             [](const QString &file, const QByteArray &bytes, bool isKilled) {
                 return file == "run.jsonl" &&
                        (isKilled || bytes.isEmpty() || bytes.endsWith('\n'));
             },
         .goesOn = true});
}

}  // namespace
