// What the allow list excuses, and what it does not.
#include "tools/modelcheck/AllowList.h"

#include <gtest/gtest.h>

#include "tests/modelcheck/PageFiles.h"

namespace {

constexpr char kReason[] = " cycle for the test\n";

TFindings OneFinding()
{
    return {{"folder/A.json", "cmdIf.request", EKind::Cycle, "text"}};
}

QStringList Applied(const QString &listText, TFindings findings,
                    const QStringList &withoutForms = {})
{
    const SAllowList list = ReadAllowList(listText);
    EXPECT_EQ(list.error, QString()) << qPrintable(list.error);
    ApplyAllowList(list, "allowed.txt", {{"folder/A.json", "A.ui"}, withoutForms}, findings);
    return Lines(findings);
}

TEST(AllowList, ExcusesTheFindingOfItsFileNamePathAndKind)
{
    EXPECT_EQ(Applied(QString("A.json cmdIf.request") + kReason, OneFinding()), QStringList());
}

TEST(AllowList, LeavesOtherFindingsStanding)
{
    TFindings findings = OneFinding();
    findings.push_back({"folder/A.json", "cmdIf.response", EKind::Cycle, "text"});
    findings.push_back({"folder/A.json", "cmdIf.request", EKind::DataType, "text"});
    findings.push_back({"B.json", "cmdIf.request", EKind::Cycle, "text"});
    EXPECT_EQ(Applied(QString("A.json cmdIf.request") + kReason, findings),
              QStringList({"folder/A.json: cmdIf.response: text [cycle]",
                           "folder/A.json: cmdIf.request: text [data-type]",
                           "B.json: cmdIf.request: text [cycle]"}));
}

TEST(AllowList, ReportsALineThatExcusesNothing)
{
    EXPECT_EQ(Applied("# comment\n\nA.json cmdIf.request cycle for the test\n", {}),
              QStringList({"allowed.txt: cmdIf.request: allowed breach does not occur "
                           "(line 3: A.json, cycle) [stale-allow]"}));
}

TEST(AllowList, LetsLinesOfUncheckedFilesRest)
{
    EXPECT_EQ(Applied(QString("C.json cmdIf.request") + kReason, {}), QStringList());
}

// Nothing was said of widgets, so nothing is known about such a line.
TEST(AllowList, LetsLinesAboutWidgetsRestWhenTheFormWasNotChecked)
{
    const QString lines = "A.json cmdIf.request member-without-widget for the test\n"
                          "A.json cmdIf.response cycle for the test\n";
    EXPECT_EQ(Applied(lines, {}, {"folder/A.json"}),
              QStringList({"allowed.txt: cmdIf.response: allowed breach does not occur "
                           "(line 2: A.json, cycle) [stale-allow]"}));
    EXPECT_EQ(Applied(lines, {}).size(), 2);
}

TEST(AllowList, TakesAPathWithABlankInQuotes)
{
    const TFindings findings{{"A.json", "valuePair[25 RB.]", EKind::KeyPoint, "text"}};
    EXPECT_EQ(Applied("A.json \"valuePair[25 RB.]\" key-point for the test\n", findings),
              QStringList());
}

struct SBadList
{
    const char *text;
    const char *error;
};

TEST(AllowList, NamesTheLineThatIsNoBreach)
{
    constexpr SBadList kLists[] = {
        {"A.json cmdIf cycle\n", "line 1: a line is: file-name path kind reason"},
        {"\nA.json cmdIf circle why\n", "line 2: unknown kind \"circle\""},
        {"A.json cmdIf stale-allow why\n", "line 1: unknown kind \"stale-allow\""},
        {"A.json cmdIf cycle why\nA.json cmdIf cycle other\n", "line 2: repeats line 1"},
    };
    for (const SBadList &bad : kLists)
        EXPECT_EQ(ReadAllowList(bad.text).error.toStdString(), bad.error) << bad.text;
}

}  // namespace
