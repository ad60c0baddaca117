// The reads of one value: power detector and DL frequency.
#include "Model/JsonPath.h"
#include "Model/ModelIntegrity.h"
#include "Model/ModelText.h"
#include "Support/Log.h"
#include "tests/common/LogCapture.h"
#include "tests/controller/core/CoreFixture.h"
#include "tests/controller/core/StepPages.h"

namespace {

constexpr char kPdPath[] = "cmdIf.response.group1.memberProperty.pdValue.trait.defaultValue";
constexpr char kDlPath[] = "cmdIf.response.group1.memberProperty.dlFrequency.trait.defaultValue";

Changes Shown(const char *path, const std::string &text)
{
    return {{path, '"' + text + '"'}};
}

Changes Failed(const char *path, const std::string &text, const QStringList &messages)
{
    Changes changes = ReportsOf(messages);
    changes.merge(Shown(path, text));
    return changes;
}

QJsonObject WithEarlierReport(QJsonObject document)
{
    AddModelUpdateResult(document, false, "an earlier line");
    return document;
}

class CorePdValueTest : public CCoreTest
{
protected:
    void SetUp() override
    {
        CCoreTest::SetUp();
        m_document = StepPage(EPageId::SingleToneTx).Document(m_core);
        VondSim_ClearJournal();
    }
    // The detector reads only while something is sent.
    void StartTone()
    {
        Run([&] { m_core.Test("Single Tone TX", ModelToText(m_document)); });
        ASSERT_STREQ(VondSim_RunningTest(), "SingleToneTx");
    }
    // What a read changes in a document.
    Changes Read(const QJsonObject &document)
    {
        return ChangesBetween(document, ModelFromText(m_core.GetPdValue(ModelToText(document))));
    }
    Changes Read() { return Read(m_document); }

    QJsonObject m_document;
};

TEST_F(CorePdValueTest, ReadingIsInParts256WithSixDigits)
{
    StartTone();
    struct SCase
    {
        const char *hex;
        const char *text;
    };
    for (const SCase &c : {SCase{"0001", "1"}, SCase{"80ff", "-0.5"}, SCase{"0000", "0"},
                           SCase{"0100", "0.00390625"}, SCase{"ffff", "-0.00390625"},
                           SCase{"ff7f", "127.996"}, SCase{"0080", "-128"}}) {
        VondSim_ClearFaults();
        AnswerBytes(kPdValue, 0, c.hex);
        EXPECT_EQ(Read(), Shown(kPdPath, c.text)) << c.hex;
    }
}

TEST_F(CorePdValueTest, KindOneIsAskedForOnce)
{
    StartTone();
    Read();
    ExpectOneCall(kPdValue, QByteArray::fromHex("01000000"));
}

TEST_F(CorePdValueTest, ReadingOfTheTransmitterIsNearItsPower)
{
    StartTone();  // 10 dBm
    const std::string shown = Read()[kPdPath];
    EXPECT_NEAR(std::stod(shown.substr(1)), 10, 1);
}

TEST_F(CorePdValueTest, FailedReadLeavesErrorAndOneMoreLine)
{
    EXPECT_EQ(Read(), Failed(kPdPath, "Error",
                             {"Get PD value from target failed\nTarget: nothing is being "
                              "transmitted"}));
    Fault(kPdValue);
    const QString failed = "Get PD value from target failed\nTarget: failure on demand";
    EXPECT_EQ(Read(), Failed(kPdPath, "Error", {failed}));
    Changes more = Failed(kPdPath, "Error", {"an earlier line", failed});
    more.erase("modelIntegrity.integrity");  // false already
    EXPECT_EQ(Read(WithEarlierReport(m_document)), more);
}

TEST_F(CorePdValueTest, FailureWithoutATextLeavesTheLineBare)
{
    Fault(kPdValue);
    NoErrorTexts();
    EXPECT_EQ(Read(), Failed(kPdPath, "Error", {"Get PD value from target failed\n"}));
}

TEST_F(CorePdValueTest, DocumentWithoutTheMemberSaysSoAndIsLogged)
{
    StartTone();
    const LogCapture log(lcCore());
    EXPECT_EQ(Read({{"modelName", "Bare page"}}), ReportsOf({"Update PD value result failed"}));
    EXPECT_EQ(log.Lines(QtCriticalMsg), QStringList("Bare page Update PD value result failed"));
}

TEST_F(CorePdValueTest, FailedReadWithoutTheMemberSaysBoth)
{
    Fault(kPdValue);
    EXPECT_EQ(Read({}), ReportsOf({"Get PD value from target failed\nTarget: failure on demand",
                                   "Update PD value result failed"}));
}

TEST_F(CorePdValueTest, OtherGenerationLeavesTheDocumentAsItWas)
{
    for (const char *generation : {"0", "2"}) {
        PlugHandsetWith(std::string("\"generation\": ") + generation);
        EXPECT_EQ(Read(), Changes());
        EXPECT_EQ(CountCalls(kPdValue), 0);
    }
}

TEST_F(CorePdValueTest, AnswerIsCompactText)
{
    const std::string text = m_core.GetPdValue(ModelToText(m_document));
    EXPECT_EQ(text, ModelToText(ModelFromText(text)));
}

TEST_F(CorePdValueTest, TextThatDoesNotParseIsAnEmptyDocument)
{
    Plug("gen0");
    EXPECT_EQ(m_core.GetPdValue("nonsense"), "{}");
}

class CoreDlFreqTest : public CCoreTest, public ::testing::WithParamInterface<EPageId>
{
protected:
    void SetUp() override
    {
        CCoreTest::SetUp();
        m_document = StepPage(GetParam()).Document(m_core);
        VondSim_ClearJournal();
    }
    static bool IsNormal() { return GetParam() == EPageId::PuschTxNormal; }
    Changes Read(const QJsonObject &document)
    {
        return ChangesBetween(document, ModelFromText(m_core.GetDlFreqForPuschTx(
                                            PageName(GetParam()), ModelToText(document))));
    }
    Changes Read() { return Read(m_document); }

