// Plans as a user runs them, on the simulated DUT.
#include <filesystem>

#include <gtest/gtest.h>

#include <QJsonArray>

#include "tests/runner/run/RunFiles.h"

namespace {

std::vector<std::string> YamlFiles(const std::string &folder)
{
    std::vector<std::string> files;
    for (const auto &entry : std::filesystem::directory_iterator(folder))
        if (entry.path().extension() == ".yaml")
            files.push_back(entry.path().string());
    std::sort(files.begin(), files.end());
    return files;
}

// The plans that press all buttons of a page each, as arguments.
std::string EveryButton()
{
    std::string files;
    for (const std::string &file : YamlFiles(EVERY_BUTTON))
        files += ' ' + file;
    return files;
}

constexpr char kTwoTones[] = R"(quorlin: 1
plan: Two tones
transmit: {max_dbm: 10}
steps:
  - step: first
    page: Single Tone TX
    sweep: {txPowerValue: [0, 5]}
    press: [Start, Fetch PD]
    then: [Stop]
    expect: {pdValue: {minus: txPowerValue, min: -1, max: 1}}
  - step: second
    page: Continuous RX
    press: [Start]
    then: [Stop]
)";

}  // namespace

TEST(PlanRunTest, theExamplesPassOnTheHandset)
{
    const std::vector<std::string> files = YamlFiles(kExamples);
    ASSERT_EQ(files.size(), 5u);
    for (const std::string &file : files) {
        const CCliFolder folder;
        const bool isHour = file.find("hour") != std::string::npos;
        const SCliRun run =
            folder.Run("run " + file + " --profile handset --allow-transmit --out out" +
                       (isHour ? " --define hours=0.0005" : ""));
        EXPECT_EQ(run.exitCode, 0) << file << run.out << run.err;
        const QVector<QJsonObject> lines = Lines(folder, "out");
        ExpectWholeReports(folder, "out", lines.size());
        for (const QJsonObject &line : lines)
            EXPECT_EQ(line["verdict"].toString(), "pass") << file;
    }
}

TEST(PlanRunTest, everyButtonOfEveryPageCanBePressedOnTheHandset)
{
    const CCliFolder folder;
    const std::string files = EveryButton();
    const SCliRun run =
        folder.Run("run" + files + " --profile handset --allow-transmit --allow-write --out out");
    EXPECT_EQ(run.exitCode, 0) << run.out << run.err;
    ExpectWholeReports(folder, "out", 9);
    EXPECT_GT(std::filesystem::file_size(folder.Path("out/rx-pathloss.ini")), 1000u);
}

// A DUT of few bands, some without routes or bandwidths: what a page can't do there it says in a box, which
// fails the step and ends nothing.
TEST(PlanRunTest, everyButtonOfEveryPageIsPressedOnAnOddDutToo)
{
    const CCliFolder folder;
    const SCliRun run = folder.Run("run" + EveryButton() + " --profile " + kOddProfile +
                                   " --allow-transmit --allow-write --out out");
    EXPECT_EQ(run.exitCode, 1) << run.out << run.err;
    ExpectWholeReports(folder, "out", 9);
    const QVector<QJsonObject> lines = Lines(folder, "out");
    for (const QJsonObject &line : lines)
        EXPECT_TRUE(line["verdict"].toString() == "pass" || !line["boxes"].toArray().isEmpty())
            << line["step"].toString().toStdString();
}

// What it can't do fails in words; what it can passes.
TEST(PlanRunTest, theExamplesRunToTheirEndOnAnOddDut)
{
    const struct
    {
        std::string plan;
        std::string options;
        int exitCode;
    } rows[] = {
        {"calibration-backup", "", 0},
        {"rsrp-hour", " --define hours=0.0005", 0},
        {"production-check", " --allow-transmit", 1},
        {"tx-power-curve", " --allow-transmit", 1},
        {"receiver-sweep",
         " --define low=n41 --define middle=n78 --define high=n40 --define type=Type1", 1},
    };
    for (const auto &row : rows) {
        const CCliFolder folder;
        const SCliRun run =
            folder.Run("run " + std::string(kExamples) + "/" + row.plan + ".yaml --profile " +
                       kOddProfile + row.options + " --out out");
        EXPECT_EQ(run.exitCode, row.exitCode) << row.plan << run.out << run.err;
        const QVector<QJsonObject> lines = Lines(folder, "out");
        ExpectWholeReports(folder, "out", lines.size());
        for (const QJsonObject &line : lines)
            EXPECT_TRUE(line["verdict"].toString() == "pass" || !line["boxes"].toArray().isEmpty())
                << row.plan;
    }
}

