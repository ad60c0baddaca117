// A DUT that is lost in the middle of a plan: the step is named, the rest does not run, exit 4.
#include <gtest/gtest.h>

#include "tests/runner/run/RunFiles.h"

namespace {

constexpr char kThreeSteps[] = R"(quorlin: 1
plan: Three steps
steps:
  - step: gains
    page: RSSI
    press: [Start]
  - step: link
    page: RSRP Normal Mode
    set: {request.group1.band: n78, dlFrequency: 3500010}
    press: [Start]
    then: [Stop]
    timeout: 2s
  - step: receiver
    page: Continuous RX
    press: [Start]
    then: [Stop]
)";

// The handset, lost from the moment when the link is to start.
std::string LostProfile(const std::string &fault)
{
    std::string faults;
    for (const char *function : {"VOND_NRf_RsrpV7_r", "VOND_NRf_TestStop_r"})
        faults += (faults.empty() ? "" : ", ") +
                  ("{\"function\": \"" + std::string(function) + "\", " + fault + "}");
    return R"({"name": "lost", "base": "handset", "faults": [)" + faults + "]}";
}

// isSilent: the DUT does not confirm that RF is off.
void ExpectLost(const std::string &fault, bool isSilent)
{
    const CCliFolder folder;
    folder.Write("plan.yaml", kThreeSteps);
    folder.Write("lost.json", LostProfile(fault));
    const SCliRun run = folder.Run("run plan.yaml --profile lost.json --out out");
    EXPECT_EQ(run.exitCode, 4) << run.out << run.err;
    EXPECT_EQ(Verdicts(folder, "out").join(", ").toStdString(), "pass, error, not run");
    EXPECT_NE(run.err.find("the step \"link\" could not be carried out"), std::string::npos)
        << run.err;
    EXPECT_EQ(run.err.find("RF MAY BE ON") != std::string::npos, isSilent) << run.err;
    ExpectWholeReports(folder, "out", 3);
}

}  // namespace

TEST(LostDutTest, unplugged)
{
    ExpectLost(R"("kind": "fail", "result": 4)", true);
}

TEST(LostDutTest, hangsUntilTheTimeout)
{
    ExpectLost(R"("kind": "delay", "ms": 30000)", true);
}

TEST(LostDutTest, answersNoise)
{
    ExpectLost(R"("kind": "noise", "seed": 1)", false);
}
