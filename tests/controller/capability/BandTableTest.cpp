// What the updater takes out of the 3GPP tables.
#include "Model/ModelResources.h"
#include "Support/Log.h"
#include "tests/common/LogCapture.h"
#include "tests/controller/capability/UpdaterFixture.h"
#include "tests/model/Nr3gppDocument.h"

namespace {

using BandTableTest = CUpdaterTest;

const QJsonObject kOpenRange{{"min", 0}, {"max", 2147483647}};

QJsonObject Bands()
{
    return Nr3gppTable("operatingBand");
}

QJsonObject Uplink(const QString &band, bool withRangeCheck = false)
{
    return CNrDataModelCapUpdater::GetUplinkRange3gpp(Bands(), band, withRangeCheck);
}

QJsonObject Downlink(const QString &band, bool withRangeCheck = false)
{
    return CNrDataModelCapUpdater::GetDownlinkRange3gpp(Bands(), band, withRangeCheck);
}

TEST_F(BandTableTest, RangeOfABandIsItsOwnInEachDirection)
{
    EXPECT_EQ(Uplink("n1"), (QJsonObject{{"min", 1920000}, {"max", 1980000}}));
    EXPECT_EQ(Downlink("n1"), (QJsonObject{{"min", 2110000}, {"max", 2170000}}));
}

TEST_F(BandTableTest, RangeCheckAcceptsZeroBesideTheLimits)
{
    EXPECT_EQ(Uplink("n1", true),
              (QJsonObject{{"min", 0}, {"max", 1980000}, {"rangeCheck", "0,1920000~1980000"}}));
    EXPECT_EQ(Downlink("n1", true),
              (QJsonObject{{"min", 0}, {"max", 2170000}, {"rangeCheck", "0,2110000~2170000"}}));
}

TEST_F(BandTableTest, UnknownBandHasAnOpenRange)
{
    for (const char *band : {"n4", "n48", "78", "", "N78"}) {
        EXPECT_EQ(Uplink(band), kOpenRange) << band;
        EXPECT_EQ(Downlink(band), kOpenRange) << band;
    }
    EXPECT_EQ(Uplink("n48", true),
              (QJsonObject{{"min", 0}, {"max", 2147483647}, {"rangeCheck", "0,0~2147483647"}}));
}

TEST_F(BandTableTest, NullBandHasAnOpenRangeAndAMissingNumberIsZero)
{
    const QJsonObject bands{{"n1", QJsonValue::Null},
                            {"n2", QJsonObject{{"uplink", 7}}},
                            {"n3", QJsonObject{{"uplink", QJsonObject{{"high", 9}}}}}};
    const auto range = [&bands](const char *band) {
        return CNrDataModelCapUpdater::GetUplinkRange3gpp(bands, band, false);
    };
    EXPECT_EQ(range("n1"), kOpenRange);
    EXPECT_EQ(range("n2"), (QJsonObject{{"min", 0}, {"max", 0}}));
    EXPECT_EQ(range("n3"), (QJsonObject{{"min", 0}, {"max", 9}}));
}

TEST_F(BandTableTest, SupplementaryBandHasZeroLimitsInTheDirectionThatItLacks)
{
    const QJsonObject none{{"min", 0}, {"max", 0}};
    const QJsonObject noneChecked{{"min", 0}, {"max", 0}, {"rangeCheck", "0,0~0"}};
    for (const char *downlinkOnly : {"n75", "n76"}) {
        EXPECT_EQ(Uplink(downlinkOnly), none) << downlinkOnly;
        EXPECT_EQ(Uplink(downlinkOnly, true), noneChecked) << downlinkOnly;
    }
    for (const char *uplinkOnly : {"n80", "n81", "n82", "n83", "n84", "n86"}) {
        EXPECT_EQ(Downlink(uplinkOnly), none) << uplinkOnly;
        EXPECT_EQ(Downlink(uplinkOnly, true), noneChecked) << uplinkOnly;
    }
}

TEST_F(BandTableTest, BandwidthIsThatOfSpacingAndResourceBlocks)
{
    EXPECT_EQ(m_updater.GetBandwidthByScsRb("15kHz", "25 RB"), 5000);
    EXPECT_EQ(m_updater.GetBandwidthByScsRb("60kHz", "135 RB"), 100000);
    EXPECT_EQ(m_updater.GetBandwidthByScsRb("30kHz", "11 RB"), 5000);  // no band offers it
}

TEST_F(BandTableTest, PairThatTheTableLacksHasNoBandwidthThoughN39OffersIt)
{
    EXPECT_TRUE(Texts(Nr3gppTable("RBNumByBandSCS").value("n39,60kHz")).contains("52 RB"));
    EXPECT_EQ(m_updater.GetBandwidthByScsRb("60kHz", "52 RB"), -1);
    EXPECT_EQ(m_updater.GetBandwidthByScsRb("60kHz", "24"), -1);
    EXPECT_EQ(m_updater.GetBandwidthByScsRb("60KHz", "24 RB"), -1);
    EXPECT_EQ(m_updater.GetBandwidthByScsRb("", ""), -1);
}

TEST_F(BandTableTest, DistancesOfN5AndN71AreTakenAsStoredNotComputed)
{
    PlugBands(R"([{"band": 5}, {"band": 71}, {"band": 20}])");
    const QJsonObject offsets =
        At(Patched(EPageId::RsrpNormal),
           "cmdIf.request.group2.memberProperty.ulFrequency.trait.valuePair")
            .toObject();
    EXPECT_EQ(offsets, (QJsonObject{{"n5", 450000}, {"n71", 46000}, {"n20", -41000}}));
}

// A document that is read at first and gone later, as a broken build would have it.
class NoBandTableTest : public CUpdaterTest
{
protected:
    void SetUp() override
    {
        CUpdaterTest::SetUp();
        HideDocuments();
    }
    void TearDown() override
    {
        InitModelResources();
        CUpdaterTest::TearDown();
    }
};

TEST_F(NoBandTableTest, TablesThatCannotBeReadAreLoggedAndGiveFalse)
{
    const LogCapture log(lcUpdate());
    EXPECT_FALSE(m_updater.New3gppDataModel());
    EXPECT_EQ(log.Lines(QtCriticalMsg),
              QStringList("CNrDataModelCapUpdater::Get3gppDataModel: cannon get the NR data "
                          "Model"));
}

TEST_F(NoBandTableTest, NothingOfTheTablesReadBeforeIsLeft)
{
    EXPECT_EQ(m_updater.GetBandwidthByScsRb("15kHz", "25 RB"), 5000);
    m_updater.ResetCapabilityCache();
    EXPECT_EQ(m_updater.GetBandwidthByScsRb("15kHz", "25 RB"), -1);
    EXPECT_EQ(m_updater.GetRxFrequencyJsonObjectPair({"n1"}, false, false),
              (QJsonObject{{"n1", kOpenRange}}));
}

TEST_F(NoBandTableTest, BandsOfTheDutStayAndNoneCountsAsFdd)
{
    m_updater.ResetCapabilityCache();
    QJsonArray bands;
    EXPECT_TRUE(m_updater.GetSupportedBandArray(bands, {EBandDirection::Rx, false, false}));
    EXPECT_EQ(bands.size(), 10);
    QJsonArray fddBands;
    EXPECT_TRUE(m_updater.GetSupportedBandArray(fddBands, {EBandDirection::Rx, true, false}));
    EXPECT_TRUE(fddBands.isEmpty());
}

TEST_F(NoBandTableTest, TablesAreBackWithTheNextReset)
{
    m_updater.ResetCapabilityCache();
    InitModelResources();
    EXPECT_TRUE(m_updater.New3gppDataModel());
    EXPECT_EQ(m_updater.GetBandwidthByScsRb("15kHz", "25 RB"), 5000);
}

}  // namespace
