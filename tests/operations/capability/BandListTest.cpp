// The bands of a direction, in the DUT's order.
#include "Operations/capability/CapabilityCache.h"
#include "tests/operations/TargetFixture.h"

namespace {

class BandListTest : public CTargetTest
{
protected:
    std::vector<SBandCapEntry> List(EBandDirection direction) const
    {
        std::vector<SBandCapEntry> bands;
        EXPECT_TRUE(m_target.GetBandList(direction, bands));
        return bands;
    }
};

std::vector<int> Numbers(const std::vector<SBandCapEntry> &bands)
{
    std::vector<int> numbers;
    for (const SBandCapEntry &band : bands)
        numbers.push_back(band.band);
    return numbers;
}

// Bands whose flag is set.
std::vector<int> With(const std::vector<SBandCapEntry> &bands, uint8_t SBandCapEntry::*flag)
{
    std::vector<int> numbers;
    for (const SBandCapEntry &band : bands) {
        if (band.*flag)
            numbers.push_back(band.band);
    }
    return numbers;
}

TEST_F(BandListTest, ReceiveListLeavesUplinkOnlyBandsOut)
{
    EXPECT_EQ(Numbers(List(EBandDirection::Rx)),
              (std::vector<int>{1, 3, 5, 7, 28, 41, 77, 78, 79, 75}));
}

TEST_F(BandListTest, TransmitListLeavesDownlinkOnlyBandsOut)
{
    EXPECT_EQ(Numbers(List(EBandDirection::Tx)),
              (std::vector<int>{1, 3, 5, 7, 28, 41, 77, 78, 79, 80}));
}

TEST_F(BandListTest, SupplementaryBandsAreFlagged)
{
    EXPECT_EQ(With(List(EBandDirection::Rx), &SBandCapEntry::supplementary), std::vector<int>{75});
    EXPECT_EQ(With(List(EBandDirection::Tx), &SBandCapEntry::supplementary), std::vector<int>{80});
}

TEST_F(BandListTest, MimoIsUplinkMimoForTransmitAndFourByFourForReceive)
{
    EXPECT_EQ(With(List(EBandDirection::Tx), &SBandCapEntry::mimoSupported),
              (std::vector<int>{41, 77, 78, 79}));
    EXPECT_EQ(With(List(EBandDirection::Rx), &SBandCapEntry::mimoSupported),
              (std::vector<int>{1, 3, 7, 41, 77, 78, 79}));
}

TEST_F(BandListTest, LastMatchingRowOfTheMimoTableWins)
{
    List(EBandDirection::Rx);
    SNRfBandRxInfo &info = CapabilityCache::Get().nrDetail.record.bandRxInfo;
    info = {};
    info.count = 4;
    const uint16_t band[] = {78, 1, 78, 1};
    const uint8_t ulMimo[] = {1, 0, 0, 1};
    const uint8_t rx4x4[] = {0, 1, 1, 0};
    std::copy(std::begin(band), std::end(band), info.band);
    std::copy(std::begin(ulMimo), std::end(ulMimo), info.ulMimo);
    std::copy(std::begin(rx4x4), std::end(rx4x4), info.rx4x4);
    EXPECT_EQ(With(List(EBandDirection::Tx), &SBandCapEntry::mimoSupported), std::vector<int>{1});
    EXPECT_EQ(With(List(EBandDirection::Rx), &SBandCapEntry::mimoSupported), std::vector<int>{78});
}

TEST_F(BandListTest, BandWithoutAMimoRowHasNoMimo)
{
    List(EBandDirection::Rx);
    CapabilityCache::Get().nrDetail.record.bandRxInfo.count = 0;
    EXPECT_TRUE(With(List(EBandDirection::Rx), &SBandCapEntry::mimoSupported).empty());
}

TEST_F(BandListTest, OtherGenerationHasAnEmptyListAndNeedsNoRoutes)
{
    for (const char *generation : {"0", "2"}) {
        PlugHandsetWith(std::string("\"generation\": ") + generation);
        std::vector<SBandCapEntry> bands(3);
        EXPECT_TRUE(m_target.GetBandList(EBandDirection::Tx, bands));
        EXPECT_TRUE(bands.empty());
        EXPECT_EQ(CountCalls(kRouteConfig), 0);
    }
}

TEST_F(BandListTest, ListsAreMadeFromReadsDoneOnce)
{
    List(EBandDirection::Rx);
    List(EBandDirection::Tx);
    EXPECT_EQ(CalledFunctions(),
              (std::vector<std::string>{kQuery, kMmCapability, kNrCapability, kRouteConfig,
                                        kBandRxInfo, kRxRouteValues, kRouteDetail}));
}

class BandListFailureTest : public BandListTest, public ::testing::WithParamInterface<const char *>
{
};

TEST_P(BandListFailureTest, FailedReadGivesFalseAndASecondListMakesNoCall)
{
    Fault(GetParam());
    std::vector<SBandCapEntry> bands(3);
    EXPECT_FALSE(m_target.GetBandList(EBandDirection::Rx, bands));
    EXPECT_TRUE(bands.empty());
    EXPECT_EQ(CalledFunctions().back(), std::string(GetParam()));
    VondSim_ClearJournal();
    EXPECT_FALSE(m_target.GetBandList(EBandDirection::Rx, bands));
    EXPECT_EQ(VondSim_CallCount(), 0u);
}

INSTANTIATE_TEST_SUITE_P(AnyOfItsReads, BandListFailureTest,
                         ::testing::Values(kRouteConfig, kBandRxInfo, kRxRouteValues,
                                           kRouteDetail));

TEST_F(BandListTest, FailedDetailReadMakesNoFurtherCallsOfItsSequence)
{
    Fault(kBandRxInfo);
    std::vector<SBandCapEntry> bands;
    EXPECT_FALSE(m_target.GetBandList(EBandDirection::Rx, bands));
    EXPECT_EQ(CountCalls(kRxRouteValues), 0);
    EXPECT_EQ(CountCalls(kRouteDetail), 0);
    EXPECT_EQ(FlagText(CapabilityCache::Get().nrDetail.flags), "attempted supported");
}

TEST_F(BandListTest, LargestTargetListsEveryBandOfADirection)
{
    Plug("largest");
    EXPECT_EQ(List(EBandDirection::Rx).size(), 24u);
    EXPECT_EQ(List(EBandDirection::Tx).size(), 24u);
}

}  // namespace
