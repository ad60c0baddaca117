#include "tests/controller/capability/UpdaterFixture.h"

#include <QFile>
#include <QJsonDocument>

#include "Model/JsonPath.h"
#include "Model/ModelResources.h"

namespace {

constexpr int kMostDifferences = 20;

QString Text(const QJsonValue &value)
{
    return QString::fromUtf8(QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact));
}

void Compare(const QJsonValue &actual, const QJsonValue &expected, const QString &path,
             QStringList &differences)
{
    if (actual == expected)
        return;
    if (!actual.isObject() || !expected.isObject()) {
        differences.append(path + ": " + Text(actual) + " instead of " + Text(expected));
        return;
    }
    QStringList keys = actual.toObject().keys() + expected.toObject().keys();
    keys.removeDuplicates();
    for (const QString &key : qAsConst(keys))
        Compare(actual.toObject().value(key), expected.toObject().value(key), path + "/" + key,
                differences);
}

}  // namespace

void HideDocuments()
{
    Q_CLEANUP_RESOURCE(Model);
}

void CUpdaterTest::SetUp()
{
    CTargetTest::SetUp();
    InitModelResources();
    m_updater.ResetCapabilityCache();
}

void CUpdaterTest::PlugKeys(const std::string &keys)
{
    PlugHandsetWith(keys);
    m_updater.ResetCapabilityCache();
}

void CUpdaterTest::PlugBands(const std::string &bands)
{
    PlugKeys(R"("txRoutes": [], "rxType1Routes": [], "rxType2Routes": [], "txLimits": [],
        "rxLimits": [], "bands": )" +
             bands);
}

QJsonObject CUpdaterTest::Patched(EPageId id)
{
    QJsonObject document = TemplateOf(id);
    m_isDone = (m_updater.*FindPage(id).driver)(document);
    return document;
}

std::string PageLabel(EPageId id)
{
    return PageName(id).remove(' ').toStdString();
}

std::string CallLabel(const char *function)
{
    return QString(function).section('_', 1, -2).remove('_').toStdString();
}

QJsonObject ReadObject(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    QJsonParseError error;
    const QJsonObject object = QJsonDocument::fromJson(file.readAll(), &error).object();
    EXPECT_EQ(error.error, QJsonParseError::NoError) << qPrintable(error.errorString());
    return object;
}

QJsonObject TemplateOf(EPageId id)
{
    InitModelResources();
    return ReadObject(FindPage(id).resource);
}

QJsonObject ExpectedOf(EPageId id)
{
    return ReadObject(CAPABILITY_TESTS "/expected/" + QString(FindPage(id).resource).mid(2));
}

QJsonValue At(const QJsonObject &document, const QString &path)
{
    return GetJsonValueConst(document, path);
}

void Set(QJsonObject &document, const QString &path, const QJsonValue &value)
{
    EXPECT_TRUE(ModifyJsonValue(document, path, value, 0)) << qPrintable(path);
}

void Remove(QJsonObject &document, const QString &path)
{
    const int point = path.lastIndexOf('.');
    EXPECT_TRUE(RemoveJsonValue(document, path.left(point), path.mid(point + 1)))
        << qPrintable(path);
}

QStringList Messages(const QJsonObject &document)
{
    QStringList messages;
    const QJsonArray list = At(document, "modelIntegrity.messageList").toArray();
    for (const QJsonValue &message : list)
        messages.append(message.toString());
    return messages;
}

QJsonObject Failed(const QStringList &messages)
{
    return {{"integrity", false}, {"messageList", QJsonArray::fromStringList(messages)}};
}

std::string Differences(const QJsonValue &actual, const QJsonValue &expected)
{
    QStringList differences;
    Compare(actual, expected, QString(), differences);
    return differences.mid(0, kMostDifferences).join('\n').toStdString();
}

QJsonArray Names(const QStringList &names)
{
    return QJsonArray::fromStringList(names);
}
