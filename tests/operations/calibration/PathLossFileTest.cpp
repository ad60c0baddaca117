// The path loss item and its INI files: sections of both types, gain keys, and what is missing.
#include <set>

#include "Operations/calibration/PathLossGains.h"
#include "Support/CalIniFile.h"
#include "Support/Log.h"
#include "tests/common/LogCapture.h"
#include "tests/operations/calibration/CalFixture.h"

namespace {

using SType1 = SMMType1PathlossByRouteV7;
using SType2 = SMMType2PathlossByRouteV7;

const QString kZeros64 = QString("0.00000") + QString(",0.00000").repeated(63);

class PathLossFileTest : public CCalTest
{
protected:
    const SType1 &Type1(uint16_t route) const
    {
        return *m_item.GetPathLossCalibrationData<SType1>(route);
    }
    const SType2 &Type2(uint16_t route) const
    {
        return *m_item.GetPathLossCalibrationData<SType2>(route);
    }

    CMultiRatPathLossV7 m_item{ERadioKind::Nr};
};

// The handset's gain modes with a slot.
const QStringList kHpmGains = {"G0,g0", "G0,g1", "G1,g1", "G2,g1",
                               "G3,g1", "G4,g2", "G5,g2", "G6,g2"};
const QStringList kLpmGains = {"G0,g0", "G1,g0", "G1,g1", "G2,g0",
                               "G2,g1", "G3,g0", "G4,g1", "G6,g2"};

// Keys of a type 1 section of the handset, in their order, with the values of one subband more than
// the other zeros.
QByteArray Type1Section(const QString &name, const QString &lines = {})
{
    QString text = "[" + name + "]\n" + lines;
    for (const QString &gain : kHpmGains)
        text += "RX loss hpm " + gain + " = 0\n";
    for (const QString &gain : kLpmGains)
        text += "RX loss lpm " + gain + " = 0\n";
    return text.toUtf8();
}

QByteArray Without(QByteArray text, const QByteArray &line)
{
    EXPECT_TRUE(text.contains(line)) << line.constData();
    return text.replace(line, "");
}

void PlugNineGains()
{
    PlugHandsetWith(R"("gain": {
        "hpm": {"t1": ["111", "111", "111", "000", "000", "000", "000"],
                "t2": ["000 000 000", "000 000 000", "000 000 000", "000 000 000",
                       "000 000 000", "000 000 000", "000 000 000"]},
        "lpm": {"t1": ["111", "000", "000", "000", "000", "000", "000"],
                "t2": ["000 000 000", "000 000 000", "000 000 000", "000 000 000",
                       "000 000 000", "000 000 000", "000 000 000"]}})");
}

}  // namespace

TEST_F(PathLossFileTest, Type1SectionsHaveAllKeysInTheirOrderAndFormat)
{
    ASSERT_EQ(LoadText(m_item, Type1Section("NR n78 Route CA1 RXD loss")), kDone);
    SType1 record = Type1(13);
    EXPECT_EQ(record.band, 78);
    record.freq[0] = 3500010;
    record.plOffset[7] = -16;
    record.loss[0][1].hpm = 40;    // main, slot 1
    record.loss[63][9].lpm = -40;  // diversity, slot 1
    m_item.SetPathLossCalibrationData(13, record);
    const QByteArray bytes = SaveBytes(m_item);
    EXPECT_EQ(Sections(bytes),
              (QStringList{"NR n78 Route CA1 RX loss", "NR n78 Route CA1 RXD loss"}));
    QStringList head = {
        "RF Chip ID = VR6240",
        "Comp Route = 13",
        "DL Frequency(1KHz) = 3500010" + QString(",0").repeated(63),
        "Temperature Offset = " + QString("0.00000,").repeated(7) + "-0.50000",
    };
    for (bool main : {true, false}) {
        QStringList expected = head;
        for (const QString &gain : kHpmGains)
            expected.append("RX loss hpm " + gain + " = " +
                            (main && gain == "G0,g1" ? "1.25000" + QString(",0.00000").repeated(63)
                                                     : kZeros64));
        for (const QString &gain : kLpmGains)
            expected.append("RX loss lpm " + gain + " = " +
                            (!main && gain == "G1,g0"
                                 ? QString("0.00000,").repeated(63) + "-1.25000"
                                 : kZeros64));
        EXPECT_EQ(
            SectionLines(bytes, main ? "NR n78 Route CA1 RX loss" : "NR n78 Route CA1 RXD loss"),
            expected);
    }
}

