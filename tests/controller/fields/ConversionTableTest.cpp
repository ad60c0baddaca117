// Modulations, subcarrier spacings and RB counts, row by row.
#include <vector>

#include <gtest/gtest.h>

#include "Controller/fields/CommandConversions.h"
#include "Support/Log.h"
#include "tests/common/LogCapture.h"

namespace {

struct SRow
{
    const char *text;
    uint32_t value;
};

using Rows = std::vector<SRow>;

const Rows kMcs = {{"DFT_S_BPSK", 0},  {"CP_QPSK", 1},     {"DFT_S_QPSK", 2},
                   {"CP_16QAM", 3},    {"DFT_S_16QAM", 4}, {"CP_64QAM", 5},
                   {"DFT_S_64QAM", 6}, {"CP_256QAM", 7},   {"DFT_S_256QAM", 8}};
const Rows kScs = {{"15", 0}, {"30", 1}, {"60", 2}};
const Rows kRb15 = {{"25", 5000},   {"52", 10000},  {"97", 15000},  {"106", 20000},
                    {"133", 25000}, {"160", 30000}, {"216", 40000}, {"270", 50000}};
const Rows kRb30 = {{"11", 5000},   {"24", 10000},  {"38", 15000},  {"51", 20000},
                    {"65", 25000},  {"78", 30000},  {"106", 40000}, {"133", 50000},
                    {"162", 60000}, {"217", 80000}, {"273", 100000}};
const Rows kRb60 = {{"11", 10000}, {"18", 15000}, {"24", 20000}, {"31", 25000},  {"38", 30000},
                    {"51", 40000}, {"65", 50000}, {"79", 60000}, {"107", 80000}, {"135", 100000}};

struct STable
{
    const char *name;
    uint32_t (*convert)(const QString &);
    Rows rows;
    const char *suffix;  // what the pages show behind the number
    const char *failure;
    uint32_t defaultValue;
};

const STable kTables[] = {
    {"Mcs", [](const QString &t) { return uint32_t(GetMcsMode(t)); }, kMcs, "",
     "Get MCS mode failed", 0},
    {"Scs", [](const QString &t) { return uint32_t(GetScs(t)); }, kScs, "kHz", "Get SCS failed", 0},
    {"Rb15", &Get15KhzRb, kRb15, " RB", "Get 15 kHz RB  failed", 5000},
    {"Rb30", &Get30KhzRb, kRb30, " RB", "Get 30 kHz RB  failed", 5000},
    {"Rb60", &Get60KhzRb, kRb60, " RB", "Get 60 kHz RB  failed", 10000},
};

class ConversionTable : public ::testing::TestWithParam<STable>
{
};

TEST_P(ConversionTable, EveryRowConvertsWithoutAWord)
{
    const LogCapture log(lcCommand());
    for (const SRow &row : GetParam().rows)
        EXPECT_EQ(GetParam().convert(row.text), row.value) << row.text;
    EXPECT_EQ(log.Lines(QtCriticalMsg), QStringList());
}

class SuffixedTable : public ConversionTable
{
};

TEST_P(SuffixedTable, SuffixOfTheUserInterfaceChangesNothing)
{
    const LogCapture log(lcCommand());
    for (const SRow &row : GetParam().rows)
        EXPECT_EQ(GetParam().convert(QString(row.text) + GetParam().suffix), row.value) << row.text;
    EXPECT_EQ(log.Lines(QtCriticalMsg), QStringList());
}

TEST_P(ConversionTable, AnyOtherTextIsLoggedAndGivesTheDefault)
{
    for (const char *text : {"", "nonsense", "7", "kHz", "1060", "cp_qpsk", "CP_QPSK "}) {
        const LogCapture log(lcCommand());
        EXPECT_EQ(GetParam().convert(text), GetParam().defaultValue) << text;
        const QStringList lines = log.Lines(QtCriticalMsg);
        ASSERT_EQ(lines.size(), 1) << text;
        EXPECT_TRUE(lines[0].startsWith(GetParam().failure)) << qPrintable(lines[0]);
    }
}

INSTANTIATE_TEST_SUITE_P(All, ConversionTable, ::testing::ValuesIn(kTables),
                         [](const auto &info) { return std::string(info.param.name); });
// All tables but the modulations, whose whole text counts.
INSTANTIATE_TEST_SUITE_P(Numbers, SuffixedTable,
                         ::testing::ValuesIn(std::begin(kTables) + 1, std::end(kTables)),
                         [](const auto &info) { return std::string(info.param.name); });

TEST(RbCount, SeventyNineAtFifteenKilohertzIsRefused)
{
    for (const char *text : {"79", "79 RB"}) {
        const LogCapture log(lcCommand());
        EXPECT_EQ(Get15KhzRb(text), 5000u);
        EXPECT_TRUE(log.Holds(QtCriticalMsg, "Get 15 kHz RB  failed"));
    }
}

TEST(RbCount, BandwidthGoesByTheScsValue)
{
    EXPECT_EQ(GetRbBandwidth(0, "106 RB"), 20000u);
    EXPECT_EQ(GetRbBandwidth(1, "106 RB"), 40000u);
    EXPECT_EQ(GetRbBandwidth(2, "51"), 40000u);
}

TEST(RbCount, ScsValueBeyondTheTablesReadsNoMemoryBehindThem)
{
    EXPECT_EQ(GetRbBandwidth(3, "135"), 100000u);
    EXPECT_EQ(GetRbBandwidth(0xFFFFFFFFu, "nonsense"), 10000u);
}

}  // namespace