    QJsonObject m_document;
};

TEST_P(CoreDlFreqTest, BuildersRecordOfTheModeReachesTheTargetOnce)
{
    Read();
    ExpectOneCall(kDlFreq, BytesOf(CNrCoreCmdBuilder().GetPuschDlFreqCmd(m_document, IsNormal())));
    const auto sent = RecordOf<SNrDlFreqCmdV7>(JournalOf(kDlFreq).value(0).request);
    EXPECT_EQ(sent.forced, IsNormal() ? 0 : 1);
    EXPECT_EQ(sent.band, IsNormal() ? 78 : 3);
}

TEST_P(CoreDlFreqTest, FrequencyOfTheTargetIsShown)
{
    // n3 has a duplex distance of 95 MHz; n78 is TDD.
    EXPECT_EQ(Read(), Shown(kDlPath, IsNormal() ? "3549990" : "1842500"));
}

TEST_P(CoreDlFreqTest, FrequencyIsUnsignedDecimal)
{
    AnswerBytes(kDlFreq, 4, "ffffffff");
    EXPECT_EQ(Read(), Shown(kDlPath, "4294967295"));
}

TEST_P(CoreDlFreqTest, FailedReadLeavesErrorAndOneMoreLine)
{
    Fault(kDlFreq);
    const QString failed = "Get DL freq result from target failed\n Target: failure on demand";
    EXPECT_EQ(Read(), Failed(kDlPath, "ERROR", {failed}));
    Changes more = Failed(kDlPath, "ERROR", {"an earlier line", failed});
    more.erase("modelIntegrity.integrity");  // false already
    EXPECT_EQ(Read(WithEarlierReport(m_document)), more);
}

TEST_P(CoreDlFreqTest, StatusOfTheTargetIsAFailureWithItsText)
{
    AnswerStatus(kDlFreq, 1);
    EXPECT_EQ(Read(), Failed(kDlPath, "ERROR",
                             {"Get DL freq result from target failed\n Status error code (1) "
                              ":NL1TST_CNF_STATUS_FREQ_MISMATCH.\n\nDetails: Frequency cannot be "
                              "exactly mapped to NR-ARFCN."}));
}

TEST_P(CoreDlFreqTest, DocumentWithoutTheMemberSaysSoAndIsLogged)
{
    QJsonObject bare = m_document;
    EXPECT_TRUE(RemoveJsonValue(bare, "cmdIf", "response"));
    const LogCapture log(lcCore());
    EXPECT_EQ(Read(bare), ReportsOf({"Update DL freq result failed"}));
    EXPECT_EQ(log.Lines(QtCriticalMsg),
              QStringList(bare["modelName"].toString() + " Update DL freq result failed"));
}

TEST_P(CoreDlFreqTest, OtherGenerationLeavesTheDocumentAsItWas)
{
    for (const char *generation : {"0", "2"}) {
        PlugHandsetWith(std::string("\"generation\": ") + generation);
        EXPECT_EQ(Read(), Changes());
        EXPECT_EQ(CountCalls(kDlFreq), 0);
    }
}

INSTANTIATE_TEST_SUITE_P(Modes, CoreDlFreqTest,
                         ::testing::Values(EPageId::PuschTxForce, EPageId::PuschTxNormal),
                         [](const auto &info) {
                             return info.param == EPageId::PuschTxForce ? "Forced" : "Normal";
                         });

}  // namespace
