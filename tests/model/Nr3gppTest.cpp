// The 3GPP reference document, row by row.
#include <iterator>

#include "tests/model/Nr3gppDocument.h"
#include "tests/model/Nr3gppTables.h"

namespace {

QJsonObject Range(const SFrequencyRange &range)
{
    return {{"low", range.low}, {"high", range.high}};
}

QStringList Split(const char *list)
{
    return QString(list).split(' ');
}

QJsonArray WithUnit(const char *list, const char *unit)
{
    QJsonArray elements;
    for (const QString &number : Split(list))
        elements.append(number + QLatin1String(unit));
    return elements;
}

// "25 \"24\"" is ["25 RB", "24"].
QJsonArray ResourceBlocks(const char *list)
{
    QJsonArray elements;
    for (const QString &count : Split(list)) {
        const bool isBare = count.startsWith('"');
        elements.append(isBare ? count.mid(1).chopped(1) : count + " RB");
    }
    return elements;
}

TEST(Nr3gpp, HasItsHeadAndItsFiveTablesAndNothingElse)
{
    const QJsonObject document = Nr3gppDocument();
    EXPECT_EQ(document.value("modelName"), QJsonValue("3GPP"));
    EXPECT_EQ(document.value("modelVersion"), QJsonValue(1));
    EXPECT_EQ(document.value("releaseVersion"), QJsonValue("14.3.0"));
    const QStringList tables = {"operatingBand", "SCSkHzByBand", "BandWidthByBand",
                                "RBNumByBandSCS", "BandwidthBySscRb"};
    for (const QString &table : tables)
        EXPECT_TRUE(document.value(table).isObject()) << qPrintable(table);
    EXPECT_EQ(document.size(), 3 + tables.size());
}

TEST(Nr3gpp, HasADuplexModeAnOffsetAndTwoRangesForEachBand)
{
    const QJsonObject bands = Nr3gppTable("operatingBand");
    for (const SBandRow &row : kBands) {
        const QJsonObject expected{{"duplex", row.duplex},
                                   {"diffFreqInTxRx", row.diffFreqInTxRx},
                                   {"uplink", Range(row.uplink)},
                                   {"downlink", Range(row.downlink)}};
        EXPECT_EQ(bands.value(row.band), QJsonValue(expected)) << row.band;
    }
    EXPECT_EQ(bands.size(), int(std::size(kBands)));
}

TEST(Nr3gpp, ListsTheSubcarrierSpacingsOfEachBand)
{
    const QJsonObject lists = Nr3gppTable("SCSkHzByBand");
    for (const SBandListRow &row : kBandLists)
        EXPECT_EQ(lists.value(row.band), QJsonValue(WithUnit(row.scsKhz, "kHz"))) << row.band;
    EXPECT_EQ(lists.size(), int(std::size(kBandLists)));
}

TEST(Nr3gpp, ListsTheChannelBandwidthsOfEachBand)
{
    const QJsonObject lists = Nr3gppTable("BandWidthByBand");
    for (const SBandListRow &row : kBandLists)
        EXPECT_EQ(lists.value(row.band), QJsonValue(WithUnit(row.bandwidthMhz, "M"))) << row.band;
    EXPECT_EQ(lists.size(), int(std::size(kBandLists)));
}

TEST(Nr3gpp, ListsTheResourceBlocksOfEachBandAndSpacing)
{
    const QJsonObject lists = Nr3gppTable("RBNumByBandSCS");
    int expectedCount = 0;
    for (const SBandListRow &row : kBandLists) {
        for (std::size_t i = 0; i < std::size(kScsNames); ++i) {
            const QString key = QString("%1,%2").arg(row.band, kScsNames[i]);
            if (!row.rbCounts[i]) {
                EXPECT_FALSE(lists.contains(key)) << qPrintable(key);
                continue;
            }
            ++expectedCount;
            EXPECT_EQ(lists.value(key), QJsonValue(ResourceBlocks(row.rbCounts[i])))
                << qPrintable(key);
        }
    }
    EXPECT_EQ(lists.size(), expectedCount);
}

TEST(Nr3gpp, GivesTheBandwidthOfEachSpacingAndResourceBlockCount)
{
    const QJsonObject bandwidths = Nr3gppTable("BandwidthBySscRb");
    for (const SBandwidthRow &row : kBandwidths)
        EXPECT_EQ(bandwidths.value(row.key), QJsonValue(row.khz)) << row.key;
    EXPECT_EQ(bandwidths.size(), int(std::size(kBandwidths)));
}

// 32 bands, 83 lists and 29 bandwidths: a row that slipped out of both sources shows here.
TEST(Nr3gpp, HasAsManyRowsAsTheBandPlan)
{
    EXPECT_EQ(Nr3gppTable("operatingBand").size(), 32);
    EXPECT_EQ(Nr3gppTable("SCSkHzByBand").size(), 32);
    EXPECT_EQ(Nr3gppTable("BandWidthByBand").size(), 32);
    EXPECT_EQ(Nr3gppTable("RBNumByBandSCS").size(), 83);
    EXPECT_EQ(Nr3gppTable("BandwidthBySscRb").size(), 29);
}

// For the reader of the file: keys and bands stand in the order of the band plan. Qt sorts them.
TEST(Nr3gpp, HasItsKeysAndBandsInTheFileInOrder)
{
    const QByteArray text = Nr3gppText();
    int last = -1;
    const auto follows = [&text, &last](const QByteArray &key) {
        const int here = text.indexOf('"' + key + "\":", last + 1);
        const bool isBehind = here > last;
        last = qMax(here, last);
        return isBehind;
    };
    for (const char *key : {"modelName", "modelVersion", "releaseVersion", "operatingBand"})
        EXPECT_TRUE(follows(key)) << key;
    for (const SBandRow &row : kBands)
        EXPECT_TRUE(follows(row.band)) << row.band;
    for (const char *key :
         {"SCSkHzByBand", "BandWidthByBand", "RBNumByBandSCS", "BandwidthBySscRb"})
        EXPECT_TRUE(follows(key)) << key;
}

}  // namespace
