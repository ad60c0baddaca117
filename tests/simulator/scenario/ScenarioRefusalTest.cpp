// A broken scenario is refused in words that name the place, and changes nothing.

#include "tests/simulator/SimulatorFixture.h"
#include "tests/simulator/steer/SteerText.h"

namespace {

struct SBroken
{
    const char *name;
    const char *text;
    const char *reason;  // how it begins
};

const SBroken kBroken[] = {
    {"NoObject", "[]", "is not an object"},
    {"NoJson", "{", "[json.exception.parse_error"},
    {"NoName", R"({"steps": []})", "name: is missing"},
    {"NoSteps", R"({"name": "x"})", "steps: is missing"},
    {"OtherKey", R"({"name": "x", "steps": [], "step": 1})", "step: is an unknown key"},
    {"NegativeSeed", R"({"name": "x", "seed": -1, "steps": []})",
     "seed: -1 is not within 0 to 4294967295"},
    {"StepOfNothing", R"({"name": "x", "steps": [{}]})",
     "steps[0]: needs one of \"fault\", \"radio\" and \"plugged\""},
    {"StepOfTwo", R"({"name": "x", "steps": [{"plugged": true, "radio": {}}]})",
     "steps[0]: needs one of \"fault\", \"radio\" and \"plugged\""},
    {"OtherKeyOfAStep", R"({"name": "x", "steps": [{"plugged": true, "on": 1}]})",
     "steps[0].on: is an unknown key"},
    {"UnknownFunction",
     R"({"name": "x", "steps": [{"plugged": true, "when": {"function": "F", "call": 1}}]})",
     "steps[0].when.function: \"F\" is an unknown function"},
    {"NoCondition", R"({"name": "x", "steps": [{"plugged": true, "when": {"function": "*"}}]})",
     "steps[0].when: needs one of \"call\", \"every\" and \"probability\""},
    {"TwoConditions",
     R"({"name": "x", "steps": [{"plugged": true, "when": {"function": "*", "call": 1, "every": 2}}]})",
     "steps[0].when: needs one of \"call\", \"every\" and \"probability\""},
    {"CallZero",
     R"({"name": "x", "steps": [{"plugged": true, "when": {"function": "*", "call": 0}}]})",
     "steps[0].when.call: 0 is not within 1 to 4294967295"},
    {"ProbabilityAboveOne",
     R"({"name": "x", "steps": [{"plugged": true, "when": {"function": "*", "probability": 2}}]})",
     "steps[0].when.probability: 2 is out of limits"},
    {"BrokenFault", R"({"name": "x", "steps": [{"fault": {"function": "*", "kind": "fall"}}]})",
     "steps[0].fault.kind: \"fall\" is an unknown kind"},
    {"TwiceConditional",
     R"({"name": "x", "steps": [{"when": {"function": "*", "call": 1},
         "fault": {"function": "*", "kind": "fail", "nth": 2}}]})",
     "steps[0].fault: \"nth\" and \"probability\" cannot stand beside \"when\""},
    {"BrokenRadio", R"({"name": "x", "steps": [{"radio": {"levelDbm": {"n78": 99}}}]})",
     "steps[0].radio.levelDbm.n78: 99 is out of limits"},
    {"NoPlug", R"({"name": "x", "steps": [{"plugged": 1}]})",
     "steps[0].plugged: is neither true nor false"},
};

class ScenarioRefusalTest : public CSimulatorTest, public ::testing::WithParamInterface<SBroken>
{
};

TEST_P(ScenarioRefusalTest, IsRefusedInWordsAndChangesNothing)
{
    ASSERT_EQ(VondSim_SetScenario("weak-cell"), 0);
    const std::string before = TextOf(VondSim_GetRadioText);
    EXPECT_EQ(VondSim_SetScenarioText(GetParam().text), -1);
    const std::string reason = std::string("scenario text: ") + GetParam().reason;
    EXPECT_EQ(SimError().substr(0, reason.size()), reason);
    EXPECT_EQ(TextOf(VondSim_GetRadioText), before);
    EXPECT_EQ(TextOf(VondSim_GetScenarioText), VondSim_BuiltinScenarioText("weak-cell"));
}

INSTANTIATE_TEST_SUITE_P(Each, ScenarioRefusalTest, ::testing::ValuesIn(kBroken),
                         [](const auto &info) { return std::string(info.param.name); });

TEST_F(ScenarioRefusalTest, UnknownNameIsToldWithTheKnownOnes)
{
    EXPECT_EQ(VondSim_SetScenario("weak"), -1);
    EXPECT_EQ(SimError(),
              "weak: no such file, and none of the built-in scenarios weak-cell, cable-off, "
              "flaky-link, slow-dut, torn-flash, overheating-pa");
    EXPECT_EQ(VondSim_SetScenario("/tmp"), -1);
}

}  // namespace
