// What a panel asks about profiles: whether one could be put in place, and the bands of the DUT.

#include "tests/simulator/SimulatorFixture.h"
#include "tests/simulator/steer/SteerText.h"

namespace {

class ProfileCheckTest : public CSimulatorTest
{
};

TEST_F(ProfileCheckTest, CheckTellsAndChangesNothing)
{
    ASSERT_EQ(VondSim_SetProfile("largest"), 0);
    const std::string before = VondSim_ProfileText();
    EXPECT_EQ(VondSim_CheckProfile("c2k"), 0);
    EXPECT_EQ(VondSim_CheckProfile("no-such"), -1);
    EXPECT_NE(SimError().find("no-such"), std::string::npos);
    EXPECT_EQ(VondSim_CheckProfile(nullptr), -1);
    EXPECT_EQ(VondSim_ProfileText(), before);
    EXPECT_EQ(VondSim_IsPlugged(), 1);
}

TEST_F(ProfileCheckTest, BandsAreThoseOfTheListInItsOrder)
{
    ASSERT_EQ(VondSim_SetProfile("handset"), 0);
    const std::vector<uint32_t> bands = {1, 3, 5, 7, 28, 41, 77, 78, 79, 75, 80};
    for (uint32_t i = 0; i < bands.size(); ++i)
        EXPECT_EQ(VondSim_Band(i), bands[i]);
    EXPECT_EQ(VondSim_Band(static_cast<uint32_t>(bands.size())), 0u);
}

}  // namespace
