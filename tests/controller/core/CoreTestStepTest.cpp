// The test of every page: its command at the target, and each way in which it can end.
#include <algorithm>
#include <iterator>

#include "Model/ModelText.h"
#include "tests/controller/core/CoreFixture.h"
#include "tests/controller/core/StepPages.h"

namespace {

class CoreTestStep : public CCoreTest, public ::testing::WithParamInterface<SStepPage>
{
protected:
    const SStepPage &Page() const { return GetParam(); }
    STestAnswer RunTest(const QJsonObject &document)
    {
        m_testsDone.clear();
        VondSim_ClearJournal();
        Run([&] { m_core.Test(Page().name, ModelToText(document)); });
        EXPECT_EQ(m_testsDone.size(), 1);
        return m_testsDone.value(0);
    }
    STestAnswer RunTest() { return RunTest(Page().Document(m_core)); }

    void ExpectFailure(const STestAnswer &answer, int status, const char *message)
    {
        EXPECT_EQ(answer.result.itemName, QString(Page().name));
        EXPECT_EQ(answer.result.status, status);
        EXPECT_EQ(answer.result.message.toStdString(), message);
        EXPECT_EQ(m_core.GetErrorMessage().toStdString(), message);
        EXPECT_EQ(answer.model.empty(), Page().id != EPageId::Rssi);
        EXPECT_EQ(CountCalls(Page().function), 1);
        EXPECT_STREQ(VondSim_RunningTest(), "");
    }
};

// Of the pages whose function has a status word.
class CoreTestStatus : public CoreTestStep
{
public:
    static std::vector<SStepPage> Pages()
    {
        std::vector<SStepPage> pages;
        std::copy_if(std::begin(kStepPages), std::end(kStepPages), std::back_inserter(pages),
                     [](const SStepPage &page) { return page.hasStatus; });
        return pages;
    }
};

std::string NameOf(const ::testing::TestParamInfo<SStepPage> &info)
{
    QString name = info.param.name;
    return name.remove(' ').toStdString();
}

TEST_P(CoreTestStep, BuildersRecordReachesThePagesFunctionOnceAndStartsIt)
{
    const QJsonObject document = Page().Document(m_core);
    const STestAnswer answer = RunTest(document);
    EXPECT_EQ(answer.result.itemName, QString(Page().name));
    EXPECT_EQ(answer.result.status, 0) << qPrintable(answer.result.message);
    EXPECT_TRUE(answer.result.message.isEmpty());
    ExpectOneCall(Page().function, Page().command(document));
    EXPECT_STREQ(VondSim_RunningTest(), Page().running);
}

TEST_P(CoreTestStep, ValuesOfTheDocumentAreInTheRecord)
{
    const QJsonObject document = Page().Document(m_core);
    QJsonObject other = document;
    Put(other, "cmdIf.request.group1", {{"band", "n7"}});
    RunTest(document);
    const QByteArray request = JournalOf(Page().function).value(0).request;
    RunTest(other);
    EXPECT_EQ(JournalOf(Page().function).value(0).request, Page().command(other));
    EXPECT_NE(JournalOf(Page().function).value(0).request, request);
}

TEST_P(CoreTestStep, OnlyRssiAnswersWithADocument)
{
    EXPECT_EQ(RunTest().model.empty(), Page().id != EPageId::Rssi);
}

TEST_P(CoreTestStep, FailureOfTheLibraryIsThreeWithItsWords)
{
    const QJsonObject document = Page().Document(m_core);
    Fault(Page().function, 2);
    ExpectFailure(RunTest(document), 3, "Connection: the target did not answer in time");
}

TEST_P(CoreTestStep, NullErrorTextIsThreeWithAnEmptyMessage)
{
    const QJsonObject document = Page().Document(m_core);
    Fault(Page().function);
    NoErrorTexts();
    ExpectFailure(RunTest(document), 3, "");
}

TEST_P(CoreTestStatus, StatusOfTheTargetIs203WithItsText)
{
    const QJsonObject document = Page().Document(m_core);
    AnswerStatus(Page().function, 2);
    ExpectFailure(RunTest(document), 203,
                  "Status error code (2) :NL1TST_CNF_STATUS_CELL_NOT_EXIST.\n\nDetails: Cell SSB "
                  "can't be detected.");
}

TEST_P(CoreTestStatus, UnknownStatusOfTheTargetSaysSo)
{
    const QJsonObject document = Page().Document(m_core);
    AnswerStatus(Page().function, 4294967295u);
    ExpectFailure(RunTest(document), 203,
                  "Status error code (4294967295) :Not found status descrption");
}

TEST_P(CoreTestStep, OtherGenerationIsTwoWithoutAWordOrACall)
{
    const QJsonObject document = Page().Document(m_core);
    Fault(Page().function);
    EXPECT_FALSE(RunTest(document).result.message.isEmpty());  // nothing of it may stay
    VondSim_ClearFaults();
    for (const char *generation : {"0", "2"}) {
        PlugHandsetWith(std::string("\"generation\": ") + generation);
        const STestAnswer answer = RunTest(document);
        EXPECT_EQ(answer.result.itemName, QString(Page().name));
        EXPECT_EQ(answer.result.status, 2) << generation;
        EXPECT_TRUE(answer.result.message.isEmpty()) << generation;
        EXPECT_EQ(answer.model, "") << generation;
        EXPECT_EQ(CountCalls(Page().function), 0) << generation;
        EXPECT_TRUE(m_core.GetErrorMessage().isEmpty());
    }
}

TEST_P(CoreTestStep, MessageIsThatOfThePagesOwnOperation)
{
    const QJsonObject document = Page().Document(m_core);
    for (const SStepPage &other : kStepPages) {
        if (qstrcmp(other.function, Page().function) == 0)
            continue;
        Fault(other.function);
        Run([&] { m_core.Test(other.name, "{}"); });
    }
    EXPECT_EQ(RunTest(document).result.status, 0);
    EXPECT_TRUE(m_testsDone[0].result.message.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Pages, CoreTestStep, ::testing::ValuesIn(kStepPages), NameOf);
INSTANTIATE_TEST_SUITE_P(Pages, CoreTestStatus, ::testing::ValuesIn(CoreTestStatus::Pages()),
                         NameOf);

}  // namespace
