// The first step of every page: bands and frequency limits.
#include "Operations/capability/CapabilityCache.h"
#include "Support/Log.h"
#include "tests/common/LogCapture.h"
#include "tests/controller/capability/UpdaterFixture.h"

namespace {

constexpr SBandFilterV7 kAllTx{EBandDirection::Tx, false, false};
constexpr SBandFilterV7 kAllRx{EBandDirection::Rx, false, false};
constexpr SBandFilterV7 kFddRx{EBandDirection::Rx, true, false};
constexpr SBandFilterV7 kMimoRx{EBandDirection::Rx, false, true};
constexpr SBandFilterV7 kMimoTx{EBandDirection::Tx, false, true};

const QJsonObject kOpenRange{{"min", 0}, {"max", 2147483647}};

// A page with nothing but what the step writes.
QJsonObject SmallPage()
{
    return {
        {"modelName", "Small"},
        {"g", QJsonObject{{"memberProperty",
                           QJsonObject{{"band", QJsonObject{{"trait",
                                                             QJsonObject{
                                                                 {"value", QJsonArray{"n0"}},
                                                                 {"defaultValue", "n0"},
                                                             }}}},
                                       {"freq", QJsonObject{{"trait", QJsonObject{
                                                                          {"valuePair", "sample"},
                                                                      }}}}}}}}};
}

SBandFreqPathV7 SmallPaths(SBandFilterV7 filter, bool useRouteRange)
{
    return {filter, ValueOf("g", "band"), DefaultOf("g", "band"), useRouteRange,
            ValuePairOf("g", "freq")};
}

class BandFrequencyTest : public CUpdaterTest
{
protected:
    QJsonArray BandsOf(const SBandFilterV7 &filter)
    {
        QJsonArray bands;
        EXPECT_TRUE(m_updater.GetSupportedBandArray(bands, filter));
        return bands;
    }
    bool Update(const SBandFilterV7 &filter, bool useRouteRange, bool withRangeCheck = false)
    {
        m_page = SmallPage();
        return m_updater.UpdateBandAndFrequency(m_page, SmallPaths(filter, useRouteRange),
                                                withRangeCheck);
    }
    QJsonValue Written(const QString &path) const { return At(m_page, "g.memberProperty." + path); }
    void ExpectNoBands(const SBandFilterV7 &filter)
    {
        const LogCapture log(lcUpdate());
        EXPECT_FALSE(Update(filter, true));
        QJsonObject expected = SmallPage();
        Set(expected, "g.memberProperty.band.trait.defaultValue", "");
        expected.insert("modelIntegrity", Failed({"Get frequency value relation failed"}));
        EXPECT_EQ(Differences(m_page, expected), "");
        EXPECT_EQ(log.Lines(QtCriticalMsg),
                  QStringList("Small Get frequency value relation failed"));
    }

    QJsonObject m_page;
};

TEST_F(BandFrequencyTest, BandsStandInTheOrderOfTheDut)
{
    PlugBands(R"([{"band": 78}, {"band": 1}, {"band": 41}])");
    EXPECT_EQ(BandsOf(kAllRx), Names({"n78", "n1", "n41"}));
    EXPECT_TRUE(Update(kAllRx, false));
    EXPECT_EQ(Written("band.trait.value"), Names({"n78", "n1", "n41"}));
    EXPECT_EQ(Written("band.trait.defaultValue"), QJsonValue("n78"));
}

TEST_F(BandFrequencyTest, MimoBandsAreThoseOfTheDirection)
{
    EXPECT_EQ(BandsOf(kMimoTx), Names({"n41", "n77", "n78", "n79"}));
    EXPECT_EQ(BandsOf(kMimoRx), Names({"n1", "n3", "n7", "n41", "n77", "n78", "n79"}));
    EXPECT_TRUE(m_updater.IsBandMimoSupported(EBandDirection::Rx, 1));
    EXPECT_FALSE(m_updater.IsBandMimoSupported(EBandDirection::Tx, 1));
    EXPECT_FALSE(m_updater.IsBandMimoSupported(EBandDirection::Rx, 2));
}

TEST_F(BandFrequencyTest, MimoFlagOtherThanOneIsNone)
{
    BandsOf(kAllRx);
    SNRfBandRxInfo &info = CapabilityCache::Get().nrDetail.record.bandRxInfo;
    for (uint8_t &flag : info.rx4x4)
        flag = flag ? 2 : 0;
    info.rx4x4[1] = 1;
    EXPECT_EQ(BandsOf(kMimoRx), Names({"n3"}));
    EXPECT_FALSE(m_updater.IsBandMimoSupported(EBandDirection::Rx, 1));
    EXPECT_TRUE(m_updater.IsBandMimoSupported(EBandDirection::Rx, 3));
}

TEST_F(BandFrequencyTest, FddBandsArePlainOnesAlone)
{
    EXPECT_EQ(BandsOf(kFddRx), Names({"n1", "n3", "n5", "n7", "n28"}));
    // A band that the DUT flags is none, whatever 3GPP says of it.
    CapabilityCache::Get().nrRoutes.record.band[1].downlinkOnly = 1;
    EXPECT_EQ(BandsOf(kFddRx), Names({"n1", "n5", "n7", "n28"}));
}

TEST_F(BandFrequencyTest, ListOfADutWithoutBandsLeavesTheChoicesAndEmptiesTheDefault)
{
    PlugBands("[]");
    ExpectNoBands(kAllRx);
    ExpectNoBands(kAllTx);
}

TEST_F(BandFrequencyTest, DutWithoutNrHasNoBandsAndNoFailedRead)
{
    PlugKeys(R"("worldMode": {"valid": true, "mask": 39})");
    EXPECT_TRUE(BandsOf(kAllRx).isEmpty());
}

TEST_F(BandFrequencyTest, FddPageOfADutWithTddBandsAloneHasNoBands)
{
    PlugBands(R"([{"band": 41}, {"band": 78}, {"band": 75, "downlinkOnly": true}])");
    ExpectNoBands(kFddRx);
}

TEST_F(BandFrequencyTest, BandThat3gppLacksStaysUnfilteredWithAnOpenRange)
{
    PlugBands(R"([{"band": 48, "uplink": [3550000, 3700000], "downlink": [3550000, 3700000]},
        {"band": 1}])");
    EXPECT_TRUE(Update(kAllRx, false));
    EXPECT_EQ(Written("band.trait.value"), Names({"n48", "n1"}));
    EXPECT_EQ(Written("freq.trait.valuePair").toObject().value("n48"), kOpenRange);
    EXPECT_EQ(BandsOf(kFddRx), Names({"n1"}));
}

