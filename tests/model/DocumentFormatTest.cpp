// What a document may look like and still be read, and the resource of the continuous RX page.
#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include "Model/JsonPath.h"
#include "Model/ModelQuery.h"
#include "Model/ModelResources.h"

namespace {

constexpr char kGroup[] = "cmdIf.request.group1";

QJsonObject ContRxDocument()
{
    InitModelResources();
    QFile file(":/NrContRxV7.json");
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QJsonDocument::fromJson(file.readAll()).object();
}

QString PropertyPath(const QString &member)
{
    return QString(kGroup) + ".memberProperty." + member;
}

// The document with the given values packaged.
QJsonObject Packaged(const QJsonObject &values)
{
    QJsonObject document = ContRxDocument();
    for (const QString &key : values.keys()) {
        if (HasJsonValue(document, QString(kGroup) + ".memberValue")) {
            QJsonObject all =
                GetJsonValueConst(document, QString(kGroup) + ".memberValue").toObject();
            all.insert(key, values.value(key));
            ModifyJsonValue(document, QString(kGroup) + ".memberValue", all, 0);
        } else {
            InsertJsonObject(document, kGroup, "memberValue", key, values.value(key));
        }
    }
    return document;
}

TEST(DocumentFormat, ContRxDocumentHasTheRootThatPagesRelyOn)
{
    const QJsonObject document = ContRxDocument();
    EXPECT_EQ(document.value("modelName"), QJsonValue("Cont RX"));
    EXPECT_EQ(document.value("modelVersion"), QJsonValue(1));
    EXPECT_TRUE(document.value("cmdIf").isObject());
    EXPECT_FALSE(document.contains("calDataIf"));
    EXPECT_FALSE(document.contains("modelIntegrity"));
}

TEST(DocumentFormat, EveryListedMemberHasItsObject)
{
    const QJsonObject document = ContRxDocument();
    const QJsonArray members =
        GetJsonValueConst(document, QString(kGroup) + ".memberList").toArray();
    EXPECT_EQ(members.size(), 15);
    for (const QJsonValue &member : members)
        EXPECT_TRUE(GetJsonValueConst(document, PropertyPath(member.toString())).isObject())
            << qPrintable(member.toString());
}

TEST(DocumentFormat, PublishersAndSubscribersNameEachOther)
{
    const QJsonObject document = ContRxDocument();
    const QJsonObject members =
        GetJsonValueConst(document, QString(kGroup) + ".memberProperty").toObject();
    for (const QString &key : members.keys()) {
        const QJsonObject member = members.value(key).toObject();
        QJsonArray publishers = member.value("subscribeValueList").toArray();
        if (member.contains("subscribeValue"))
            publishers.append(member.value("subscribeValue"));
        for (const QJsonValue &publisher : publishers) {
            const QString path = AbsoluteModelPath(publisher.toString(), true);
            const QJsonArray published =
                GetJsonValueConst(document, path + ".publishValueList").toArray();
            EXPECT_NE(FindStringInJsonArray(published, "request.group1.memberProperty." + key), -1)
                << qPrintable(key) << " at " << qPrintable(path);
        }
    }
}

TEST(DocumentFormat, DefaultThatIsNotAmongTheItemsIsValidInput)
{
    QJsonObject document = Packaged({{"band", "1"}});
    EXPECT_TRUE(ModifyJsonValue(document, PropertyPath("band.trait.defaultValue"), "1", 0));
    EXPECT_EQ(GetUiIndexByMemberValue(document, QString(kGroup) + ".memberValue.band"), -1);
}

TEST(DocumentFormat, SubscriptionKeyWithoutAnEntryIsValidInput)
{
    const QJsonObject document = Packaged({{"band", "n41"}, {"dlBw", "5M"}});
    EXPECT_FALSE(HasJsonValue(document, PropertyPath("dlBw.trait.valuePair.n41")));
    EXPECT_EQ(GetUiIndexByMemberValue(document, QString(kGroup) + ".memberValue.dlBw"), -1);
}

TEST(DocumentFormat, KeyOfSeveralPublishersIsAddressedWithItsComma)
{
    EXPECT_TRUE(HasJsonValue(ContRxDocument(), PropertyPath("rxRoute.trait.valuePair.n1,Type1")));
}

TEST(DocumentFormat, KeyWithABlankIsAddressedAsItIs)
{
    EXPECT_EQ(
        GetJsonValueConst(ContRxDocument(), PropertyPath("calType.trait.enableStatusPair.Type2")),
        QJsonValue(1));
    EXPECT_EQ(
        GetJsonValueConst(ContRxDocument(),
                          PropertyPath("path0MainRfGain.trait.enableStatusPair.Partial-On Path1")),
        QJsonValue(0));
}

TEST(DocumentFormat, ColumnDefaultThatIsNoArrayReadsAsAnEmptyOne)
{
    for (const char *text : {"NA", "1950000"}) {
        const QJsonObject document{{"trait", QJsonObject{{"defaultValue", text}}}};
        EXPECT_TRUE(GetJsonValueConst(document, "trait.defaultValue").toArray().isEmpty()) << text;
        EXPECT_TRUE(HasJsonValue(document, "trait.defaultValue")) << text;
    }
}

TEST(DocumentFormat, NumberAsDefaultReadsAsAnEmptyTextAndSoAsZero)
{
    QJsonObject document{{"trait", QJsonObject{{"defaultValue", 5}}}};
    EXPECT_EQ(GetJsonValueConst(document, "trait.defaultValue").toString(), QString());
    EXPECT_EQ(GetJsonIntFromString(document, "trait.defaultValue"), 0);
}

TEST(DocumentFormat, EmptyCaptionIsACaption)
{
    QJsonObject document = ContRxDocument();
    ASSERT_TRUE(ModifyJsonValue(document, PropertyPath("band.caption"), "", 0));
    EXPECT_TRUE(HasJsonValue(document, PropertyPath("band.caption")));
    EXPECT_EQ(GetJsonValueConst(document, PropertyPath("band.caption")).toString(), QString());
    EXPECT_TRUE(ModifyJsonValue(document, PropertyPath("band.caption"), "Band", 0));
}

}  // namespace
