// The two steps of the RSSI page, from document to document: gain search and measurement.
#include "Model/JsonPath.h"
#include "Model/ModelText.h"
#include "tests/controller/commands/WireBytes.h"
#include "tests/controller/core/CoreFixture.h"
#include "tests/controller/core/StepPages.h"
#include "tests/controller/responses/RssiPage.h"

namespace {

class CoreRssiTest : public CCoreTest
{
protected:
    void SetUp() override
    {
        CCoreTest::SetUp();
        m_document = StepPage(EPageId::Rssi).Document(m_core);  // both paths
        VondSim_ClearJournal();
    }
    STestAnswer Measure()
    {
        m_testsDone.clear();
        Run([&] { m_core.Test("RSSI", ModelToText(m_document)); });
        return m_testsDone.value(0);
    }
    QJsonObject Search()
    {
        m_result = {"stale", 99, "stale"};
        return ModelFromText(m_core.RssiGainCalculate(ModelToText(m_document), m_result));
    }
    void ExpectResult(int status, const char *message) const
    {
        EXPECT_EQ(m_result.itemName, QString());
        EXPECT_EQ(m_result.status, status);
        EXPECT_EQ(m_result.message.toStdString(), message);
    }
    template <typename Record>
    static void Answer(const char *function, const Record &record)
    {
        AnswerBytes(function, 0, BytesOf(record).toHex().toStdString());
    }

