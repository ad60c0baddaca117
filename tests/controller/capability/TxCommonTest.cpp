// Common members of the TX pages.
#include "tests/controller/capability/UpdaterFixture.h"

namespace {

const QString kGroup1 = QStringLiteral("cmdIf.request.group1.memberProperty.");
const QString kGroup2 = QStringLiteral("cmdIf.request.group2.memberProperty.");

using TxCommonTest = CUpdaterTest;

TEST_F(TxCommonTest, SlotFormatIsEnabledForTddBandsAlone)
{
    // n75 is downlink-only for the table; here the DUT lists it as any other band.
    PlugBands(R"([{"band": 41}, {"band": 1}, {"band": 75, "uplink": [1432000, 1517000]},
        {"band": 80, "uplinkOnly": true}])");
    const QJsonObject document = Patched(EPageId::PuschTxForce);
    EXPECT_EQ(At(document, kGroup1 + "tddSlotConfig.trait.enableStatusPair"),
              (QJsonObject{{"n41", 1}, {"n1", 0}, {"n75", 0}, {"n80", 0}}));
    EXPECT_EQ(At(document, kGroup1 + "tddSlotConfig.defaultEnableStatus"), QJsonValue(1));
}

TEST_F(TxCommonTest, SlotFormatOfTheFirstBandIsTheDefault)
{
    PlugBands(R"([{"band": 1}, {"band": 41}])");
    EXPECT_EQ(At(Patched(EPageId::PuschTxForce), kGroup1 + "tddSlotConfig.defaultEnableStatus"),
              QJsonValue(0));
}

TEST_F(TxCommonTest, SecondCarrierIsKeyedByCarrierCountAndOffWhileThereIsOne)
{
    PlugBands(R"([{"band": 41, "ulMimo": true}, {"band": 1}, {"band": 78}])");
    const QJsonObject document = Patched(EPageId::PuschTxNormal);
    EXPECT_TRUE(m_isDone);
    EXPECT_EQ(At(document, kGroup1 + "tddSlotConfig.trait.enableStatusPair"),
              (QJsonObject{{"n41", 1}, {"n1", 0}, {"n78", 1}}));
    EXPECT_EQ(
        At(document, kGroup2 + "tddSlotConfig.trait.enableStatusPair"),
        (QJsonObject{
            {"1,n41", 0}, {"2,n41", 1}, {"1,n1", 0}, {"2,n1", 0}, {"1,n78", 0}, {"2,n78", 1}}));
    EXPECT_EQ(At(document, kGroup1 + "enableMimo.trait.enableStatusPair"),
              (QJsonObject{{"n41", 1}, {"n1", 0}, {"n78", 0}}));
    EXPECT_EQ(
        At(document, kGroup2 + "enableMimo.trait.enableStatusPair"),
        (QJsonObject{
            {"1,n41", 0}, {"2,n41", 1}, {"1,n1", 0}, {"2,n1", 0}, {"1,n78", 0}, {"2,n78", 0}}));
}

TEST_F(TxCommonTest, DefaultsOfTheSecondCarrierStayTheTemplates)
{
    PlugBands(R"([{"band": 41, "ulMimo": true}])");
    const QJsonObject document = Patched(EPageId::PuschTxNormal);
    EXPECT_EQ(At(document, kGroup1 + "tddSlotConfig.defaultEnableStatus"), QJsonValue(1));
    EXPECT_EQ(At(document, kGroup1 + "enableMimo.defaultEnableStatus"), QJsonValue(1));
    for (const char *member : {"tddSlotConfig", "enableMimo"}) {
        const QString path = kGroup2 + member + ".defaultEnableStatus";
        EXPECT_EQ(At(document, path), At(TemplateOf(EPageId::PuschTxNormal), path)) << member;
    }
}

TEST_F(TxCommonTest, MimoIsOfferedAsTheTextFalseForEveryBand)
{
    const QJsonObject document = Patched(EPageId::PuschTxNormal);
    const QJsonArray bands = At(document, kGroup1 + "band.trait.value").toArray();
    EXPECT_EQ(bands.size(), 10);
    for (const QString &group : {kGroup1, kGroup2}) {
        const QJsonObject values = At(document, group + "enableMimo.trait.valuePair").toObject();
        EXPECT_EQ(values.size(), bands.size());
        for (const QJsonValue &band : bands)
            EXPECT_EQ(values.value(band.toString()), QJsonValue("false"));
    }
}

TEST_F(TxCommonTest, VrbLengthStartsAtOneThoughTheTemplateStartsAtZero)
{
    const QString length = kGroup1 + "vrbLength.trait.valuePair";
    EXPECT_EQ(At(TemplateOf(EPageId::PuschTxForce), length + ".25 RB.min"), QJsonValue(0));
    const QJsonObject document = Patched(EPageId::PuschTxForce);
    EXPECT_EQ(At(document, length + ".25 RB"),
              (QJsonObject{{"min", 1}, {"max", 25}, {"value", 1}}));
    EXPECT_EQ(At(document, kGroup1 + "vrbStart.trait.valuePair.25 RB"),
              (QJsonObject{{"min", 0}, {"max", 24}, {"value", 0}}));
}

