// How a target's answer becomes a code and a text.
#include "Operations/GeneralOperation.h"

#include "Operations/link/TargetLink.h"
#include "Vond/VondCore.h"
#include "tests/operations/TargetFixture.h"

namespace {

// An operation whose answers are given by the test, and one that asks the target with a status
// word.
class CTestOperation : public IGeneralOperation
{
public:
    using IGeneralOperation::Finish;

    uint32_t RunRsrp()
    {
        const SNrRsrpCmdV7 command = {};
        uint32_t status = 0;
        const VOND_RESULT result =
            VOND_NRf_RsrpV7_r(TargetHandle(), kTargetTimeoutMs, &command, &status);
        return Finish(status, result);
    }
};

class GeneralOperationTest : public CTargetTest
{
protected:
    CTestOperation m_operation;
};

TEST_F(GeneralOperationTest, SuccessIsZero)
{
    EXPECT_EQ(m_operation.Finish(0), 0u);
    EXPECT_EQ(m_operation.Finish(0u, 0), 0u);
    EXPECT_TRUE(m_operation.GetErrorMessage().isEmpty());
}

TEST_F(GeneralOperationTest, FailedLibraryIsThreeWithItsText)
{
    EXPECT_EQ(m_operation.Finish(1), 3u);
    EXPECT_EQ(m_operation.GetErrorMessage(), QString("Connection: no target is connected"));
    EXPECT_EQ(m_operation.Finish(-5), 3u);
    EXPECT_EQ(m_operation.GetErrorMessage(), QString("Unknown result"));
    EXPECT_EQ(m_operation.Finish(0u, 4), 3u);
    EXPECT_EQ(m_operation.GetErrorMessage(), QString("Target: failure on demand"));
}

TEST_F(GeneralOperationTest, StatusComesBeforeTheResult)
{
    EXPECT_EQ(m_operation.Finish(1u, 7), 203u);
    EXPECT_EQ(m_operation.GetErrorMessage(),
              QString("Status error code (1) :NL1TST_CNF_STATUS_FREQ_MISMATCH.\n\nDetails: "
                      "Frequency cannot be exactly mapped to NR-ARFCN."));
    EXPECT_EQ(CountCalls(kErrorString), 0);
}

TEST_F(GeneralOperationTest, UnknownStatusSaysSo)
{
    EXPECT_EQ(m_operation.Finish(5u, 0), 203u);
    EXPECT_EQ(m_operation.GetErrorMessage(),
              QString("Status error code (5) :Not found status descrption"));
    EXPECT_EQ(m_operation.Finish(4294967295u, 0), 203u);
    EXPECT_TRUE(m_operation.GetErrorMessage().startsWith("Status error code (4294967295) :"));
}

TEST_F(GeneralOperationTest, SuccessLeavesTheTextOfTheLastFailure)
{
    m_operation.Finish(4);
    EXPECT_EQ(m_operation.Finish(0), 0u);
    EXPECT_EQ(m_operation.Finish(0u, 0), 0u);
    EXPECT_EQ(m_operation.GetErrorMessage(), QString("Target: failure on demand"));
}

TEST_F(GeneralOperationTest, NullErrorTextLeavesAnEmptyMessageAndStillThree)
{
    m_operation.Finish(4);
    ASSERT_EQ(VondSim_AddFault(R"({"function": "VOND_GetErrorString", "kind": "nullText"})"), 0);
    EXPECT_EQ(m_operation.Finish(4), 3u);
    EXPECT_TRUE(m_operation.GetErrorMessage().isEmpty());
}

TEST_F(GeneralOperationTest, StatusTwoOfAnRsrpTestIsATargetFailureInWords)
{
    ASSERT_EQ(
        VondSim_AddFault(R"({"function": "VOND_NRf_RsrpV7_r", "kind": "status", "status": 2})"), 0);
    EXPECT_EQ(m_operation.RunRsrp(), 203u);
    EXPECT_EQ(m_operation.GetErrorMessage(),
              QString("Status error code (2) :NL1TST_CNF_STATUS_CELL_NOT_EXIST.\n\nDetails: Cell "
                      "SSB can't be detected."));
}

TEST_F(GeneralOperationTest, StatusWithAFailingResultOfTheTargetIsATargetFailure)
{
    Fault(kRsrp, 7);
    ASSERT_EQ(
        VondSim_AddFault(R"({"function": "VOND_NRf_RsrpV7_r", "kind": "status", "status": 1})"), 0);
    EXPECT_EQ(m_operation.RunRsrp(), 203u);
    EXPECT_EQ(JournalOf(kRsrp).value(0).call.result, 7);
}

}  // namespace
