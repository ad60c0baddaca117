// What the bands of the 3GPP reference document have in common, and the rows that break it on
// purpose. Code that uses the document takes its values as they stand and computes none of them.
#include <vector>

#include <QRegularExpression>

#include "tests/model/Nr3gppDocument.h"

namespace {

struct SBand
{
    QString name;
    int diff;
    int ulLow;
    int ulHigh;
    int dlLow;
    int dlHigh;
};

std::vector<SBand> BandsOf(const char *duplex)
{
    std::vector<SBand> bands;
    const QJsonObject table = Nr3gppTable("operatingBand");
    for (const QString &name : table.keys()) {
        const QJsonObject band = table.value(name).toObject();
        if (band.value("duplex") != QJsonValue(duplex))
            continue;
        const QJsonObject uplink = band.value("uplink").toObject();
        const QJsonObject downlink = band.value("downlink").toObject();
        bands.push_back({name, band.value("diffFreqInTxRx").toInt(), uplink.value("low").toInt(),
                         uplink.value("high").toInt(), downlink.value("low").toInt(),
                         downlink.value("high").toInt()});
    }
    EXPECT_FALSE(bands.empty()) << duplex;
    return bands;
}

SBand Band(const char *duplex, const QString &name)
{
    for (const SBand &band : BandsOf(duplex)) {
        if (band.name == name)
            return band;
    }
    ADD_FAILURE() << qPrintable(name);
    return {};
}

TEST(Nr3gppBandRule, NamesAreBuiltAlike)
{
    struct SPattern
    {
        const char *table;
        const char *key;
        const char *element;  // null: no array of texts
    };
    constexpr SPattern kPatterns[] = {
        {"operatingBand", "^n[1-9]\\d*$", nullptr},
        {"SCSkHzByBand", "^n[1-9]\\d*$", "^(15|30|60)kHz$"},
        {"BandWidthByBand", "^n[1-9]\\d*$", "^[1-9]\\d*M$"},
        {"RBNumByBandSCS", "^n[1-9]\\d*,(15|30|60)kHz$", nullptr},  // one entry differs
        {"BandwidthBySscRb", "^(15|30|60)kHz,[1-9]\\d* RB$", nullptr},
    };
    for (const SPattern &pattern : kPatterns) {
        const QJsonObject table = Nr3gppTable(pattern.table);
        for (const QString &key : table.keys()) {
            EXPECT_TRUE(QRegularExpression(pattern.key).match(key).hasMatch()) << qPrintable(key);
            if (!pattern.element)
                continue;
            for (const QString &element : Texts(table.value(key)))
                EXPECT_TRUE(QRegularExpression(pattern.element).match(element).hasMatch())
                    << qPrintable(key + ": " + element);
        }
    }
}

// The tables are joined by these names: a band that one of them lacks would come up without lists.
TEST(Nr3gppBandRule, AllTablesKnowTheSameBandsAndSpacings)
{
    const QStringList bands = Nr3gppTable("operatingBand").keys();
    EXPECT_EQ(Nr3gppTable("SCSkHzByBand").keys(), bands);
    EXPECT_EQ(Nr3gppTable("BandWidthByBand").keys(), bands);
    QStringList keys;
    for (const QString &band : bands) {
        for (const QString &scs : Texts(Nr3gppTable("SCSkHzByBand").value(band)))
            keys.append(band + ',' + scs);
    }
    keys.sort();
    EXPECT_EQ(Nr3gppTable("RBNumByBandSCS").keys(), keys);
}

// Both directions share the frequency and take turns.
TEST(Nr3gppBandRule, TddBandsHaveOneRangeAndNoOffset)
{
    for (const SBand &band : BandsOf("TDD")) {
        EXPECT_EQ(band.ulLow, band.dlLow) << qPrintable(band.name);
        EXPECT_EQ(band.ulHigh, band.dlHigh) << qPrintable(band.name);
        EXPECT_LT(band.dlLow, band.dlHigh) << qPrintable(band.name);
        EXPECT_EQ(band.diff, 0) << qPrintable(band.name);
    }
}

// Downlink only: the uplink is 0 to 0, and the offset is the one to an uplink at 0.
TEST(Nr3gppBandRule, SdlBandsHaveNoUplink)
{
    for (const SBand &band : BandsOf("SDL")) {
        EXPECT_EQ(band.ulLow, 0) << qPrintable(band.name);
        EXPECT_EQ(band.ulHigh, 0) << qPrintable(band.name);
        EXPECT_LT(band.dlLow, band.dlHigh) << qPrintable(band.name);
        EXPECT_EQ(band.diff, band.dlLow) << qPrintable(band.name);
    }
}

// Uplink only: the downlink is 0 to 0, and the offset is the one to a downlink at 0.
TEST(Nr3gppBandRule, SulBandsHaveNoDownlink)
{
    for (const SBand &band : BandsOf("SUL")) {
        EXPECT_EQ(band.dlLow, 0) << qPrintable(band.name);
        EXPECT_EQ(band.dlHigh, 0) << qPrintable(band.name);
        EXPECT_LT(band.ulLow, band.ulHigh) << qPrintable(band.name);
        EXPECT_EQ(band.diff, -band.ulLow) << qPrintable(band.name);
    }
}

TEST(Nr3gppBandRule, BandsAreOfFourDuplexModes)
{
    std::size_t count = 0;
    for (const char *duplex : {"FDD", "TDD", "SDL", "SUL"})
        count += BandsOf(duplex).size();
    EXPECT_EQ(int(count), Nr3gppTable("operatingBand").size());
}

TEST(Nr3gppBandRule, FddOffsetIsDownlinkMinusUplinkButForTwoBands)
{
    QStringList others;
    for (const SBand &band : BandsOf("FDD")) {
        EXPECT_LT(band.ulLow, band.ulHigh) << qPrintable(band.name);
        EXPECT_LT(band.dlLow, band.dlHigh) << qPrintable(band.name);
        if (band.diff != band.dlLow - band.ulLow)
            others.append(band.name);
    }
    EXPECT_EQ(others, QStringList({"n5", "n71"}));
}

// Ten times what the ranges give. Kept on purpose: the value is taken as stored.
TEST(Nr3gppBandRule, OffsetOfBand5IsTenTimesTheDistance)
{
    const SBand band = Band("FDD", "n5");
    EXPECT_EQ(band.dlLow - band.ulLow, 45000);
    EXPECT_EQ(band.diff, 450000);
}

// The downlink lies below the uplink, as in n20, but the sign is lost. Kept on purpose too.
TEST(Nr3gppBandRule, OffsetOfBand71HasLostItsSign)
{
    const SBand band = Band("FDD", "n71");
    EXPECT_EQ(band.dlLow - band.ulLow, -46000);
    EXPECT_EQ(band.diff, 46000);
    EXPECT_EQ(Band("FDD", "n20").diff, -41000);
}

}  // namespace