TEST_F(TxCommonTest, VrbRangesHoldEveryCountWhateverTheBandOffers)
{
    constexpr int kCounts[] = {135, 107, 31,  18,  273, 217, 162, 78, 65, 51, 38,
                               24,  11,  270, 216, 160, 133, 106, 79, 52, 25};
    PlugBands(R"([{"band": 51}])");
    const QJsonObject document = Patched(EPageId::PuschTxNormal);
    for (const QString &group : {kGroup1, kGroup2}) {
        const QJsonObject starts = At(document, group + "vrbStart.trait.valuePair").toObject();
        const QJsonObject lengths = At(document, group + "vrbLength.trait.valuePair").toObject();
        EXPECT_EQ(starts.size(), 21);
        EXPECT_EQ(lengths.size(), 21);
        for (const int rb : kCounts) {
            const QString key = QString::number(rb) + " RB";
            EXPECT_EQ(starts.value(key), (QJsonObject{{"min", 0}, {"max", rb - 1}, {"value", 0}}));
            EXPECT_EQ(lengths.value(key), (QJsonObject{{"min", 1}, {"max", rb}, {"value", 1}}));
        }
    }
}

TEST_F(TxCommonTest, CountWithoutItsUnitHasNoVrbRange)
{
    PlugBands(R"([{"band": 84, "uplinkOnly": true}])");
    const QJsonObject document = Patched(EPageId::PuschTxForce);
    EXPECT_EQ(At(document, kGroup1 + "ulBandwidth.trait.valuePair.n84,60kHz"),
              Names({"11 RB", "18 RB", "24"}));
    EXPECT_TRUE(At(document, kGroup1 + "vrbStart.trait.valuePair.24").isUndefined());
}

TEST_F(TxCommonTest, DefaultsAreThoseOfTheFirstBandThatOffersSome)
{
    PlugBands(R"([{"band": 48, "uplink": [3550000, 3700000], "downlink": [3550000, 3700000]},
        {"band": 79}])");
    const QJsonObject document = Patched(EPageId::PuschTxForce);
    EXPECT_EQ(At(document, kGroup1 + "band.trait.defaultValue"), QJsonValue("n48"));
    EXPECT_EQ(At(document, kGroup1 + "txScs.trait.defaultValue"), QJsonValue("15kHz"));
    EXPECT_EQ(At(document, kGroup1 + "ulBandwidth.trait.defaultValue"), QJsonValue("216 RB"));
}

TEST_F(TxCommonTest, RegionsTellTheirLimitsInWholeMegahertz)
{
    PlugKeys(R"("txLimits": [], "rxType1Routes": [], "rxLimits": [], "bands": [{"band": 1}],
        "rxType2Routes": [], "txRoutes": [{"band": 1, "route": 3, "regions": [
            {"kHz": 20000, "antMask": 1, "feRoute": 1, "port": "A", "stx": 0},
            {"kHz": 40999, "antMask": 1, "feRoute": 2, "port": "B", "stx": 0},
            {"kHz": 999, "antMask": 1, "feRoute": 3, "port": "C", "stx": 0},
            {"kHz": 4294967295, "antMask": 1, "feRoute": 4, "port": "D", "stx": 0}]}])");
    const QJsonObject document = Patched(EPageId::SingleToneTx);
    EXPECT_TRUE(m_isDone);
    EXPECT_EQ(At(document, kGroup1 + "aggBwRegion.trait.valuePair"),
              (QJsonObject{{"3", Names({"BW0", "BW1", "BW2", "BW3"})}}));
    EXPECT_EQ(At(document, kGroup1 + "aggBwKhzRange.trait.valuePair"),
              (QJsonObject{{"3,BW0", "0 < BW0 <= 20MHz"},
                           {"3,BW1", "20 < BW1 <= 40MHz"},
                           {"3,BW2", "40 < BW2 <= 0MHz"},
                           {"3,BW3", "0 < BW3 <= 4294967MHz"}}));
    EXPECT_EQ(At(document, kGroup1 + "aggBwKhzRange.trait.defaultValue"),
              QJsonValue("0 < BW0 <= 20MHz"));
    EXPECT_EQ(At(document, kGroup1 + "txRoute.trait.defaultValue"), QJsonValue("3"));
}

TEST_F(TxCommonTest, RouteWithoutRegionsOffersNoneAndHasNoRange)
{
    PlugKeys(R"("txLimits": [], "rxType1Routes": [], "rxLimits": [], "bands": [{"band": 1}],
        "rxType2Routes": [], "txRoutes": [{"band": 1, "route": 3, "regions": []}])");
    const QJsonObject document = Patched(EPageId::SingleToneTx);
    EXPECT_TRUE(m_isDone);
    EXPECT_EQ(At(document, kGroup1 + "aggBwRegion.trait.valuePair"),
              (QJsonObject{{"3", QJsonArray()}}));
    EXPECT_EQ(At(document, kGroup1 + "aggBwKhzRange.trait.valuePair"), QJsonObject());
    EXPECT_EQ(At(document, kGroup1 + "aggBwRegion.trait.defaultValue"), QJsonValue("BW0"));
    EXPECT_EQ(At(document, kGroup1 + "aggBwKhzRange.trait.defaultValue"), QJsonValue(""));
}

TEST_F(TxCommonTest, AptPageKeepsNoRangeTexts)
{
    const QString config = QStringLiteral("calDataIf.config.group1.memberProperty.");
    const QJsonObject document = Patched(EPageId::AptProfile);
    EXPECT_EQ(At(document, config + "aggBwRegion.trait.valuePair.9"),
              Names({"BW0", "BW1", "BW2", "BW3"}));
    EXPECT_EQ(At(document, config + "aggBwKhzRange"),
              At(TemplateOf(EPageId::AptProfile), config + "aggBwKhzRange"));
}

}  // namespace