TEST_F(BandFrequencyTest, RangesAreByRouteOrByBandAsThePageWants)
{
    PlugKeys(R"("bands": [{"band": 1}], "txLimits": [], "rxLimits": [], "rxType2Routes": [],
        "rxType1Routes": [], "txRoutes": [{"band": 1, "route": 7, "regions": []}])");
    const QJsonObject n1{{"min", 1920000}, {"max", 1980000}};
    EXPECT_TRUE(Update(kAllTx, true));
    EXPECT_EQ(Written("freq.trait.valuePair"), (QJsonObject{{"7", n1}}));
    EXPECT_TRUE(Update(kAllTx, false));
    EXPECT_EQ(Written("freq.trait.valuePair"), (QJsonObject{{"n1", n1}}));
}

TEST_F(BandFrequencyTest, RouteWithoutLimitsOfItsOwnTakesThoseOfTheBand)
{
    // n78 has a limited route, so routes 12 and 14 pass the band check and are not found.
    const QJsonObject pairs = m_updater.GetTxFrequencyJsonObjectPair({"n78"}, true, false);
    const QJsonObject band{{"min", 3300000}, {"max", 3800000}};
    EXPECT_EQ(pairs, (QJsonObject{{"12", band},
                                  {"14", band},
                                  {"15", QJsonObject{{"min", 3400000}, {"max", 3600000}}}}));
}

TEST_F(BandFrequencyTest, LimitsOfARouteCountOnlyOnBandsThatHaveLimits)
{
    // Route 12 is limited on n78; n77, which it serves too, has no limits.
    PlugKeys(R"("txLimits": [{"band": 78, "route": 12, "kHz": [3400000, 3600000]}])");
    const QJsonObject limits{{"min", 3400000}, {"max", 3600000}};
    EXPECT_EQ(m_updater.GetTxFrequencyJsonObjectPair({"n77"}, true, false).value("12"),
              (QJsonObject{{"min", 3300000}, {"max", 4200000}}));
    EXPECT_EQ(m_updater.GetTxFrequencyJsonObjectPair({"n78"}, true, false).value("12"), limits);
}

TEST_F(BandFrequencyTest, BandCheckReadsTheLowByteOfTheCountAlone)
{
    const auto route15 = [this] {
        return m_updater.GetTxFrequencyJsonObjectPair({"n78"}, true, false).value("15");
    };
    const QJsonObject limits{{"min", 3400000}, {"max", 3600000}};
    EXPECT_EQ(route15(), limits);
    uint16_t &count = CapabilityCache::Get().nrRoutes.record.freqRange.tx.count;
    ASSERT_EQ(count, 3);
    count = 0x0103;
    EXPECT_EQ(route15(), limits);
    count = 0x0102;  // n78 stands in the third row
    EXPECT_EQ(route15(), (QJsonObject{{"min", 3300000}, {"max", 3800000}}));
    count = 0x0100;
    EXPECT_EQ(route15(), (QJsonObject{{"min", 3300000}, {"max", 3800000}}));
}

TEST_F(BandFrequencyTest, RouteOnTwoBandsKeepsTheRangeOfTheLaterBand)
{
    const auto route12 = [this](const QStringList &bands) {
        return m_updater.GetRxFrequencyJsonObjectPair(Names(bands), true, false).value("12");
    };
    const QJsonObject n77{{"min", 3300000}, {"max", 4200000}};
    const QJsonObject n78{{"min", 3300000}, {"max", 3800000}};
    EXPECT_EQ(route12({"n77", "n78"}), n78);
    EXPECT_EQ(route12({"n78", "n77"}), n77);
}

