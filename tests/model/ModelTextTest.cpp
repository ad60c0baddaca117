// Documents as text, and the types that travel through queued signals.
#include "Model/ModelText.h"

#include <gtest/gtest.h>

#include <QJsonArray>

#include "Model/OperationResult.h"

namespace {

TEST(ModelText, DocumentComesBackAsItWas)
{
    const QJsonObject document{{"modelName", "PUSCH  TX  Normal Mode"},
                               {"modelVersion", 1},
                               {"list", QJsonArray{"a", 1.5, true, QJsonValue()}},
                               {"text", QString::fromUtf8("\xc2\xb5 \"quoted\"\n")}};
    EXPECT_EQ(ModelFromText(ModelToText(document)), document);
}

TEST(ModelText, TextIsCompact)
{
    EXPECT_EQ(ModelToText({{"a", QJsonObject{{"b", 1}}}}), "{\"a\":{\"b\":1}}");
    EXPECT_EQ(ModelToText({}), "{}");
}

TEST(ModelText, TextThatDoesNotParseGivesAnEmptyDocument)
{
    for (const char *text : {"", "{", "{\"a\":1", "nonsense", "[1,2]", "\"text\"", "null", "{}x"})
        EXPECT_TRUE(ModelFromText(text).isEmpty()) << text;
}

TEST(ModelText, TextMayHoldAZeroByte)
{
    EXPECT_TRUE(ModelFromText(std::string("\0{}", 3)).isEmpty());
}

TEST(OperationResult, FreshResultIsASuccessOfNothing)
{
    const SEachItemOperationResult result;
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(result.itemName.isEmpty());
    EXPECT_TRUE(result.message.isEmpty());
}

TEST(OperationResult, TypesAreKnownByTheNamesOfQueuedSignals)
{
    RegisterOperationResultTypes();
    for (const char *name :
         {"SEachItemOperationResult", "QVector<SEachItemOperationResult>", "std::string"})
        EXPECT_NE(QMetaType::type(name), QMetaType::UnknownType) << name;
}

}  // namespace
