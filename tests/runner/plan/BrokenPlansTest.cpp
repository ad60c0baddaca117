// Broken plan files: each ends with the errors that it must give, one a comment line "#! line:column: what".
#include <filesystem>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include "Runner/plan/PlanReader.h"
#include "Runner/plan/YamlTree.h"

namespace {

const std::filesystem::path kBroken = BROKEN_PLANS;
constexpr char kMark[] = "#! ";

std::vector<std::string> BrokenPlans()
{
    std::vector<std::string> names;
    for (const auto &entry : std::filesystem::directory_iterator(kBroken))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

std::string FileText(const std::filesystem::path &path)
{
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

// Without the marks, one a line.
std::string ExpectedErrors(const std::string &text)
{
    std::istringstream lines(text);
    std::string expected;
    for (std::string line; std::getline(lines, line);)
        if (line.rfind(kMark, 0) == 0)
            expected += line.substr(sizeof kMark - 1) + '\n';
    return expected;
}

class BrokenPlansTest : public testing::TestWithParam<std::string>
{
};

}  // namespace

TEST_P(BrokenPlansTest, allErrorsAreToldWithTheirPlaces)
{
    const std::string text = FileText(kBroken / GetParam());
    CPlanErrors errors;
    CDefines defines({});
    EXPECT_FALSE(ReadPlanText("plan", text, defines, errors).has_value());
    std::string told;
    for (const SPlanError &error : errors.List())
        told += ErrorText(error).substr(sizeof "plan:" - 1) + '\n';
    EXPECT_EQ(told, ExpectedErrors(text));
}

INSTANTIATE_TEST_SUITE_P(Files, BrokenPlansTest, testing::ValuesIn(BrokenPlans()),
                         [](const testing::TestParamInfo<std::string> &info) {
                             std::string name = info.param;
                             for (char &c : name)
                                 c = std::isalnum(static_cast<unsigned char>(c)) ? c : '_';
                             return name;
                         });

TEST(HostilePlansTest, aPlanBeyondOneMebibyteIsRefused)
{
    CPlanErrors errors;
    CDefines defines({});
    std::string text = "quorlin: 1 # " + std::string(kMostBytes, 'x');
    EXPECT_FALSE(ReadPlanText("plan", text, defines, errors).has_value());
    EXPECT_EQ(errors.Texts(),
              std::vector<std::string>{"plan:1:1: the file is too large (allowed: 1 MiB at most)"});
}

TEST(HostilePlansTest, aPlanOfOneMebibyteIsRead)
{
    CPlanErrors errors;
    CDefines defines({});
    std::string text = "quorlin: 1\nplan: P\nsteps: [{step: a, page: RSSI}] # ";
    text.resize(kMostBytes, 'x');
    EXPECT_TRUE(ReadPlanText("plan", text, defines, errors).has_value());
    EXPECT_EQ(errors.Texts(), std::vector<std::string>());
}

TEST(HostilePlansTest, aMebibyteOfAnyBracketIsRefusedAtItsDepth)
{
    for (const char *piece :
         {"[", "{", "- ", "? ", "a: [", "[{", "\"", "&a ", "!t ", "*", "|", "%", "---\n"}) {
        std::string text;
        while (text.size() + 8 < kMostBytes)
            text += piece;
        CPlanErrors errors;
        CDefines defines({});
        EXPECT_FALSE(ReadPlanText("plan", text, defines, errors).has_value()) << piece;
        EXPECT_FALSE(errors.IsEmpty()) << piece;
    }
}

TEST(HostilePlansTest, manyErrorsAreCountedAndNotKept)
{
    std::string text = "quorlin: 1\nplan: P\nsteps:\n";
    for (int i = 0; i < 300; ++i)
        text += "  - x\n";
    CPlanErrors errors;
    CDefines defines({});
    EXPECT_FALSE(ReadPlanText("plan", text, defines, errors).has_value());
    EXPECT_EQ(errors.List().size(), CPlanErrors::kMostErrors);
    EXPECT_EQ(errors.Count(), 300u);
    EXPECT_EQ(errors.Texts().back(), "... and 200 more errors");
}

TEST(HostilePlansTest, aFileThatCannotBeReadIsNamed)
{
    CPlanErrors errors;
    CDefines defines({});
    EXPECT_FALSE(ReadPlan("/nowhere/plan.yaml", defines, errors).has_value());
    EXPECT_FALSE(ReadPlan("/", defines, errors).has_value());
    EXPECT_EQ(errors.Texts(), (std::vector<std::string>{
                                  "/nowhere/plan.yaml: can't be read: No such file or directory",
                                  "/: this is a folder (allowed: a file)"}));
}
