#include "Runner/plan/PlanReader.h"

#include <gtest/gtest.h>

#include "Runner/plan/Numbers.h"
#include "Runner/plan/SettingsFile.h"

namespace {

constexpr char kWholePlan[] = R"(quorlin: 1
plan: Receiver of n78
transmit: {max_dbm: 10}
define: {hours: 1}
steps:
  - step: gains
    page: RSSI
    settings: rssi.json
    sweep: {band: [n77, n41], powerMode: [HPM, LPM]}
    set: {routeType: Type2, numFreq: 2, "request.group2.dlFrequency[0]": 3500010}
    press: [Calculate, Start]
    expect:
      status: Fetch RSSI done
      "response.group2.rssiMain[0]": {min: -75, max: -60}
  - step: hour
    page: RSRP Normal Mode
    press: [Start]
    wait: {time: "${hours}h"}
    then: [Stop]
    timeout: 5s
    expect:
      RSRP0: {of: mean, min: -95, minus: txPowerValue}
      box: Cont Rx start failed
      mode: {value: 3}
    export: loss.ini
)";

SPlan Read(const std::string &text, DefineMap defined = {})
{
    CPlanErrors errors;
    CDefines defines(std::move(defined));
    const std::optional<SPlan> plan = ReadPlanText("plan", text, defines, errors);
    EXPECT_EQ(errors.Texts(), std::vector<std::string>());
    return plan.value_or(SPlan());
}

std::vector<std::string> Values(const std::vector<SPlanSetting> &settings)
{
    std::vector<std::string> texts;
    for (const SPlanSetting &setting : settings)
        texts.push_back(setting.key.text + "=" + setting.value.text);
    return texts;
}

}  // namespace

TEST(PlanReaderTest, aWholePlanIsReadWithPlaces)
{
    const SPlan plan = Read(kWholePlan);
    ASSERT_EQ(plan.steps.size(), 2u);
    EXPECT_EQ(plan.name.text, "Receiver of n78");
    EXPECT_EQ(plan.maxDbm, 10);
    const SPlanStep &gains = plan.steps[0];
    EXPECT_EQ(gains.name.place.line, 6);
    EXPECT_EQ(gains.settings->text, "rssi.json");
    EXPECT_EQ(Values(gains.set),
              (std::vector<std::string>{"routeType=Type2", "numFreq=2",
                                        "request.group2.dlFrequency[0]=3500010"}));
    EXPECT_EQ(gains.set[2].value.place.column, 74);
    EXPECT_EQ(gains.press.size(), 2u);
    EXPECT_EQ(gains.status->text, "Fetch RSSI done");
    EXPECT_EQ(gains.expect[0].key.text, "response.group2.rssiMain[0]");
    EXPECT_EQ(gains.expect[0].min, -75);
    const SPlanStep &hour = plan.steps[1];
    EXPECT_EQ(hour.wait->time, std::chrono::hours(1));
    EXPECT_EQ(hour.timeout, std::chrono::seconds(5));
    EXPECT_EQ(hour.expect[0].of, EOf::Mean);
    EXPECT_EQ(hour.expect[0].minus->text, "txPowerValue");
    EXPECT_EQ(hour.expect[1].value, "3");
    EXPECT_EQ(hour.boxes[0].text, "Cont Rx start failed");
    EXPECT_EQ(hour.exportFile->text, "loss.ini");
}

TEST(PlanReaderTest, blanksAroundATextAreNotOfIt)
{
    EXPECT_EQ(
        Read("quorlin: 1\nplan: \" \\tmy plan \\n\"\nsteps: [{step: a, page: RSSI}]\n").name.text,
        "my plan");
}

TEST(PlanReaderTest, jsonIsReadToo)
{
    const SPlan plan = Read(R"({"quorlin": 1, "plan": "P", "steps": [{"step": "a",
        "page": "RSSI", "press": ["Start"]}]})");
    EXPECT_EQ(plan.steps[0].press[0].text, "Start");
    EXPECT_FALSE(plan.maxDbm.has_value());
}

