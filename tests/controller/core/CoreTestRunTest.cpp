// A page's test: from its document to the target and back.
#include "tests/controller/core/CoreFixture.h"

namespace {

class CoreTestRunTest : public CCoreTest
{
protected:
    STestAnswer RunTest(const QString &page, const std::string &document)
    {
        m_testsDone.clear();
        Run([&] { m_core.Test(page, document); });
        EXPECT_EQ(m_testsDone.size(), 1);
        return m_testsDone.value(0);
    }
    STestAnswer RunContRx(const TextMap &values = GoodValues())
    {
        return RunTest("Continuous RX", PackagedText(values));
    }
};

TEST_F(CoreTestRunTest, ContinuousRxStartsTheTarget)
{
    const STestAnswer answer = RunContRx();
    EXPECT_EQ(answer.result.itemName, QString("Continuous RX"));
    EXPECT_EQ(answer.result.status, 0);
    EXPECT_TRUE(answer.result.message.isEmpty());
    EXPECT_EQ(answer.model, "");
    EXPECT_STREQ(VondSim_RunningTest(), "ContRx");
}

SMMContRxCmdV7 CommandOf(const QJsonObject &document)
{
    return CNrCoreCmdBuilder().GetContRxCmdV7(document);
}

TEST_F(CoreTestRunTest, StepTakesABuilderThatIsAFunctionOfItsOwn)
{
    CRunningTests running([](bool) {});
    STestOperations operations;
    STestRun run{.page = EPageId::ContRx,
                 .stop = EStop::MultiRat,
                 .asked = running.Moment(),
                 .runningTests = running};
    QJsonObject document = Packaged(BothPathsValues());
    const int status =
        RunCommand<&CommandOf, &STestOperations::contRx, &CMultiRatContRxV7::RunContRx>(
            operations, run, document);
    EXPECT_EQ(status, 0);
    const auto calls = JournalOf(kContRx);
    ASSERT_EQ(calls.size(), 1);
    const SMMContRxCmdV7 command = CommandOf(document);
    EXPECT_EQ(calls[0].request,
              QByteArray(reinterpret_cast<const char *>(&command), sizeof(command)));
    EXPECT_TRUE(running.HandleOf(EStop::MultiRat, EPageId::ContRx).has_value());
}

TEST_F(CoreTestRunTest, CommandReachesTheTargetOnceWithHandleAndTimeout)
{
    CNrCore::SetTargetHandle(0xC0FFEE);
    RunContRx(BothPathsValues());
    const auto calls = JournalOf(kContRx);
    ASSERT_EQ(calls.size(), 1);
    EXPECT_EQ(calls[0].call.handle, 0xC0FFEEu);
    EXPECT_EQ(calls[0].call.timeoutMs, 10000u);
    EXPECT_EQ(calls[0].request,
              QByteArray::fromHex("03000000 00000000 88130000 0100 6500 00000000 03000000"
                                  "100f0e0d 8307 7007 4807 2007 60a72000"));
    EXPECT_EQ(calls[0].call.result, 0);
}

TEST_F(CoreTestRunTest, RefusalOfTheTargetIsThreeWithItsWords)
{
    TextMap values = GoodValues();
    values["band"] = "n2";
    const STestAnswer answer = RunContRx(values);
    EXPECT_EQ(answer.result.itemName, QString("Continuous RX"));
    EXPECT_EQ(answer.result.status, 3);
    EXPECT_EQ(answer.result.message, QString("Target: unknown band"));
    EXPECT_EQ(answer.model, "");
    EXPECT_EQ(m_core.GetErrorMessage(), QString("Target: unknown band"));
}

TEST_F(CoreTestRunTest, SecondStartWhileTheFirstRunsIsRefused)
{
    EXPECT_EQ(RunContRx().result.status, 0);
    const STestAnswer answer = RunContRx();
    EXPECT_EQ(answer.result.status, 3);
    EXPECT_EQ(answer.result.message, QString("Target: a test is running already"));
}

TEST_F(CoreTestRunTest, FailureIsNotRetried)
{
    Fault(kContRx, 2);
    EXPECT_EQ(RunContRx().result.status, 3);
    EXPECT_EQ(CountCalls(kContRx), 1);
}

TEST_F(CoreTestRunTest, NullErrorTextIsThreeWithAnEmptyMessage)
{
    Fault(kContRx, 4);
    ASSERT_EQ(VondSim_AddFault(R"({"function": "VOND_GetErrorString", "kind": "nullText"})"), 0);
    const STestAnswer answer = RunContRx();
    EXPECT_EQ(answer.result.status, 3);
    EXPECT_TRUE(answer.result.message.isEmpty());
}

TEST_F(CoreTestRunTest, TextThatDoesNotParseRunsAsAnEmptyDocument)
{
    for (const char *text : {"", "{\"cmdIf\":", "nonsense"}) {
        VondSim_ClearJournal();
        EXPECT_EQ(RunTest("Continuous RX", text).result.status, 3) << text;
        EXPECT_EQ(JournalOf(kContRx).value(0).request.toHex(), QByteArray("0100000001000000"
                                                                          "0000000000000000"
                                                                          "0100000003000000"
                                                                          "0000000000000000"
                                                                          "0000000000000000"));
    }
}

TEST_F(CoreTestRunTest, OtherGenerationDoesNotRun)
{
    for (const char *generation : {"0", "2"}) {
        PlugHandsetWith(std::string("\"generation\": ") + generation);
        const STestAnswer answer = RunContRx();
        EXPECT_EQ(answer.result.itemName, QString("Continuous RX"));
        EXPECT_EQ(answer.result.status, 2);
        EXPECT_TRUE(answer.result.message.isEmpty());
        EXPECT_EQ(CountCalls(kContRx), 0);
    }
}

TEST_F(CoreTestRunTest, OtherGenerationDoesNotCarryAnEarlierFailuresText)
{
    Fault(kContRx, 4);
    EXPECT_FALSE(RunContRx().result.message.isEmpty());
    Plug("gen0");
    const STestAnswer answer = RunContRx();
    EXPECT_EQ(answer.result.status, 2);
    EXPECT_TRUE(answer.result.message.isEmpty());
}

TEST_F(CoreTestRunTest, UnpluggedTargetDoesNotRun)
{
    Plug("unplugged");
    EXPECT_EQ(RunContRx().result.status, 2);
    EXPECT_EQ(CountCalls(kContRx), 0);
}

TEST_F(CoreTestRunTest, PageWithoutATestDoesNotTouchTheTarget)
{
    for (const char *page : {"Route Calculator", "PRACH TX", "RX PathLoss", "APT Profile"}) {
        const STestAnswer answer = RunTest(page, PackagedText(GoodValues()));
        EXPECT_EQ(answer.result.itemName, QString(page));
        EXPECT_EQ(answer.result.status, 2) << page;
        EXPECT_TRUE(answer.result.message.isEmpty()) << page;
        EXPECT_EQ(answer.model, "") << page;
    }
    EXPECT_EQ(VondSim_CallCount(), 0u);
}

TEST_F(CoreTestRunTest, SuccessCarriesTheOperationsLastText)
{
    Fault(kContRx, 4);
    RunContRx();
    VondSim_ClearFaults();
    const STestAnswer answer = RunContRx();
    EXPECT_EQ(answer.result.status, 0);
    EXPECT_EQ(answer.result.message, QString("Target: failure on demand"));
}

}  // namespace