TEST(PlanRunTest, aSweepGoesThroughAllItsCombinations)
{
    const CCliFolder folder;
    folder.Write("plan.yaml", kTwoTones);
    const SCliRun run = folder.Shell("VOND_SIM_JOURNAL=j.jsonl $QUORLIN run plan.yaml "
                                     "--allow-transmit --out out --profile handset");
    EXPECT_EQ(run.exitCode, 0) << run.out << run.err;
    const QVector<QJsonObject> lines = Lines(folder, "out");
    ASSERT_EQ(lines.size(), 3);
    EXPECT_EQ(lines[1]["sweep"].toObject()["txPowerValue"].toString(), "5");
    EXPECT_EQ(lines[1]["inputs"].toObject()["request.group1.txPowerValue"].toString(), "5.00");
    EXPECT_EQ(lines[2]["step"].toString(), "second");
    EXPECT_EQ(RunningTest(JournalEntries(folder.Path("j.jsonl"))), "");
}

TEST(PlanRunTest, aFailedExpectationIsExitOneAndThePlanGoesOn)
{
    const CCliFolder folder;
    std::string plan = kTwoTones;
    plan.replace(plan.find("max: 1}"), 7, "max: -1}");
    folder.Write("plan.yaml", plan);
    EXPECT_EQ(folder.Run("run plan.yaml --allow-transmit --out out").exitCode, 1);
    EXPECT_EQ(Verdicts(folder, "out"), (QStringList{"fail", "fail", "pass"}));
    EXPECT_EQ(folder.Run("run plan.yaml --allow-transmit --stop-on-failure --out out2").exitCode,
              1);
    EXPECT_EQ(Verdicts(folder, "out2"), (QStringList{"fail", "not run", "not run"}));
    ExpectWholeReports(folder, "out2", 3);
}

TEST(PlanRunTest, aScenarioHappensToItsDut)
{
    const CCliFolder folder;
    folder.Write("plan.yaml", kTwoTones);
    folder.Write("rx.json", R"({"name": "no RX", "steps": [{
        "when": {"function": "VOND_MMRf_ContRxV7_r", "call": 1},
        "fault": {"function": "VOND_MMRf_ContRxV7_r", "kind": "fail"}}]})");
    folder.Write("broken.json", R"({"name": "broken", "steps": [{"when": {"function": "*"}}]})");
    EXPECT_EQ(folder.Run("run plan.yaml --allow-transmit --scenario rx.json --out out").exitCode,
              1);
    EXPECT_EQ(Verdicts(folder, "out"), (QStringList{"pass", "pass", "fail"}));
    const SCliRun broken = folder.Run("run plan.yaml --allow-transmit --scenario broken.json");
    EXPECT_EQ(broken.exitCode, 2);
    EXPECT_NE(broken.err.find("broken.json: steps[0].when: needs one of"), std::string::npos)
        << broken.err;
}

TEST(PlanRunTest, aBoxFailsItsStepUnlessItIsExpected)
{
    const std::string step = "quorlin: 1\nplan: P\nsteps:\n  - step: a\n    page: RX Pathloss\n"
                             "    press: [Import]\n";
    const CCliFolder folder;
    folder.Write("plan.yaml", step);
    folder.Write("named.yaml",
                 step + "    expect: {box: [Open file, Please choose the file to open]}\n");
    folder.Write("other.yaml", step + "    expect: {box: [Open file, Never]}\n");
    EXPECT_EQ(folder.Run("run plan.yaml --out a").exitCode, 1);
    EXPECT_TRUE(Lines(folder, "a")[0]["reason"].toString().contains("a box opened: Open file"));
    EXPECT_EQ(folder.Run("run named.yaml --out b").exitCode, 0);
    EXPECT_EQ(Lines(folder, "b")[0]["boxes"].toArray().size(), 2);
    EXPECT_EQ(folder.Run("run other.yaml --out c").exitCode, 1);
    EXPECT_TRUE(Lines(folder, "c")[0]["reason"].toString().contains("box: \"Never\" did not open"));
}

TEST(PlanRunTest, aSettingsFileComesBeforeTheSweepAndTheSet)
{
    const CCliFolder folder;
    folder.Write("tone.json", R"({"version": 1, "page": "Single Tone TX", "request": {"group1":
        {"afcdac": "4000", "band": "n41", "txPowerValue": "3.00", "ulFrequency": "2600000"}}})");
    folder.Write("plan.yaml", "quorlin: 1\nplan: P\nsteps:\n  - step: a\n    page: Single Tone TX\n"
                              "    settings: tone.json\n    set: {txPowerValue: 4}\n");
    const SCliRun run = folder.Run("run plan.yaml --out out");
    EXPECT_EQ(run.exitCode, 0) << run.out << run.err;
    const QJsonObject inputs = Lines(folder, "out")[0]["inputs"].toObject();
    EXPECT_EQ(inputs["request.group1.band"].toString(), "n41");
    EXPECT_EQ(inputs["request.group1.ulFrequency"].toString(), "2600000");
    EXPECT_EQ(inputs["request.group1.afcdac"].toString(), "4000");
    EXPECT_EQ(inputs["request.group1.txPowerValue"].toString(), "4.00");
}

