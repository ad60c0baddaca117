// Position of a packaged value in its combo box's list.
#include "Model/ModelQuery.h"

#include <gtest/gtest.h>

#include <QJsonArray>

#include "Model/JsonPath.h"

namespace {

constexpr char kMode[] = "cmdIf.request.group1.memberValue.mode";

QJsonObject ListMember(const QJsonArray &items)
{
    return {{"trait", QJsonObject{{"dataType", "list"}, {"value", items}}}};
}

QJsonObject PairMember(const QString &publisher, const QJsonObject &pairs)
{
    return {{"subscribeValue", publisher},
            {"trait", QJsonObject{{"dataType", "list"}, {"valuePair", pairs}}}};
}

QJsonObject Document(int groupType, const QJsonObject &members, const QJsonObject &values,
                     const char *interfaceWord = "cmdIf", const char *section = "request")
{
    const QJsonObject group{
        {"groupType", groupType}, {"memberProperty", members}, {"memberValue", values}};
    return {{interfaceWord, QJsonObject{{section, QJsonObject{{"group1", group}}}}}};
}

TEST(ModelQuery, ValueIsFoundInTheMembersOwnList)
{
    const QJsonObject members{{"mode", ListMember({"LPM", "HPM", "AUTO"})}};
    EXPECT_EQ(GetUiIndexByMemberValue(Document(1, members, {{"mode", "LPM"}}), kMode), 0);
    EXPECT_EQ(GetUiIndexByMemberValue(Document(1, members, {{"mode", "AUTO"}}), kMode), 2);
}

TEST(ModelQuery, ValueThatIsNotInTheListGivesMinusOne)
{
    const QJsonObject members{{"mode", ListMember({"LPM", "HPM"})}};
    EXPECT_EQ(GetUiIndexByMemberValue(Document(1, members, {{"mode", "lpm"}}), kMode), -1);
    EXPECT_EQ(GetUiIndexByMemberValue(Document(1, members, {}), kMode), -1);
}

TEST(ModelQuery, SubscriberLooksInTheListOfItsPublishersValue)
{
    const QJsonObject members{
        {"band", ListMember({"n1", "n78"})},
        {"mode", PairMember("request.group1.memberProperty.band",
                            {{"n1", QJsonArray{"5M"}}, {"n78", QJsonArray{"10M", "5M"}}})}};
    EXPECT_EQ(
        GetUiIndexByMemberValue(Document(1, members, {{"band", "n1"}, {"mode", "5M"}}), kMode), 0);
    EXPECT_EQ(
        GetUiIndexByMemberValue(Document(1, members, {{"band", "n78"}, {"mode", "5M"}}), kMode), 1);
}

TEST(ModelQuery, PublisherWithoutAnEntryGivesMinusOne)
{
    const QJsonObject members{
        {"mode", PairMember("request.group1.memberProperty.band", {{"n1", QJsonArray{"5M"}}})}};
    EXPECT_EQ(
        GetUiIndexByMemberValue(Document(1, members, {{"band", "n41"}, {"mode", "5M"}}), kMode),
        -1);
    EXPECT_EQ(GetUiIndexByMemberValue(Document(1, members, {{"mode", "5M"}}), kMode), -1);
}

TEST(ModelQuery, PublisherOfACalibrationDocumentIsFoundUnderItsOwnInterface)
{
    const QJsonObject members{
        {"mode", PairMember("config.group1.memberProperty.band", {{"n3", QJsonArray{"a", "b"}}})}};
    const QJsonObject document =
        Document(1, members, {{"band", "n3"}, {"mode", "b"}}, "calDataIf", "config");
    EXPECT_EQ(GetUiIndexByMemberValue(document, "calDataIf.config.group1.memberValue.mode"), 1);
}

TEST(ModelQuery, SubscriberOfSeveralPublishersGivesMinusOne)
{
    QJsonObject member = PairMember("", {{"n1,Type1", QJsonArray{"1"}}});
    member.remove("subscribeValue");
    member.insert("subscribeValueList", QJsonArray{"request.group1.memberProperty.band",
                                                   "request.group1.memberProperty.routeType"});
    const QJsonObject document =
        Document(1, {{"mode", member}}, {{"band", "n1"}, {"routeType", "Type1"}, {"mode", "1"}});
    EXPECT_EQ(GetUiIndexByMemberValue(document, kMode), -1);
}

TEST(ModelQuery, MemberThatIsNoListGivesMinusOne)
{
    const QJsonObject range{
        {"trait", QJsonObject{{"dataType", "range"}, {"value", QJsonArray{"5"}}}}};
    EXPECT_EQ(GetUiIndexByMemberValue(Document(1, {{"mode", range}}, {{"mode", "5"}}), kMode), -1);
}

TEST(ModelQuery, UnknownMemberOrMemberWithoutTraitGivesMinusOne)
{
    EXPECT_EQ(GetUiIndexByMemberValue(Document(1, {}, {{"mode", "5"}}), kMode), -1);
    const QJsonObject bare{{"caption", "Mode"}};
    EXPECT_EQ(GetUiIndexByMemberValue(Document(1, {{"mode", bare}}, {{"mode", "5"}}), kMode), -1);
    EXPECT_EQ(GetUiIndexByMemberValue({}, kMode), -1);
    EXPECT_EQ(GetUiIndexByMemberValue({}, ""), -1);
}

TEST(ModelQuery, TableMemberIsNamedByThePathWithoutItsLastSegment)
{
    const QJsonObject members{{"mode", ListMember({"a", "b"})}};
    for (int groupType : {2, 3}) {
        const QJsonObject document = Document(groupType, members, {{"mode", "b"}});
        EXPECT_EQ(GetUiIndexByMemberValue(document, QString(kMode) + ".0"), 1) << groupType;
    }
}

TEST(ModelQuery, QuestionLeavesTheDocumentAlone)
{
    const QJsonObject members{{"mode", ListMember({"LPM"})}};
    const QJsonObject document = Document(1, members, {{"mode", "LPM"}});
    const QJsonObject before = document;
    GetUiIndexByMemberValue(document, kMode);
    GetUiIndexByMemberValue(document, "elsewhere.memberValue.x");
    EXPECT_EQ(document, before);
}

}  // namespace
