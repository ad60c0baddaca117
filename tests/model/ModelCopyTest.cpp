// Copies that share nothing, and documents on their way.
#include "Model/ModelCopy.h"

#include <gtest/gtest.h>

#include <QJsonArray>

#include "Model/HandedDocument.h"

namespace {

const QJsonObject kDocument{
    {"text", QString::fromUtf8("\xc2\xb5 \"quoted\"\n")},
    {"empty", ""},
    {"number", 1.5},
    {"flag", true},
    {"nothing", QJsonValue()},
    {"list", QJsonArray{"a", QJsonArray{1, "b"}, QJsonObject{{"c", "d"}}}},
    {"object", QJsonObject{{"inner", QJsonObject{{"deep", "value"}}}, {"none", QJsonObject()}}}};

TEST(ModelCopy, IsTheSameDocument)
{
    EXPECT_EQ(CopyModel(kDocument), kDocument);
    EXPECT_EQ(ModelToText(CopyModel(kDocument)), ModelToText(kDocument));
    EXPECT_TRUE(CopyModel({}).isEmpty());
}

TEST(ModelCopy, WriteToOneLeavesTheOther)
{
    QJsonObject document = kDocument;
    const QJsonObject copy = CopyModel(document);
    document["text"] = "other";
    document["object"] = QJsonObject();
    EXPECT_EQ(copy, kDocument);
}

TEST(HandedDocument, ObjectIsTakenAsItIs)
{
    CHandedDocument handed(kDocument);
    const SModelTextCount before = ModelTextCountInAll();
    EXPECT_EQ(handed.Take(), kDocument);
    EXPECT_EQ(ModelTextCountInAll().parsed, before.parsed);
    EXPECT_EQ(ModelTextCountInAll().printed, before.printed);
}

TEST(HandedDocument, TextIsParsedWhereItIsTaken)
{
    CHandedDocument handed(ModelToText(kDocument));
    const SModelTextCount before = ModelTextCountHere();
    EXPECT_EQ(handed.Take(), kDocument);
    EXPECT_EQ(ModelTextCountHere().parsed, before.parsed + 1);
}

TEST(HandedDocument, NothingIsLeftBehind)
{
    CHandedDocument handed(kDocument);
    handed.Take();
    EXPECT_TRUE(handed.Take().isEmpty());
    EXPECT_TRUE(CHandedDocument().Take().isEmpty());
}

}  // namespace