TEST_F(PathLossFileTest, Type2LossesStandAtTheirKeys)
{
    ASSERT_EQ(LoadText(m_item, BareFile(ECalRoute::Type2)), kDone);
    auto record = std::make_unique<SType2>(Type2(105));
    record->loss[0][8 + 5].hpm = 32;                            // main, path 1, slot 5
    record->loss[0][142 + 1].lpm = 64;                          // div, path 0, slot 1
    record->loss[0][16 + 3 * (21 + 4 * 3 + 2) + 1].hpm = 96;    // main, path 1, G4,g2,g1
    record->loss[0][142 + 16 + 3 * (6 * 3 + 2) + 2].lpm = 128;  // div, path 0, G6,g2,g2
    m_item.SetPathLossCalibrationData(105, *record);
    const QByteArray bytes = SaveBytes(m_item);
    const QString main = "NR n78 Route NCCA0 RX loss";
    const QString div = "NR n78 Route NCCA0 RXD loss";
    const auto first = [&](const QString &section, const QString &key) {
        return IniValue(bytes, section, key).section(',', 0, 0);
    };
    EXPECT_EQ(first(main, "RX srx path1 partial on loss for hpm G4,g2"), QString("1.00000"));
    EXPECT_EQ(first(div, "RX srx path1 partial on loss for hpm G4,g2"), QString("0.00000"));
    EXPECT_EQ(first(div, "RX srx path0 partial on loss for lpm G1,g0"), QString("2.00000"));
    EXPECT_EQ(first(main, "RX srx path1 gbg loss for hpm G4,g2,g1"), QString("3.00000"));
    EXPECT_EQ(first(div, "RX srx path0 gbg loss for lpm G6,g2,g2"), QString("4.00000"));
    int used = 0;
    for (const QString &line : SectionLines(bytes, main) + SectionLines(bytes, div))
        used += line.startsWith("RX ") && !line.endsWith(kZeros64);
    EXPECT_EQ(used, 4);
}

TEST_F(PathLossFileTest, EverySupportedGainHasItsType2Keys)
{
    ASSERT_EQ(LoadText(m_item, BareFile(ECalRoute::Type2)), kDone);
    const QByteArray bytes = SaveBytes(m_item);
    std::set<QString> keys;
    for (const QString &line : SectionLines(bytes, "NR n1 Route NCCA0 RXD loss"))
        EXPECT_TRUE(keys.insert(line.section(" = ", 0, 0)).second) << line.toStdString();
    for (int path = 0; path < 2; ++path) {
        for (bool hpm : {true, false}) {
            for (const QString &gain : hpm ? kHpmGains : kLpmGains) {
                const QString mode = hpm ? "hpm" : "lpm";
                EXPECT_TRUE(keys.count(
                    QString("RX srx path%1 partial on loss for %2 %3").arg(path).arg(mode, gain)));
                for (int sub = 0; sub < 3; ++sub)
                    EXPECT_TRUE(keys.count(QString("RX srx path%1 gbg loss for %2 %3,g%4")
                                               .arg(path)
                                               .arg(mode, gain)
                                               .arg(sub)));
            }
        }
    }
    // Two that run together, though neither path may have the gain alone.
    EXPECT_TRUE(keys.count("RX srx path0 gbg loss for hpm G1,g0,g2"));
    EXPECT_TRUE(keys.count("RX srx path1 gbg loss for hpm G1,g2,g0"));
    EXPECT_FALSE(keys.count("RX srx path0 gbg loss for hpm G6,g0,g0"));
}

// The page shows a gain of both in either place on either path.
TEST_F(PathLossFileTest, GainsThatRunTogetherHaveTheirKeysInEitherOrderAndAFileMayLackThem)
{
    SMMRfRxGainInfoV7 gains = {};
    gains.t2[3][0][2] = 1;  // G3: path 0 at g0 while path 1 is at g2
    std::vector<SGainKey> all;
    ASSERT_TRUE(AppendType2Keys(gains, EPowerMode::Hpm, all));
    std::vector<SGainKey> keys;
    for (const SGainKey &key : all) {
        EXPECT_NE(key.use, EGainKey::Required) << key.key;
        if (key.use == EGainKey::Optional)
            keys.push_back(key);
    }
    ASSERT_EQ(keys.size(), 4u);
    EXPECT_EQ(keys[0].key, "RX srx path0 gbg loss for hpm G3,g0,g2");
    EXPECT_EQ(keys[0].pair[0], 16 + 3 * (3 * 3 + 0) + 2);
    EXPECT_EQ(keys[1].key, "RX srx path0 gbg loss for hpm G3,g2,g0");
    EXPECT_EQ(keys[2].key, "RX srx path1 gbg loss for hpm G3,g0,g2");
    EXPECT_EQ(keys[3].key, "RX srx path1 gbg loss for hpm G3,g2,g0");
    EXPECT_EQ(keys[3].pair[1], 142 + 16 + 3 * (21 + 3 * 3 + 2) + 0);
}

