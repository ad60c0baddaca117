// The cached capability reads: gates, flags, and one read a connection.
#include "Operations/capability/CapabilityCache.h"
#include "Operations/link/TargetLink.h"
#include "tests/operations/TargetFixture.h"

namespace {

using CapabilityReadTest = CTargetTest;

TEST_F(CapabilityReadTest, LteChipIdComesFromTheTargetOnce)
{
    EXPECT_EQ(m_target.GetRfChipIdLte(), 11u);
    EXPECT_EQ(m_target.GetRfChipIdLte(), 11u);
    EXPECT_EQ(CalledFunctions(), (std::vector<std::string>{kQuery, kLteCapability}));
}

TEST_F(CapabilityReadTest, ReadersShareOneCache)
{
    EXPECT_EQ(CTargetCapability().GetRfChipIdLte(), 11u);
    EXPECT_EQ(CTargetCapability().GetRfChipIdLte(), 11u);
    EXPECT_EQ(CountCalls(kLteCapability), 1);
}

TEST_F(CapabilityReadTest, LteChipIdZeroIsCachedAsOne)
{
    PlugHandsetWith(R"("lteChip": {"id": 0})");
    EXPECT_EQ(m_target.GetRfChipIdLte(), 1u);
    EXPECT_EQ(m_target.GetRfChipIdLte(), 1u);
    EXPECT_EQ(CountCalls(kLteCapability), 1);
}

TEST_F(CapabilityReadTest, NrChipIdZeroStaysZero)
{
    PlugHandsetWith(R"("nrChip": {"id": 0})");
    EXPECT_EQ(m_target.GetRfChipIdNr(), 0u);
    EXPECT_EQ(FlagText(m_target.GetNrSupportFlags()), "attempted supported succeeded");
}

TEST_F(CapabilityReadTest, TargetWithoutTheLteReadHasChipIdZeroAndIsNotAskedAgain)
{
    PlugHandsetWithout(kLteCapability);
    EXPECT_EQ(m_target.GetRfChipIdLte(), 0u);
    EXPECT_EQ(m_target.GetRfChipIdLte(), 0u);
    EXPECT_EQ(CalledFunctions(), std::vector<std::string>{kQuery});
    EXPECT_EQ(FlagText(CapabilityCache::Get().lteCapability.flags), "attempted");
    EXPECT_TRUE(CapabilityCache::Get().ReadLteCapability());
}

TEST_F(CapabilityReadTest, GateAsksForTheFunctionByItsName)
{
    m_target.GetRfChipIdLte();
    m_target.GetMmSupportFlags();
    const auto queries = JournalOf(kQuery);
    ASSERT_EQ(queries.size(), 2);
    EXPECT_EQ(queries[0].request, QByteArray(kLteCapability));
    EXPECT_EQ(queries[1].request, QByteArray(kMmCapability));
}

TEST_F(CapabilityReadTest, FailedLteReadHasChipIdZeroAndIsNotTriedAgain)
{
    Fault(kLteCapability);
    EXPECT_FALSE(CapabilityCache::Get().ReadLteCapability());
    EXPECT_TRUE(CapabilityCache::Get().ReadLteCapability());
    EXPECT_EQ(m_target.GetRfChipIdLte(), 0u);
    EXPECT_EQ(CountCalls(kLteCapability), 1);
    EXPECT_EQ(FlagText(CapabilityCache::Get().lteCapability.flags), "attempted supported");
}

TEST_F(CapabilityReadTest, FailedReadLeavesAZeroedRecordWhateverTheTargetWrote)
{
    Fault(kNrCapability);
    Noise(kNrCapability, 3);
    EXPECT_EQ(m_target.GetRfChipIdNr(), 0u);
    EXPECT_EQ(m_target.GetNrGeneration(), 0);
    EXPECT_EQ(CountCalls(kNrCapability), 1);
}

TEST_F(CapabilityReadTest, RequestsNameTheExpectedSizes)
{
    m_target.GetRfChipIdLte();
    m_target.GetRfChipIdNr();
    const auto lte = RecordOf<SVondCapabilityReq>(JournalOf(kLteCapability).value(0).request);
    EXPECT_EQ(lte.capabilitySize, 56u);
    EXPECT_EQ(lte.calibrationSize, 180u);
    const auto mm = RecordOf<SVondCapabilityReq>(JournalOf(kMmCapability).value(0).request);
    EXPECT_EQ(mm.capabilitySize, 4u);
    EXPECT_EQ(mm.calibrationSize, 132u);
    const auto nr = RecordOf<SVondCapabilityReq>(JournalOf(kNrCapability).value(0).request);
    EXPECT_EQ(nr.calibrationSize, 24u);
}

TEST_F(CapabilityReadTest, EveryCallCarriesTheHandleAndTenSeconds)
{
    std::vector<SBandCapEntry> bands;
    m_target.GetRfChipIdLte();
    m_target.GetRouteTableLte();
    m_target.GetBandList(EBandDirection::Rx, bands);
    ASSERT_EQ(Journal().size(), 10);
    for (const SJournalCall &entry : Journal()) {
        EXPECT_EQ(entry.call.handle, kHandle) << entry.call.function;
        EXPECT_EQ(entry.call.timeoutMs, 10000u) << entry.call.function;
    }
}

TEST_F(CapabilityReadTest, WorldModeTellsTheRats)
{
    EXPECT_TRUE(m_target.IsRatInfoValid());
    EXPECT_EQ(m_target.GetRatMask(), 103u);
    EXPECT_EQ(FlagText(m_target.GetMmSupportFlags()), "attempted supported succeeded");
    EXPECT_EQ(CountCalls(kMmCapability), 1);
}

TEST_F(CapabilityReadTest, RatMaskHasThirtyBits)
{
    PlugHandsetWith(R"("worldMode": {"valid": true, "mask": 1073741823})");
    EXPECT_EQ(m_target.GetRatMask(), 0x3FFFFFFFu);
}

TEST_F(CapabilityReadTest, InvalidWorldModeWordHasNoRats)
{
    PlugHandsetWith(R"("worldMode": {"valid": false, "mask": 103})");
    EXPECT_FALSE(m_target.IsRatInfoValid());
    EXPECT_EQ(m_target.GetRatMask(), 0u);
    EXPECT_EQ(FlagText(m_target.GetMmSupportFlags()), "attempted supported succeeded");
    EXPECT_EQ(FlagText(m_target.GetNrSupportFlags()), "attempted");
    EXPECT_EQ(CountCalls(kNrCapability), 0);
}

TEST_F(CapabilityReadTest, TargetWithoutTheMultiModeReadHasNoRats)
{
    PlugHandsetWithout(kMmCapability);
    EXPECT_FALSE(m_target.IsRatInfoValid());
    EXPECT_EQ(m_target.GetRatMask(), 0u);
    EXPECT_EQ(FlagText(m_target.GetMmSupportFlags()), "attempted");
    EXPECT_EQ(CountCalls(kMmCapability), 0);
}

TEST_F(CapabilityReadTest, FailedMultiModeReadHasNoRatsAndNoNr)
{
    Fault(kMmCapability);
    EXPECT_FALSE(m_target.IsRatInfoValid());
    EXPECT_EQ(m_target.GetRatMask(), 0u);
    EXPECT_EQ(FlagText(m_target.GetMmSupportFlags()), "attempted supported");
    EXPECT_EQ(FlagText(m_target.GetNrSupportFlags()), "attempted");
    EXPECT_EQ(CountCalls(kMmCapability), 1);
    EXPECT_EQ(CountCalls(kNrCapability), 0);
}

TEST_F(CapabilityReadTest, MaskWithoutNrNeverSendsAnNrRead)
{
    Plug("no-nr");
    EXPECT_EQ(FlagText(m_target.GetNrSupportFlags()), "attempted");
    EXPECT_EQ(m_target.GetNrGeneration(), 0);
    EXPECT_EQ(m_target.GetRfChipIdNr(), 0u);
    EXPECT_TRUE(CapabilityCache::Get().ReadNrCapability());
    EXPECT_EQ(CountCalls(kNrCapability), 0);
}

TEST_F(CapabilityReadTest, NrReadTellsGenerationAndChip)
{
    EXPECT_EQ(m_target.GetNrGeneration(), 1);
    EXPECT_EQ(m_target.GetRfChipIdNr(), 40u);
    EXPECT_EQ(FlagText(m_target.GetNrSupportFlags()), "attempted supported succeeded");
    EXPECT_EQ(CountCalls(kNrCapability), 1);
}

TEST_F(CapabilityReadTest, GenerationIsAByte)
{
    PlugHandsetWith(R"("generation": 255)");
    EXPECT_EQ(m_target.GetNrGeneration(), 255);
}

TEST_F(CapabilityReadTest, FailedNrReadHasGenerationZeroAndIsNotTriedAgain)
{
    Fault(kNrCapability);
    EXPECT_EQ(m_target.GetNrGeneration(), 0);
    EXPECT_EQ(m_target.GetNrGeneration(), 0);
    EXPECT_EQ(m_target.GetRfChipIdNr(), 0u);
    EXPECT_EQ(FlagText(m_target.GetNrSupportFlags()), "attempted supported");
    EXPECT_EQ(CountCalls(kNrCapability), 1);
}

TEST_F(CapabilityReadTest, NrRouteReadHasNoGate)
{
    Plug("no-nr");
    EXPECT_EQ(FlagText(m_target.GetNrRouteSupportFlags()), "attempted supported succeeded");
    EXPECT_EQ(CalledFunctions(), std::vector<std::string>{kRouteConfig});
}

TEST_F(CapabilityReadTest, FailedNrRouteReadIsNotTriedAgain)
{
    Fault(kRouteConfig);
    EXPECT_EQ(FlagText(m_target.GetNrRouteSupportFlags()), "attempted supported");
    EXPECT_EQ(m_target.GetRouteTableNr(), nullptr);
    EXPECT_EQ(m_target.GetType2RouteGainFlag(101), 0);
    EXPECT_EQ(CountCalls(kRouteConfig), 1);
}

TEST_F(CapabilityReadTest, LteRouteReadWaitsForTheLteCapability)
{
    Fault(kLteCapability);
    EXPECT_EQ(m_target.GetRouteTableLte(), nullptr);
    EXPECT_EQ(CountCalls(kRouteConfig), 0);
}

TEST_F(CapabilityReadTest, LteAndNrRoutesAreReadApartByTheirRadioKind)
{
    EXPECT_NE(m_target.GetRouteTableLte(), nullptr);
    EXPECT_NE(m_target.GetRouteTableNr(), nullptr);
    const auto reads = JournalOf(kRouteConfig);
    ASSERT_EQ(reads.size(), 2);
    EXPECT_EQ(reads[0].request, QByteArray::fromHex("00000000"));
    EXPECT_EQ(reads[1].request, QByteArray::fromHex("01000000"));
}

TEST_F(CapabilityReadTest, UnpluggedTargetAnswersNothing)
{
    Plug("unplugged");
    std::vector<SBandCapEntry> bands(1);
    EXPECT_EQ(m_target.GetRfChipIdLte(), 0u);
    EXPECT_EQ(m_target.GetRfChipIdNr(), 0u);
    EXPECT_EQ(m_target.GetRatMask(), 0u);
    EXPECT_EQ(m_target.GetNrGeneration(), 0);
    EXPECT_EQ(m_target.GetRouteTableNr(), nullptr);
    EXPECT_TRUE(m_target.GetBandList(EBandDirection::Rx, bands));
    EXPECT_TRUE(bands.empty());
}

}  // namespace
