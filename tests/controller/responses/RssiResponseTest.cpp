// The measurement of the RSSI page in its document.
#include <gtest/gtest.h>

#include <QJsonArray>

#include "Controller/responses/NrDataModelResponseBuilder.h"
#include "Model/JsonPath.h"
#include "Model/ModelIntegrity.h"
#include "tests/controller/responses/RssiPage.h"

namespace {

SMMRssiCnfV7 Frequencies()
{
    SMMRssiCnfV7 result = {};
    for (int i = 0; i < kVondMaxRssiRows; ++i)
        result.dlFrequency[i] = 2110000u + 10000u * static_cast<uint32_t>(i);
    return result;
}

SMMRssiCnfV7 SingleRows()
{
    SMMRssiCnfV7 result = Frequencies();
    auto &rows = result.rows.single;
    for (int i = 0; i < kVondMaxRssiRows; ++i) {
        rows.row[i].rssiMain = static_cast<int16_t>(-1600 - i);
        rows.row[i].rssiDiv = static_cast<int16_t>(-1760 - i);
    }
    rows.mainG = 1;
    rows.divG = 6;
    rows.maing = 2;
    rows.divg = 0;
    return result;
}

SMMRssiCnfV7 BothRows()
{
    SMMRssiCnfV7 result = Frequencies();
    auto &rows = result.rows.simultaneous;
    for (int i = 0; i < kVondMaxRssiRows; ++i) {
        rows.row[i].path0Main = static_cast<int16_t>(-1600 - i);
        rows.row[i].path0Div = static_cast<int16_t>(-1760 - i);
        rows.row[i].path1Main = static_cast<int16_t>(-1920 - i);
        rows.row[i].path1Div = static_cast<int16_t>(-2080 - i);
    }
    rows.mainG = 1;
    rows.divG = 6;
    rows.path0Maing = 2;
    rows.path0Divg = 0;
    rows.path1Maing = 1;
    rows.path1Divg = 3;
    return result;
}

const char kFrequencyTexts[] = "[2110000, 2120000, 2130000, 2140000, 2150000]";
const char kRow50[] = "[-50.00000, -50.03125, -50.06250, -50.09375, -50.12500]";
const char kRow55[] = "[-55.00000, -55.03125, -55.06250, -55.09375, -55.12500]";
const char kRow60[] = "[-60.00000, -60.03125, -60.06250, -60.09375, -60.12500]";
const char kRow65[] = "[-65.00000, -65.03125, -65.06250, -65.09375, -65.12500]";
const char kErrors[] = "[ERROR, ERROR, ERROR, ERROR, ERROR]";
const char kBlanks[] = "[, , , , ]";

// The three columns of a path.
TextMap Columns(const char *group, const char *frequencies, const char *main, const char *div)
{
    const QString table(group);
    return {{table + ".dlFrequency", frequencies},
            {table + ".rssiMain", main},
            {table + ".rssiDiv", div}};
}

TextMap Joined(TextMap values, const TextMap &second, const char *modeP0, const char *modeP1)
{
    for (auto value = second.begin(); value != second.end(); ++value)
        values[value.key()] = value.value();
    values["group1.gainModeP0"] = modeP0;
    values["group1.gainModeP1"] = modeP1;
    // The calculator's members go on showing what they did when the page was packaged.
    values["group1.adviseDlPower"] = "NA";
    return values;
}

QJsonObject AfterRun(QJsonObject document, const SMMRssiCnfV7 &result, bool success = true)
{
    CNrDataModelResponseBuilder().UpdateRssiResultV7(document, result, success);
    return document;
}

TEST(RssiResult, Path0FillsItsTableAndBlanksTheOther)
{
    const QJsonObject document = RssiDocument(kPath0);
    ExpectShown(document, AfterRun(document, SingleRows()),
                Joined(Columns("group2", kFrequencyTexts, kRow50, kRow55),
                       Columns("group3", kBlanks, kBlanks, kBlanks), "(G1+g2, G6+g0)", ""));
}

TEST(RssiResult, AnyOtherSinglePathIsPath1)
{
    for (const char *calType : {kPath1, "Partial-On", ""}) {
        const QJsonObject document = RssiDocument(calType);
        ExpectShown(document, AfterRun(document, SingleRows()),
                    Joined(Columns("group2", kBlanks, kBlanks, kBlanks),
                           Columns("group3", kFrequencyTexts, kRow50, kRow55), "",
                           "(G1+g2, G6+g0)"));
    }
}

TEST(RssiResult, SimultaneouslyFillsBothTables)
{
    for (const char *calType : {kBoth, "Sim", "Simultaneously Path0"}) {
        const QJsonObject document = RssiDocument(calType);
        ExpectShown(document, AfterRun(document, BothRows()),
                    Joined(Columns("group2", kFrequencyTexts, kRow50, kRow55),
                           Columns("group3", kFrequencyTexts, kRow60, kRow65), "(G1+g2, G6+g0)",
                           "(G1+g1, G6+g3)"));
    }
}

TEST(RssiResult, FailureShowsErrorOnThePathsThatWereAsked)
{
    const TextMap errors2 = Columns("group2", kErrors, kErrors, kErrors);
    const TextMap errors3 = Columns("group3", kErrors, kErrors, kErrors);
    const TextMap blanks2 = Columns("group2", kBlanks, kBlanks, kBlanks);
    const TextMap blanks3 = Columns("group3", kBlanks, kBlanks, kBlanks);
    const QJsonObject first = RssiDocument(kPath0);
    ExpectShown(first, AfterRun(first, SingleRows(), false), Joined(errors2, blanks3, "ERROR", ""));
    const QJsonObject second = RssiDocument(kPath1);
    ExpectShown(second, AfterRun(second, {}, false), Joined(blanks2, errors3, "", "ERROR"));
    const QJsonObject both = RssiDocument(kBoth);
    ExpectShown(both, AfterRun(both, {}, false), Joined(errors2, errors3, "ERROR", "ERROR"));
}

TEST(RssiResult, GainsStayOnThePageAndPath1MainIsThatOfDiv)
{
    TextMap packaged;
    TextMap kept;
    int number = 0;
    for (const char *member :
         {"adviseDlPower", "path0MainRfGain", "path0DivRfGain", "path0MainGainIdx",
          "path0DivGainIdx", "path0MainDigtalGain", "path0DivDigtalGain", "path1MainRfGain",
          "path1DivRfGain", "path1MainGainIdx", "path1DivGainIdx", "path1MainDigtalGain",
          "path1DivDigtalGain"}) {
        packaged[member] = QString::number(++number);
        kept[QString("group1.") + member] = packaged[member];
    }
    kept["group1.path1MainRfGain"] = packaged["path1DivRfGain"];
    ASSERT_EQ(kept["group1.path1MainRfGain"], "9");

    for (bool success : {true, false}) {
        QJsonObject before = RssiDocument(kPath0);
        Put(before, "cmdIf.response.group1", packaged);
        const QJsonObject after = AfterRun(before, SingleRows(), success);
        const Shown shown = AllShown(after);
        for (auto member = kept.begin(); member != kept.end(); ++member)
            EXPECT_EQ(shown.at(member.key().toStdString()),
                      '"' + member.value().toStdString() + '"')
                << qPrintable(member.key());
    }
}

TEST(RssiResult, GainThatWasNeverPackagedKeepsWhatItShows)
{
    QJsonObject document = RssiDocument(kPath0);
    ASSERT_TRUE(RemoveJsonValue(document, "cmdIf.response.group1", "memberValue"));
    const Shown before = AllShown(document);
    const Shown after = AllShown(AfterRun(document, SingleRows()));
    for (const char *member : {"group1.path0MainRfGain", "group1.path1MainRfGain"})
        EXPECT_EQ(after.at(member), before.at(member)) << member;
}

TEST(RssiResult, ResultBytesOutsideTheRecordsLayoutAreNotRead)
{
    SMMRssiCnfV7 result = SingleRows();
    std::fill(std::begin(result.reserved0), std::end(result.reserved0), uint8_t(0xAA));
    auto &rows = result.rows.single;
    std::fill(std::begin(rows.reserved24), std::end(rows.reserved24), uint8_t(0xAA));
    const QJsonObject document = RssiDocument(kPath0);
    EXPECT_TRUE(AfterRun(document, result) == AfterRun(document, SingleRows()));
}

TEST(RssiResult, LargestNumbersHaveRoom)
{
    SMMRssiCnfV7 result = SingleRows();
    result.dlFrequency[4] = 4294967295u;
    result.rows.single.row[4].rssiMain = 32767;
    result.rows.single.row[4].rssiDiv = -32768;
    result.rows.single.mainG = 255;
    const QJsonObject document = AfterRun(RssiDocument(kPath0), result);
    EXPECT_EQ(GetJsonValueConst(document, Place("group2.dlFrequency")).toArray().last(),
              QJsonValue("4294967295"));
    EXPECT_EQ(GetJsonValueConst(document, Place("group2.rssiMain")).toArray().last(),
              QJsonValue("1023.96875"));
    EXPECT_EQ(GetJsonValueConst(document, Place("group2.rssiDiv")).toArray().last(),
              QJsonValue("-1024.00000"));
    EXPECT_EQ(GetJsonValueConst(document, Place("group1.gainModeP0")),
              QJsonValue("(G255+g2, G6+g0)"));
}

TEST(RssiResult, DocumentWithoutTheMembersStaysAsItWas)
{
    for (const QJsonObject &before : {QJsonObject(), PackagedPage("NrSingleToneTxV7")})
        EXPECT_TRUE(AfterRun(before, SingleRows()) == before);
}

TEST(RssiResult, RecordOfFailuresIsTheCallersAlone)
{
    QJsonObject document = AfterRun(RssiDocument(kPath0), {}, false);
    EXPECT_FALSE(HasJsonValue(document, "modelIntegrity"));
    AddModelUpdateResult(document, false, "earlier");
    EXPECT_EQ(TextAt(AfterRun(document, SingleRows()), "modelIntegrity"),
              R"({"integrity":false,"messageList":["earlier"]})");
}

}  // namespace
