// From the widgets of both calibration pages to the DUT's flash file: an edit changes its own value
// there and nothing else does, whatever was selected and shown meanwhile.
#include <cstddef>

#include <QTemporaryDir>

#include "tests/common/TestClass.h"
#include "tests/device/CalibrationSession.h"
#include "tests/device/FlashFile.h"

namespace {

using SType1Block = SMMType1PathlossBlockV7;
using SType2Block = SMMType2PathlossBlockV7;

constexpr int kMain = 2;  // groups of the path loss tables
constexpr int kDiv = 3;
constexpr int kPartialOn = 5;
constexpr int kGainMain = 6;
constexpr int kGainDiv = 7;
constexpr int kPaGain = 7;  // groups of the APT tables
constexpr int kPd = 9;
constexpr int kPdOffset = 10;

int LossOffset(int lossAt, int pairs, int subband, int pair, bool isHpm)
{
    return lossAt + (subband * pairs + pair) * int(sizeof(SMMLossPair)) +
           int(isHpm ? offsetof(SMMLossPair, hpm) : offsetof(SMMLossPair, lpm));
}

int Type1Offset(int subband, EVondRxPath path, int slot, bool isHpm)
{
    return LossOffset(offsetof(SType1Block, loss), kVondType1LossPairs, subband,
                      VondType1LossPair(path, slot), isHpm);
}

int Type2Offset(int subband, int pair, bool isHpm)
{
    return LossOffset(offsetof(SType2Block, loss), kVondType2LossPairs, subband, pair, isHpm);
}

int PaOffset(int mode, int member, int index)
{
    return int(offsetof(SAptBlock, pa)) + mode * int(sizeof(SAptPaPart)) + member + index * 2;
}

void FillWords(QByteArray &block, int from, int end)
{
    bool isMost = false;
    for (int at = from; at < end; at += 2, isMost = !isMost) {
        const int16_t word = isMost ? INT16_MAX : INT16_MIN;
        std::memcpy(block.data() + at, &word, sizeof word);
    }
}

// All values at the ends of their types, far beyond what the page's editors hold.
void FillWithExtremes(CFlashFile &flash)
{
    for (CFlashFile::SRecord &record : flash.records) {
        for (QByteArray &block : record.blocks) {
            switch (record.place.kind) {
            case eFlashType1:
                FillWords(block, offsetof(SType1Block, loss), sizeof(SType1Block));
                break;
            case eFlashType2:
                FillWords(block, offsetof(SType2Block, loss), sizeof(SType2Block));
                break;
            default:
                block[int(offsetof(SAptBlock, normalTempIndex))] = char(255);
                for (int level = 0; level < kVondAptLevels; ++level) {
                    const int at = int(offsetof(SAptBlock, level) + level * sizeof(SAptLevel));
                    for (int byte : {0, 1, 2})  // PA mode, voltage, use for 256QAM
                        block[at + byte] = char(255);
                    FillWords(block, at + int(offsetof(SAptLevel, prf)),
                              at + int(sizeof(SAptLevel)));
                }
                FillWords(block, offsetof(SAptBlock, couplerLoss), offsetof(SAptBlock, freq));
                for (int mode = 0; mode < kVondAptPaModes; ++mode)
                    FillWords(block, PaOffset(mode, offsetof(SAptPaPart, paGain), 0),
                              PaOffset(mode + 1, 0, 0));
            }
        }
    }
}

QStringList Items(const QComboBox *selector)
{
    QStringList items;
    for (int i = 0; i < selector->count(); ++i)
        items.append(selector->itemText(i));
    return items;
}

// Goes to every record, with the keys, and by every selector on a band with both types of routes.
void VisitPathLoss(CCalibrationSession &session)
{
    for (const QString &band : Items(session.Selector("band"))) {
        session.Select("band", band);
        for (const QString &type : Items(session.Selector("routeType"))) {
            session.Select("routeType", type);
            for (const QString &route : Items(session.Selector("route")))
                session.Select("route", route);
            if (band != "n78")
                continue;
            session.Select("powerMode", "LPM");
            session.Select("path", "1");
            session.Select("type2GainModeIdx", "G2");
            session.Select("freqIdx", "1");
            session.Select("powerMode", "HPM");
        }
    }
}

void VisitApt(CCalibrationSession &session)
{
    for (const QString &band : Items(session.Selector("band"))) {
        session.Select("band", band);
        for (const QString &route : Items(session.Selector("txRoute"))) {
            session.Select("txRoute", route);
            for (const QString &region : Items(session.Selector("aggBwRegion")))
                session.Select("aggBwRegion", region);
        }
    }
}

void Visit(CCalibrationSession &session, const QString &page)
{
    if (page == kPathLossPage)
        VisitPathLoss(session);
    else
        VisitApt(session);
}

void AddPageRows()
{
    QTest::addColumn<QString>("page");
    QTest::newRow("path loss") << kPathLossPage;
    QTest::newRow("APT") << kAptPage;
}

}  // namespace

class CalibrationFlashTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder.reset(new QTemporaryDir);
        qputenv("VOND_SIM_FLASH", Path().toUtf8());
    }
    void cleanup() { qunsetenv("VOND_SIM_FLASH"); }

    void editsUnderBothPowerModesChangeExactlyTheirValuesInFlash();
    void editsOfAType2RouteChangeExactlyTheirValuesInFlash();
    void editsOfTwoRegionsChangeExactlyTheirValuesInFlash();
    void editOfALevelGoesIntoEveryBlockOfItsRegion();
    void visitsToEveryRecordLeaveTheFlash_data() { AddPageRows(); }
    void visitsToEveryRecordLeaveTheFlash();
    void visitsLeaveValuesThatNoEditorHolds_data() { AddPageRows(); }
    void visitsLeaveValuesThatNoEditorHolds();

private:
    QString Path() const { return m_folder->filePath("dut.flash"); }
    // The page has read; the flash file is there, with the factory's data or what stood in it.
    bool IsReady(CCalibrationSession &session)
    {
        return session.ShowAndWait() && session.Run(kRead) && session.Run(kWrite) &&
               !CFlashFile(Path()).records.isEmpty();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void CalibrationFlashTest::editsUnderBothPowerModesChangeExactlyTheirValuesInFlash()
{
    CCalibrationSession session(kPathLossPage);
    QVERIFY(IsReady(session));
    const CFlashFile before(Path());
    session.Type(kMain, "lna0", 0, 0, "12.5");
    session.Type(kDiv, "lna0", 7, 11, "-29.96875");
    session.Select("powerMode", "LPM");
    session.Type(kMain, "lna0", 0, 0, "1.03125");
    session.Select("route", "2");
    session.Select("route", "1");
    QVERIFY(session.Run(kWrite));
    const SFlashPlace place{eFlashType1, 1, 0};
    QCOMPARE(before.ChangesTo(CFlashFile(Path())),
             (QStringList{FlashWord(place, 0, Type1Offset(0, EVondRxPath::Main, 0, false), 33),
                          FlashWord(place, 0, Type1Offset(0, EVondRxPath::Main, 0, true), 400),
                          FlashWord(place, 0, Type1Offset(11, EVondRxPath::Div, 7, true), -959)}));
}

void CalibrationFlashTest::editsOfAType2RouteChangeExactlyTheirValuesInFlash()
{
    CCalibrationSession session(kPathLossPage);
    QVERIFY(IsReady(session));
    const CFlashFile before(Path());
    session.Select("routeType", "Type2");
    const SFlashPlace place{eFlashType2, session.Selector("route")->currentText().toUInt(), 0};
    session.Type(kPartialOn, "main", 0, 2, "20");
    session.Select("path", "1");
    session.Select("freqIdx", "3");
    session.Select("type2GainModeIdx", "G2");
    session.Type(kGainMain, "gain0", 1, 2, "-20");
    session.Select("powerMode", "LPM");
    session.Type(kGainDiv, "gain0", 2, 0, "21");
    session.Select("routeType", "Type1");
    session.Select("band", "n78");
    QVERIFY(session.Run(kWrite));
    const EVondRxPath main = EVondRxPath::Main;
    const EVondRxPath div = EVondRxPath::Div;
    QCOMPARE(
        before.ChangesTo(CFlashFile(Path())),
        (QStringList{
            FlashWord(place, 0, Type2Offset(0, VondPartialOnPair(main, 0, 2), true), 640),
            FlashWord(place, 0, Type2Offset(3, VondGainByGainPair(main, 1, 2, 1, 2), true), -640),
            FlashWord(place, 0, Type2Offset(3, VondGainByGainPair(div, 1, 2, 2, 0), false), 672)}));
}

void CalibrationFlashTest::editsOfTwoRegionsChangeExactlyTheirValuesInFlash()
{
    CCalibrationSession session(kAptPage);
    QVERIFY(IsReady(session));
    const CFlashFile before(Path());
    session.Type(kPaGain, "paHighPaGain", 1, 0, "-1023.96875");
    session.Select("aggBwRegion", "BW1");
    session.Type(kPd, "paHighPd", 2, 1, "1023.96875");
    session.Type(kPdOffset, "paHighPd", 0, 7, "-0.03125");
    session.Select("txRoute", "2");
    session.Select("band", "n41");
    session.Select("band", "n1");
    QVERIFY(session.Run(kWrite));
    const SFlashPlace first{eFlashApt, 1, 20000};
    const SFlashPlace second{eFlashApt, 1, 50000};
    QCOMPARE(
        before.ChangesTo(CFlashFile(Path())),
        (QStringList{
            FlashWord(first, 0, PaOffset(1, offsetof(SAptPaPart, paGain), 0), -32767),
            FlashWord(second, 0, PaOffset(0, offsetof(SAptPaPart, powerDetectorTempOffset), 7), -1),
            FlashWord(second, 0, PaOffset(2, offsetof(SAptPaPart, powerDetector), 1), 32767)}));
}

// Each block repeats what belongs to the whole region.
void CalibrationFlashTest::editOfALevelGoesIntoEveryBlockOfItsRegion()
{
    CCalibrationSession session(kAptPage);
    QVERIFY(IsReady(session));
    session.Select("band", "n78");
    const SFlashPlace place{eFlashApt, 12, 20000};
    const CFlashFile before(Path());
    CCalibrationSession::Type(
        session.Find<QAbstractSpinBox>(CCalibrationSession::DataName(3, "pRf2")), "-5");
    session.Type(kPaGain, "paHighPaGain", 0, 20, "3");
    session.Select("band", "n1");
    QVERIFY(session.Run(kWrite));
    const int prf = int(offsetof(SAptBlock, level) + sizeof(SAptLevel) + offsetof(SAptLevel, prf));
    QStringList expected;
    const int blocks = before.BlocksOf(place);
    QVERIFY(blocks > 1);
    for (int block = 0; block < blocks; ++block) {
        expected.append(FlashWord(place, block, prf, -160));
        if (block == 1)
            expected.append(FlashWord(place, 1, PaOffset(0, offsetof(SAptPaPart, paGain), 4), 96));
    }
    QCOMPARE(before.ChangesTo(CFlashFile(Path())), expected);
}

void CalibrationFlashTest::visitsToEveryRecordLeaveTheFlash()
{
    QFETCH(QString, page);
    CCalibrationSession session(page);
    QVERIFY(IsReady(session));
    const CFlashFile before(Path());
    Visit(session, page);
    QVERIFY(session.Run(kWrite));
    QCOMPARE(before.ChangesTo(CFlashFile(Path())), QStringList());
}

void CalibrationFlashTest::visitsLeaveValuesThatNoEditorHolds()
{
    QFETCH(QString, page);
    {
        CCalibrationSession session(page);
        QVERIFY(IsReady(session));
    }
    CFlashFile extremes(Path());
    FillWithExtremes(extremes);
    QVERIFY(extremes.Save(Path()));
    CCalibrationSession session(page);
    QVERIFY(IsReady(session));
    QCOMPARE(extremes.ChangesTo(CFlashFile(Path())), QStringList());
    Visit(session, page);
    QVERIFY(session.Run(kWrite));
    QCOMPARE(extremes.ChangesTo(CFlashFile(Path())), QStringList());
}

QUORLIN_TEST_CLASS(CalibrationFlashTest)
#include "CalibrationFlashTest.moc"