TEST_F(BandFrequencyTest, ReceiveRangesHoldRoutesOfBothTypes)
{
    const QJsonObject pairs = m_updater.GetRxFrequencyJsonObjectPair({"n78"}, true, false);
    EXPECT_EQ(pairs.keys(), QStringList({"105", "106", "107", "12", "13", "14"}));
    const QJsonObject limits{{"min", 3400000}, {"max", 3600000}};
    EXPECT_EQ(pairs.value("106"), limits);
    EXPECT_EQ(pairs.value("14"), limits);
}

TEST_F(BandFrequencyTest, RangeCheckStartsAtZeroWhateverTheLimits)
{
    for (const bool useRouteRange : {true, false}) {
        for (const EBandDirection direction : {EBandDirection::Tx, EBandDirection::Rx}) {
            const QJsonObject pairs = m_updater.GetFrequencyJsonObjectPair(
                direction, {"n1", "n28", "n78", "n75", "n80", "n48"}, useRouteRange, true);
            EXPECT_FALSE(pairs.isEmpty());
            for (const QJsonValue &pair : pairs) {
                const QJsonObject range = pair.toObject();
                EXPECT_EQ(range.value("min"), QJsonValue(0));
                EXPECT_TRUE(range.value("rangeCheck").toString().startsWith("0,"));
                EXPECT_TRUE(range.value("rangeCheck")
                                .toString()
                                .endsWith("~" + QString::number(range.value("max").toInt())));
            }
        }
    }
    EXPECT_EQ(m_updater.GetTxFrequencyJsonObjectPair({"n28"}, true, true).value("8"),
              (QJsonObject{{"min", 0}, {"max", 733000}, {"rangeCheck", "0,703000~733000"}}));
}

TEST_F(BandFrequencyTest, BandsWithoutRoutesKeepTheTemplatesFrequencies)
{
    PlugBands(R"([{"band": 1}])");
    EXPECT_TRUE(Update(kAllRx, true));
    EXPECT_EQ(Written("band.trait.value"), Names({"n1"}));
    EXPECT_EQ(Written("freq.trait.valuePair"), QJsonValue("sample"));
    EXPECT_FALSE(m_page.contains("modelIntegrity"));
}

TEST_F(BandFrequencyTest, LimitsThatCannotBeReadKeepTheTemplatesFrequenciesWithoutAMessage)
{
    BandsOf(kAllRx);
    CapabilityCache::Get().nrCapability.flags.succeeded = false;
    const LogCapture log(lcUpdate());
    EXPECT_TRUE(Update(kAllRx, true));
    EXPECT_EQ(Written("band.trait.defaultValue"), QJsonValue("n1"));
    EXPECT_EQ(Written("freq.trait.valuePair"), QJsonValue("sample"));
    EXPECT_FALSE(m_page.contains("modelIntegrity"));
    EXPECT_EQ(log.Lines(QtCriticalMsg), QStringList("Get route frequency range from L1 failed"));
}

SRouteFreqRangeV7 TwoLimits()
{
    SRouteFreqRangeV7 range = {};
    range.tx.count = 2;
    range.tx.route[0] = 4;
    range.tx.low[0] = 100;
    range.tx.high[0] = 200;
    range.tx.route[1] = 4;
    range.tx.low[1] = 300;
    range.rx.count = 1;
    range.rx.route[0] = 9;
    range.rx.low[0] = 500;
    range.rx.high[0] = 600;
    return range;
}

TEST_F(BandFrequencyTest, RouteRangeIsTheFirstRowOfTheRouteInItsHalf)
{
    using Updater = CNrDataModelCapUpdater;
    const SRouteFreqRangeV7 range = TwoLimits();
    EXPECT_EQ(Updater::GetUplinkRangeByRoute(range, 4, false),
              (QJsonObject{{"min", 100}, {"max", 200}}));
    EXPECT_EQ(Updater::GetUplinkRangeByRoute(range, 4, true),
              (QJsonObject{{"min", 0}, {"max", 200}, {"rangeCheck", "0,100~200"}}));
    EXPECT_EQ(Updater::GetDownlinkRangeByRoute(range, 9, false),
              (QJsonObject{{"min", 500}, {"max", 600}}));
}

TEST_F(BandFrequencyTest, RouteWithoutARowHasAnEmptyRange)
{
    using Updater = CNrDataModelCapUpdater;
    SRouteFreqRangeV7 range = TwoLimits();
    EXPECT_TRUE(Updater::GetUplinkRangeByRoute(range, 9, false).isEmpty());
    EXPECT_TRUE(Updater::GetDownlinkRangeByRoute(range, 4, true).isEmpty());
    EXPECT_TRUE(Updater::GetUplinkRangeByRoute(range, 0, false).isEmpty());
    range.tx.count = 0;
    EXPECT_TRUE(Updater::GetUplinkRangeByRoute(range, 4, false).isEmpty());
}

}  // namespace
