// The nine page documents that the library carries: each is there, under its name, for its kind of
// page. What stands in them is checked by modelcheck.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include "Model/ModelResources.h"

namespace {

struct SPageDocument
{
    const char *resource;
    const char *modelName;  // blanks and spelling as they stand
    const char *interface;
};

constexpr SPageDocument kDocuments[] = {
    {"NrContRxV7.json", "Cont RX", "cmdIf"},
    {"NrRssiV7.json", "RSSI", "cmdIf"},
    {"NrRsrpForceModeV7.json", "RSRP Forced Mode", "cmdIf"},
    {"NrRsrpNormalModeV7.json", "RSRP Normal Mode", "cmdIf"},
    {"NrSingleToneTxV7.json", "Signle Tone TX", "cmdIf"},
    {"NrPuschTxForceModeV7.json", "PUSCH  TX  Forced Mode", "cmdIf"},
    {"NrPuschTxNormalModeV7.json", "PUSCH  TX  Normal Mode", "cmdIf"},
    {"NrRxPathLossV7.json", "RX Pathloss", "calDataIf"},
    {"NrAptProfileV7.json", "APC profile", "calDataIf"},
};

std::string TestName(const testing::TestParamInfo<SPageDocument> &info)
{
    return QString(info.param.resource).section('.', 0, 0).toStdString();
}

class PageDocument : public testing::TestWithParam<SPageDocument>
{
};

TEST_P(PageDocument, HasItsNameVersionAndInterfaceAndNothingElse)
{
    InitModelResources();
    QFile file(QString(":/") + GetParam().resource);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << GetParam().resource;
    const QJsonObject document = QJsonDocument::fromJson(file.readAll()).object();
    EXPECT_EQ(document.value("modelName"), QJsonValue(GetParam().modelName));
    EXPECT_EQ(document.value("modelVersion"), QJsonValue(1));
    EXPECT_TRUE(document.value(GetParam().interface).isObject());
    EXPECT_EQ(document.size(), 3);
}

INSTANTIATE_TEST_SUITE_P(Resources, PageDocument, testing::ValuesIn(kDocuments), TestName);

TEST(PageDocuments, AreAllThatTheLibraryCarriesBesideTheBandTables)
{
    InitModelResources();
    QStringList expected{"Nr3gpp.json"};
    for (const SPageDocument &document : kDocuments)
        expected.append(document.resource);
    expected.sort();
    EXPECT_EQ(QDir(":/").entryList({"*.json"}, QDir::Files, QDir::Name), expected);
}

}  // namespace
