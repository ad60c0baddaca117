// What a replay says: the texts of results, and the line about a call that is not in the trace.

#include <gtest/gtest.h>

#include "Vond/VondCore.h"
#include "tests/tap/replay/ReplayedCalls.h"

namespace {

constexpr uint32_t kChip = 40;

// The line on stderr when the request is asked and the trace has these calls.
template <class Request>
std::string LineOf(EFunction function, const Request &request, std::vector<STraceCall> calls)
{
    for (std::size_t i = 0; i < calls.size(); ++i)
        calls[i].index = i;
    const CReplay replay({}, std::move(calls));
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(Ask(replay, function, request), kNoCallLikeThis);
    return ::testing::internal::GetCapturedStderr();
}

TEST(ReplayTextTest, NearestCallIsTheOneWithTheFewestFieldsThatDiffer)
{
    SMMContRxCmdV7 asked = {};
    asked.band = 78;
    asked.dlFrequency = 3500000;
    SMMContRxCmdV7 far = asked;
    far.band = 1;
    far.dlFrequency = 2140000;
    SMMContRxCmdV7 near = asked;
    near.dlFrequency = 3600000;
    EXPECT_EQ(LineOf(EFunction::ContRx, asked,
                     {Recorded(EFunction::ContRx, far), Recorded(EFunction::ContRx, near)}),
              "Replay: VOND_MMRf_ContRxV7_r: no call like this in the trace; the nearest, call 1, "
              "has dlFrequency 3600000 kHz in place of 3500000 kHz\n");
}

TEST(ReplayTextTest, FieldsOfAUnionAreNamedAsTheRequestHasThem)
{
    SNrPuschTxCmdV7 asked = {};
    asked.normalMode.ulCCNum = 2;
    asked.normalMode.carrier[1].band = 41;
    SNrPuschTxCmdV7 recorded = asked;
    recorded.normalMode.carrier[1].band = 77;
    EXPECT_EQ(LineOf(EFunction::PuschTx, asked, {Recorded(EFunction::PuschTx, recorded)}),
              "Replay: VOND_NRf_PuschTxV7_r: no call like this in the trace; the nearest, call 0, "
              "has normalMode.carrier[1].band n77 in place of n41\n");
}

TEST(ReplayTextTest, ManyDifferencesAreOneLineThatCountsTheRest)
{
    SMMRfRouteDetailReqV7 asked = {};
    SMMRfRouteDetailReqV7 recorded = {};
    std::memset(&recorded, 1, sizeof(recorded));
    const std::string line =
        LineOf(EFunction::RouteDetail, asked, {Recorded(EFunction::RouteDetail, recorded)});
    EXPECT_EQ(std::count(line.begin(), line.end(), '\n'), 1);
    EXPECT_LT(line.size(), 2000u);
    EXPECT_NE(line.find(" more\n"), std::string::npos) << line;
}

TEST(ReplayTextTest, RequestOfAnotherSizeOrNoneIsToldSo)
{
    const SVondCapabilityReq sizes = {56, 180};
    EXPECT_EQ(
        LineOf(EFunction::LteCapability, sizes, {Recorded(EFunction::LteCapability, uint32_t{56})}),
        "Replay: VOND_ERf_GetRfCapability_r: no call like this in the trace; the nearest, call "
        "0, has calibrationSize absent in place of 180 bytes, (size) 4 bytes in place of 8 "
        "bytes\n");
    EXPECT_EQ(
        LineOf(EFunction::LteCapability, sizes, {Recorded(EFunction::LteCapability)}),
        "Replay: VOND_ERf_GetRfCapability_r: no call like this in the trace; the nearest, call "
        "0, has a null pointer in place of 8 bytes\n");
}

TEST(ReplayTextTest, AnotherSizeCountsAsADifference)
{
    const SVondCapabilityReq asked = {56, 180};
    struct
    {
        SVondCapabilityReq sizes = {56, 180};
        uint32_t more = 0;
    } const longer;
    const STraceCall ofOtherSize = Recorded(EFunction::LteCapability, longer);
    const STraceCall ofOtherField = Recorded(EFunction::LteCapability, SVondCapabilityReq{56, 181});
    EXPECT_NE(LineOf(EFunction::LteCapability, asked, {ofOtherField, ofOtherSize})
                  .find("call 0, has calibrationSize 181 bytes in place of 180 bytes"),
              std::string::npos);
    EXPECT_NE(LineOf(EFunction::LteCapability, asked, {ofOtherSize, ofOtherField})
                  .find("call 0, has (size) 12 bytes in place of 8 bytes"),
              std::string::npos);
}

TEST(ReplayTextTest, NameWithoutAnyCharacterIsARequestToo)
{
    const CReplay replay({}, {Recorded(EFunction::QueryFunctionSupported)});
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(replay.Answer({.function = EFunction::QueryFunctionSupported, .request = ""}),
              kNoCallLikeThis);
    EXPECT_EQ(::testing::internal::GetCapturedStderr(),
              "Replay: VOND_QueryFunctionSupported_r: no call like this in the trace; the nearest, "
              "call 0, has a null pointer in place of 0 bytes\n");
}

TEST(ReplayTextTest, TraceWithoutThatFunctionIsToldSo)
{
    STraceCall open = Recorded(EFunction::ContRx);
    open.isEnded = false;
    EXPECT_EQ(
        LineOf(EFunction::ContRx, SMMContRxCmdV7(), {Recorded(EFunction::NrTestStop), open}),
        "Replay: VOND_MMRf_ContRxV7_r: no call like this in the trace; it has no call of that "
        "function; calls that had not come back: 1\n");
}

TEST(ReplayTextTest, CallThatIsNotThereLeavesAnswerAndStatus)
{
    const CReplay replay({}, {});
    const SNrPuschTxCmdV7 command = {};
    uint32_t status = 9;
    int16_t answer = 8;
    SAskedCall call = Asked(EFunction::PuschTx, command);
    call.status = &status;
    call.answer = &answer;
    call.answerSize = sizeof(answer);
    EXPECT_EQ(replay.Answer(call), kNoCallLikeThis);
    EXPECT_EQ(status, 9u);
    EXPECT_EQ(answer, 8);
}

TEST(ReplayTextTest, OwnResultsHaveTheirTextsInAnyTrace)
{
    for (const bool isStrict : {false, true}) {
        const CReplay replay({.file = "", .isStrict = isStrict}, {});
        EXPECT_EQ(TextOf(replay, 13001), "Replay: no call like this in the trace");
        EXPECT_EQ(TextOf(replay, 13002), "Replay: the trace cannot be used");
    }
}

TEST(ReplayTextTest, ResultHasTheTextThatTheTraceHasForIt)
{
    STraceCall failed = Recorded(EFunction::NrTestStop, SNone(), SNone(), 7);
    failed.text = "DUT is busy";
    const CReplay replay(
        {}, {failed, Recorded(EFunction::GetErrorString, int32_t{9}, std::string_view("No link"))});
    EXPECT_EQ(TextOf(replay, 7), "DUT is busy");
    EXPECT_EQ(TextOf(replay, 9), "No link");
    EXPECT_STREQ(replay.TextOf(9), "No link");
    EXPECT_EQ(TextOf(replay, 8), "null");
    EXPECT_EQ(replay.TextOf(8), nullptr);
}

TEST(ReplayTextTest, ChipNameIsTheRecordedOneAlsoWhenItWasNull)
{
    const CReplay replay({}, {Recorded(EFunction::NrChipName, kChip, std::string_view("NR-40")),
                              Recorded(EFunction::NrChipName, kChip + 1)});
    EXPECT_STREQ(replay.AnswerText(Asked(EFunction::NrChipName, kChip)), "NR-40");
    EXPECT_STREQ(replay.AnswerText(Asked(EFunction::NrChipName, kChip)), "NR-40");
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(replay.AnswerText(Asked(EFunction::NrChipName, kChip + 1)), nullptr);
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(replay.AnswerText(Asked(EFunction::LteChipName, kChip)), nullptr);
    EXPECT_NE(::testing::internal::GetCapturedStderr().find("VOND_ERf_GetChipIdName"),
              std::string::npos);
}

}  // namespace
