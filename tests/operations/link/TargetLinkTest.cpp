// The link: handle, modem behind it, words for its answers.
#include "Operations/link/TargetLink.h"

#include "tests/operations/TargetFixture.h"

namespace {

using TargetLinkTest = CTargetTest;

TEST_F(TargetLinkTest, HandleIsTheOneLastSupplied)
{
    EXPECT_EQ(TargetHandle(), kHandle);
    SetTargetHandle(0xFFFFFFFFu);
    EXPECT_EQ(TargetHandle(), 0xFFFFFFFFu);
    m_target.GetRatMask();
    EXPECT_EQ(Journal()[0].call.handle, 0xFFFFFFFFu);
}

TEST_F(TargetLinkTest, ServiceTypeIsThatOfTheActiveModem)
{
    EXPECT_EQ(ReadModemServiceType(), 4);
    Plug("c2k");
    EXPECT_EQ(ReadModemServiceType(), kModemServiceC2k);
    EXPECT_EQ(CalledFunctions(),
              (std::vector<std::string>{"VondConn_GetMdActiveIdx", "VondConn_GetMdSrv"}));
    for (const SJournalCall &entry : Journal())
        EXPECT_EQ(entry.call.handle, kHandle);
}

TEST_F(TargetLinkTest, ServiceTypeIsAskedForTheActiveIndex)
{
    Plug("largest");
    EXPECT_EQ(ReadModemServiceType(), 4);
    EXPECT_EQ(JournalOf("VondConn_GetMdSrv").value(0).request, QByteArray::fromHex("01000000"));
}

TEST_F(TargetLinkTest, ServiceTypeIsUnknownWhenAQueryFails)
{
    Plug("c2k");
    Fault("VondConn_GetMdSrv");
    EXPECT_EQ(ReadModemServiceType(), 0);
    Fault("VondConn_GetMdActiveIdx");
    EXPECT_EQ(ReadModemServiceType(), 0);
    Plug("unplugged");
    EXPECT_EQ(ReadModemServiceType(), 0);
}

TEST_F(TargetLinkTest, ErrorTextIsTheLibrarys)
{
    EXPECT_EQ(VondErrorText(1), QString("Connection: no target is connected"));
    EXPECT_EQ(VondErrorText(4), QString("Target: failure on demand"));
}

TEST_F(TargetLinkTest, NullErrorTextIsAnEmptyOne)
{
    ASSERT_EQ(VondSim_AddFault(R"({"function": "VOND_GetErrorString", "kind": "nullText"})"), 0);
    EXPECT_EQ(VondErrorText(4), QString());
}

TEST(TargetStatusText, EveryStatusHasItsWords)
{
    EXPECT_EQ(VondStatusText(0), QString("NL1TST_CNF_STATUS_SUCCESS"));
    EXPECT_EQ(VondStatusText(1), QString("NL1TST_CNF_STATUS_FREQ_MISMATCH.\n\nDetails: Frequency "
                                         "cannot be exactly mapped to NR-ARFCN."));
    EXPECT_EQ(VondStatusText(2), QString("NL1TST_CNF_STATUS_CELL_NOT_EXIST.\n\nDetails: Cell SSB "
                                         "can't be detected."));
    EXPECT_EQ(VondStatusText(3), QString("NL1TST_CNF_STATUS_MB_MIB_DECODE_ERROR.\n\nDetails: Cell "
                                         "PBCH can't be detected."));
    EXPECT_EQ(VondStatusText(4), QString("NL1TST_CNF_STATUS_SCELL_NOT_EXIST.\n\nDetails: SCell SSB "
                                         "can't be detected."));
}

TEST(TargetStatusText, StatusFiveAndAboveAreNotFound)
{
    for (const uint32_t status : {5u, 6u, 203u, 0x80000000u, 0xFFFFFFFFu})
        EXPECT_EQ(VondStatusText(status), QString("Not found status descrption")) << status;
}

}  // namespace
