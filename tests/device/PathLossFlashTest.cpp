// The RX path loss page and the flash: what a Read shows, what a reset leaves, what a Write changes.
#include <algorithm>
#include <cstddef>

#include "tests/common/TestClass.h"
#include "tests/device/PathLossTables.h"

namespace {

using SType1Block = SMMType1PathlossBlockV7;

// Where the blocks of a type 1 route stand in a download.
struct SPlace
{
    int round = -1;
    int offset = 0;  // of the first block
    int blocks = 0;
};

SPlace Type1Place(const QVector<QByteArray> &rounds, int route)
{
    for (int round = 0; round < rounds.size(); ++round) {
        const int count = WordAt(rounds[round], offsetof(SMMSetCalDataReqV7, type1Count));
        int block = 0;
        for (int i = 0; i < count; ++i) {
            const int entry =
                offsetof(SMMSetCalDataReqV7, type1) + i * int(sizeof(SMMCalRxEntryV7));
            const int blocks = WordAt(rounds[round], entry + offsetof(SMMCalRxEntryV7, blockCount));
            if (WordAt(rounds[round], entry + offsetof(SMMCalRxEntryV7, route)) == route)
                return {round,
                        int(offsetof(SMMSetCalDataReqV7, type1Block)) +
                            block * int(sizeof(SType1Block)),
                        blocks};
            block += blocks;
        }
    }
    return {};
}

// Offset of a type 1 value: a subband (0 to 63), a gain slot, a path and a power mode.
int LossOffset(const SPlace &place, int subband, EVondRxPath path, int slot, bool isHpm)
{
    return place.offset + subband / kVondCalBlockSubbands * int(sizeof(SType1Block)) +
           int(offsetof(SType1Block, loss)) +
           (subband % kVondCalBlockSubbands * kVondType1LossPairs + VondType1LossPair(path, slot)) *
               int(sizeof(SMMLossPair)) +
           int(isHpm ? offsetof(SMMLossPair, hpm) : offsetof(SMMLossPair, lpm));
}

}  // namespace

class PathLossFlashTest : public QObject
{
    Q_OBJECT

private slots:
    void readShowsWhatTheFlashHolds();
    void resetOnAType1RouteLeavesTheType2Tables();
    void resetOnAType2RouteLeavesTheType1Tables();
    void writeChangesExactlyTheEditedValues();
    void exportedEditsComeBackOnImport();
};

void PathLossFlashTest::readShowsWhatTheFlashHolds()
{
    CCalibrationSession session(kPathLossPage);
    QVERIFY(IsReady(session));
    QVERIFY(session.Run(kWrite));
    const QVector<QByteArray> rounds = Rounds(0);
    const SPlace place = Type1Place(rounds, 1);
    QVERIFY(place.round >= 0);
    for (int slot = 0; slot < 8; ++slot) {
        for (int subband : {0, place.blocks * 16 - 1}) {
            const int16_t word = WordAt(rounds[place.round],
                                        LossOffset(place, subband, EVondRxPath::Main, slot, true));
            QCOMPARE(session.CellText(kMain, "lna0", slot, subband),
                     QString::number(word / 32.0, 'f', 5));
        }
    }
    QVERIFY(session.CellText(kFrequency, "freq", 0, 0) != "0");
}

void PathLossFlashTest::resetOnAType1RouteLeavesTheType2Tables()
{
    CCalibrationSession session(kPathLossPage);
    QVERIFY(IsReady(session));
    session.Select("routeType", "Type2");
    const QStringList partialOn = session.TableTexts(kPartialOn, "main");
    const QStringList gains = session.TableTexts(kGainMain, "gain0");
    QVERIFY(partialOn.count("0.00000") < partialOn.size());
    session.Select("routeType", "Type1");
    QVERIFY(session.TableTexts(kMain, "lna0").count("0.00000") < 8 * 64);
    session.Press("m_btnReset_2");
    QCOMPARE(session.TableTexts(kMain, "lna0").count("0.00000"), 8 * 64);
    QCOMPARE(session.TableTexts(kDiv, "lna0").count("0.00000"), 8 * 64);
    QCOMPARE(session.TableTexts(kPartialOn, "main"), partialOn);
    QCOMPARE(session.TableTexts(kGainMain, "gain0"), gains);
}

void PathLossFlashTest::resetOnAType2RouteLeavesTheType1Tables()
{
    CCalibrationSession session(kPathLossPage);
    QVERIFY(IsReady(session));
    const QStringList main = session.TableTexts(kMain, "lna0");
    session.Select("routeType", "Type2");
    session.Press("m_btnReset_2");
    QCOMPARE(session.TableTexts(kPartialOn, "main").count("0.00000"), 2 * 8);
    QCOMPARE(session.TableTexts(kGainMain, "gain0").count("0.00000"), 3 * 3);
    QCOMPARE(session.TableTexts(kGainDiv, "gain0").count("0.00000"), 3 * 3);
    QCOMPARE(session.TableTexts(kMain, "lna0"), main);
}

void PathLossFlashTest::writeChangesExactlyTheEditedValues()
{
    CCalibrationSession session(kPathLossPage);
    QVERIFY(IsReady(session));
    QVERIFY(session.Run(kWrite));
    const QVector<QByteArray> before = Rounds(0);
    const SPlace first = Type1Place(before, 1);
    const SPlace second = Type1Place(before, 2);
    QVERIFY(first.round >= 0 && second.round >= 0);

    struct SEdit
    {
        int offset;
        int round;
        int16_t value;  // 1/32 dB
    };
    QVector<SEdit> edits;
    const auto edit = [&](const SPlace &place, int group, int slot, int subband, bool isHpm,
                          double value) {
        session.Type(group, "lna0", slot, subband, QString::number(value));
        const EVondRxPath path = group == kMain ? EVondRxPath::Main : EVondRxPath::Div;
        edits.append({LossOffset(place, subband, path, slot, isHpm), place.round,
                      static_cast<int16_t>(value * 32)});
    };
    edit(first, kMain, 0, 0, true, 12.5);
    edit(first, kDiv, 7, 15, true, -29.96875);
    session.Select("powerMode", "LPM");
    edit(first, kMain, 3, 2, false, 1.03125);
    session.Select("route", "2");
    edit(second, kDiv, 1, 1, false, -4);
    session.Select("powerMode", "HPM");
    session.Select("route", "1");
    QVERIFY(session.Run(kWrite));

    const QVector<QByteArray> after = Rounds(before.size());
    QCOMPARE(after.size(), before.size());
    QVector<SWordChange> expected;
    for (const SEdit &e : edits)
        expected.append({e.round, e.offset, WordAt(before[e.round], e.offset), e.value});
    std::sort(expected.begin(), expected.end(), [](const SWordChange &a, const SWordChange &b) {
        return std::make_pair(a.round, a.offset) < std::make_pair(b.round, b.offset);
    });
    QCOMPARE(Changes(before, after), expected);
}

void PathLossFlashTest::exportedEditsComeBackOnImport()
{
    QTemporaryDir folder;
    const QString file = folder.filePath("loss.ini");
    CCalibrationSession session(kPathLossPage);
    QVERIFY(IsReady(session));
    session.Type(kMain, "lna0", 0, 0, "8.5");
    QVERIFY(session.Run(kExport, file));
    session.Type(kMain, "lna0", 0, 0, "1");
    QVERIFY(session.Run(kImport, file));
    QCOMPARE(session.CellText(kMain, "lna0", 0, 0), QString("8.50000"));
}

QUORLIN_TEST_CLASS(PathLossFlashTest)
#include "PathLossFlashTest.moc"
