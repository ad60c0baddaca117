// Objects of texts and lists of texts are those that insertion makes, printed and compared.
#include "Controller/capability/TextTable.h"

#include <random>

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>

namespace {

QByteArray Printed(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

QString AnyText(std::mt19937 &random, int most)
{
    static const QString kLetters = QStringLiteral("abAB19,. \"\\/\b\n\t\u0001\u007F\u00E9\u20AC") +
                                    QString::fromUcs4(U"\U0001F4E1");
    QString text;
    for (auto i = random() % static_cast<unsigned>(most); i > 0; --i)
        text +=
            kLetters.mid(static_cast<int>(random() % static_cast<unsigned>(kLetters.size())), 1);
    return QString::fromUtf8(text.toUtf8());  // no half of a pair of surrogates
}

}  // namespace

TEST(TextTable, EachColumnIsAnObjectWithTheSameKeys)
{
    CTextTable table(2);
    table.Put("1,BW0", QString("7"), QStringList{"1", "2"});
    table.Put("0,BW1", QString(), QStringList());
    EXPECT_EQ(Printed(table.ToObject(0)), R"({"0,BW1":"","1,BW0":"7"})");
    EXPECT_EQ(Printed(table.ToObject(1)), R"({"0,BW1":[],"1,BW0":["1","2"]})");
}

TEST(TextTable, NoEntriesAreAnEmptyObject)
{
    EXPECT_TRUE(CTextTable().ToObject().isEmpty());
}

TEST(TextTable, LastValueOfAKeyCountsAlsoBehindALook)
{
    CTextTable table;
    table.Put("b", QString("1"));
    table.Put("a", QString("2"));
    table.Put("b", QString("3"));
    EXPECT_EQ(Printed(table.ToObject()), R"({"a":"2","b":"3"})");
    table.Put("a", QString("4"));
    EXPECT_EQ(Printed(table.ToObject()), R"({"a":"4","b":"3"})");
}

TEST(TextTable, BytesOfTheDutAreLatin1)
{
    CTextTable table;
    table.Put("port", std::string_view("A\xE9\"\\"));
    EXPECT_EQ(table.ToObject().value("port").toString(), QString::fromLatin1("A\xE9\"\\"));
}

TEST(TextTable, AnyEntriesGiveTheObjectOfInsertion)
{
    std::mt19937 random(6);
    for (int round = 0; round < 500; ++round) {
        CTextTable table(2);
        QJsonObject texts;
        QJsonObject lists;
        for (auto entry = random() % 60; entry > 0; --entry) {
            const QString key = AnyText(random, 4);
            const QString text = AnyText(random, 12);
            const QStringList list{AnyText(random, 6), AnyText(random, 6)};
            table.Put(key, text, list);
            texts.insert(key, text);
            lists.insert(key, QJsonArray::fromStringList(list));
        }
        ASSERT_EQ(table.ToObject(0), texts);
        ASSERT_EQ(table.ToObject(1), lists);
        ASSERT_EQ(Printed(table.ToObject(0)), Printed(texts));
        ASSERT_EQ(Printed(table.ToObject(1)), Printed(lists));
    }
}