TEST(PlanReaderTest, theLastKeyOfASweepIsTheFastest)
{
    const SPlan plan = Read(kWholePlan);
    const SPlanStep &step = plan.steps[0];
    ASSERT_EQ(CombinationCount(step), 4u);
    EXPECT_EQ(Values(Combination(step, 0)),
              (std::vector<std::string>{"band=n77", "powerMode=HPM"}));
    EXPECT_EQ(Values(Combination(step, 1)),
              (std::vector<std::string>{"band=n77", "powerMode=LPM"}));
    EXPECT_EQ(Values(Combination(step, 2)),
              (std::vector<std::string>{"band=n41", "powerMode=HPM"}));
    EXPECT_EQ(CombinationCount(plan.steps[1]), 1u);
    EXPECT_TRUE(Combination(plan.steps[1], 0).empty());
}

TEST(PlanReaderTest, aDefineOfTheCommandLineIsInFrontOfThePlansOwn)
{
    EXPECT_EQ(Read(kWholePlan, {{"hours", "0.01"}}).steps[1].wait->time, std::chrono::seconds(36));
}

TEST(PlanReaderTest, aDefineNeverChangesTheShapeOfAPlan)
{
    const SPlan plan = Read("quorlin: 1\nplan: ${name}\nsteps: [{step: a, page: RSSI}]\n",
                            {{"name", "x, steps: [] ${name}"}});
    EXPECT_EQ(plan.name.text, "x, steps: [] ${name}");
    EXPECT_EQ(plan.steps.size(), 1u);
}

TEST(PlanReaderTest, aDefineThatNoPlanHasIsTold)
{
    CDefines defines({{"hours", "1"}, {"power", "2"}});
    CPlanErrors errors;
    ReadPlanText("plan", kWholePlan, defines, errors);
    EXPECT_EQ(defines.Unused(), std::vector<std::string>{"power"});
}

TEST(DefinesTest, aNameIsOfLettersDigitsAndLinesAndBeginsWithNoDigit)
{
    for (const char *name : {"a", "z", "A", "Z", "_", "ma", "mz", "mA", "mZ", "m0", "m9", "m_"})
        EXPECT_TRUE(IsDefineName(name)) << name;
    for (const char *name : {"", "0", "9", "m`", "m{", "m@", "m[", "m/", "m:", "m-", "m\xe4"})
        EXPECT_FALSE(IsDefineName(name)) << name;
}

TEST(DefinesTest, aTextWithItsValuesHasAtMost4096Characters)
{
    const std::string plan = "quorlin: 1\nplan: ${name}\nsteps: [{step: a, page: RSSI}]\n";
    EXPECT_EQ(Read(plan, {{"name", std::string(4096, 'x')}}).name.text.size(), 4096u);
    CPlanErrors errors;
    CDefines defines({{"name", std::string(4097, 'x')}});
    ReadPlanText("plan", plan, defines, errors);
    ASSERT_EQ(errors.Texts().size(), 1u);
    EXPECT_NE(errors.Texts()[0].find("too long"), std::string::npos) << errors.Texts()[0];
}

TEST(DefinesTest, valuesStandAnywhereInATextAndTheRestStays)
{
    const std::string plan = "quorlin: 1\nplan: of ${a}, ${bc} and ${a}!\n"
                             "steps: [{step: a, page: RSSI}]\n";
    EXPECT_EQ(Read(plan, {{"a", "one"}, {"bc", "two"}}).name.text, "of one, two and one!");
}

TEST(PlanErrorsTest, whatIsNoCharacterIsToldAsAQuestionMark)
{
    CPlanErrors errors;
    CDefines defines({});
    ReadPlanText("plan",
                 "quorlin: 1\nplan: P\n\"a\\x1f \\x7f~\": 1\nsteps: [{step: a, page: RSSI}]\n",
                 defines, errors);
    ASSERT_EQ(errors.Texts().size(), 1u);
    EXPECT_NE(errors.Texts()[0].find("\"a? ?~\""), std::string::npos) << errors.Texts()[0];
}

