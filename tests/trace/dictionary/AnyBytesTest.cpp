// Any bytes of any length are read, nothing behind them, and no byte of a whole record is left out or
// read twice.

#include <algorithm>
#include <memory>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "Trace/dictionary/Decode.h"
#include "Trace/dictionary/Number.h"
#include "Trace/dictionary/ValueText.h"

namespace {

using Bytes = std::vector<uint8_t>;

std::vector<const SLayout *> AllLayouts()
{
    std::vector<const SLayout *> layouts;
    for (int id = 0; id < static_cast<int>(EFunction::Count); ++id) {
        const SFunction &function = FunctionOf(static_cast<EFunction>(id));
        for (const SLayout *layout : {function.request, function.answer}) {
            if (layout != nullptr)
                layouts.push_back(layout);
        }
    }
    return layouts;
}

Bytes AnyBytes(std::size_t size, std::mt19937 &random)
{
    Bytes bytes(size);
    std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<uint8_t>(random()); });
    return bytes;
}

// An array of its own for each, so that the sanitizers see a byte too far.
struct SExact
{
    explicit SExact(const Bytes &bytes) : memory(new uint8_t[bytes.size()]), size(bytes.size())
    {
        std::copy(bytes.begin(), bytes.end(), memory.get());
    }
    std::span<const uint8_t> All() const { return {memory.get(), size}; }

    std::unique_ptr<uint8_t[]> memory;
    std::size_t size;
};

// What the fields of the bytes say, written into new ones; how often each byte was visited.
struct SCopy
{
    Bytes bytes;
    std::vector<int> visits;
    bool isCertain = true;
    std::size_t words = 0;
};

SCopy Copy(const SLayout &layout, const SExact &exact, const SRequestBytes &request = {})
{
    SCopy copy = {Bytes(exact.size), std::vector<int>(exact.size)};
    Decode(layout, exact.All(), request, [&](const SFieldValue &value) {
        const auto place = std::span(copy.bytes).subspan(value.offset, value.bytes.size());
        if (SizeOf(value.field->at.type) > 0)
            WriteNumber(value.field->at.type, value.number, place);
        else
            std::copy(value.bytes.begin(), value.bytes.end(), place.begin());
        for (std::size_t i = 0; i < value.bytes.size(); ++i)
            ++copy.visits[value.offset + i];
        copy.isCertain = copy.isCertain && value.isCertain;
        if (copy.words < 2000)
            copy.words += ValueText(value).size();
    });
    return copy;
}

TEST(AnyBytesTest, WholeRecordsComeBackAsTheyWere)
{
    std::mt19937 random(1);
    for (const SLayout *layout : AllLayouts()) {
        for (int run = 0; run < 3; ++run) {
            const Bytes bytes = AnyBytes(layout->size > 0 ? layout->size : 20, random);
            const SCopy copy = Copy(*layout, SExact(bytes));
            EXPECT_TRUE(copy.bytes == bytes) << layout->name;
            const bool isOnce = std::all_of(copy.visits.begin(), copy.visits.end(),
                                            [](int visits) { return visits == 1; });
            EXPECT_EQ(isOnce, copy.isCertain) << layout->name;
        }
    }
}

TEST(AnyBytesTest, CutAndLongRecordsAreReadAsFarAsTheyGo)
{
    std::mt19937 random(2);
    for (const SLayout *layout : AllLayouts()) {
        for (int run = 0; run < 40; ++run) {
            const std::size_t size = random() % (std::min<std::size_t>(layout->size, 20000) + 9);
            const Bytes bytes = AnyBytes(size, random);
            const SCopy copy = Copy(*layout, SExact(bytes));
            for (std::size_t i = 0; i < size; ++i) {
                if (copy.visits[i] > 0) {
                    ASSERT_EQ(copy.bytes[i], bytes[i]) << layout->name << " at " << i;
                }
            }
        }
    }
}

TEST(AnyBytesTest, MissingAndExtraBytesAreTold)
{
    const SLayout &layout = *FunctionOf(EFunction::ContRx).request;
    const Bytes bytes(layout.size + 5);
    const auto told = [&](std::size_t size) {
        const SExact exact(Bytes(bytes.begin(), bytes.begin() + static_cast<long>(size)));
        return Decode(layout, exact.All(), {}, [](const SFieldValue &) {});
    };
    EXPECT_EQ(told(layout.size).missing, 0u);
    EXPECT_EQ(told(layout.size).extra, 0u);
    EXPECT_EQ(told(layout.size - 3).missing, 3u);
    EXPECT_EQ(told(layout.size + 5).extra, 5u);
    EXPECT_EQ(told(0).missing, layout.size);
}

TEST(AnyBytesTest, RecordThatEndsBeforeItsChoiceShowsWhatIsThere)
{
    const SLayout &layout = *FunctionOf(EFunction::ContRx).request;
    std::vector<std::string> names;
    const Bytes bytes(14);
    Decode(layout, SExact(bytes).All(), {}, [&](const SFieldValue &value) {
        names.emplace_back(value.name);
        EXPECT_TRUE(value.isCertain);
    });
    EXPECT_EQ(names, (std::vector<std::string>{"routeKind", "lowPower", "dlBandwidth", "band"}));
}

TEST(AnyBytesTest, CutRequestDecidesNothing)
{
    const SFunction &rssi = FunctionOf(EFunction::Rssi);
    const Bytes answer(rssi.answer->size);
    const SExact request(Bytes(32));  // singlePath is the next byte
    EXPECT_FALSE(Copy(*rssi.answer, SExact(answer), {rssi.request, request.All()}).isCertain);
    const SExact longer(Bytes(33));
    EXPECT_TRUE(Copy(*rssi.answer, SExact(answer), {rssi.request, longer.All()}).isCertain);
}

TEST(AnyBytesTest, FunctionWithoutRecordHasNoFields)
{
    const Bytes bytes(4);
    const FieldVisitor none = [](const SFieldValue &) { FAIL(); };
    EXPECT_EQ(DecodeRequest(FunctionOf(EFunction::NrTestStop), bytes, none).extra, 4u);
    EXPECT_EQ(DecodeAnswer(FunctionOf(EFunction::ContRx), bytes, {}, none).extra, 4u);
}

}  // namespace
