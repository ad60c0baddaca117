// Faults on the calibration functions: results, verdicts and nonsense on demand.

#include <algorithm>

#include "tests/simulator/flash/CalFixture.h"

namespace {

class CalFaultTest : public CCalTest
{
protected:
    void Add(const std::string &json) { ASSERT_EQ(VondSim_AddFault(json.c_str()), 0) << json; }

    static VOND_RESULT Get(SMMGetCalDataCnfV7 &answer)
    {
        CCalUpload upload;
        upload.Type1(5, 1);
        return VOND_MMRf_GetCalDataV7_r(kHandle, kTimeoutMs, &upload.Request(), &answer);
    }

    static VOND_RESULT Set(CCalDownload &download, SMMSetCalDataCnfV7 &answer)
    {
        return VOND_MMRf_SetCalDataV7_r(kHandle, kTimeoutMs, &download.Request(), &answer);
    }

    // A download that changes one value of type 1 route 5.
    static CCalDownload Change()
    {
        std::vector<SType1Block> blocks = Type1(5);
        blocks[0].plOffset[0] = 777;
        CCalDownload download;
        download.Type1(5, blocks);
        return download;
    }
};

TEST_F(CalFaultTest, ResultElevenComesByFaultAndLeavesTheAnswerAlone)
{
    Add(R"({"function": "VOND_MMRf_GetCalDataV7_r", "kind": "fail", "result": 11})");
    auto answer = std::make_unique<SMMGetCalDataCnfV7>();
    EXPECT_EQ(Get(*answer), 11);
    EXPECT_EQ(answer->verdict.status, 0);
    EXPECT_EQ(answer->type1Count, 0);
    EXPECT_EQ(LastCall().answerSize, 0u);
}

TEST_F(CalFaultTest, FailedDownloadChangesNothing)
{
    const int16_t before = Type1(5)[0].plOffset[0];
    CCalDownload download = Change();
    Add(R"({"function": "VOND_MMRf_SetCalDataV7_r", "kind": "fail", "result": 11, "nth": 1})");
    SMMSetCalDataCnfV7 answer = {};
    EXPECT_EQ(Set(download, answer), 11);
    EXPECT_EQ(Type1(5)[0].plOffset[0], before);
    EXPECT_EQ(Set(download, answer), VOND_SUCCESS);
    EXPECT_EQ(answer.status, 1);
    EXPECT_EQ(Type1(5)[0].plOffset[0], 777);
}

TEST_F(CalFaultTest, SecondRoundCanFail)
{
    Add(R"({"function": "VOND_MMRf_GetCalDataV7_r", "kind": "fail", "result": 7, "nth": 2})");
    auto answer = std::make_unique<SMMGetCalDataCnfV7>();
    EXPECT_EQ(Get(*answer), VOND_SUCCESS);
    EXPECT_EQ(Get(*answer), 7);
    EXPECT_EQ(Get(*answer), VOND_SUCCESS);
}

TEST_F(CalFaultTest, VerdictComesByBytes)
{
    // Status 0 and "no" in the text of TX.
    Add(R"({"function": "VOND_MMRf_SetCalDataV7_r", "kind": "bytes", "hex": "00"})");
    Add(R"({"function": "VOND_MMRf_SetCalDataV7_r", "kind": "bytes", "offset": 129,
            "hex": "6e6f"})");
    CCalDownload download = Change();
    SMMSetCalDataCnfV7 answer = {};
    EXPECT_EQ(Set(download, answer), VOND_SUCCESS);
    EXPECT_EQ(answer.status, 0);
    EXPECT_STREQ(answer.txText, "no");
}

TEST_F(CalFaultTest, ResultElevenMayComeWithStatusOne)
{
    Add(R"({"function": "VOND_MMRf_GetCalDataV7_r", "kind": "fail", "result": 11})");
    Add(R"({"function": "VOND_MMRf_GetCalDataV7_r", "kind": "bytes", "hex": "01"})");
    auto answer = std::make_unique<SMMGetCalDataCnfV7>();
    EXPECT_EQ(Get(*answer), 11);
    EXPECT_EQ(answer->verdict.status, 1);
}

TEST_F(CalFaultTest, BlockInfoCanFail)
{
    Add(R"({"function": "VOND_MMRf_GetCalBlkInfoV7_r", "kind": "fail"})");
    auto info = std::make_unique<SMMCalBlkInfoCnfV7>();
    EXPECT_EQ(ErrorText(VOND_MMRf_GetCalBlkInfoV7_r(kHandle, kTimeoutMs, 1, info.get())),
              "Target: failure on demand");
    EXPECT_EQ(info->txCount, 0);
}

TEST_F(CalFaultTest, CountsOfTheBlockInfoCanLie)
{
    Add(R"({"function": "VOND_MMRf_GetCalBlkInfoV7_r", "kind": "bytes", "hex": "ffffffffffff"})");
    auto info = std::make_unique<SMMCalBlkInfoCnfV7>();
    EXPECT_EQ(VOND_MMRf_GetCalBlkInfoV7_r(kHandle, kTimeoutMs, 1, info.get()), VOND_SUCCESS);
    EXPECT_EQ(info->type1Count, 65535);
    EXPECT_EQ(info->txCount, 65535);
    EXPECT_EQ(info->type1[0].route, 1);
}

TEST_F(CalFaultTest, NoiseFillsWholeAnswersAndTheDownloadIsDone)
{
    CCalDownload download = Change();
    Add(R"({"function": "*", "kind": "noise", "seed": 5})");
    auto answer = std::make_unique<SMMGetCalDataCnfV7>();
    EXPECT_EQ(Get(*answer), VOND_SUCCESS);
    const auto *bytes = reinterpret_cast<const uint8_t *>(answer.get());
    EXPECT_LT(std::count(bytes, bytes + sizeof(*answer), 0), 2000);
    auto info = std::make_unique<SMMCalBlkInfoCnfV7>();
    EXPECT_EQ(VOND_MMRf_GetCalBlkInfoV7_r(kHandle, kTimeoutMs, 1, info.get()), VOND_SUCCESS);
    EXPECT_GT(info->txCount, 100);
    SMMSetCalDataCnfV7 verdict = {};
    EXPECT_EQ(Set(download, verdict), VOND_SUCCESS);
    EXPECT_NE(verdict.txText[63], '\0');
    VondSim_ClearFaults();
    EXPECT_EQ(Type1(5)[0].plOffset[0], 777);
}

TEST_F(CalFaultTest, StatusWordsDoNotGoWithThem)
{
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(VondSim_AddFault(
                  R"({"function": "VOND_MMRf_SetCalDataV7_r", "kind": "status", "status": 1})"),
              -1);
    EXPECT_NE(::testing::internal::GetCapturedStderr().find("does not go"), std::string::npos);
}

TEST_F(CalFaultTest, UploadCanTimeOut)
{
    Add(R"({"function": "VOND_MMRf_GetCalDataV7_r", "kind": "delay", "ms": 600000})");
    CCalUpload upload;
    auto answer = std::make_unique<SMMGetCalDataCnfV7>();
    EXPECT_EQ(ErrorText(VOND_MMRf_GetCalDataV7_r(kHandle, 20, &upload.Request(), answer.get())),
              "Connection: the target did not answer in time");
}

}  // namespace
