// Writes by dotted path, and what a failed one leaves behind.
#include "Model/JsonPath.h"

#include <gtest/gtest.h>

namespace {

QJsonObject Document()
{
    const QJsonObject band{{"caption", "Band"}, {"trait", QJsonObject{{"defaultValue", "n1"}}}};
    const QJsonObject group{{"groupType", 1}, {"memberProperty", QJsonObject{{"band", band}}}};
    return {{"modelName", "Cont RX"},
            {"cmdIf", QJsonObject{{"request", QJsonObject{{"group1", group}}}}},
            {"hole", QJsonValue()}};
}

constexpr char kDefault[] = "cmdIf.request.group1.memberProperty.band.trait.defaultValue";
constexpr char kGroup[] = "cmdIf.request.group1";

TEST(JsonPathWrite, ReplacesAValueAtTheRoot)
{
    QJsonObject document = Document();
    EXPECT_TRUE(ModifyJsonValue(document, "modelName", "RSSI", 0));
    EXPECT_EQ(document.value("modelName"), QJsonValue("RSSI"));
}

TEST(JsonPathWrite, ReplacesADeepValueAndNothingElse)
{
    QJsonObject document = Document();
    EXPECT_TRUE(ModifyJsonValue(document, kDefault, "n78", 0));
    EXPECT_EQ(GetJsonValueConst(document, kDefault), QJsonValue("n78"));
    EXPECT_TRUE(ModifyJsonValue(document, kDefault, "n1", 0));
    EXPECT_EQ(document, Document());
}

TEST(JsonPathWrite, ReplacesAValueOfAnotherType)
{
    QJsonObject document = Document();
    EXPECT_TRUE(ModifyJsonValue(document, kDefault, QJsonArray{1, 2}, 0));
    EXPECT_EQ(GetJsonValueConst(document, kDefault).toArray().size(), 2);
    EXPECT_TRUE(ModifyJsonValue(document, "cmdIf", "flat", 0));
    EXPECT_EQ(document.value("cmdIf"), QJsonValue("flat"));
}

TEST(JsonPathWrite, ValueMayBeTheDocumentItself)
{
    QJsonObject document = Document();
    EXPECT_TRUE(ModifyJsonValue(document, kDefault, QJsonValue(document), 0));
    EXPECT_EQ(GetJsonValueConst(document, kDefault).toObject(), Document());
}

TEST(JsonPathWrite, MissingKeyIsNeverCreated)
{
    for (const char *path :
         {"", "nowhere", "cmdIf.nowhere", "cmdIf.request.group2.groupType",
          "cmdIf.request.group1.memberProperty.band.trait.value", "modelName.deeper",
          "cmdIf.request.group1.memberProperty.band.trait.defaultValue.deeper",
          "modelName.a.b.c"}) {
        QJsonObject document = Document();
        EXPECT_FALSE(ModifyJsonValue(document, path, 1, 0)) << path;
        EXPECT_EQ(document, Document()) << path;
    }
}

TEST(JsonPathWrite, NullValueCannotBeModified)
{
    QJsonObject document = Document();
    EXPECT_FALSE(ModifyJsonValue(document, "hole", 1, 0));
    EXPECT_TRUE(document.value("hole").isNull());
}

TEST(JsonPathWrite, ValueBecomesNullAndThenCountsAsMissing)
{
    QJsonObject document = Document();
    EXPECT_TRUE(ModifyJsonValue(document, kDefault, QJsonValue(), 0));
    EXPECT_FALSE(HasJsonValue(document, kDefault));
    EXPECT_FALSE(ModifyJsonValue(document, kDefault, "n1", 0));
}

TEST(JsonPathWrite, InsertCreatesTheKeyWithItsSubKeyAlone)
{
    QJsonObject document = Document();
    EXPECT_TRUE(InsertJsonObject(document, kGroup, "memberValue", "band", "n78"));
    EXPECT_EQ(GetJsonValueConst(document, QString(kGroup) + ".memberValue"),
              QJsonValue(QJsonObject{{"band", "n78"}}));
    EXPECT_EQ(GetJsonValueConst(document, kDefault), QJsonValue("n1"));
}

TEST(JsonPathWrite, InsertOnAnExistingKeyLosesItsOtherSubKeys)
{
    QJsonObject document = Document();
    EXPECT_TRUE(InsertJsonObject(document, kGroup, "memberValue", "band", "n78"));
    EXPECT_TRUE(InsertJsonObject(document, kGroup, "memberValue", "dlBw", "5M"));
    EXPECT_FALSE(HasJsonValue(document, QString(kGroup) + ".memberValue.band"));
    EXPECT_TRUE(HasJsonValue(document, QString(kGroup) + ".memberValue.dlBw"));
}

TEST(JsonPathWrite, InsertReplacesAKeyThatHeldNoObject)
{
    QJsonObject document = Document();
    EXPECT_TRUE(InsertJsonObject(document, kGroup, "groupType", "x", 1));
    EXPECT_TRUE(HasJsonValue(document, QString(kGroup) + ".groupType.x"));
}

TEST(JsonPathWrite, InsertAtAMissingPathChangesNothing)
{
    for (const char *path : {"", "nowhere", "cmdIf.request.group2", "hole"}) {
        QJsonObject document = Document();
        EXPECT_FALSE(InsertJsonObject(document, path, "memberValue", "band", "n1")) << path;
        EXPECT_EQ(document, Document()) << path;
    }
}

TEST(JsonPathWrite, RemoveTakesTheKeyOut)
{
    QJsonObject document = Document();
    EXPECT_TRUE(RemoveJsonValue(document, kGroup, "groupType"));
    EXPECT_FALSE(GetJsonValueConst(document, kGroup).toObject().contains("groupType"));
    EXPECT_TRUE(HasJsonValue(document, kDefault));
}

TEST(JsonPathWrite, RemoveOfWhatIsNotThereChangesNothing)
{
    QJsonObject document = Document();
    EXPECT_FALSE(RemoveJsonValue(document, kGroup, "memberValue"));
    EXPECT_FALSE(RemoveJsonValue(document, "cmdIf.response", "group1"));
    EXPECT_FALSE(RemoveJsonValue(document, "hole", "x"));
    EXPECT_FALSE(RemoveJsonValue(document, "", "modelName"));
    EXPECT_EQ(document, Document());
}

TEST(JsonPathWrite, RemoveCountsANullAsNotThere)
{
    QJsonObject document{{"parent", QJsonObject{{"hole", QJsonValue()}, {"x", 1}}}};
    EXPECT_FALSE(RemoveJsonValue(document, "parent", "hole"));
}

}  // namespace
