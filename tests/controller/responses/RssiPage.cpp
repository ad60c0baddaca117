#include "tests/controller/responses/RssiPage.h"

#include <gtest/gtest.h>

#include <QJsonArray>

#include "Model/JsonPath.h"

QJsonObject RssiDocument(const char *calType)
{
    QJsonObject document = PackagedPage("NrRssiV7");
    Put(document, "cmdIf.request.group1", {{"calType", calType}});
    return document;
}

QString Place(const QString &member)
{
    const int point = member.indexOf('.');
    return QString("cmdIf.response.%1.memberProperty.%2.trait.defaultValue")
        .arg(member.left(point), member.mid(point + 1));
}

Shown AllShown(const QJsonObject &document)
{
    Shown shown;
    for (const QString group : {"group1", "group2", "group3"}) {
        const QJsonArray members =
            GetJsonValueConst(document, "cmdIf.response." + group + ".memberList").toArray();
        for (const QJsonValue &member : members) {
            const QString name = group + '.' + member.toString();
            shown[name.toStdString()] = TextAt(document, Place(name));
        }
    }
    return shown;
}

void ExpectShown(const QJsonObject &before, const QJsonObject &after, const TextMap &changes)
{
    QJsonObject expected = before;
    for (auto change = changes.begin(); change != changes.end(); ++change) {
        const QString text = change.value();
        const QJsonValue value =
            text.startsWith('[')
                ? QJsonArray::fromStringList(text.mid(1, text.size() - 2).split(", "))
                : QJsonValue(text);
        EXPECT_TRUE(ModifyJsonValue(expected, Place(change.key()), value, 0));
    }
    EXPECT_EQ(AllShown(after), AllShown(expected));
    EXPECT_TRUE(after == expected);
}
