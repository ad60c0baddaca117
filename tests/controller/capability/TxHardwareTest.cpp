// Hardware labels of the TX pages.
#include "tests/controller/capability/UpdaterFixture.h"

namespace {

const QString kLabels = QStringLiteral("cmdIf.request.group2.memberProperty.");

// A DUT of one band with one TX route, number 1.
class TxHardwareTest : public CUpdaterTest
{
protected:
    void PlugRoute(int band, const std::string &regions)
    {
        const std::string number = std::to_string(band);
        PlugKeys(R"("txLimits": [], "rxType1Routes": [], "rxType2Routes": [], "rxLimits": [],
            "bands": [{"band": )" +
                 number + R"(}], "txRoutes": [{"band": )" + number +
                 R"(, "route": 1, "regions": [)" + regions + "]}]");
    }
    // Two regions whose FE routes are their numbers.
    void PlugLimits(int band, const std::string &first, const std::string &second)
    {
        PlugRoute(band, R"({"kHz": )" + first +
                            R"(, "antMask": 1, "feRoute": 0, "port": "A", "stx": 0}, {"kHz": )" +
                            second + R"(, "antMask": 1, "feRoute": 1, "port": "B", "stx": 0})");
    }
    QString Label(const QJsonObject &document, const char *member, const QString &key)
    {
        return At(document, kLabels + member + ".trait.valuePair." + key).toString("missing");
    }
    // The region of a key, by its FE route.
    std::string RegionOf(const QString &key)
    {
        return Label(Patched(EPageId::PuschTxForce), "feRouteNum", key).toStdString();
    }
};

constexpr const char *kMembers[] = {"feRouteNum", "port", "stx", "antMask", "mimoPairNum"};

TEST_F(TxHardwareTest, RegionIsTheFirstWhoseLimitHoldsTheBandwidth)
{
    PlugLimits(78, "20000", "100000");
    EXPECT_EQ(RegionOf("1,15kHz,52 RB"), "0");   // 10000
    EXPECT_EQ(RegionOf("1,15kHz,106 RB"), "0");  // 20000
    EXPECT_EQ(RegionOf("1,15kHz,216 RB"), "1");  // 40000
    EXPECT_EQ(RegionOf("1,30kHz,273 RB"), "1");  // 100000
}

TEST_F(TxHardwareTest, OneKilohertzAboveALimitIsTheNextRegion)
{
    PlugLimits(78, "19999", "100000");
    EXPECT_EQ(RegionOf("1,15kHz,106 RB"), "1");
    PlugLimits(78, "20000", "100000");
    EXPECT_EQ(RegionOf("1,15kHz,106 RB"), "0");
}

TEST_F(TxHardwareTest, BandwidthBeyondTheLastLimitIsTheFirstRegionAgain)
{
    PlugLimits(78, "20000", "99999");
    EXPECT_EQ(RegionOf("1,30kHz,273 RB"), "0");
    EXPECT_EQ(RegionOf("1,30kHz,217 RB"), "1");
}

TEST_F(TxHardwareTest, LimitsAreComparedUnsigned)
{
    PlugLimits(78, "4999", "4294967295");
    EXPECT_EQ(RegionOf("1,30kHz,273 RB"), "1");
}

TEST_F(TxHardwareTest, RouteWithoutRegionsShowsZeros)
{
    PlugRoute(78, "");
    const QJsonObject document = Patched(EPageId::PuschTxForce);
    EXPECT_TRUE(m_isDone);
    const char *const zeros[] = {"0", "", "0", "0x0", ""};
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(Label(document, kMembers[i], "1,15kHz,52 RB"), zeros[i]) << kMembers[i];
        EXPECT_EQ(At(document, kLabels + kMembers[i] + ".trait.defaultValue"), zeros[i]);
    }
}

TEST_F(TxHardwareTest, LabelsHaveTheirForms)
{
    PlugRoute(78, R"({"kHz": 100000, "antMask": 3735928559, "feRoute": 65535, "stx": 255,
        "port": "FIFTEEN_LETTERS", "mimoPairs": [1, 20, 65535, 4, 5, 6]})");
    const QJsonObject document = Patched(EPageId::PuschTxForce);
    const char *const texts[] = {"65535", "FIFTEEN_LETTERS", "255", "0xdeadbeef",
                                 "1 20 65535 4 5 6 "};
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(Label(document, kMembers[i], "1,15kHz,52 RB"), texts[i]) << kMembers[i];
}

TEST_F(TxHardwareTest, CountWithoutItsUnitIsNotFound)
{
    PlugKeys(R"("txLimits": [], "rxType1Routes": [], "rxType2Routes": [], "rxLimits": [],
        "bands": [{"band": 84, "uplinkOnly": true}], "txRoutes": [{"band": 84, "route": 1,
        "regions": [{"kHz": 20000, "antMask": 1, "feRoute": 7, "port": "A", "stx": 0}]}])");
    const QJsonObject document = Patched(EPageId::PuschTxForce);
    for (const char *member : kMembers) {
        EXPECT_EQ(Label(document, member, "1,60kHz,24"), "Not found") << member;
        EXPECT_EQ(Label(document, member, "1,60kHz,24 RB"), "missing") << member;
    }
    EXPECT_EQ(Label(document, "feRouteNum", "1,60kHz,18 RB"), "7");
}

TEST_F(TxHardwareTest, CountThatStandsForNoBandwidthIsNotFoundAndNoFailure)
{
    PlugLimits(39, "20000", "100000");
    const QJsonObject document = Patched(EPageId::PuschTxForce);
    EXPECT_TRUE(m_isDone);
    for (const char *member : kMembers)
        EXPECT_EQ(Label(document, member, "1,60kHz,52 RB"), "Not found") << member;
}

TEST_F(TxHardwareTest, DefaultsAreTheFirstKeysInTheOrderOfBandsRoutesScsAndCounts)
{
    PlugLimits(41, "5000", "100000");
    const QJsonObject document = Patched(EPageId::PuschTxForce);
    // The first key is "1,15kHz,52 RB", 10000 kHz; the first by name would be "1,15kHz,106 RB".
    EXPECT_EQ(At(document, kLabels + "port.trait.defaultValue"), QJsonValue("B"));
    EXPECT_EQ(At(document, kLabels + "feRouteNum.trait.defaultValue"), QJsonValue("1"));
}

TEST_F(TxHardwareTest, PagesThatPickARegionKeyByRouteAndRegionAlone)
{
    PlugLimits(78, "20000", "100000");
    const QJsonObject document = Patched(EPageId::SingleToneTx);
    EXPECT_EQ(At(document, kLabels + "feRouteNum.trait.valuePair"),
              (QJsonObject{{"1,BW0", "0"}, {"1,BW1", "1"}}));
    EXPECT_EQ(At(document, kLabels + "port.trait.defaultValue"), QJsonValue("A"));
}

TEST_F(TxHardwareTest, RouteWithoutRegionsHasNoRegionKeysAndEmptyDefaults)
{
    PlugRoute(78, "");
    const QJsonObject document = Patched(EPageId::SingleToneTx);
    EXPECT_TRUE(m_isDone);
    for (const char *member : kMembers) {
        EXPECT_EQ(At(document, kLabels + member + ".trait.valuePair"), QJsonObject()) << member;
        EXPECT_EQ(At(document, kLabels + member + ".trait.defaultValue"), QJsonValue(""));
    }
}

}  // namespace