    QJsonObject m_document;
    SEachItemOperationResult m_result;
};

SMMRssiCnfV7 MeasuredBoth()
{
    SMMRssiCnfV7 record = {};
    for (int i = 0; i < kVondMaxRssiRows; ++i) {
        record.dlFrequency[i] = 2115000u + 10000u * static_cast<uint32_t>(i);
        const auto level = [i](int dbm) { return static_cast<int16_t>(dbm * 32 - i); };
        record.rows.simultaneous.row[i] = {level(-85), level(-86), level(-87), level(-88)};
    }
    record.rows.simultaneous.mainG = 1;
    record.rows.simultaneous.divG = 2;
    record.rows.simultaneous.path0Maing = 0;
    record.rows.simultaneous.path0Divg = 1;
    record.rows.simultaneous.path1Maing = 2;
    record.rows.simultaneous.path1Divg = 0;
    return record;
}

SMMGainSearchCnfV7 FoundBoth()
{
    SMMGainSearchCnfV7 record = {};
    record.adviseDlPower = -85 * 32;
    record.simultaneous = 1;
    record.gain.simultaneous.path0MainGainIdx = 17;
    record.gain.simultaneous.path0DivGainIdx = 16;
    record.gain.simultaneous.path1MainGainIdx = 15;
    record.gain.simultaneous.path1DivGainIdx = 14;
    record.gain.simultaneous.path0MainRfGain = 1923;
    record.gain.simultaneous.path0DivRfGain = 32;
    record.gain.simultaneous.path1MainRfGain = 33;
    record.gain.simultaneous.path1DivRfGain = 34;
    record.gain.simultaneous.path0MainDigitalGain = -32;
    record.gain.simultaneous.path0DivDigitalGain = -1;
    record.gain.simultaneous.path1MainDigitalGain = 1;
    record.gain.simultaneous.path1DivDigitalGain = 0;
    return record;
}

TEST_F(CoreRssiTest, MeasurementAnswersWithThePagesDocumentAndItsRows)
{
    Answer(kRssi, MeasuredBoth());
    const STestAnswer answer = Measure();
    EXPECT_EQ(answer.result.status, 0);
    const QString frequencies = "[2115000, 2125000, 2135000, 2145000, 2155000]";
    ExpectShown(m_document, ModelFromText(answer.model),
                {{"group2.dlFrequency", frequencies},
                 {"group2.rssiMain", "[-85.00000, -85.03125, -85.06250, -85.09375, -85.12500]"},
                 {"group2.rssiDiv", "[-86.00000, -86.03125, -86.06250, -86.09375, -86.12500]"},
                 {"group1.gainModeP0", "(G1+g0, G2+g1)"},
                 {"group3.dlFrequency", frequencies},
                 {"group3.rssiMain", "[-87.00000, -87.03125, -87.06250, -87.09375, -87.12500]"},
                 {"group3.rssiDiv", "[-88.00000, -88.03125, -88.06250, -88.09375, -88.12500]"},
                 {"group1.gainModeP1", "(G1+g2, G2+g0)"}});
}

TEST_F(CoreRssiTest, MeasurementAnswersInCompactText)
{
    const STestAnswer answer = Measure();
    EXPECT_EQ(answer.model, ModelToText(ModelFromText(answer.model)));
    EXPECT_EQ(answer.model.find('\n'), std::string::npos);
}

TEST_F(CoreRssiTest, FailedMeasurementAnswersWithErrors)
{
    Fault(kRssi);
    const STestAnswer answer = Measure();
    EXPECT_EQ(answer.result.status, 3);
    EXPECT_EQ(answer.result.message, QString("Target: failure on demand"));
    const QString errors = "[ERROR, ERROR, ERROR, ERROR, ERROR]";
    ExpectShown(m_document, ModelFromText(answer.model),
                {{"group2.dlFrequency", errors},
                 {"group2.rssiMain", errors},
                 {"group2.rssiDiv", errors},
                 {"group1.gainModeP0", "ERROR"},
                 {"group3.dlFrequency", errors},
                 {"group3.rssiMain", errors},
                 {"group3.rssiDiv", errors},
                 {"group1.gainModeP1", "ERROR"}});
}

TEST_F(CoreRssiTest, SearchSendsTheBuildersRecordOnce)
{
    Put(m_document, "cmdIf.request.group1", {{"elnaModeMain", "G1"}, {"path0MainSearch", "g1"}});
    Search();
    ExpectOneCall(kGainSearch, BytesOf(CNrCoreCmdBuilder().GetGainSearchCmdV7(m_document)));
}

TEST_F(CoreRssiTest, SearchShowsWhatWasFound)
{
    Answer(kGainSearch, FoundBoth());
    const QJsonObject shown = Search();
    ExpectResult(0, "");
    ExpectShown(m_document, shown,
                {{"group1.adviseDlPower", "-85.00000"},
                 {"group1.path0MainRfGain", "60.09375"},
                 {"group1.path0DivRfGain", "1.00000"},
                 {"group1.path1MainRfGain", "1.03125"},
                 {"group1.path1DivRfGain", "1.06250"},
                 {"group1.path0MainDigtalGain", "-1.00000"},
                 {"group1.path0DivDigtalGain", "-0.03125"},
                 {"group1.path1MainDigtalGain", "0.03125"},
                 {"group1.path1DivDigtalGain", "0.00000"},
                 {"group1.path0MainGainIdx", "17"},
                 {"group1.path0DivGainIdx", "16"},
                 {"group1.path1MainGainIdx", "15"},
                 {"group1.path1DivGainIdx", "14"}});
}

TEST_F(CoreRssiTest, GainIndexBeyondTheTableIsShownAsItCame)
{
    SMMGainSearchCnfV7 record = FoundBoth();
    record.gain.simultaneous.path0MainGainIdx = 255;
    Answer(kGainSearch, record);
    EXPECT_EQ(TextAt(Search(), Place("group1.path0MainGainIdx")), "\"255\"");
}

TEST_F(CoreRssiTest, FailedSearchIsThreeWithItsWordsAndErrors)
{
    Put(m_document, "cmdIf.request.group1", {{"calType", kPath1}});
    Fault(kGainSearch);
    const QJsonObject shown = Search();
    ExpectResult(3, "Target: failure on demand");
    for (const char *member :
         {"path1MainRfGain", "path1DivRfGain", "path1MainDigtalGain", "path1DivDigtalGain"})
        EXPECT_EQ(TextAt(shown, Place(QString("group1.") + member)), "\"ERROR\"") << member;
}

TEST_F(CoreRssiTest, GoodSearchDoesNotCarryAnEarlierFailuresText)
{
    Fault(kGainSearch);
    Search();
    VondSim_ClearFaults();
    Search();
    ExpectResult(0, "");
}

TEST_F(CoreRssiTest, SearchOnAnotherGenerationIsTwoAndLeavesTheDocumentAsItWas)
{
    for (const char *generation : {"0", "2"}) {
        PlugHandsetWith(std::string("\"generation\": ") + generation);
        EXPECT_EQ(ChangesBetween(m_document, Search()), Changes());
        ExpectResult(2, "");
        EXPECT_EQ(CountCalls(kGainSearch), 0);
    }
}

// As the page works: the gains that the search has found are those of the next measurement.
TEST_F(CoreRssiTest, FoundGainsAreGoodForTheMeasurement)
{
    const QJsonObject shown = Search();
    ExpectResult(0, "");
    for (const QString member :
         {"path0MainRfGain", "path0DivRfGain", "path0MainDigtalGain", "path0DivDigtalGain",
          "path1MainRfGain", "path1DivRfGain", "path1MainDigtalGain", "path1DivDigtalGain",
          "path0MainGainIdx", "path0DivGainIdx", "path1MainGainIdx", "path1DivGainIdx"}) {
        const QJsonValue found = GetJsonValueConst(shown, Place("group1." + member));
        EXPECT_TRUE(
            ModifyJsonValue(m_document, "cmdIf.response.group1.memberValue." + member, found, 0));
    }
    EXPECT_EQ(Measure().result.status, 0);
    const auto sent = RecordOf<SMMRssiCmdV7>(JournalOf(kRssi).value(0).request);
    const auto found = RecordOf<SMMGainSearchCnfV7>(JournalOf(kGainSearch).value(0).answer);
    EXPECT_EQ(found.simultaneous, 1u);
    EXPECT_EQ(HexOf(sent.gain), HexOf(found.gain));
}

}  // namespace
