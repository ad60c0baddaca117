// A DUT that lies: random bytes in its answers. Every page comes out as a document that can be
// sent, shown and read again, and nothing but what its driver writes is touched.
#include "Model/ModelText.h"
#include "Operations/capability/CapabilityCache.h"
#include "tests/controller/capability/UpdaterFixture.h"
#include "tests/controller/capability/WrittenPaths.h"

namespace {

constexpr int kSeeds = 40;

class NoiseTest : public CUpdaterTest
{
protected:
    void ExpectUsable(EPageId id)
    {
        const QJsonObject document = Patched(id);
        QJsonObject outside = document;
        outside.remove("modelIntegrity");
        QJsonObject page = TemplateOf(id);
        for (const SWrittenPath &row : WrittenPaths(id))
            Set(page, row.path, At(document, row.path));
        EXPECT_EQ(Differences(outside, page), "");
        EXPECT_LE(Messages(document).size(), 1);
        EXPECT_EQ(m_isDone, Messages(document).isEmpty());
        EXPECT_EQ(Differences(ModelFromText(ModelToText(document)), document), "");
    }
    void ExpectAllUsable()
    {
        for (const EPageId id : kPatchedPages) {
            SCOPED_TRACE(PageLabel(id));
            ExpectUsable(id);
        }
    }
    void StartAnew(const char *profile)
    {
        Plug(profile);
        m_updater.ResetCapabilityCache();
    }
};

class RecordNoiseTest : public NoiseTest, public ::testing::WithParamInterface<const char *>
{
};

TEST_P(RecordNoiseTest, EveryPageComesOutUsable)
{
    for (int seed = 1; seed <= kSeeds; ++seed) {
        SCOPED_TRACE(seed);
        StartAnew("handset");
        Noise(GetParam(), seed);
        ExpectAllUsable();
    }
}

INSTANTIATE_TEST_SUITE_P(Records, RecordNoiseTest,
                         ::testing::Values(kMmCapability, kNrCapability, kRouteConfig, kBandRxInfo,
                                           kRxRouteValues, kRouteDetail),
                         [](const auto &info) { return CallLabel(info.param); });

TEST_F(NoiseTest, FullTablesOfNoisyHardwareComeOutUsable)
{
    for (int seed = 1; seed <= 3; ++seed) {
        StartAnew("largest");
        for (const char *function : {kBandRxInfo, kRxRouteValues, kRouteDetail})
            Noise(function, seed);
        ExpectAllUsable();
    }
}

// Random flags shut nearly every band out, so the bands are made those of the random routes.
TEST_F(NoiseTest, RoutesOnRandomBandsThatAreOfferedComeOutUsable)
{
    for (int seed = 1; seed <= kSeeds; ++seed) {
        SCOPED_TRACE(seed);
        StartAnew("handset");
        Noise(kRouteConfig, seed);
        m_target.GetRouteTableNr();
        SMMRfRouteConfigV7 &config = CapabilityCache::Get().nrRoutes.record;
        config.bandCount = kVondMaxBands;
        for (int i = 0; i < kVondMaxBands; ++i) {
            const uint16_t bands[] = {config.routes.txRoute[i].band,
                                      config.routes.rxType1Route[i].band,
                                      config.routes.rxType2Route[i].band};
            config.band[i] = {bands[i % 3], 0, 0};
        }
        // Some of them are real ones, so that spacings and counts come in.
        const uint16_t real[] = {1, 41, 84, 39};
        for (int i = 0; i < 4; ++i) {
            config.band[i].band = real[i];
            config.routes.txRoute[i].band = real[i];
            config.routes.rxType1Route[i].band = real[i];
        }
        ExpectAllUsable();
    }
}

TEST_F(NoiseTest, GainFlagsOtherThanOneCountAsUnset)
{
    StartAnew("handset");
    m_target.GetRouteTableNr();
    for (SMMRfRxGainInfoV7 &gain : CapabilityCache::Get().nrRoutes.record.rxGainInfo) {
        std::fill(&gain.t1[0][0], &gain.t1[0][0] + sizeof gain.t1, uint8_t(2));
        std::fill(&gain.t2[0][0][0], &gain.t2[0][0][0] + sizeof gain.t2, uint8_t(255));
    }
    const QJsonObject modes =
        At(Patched(EPageId::Rssi),
           "cmdIf.request.group1.memberProperty.path0MainSearch.trait.valuePair")
            .toObject();
    EXPECT_EQ(modes.size(), 28);
    for (const QJsonValue &list : modes)
        EXPECT_EQ(list, QJsonArray());
}

TEST_F(NoiseTest, NamesWithoutTheirEndAndCountsBeyondTheirRowsAreCut)
{
    StartAnew("handset");
    QStringList routes;
    QJsonArray bands;
    m_updater.GetSupportedBandArray(bands, {});
    SMMRfRouteDetailCnfV7 &hardware = CapabilityCache::Get().nrDetail.record.hardware;
    STxBwRegionHw &tx = hardware.txPair[0];
    std::fill(std::begin(tx.port), std::end(tx.port), 'P');
    tx.mimoPairCount = 255;
    std::fill(std::begin(tx.mimoPair), std::end(tx.mimoPair), uint16_t(7));
    SRxRouteHw &rx = hardware.rxType2[0];
    std::fill(std::begin(rx.port[0]), std::end(rx.port[0]), 'A');
    std::fill(std::begin(rx.port[1]), std::end(rx.port[1]), 'B');
    rx.type2.mimoPairCount = 255;
    std::fill(std::begin(rx.type2.mimoPair), std::end(rx.type2.mimoPair), uint16_t(9));
    const QString labels = "cmdIf.request.group2.memberProperty.";
    const QJsonObject tone = Patched(EPageId::SingleToneTx);
    EXPECT_EQ(At(tone, labels + "port.trait.valuePair.1,BW0"), QJsonValue(QString(16, 'P')));
    EXPECT_EQ(At(tone, labels + "mimoPairNum.trait.valuePair.1,BW0"), "7 7 7 7 7 7 ");
    const QJsonObject rsrp = Patched(EPageId::RsrpForce);
    EXPECT_EQ(At(rsrp, labels + "port.trait.valuePair.101,Type2"),
              QJsonValue(QString(16, 'A') + ", " + QString(16, 'B')));
    EXPECT_EQ(At(rsrp, labels + "mimoPairNum.trait.valuePair.101,Type2"), "9 9 9 9 9 ");
}

}  // namespace
