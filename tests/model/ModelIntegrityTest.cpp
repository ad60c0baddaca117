// The record of failed patches inside a document.
#include "Model/ModelIntegrity.h"

#include <gtest/gtest.h>

#include <QJsonArray>

#include "Model/JsonPath.h"
#include "Model/ModelLog.h"
#include "Model/ModelText.h"
#include "tests/common/LogCapture.h"

namespace {

QJsonObject Record(const QJsonObject &document)
{
    return document.value("modelIntegrity").toObject();
}

QJsonObject Expected(bool integrity, const QJsonArray &messages)
{
    return {{"integrity", integrity}, {"messageList", messages}};
}

TEST(ModelIntegrity, InsertStartsARecordWithOneMessage)
{
    QJsonObject document{{"modelName", "Cont RX"}};
    InsertModelUpdateResult(document, false, "Update band failed");
    EXPECT_EQ(Record(document), Expected(false, {"Update band failed"}));
    EXPECT_EQ(document.value("modelName"), QJsonValue("Cont RX"));
}

TEST(ModelIntegrity, InsertForgetsAnEarlierRecord)
{
    QJsonObject document;
    InsertModelUpdateResult(document, false, "first");
    AddModelUpdateResult(document, false, "second");
    InsertModelUpdateResult(document, true, "third");
    EXPECT_EQ(Record(document), Expected(true, {"third"}));
}

TEST(ModelIntegrity, AddToADocumentWithoutARecordStartsOne)
{
    QJsonObject document;
    AddModelUpdateResult(document, true, "fine");
    EXPECT_EQ(Record(document), Expected(true, {"fine"}));
}

TEST(ModelIntegrity, StrayNullEntryCountsAsNoRecord)
{
    QJsonObject document;
    GetJsonValue(document, "modelIntegrity");  // leaves a Null entry
    AddModelUpdateResult(document, false, "first");
    EXPECT_EQ(Record(document), Expected(false, {"first"}));
}

TEST(ModelIntegrity, EveryMessageLandsInTheListInOrder)
{
    QJsonObject document;
    AddModelUpdateResult(document, true, "one");
    AddModelUpdateResult(document, true, "");
    AddModelUpdateResult(document, false, "three");
    AddModelUpdateResult(document, false, "three");
    EXPECT_EQ(Record(document), Expected(false, {"one", "", "three", "three"}));
}

TEST(ModelIntegrity, GoodStepsLeaveAGoodRecordGood)
{
    QJsonObject document;
    AddModelUpdateResult(document, true, "one");
    AddModelUpdateResult(document, true, "two");
    EXPECT_EQ(Record(document), Expected(true, {"one", "two"}));
}

TEST(ModelIntegrity, OneFailureMarksTheDocumentForGood)
{
    QJsonObject document;
    AddModelUpdateResult(document, false, "bad");
    AddModelUpdateResult(document, true, "good");
    EXPECT_EQ(Record(document), Expected(false, {"bad", "good"}));
}

TEST(ModelIntegrity, ManyMessagesAreKept)
{
    QJsonObject document;
    for (int i = 0; i < 1000; ++i)
        AddModelUpdateResult(document, i != 500, QString::number(i));
    const QJsonArray messages = Record(document).value("messageList").toArray();
    ASSERT_EQ(messages.size(), 1000);
    EXPECT_EQ(messages[999], QJsonValue("999"));
    EXPECT_EQ(Record(document).value("integrity"), QJsonValue(false));
}

TEST(ModelIntegrity, RecordInOneDocumentLeavesItsCopyAlone)
{
    QJsonObject document;
    InsertModelUpdateResult(document, true, "fine");
    const QJsonObject copy = document;
    AddModelUpdateResult(document, false, "bad");
    EXPECT_EQ(Record(copy), Expected(true, {"fine"}));
}

TEST(ModelIntegrity, EmptyModelIsAFailedRecordAndNothingElse)
{
    const std::string text = BuildEmptyModel("No data");
    EXPECT_EQ(ModelFromText(text),
              (QJsonObject{{"emptyModel", ""}, {"modelIntegrity", Expected(false, {"No data"})}}));
    EXPECT_EQ(text.find('\n'), std::string::npos);
}

TEST(ModelIntegrity, ReportsAreLogged)
{
    QJsonObject document;
    const LogCapture log(lcModel());
    InsertModelUpdateResult(document, true, "fine");
    EXPECT_EQ(
        log.Lines(QtDebugMsg),
        QStringList({"======> InsertModelUpdateResult",
                     "======> InsertModelUpdateResult allCorrect:  true", "errorMes:  \"fine\""}));
    InsertModelUpdateResult(document, true, "again");
    EXPECT_TRUE(log.Holds(QtDebugMsg, "======> Has defined the modelIntegrity: remove it!"));
    AddModelUpdateResult(document, false, "bad");
    EXPECT_EQ(
        log.Lines(QtDebugMsg).mid(7),
        QStringList({"AddModelUpdateResult", "======> AddModelUpdateResult allCorrect:  false",
                     "errorMes:  \"bad\""}));
}

}  // namespace
