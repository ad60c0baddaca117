#include "tests/simulator/flash/CalFixture.h"

#include <algorithm>

CCalUpload::CCalUpload()
    : m_request(std::make_unique<SMMGetCalDataReqV7>()),
      m_answer(std::make_unique<SMMGetCalDataCnfV7>())
{
    m_request->radioKind = 1;
}

CCalUpload &CCalUpload::Type1(uint16_t route, uint16_t blockCount)
{
    m_request->type1[m_request->type1Count++] = {blockCount, route};
    return *this;
}

CCalUpload &CCalUpload::Type2(uint16_t route, uint16_t blockCount)
{
    m_request->type2[m_request->type2Count++] = {blockCount, route};
    return *this;
}

CCalUpload &CCalUpload::Tx(uint16_t route, uint32_t bandwidth, uint16_t blockCount)
{
    SMMCalTxRequestEntryV7 &entry = m_request->tx[m_request->txCount++];
    entry.blockCount = blockCount;
    entry.route = route;
    entry.bandwidth = bandwidth;
    entry.routeAgain = route;
    return *this;
}

const SMMGetCalDataCnfV7 &CCalUpload::Send()
{
    EXPECT_EQ(VOND_MMRf_GetCalDataV7_r(kHandle, kTimeoutMs, m_request.get(), m_answer.get()),
              VOND_SUCCESS);
    return *m_answer;
}

CCalDownload::CCalDownload() : m_request(std::make_unique<SMMSetCalDataReqV7>())
{
    m_request->radioKind = 1;
    m_request->version = kVondCalVersion;
}

CCalDownload &CCalDownload::Type1(uint16_t route, const std::vector<SType1Block> &blocks)
{
    m_request->type1[m_request->type1Count++] = {static_cast<uint16_t>(blocks.size()), route};
    for (const SType1Block &block : blocks)
        m_request->type1Block[m_type1Blocks++] = block;
    return *this;
}

CCalDownload &CCalDownload::Type2(uint16_t route, const std::vector<SType2Block> &blocks)
{
    m_request->type2BlockCount[m_request->type2Count] = static_cast<uint16_t>(blocks.size());
    m_request->type2Route[m_request->type2Count++] = route;
    for (const SType2Block &block : blocks)
        m_request->type2Block[m_type2Blocks++] = block;
    return *this;
}

CCalDownload &CCalDownload::Tx(uint16_t route, uint32_t bandwidth,
                               const std::vector<SAptBlock> &blocks)
{
    m_request->tx[m_request->txCount++] = {bandwidth, static_cast<uint16_t>(blocks.size()), route};
    for (const SAptBlock &block : blocks)
        m_request->txBlock[m_txBlocks++] = block;
    return *this;
}

SMMSetCalDataCnfV7 CCalDownload::Send()
{
    SMMSetCalDataCnfV7 answer = {};
    EXPECT_EQ(VOND_MMRf_SetCalDataV7_r(kHandle, kTimeoutMs, m_request.get(), &answer),
              VOND_SUCCESS);
    return answer;
}

std::unique_ptr<SMMCalBlkInfoCnfV7> CCalTest::Info()
{
    auto info = std::make_unique<SMMCalBlkInfoCnfV7>();
    EXPECT_EQ(VOND_MMRf_GetCalBlkInfoV7_r(kHandle, kTimeoutMs, 1, info.get()), VOND_SUCCESS);
    return info;
}

namespace {

uint16_t BlocksIn(const SMMCalRxRowV7 *rows, uint16_t count, uint16_t route)
{
    const auto *row =
        std::find_if(rows, rows + count, [&](const auto &r) { return r.route == route; });
    EXPECT_NE(row, rows + count) << "no route " << route;
    return row != rows + count ? row->blockTotal : uint16_t(0);
}

}  // namespace

std::vector<SType1Block> CCalTest::Type1(uint16_t route)
{
    const auto info = Info();
    const uint16_t blocks = BlocksIn(info->type1, info->type1Count, route);
    CCalUpload upload;
    const SMMGetCalDataCnfV7 &answer = upload.Type1(route, blocks).Send();
    EXPECT_EQ(answer.verdict.status, 1) << answer.verdict.type1Text;
    return {answer.type1Block, answer.type1Block + blocks};
}

std::vector<SType2Block> CCalTest::Type2(uint16_t route)
{
    const auto info = Info();
    const uint16_t blocks = BlocksIn(info->type2, info->type2Count, route);
    CCalUpload upload;
    const SMMGetCalDataCnfV7 &answer = upload.Type2(route, blocks).Send();
    EXPECT_EQ(answer.verdict.status, 1) << answer.verdict.type2Text;
    return {answer.type2Block, answer.type2Block + blocks};
}

std::vector<SAptBlock> CCalTest::Tx(uint16_t route, uint32_t bandwidth)
{
    const auto info = Info();
    const uint32_t kind = 1;
    auto config = std::make_unique<SMMRfRouteConfigV7>();
    EXPECT_EQ(VOND_MMRf_GetRouteConfigV7_r(kHandle, kTimeoutMs, &kind, config.get()), VOND_SUCCESS);
    uint16_t blocks = 0;
    for (int i = 0; i < info->txCount; ++i) {
        for (int region = 0; region < kVondMaxBwRegions; ++region) {
            if (info->tx[i].route == route &&
                config->routes.txRoute[i].bwRegionKhz[region] == bandwidth)
                blocks = info->tx[i].blockCount[region];
        }
    }
    CCalUpload upload;
    const SMMGetCalDataCnfV7 &answer = upload.Tx(route, bandwidth, blocks).Send();
    EXPECT_EQ(answer.verdict.status, 1) << answer.verdict.txText;
    return {answer.txBlock, answer.txBlock + blocks};
}
