// What all tests of the target door share: a fresh DUT and empty caches for each test.
//
//   TEST_F(CTargetTest, ...)
//   {
//       Plug("gen0");
//       Fault("VOND_NRf_GetRfCapability_r");
//       EXPECT_EQ(CTargetCapability().GetNrGeneration(), 0);
//   }
#pragma once

#include <string>

#include <gtest/gtest.h>

#include "Operations/capability/TargetCapability.h"
#include "tests/common/SimJournal.h"

constexpr uint32_t kHandle = 0x5A17;

constexpr char kQuery[] = "VOND_QueryFunctionSupported_r";
constexpr char kLteCapability[] = "VOND_ERf_GetRfCapability_r";
constexpr char kMmCapability[] = "VOND_MMRf_GetRfCapability_r";
constexpr char kNrCapability[] = "VOND_NRf_GetRfCapability_r";
constexpr char kRouteConfig[] = "VOND_MMRf_GetRouteConfigV7_r";
constexpr char kBandRxInfo[] = "VOND_NRf_GetBandRxInfo_r";
constexpr char kRxRouteValues[] = "VOND_NRf_GetRxRouteValues_r";
constexpr char kRouteDetail[] = "VOND_MMRf_GetRouteDetailV7_r";
constexpr char kContRx[] = "VOND_MMRf_ContRxV7_r";
constexpr char kMmStop[] = "VOND_MMRf_TestStopV7_r";
constexpr char kNrStop[] = "VOND_NRf_TestStop_r";
constexpr char kRsrp[] = "VOND_NRf_RsrpV7_r";
constexpr char kReport[] = "VOND_NRf_GetMixRxReportV7_r";
constexpr char kResetReport[] = "VOND_NRf_ResetMixRxReportV7_r";
constexpr char kPusch[] = "VOND_NRf_PuschTxV7_r";
constexpr char kDlFreq[] = "VOND_NRf_GetDlFreqV7_r";
constexpr char kSingleTone[] = "VOND_MMRf_SingleToneTxV7_r";
constexpr char kPdValue[] = "VOND_MMRf_GetPdValueV7_r";
constexpr char kGainSearch[] = "VOND_MMRf_GainSearchV7_r";
constexpr char kRssi[] = "VOND_MMRf_RssiV7_r";
constexpr char kErrorString[] = "VOND_GetErrorString";

// The handset profile, no faults, an empty journal, empty caches, the handle kHandle.
class CTargetTest : public ::testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    CTargetCapability m_target;
};

// Another DUT at the cable, and caches that know nothing of it; the journal starts anew.
void Plug(const std::string &profile);
// The handset with some keys of its profile replaced: R"("generation": 2)".
void PlugHandsetWith(const std::string &keys);
// The handset without the named function.
void PlugHandsetWithout(const std::string &function);

// Lets every call of a function fail with a result, answer a status, answer noise, or have bytes
// (as hex) at an offset of its answer.
void Fault(const std::string &function, int result = 4);
void AnswerStatus(const std::string &function, uint32_t status);
void Noise(const std::string &function, int seed);
void AnswerBytes(const std::string &function, int offset, const std::string &hex);
// The texts of results are null pointers.
void NoErrorTexts();

// One call of the function, on kHandle with the timeout of all operations and these request bytes.
void ExpectOneCall(const char *function, const QByteArray &request);

// A record as it lies in the journal.
template <typename Record>
Record RecordOf(const QByteArray &bytes)
{
    static_assert(std::is_trivially_copyable_v<Record>);
    Record record = {};
    EXPECT_EQ(static_cast<std::size_t>(bytes.size()), sizeof record);
    if (static_cast<std::size_t>(bytes.size()) == sizeof record)
        std::copy(bytes.begin(), bytes.end(), reinterpret_cast<char *>(&record));
    return record;
}

// The bytes of a record, as they pass to the target.
template <typename Record>
QByteArray BytesOf(const Record &record)
{
    static_assert(std::is_trivially_copyable_v<Record>);
    return QByteArray(reinterpret_cast<const char *>(&record), sizeof record);
}

// The flags as one text: "attempted", "attempted supported", ... or "".
std::string FlagText(const SVondSupportFlags &flags);

// Names of all calls of the journal, in order, but for the wording of results: whether a text is
// asked for hangs on the log level.
std::vector<std::string> CalledFunctions();
