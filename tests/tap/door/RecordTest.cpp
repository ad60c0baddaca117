// What a recording has of the calls.
#include <algorithm>
#include <fstream>

#include "tests/tap/door/TapRun.h"

namespace {

class RecordTest : public CTapRun
{
protected:
    // The n-th call of a function.
    static STraceCall CallOf(const STrace &trace, const std::string &name, std::size_t n = 0)
    {
        for (const STraceCall &call : trace.calls) {
            if (call.function->name == name && n-- == 0)
                return call;
        }
        ADD_FAILURE() << "no call of " << name;
        return {};
    }
};

TraceBytes Filled(std::size_t size, uint8_t byte)
{
    return std::vector<uint8_t>(size, byte);
}

TraceBytes Text(const std::string &text)
{
    return std::vector<uint8_t>(text.begin(), text.end());
}

// What the host's request buffer begins with.
TraceBytes RequestOfHost(std::size_t size)
{
    std::vector<uint8_t> bytes(size);
    for (std::size_t i = 0; i < size; ++i)
        bytes[i] = static_cast<uint8_t>(i * 7);
    return bytes;
}

TEST_F(RecordTest, HostNoticesNothing)
{
    const SRan bare = Run("TapHost", {"calls"}, {}, "");
    const SRan recorded = Record("TapHost", {"calls"});
    EXPECT_EQ(recorded.exitCode, 0);
    EXPECT_EQ(recorded.errors, "");
    EXPECT_EQ(recorded.out, bare.out);
}

TEST_F(RecordTest, EveryFunctionIsOnRecord)
{
    const SRan ran = Record("TapHost", {"calls"});
    const STrace trace = Trace();
    ASSERT_EQ(trace.calls.size(), 42u);
    for (std::size_t i = 0; i < static_cast<std::size_t>(EFunction::Count); ++i) {
        const SFunction &function = FunctionOf(static_cast<EFunction>(i));
        EXPECT_TRUE(std::any_of(trace.calls.begin(), trace.calls.end(), [&](const auto &call) {
            return call.function == &function && call.isEnded;
        })) << function.name;
    }
    for (std::size_t i = 0; i < trace.calls.size(); ++i) {
        EXPECT_EQ(trace.calls[i].index, i);
        EXPECT_EQ(trace.calls[i].process, static_cast<uint64_t>(ran.process));
        EXPECT_EQ(trace.calls[i].thread, static_cast<uint64_t>(ran.process));
    }
}

// The pair's multi-mode capability asks its LTE capability.
TEST_F(RecordTest, CallsOfThePairItselfAreNotOnRecord)
{
    Record("TapHost", {"calls"});
    std::size_t count = 0;
    for (const STraceCall &call : Trace().calls)
        count += call.function->id == EFunction::LteCapability ? 1 : 0;
    EXPECT_EQ(count, 1u);
}

TEST_F(RecordTest, HeaderNamesThePair)
{
    Record("TapHost", {"calls"});
    const STrace trace = Trace();
    EXPECT_EQ(trace.header.core, "libVondCore.so");
    EXPECT_EQ(trace.header.app, "libVondApp.so");
    EXPECT_EQ(trace.header.coreBuildId.size(), 40u);
    EXPECT_EQ(trace.header.appBuildId.size(), 40u);
    EXPECT_NE(trace.header.coreBuildId, trace.header.appBuildId);
    EXPECT_FALSE(trace.header.tool.empty());
}

TEST_F(RecordTest, RecordsAreWhole)
{
    Record("TapHost", {"calls"});
    const STrace trace = Trace();
    const STraceCall detail = CallOf(trace, "VOND_MMRf_GetRouteDetailV7_r");
    EXPECT_EQ(detail.request, RequestOfHost(18380));
    EXPECT_EQ(detail.answer, Filled(183716, 7));
    const STraceCall download = CallOf(trace, "VOND_MMRf_SetCalDataV7_r");
    EXPECT_EQ(download.request, RequestOfHost(178096));
    EXPECT_EQ(download.answer, Filled(193, 22));
    const STraceCall search = CallOf(trace, "VOND_MMRf_GainSearchV7_r");  // unaligned
    EXPECT_EQ(search.answer, Filled(28, 11));
    const STraceCall report = CallOf(trace, "VOND_NRf_GetMixRxReportV7_r");  // failed, untouched
    EXPECT_EQ(report.result, 6);
    EXPECT_EQ(report.answer, Filled(172, 0xcc));
    EXPECT_EQ(CallOf(trace, "VondConn_GetMdSrv").request, (std::vector<uint8_t>{9, 0, 0, 0}));
    EXPECT_EQ(CallOf(trace, "VondConn_GetMdSrv").answer, (std::vector<uint8_t>{10, 0, 0, 0}));
    EXPECT_EQ(CallOf(trace, "VOND_MMRf_GetPdValueV7_r").timeoutMs, 15u);
}

// The pair writes its answer over the request; on record is what was asked.
TEST_F(RecordTest, OneRecordForRequestAndAnswerIsToldAsBothWere)
{
    Record("TapHost", {"calls"});
    const STraceCall call = CallOf(Trace(), "VOND_MMRf_RssiV7_r");
    EXPECT_EQ(call.request, Filled(60, 0xcc));
    EXPECT_EQ(call.answer, Filled(76, 12));
}

TEST_F(RecordTest, NullPointersAndSizesOfZeroAreAsTheyWere)
{
    Record("TapHost", {"calls"});
    const STrace trace = Trace();
    EXPECT_EQ(CallOf(trace, "VOND_QueryFunctionSupported_r").request, Text("VOND_NRf_TestStop_r"));
    EXPECT_EQ(CallOf(trace, "VOND_QueryFunctionSupported_r", 1).request, std::nullopt);
    EXPECT_EQ(CallOf(trace, "VOND_QueryFunctionSupported_r", 2).request, Text(""));
    EXPECT_EQ(CallOf(trace, "VOND_MMRf_GetRfCapability_r").request, Text(""));
    EXPECT_EQ(CallOf(trace, "VOND_MMRf_GetRfCapability_r").answer, Text(""));
    EXPECT_EQ(CallOf(trace, "VOND_NRf_GetRfCapability_r").request, std::nullopt);
    EXPECT_EQ(CallOf(trace, "VOND_NRf_GetRfCapability_r").answer, std::nullopt);
    EXPECT_EQ(CallOf(trace, "VOND_NRf_GetRfCapability_r", 1).answer, Filled(9, 3));
    EXPECT_EQ(CallOf(trace, "VOND_MMRf_RssiV7_r", 1).answer, std::nullopt);
    EXPECT_EQ(CallOf(trace, "VondConn_GetMdSrv", 1).answer, std::nullopt);
    EXPECT_EQ(CallOf(trace, "VOND_NRf_TestStop_r").request, std::nullopt);
}

TEST_F(RecordTest, PointersToNowhereAreAsNullAndHurtNobody)
{
    Record("TapHost", {"calls"});
    const STrace trace = Trace();
    EXPECT_EQ(CallOf(trace, "VOND_MMRf_ContRxV7_r", 2).request, std::nullopt);
    EXPECT_EQ(CallOf(trace, "VOND_NRf_GetDlFreqV7_r", 1).answer, std::nullopt);
    EXPECT_EQ(CallOf(trace, "VOND_NRf_GetDlFreqV7_r", 1).status, 0u);
    EXPECT_EQ(CallOf(trace, "VOND_NRf_PuschTxV7_r", 2).request, Filled(6, 0xee));
    EXPECT_EQ(CallOf(trace, "VOND_NRf_PuschTxV7_r", 2).status, 0u);
    EXPECT_EQ(CallOf(trace, "VOND_NRf_GetRxRouteValues_r", 1).answer, Filled(6, 0xee));
}

TEST_F(RecordTest, ResultsTextsAndStatusAreThePairs)
{
    Record("TapHost", {"calls"});
    const STrace trace = Trace();
    EXPECT_EQ(CallOf(trace, "VOND_NRf_TestStop_r").result, 7);
    EXPECT_EQ(CallOf(trace, "VOND_NRf_TestStop_r").text, "fake 7");
    EXPECT_EQ(CallOf(trace, "VOND_MMRf_RssiV7_r").result, 13);
    EXPECT_EQ(CallOf(trace, "VOND_MMRf_RssiV7_r").text, "");  // the pair has none
    EXPECT_EQ(CallOf(trace, "VOND_NRf_PuschTxV7_r", 1).text, "bad \xef\xbf\xbd \"text\"");
    EXPECT_EQ(CallOf(trace, "VOND_NRf_PuschTxV7_r").status, 8u);
    EXPECT_EQ(CallOf(trace, "VOND_NRf_PuschTxV7_r", 1).status, 0u);  // a null pointer
    EXPECT_EQ(CallOf(trace, "VOND_NRf_GetDlFreqV7_r").status, 0x0a0a0a0au);
    EXPECT_EQ(CallOf(trace, "VOND_GetErrorString").request, (std::vector<uint8_t>{7, 0, 0, 0}));
    EXPECT_EQ(CallOf(trace, "VOND_GetErrorString").answer, Text("fake 7"));
    EXPECT_EQ(CallOf(trace, "VOND_GetErrorString").text, "");
    EXPECT_EQ(CallOf(trace, "VOND_GetErrorString", 1).answer, std::nullopt);
    EXPECT_EQ(CallOf(trace, "VOND_ERf_GetChipIdName").answer, Text("FK11"));
    EXPECT_EQ(CallOf(trace, "VOND_NRf_GetChipIdName").answer, std::nullopt);
}

TEST_F(RecordTest, DurationIsThatOfTheCall)
{
    Record("TapHost", {"calls"});
    const STrace trace = Trace();
    EXPECT_GE(CallOf(trace, "VOND_MMRf_SingleToneTxV7_r").durationNs, 20'000'000u);
    EXPECT_LT(CallOf(trace, "VOND_NRf_TestStop_r").durationNs, 20'000'000u);
    for (std::size_t i = 1; i < trace.calls.size(); ++i)
        EXPECT_GE(trace.calls[i].startNs, trace.calls[i - 1].startNs);
}

TEST_F(RecordTest, PairOfAPluginIsFoundAndUnloadedWithIt)
{
    const SRan ran = Record("TapLoader", {FilePath("libTapPlugin.so")});
    EXPECT_EQ(ran.errors, "");
    // The pair is loaded anew each time; the tap asks it once each time for a text or two.
    EXPECT_EQ(ran.exitCode, 0);
    const STrace trace = Trace();
    EXPECT_EQ(trace.calls.size(), 18u);
    EXPECT_EQ(trace.header.core, "libVondCore.so");
    EXPECT_EQ(trace.calls[15].text, "fake 7");
}

TEST_F(RecordTest, NotesStandBetweenTheCalls)
{
    EXPECT_EQ(Run("TapHost", {"notes"}, {}, "").out, "no tap\n");
    EXPECT_EQ(Run("TapHost", {"notes"}).errors, "");
    const SRan ran = Record("TapHost", {"notes"});
    EXPECT_EQ(ran.out + ran.errors, "");
    const STrace trace = Trace();
    ASSERT_EQ(trace.notes.size(), 2u);
    EXPECT_EQ(trace.notes[0].text, "the beginning");
    EXPECT_EQ(trace.notes[0].before, 0u);
    EXPECT_EQ(trace.notes[1].text, "quote \" and \xc3\xa4 and \xef\xbf\xbd");
    EXPECT_EQ(trace.notes[1].before, 1u);
    EXPECT_EQ(trace.calls.size(), 2u);
}

}  // namespace