TEST_F(PathLossFileTest, GainThatNoTableSetsIsInTheFileWhenItHoldsALoss)
{
    ASSERT_EQ(LoadText(m_item, BareFile(ECalRoute::Type2)), kDone);
    auto record = std::make_unique<SType2>(Type2(105));
    const int pair = VondGainByGainPair(EVondRxPath::Div, 1, 6, 0, 1);
    record->loss[63][pair].lpm = -32;
    m_item.SetPathLossCalibrationData(105, *record);
    const QByteArray bytes = SaveBytes(m_item);
    const QString key = "RX srx path1 gbg loss for lpm G6,g0,g1";
    EXPECT_TRUE(IniValue(bytes, "NR n78 Route NCCA0 RXD loss", key).endsWith(",-1.00000"));
    EXPECT_EQ(bytes.count(key.toLatin1()), 1);
    record->loss[63][pair].lpm = 0;
    m_item.SetPathLossCalibrationData(105, *record);
    ASSERT_EQ(LoadText(m_item, bytes), kDone);
    EXPECT_EQ(Type2(105).loss[63][pair].lpm, -32);
}

TEST_F(PathLossFileTest, EveryValueComesBackAtTheExtremesOfItsType)
{
    const SMMRfRouteTableV7 &table = *m_target.GetRouteTableNr();
    ASSERT_EQ(LoadText(m_item, BareFile(ECalRoute::Type1) + BareFile(ECalRoute::Type2)), kDone);
    std::mt19937 random(7);
    for (const SCalPlace &place : WalkRoutes(table, ECalRoute::Type1))
        m_item.SetPathLossCalibrationData(
            place.route, *ExtremePathLoss<SType1>(random, Type1(place.route).band, place.route,
                                                  static_cast<int>(random() % 65)));
    for (const SCalPlace &place : WalkRoutes(table, ECalRoute::Type2))
        m_item.SetPathLossCalibrationData(
            place.route, *ExtremePathLoss<SType2>(random, place.band, place.route,
                                                  static_cast<int>(random() % 65)));
    ASSERT_EQ(SaveFile(m_item), kDone);
    CMultiRatPathLossV7 other(ERadioKind::Nr);
    ASSERT_EQ(LoadFile(other), kDone);
    for (const SCalPlace &place : WalkRoutes(table, ECalRoute::Type1))
        ASSERT_EQ(BytesOf(*other.GetPathLossCalibrationData<SType1>(place.route)),
                  BytesOf(Type1(place.route)))
            << place.route;
    for (const SCalPlace &place : WalkRoutes(table, ECalRoute::Type2))
        ASSERT_EQ(BytesOf(*other.GetPathLossCalibrationData<SType2>(place.route)),
                  BytesOf(Type2(place.route)))
            << place.route;
}

TEST_F(PathLossFileTest, SectionsFollowTheRouteTables)
{
    ASSERT_EQ(LoadText(m_item, BareFile(ECalRoute::Type1) + BareFile(ECalRoute::Type2)), kDone);
    QStringList expected;
    for (const char *name : {"n1",
                             "n1 Route CA1",
                             "n3",
                             "n3 Route CA1",
                             "n5",
                             "n7",
                             "n7 Route CA1",
                             "n28",
                             "n41",
                             "n41 Route CA1",
                             "n77",
                             "n77 Route CA1",
                             "n78",
                             "n78 Route CA1",
                             "n78 Route CA2",
                             "n79",
                             "n79 Route CA1",
                             "n75",
                             "n1 Route NCCA0",
                             "n41 Route NCCA0",
                             "n41 Route NCCA1",
                             "n77 Route NCCA0",
                             "n78 Route NCCA0",
                             "n78 Route NCCA1",
                             "n78 Route NCCA2",
                             "n79 Route NCCA0"}) {
        expected.append(QString("NR %1 RX loss").arg(name));
        expected.append(QString("NR %1 RXD loss").arg(name));
    }
    EXPECT_EQ(Sections(SaveBytes(m_item)), expected);
}

