// The proofs fail on tables that a hand may write by mistake.

#include <gtest/gtest.h>

#include "Trace/dictionary/Layouts.h"
#include "Trace/dictionary/ResultLayouts.h"

namespace {

constexpr SField Number(std::string_view name, uint32_t offset, EBranch branch = EBranch::Always)
{
    return {.at = {.name = name, .offset = offset, .type = EFieldType::U16, .size = 2},
            .branch = branch};
}

constexpr SLayout Layout(std::span<const SField> fields, uint32_t size, SChoice choice = {})
{
    return {.name = "record", .size = size, .fields = fields, .choice = choice};
}

constexpr SField kGood[] = {Number("a", 0), Number("b", 2)};
static_assert(IsSound(Layout(kGood, 4)));
static_assert(!IsSound(Layout(kGood, 3)), "too long");
static_assert(!IsSound(Layout(kGood, 6)), "a gap at the end");
static_assert(!IsSound(Layout({}, 0)), "no row");

constexpr SField kGap[] = {Number("a", 0), Number("b", 4)};
static_assert(!IsSound(Layout(kGap, 6)));

constexpr SField kOverlap[] = {Number("a", 0), Number("b", 1)};
static_assert(!IsSound(Layout(kOverlap, 3)));

constexpr SField kOrder[] = {Number("b", 2), Number("a", 0)};
static_assert(!IsSound(Layout(kOrder, 4)));

constexpr SField kTwins[] = {Number("a", 0), Number("a", 2)};
static_assert(!IsSound(Layout(kTwins, 4)));

constexpr SField kUnion[] = {Number("which", 0), Number("a", 2, EBranch::Chosen),
                             Number("b", 2, EBranch::Otherwise)};
static_assert(IsSound(Layout(kUnion, 4, {.field = "which"})));
static_assert(!IsSound(Layout(kUnion, 4)), "nothing decides");
static_assert(!IsSound(Layout(kUnion, 4, {.field = "who"})), "no such field");
static_assert(!IsSound(Layout(kUnion, 4, {.field = "a"})), "it does not always hold");
static_assert(IsSound(Layout(kUnion, 4, {.field = "who", .isOfRequest = true})));

constexpr SField kHalfUnion[] = {Number("which", 0), Number("a", 2, EBranch::Chosen)};
static_assert(!IsSound(Layout(kHalfUnion, 4, {.field = "which"})), "the other layout has a gap");

constexpr SLayout kInner = Layout(kGood, 4);
constexpr SField kOuter[] = {
    {.at = {.name = "inner", .type = EFieldType::Record, .size = 4, .record = &kInner}}};
static_assert(IsSound(Layout(kOuter, 4)));
constexpr SField kWrongInner[] = {
    {.at = {.name = "inner", .type = EFieldType::Record, .size = 6, .record = &kInner}}};
static_assert(!IsSound(Layout(kWrongInner, 6)), "the inner record does not fill its room");

constexpr SField kThirds[] = {
    {.at = {.name = "a", .type = EFieldType::U16, .size = 2}, .unit = {"dB", 3}}};
static_assert(!IsSound(Layout(kThirds, 2)), "thirds have no end");
constexpr SField kTextInDb[] = {
    {.at = {.name = "a", .type = EFieldType::Text, .size = 2}, .unit = {"dB", 32}}};
static_assert(!IsSound(Layout(kTextInDb, 2)), "a text has no unit");

constexpr SField kShort[] = {{.at = {.name = "a", .type = EFieldType::U32, .size = 4}}};
constexpr SLayout kRequest = Layout(kShort, 4);
constexpr SLayout kAnswer = Layout(kUnion, 4, {.field = "a", .isOfRequest = true});
static_assert(HasWhatDecides(kRequest, kAnswer));
static_assert(!HasWhatDecides({}, kAnswer), "no request");
static_assert(!HasWhatDecides(kRequest, kLayoutOf<SMMRssiCnfV7>), "it has no singlePath");
static_assert(HasWhatDecides({}, kInner), "nothing is asked for");

struct SPadded
{
    uint8_t a;
    uint32_t b;
};
constexpr SField kPadded[] = {{.at = TRACE_AT(SPadded, a, 0)}, {.at = TRACE_AT(SPadded, b, 4)}};
static_assert(!IsSound(Layout(kPadded, sizeof(SPadded))), "bytes between members are a gap");

struct SMembers
{
    int16_t grid[2][3];
    char name[2][8];
    uint8_t reserved22[4];
    uint16_t reserved;
};

TEST(SoundnessTest, RowKnowsWhatItsMemberIs)
{
    constexpr SFieldPlace grid = TRACE_AT(SMembers, grid, 0);
    EXPECT_EQ(grid.type, EFieldType::I16);
    EXPECT_EQ(grid.size, 2u);
    EXPECT_EQ(CountOf(grid), 6u);
    EXPECT_EQ(grid.extents, (std::array<uint16_t, 3>{2, 3, 0}));
    constexpr SFieldPlace name = TRACE_AT(SMembers, name, 12);
    EXPECT_EQ(name.type, EFieldType::Text);
    EXPECT_EQ(name.size, 8u);
    EXPECT_EQ(CountOf(name), 2u);
    for (const SFieldPlace &reserved :
         {TRACE_AT(SMembers, reserved22, 28), TRACE_AT(SMembers, reserved, 32)}) {
        EXPECT_EQ(reserved.type, EFieldType::Bytes);
        EXPECT_TRUE(reserved.isReserved);
        EXPECT_EQ(CountOf(reserved), 1u);
    }
    EXPECT_FALSE(grid.isReserved);
}

TEST(SoundnessTest, RecordsKeepTheirSizes)
{
    EXPECT_EQ(kLayoutOf<SMMRssiCnfV7>.size, 76u);
    EXPECT_EQ(kLayoutOf<SMMRssiCnfV7>.name, "SMMRssiCnfV7");
}

}  // namespace
