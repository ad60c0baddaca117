// What the table of functions says about calls.

#include "Trace/dictionary/Functions.h"

#include <set>

#include <gtest/gtest.h>

#include "Trace/dictionary/Decode.h"
#include "Vond/VondCore.h"

namespace {

std::set<std::string> Readings(EFunction id)
{
    const SFunction &function = FunctionOf(id);
    std::set<std::string> names;
    const std::vector<uint8_t> bytes(function.answer->size);
    DecodeAnswer(function, bytes, {}, [&](const SFieldValue &value) {
        if (value.isReading)
            names.emplace(value.name);
    });
    return names;
}

TEST(FunctionsTest, FunctionsAreFoundByTheirName)
{
    for (int id = 0; id < static_cast<int>(EFunction::Count); ++id) {
        const SFunction &function = FunctionOf(static_cast<EFunction>(id));
        EXPECT_EQ(FindFunction(function.name), &function);
    }
    EXPECT_EQ(FindFunction("VOND_Nothing"), nullptr);
}

TEST(FunctionsTest, RecordsAreThoseOfTheInterface)
{
    EXPECT_EQ(FunctionOf(EFunction::SetCalData).request->size, sizeof(SMMSetCalDataReqV7));
    EXPECT_EQ(FunctionOf(EFunction::SetCalData).answer->size, sizeof(SMMSetCalDataCnfV7));
    EXPECT_EQ(FunctionOf(EFunction::GetPdValue).answer->size, sizeof(int16_t));
    EXPECT_EQ(FunctionOf(EFunction::ContRx).answer, nullptr);
    EXPECT_EQ(FunctionOf(EFunction::NrTestStop).request, nullptr);
}

TEST(FunctionsTest, RssiAnswerAloneHangsOnItsRequest)
{
    for (int id = 0; id < static_cast<int>(EFunction::Count); ++id) {
        const SFunction &function = FunctionOf(static_cast<EFunction>(id));
        EXPECT_EQ(function.HangsOnRequest(), function.id == EFunction::Rssi) << function.name;
        if (function.HangsOnRequest()) {
            EXPECT_TRUE(HasWhatDecides(*function.request, *function.answer)) << function.name;
        }
    }
}

TEST(FunctionsTest, StatusWordIsWhereTheTableSays)
{
    for (int id = 0; id < static_cast<int>(EFunction::Count); ++id) {
        const SFunction &function = FunctionOf(static_cast<EFunction>(id));
        if (function.status == EStatusPlace::Answer) {
            EXPECT_TRUE(CanDecide(*function.answer, "status")) << function.name;
        }
    }
    EXPECT_EQ(FunctionOf(EFunction::GetDlFreq).status, EStatusPlace::Answer);
    EXPECT_EQ(FunctionOf(EFunction::Rsrp).status, EStatusPlace::Argument);
}

TEST(FunctionsTest, ReadingsAreWhatIsMeasured)
{
    EXPECT_EQ(Readings(EFunction::GetPdValue), (std::set<std::string>{"value"}));
    EXPECT_EQ(Readings(EFunction::Rssi).size(), 5u * 2 + 5u * 4);
    EXPECT_EQ(Readings(EFunction::Rssi).count("rows.single.row[0].rssiDiv"), 1u);
    EXPECT_EQ(Readings(EFunction::GetMixRxReport).size(), 8u * 10 + 2);
    EXPECT_TRUE(Readings(EFunction::GainSearch).empty());
    EXPECT_TRUE(Readings(EFunction::RouteConfig).empty());
    EXPECT_TRUE(Readings(EFunction::GetCalData).empty());
}

TEST(FunctionsTest, EntriesOfAnUploadCarryTheirRemark)
{
    const SFunction &function = FunctionOf(EFunction::GetCalData);
    const std::vector<uint8_t> bytes(function.answer->size);
    int remarks = 0;
    DecodeAnswer(function, bytes, {}, [&](const SFieldValue &value) {
        EXPECT_EQ(value.name.starts_with("tx["), !value.remark.empty()) << value.name;
        remarks += !value.remark.empty();
    });
    EXPECT_EQ(remarks, 3 * kVondCalTxBlocks);
}

}  // namespace