TEST_F(PathLossFileTest, LteSideHasItsOwnSectionNames)
{
    CCalStore<SType1> type1;
    CCalStore<SType2> type2;
    using Names = std::vector<std::string>;
    SCalPlace place;
    place.band = 7;
    EXPECT_EQ(CPathLossSections<SType1>(type1).SectionsOf(ERadioKind::Lte, place),
              (Names{"LTE BAND7 RX loss", "LTE BAND7 RXD loss"}));
    EXPECT_EQ(CPathLossSections<SType2>(type2).SectionsOf(ERadioKind::Lte, place),
              (Names{"LTE BAND7 Route NCCA0 RX loss", "LTE BAND7 Route NCCA0 RXD loss"}));
    place.ordinal = 2;
    EXPECT_EQ(CPathLossSections<SType1>(type1).SectionsOf(ERadioKind::Lte, place),
              (Names{"LTE BAND7 Route CA2 RX loss", "LTE BAND7 Route CA2 RXD loss"}));
}

TEST_F(PathLossFileTest, SupportedGainThatTheFileLacksFailsInItsWords)
{
    const QByteArray good = Type1Section("NR n1 RX loss", "Temperature Offset = 1\n");
    ASSERT_EQ(LoadText(m_item, good), kDone);
    const QByteArray before = BytesOf(Type1(1));
    EXPECT_EQ(
        LoadText(m_item, Type1Section("NR n1 RX loss", "Temperature Offset = 2\n") +
                             Without(Type1Section("NR n1 RXD loss"), "RX loss lpm G2,g1 = 0\n") +
                             Type1Section("NR n3 RX loss")),
        (SOutcome{52, "Target supports [RX loss lpm G2,g1], But it does not exist in the "
                      "file. Please check you file."}));
    EXPECT_EQ(BytesOf(Type1(1)), before) << "a record was taken over in half";
    EXPECT_EQ(Sections(SaveBytes(m_item)), (QStringList{"NR n1 RX loss", "NR n1 RXD loss"}));
}

TEST_F(PathLossFileTest, SupportedType2GainThatTheFileLacksFailsInItsWords)
{
    const QByteArray bare = BareFile(ECalRoute::Type2);
    EXPECT_EQ(LoadText(m_item, Without(bare, "RX srx path1 partial on loss for lpm G6,g2 =\n")),
              (SOutcome{52, "Target supports [RX srx path1 partial on loss for lpm G6,g2], But it "
                            "does not exist in the file. Please check you file."}));
    EXPECT_EQ(LoadText(m_item, Without(bare, "RX srx path0 gbg loss for hpm G0,g1,g2 =\n")).code,
              52u);
    EXPECT_FALSE(m_item.HasData());
    EXPECT_EQ(LoadText(m_item, Without(bare, "RX srx path0 gbg loss for hpm G1,g0,g2 =\n")), kDone)
        << "no path may have this gain alone";
}

TEST_F(PathLossFileTest, LossesWithoutAKeyStayAsTheyWere)
{
    SType1 record = {};
    record.loss[5][3].hpm = 7;   // main, slot 3
    record.loss[5][11].hpm = 8;  // diversity
    m_item.SetPathLossCalibrationData(1, record);
    ASSERT_EQ(LoadText(m_item, Type1Section("NR n1 RX loss")), kDone);
    EXPECT_EQ(Type1(1).loss[5][3].hpm, 0);
    EXPECT_EQ(Type1(1).loss[5][11].hpm, 8);
}

TEST_F(PathLossFileTest, KeyThatOneOfTheSectionsLacksIsTakenFromTheOther)
{
    const QString frequencies = "DL Frequency(1KHz) = 2140000,2150000\n";
    ASSERT_EQ(LoadText(m_item, Type1Section("NR n1 RX loss", frequencies) +
                                   Type1Section("NR n1 RXD loss", "Temperature Offset = 2\n") +
                                   Type1Section("NR n3 RXD loss", frequencies)),
              kDone);
    EXPECT_EQ(Type1(1).freq[1], 2150000u);
    EXPECT_EQ(Type1(1).plOffset[0], 64);
    EXPECT_EQ(Type1(1).blockCount, 1u);
    EXPECT_EQ(Type1(3).freq[1], 2150000u);
}

