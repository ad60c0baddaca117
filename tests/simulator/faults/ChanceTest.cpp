// Chance in the readings: bounded, different from reading to reading, the same from a seed.

#include <algorithm>
#include <cmath>
#include <cstring>

#include "tests/simulator/radio/MeasuringFixture.h"

namespace {

using SReport = NRfTestResult_GetMixRxReportV7;

bool Same(const SReport &one, const SReport &other)
{
    return std::memcmp(&one, &other, sizeof(one)) == 0;
}

class ChanceTest : public CMeasuringTest
{
protected:
    static std::string Seeded(uint32_t seed)
    {
        return HandsetWith(R"("radio": {"seed": )" + std::to_string(seed) + "}");
    }

    // Three reports, a PD reading and an RSSI measurement, as one text of bytes.
    std::string Session()
    {
        std::string bytes;
        StartRsrp(RsrpForcedCommand());
        for (int i = 0; i < 3; ++i) {
            const SReport report = Report();
            bytes.append(reinterpret_cast<const char *>(&report), sizeof(report));
        }
        StopRsrp();
        const SMMRssiCnfV7 rssi = Rssi(RssiCommand());
        bytes.append(reinterpret_cast<const char *>(&rssi), sizeof(rssi));
        return bytes;
    }
};

TEST_F(ChanceTest, ReportsOfOneRunDiffer)
{
    StartRsrp(RsrpForcedCommand());
    SReport reports[10];
    std::generate(std::begin(reports), std::end(reports), [&] { return Report(); });
    for (int i = 0; i < 10; ++i) {
        for (int j = i + 1; j < 10; ++j)
            EXPECT_NE(std::memcmp(reports[i].RSRP0, reports[j].RSRP0, sizeof(reports[i].RSRP0)), 0);
    }
}

TEST_F(ChanceTest, RssiMeasurementsOfOneCommandDiffer)
{
    const SMMRssiCmdV7 command = RssiCommand();
    const SMMRssiCnfV7 first = Rssi(command);
    const SMMRssiCnfV7 second = Rssi(command);
    EXPECT_NE(std::memcmp(&first, &second, sizeof(first)), 0);
}

TEST_F(ChanceTest, SameSeedReadsTheSame)
{
    Plug(Seeded(7));
    const std::string first = Session();
    Plug(Seeded(7));
    EXPECT_EQ(Session(), first);
}

TEST_F(ChanceTest, AnotherSeedReadsOtherwise)
{
    Plug(Seeded(7));
    const std::string first = Session();
    Plug(Seeded(8));
    EXPECT_NE(Session(), first);
}

TEST_F(ChanceTest, ResetStartsTheSequenceAnew)
{
    VondSim_Reset();
    ASSERT_EQ(VondSim_SetProfile("handset"), 0);
    const std::string first = Session();
    EXPECT_NE(Session(), first);
    VondSim_Reset();
    ASSERT_EQ(VondSim_SetProfile("handset"), 0);
    EXPECT_EQ(Session(), first);
}

TEST_F(ChanceTest, FluctuationIsBoundedAndEvensOut)
{
    Plug(QuietRadio(-65, R"("fluctuationDb": 0.2)"));
    SNrRsrpCmdV7 command = RsrpNormalCommand();
    command.normalMode.carrier[0].common.dlFrequency = 3550005;
    StartRsrp(command);
    double sum = 0.0;
    double squares = 0.0;
    constexpr int kReports = 200;
    for (int i = 0; i < kReports; ++i) {
        const SReport report = Report();
        for (const int16_t value : report.RSSI0) {
            const double off = value * kPer128 + 65.0;
            EXPECT_LE(std::fabs(off), 0.22);
            sum += off;
            squares += off * off;
        }
    }
    const double mean = sum / (kReports * 10);
    EXPECT_NEAR(mean, 0.0, 0.02);
    // The mean of three even draws has a third of the bound as its standard deviation.
    EXPECT_NEAR(std::sqrt(squares / (kReports * 10) - mean * mean), 0.2 / 3.0, 0.01);
}

TEST_F(ChanceTest, NoFluctuationMakesAllReportsAlikeButForTheCounts)
{
    Plug(QuietRadio(-65));
    StartRsrp(RsrpForcedCommand());
    SReport first = Report();
    SReport second = Report();
    EXPECT_EQ(first.RSRP0[0], first.RSRP0[4]);
    EXPECT_EQ(second.GoodBLK, 2 * first.GoodBLK);
    second.GoodBLK = first.GoodBLK;
    EXPECT_TRUE(Same(first, second));
}

// The counters are all that a run leaves behind: a long one and a short one go on alike.
TEST_F(ChanceTest, LongRunKeepsOnlyItsCounters)
{
    Plug(QuietRadio(-65));
    StartRsrp(RsrpForcedCommand());
    SReport report = {};
    for (int i = 0; i < 20000; ++i)
        report = Report();
    EXPECT_EQ(report.GoodBLK, 2000000u);
    EXPECT_EQ(report.reportCount, 5);
    EXPECT_EQ(VondSim_CallCount(), 20001u);
}

}  // namespace
