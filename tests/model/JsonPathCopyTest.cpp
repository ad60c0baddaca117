// Documents share their data until one is written: a write must never show through to a copy, and
// must hold in a document of any size.
#include "Model/JsonPath.h"

#include <gtest/gtest.h>

#include <QJsonDocument>

namespace {

constexpr int kGroups = 400;
constexpr int kMembers = 50;

QString MemberPath(int group, int member)
{
    return QString("cmdIf.request.group%1.memberProperty.m%2.trait.defaultValue")
        .arg(group)
        .arg(member);
}

QJsonObject LargeDocument()
{
    QJsonObject groups;
    for (int g = 0; g < kGroups; ++g) {
        QJsonObject members;
        for (int m = 0; m < kMembers; ++m)
            members.insert(
                QString("m%1").arg(m),
                QJsonObject{{"caption", QString("Member %1").arg(m)},
                            {"trait", QJsonObject{{"defaultValue", QString::number(m)}}}});
        groups.insert(QString("group%1").arg(g), QJsonObject{{"memberProperty", members}});
    }
    return {{"cmdIf", QJsonObject{{"request", groups}}}};
}

QByteArray Text(const QJsonObject &document)
{
    return QJsonDocument(document).toJson(QJsonDocument::Compact);
}

TEST(JsonPathCopy, DeepWriteLeavesACopyOfTheDocumentAlone)
{
    QJsonObject document = LargeDocument();
    const QByteArray before = Text(document);
    const QJsonObject copy = document;
    ASSERT_TRUE(ModifyJsonValue(document, MemberPath(3, 7), "changed", 0));
    EXPECT_EQ(GetJsonValueConst(copy, MemberPath(3, 7)), QJsonValue("7"));
    EXPECT_EQ(Text(copy), before);
    EXPECT_NE(Text(document), before);
}

TEST(JsonPathCopy, WriteIntoTheCopyLeavesTheOriginalAlone)
{
    const QJsonObject document = LargeDocument();
    QJsonObject copy = document;
    ASSERT_TRUE(ModifyJsonValue(copy, MemberPath(3, 7), "changed", 0));
    EXPECT_EQ(GetJsonValueConst(document, MemberPath(3, 7)), QJsonValue("7"));
}

TEST(JsonPathCopy, WriteLeavesASubObjectThatWasReadBeforeAlone)
{
    QJsonObject document = LargeDocument();
    const QJsonObject group = GetJsonValueConst(document, "cmdIf.request.group3").toObject();
    const QJsonObject trait =
        GetJsonValueConst(document, "cmdIf.request.group3.memberProperty.m7.trait").toObject();
    ASSERT_TRUE(ModifyJsonValue(document, MemberPath(3, 7), "changed", 0));
    EXPECT_EQ(GetJsonValueConst(group, "memberProperty.m7.trait.defaultValue"), QJsonValue("7"));
    EXPECT_EQ(trait.value("defaultValue"), QJsonValue("7"));
}

TEST(JsonPathCopy, InsertAndRemoveLeaveACopyAlone)
{
    QJsonObject document = LargeDocument();
    const QByteArray before = Text(document);
    const QJsonObject copy = document;
    ASSERT_TRUE(InsertJsonObject(document, "cmdIf.request.group5", "memberValue", "m1", "x"));
    ASSERT_TRUE(RemoveJsonValue(document, "cmdIf.request.group5.memberProperty", "m2"));
    EXPECT_EQ(Text(copy), before);
}

TEST(JsonPathCopy, FailedWriteAtAnyDepthLeavesDocumentAndCopyAlone)
{
    QJsonObject document = LargeDocument();
    const QByteArray before = Text(document);
    const QJsonObject copy = document;
    const QStringList segments = MemberPath(3, 7).split('.');
    for (int depth = 0; depth < segments.size(); ++depth) {
        QStringList broken = segments;
        broken[depth] = "missing";
        EXPECT_FALSE(ModifyJsonValue(document, broken.join('.'), 1, 0)) << depth;
        EXPECT_FALSE(InsertJsonObject(document, broken.join('.'), "k", "s", 1)) << depth;
    }
    EXPECT_EQ(Text(document), before);
    EXPECT_EQ(Text(copy), before);
}

TEST(JsonPathCopy, EveryMemberOfALargeDocumentCanBeWritten)
{
    QJsonObject document = LargeDocument();
    for (int g = 0; g < kGroups; ++g)
        ASSERT_TRUE(ModifyJsonValue(document, MemberPath(g, g % kMembers), "changed", 0)) << g;
    int changed = 0;
    for (int g = 0; g < kGroups; ++g) {
        for (int m = 0; m < kMembers; ++m)
            changed += GetJsonValueConst(document, MemberPath(g, m)) == QJsonValue("changed");
    }
    EXPECT_EQ(changed, kGroups);
    for (int g = 0; g < kGroups; ++g)
        ModifyJsonValue(document, MemberPath(g, g % kMembers), QString::number(g % kMembers), 0);
    EXPECT_EQ(Text(document), Text(LargeDocument()));
}

TEST(JsonPathCopy, LongTextsAndDeepPathsSurviveAWrite)
{
    QString path = "k";
    QJsonValue value = QString(100000, 'x');
    for (int depth = 0; depth < 200; ++depth) {
        value = QJsonObject{{"k", value}, {"sibling", depth}};
        path += ".k";
    }
    QJsonObject document{{"k", value}};
    ASSERT_TRUE(ModifyJsonValue(document, path, QString(200000, 'y'), 0));
    EXPECT_EQ(GetJsonValueConst(document, path).toString().size(), 200000);
    EXPECT_EQ(GetJsonValueConst(document, "k.sibling"), QJsonValue(199));
    EXPECT_EQ(GetJsonValueConst(document, path.chopped(1) + "sibling"), QJsonValue(0));
}

}  // namespace
