// What failed writes leave on the log: the segment that names nothing, and once the whole path.
#include "Model/JsonPath.h"

#include <gtest/gtest.h>

#include "Model/ModelLog.h"
#include "tests/common/LogCapture.h"

namespace {

TEST(JsonPathLog, FailedModifyNamesTheMissingSegmentAndThenTheWholePath)
{
    QJsonObject document{{"cmdIf", QJsonObject{{"request", QJsonObject()}}}};
    const LogCapture log(lcModel());
    ModifyJsonValue(document, "cmdIf.request.group9.groupType", 1, 0);
    const QStringList lines = log.Lines(QtDebugMsg);
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines[0], QString("Error: modify non-existing property \"group9\""));
    EXPECT_EQ(lines[1], QString("path:  \"cmdIf.request.group9.groupType\""));
}

TEST(JsonPathLog, ModifyBelowTheTopLeavesThePathToItsCaller)
{
    QJsonObject document;
    const LogCapture log(lcModel());
    ModifyJsonValue(document, "group9", 1, 1);
    EXPECT_EQ(log.Lines(QtDebugMsg), QStringList("Error: modify non-existing property \"group9\""));
}

TEST(JsonPathLog, FailedInsertNamesTheMissingSegment)
{
    QJsonObject document{{"cmdIf", QJsonObject()}};
    const LogCapture log(lcModel());
    InsertJsonObject(document, "cmdIf.request", "memberValue", "band", "n1");
    EXPECT_EQ(log.Lines(QtDebugMsg), QStringList("modify non-existing property \"request\""));
}

TEST(JsonPathLog, FailedRemoveTellsWhatIsMissingWhere)
{
    QJsonObject document{{"cmdIf", QJsonObject{{"x", 1}}}};
    const LogCapture log(lcModel());
    RemoveJsonValue(document, "nowhere", "key");
    RemoveJsonValue(document, "cmdIf", "key");
    const QStringList lines = log.Lines(QtDebugMsg);
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines[0], QString("Error: modify non-existing property \"nowhere\""));
    EXPECT_EQ(lines[1], QString("Error: remove non-existing property \"key\" in \"cmdIf\""));
}

TEST(JsonPathLog, SuccessfulWritesAndAllReadsAreSilent)
{
    QJsonObject document{{"a", QJsonObject{{"b", 1}}}};
    const LogCapture log(lcModel());
    ModifyJsonValue(document, "a.b", 2, 0);
    InsertJsonObject(document, "a", "c", "d", 3);
    RemoveJsonValue(document, "a", "c");
    GetJsonValue(document, "x.y");
    HasJsonValue(document, "x.y");
    EXPECT_EQ(log.Lines(QtDebugMsg), QStringList());
}

}  // namespace
