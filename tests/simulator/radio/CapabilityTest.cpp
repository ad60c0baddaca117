// The capability reads: the profile's values at their places in the wire records.

#include <memory>
#include <span>

#include "Trace/dictionary/CapabilityLayouts.h"
#include "Trace/dictionary/FieldPath.h"
#include "tests/simulator/SimulatorFixture.h"

namespace {

class CapabilityTest : public CSimulatorTest
{
protected:
    std::unique_ptr<SMMRfRouteConfigV7> Config(uint32_t radioKind = 1)
    {
        auto config = std::make_unique<SMMRfRouteConfigV7>();
        EXPECT_EQ(VOND_MMRf_GetRouteConfigV7_r(kHandle, kTimeoutMs, &radioKind, config.get()),
                  VOND_SUCCESS);
        return config;
    }
};

// From the bytes themselves.
template <class Record>
uint32_t WordAt(const Record &record, std::string_view name)
{
    const std::span bytes(reinterpret_cast<const uint8_t *>(&record), sizeof(record));
    return static_cast<uint32_t>(NumberAt(kLayoutOf<Record>, bytes, name).value_or(0));
}

TEST_F(CapabilityTest, LteSideTellsItsChip)
{
    const SVondCapabilityReq request = {56, 180};
    SERfCapability answer = {};
    ASSERT_EQ(VOND_ERf_GetRfCapability_r(kHandle, kTimeoutMs, &request, 8, &answer, 248),
              VOND_SUCCESS);
    EXPECT_EQ(WordAt(answer, "rfChipId"), 11u);
    EXPECT_STREQ(VOND_ERf_GetChipIdName(11), "VR6211");
    EXPECT_EQ(VOND_ERf_GetChipIdName(999), nullptr);
}

TEST_F(CapabilityTest, WorldModeWordIsValidAndHoldsNr)
{
    const SVondCapabilityReq request = {4, 132};
    SMMRfCapability answer = {};
    ASSERT_EQ(VOND_MMRf_GetRfCapability_r(kHandle, kTimeoutMs, &request, 8, &answer, 144),
              VOND_SUCCESS);
    EXPECT_TRUE(VondItemValid(WordAt(answer, "worldMode")));
    EXPECT_EQ(VondItemValue(WordAt(answer, "worldMode")), 103u);
}

TEST_F(CapabilityTest, WorldModeOfNoNrLacksTheNrBit)
{
    VondSim_SetProfile("no-nr");
    const SVondCapabilityReq request = {4, 132};
    SMMRfCapability answer = {};
    ASSERT_EQ(VOND_MMRf_GetRfCapability_r(kHandle, kTimeoutMs, &request, 8, &answer, 144),
              VOND_SUCCESS);
    EXPECT_TRUE(VondItemValid(answer.worldMode));
    EXPECT_EQ(VondItemValue(answer.worldMode) & 0x40u, 0u);
}

TEST_F(CapabilityTest, WorldModeWithoutRatInformationIsNotValid)
{
    VondSim_SetProfileText(HandsetWith(R"("worldMode": {"valid": false})").c_str());
    const SVondCapabilityReq request = {4, 132};
    SMMRfCapability answer = {};
    ASSERT_EQ(VOND_MMRf_GetRfCapability_r(kHandle, kTimeoutMs, &request, 8, &answer, 144),
              VOND_SUCCESS);
    EXPECT_FALSE(VondItemValid(answer.worldMode));
}

TEST_F(CapabilityTest, NrTellsChipAndGeneration)
{
    // The first word of the NR request is whatever the caller left there.
    const SVondCapabilityReq request = {0xdeadbeef, 24};
    SNRfCapability answer = {};
    ASSERT_EQ(VOND_NRf_GetRfCapability_r(kHandle, kTimeoutMs, &request, 8, &answer, 36),
              VOND_SUCCESS);
    EXPECT_EQ(WordAt(answer, "rfChipId"), 40u);
    EXPECT_EQ(VondItemValue(WordAt(answer, "generation")) & 0xffu, 1u);
    EXPECT_STREQ(VOND_NRf_GetChipIdName(40), "VR6240");

    VondSim_SetProfile("gen0");
    VOND_NRf_GetRfCapability_r(kHandle, kTimeoutMs, &request, 8, &answer, 36);
    EXPECT_EQ(VondItemValue(answer.generation) & 0xffu, 0u);
}

TEST_F(CapabilityTest, WrongSizesAreRefused)
{
    const SVondCapabilityReq good = {56, 180};
    const SVondCapabilityReq bad = {56, 181};
    SERfCapability answer = {};
    const std::string text = "Argument: record size does not fit";
    EXPECT_EQ(ErrorText(VOND_ERf_GetRfCapability_r(kHandle, kTimeoutMs, &bad, 8, &answer, 248)),
              text);
    EXPECT_EQ(ErrorText(VOND_ERf_GetRfCapability_r(kHandle, kTimeoutMs, &good, 4, &answer, 248)),
              text);
    EXPECT_EQ(ErrorText(VOND_ERf_GetRfCapability_r(kHandle, kTimeoutMs, &good, 8, &answer, 247)),
              text);
    EXPECT_EQ(answer.rfChipId, 0u);
}

TEST_F(CapabilityTest, NullPointersAreRefused)
{
    const SVondCapabilityReq request = {56, 180};
    SERfCapability answer = {};
    const std::string text = "Argument: null pointer";
    EXPECT_EQ(ErrorText(VOND_ERf_GetRfCapability_r(kHandle, kTimeoutMs, nullptr, 8, &answer, 248)),
              text);
    EXPECT_EQ(ErrorText(VOND_ERf_GetRfCapability_r(kHandle, kTimeoutMs, &request, 8, nullptr, 248)),
              text);
    EXPECT_EQ(ErrorText(VOND_NRf_GetBandRxInfo_r(kHandle, kTimeoutMs, nullptr)), text);
    EXPECT_EQ(ErrorText(VOND_QueryFunctionSupported_r(kHandle, kTimeoutMs, nullptr)), text);
    EXPECT_EQ(ErrorText(VondConn_GetMdActiveIdx(kHandle, nullptr)), text);
}

TEST_F(CapabilityTest, BandsStandInProfileOrderWithTheirFlags)
{
    const auto config = Config();
    ASSERT_EQ(config->bandCount, 11u);
    EXPECT_EQ(config->band[0].band, 1);
    EXPECT_EQ(config->band[0].downlinkOnly, 0);
    EXPECT_EQ(config->band[9].band, 75);
    EXPECT_EQ(config->band[9].downlinkOnly, 1);
    EXPECT_EQ(config->band[10].band, 80);
    EXPECT_EQ(config->band[10].uplinkOnly, 1);
}

TEST_F(CapabilityTest, RoutesStandInTheirTables)
{
    const auto config = Config();
    const SMMRfRouteTableV7 &routes = config->routes;
    EXPECT_EQ(routes.txRouteCount, 19);
    EXPECT_EQ(routes.rxType1RouteCount, 18);
    EXPECT_EQ(routes.rxType2RouteCount, 8);
    EXPECT_EQ(routes.rxType1Route[0].band, 1);
    EXPECT_EQ(routes.rxType1Route[0].route, 1);
    EXPECT_EQ(routes.txRoute[8].band, 41);
    EXPECT_EQ(routes.txRoute[8].route, 9);
    EXPECT_EQ(routes.txRoute[8].bwRegionCount, 4);
    EXPECT_EQ(routes.txRoute[8].bwRegionKhz[3], 100000u);
    EXPECT_EQ(routes.rxType2Route[0].route, 101);
    EXPECT_NE(routes.rxType2Route[0].gainModeFlag, 0);
    EXPECT_EQ(routes.rxType2Route[6].route, 107);
    EXPECT_EQ(routes.rxType2Route[6].gainModeFlag, 0);
}

TEST_F(CapabilityTest, RouteLimitsStandInTheirHalves)
{
    const auto config = Config();
    EXPECT_EQ(config->freqRange.tx.count, 3);
    EXPECT_EQ(config->freqRange.tx.band[1], 41);
    EXPECT_EQ(config->freqRange.tx.route[1], 11);
    EXPECT_EQ(config->freqRange.tx.low[1], 2515000);
    EXPECT_EQ(config->freqRange.tx.high[1], 2675000);
    EXPECT_EQ(config->freqRange.rx.count, 5);
    EXPECT_EQ(config->freqRange.rx.route[3], 106);
    EXPECT_EQ(config->freqRange.rx.low[4], 1920000);
    EXPECT_EQ(config->freqRange.rx.high[4], 2170000);
}

TEST_F(CapabilityTest, GainTablesAreHpmThenLpm)
{
    const auto config = Config();
    EXPECT_EQ(config->rxGainInfo[0].t1[0][1], 1);
    EXPECT_EQ(config->rxGainInfo[0].t1[0][2], 0);
    EXPECT_EQ(config->rxGainInfo[0].t2[2][1][0], 1);
    EXPECT_EQ(config->rxGainInfo[0].t2[2][0][2], 0);
    EXPECT_EQ(config->rxGainInfo[1].t1[0][1], 0);
    EXPECT_EQ(config->rxGainInfo[1].t1[5][0] + config->rxGainInfo[1].t1[5][1], 0);
}

TEST_F(CapabilityTest, LteSideHasNoRoutesAndOtherRadiosDoNotExist)
{
    const auto config = Config(0);
    EXPECT_EQ(config->bandCount, 0u);
    EXPECT_EQ(config->routes.txRouteCount, 0);
    const uint32_t kind = 2;
    EXPECT_EQ(ErrorText(VOND_MMRf_GetRouteConfigV7_r(kHandle, kTimeoutMs, &kind, config.get())),
              "Target: unknown radio kind");
}

TEST_F(CapabilityTest, MimoAbilityIsToldByBand)
{
    SNRfBandRxInfo info = {};
    ASSERT_EQ(VOND_NRf_GetBandRxInfo_r(kHandle, kTimeoutMs, &info), VOND_SUCCESS);
    ASSERT_EQ(info.count, 11);
    EXPECT_EQ(info.band[0], 1);
    EXPECT_EQ(info.ulMimo[0], 0);
    EXPECT_EQ(info.rx4x4[0], 1);
    EXPECT_EQ(info.band[5], 41);
    EXPECT_EQ(info.ulMimo[5], 1);
}

TEST_F(CapabilityTest, PairedTxRoutesAreToldByRxRoute)
{
    auto values = std::make_unique<SNRfRxRouteValues>();
    ASSERT_EQ(VOND_NRf_GetRxRouteValues_r(kHandle, kTimeoutMs, values.get()), VOND_SUCCESS);
    // All type 1 routes but that of the downlink band.
    EXPECT_EQ(values->count, 17);
    EXPECT_EQ(values->entry[0].route, 1);
    EXPECT_EQ(values->entry[0].valueCount, 2);
    EXPECT_EQ(values->entry[0].value[1], 2);
}

TEST_F(CapabilityTest, DetailAnswersInRequestOrder)
{
    auto request = std::make_unique<SMMRfRouteDetailReqV7>();
    auto answer = std::make_unique<SMMRfRouteDetailCnfV7>();
    request->radioKind = 1;
    request->rxType1Count = 2;
    request->rxType1Route[0] = 9;
    request->rxType1Route[1] = 1;
    request->rxType2Count = 1;
    request->rxType2Route[0] = 105;
    request->txPairCount = 2;
    request->txPair[0].route = 9;
    request->txPair[0].bwRegionKhz = 60000;
    request->txPair[1].route = 1;
    request->txPair[1].bwRegionKhz = 20000;
    ASSERT_EQ(VOND_MMRf_GetRouteDetailV7_r(kHandle, kTimeoutMs, request.get(), answer.get()),
              VOND_SUCCESS);
    EXPECT_EQ(answer->rxType1[0].feRouteNum, 309);
    EXPECT_EQ(answer->rxType1[0].type1.mimoPairCount, 1);
    EXPECT_EQ(answer->rxType1[0].type1.mimoPair[0], 10);
    EXPECT_EQ(answer->rxType1[1].feRouteNum, 301);
    EXPECT_EQ(answer->rxType1[1].antMask, 6u);
    EXPECT_STREQ(answer->rxType1[1].port[1], "RX_MB_1D");
    EXPECT_EQ(answer->rxType1[1].type1.srx, 1);
    EXPECT_EQ(answer->rxType2[0].feRouteNum, 605);
    EXPECT_EQ(answer->rxType2[0].type2.srx[0], 1);
    EXPECT_EQ(answer->rxType2[0].type2.srx[1], 2);
    EXPECT_EQ(answer->rxType2[0].type2.mimoPairCount, 2);
    EXPECT_EQ(answer->rxType2[0].type2.mimoPair[1], 107);
    EXPECT_EQ(answer->txPair[0].feRouteNum, 238);
    EXPECT_STREQ(answer->txPair[1].port, "TX_MB_1");
    EXPECT_EQ(answer->txPair[1].stx, 1);
}

TEST_F(CapabilityTest, DetailOfUnknownRoutesIsRefused)
{
    auto request = std::make_unique<SMMRfRouteDetailReqV7>();
    auto answer = std::make_unique<SMMRfRouteDetailCnfV7>();
    const auto text = [&] {
        return ErrorText(
            VOND_MMRf_GetRouteDetailV7_r(kHandle, kTimeoutMs, request.get(), answer.get()));
    };
    EXPECT_EQ(text(), "Target: unknown radio kind");
    request->radioKind = 1;
    request->rxType1Count = 1;
    request->rxType1Route[0] = 101;
    EXPECT_EQ(text(), "Target: unknown route");
    request->rxType1Count = 0;
    request->txPairCount = 1;
    request->txPair[0].route = 1;
    request->txPair[0].bwRegionKhz = 20001;
    EXPECT_EQ(text(), "Target: route has no such bandwidth region");
}

TEST_F(CapabilityTest, LargestFillsAllTables)
{
    ASSERT_EQ(VondSim_SetProfile("largest"), 0);
    const auto config = Config();
    EXPECT_EQ(config->bandCount, 25u);
    EXPECT_EQ(config->freqRange.tx.count, 14);
    EXPECT_EQ(config->freqRange.rx.count, 14);
    EXPECT_EQ(config->routes.txRouteCount, 100);
    EXPECT_EQ(config->routes.rxType1RouteCount, 100);
    EXPECT_EQ(config->routes.rxType2RouteCount, 100);
    for (const SMMRfTxRouteV7 &row : config->routes.txRoute)
        EXPECT_EQ(row.bwRegionCount, 4);
    EXPECT_EQ(config->routes.txRoute[99].route, 100);
    EXPECT_EQ(config->routes.rxType2Route[99].route, 200);
    EXPECT_EQ(config->rxGainInfo[1].t2[6][2][2], 1);

    SNRfBandRxInfo info = {};
    ASSERT_EQ(VOND_NRf_GetBandRxInfo_r(kHandle, kTimeoutMs, &info), VOND_SUCCESS);
    EXPECT_EQ(info.count, 25);

    auto values = std::make_unique<SNRfRxRouteValues>();
    ASSERT_EQ(VOND_NRf_GetRxRouteValues_r(kHandle, kTimeoutMs, values.get()), VOND_SUCCESS);
    ASSERT_EQ(values->count, 100);
    for (const SNRfRxRouteValueEntry &entry : values->entry)
        EXPECT_EQ(entry.valueCount, 100);
    EXPECT_EQ(values->entry[99].value[99], 100);
}

TEST_F(CapabilityTest, LargestAnswersAsManyDetailRowsAsACountByteHolds)
{
    ASSERT_EQ(VondSim_SetProfile("largest"), 0);
    auto request = std::make_unique<SMMRfRouteDetailReqV7>();
    auto answer = std::make_unique<SMMRfRouteDetailCnfV7>();
    request->radioKind = 1;
    request->rxType1Count = 100;
    request->rxType2Count = 100;
    for (uint16_t i = 0; i < 100; ++i) {
        request->rxType1Route[i] = static_cast<uint16_t>(1 + i);
        request->rxType2Route[i] = static_cast<uint16_t>(101 + i);
    }
    request->txPairCount = 255;
    for (int i = 0; i < 255; ++i) {
        request->txPair[i].route = static_cast<uint16_t>(1 + i % 100);
        request->txPair[i].bwRegionKhz = 100000;
    }
    ASSERT_EQ(VOND_MMRf_GetRouteDetailV7_r(kHandle, kTimeoutMs, request.get(), answer.get()),
              VOND_SUCCESS);
    EXPECT_EQ(answer->rxType1[99].type1.mimoPairCount, 6);
    EXPECT_EQ(answer->rxType2[99].type2.mimoPairCount, 5);
    EXPECT_EQ(answer->txPair[254].mimoPairCount, 6);
    EXPECT_EQ(answer->txPair[254].feRouteNum, 1055);
    EXPECT_EQ(answer->txPair[255].feRouteNum, 0);
}

}  // namespace
