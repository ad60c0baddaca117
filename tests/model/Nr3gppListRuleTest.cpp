// What the lists of resource blocks of the 3GPP reference document have in common with its other
// tables, and where they go their own way on purpose: all lists are taken as they stand.
#include <algorithm>
#include <vector>

#include <QRegularExpression>
#include <QSet>

#include "tests/model/Nr3gppDocument.h"

namespace {

// kHz; -1 when the document does not know the pair.
int Bandwidth(const QString &scs, const QString &rb)
{
    return Nr3gppTable("BandwidthBySscRb").value(scs + ',' + rb).toInt(-1);
}

struct SList
{
    QString key;  // "n1,15kHz"
    QString band;
    QString scs;
    QStringList rbCounts;
};

std::vector<SList> ResourceBlockLists()
{
    std::vector<SList> lists;
    const QJsonObject table = Nr3gppTable("RBNumByBandSCS");
    for (const QString &key : table.keys())
        lists.push_back(
            {key, key.section(',', 0, 0), key.section(',', 1), Texts(table.value(key))});
    EXPECT_FALSE(lists.empty());
    return lists;
}

// kHz, in list order.
std::vector<int> BandwidthsOf(const QString &key)
{
    std::vector<int> bandwidths;
    for (const SList &list : ResourceBlockLists()) {
        for (const QString &rb : list.rbCounts) {
            if (list.key == key)
                bandwidths.push_back(Bandwidth(list.scs, rb));
        }
    }
    EXPECT_FALSE(bandwidths.empty()) << qPrintable(key);
    return bandwidths;
}

int WidestOf(const QString &key)
{
    const std::vector<int> bandwidths = BandwidthsOf(key);
    return bandwidths.empty() ? -1 : *std::max_element(bandwidths.begin(), bandwidths.end());
}

int WidestChannel(const QString &band)
{
    int widest = 0;
    for (const QString &text : Texts(Nr3gppTable("BandWidthByBand").value(band)))
        widest = qMax(widest, text.chopped(1).toInt() * 1000);
    EXPECT_GT(widest, 0) << qPrintable(band);
    return widest;
}

// The entry names no VRB range ("24 RB" does) and no bandwidth; a page that selects it finds none.
TEST(Nr3gppListRule, OneResourceBlockCountLacksItsUnit)
{
    QStringList others;
    const QRegularExpression withUnit("^[1-9]\\d* RB$");
    for (const SList &list : ResourceBlockLists()) {
        for (const QString &rb : list.rbCounts) {
            if (!withUnit.match(rb).hasMatch())
                others.append(list.key + ": " + rb);
        }
    }
    EXPECT_EQ(others, QStringList({"n84,60kHz: 24"}));
    EXPECT_EQ(Texts(Nr3gppTable("RBNumByBandSCS").value("n84,60kHz")),
              QStringList({"11 RB", "18 RB", "24"}));
}

// n39 and n40 offer 52 blocks at 60 kHz, which stand for no bandwidth there: the lookup fails and
// the page says so. n84's entry is the one without a unit.
TEST(Nr3gppListRule, ThreeListEntriesStandForNoBandwidth)
{
    QStringList unknown;
    for (const SList &list : ResourceBlockLists()) {
        for (const QString &rb : list.rbCounts) {
            if (Bandwidth(list.scs, rb) < 0)
                unknown.append(list.key + ',' + rb);
        }
    }
    EXPECT_EQ(unknown, QStringList({"n39,60kHz,52 RB", "n40,60kHz,52 RB", "n84,60kHz,24"}));
    EXPECT_FALSE(Nr3gppTable("BandwidthBySscRb").contains("60kHz,52 RB"));
}

// 5 MHz at 30 kHz exists in the norm, but no band here offers it.
TEST(Nr3gppListRule, OneBandwidthIsOfferedByNoBand)
{
    QSet<QString> offered;
    for (const SList &list : ResourceBlockLists()) {
        for (const QString &rb : list.rbCounts)
            offered.insert(list.scs + ',' + rb);
    }
    QStringList others;
    for (const QString &key : Nr3gppTable("BandwidthBySscRb").keys()) {
        if (!offered.contains(key))
            others.append(key);
    }
    EXPECT_EQ(others, QStringList({"30kHz,11 RB"}));
    EXPECT_EQ(Bandwidth("30kHz", "11 RB"), 5000);
}

// Bandwidths and lists rise, so that the first entry, a page's default, is the narrowest.
TEST(Nr3gppListRule, ListsRise)
{
    for (const SList &list : ResourceBlockLists()) {
        int last = 0;
        for (const QString &rb : list.rbCounts) {
            const int count = rb.section(' ', 0, 0).toInt();
            EXPECT_GT(count, last) << qPrintable(list.key);
            last = count;
        }
    }
    for (const QString &band : Nr3gppTable("BandWidthByBand").keys()) {
        int last = 0;
        for (const QString &text : Texts(Nr3gppTable("BandWidthByBand").value(band))) {
            const int mhz = text.chopped(1).toInt();
            EXPECT_GT(mhz, last) << qPrintable(band);
            last = mhz;
        }
    }
}

// What a band's channel bandwidths would give at a spacing: from 10 MHz at 30 and 60 kHz, up to
// 50 MHz at 15 kHz. Seven lists hold something else, so nothing may step through the two together.
TEST(Nr3gppListRule, SevenListsDoNotLineUpWithTheChannelBandwidths)
{
    QStringList others;
    for (const SList &list : ResourceBlockLists()) {
        std::vector<int> expected;
        for (const QString &text : Texts(Nr3gppTable("BandWidthByBand").value(list.band))) {
            const int khz = text.chopped(1).toInt() * 1000;
            if (list.scs == "15kHz" ? khz <= 50000 : khz >= 10000)
                expected.push_back(khz);
        }
        if (BandwidthsOf(list.key) != expected)
            others.append(list.key);
    }
    EXPECT_EQ(others, QStringList({"n39,15kHz", "n39,30kHz", "n39,60kHz", "n40,30kHz", "n40,60kHz",
                                   "n50,60kHz", "n84,60kHz"}));
}

TEST(Nr3gppListRule, ListsAt30And60KilohertzHaveNo5MegahertzEntry)
{
    for (const SList &list : ResourceBlockLists()) {
        if (list.scs == "15kHz")
            continue;
        for (const int khz : BandwidthsOf(list.key))
            EXPECT_NE(khz, 5000) << qPrintable(list.key);
    }
}

TEST(Nr3gppListRule, Band39RunsPastItsChannelBandwidths)
{
    EXPECT_EQ(WidestChannel("n39"), 40000);
    EXPECT_EQ(WidestOf("n39,15kHz"), 50000);
    EXPECT_EQ(WidestOf("n39,30kHz"), 80000);
}

// At 60 kHz the list's last entry stands for no bandwidth, so what is known ends at 30 MHz.
TEST(Nr3gppListRule, Band40StopsShortOfItsChannelBandwidths)
{
    EXPECT_EQ(WidestChannel("n40"), 80000);
    EXPECT_EQ(WidestOf("n40,15kHz"), 40000);
    EXPECT_EQ(WidestOf("n40,30kHz"), 40000);
    EXPECT_EQ(WidestOf("n40,60kHz"), 30000);
}

TEST(Nr3gppListRule, WideBandsStopAt50MegahertzAt15Kilohertz)
{
    for (const char *band : {"n41", "n77", "n78", "n79"}) {
        EXPECT_EQ(WidestChannel(band), 100000) << band;
        EXPECT_EQ(WidestOf(QString(band) + ",15kHz"), 50000) << band;
    }
}

TEST(Nr3gppListRule, Band50StopsAt20MegahertzAt60Kilohertz)
{
    EXPECT_EQ(WidestChannel("n50"), 80000);
    EXPECT_EQ(WidestOf("n50,30kHz"), 80000);
    EXPECT_EQ(WidestOf("n50,60kHz"), 20000);
}

}  // namespace