TEST_F(PathLossFileTest, NinthGainModeStopsLoadAndSaveInTheirWords)
{
    ASSERT_EQ(m_item.UploadFromFlash(), 0u);
    ASSERT_EQ(SaveFile(m_item), kDone);
    const QByteArray good = m_folder.Bytes();
    PlugNineGains();
    EXPECT_EQ(SaveFile(m_item),
              (SOutcome{50, "Type1 LAN(gain mode) count from L1 capability is over 8"}));
    EXPECT_EQ(m_folder.Bytes(), good) << "a failed save touched the file";
    CMultiRatPathLossV7 other(ERadioKind::Nr);
    EXPECT_EQ(LoadFile(other),
              (SOutcome{53, "Type1 max LAN(gain mode) count from L1 capability is over 8"}));
    EXPECT_FALSE(other.HasData());
}

TEST_F(PathLossFileTest, NinthGainModeOfType2HasWordsOfItsOwn)
{
    const QString words = "Type2 partial-on max LAN(gain mode) count from L1 capability is over 8";
    const QByteArray text = BareFile(ECalRoute::Type2);
    ASSERT_EQ(LoadText(m_item, text), kDone);
    PlugNineGains();
    EXPECT_EQ(SaveFile(m_item), (SOutcome{50, words.toStdString()}));
    EXPECT_FALSE(m_folder.Exists());
    EXPECT_EQ(LoadText(m_item, text), (SOutcome{53, words.toStdString()}));
}

TEST_F(PathLossFileTest, FileWithNoneOfTheSectionsIsToldSo)
{
    EXPECT_EQ(LoadText(m_item, "[NR n66 RX loss]\n[NR n1 BW0 TPC]\n"), (SOutcome{51, ""}));
    EXPECT_FALSE(m_item.HasData());
}

TEST_F(PathLossFileTest, OtherChipInOneOfTheSectionsIsRefused)
{
    EXPECT_EQ(LoadText(m_item, Type1Section("NR n1 RX loss", "RF Chip ID = VR6240\n") +
                                   Type1Section("NR n1 RXD loss", "RF Chip ID = TL-CHIP\n")),
              (SOutcome{200, ""}));
    EXPECT_FALSE(m_item.HasData());
}

TEST_F(PathLossFileTest, TypesMayHaveFilesOfTheirOwn)
{
    ASSERT_EQ(LoadText(m_item, BareFile(ECalRoute::Type1) + BareFile(ECalRoute::Type2)), kDone);
    CCalIniFile type1(m_folder.WidePath("t1.ini").c_str());
    CCalIniFile type2(m_folder.WidePath("t2.ini").c_str());
    ASSERT_EQ(m_item.SaveToFile(&type1, &type2), 0u);
    EXPECT_EQ(Sections(m_folder.Bytes("t1.ini")).size(), 36);
    EXPECT_EQ(Sections(m_folder.Bytes("t2.ini")).size(), 16);
    CMultiRatPathLossV7 other(ERadioKind::Nr);
    EXPECT_EQ(other.LoadFromFile(&type2, &type1), 51u) << "each type is looked for in its file";
    EXPECT_EQ(other.LoadFromFile(&type1, nullptr), 50u);
    EXPECT_EQ(other.LoadFromFile(&type1, &type2), 0u);
    EXPECT_EQ(Sections(SaveBytes(other)).size(), 52);
}

TEST_F(PathLossFileTest, NullFileHasNoWords)
{
    EXPECT_EQ(m_item.LoadFromFile(nullptr), 50u);
    EXPECT_EQ(m_item.GetErrorMessage(), QString());
    EXPECT_EQ(m_item.SaveToFile(nullptr), 50u);
}

TEST_F(PathLossFileTest, LogNamesEachFileSectionAndRoute)
{
    const LogCapture log(lcCalibration());
    ASSERT_EQ(LoadText(m_item, Type1Section("NR n3 RX loss")), kDone);
    ASSERT_EQ(LoadText(m_item, BareFile(ECalRoute::Type2)), kDone);
    SaveBytes(m_item);
    EXPECT_TRUE(log.Holds(QtDebugMsg, "Read T1 file: NR n3 RX loss, route = 3"));
    EXPECT_TRUE(log.Holds(QtDebugMsg, "Write T1 file: NR n3 RX loss, route = 3"));
    EXPECT_TRUE(log.Holds(QtDebugMsg, "Write T2 file: NR n79 Route NCCA0 RX loss, route = 108"));
}
