// The program is ended by a signal at random moments: by the journal of the DUT no test runs afterwards, and
// the reports are whole. QUORLIN_KILLS says how often; a sample without it.
#include <cstdlib>
#include <random>

#include <gtest/gtest.h>

#include <QFileInfo>

#include "tests/runner/run/RunFiles.h"

namespace {

constexpr int kSample = 8;

constexpr char kLongPlan[] = R"(quorlin: 1
plan: Long
transmit: {max_dbm: 20}
steps:
  - step: tone
    page: Single Tone TX
    sweep: {txPowerValue: {from: 0, to: 20, step: 1}}
    press: [Start, Fetch PD]
    then: [Stop]
  - step: receiver
    page: Continuous RX
    press: [Start]
    wait: {time: 200ms}
  - step: link
    page: RSRP Normal Mode
    set: {request.group1.band: n78, dlFrequency: 3500010, reportPeriod: min}
    press: [Start]
    wait: {rows: 5}
    then: [Stop]
)";

int Kills()
{
    const char *kills = std::getenv("QUORLIN_KILLS");
    return kills ? std::atoi(kills) : kSample;
}

}  // namespace

TEST(EndSignalTest, atAnyMomentRfIsOffAndTheReportsAreWhole)
{
    std::mt19937 random(20261122);
    int duringRun = 0;
    for (int i = 0; i < Kills(); ++i) {
        const CCliFolder folder;
        folder.Write("plan.yaml", kLongPlan);
        const bool isInt = random() % 2 == 0;
        const int afterMs = static_cast<int>(random() % 2500);
        // In a session of its own, as a shell in the background has SIGINT ignored.
        const SCliRun run =
            folder.Shell("VOND_SIM_JOURNAL=j.jsonl timeout --foreground --preserve-status -s " +
                         std::string(isInt ? "INT " : "TERM ") + std::to_string(afterMs / 1000.0) +
                         " $QUORLIN run plan.yaml --allow-transmit --profile handset --out out");
        const std::string what = "kill " + std::to_string(i) + " after " + std::to_string(afterMs) +
                                 " ms\n" + run.out + run.err;
        EXPECT_TRUE(run.exitCode == (isInt ? 130 : 143) || run.exitCode == 0)
            << run.exitCode << what;
        if (QFileInfo::exists(QString::fromStdString(folder.Path("j.jsonl")))) {
            EXPECT_EQ(RunningTest(JournalEntries(folder.Path("j.jsonl"))), "") << what;
        }
        if (!QFileInfo::exists(QString::fromStdString(folder.Path("out"))))
            continue;
        ++duringRun;
        ExpectWholeReports(folder, "out", 23);
    }
    EXPECT_GT(duringRun, Kills() / 4);
}

TEST(EndSignalTest, theStepIsNamedAndItsThenIsPressed)
{
    const CCliFolder folder;
    folder.Write("plan.yaml",
                 "quorlin: 1\nplan: P\nsteps:\n  - step: long\n    page: Continuous RX\n"
                 "    press: [Start]\n    wait: {time: 1h}\n    then: [Stop]\n"
                 "  - step: rest\n    page: RSSI\n    press: [Start]\n");
    const SCliRun run =
        folder.Shell("VOND_SIM_JOURNAL=j.jsonl timeout --foreground --preserve-status -s INT 2 "
                     "$QUORLIN run plan.yaml --profile handset --out out");
    EXPECT_EQ(run.exitCode, 130) << run.out << run.err;
    EXPECT_NE(run.err.find("ended by SIGINT (Ctrl-C) during the step \"long\""), std::string::npos)
        << run.err;
    EXPECT_EQ(Verdicts(folder, "out"), (QStringList{"error", "not run"}));
    int stops = 0;
    for (const SJournalEntry &entry : JournalEntries(folder.Path("j.jsonl")))
        stops += entry.function == "VOND_MMRf_TestStopV7_r";
    EXPECT_EQ(stops, 2);  // the button and RF Off
}

TEST(EndSignalTest, aSecondSignalEndsAtOnceAndSaysThatRfMayBeOn)
{
    const CCliFolder folder;
    folder.Write("lost.json", R"({"name": "slow", "base": "handset", "faults": [
        {"function": "VOND_MMRf_TestStopV7_r", "kind": "delay", "ms": 8000}]})");
    folder.Write("plan.yaml",
                 "quorlin: 1\nplan: P\nsteps:\n  - step: long\n    page: Continuous RX\n"
                 "    press: [Start]\n    wait: {time: 1h}\n    then: [Stop]\n");
    const SCliRun run =
        folder.Shell("$QUORLIN run plan.yaml --profile lost.json --out out & P=$!\n"
                     "until [ -s out/results.csv ]; do sleep 0.05; done; sleep 0.5\n"
                     "kill -TERM $P; sleep 0.5; kill -TERM $P; wait $P");
    EXPECT_EQ(run.exitCode, 143) << run.out << run.err;
    EXPECT_NE(run.err.find("RF MAY BE ON"), std::string::npos) << run.err;
}
