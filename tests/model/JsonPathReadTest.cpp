// Reads by dotted path.
#include "Model/JsonPath.h"

#include <gtest/gtest.h>

namespace {

QJsonObject Document()
{
    return {{"name", "Cont RX"},
            {"version", 1},
            {"nothing", QJsonValue()},
            {"cmdIf", QJsonObject{{"request", QJsonObject{{"band", "n78"}, {"flag", false}}}}},
            {"list", QJsonArray{"a", "b"}},
            {"a.b", "behind a key with a point"},
            {"count", "42"},
            {"hex", "0x10"}};
}

TEST(JsonPathRead, FindsAValueAtTheRoot)
{
    QJsonObject document = Document();
    EXPECT_EQ(GetJsonValue(document, "name"), QJsonValue("Cont RX"));
    EXPECT_EQ(GetJsonValueConst(document, "name"), QJsonValue("Cont RX"));
}

TEST(JsonPathRead, FindsAValueDeepInTheDocument)
{
    QJsonObject document = Document();
    EXPECT_EQ(GetJsonValue(document, "cmdIf.request.band"), QJsonValue("n78"));
    EXPECT_EQ(GetJsonValueConst(document, "cmdIf.request.band"), QJsonValue("n78"));
}

TEST(JsonPathRead, GivesAWholeObject)
{
    const QJsonValue request = GetJsonValueConst(Document(), "cmdIf.request");
    EXPECT_EQ(request.toObject().size(), 2);
}

TEST(JsonPathRead, EmptyPathIsMissing)
{
    const QJsonObject document = Document();
    EXPECT_TRUE(GetJsonValueConst(document, "").isUndefined());
    EXPECT_TRUE(GetJsonValueConst(document, QString()).isUndefined());
    EXPECT_FALSE(HasJsonValue(document, ""));
    EXPECT_FALSE(HasJsonValue(document, QString()));
    QJsonObject own = document;
    EXPECT_FALSE(IsJsonValueValid(GetJsonValue(own, "")));
}

TEST(JsonPathRead, EmptyPathIsTheEmptyKey)
{
    EXPECT_EQ(GetJsonValueConst(QJsonObject{{"", 7}}, ""), QJsonValue(7));
}

TEST(JsonPathRead, ValueThatIsNoObjectHasNothingBehindIt)
{
    const QJsonObject document = Document();
    for (const char *path : {"name.further", "version.further", "list.further", "list.0",
                             "nothing.further", "name.further.still"}) {
        EXPECT_TRUE(GetJsonValueConst(document, path).isUndefined()) << path;
        EXPECT_FALSE(HasJsonValue(document, path)) << path;
        QJsonObject own = document;
        EXPECT_FALSE(IsJsonValueValid(GetJsonValue(own, path))) << path;
    }
}

TEST(JsonPathRead, KeyWithAPointCannotBeAddressed)
{
    QJsonObject document = Document();
    EXPECT_FALSE(HasJsonValue(document, "a.b"));
    EXPECT_TRUE(GetJsonValueConst(document, "a.b").isUndefined());
    EXPECT_FALSE(ModifyJsonValue(document, "a.b", "changed", 0));
    EXPECT_EQ(document.value("a.b"), QJsonValue("behind a key with a point"));
}

TEST(JsonPathRead, PointInFrontLeavesTheEmptyKeyAlone)
{
    EXPECT_FALSE(HasJsonValue(Document(), ".name"));
    EXPECT_EQ(GetJsonValueConst(QJsonObject{{"", "empty"}, {"name", "x"}}, ".name"),
              QJsonValue("empty"));
}

TEST(JsonPathRead, PointBehindNamesTheValueInFrontOfIt)
{
    EXPECT_EQ(GetJsonValueConst(Document(), "cmdIf.request.band."), QJsonValue("n78"));
    EXPECT_TRUE(HasJsonValue(Document(), "name."));
}

TEST(JsonPathRead, NullCountsAsMissing)
{
    EXPECT_TRUE(Document().contains("nothing"));
    EXPECT_FALSE(HasJsonValue(Document(), "nothing"));
    EXPECT_FALSE(IsJsonValueValid(QJsonValue(QJsonValue::Null)));
    EXPECT_FALSE(IsJsonValueValid(QJsonValue(QJsonValue::Undefined)));
}

TEST(JsonPathRead, FalseZeroAndEmptyTextAreValues)
{
    const QJsonObject document{{"flag", false}, {"number", 0}, {"text", ""}};
    for (const char *path : {"flag", "number", "text"})
        EXPECT_TRUE(HasJsonValue(document, path)) << path;
    EXPECT_TRUE(HasJsonValue(Document(), "cmdIf.request.flag"));
}

TEST(JsonPathRead, MissAtTheRootLeavesANullEntryThatStillCountsAsMissing)
{
    QJsonObject document = Document();
    EXPECT_FALSE(IsJsonValueValid(GetJsonValue(document, "modelIntegrity.integrity")));
    EXPECT_TRUE(document.contains("modelIntegrity"));
    EXPECT_TRUE(document.value("modelIntegrity").isNull());
    EXPECT_FALSE(HasJsonValue(document, "modelIntegrity"));
}

TEST(JsonPathRead, MissFurtherDownLeavesTheDocumentAsItWas)
{
    QJsonObject document = Document();
    EXPECT_FALSE(IsJsonValueValid(GetJsonValue(document, "cmdIf.response.band")));
    EXPECT_EQ(document, Document());
}

TEST(JsonPathRead, ConstReadAndTestNeverTouchTheDocument)
{
    const QJsonObject document = Document();
    GetJsonValueConst(document, "modelIntegrity");
    HasJsonValue(document, "emptyModel");
    EXPECT_EQ(document, Document());
}

TEST(JsonPathRead, IntegerIsReadFromDecimalTextAlone)
{
    QJsonObject document = Document();
    EXPECT_EQ(GetJsonIntFromString(document, "count"), 42);
    EXPECT_EQ(GetJsonIntFromString(document, "version"), 0);  // a number is no text
    EXPECT_EQ(GetJsonIntFromString(document, "name"), 0);
    EXPECT_EQ(GetJsonIntFromString(document, "hex"), 0);
    EXPECT_EQ(GetJsonIntFromString(document, "not.there"), 0);
}

TEST(JsonPathRead, ArraySearchIsExactAndTakesTheFirst)
{
    const QJsonArray array{"n1", "N78", "n78", 78, "n78"};
    EXPECT_EQ(FindStringInJsonArray(array, "n78"), 2);
    EXPECT_EQ(FindStringInJsonArray(array, "N78"), 1);
    EXPECT_EQ(FindStringInJsonArray(array, "n7"), -1);
    EXPECT_EQ(FindStringInJsonArray(array, "78"), -1);
    EXPECT_EQ(FindStringInJsonArray({}, "n78"), -1);
}

TEST(JsonPathRead, ArraySearchFindsNoEmptyTextInOtherValues)
{
    EXPECT_EQ(FindStringInJsonArray({1, QJsonValue(), QJsonObject()}, ""), -1);
    EXPECT_EQ(FindStringInJsonArray({1, ""}, ""), 1);
}

TEST(JsonPathRead, RelativePathGetsItsInterfaceWord)
{
    const QString path = "request.group1.memberProperty.band";
    EXPECT_EQ(AbsoluteModelPath(path, true), "cmdIf." + path);
    EXPECT_EQ(AbsoluteModelPath("data.group4.memberProperty.freq", false),
              QString("calDataIf.data.group4.memberProperty.freq"));
    EXPECT_EQ(AbsoluteModelPath("a%1b", true), QString("cmdIf.a%1b"));
}

}  // namespace
