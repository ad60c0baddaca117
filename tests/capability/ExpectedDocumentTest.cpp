// Each page's document as a whole, on two DUTs, against the expected ones of this folder.
//
// The expected documents are derived from the DUT's and 3GPP's tables apart from the updater
// (expected/make_expected.py). A difference is told by its path.
#include <QFile>
#include <QJsonDocument>

#include "Controller/NrDataModelCapUpdater.h"
#include "Controller/PageTable.h"
#include "Model/ModelResources.h"
#include "tests/operations/TargetFixture.h"

namespace {

QJsonObject ReadObject(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    QJsonParseError error;
    const QJsonObject object = QJsonDocument::fromJson(file.readAll(), &error).object();
    EXPECT_EQ(error.error, QJsonParseError::NoError) << qPrintable(error.errorString());
    return object;
}

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

struct SCase
{
    const char *name;
    const char *profile;
    const char *folder;
};

const SCase kDuts[] = {
    {"handset", "handset", CAPABILITY_TESTS "/expected/"},
    {"odd", CAPABILITY_TESTS "/profiles/odd.json", CAPABILITY_TESTS "/expected/odd/"},
};

class ExpectedDocument : public CTargetTest,
                         public ::testing::WithParamInterface<std::tuple<SCase, EPageId>>
{
};

TEST_P(ExpectedDocument, IsWhatTheDriverMakesOfTheResource)
{
    InitModelResources();
    const auto &[dut, id] = GetParam();
    const SPageRow &page = FindPage(id);
    Plug(dut.profile);
    CNrDataModelCapUpdater updater;
    updater.ResetCapabilityCache();
    QJsonObject document = ReadObject(page.resource);
    const bool done = (updater.*page.driver)(document);

    const QString name = QString(page.resource).mid(2);
    const QJsonObject expected = ReadObject(dut.folder + name);
    QStringList differences;
    Compare(document, expected, QString(), differences);
    EXPECT_TRUE(differences.isEmpty()) << differences.size() << "\n"
                                       << qPrintable(differences.mid(0, 20).join('\n'));
    EXPECT_EQ(done, !expected.contains("modelIntegrity"));
}

INSTANTIATE_TEST_SUITE_P(
    Pages, ExpectedDocument,
    ::testing::Combine(::testing::ValuesIn(kDuts),
                       ::testing::Values(EPageId::Rssi, EPageId::ContRx, EPageId::RxPathLoss,
                                         EPageId::RsrpForce, EPageId::RsrpNormal,
                                         EPageId::SingleToneTx, EPageId::PuschTxForce,
                                         EPageId::PuschTxNormal, EPageId::AptProfile)),
    [](const auto &info) {
        const QString name = PageName(std::get<1>(info.param));
        return std::string(std::get<0>(info.param).name) + "_" +
               QString(name).remove(' ').toStdString();
    });

}  // namespace