TEST(NumbersTest, aRangeIsExactInItsOwnDecimals)
{
    std::string error;
    EXPECT_EQ(ExpandRange("0", "1", "0.25", error),
              (std::vector<std::string>{"0.00", "0.25", "0.50", "0.75", "1.00"}));
    EXPECT_EQ(ExpandRange("0.1", "0.35", "0.1", error),
              (std::vector<std::string>{"0.1", "0.2", "0.3"}));
    EXPECT_EQ(ExpandRange("1", "-1", "-1", error), (std::vector<std::string>{"1", "0", "-1"}));
    EXPECT_EQ(ExpandRange("-0.05", "0", "0.05", error),
              (std::vector<std::string>{"-0.05", "0.00"}));
    EXPECT_EQ(ExpandRange("5", "5", "1", error), std::vector<std::string>{"5"});
    EXPECT_EQ(ExpandRange("0", "9999", "1", error)->size(), kMostSweepValues);
    EXPECT_FALSE(ExpandRange("0", "10000", "1", error));
    EXPECT_FALSE(ExpandRange("-999999999999999", "999999999999999", "0.00000000000001", error));
    EXPECT_FALSE(ExpandRange("1e3", "2", "1", error));
}

TEST(NumbersTest, durationsHaveAUnit)
{
    using std::chrono::milliseconds;
    EXPECT_EQ(ParseDuration("500ms"), milliseconds(500));
    EXPECT_EQ(ParseDuration("30s"), milliseconds(30000));
    EXPECT_EQ(ParseDuration("1.5h"), milliseconds(5400000));
    EXPECT_EQ(ParseDuration("2 min"), milliseconds(120000));
    for (const char *text : {"", "s", "30", "-1s", "1d", "nan s", "1e99h", "inf h", "501h"})
        EXPECT_FALSE(ParseDuration(text)) << text;
}

TEST(SettingsFileTest, packagedValuesBecomeSettings)
{
    CPlanErrors errors;
    const auto file = ReadSettingsText("rssi.json", R"({"version": 1, "page": "RSSI",
        "request": {"group1": {"band": "n78"}, "group2": {"dlFrequency": ["1", "2"]}}})",
                                       errors);
    ASSERT_TRUE(file.has_value());
    EXPECT_EQ(file->page.text, "RSSI");
    EXPECT_EQ(
        Values(file->settings),
        (std::vector<std::string>{"request.group1.band=n78", "request.group2.dlFrequency[0]=1",
                                  "request.group2.dlFrequency[1]=2"}));
}

TEST(SettingsFileTest, errorsNameTheirPlace)
{
    CPlanErrors errors;
    EXPECT_FALSE(ReadSettingsText("s.json",
                                  "{\"version\": 2,\n \"page\": \"RSSI\",\n"
                                  " \"request\": {\"group1\": [\"n78\"]},\n \"more\": 1}",
                                  errors));
    EXPECT_EQ(
        errors.Texts(),
        (std::vector<std::string>{
            "s.json:1:13: the file's version is \"2\" (allowed: 1)",
            "s.json:3:24: \"request.group1\" is a list (allowed: a map)",
            "s.json:4:2: a settings file has no key \"more\" (allowed: page, version, tool, chip, "
            "request, config, data)"}));
}

TEST(SettingsFileTest, anEmptyFileHasAPlaceToo)
{
    CPlanErrors errors;
    EXPECT_FALSE(ReadSettingsText("s.json", "", errors));
    EXPECT_EQ(errors.Texts(),
              std::vector<std::string>{
                  "s.json:1:1: a settings file is empty (allowed: a map of keys and values)"});
}
