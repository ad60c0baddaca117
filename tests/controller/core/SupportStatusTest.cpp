// Can the tool run on the DUT at hand? Every answer to the letter.
#include "tests/controller/core/CoreFixture.h"

namespace {

constexpr int kSupported = 1;
constexpr int kNotSupported = 2;
constexpr int kUnknown = 3;
constexpr char kNoInfo[] = "Not Support due to without any this RAT info from SW.";
constexpr char kNoRat[] = "Not support this RAT from SW multi-RAT world mode ID info.";
constexpr char kAdvice[] =
    "Please check the SW load stability or connection status of the target and tool.";

class SupportStatusTest : public CCoreTest
{
protected:
    void Expect(int status, const char *message, const char *advice)
    {
        const SRfSupportStatus answer = m_core.GetSupportStatus();
        EXPECT_EQ(answer.status, status);
        EXPECT_EQ(answer.message, QString(message));
        EXPECT_EQ(answer.advice, QString(advice));
    }
};

TEST_F(SupportStatusTest, HandsetIsSupported)
{
    Expect(kSupported, "Support", "");
}

TEST_F(SupportStatusTest, LargestTargetIsSupported)
{
    Plug("largest");
    Expect(kSupported, "Support", "");
}

TEST_F(SupportStatusTest, GenerationZeroIsSupportedTheSame)
{
    Plug("gen0");
    Expect(kSupported, "Support", "");
}

TEST_F(SupportStatusTest, C2kModemIsNotSupportedAndItsCapabilitiesAreNotRead)
{
    Plug("c2k");
    Expect(kNotSupported, "It is C2K modem now.", "");
    EXPECT_EQ(CalledFunctions(),
              (std::vector<std::string>{"VondConn_GetMdActiveIdx", "VondConn_GetMdSrv"}));
}

TEST_F(SupportStatusTest, WorldModeWithoutNrIsNotSupported)
{
    Plug("no-nr");
    Expect(kNotSupported, kNoRat, "");
    EXPECT_EQ(CountCalls(kNrCapability), 0);
}

TEST_F(SupportStatusTest, NrBitAloneIsEnough)
{
    PlugHandsetWith(R"("worldMode": {"valid": true, "mask": 64})");
    Expect(kSupported, "Support", "");
}

TEST_F(SupportStatusTest, EveryBitButNrIsNotEnough)
{
    PlugHandsetWith(R"("worldMode": {"valid": true, "mask": 1073741759})");
    Expect(kNotSupported, kNoRat, "");
}

TEST_F(SupportStatusTest, UnpluggedTargetLooksLikeSoftwareWithoutTheRat)
{
    Plug("unplugged");
    Expect(kNotSupported, kNoInfo, "");
}

TEST_F(SupportStatusTest, TargetWithoutTheMultiModeReadIsNotSupported)
{
    PlugHandsetWithout(kMmCapability);
    Expect(kNotSupported, kNoInfo, "");
}

TEST_F(SupportStatusTest, FailedGateQueryIsNotSupported)
{
    Fault(kQuery);
    Expect(kNotSupported, kNoInfo, "");
}

TEST_F(SupportStatusTest, InvalidRatInformationIsNotSupported)
{
    PlugHandsetWith(R"("worldMode": {"valid": false, "mask": 103})");
    Expect(kNotSupported, kNoInfo, "");
}

TEST_F(SupportStatusTest, FailedMultiModeReadCannotBeFoundOut)
{
    Fault(kMmCapability);
    Expect(kUnknown,
           "We cannot get its support status: Failed to get multi-RAT world mode ID info.",
           kAdvice);
}

TEST_F(SupportStatusTest, FailedNrReadCannotBeFoundOut)
{
    Fault(kNrCapability);
    Expect(kUnknown, "Support this RAT but it failed to get its capability info.", kAdvice);
}

TEST_F(SupportStatusTest, FailedNrRouteReadCannotBeFoundOut)
{
    Fault(kRouteConfig);
    Expect(kUnknown, "Support this RAT but it failed to get CA capability info.", kAdvice);
}

class SupportStatusUnaffectedTest : public SupportStatusTest,
                                    public ::testing::WithParamInterface<const char *>
{
};

TEST_P(SupportStatusUnaffectedTest, FailureOfAReadThatIsNotAskedForChangesNothing)
{
    Fault(GetParam());
    Expect(kSupported, "Support", "");
}

INSTANTIATE_TEST_SUITE_P(OtherFunctions, SupportStatusUnaffectedTest,
                         ::testing::Values(kLteCapability, kBandRxInfo, kRxRouteValues,
                                           kRouteDetail, "VondConn_GetMdActiveIdx",
                                           "VondConn_GetMdSrv"));

TEST_F(SupportStatusTest, AdviceOfAnEarlierAnswerStays)
{
    Fault(kNrCapability);
    Expect(kUnknown, "Support this RAT but it failed to get its capability info.", kAdvice);
    VondSim_ClearFaults();
    Plug("c2k");
    Expect(kNotSupported, "It is C2K modem now.", kAdvice);
    Plug("handset");
    Expect(kSupported, "Support", kAdvice);
    Plug("no-nr");
    Expect(kNotSupported, kNoRat, kAdvice);
}

TEST_F(SupportStatusTest, SecondAnswerAsksOnlyForTheModem)
{
    Expect(kSupported, "Support", "");
    VondSim_ClearJournal();
    Expect(kSupported, "Support", "");
    EXPECT_EQ(CalledFunctions(),
              (std::vector<std::string>{"VondConn_GetMdActiveIdx", "VondConn_GetMdSrv"}));
}

TEST_F(SupportStatusTest, FailureStandsUntilTheCachesAreReset)
{
    Fault(kNrCapability);
    Expect(kUnknown, "Support this RAT but it failed to get its capability info.", kAdvice);
    VondSim_ClearFaults();
    Expect(kUnknown, "Support this RAT but it failed to get its capability info.", kAdvice);
    m_core.ResetTargetCache();
    Expect(kSupported, "Support", kAdvice);
}

TEST_F(SupportStatusTest, CalibrationItemsAreThoseOfASupportedTarget)
{
    QStringList items{"old"};
    m_core.GetAllCalItem(items);
    EXPECT_EQ(items, QStringList({"RX PathLoss", "APT Profile"}));
}

TEST_F(SupportStatusTest, UnsupportedTargetHasNoCalibrationItems)
{
    for (const char *profile : {"c2k", "no-nr", "unplugged"}) {
        Plug(profile);
        QStringList items{"old"};
        m_core.GetAllCalItem(items);
        EXPECT_EQ(items, QStringList()) << profile;
    }
}

}  // namespace
