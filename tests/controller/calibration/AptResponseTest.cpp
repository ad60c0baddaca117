// From the record into the APT page.
#include <gtest/gtest.h>

#include "Controller/calibration/CalResponseBuilder.h"
#include "Model/JsonPath.h"
#include "Model/ModelText.h"
#include "tests/controller/calibration/CalPages.h"

namespace {

QJsonObject Shown(const QJsonObject &document, const SAptRouteBwRecord &record)
{
    return ModelFromText(CCalResponseBuilder().GetAptDataModelV7(document, record));
}

std::string TextOf(const QJsonObject &document, const QString &group, const QString &member)
{
    return TextAt(document,
                  "calDataIf.data." + group + ".memberProperty." + member + ".trait.defaultValue");
}

TEST(AptResponseTest, ScalarsAreTextsOfTheirKind)
{
    SAptRouteBwRecord record = {};
    record.paControlLevel = 7;
    record.normalTempIndex = 255;
    record.level[0] = {2, 34, 1, 0, -33, -32768};
    record.level[9] = {1, 1, 0, 0, 32767, 1};
    record.couplerLoss[0] = 800;
    record.couplerLoss[1] = -1;
    record.couplerLoss[2] = 32767;
    const QJsonObject document = Shown(CalPage(kAptPage), record);
    const struct
    {
        const char *group;
        const char *member;
        const char *text;
    } expected[] = {
        {"group1", "paControlLevel", "\"7\""},
        {"group2", "paMode1", "\"2\""},
        {"group2", "paMode10", "\"1\""},
        {"group3", "pRf1", "\"-1\""},
        {"group3", "pRf10", "\"1023\""},
        {"group3", "pRf2", "\"0\""},
        {"group4", "paGain1", "\"-1024.00000\""},
        {"group4", "paGain10", "\"0.03125\""},
        {"group5", "dc2dcLevel1", "\"3.4V\""},
        {"group5", "dc2dcLevel10", "\"0.1V\""},
        {"group6", "256QAMusage1", "\"1\""},
        {"group11", "normalTempIndex", "\"255\""},
        {"group11", "couplerLossHigh", "\"25.00000\""},
        {"group11", "couplerLossMiddle", "\"-0.03125\""},
        {"group11", "couplerLossLow", "\"1023.96875\""},
    };
    for (const auto &each : expected)
        EXPECT_EQ(TextOf(document, each.group, each.member), each.text) << each.member;
    EXPECT_FALSE(document.contains("modelIntegrity"));
}

TEST(AptResponseTest, VoltageByte34Gives3Point4V)
{
    SAptRouteBwRecord record = {};
    record.level[4].dc2dcLevel = 34;
    EXPECT_EQ(TextOf(Shown(CalPage(kAptPage), record), "group5", "dc2dcLevel5"), "\"3.4V\"");
}

TEST(AptResponseTest, VoltageWithoutAnOptionIsEmptyAndNoFailure)
{
    SAptRouteBwRecord record = {};
    record.level[0].dc2dcLevel = 0;
    record.level[1].dc2dcLevel = 56;
    const QJsonObject document = Shown(CalPage(kAptPage), record);
    EXPECT_EQ(TextOf(document, "group5", "dc2dcLevel1"), "\"\"");
    EXPECT_EQ(TextOf(document, "group5", "dc2dcLevel2"), "\"\"");
    EXPECT_FALSE(document.contains("modelIntegrity"));
}

TEST(AptResponseTest, TablesAreArraysOfTexts)
{
    SAptRouteBwRecord record = {};
    record.paGain[1][63] = -32768;
    record.paGainTempOffset[2][7] = 32767;
    record.powerDetector[0][1] = 1;
    record.powerDetectorTempOffset[1][0] = -1;
    const QJsonObject document = Shown(CalPage(kAptPage), record);
    const auto cells = [&](const char *group, const char *member) {
        return GetJsonValueConst(document, QString("calDataIf.data.%1.memberProperty.%2.trait."
                                                   "defaultValue")
                                               .arg(group, member))
            .toArray();
    };
    EXPECT_EQ(cells("group7", "paMiddlePaGain").size(), 64);
    EXPECT_EQ(cells("group7", "paMiddlePaGain").at(63).toString(), "-1024.00000");
    EXPECT_EQ(cells("group8", "paLowPaGain").size(), 8);
    EXPECT_EQ(cells("group8", "paLowPaGain").at(7).toString(), "1023.96875");
    EXPECT_EQ(cells("group9", "paHighPd").at(1).toString(), "0.03125");
    EXPECT_EQ(cells("group9", "paHighPd").at(0).toString(), "0.00000");
    EXPECT_EQ(cells("group10", "paMiddlePd").at(0).toString(), "-0.03125");
}

TEST(AptResponseTest, RecordWithoutFrequenciesGivesAnEmptyRowAndNoMessage)
{
    const QJsonObject document = Shown(CalPage(kAptPage), {});
    EXPECT_EQ(TextOf(document, "group12", "ulFreq"), "[]");
    EXPECT_FALSE(document.contains("modelIntegrity"));
}

TEST(AptResponseTest, FrequenciesEndWithA0UnlessAllAreThere)
{
    SAptRouteBwRecord record = {};
    record.freq[0] = 1920000;
    record.freq[1] = 4294967295u;
    EXPECT_EQ(TextOf(Shown(CalPage(kAptPage), record), "group12", "ulFreq"),
              R"(["1920000","4294967295","0"])");
    for (int i = 0; i < 64; ++i)
        record.freq[i] = 1;
    const QJsonObject document = Shown(CalPage(kAptPage), record);
    const std::string text = TextOf(document, "group12", "ulFreq");
    EXPECT_EQ(std::count(text.begin(), text.end(), ','), 63);
    EXPECT_EQ(text.find("\"0\""), std::string::npos);
}

// Each member gone in its turn: its message, and every other value as in the whole document.
TEST(AptResponseTest, FailedWriteIsReportedAndTheRestIsWritten)
{
    const struct
    {
        const char *group;
        const char *member;
        const char *message;
    } rows[] = {
        {"group1", "paControlLevel", "Update PA control level failed"},
        {"group2", "paMode3", "Update pa mode failed"},
        {"group3", "pRf3", "Update prf failed"},
        {"group4", "paGain3", "Update paGain failed"},
        {"group5", "dc2dcLevel3", "Update dc2dcLevel failed"},
        {"group6", "256QAMusage3", "Update 256QAMusage failed"},
        {"group7", "paLowPaGain", "Update subband pa gain failed"},
        {"group8", "paHighPaGain", "Update pa gain temp offset failed"},
        {"group9", "paMiddlePd", "Update subband pd value failed"},
        {"group10", "paLowPd", "Update pd value offset failed"},
        {"group11", "normalTempIndex", "Update normalTempIndex failed"},
        {"group11", "couplerLossHigh", "Update couplerLossHigh failed"},
        {"group11", "couplerLossMiddle", "Update couplerLossMiddle failed"},
        {"group11", "couplerLossLow", "Update couplerLossLow failed"},
        {"group12", "ulFreq", "Update ul freq failed"},
    };
    const SAptRouteBwRecord record = ExtremeApt(21, 30);
    QStringList messages;
    QJsonObject lacking = CalPage(kAptPage);
    for (const auto &row : rows) {
        const QString properties = QString("calDataIf.data.%1.memberProperty").arg(row.group);
        QJsonObject whole = Shown(CalPage(kAptPage), record);
        QJsonObject page = CalPage(kAptPage);
        for (QJsonObject *each : {&whole, &page, &lacking})
            EXPECT_TRUE(RemoveJsonValue(*each, properties, row.member));
        EXPECT_EQ(ChangesBetween(whole, Shown(page, record)), ReportsOf({row.message}));
        messages.append(row.message);
    }
    EXPECT_EQ(ChangesBetween(lacking, Shown(lacking, record))["modelIntegrity.messageList"],
              ReportsOf(messages)["modelIntegrity.messageList"]);
}

TEST(AptResponseTest, ReportsAreAddedToThoseThatTheDocumentHas)
{
    QJsonObject page = CalPage(kAptPage);
    page["modelIntegrity"] =
        QJsonObject{{"integrity", true}, {"messageList", QJsonArray{"before"}}};
    EXPECT_TRUE(RemoveJsonValue(page, "calDataIf.data.group12.memberProperty", "ulFreq"));
    const QJsonObject document = Shown(page, {});
    EXPECT_EQ(TextAt(document, "modelIntegrity.messageList"),
              R"(["before","Update ul freq failed"])");
    EXPECT_EQ(TextAt(document, "modelIntegrity.integrity"), "false");
}

}  // namespace
