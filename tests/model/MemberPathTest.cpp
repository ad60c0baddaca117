// Names of widgets and the paths that they stand for.
#include "Model/MemberPath.h"

#include <gtest/gtest.h>

#include "Model/JsonPath.h"

namespace {

constexpr char kBand[] = "cmdIf.request.group1.memberProperty.band";

TEST(MemberPath, NameMapsToAPathByItsUnderlines)
{
    EXPECT_EQ(PathFromObjectName("cmdIf_request_group1_memberProperty_band"), QString(kBand));
    EXPECT_EQ(PathFromObjectName("cmdIf_request_group1_memberProperty_band_caption"),
              QString(kBand) + ".caption");
}

TEST(MemberPath, BoundNamesHoldAnInterfaceWord)
{
    EXPECT_TRUE(IsBoundName("cmdIf_request_group1_memberProperty_band"));
    EXPECT_TRUE(IsBoundName("calDataIf_data_group4_memberProperty_freq"));
    for (const char *name : {"groupBox_12", "label_main", "cmdIf", "calDataIf", ""})
        EXPECT_FALSE(IsBoundName(name)) << name;
}

TEST(MemberPath, CaptionNamesHoldTheWordAnywhere)
{
    EXPECT_TRUE(IsCaptionName("cmdIf_request_group1_memberProperty_band_caption"));
    EXPECT_TRUE(IsCaptionName("caption_of_something"));
    EXPECT_FALSE(IsCaptionName("cmdIf_request_group1_memberProperty_band"));
}

TEST(MemberPath, MisspeltCaptionIsNoCaptionAndNamesNothing)
{
    const QString name = "cmdIf_request_group3_memberProperty_portP0_cpation";
    EXPECT_FALSE(IsCaptionName(name));
    EXPECT_TRUE(IsBoundName(name));
    const QJsonObject portP0{{"caption", "Port"}, {"trait", QJsonObject{{"dataType", "label"}}}};
    const QJsonObject group{{"memberProperty", QJsonObject{{"portP0", portP0}}}};
    const QJsonObject document{{"cmdIf", QJsonObject{{"request", QJsonObject{{"group3", group}}}}}};
    EXPECT_FALSE(HasJsonValue(document, PathFromObjectName(name)));
}

TEST(MemberPath, ResultNamesLieInResponseAndData)
{
    EXPECT_TRUE(IsResultName("cmdIf_response_group1_memberProperty_RSRP0"));
    EXPECT_TRUE(IsResultName("calDataIf_data_group4_memberProperty_freq"));
    EXPECT_FALSE(IsResultName("cmdIf_request_group1_memberProperty_band"));
    EXPECT_FALSE(IsResultName("calDataIf_config_group1_memberProperty_band"));
}

TEST(MemberPath, GroupLiesInFrontOfMemberProperty)
{
    EXPECT_EQ(GroupPrefix(kBand), QString("cmdIf.request.group1."));
    EXPECT_EQ(GroupPath(kBand), QString("cmdIf.request.group1"));
    EXPECT_EQ(GroupPropertyPath(kBand), QString("cmdIf.request.group1.memberProperty"));
    EXPECT_EQ(GroupValuePath(kBand), QString("cmdIf.request.group1.memberValue"));
}

TEST(MemberPath, PathWithoutAGroupHasAnEmptyOne)
{
    EXPECT_EQ(GroupPrefix("cmdIf.request.group1"), QString());
    EXPECT_EQ(GroupPath("cmdIf.request.group1"), QString());
    EXPECT_EQ(GroupPrefix(""), QString());
}

TEST(MemberPath, MemberKeyLiesBehindTheLastPoint)
{
    EXPECT_EQ(MemberKey(kBand), QString("band"));
    EXPECT_EQ(MemberKey("band"), QString("band"));
    EXPECT_EQ(MemberKey(""), QString());
}

TEST(MemberPath, ParentLosesTheLastSegment)
{
    EXPECT_EQ(ParentPath(kBand), QString("cmdIf.request.group1.memberProperty"));
    EXPECT_EQ(ParentPath("band"), QString());
    EXPECT_EQ(ParentPath(""), QString());
}

}  // namespace