TEST(PlanRunTest, theCallsOfARunCanBeRecorded)
{
    const CCliFolder folder;
    folder.Write("plan.yaml", kTwoTones);
    // The runtime of a sanitizer wants to be in front of the tap.
    const SCliRun run = folder.Shell("VOND_SIM_JOURNAL=j.jsonl LD_PRELOAD='" FIRST_PRELOAD
                                     "' $QUORLIN run plan.yaml "
                                     "--allow-transmit --out out --record t.jsonl");
    EXPECT_EQ(run.exitCode, 0) << run.out << run.err;
    QStringList traced, journal;
    for (const SJournalEntry &entry : JournalEntries(folder.Path("t.jsonl")))
        traced << QString::fromStdString(entry.function);
    for (const SJournalEntry &entry : JournalEntries(folder.Path("j.jsonl")))
        journal << QString::fromStdString(entry.function);
    EXPECT_TRUE(traced.contains("VOND_MMRf_SingleToneTxV7_r"));
    EXPECT_EQ(traced.count("VOND_MMRf_TestStopV7_r"), journal.count("VOND_MMRf_TestStopV7_r"));
    EXPECT_TRUE(FileBytes(folder.Path("t.jsonl")).contains("Plan: first [txPowerValue=5]"));
    EXPECT_EQ(folder.Run("run plan.yaml --allow-transmit --record nowhere/t.jsonl").exitCode, 2);
}

TEST(PlanRunTest, eachEndHasItsExitCode)
{
    const CCliFolder folder;
    folder.Write("plan.yaml", kTwoTones);
    folder.Write("late.yaml", "quorlin: 1\nplan: P\nsteps:\n  - step: a\n    page: RSSI\n"
                              "    press: [Start]\n    wait: {rows: 5, timeout: 10ms}\n");
    folder.Write("full/file", "");
    EXPECT_EQ(folder.Run("run").exitCode, 2);
    EXPECT_EQ(folder.Run("run nowhere.yaml").exitCode, 2);
    EXPECT_EQ(folder.Run("run plan.yaml plan.yaml").exitCode, 2);
    EXPECT_EQ(folder.Run("run plan.yaml --define hours=1").exitCode, 2);
    EXPECT_EQ(folder.Run("run plan.yaml --profile nobody").exitCode, 2);
    EXPECT_EQ(folder.Run("run plan.yaml --profile handset --handle 2").exitCode, 2);
    EXPECT_EQ(folder.Run("run plan.yaml --allow-transmit --profile c2k").exitCode, 3);
    EXPECT_EQ(folder.Run("run plan.yaml --allow-transmit --profile unplugged").exitCode, 3);
    EXPECT_EQ(folder.Run("run late.yaml --out late").exitCode, 4);
    EXPECT_EQ(Verdicts(folder, "late"), QStringList("error"));
    EXPECT_EQ(folder
                  .Shell("mkdir full; touch full/file; $QUORLIN run plan.yaml --allow-transmit "
                         "--out full")
                  .exitCode,
              2);
}

TEST(PlanRunTest, nothingTransmitsOrWritesUnasked)
{
    const CCliFolder folder;
    folder.Write("plan.yaml", kTwoTones);
    std::string strong = kTwoTones;
    strong.replace(strong.find("[0, 5]"), 6, "[0, 11]");
    folder.Write("strong.yaml", strong);
    std::string silent = kTwoTones;
    silent.erase(silent.find("transmit"), 24);
    folder.Write("silent.yaml", silent);
    folder.Write("write.yaml", "quorlin: 1\nplan: P\nsteps:\n  - step: a\n    page: APT Profile\n"
                               "    press: [Read, Write]\n");
    for (const char *arguments : {"plan.yaml", "strong.yaml --allow-transmit",
                                  "silent.yaml --allow-transmit", "write.yaml"}) {
        const SCliRun run = folder.Shell("VOND_SIM_JOURNAL=j.jsonl $QUORLIN run " +
                                         std::string(arguments) + " --out out");
        EXPECT_EQ(run.exitCode, 2) << arguments << run.err;
        EXPECT_FALSE(std::filesystem::exists(folder.Path("out"))) << arguments;
        for (const SJournalEntry &entry : JournalEntries(folder.Path("j.jsonl")))
            EXPECT_TRUE(entry.function.find("Tx") == std::string::npos &&
                        entry.function.find("SetCal") == std::string::npos)
                << arguments << entry.function;
    }
    EXPECT_TRUE(
        folder.Run("run strong.yaml --allow-transmit")
            .err.find(
                "strong.yaml:8:13: request.group1.txPowerValue is 11.00 dBm, which is more than "
                "the 10 dBm that are allowed. [txPowerValue=11]") != std::string::npos);
}
