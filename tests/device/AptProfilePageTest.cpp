// The APT profile page: levels, selections, what they keep, and what reaches the flash.
#include <cstddef>
#include <cstring>

#include <QScrollArea>
#include <QTabWidget>

#include "tests/common/TestClass.h"
#include "tests/device/CalibrationSession.h"

namespace {

// Groups of ten levels, with the key of their members.
struct SLevelGroup
{
    int group;
    const char *member;
};

constexpr SLevelGroup kLevelGroups[] = {
    {2, "paMode"}, {3, "pRf"}, {4, "paGain"}, {5, "dc2dcLevel"}, {6, "256QAMusage"}};

constexpr int kPaGain = 7;  // groups of the tables
constexpr int kPaGainOffset = 8;
constexpr int kPd = 9;
constexpr int kUlFreq = 12;

// Where the blocks of a TX route's region stand in a download.
struct SPlace
{
    int round = -1;
    int offset = 0;  // of the first block
    int blocks = 0;
};

SPlace TxPlace(const QVector<QByteArray> &rounds, int route, int region)
{
    for (int round = 0; round < rounds.size(); ++round) {
        const int count = WordAt(rounds[round], offsetof(SMMSetCalDataReqV7, txCount));
        int block = 0;
        for (int i = 0; i < count; ++i) {
            const int entry = offsetof(SMMSetCalDataReqV7, tx) + i * int(sizeof(SMMCalTxEntryV7));
            const int blocks = WordAt(rounds[round], entry + offsetof(SMMCalTxEntryV7, blockCount));
            if (WordAt(rounds[round], entry + offsetof(SMMCalTxEntryV7, route)) == route &&
                region-- == 0)
                return {round,
                        int(offsetof(SMMSetCalDataReqV7, txBlock)) + block * int(sizeof(SAptBlock)),
                        blocks};
            block += blocks;
        }
    }
    return {};
}

bool IsReady(CCalibrationSession &session)
{
    return session.ShowAndWait() && session.Run(kRead);
}

}  // namespace

class AptProfilePageTest : public QObject
{
    Q_OBJECT

private slots:
    void pageShowsItsDocument();
    void readFillsThePage();
    void levelOneLeavesOnlyTheFirstMemberOfEachGroupEnabled();
    void levelThreeEnablesTheFirstThree();
    void regionChangeKeepsTheEditsOfTheRegionLeft();
    void routeChangeReachesTheRegion();
    void wheelOnTheRegionKeepsTheEdits();
    void resetPdLeavesThePaGainTable();
    void resetPaGainLeavesThePdTable();
    void writeChangesExactlyTheEditedValues();
    void selectorThatKeptTheFocusDoesNotStoreThePictureFromBeforeARead();
    void wideTablesShowAllTheirCellsAndScrollTogether();
    void exportedEditsComeBackOnImport();

private:
    QWidget *Member(const CCalibrationSession &session, const SLevelGroup &group, int level) const
    {
        return session.Find<QWidget>(
            CCalibrationSession::DataName(group.group, group.member + QString::number(level)));
    }
    void CheckEnabledLevels(CCalibrationSession &session, int levels) const
    {
        for (const SLevelGroup &group : kLevelGroups) {
            for (int level = 1; level <= 10; ++level)
                QCOMPARE(Member(session, group, level)->isEnabled(), level <= levels);
        }
    }
    static QAbstractSpinBox *PaGain(const CCalibrationSession &session, int level)
    {
        return session.Find<QAbstractSpinBox>(
            CCalibrationSession::DataName(4, "paGain" + QString::number(level)));
    }
    static void SetLevel(const CCalibrationSession &session, const QString &level)
    {
        session.Find<QComboBox>(CCalibrationSession::DataName(1, "paControlLevel"))
            ->setCurrentText(level);
    }
};

void AptProfilePageTest::pageShowsItsDocument()
{
    CCalibrationSession session(kAptPage);
    QVERIFY(session.ShowAndWait());
    QCOMPARE(session.Selector("band")->currentText(), QString("n1"));
    QCOMPARE(session.Selector("txRoute")->currentText(), QString("1"));
    QCOMPARE(session.Selector("aggBwRegion")->currentText(), QString("BW0"));
    QCOMPARE(session.Find<QLabel>(CCalibrationSession::ConfigName("txRoute_caption"))->text(),
             QString("Compensation Route"));
    CheckEnabledLevels(session, 10);
}

void AptProfilePageTest::readFillsThePage()
{
    CCalibrationSession session(kAptPage);
    QVERIFY(IsReady(session));
    QVERIFY(session.Run(kWrite));
    const QVector<QByteArray> rounds = Rounds(0);
    const SPlace place = TxPlace(rounds, 1, 0);
    QVERIFY(place.round >= 0);
    SAptBlock block;
    std::memcpy(&block, rounds[place.round].constData() + place.offset, sizeof block);
    for (int level = 1; level <= block.paControlLevel; ++level)
        QCOMPARE(PaGain(session, level)->text(),
                 QString::number(block.level[level - 1].paGain / 32.0, 'f', 5));
    QCOMPARE(session.CellText(kPaGain, "paHighPaGain", 0, 0),
             QString::number(block.pa[0].paGain[0] / 32.0, 'f', 5));
    QCOMPARE(session.CellText(kPd, "paHighPd", 2, 3),
             QString::number(block.pa[2].powerDetector[3] / 32.0, 'f', 5));
    QCOMPARE(session.CellText(kPaGainOffset, "paHighPaGain", 1, 7),
             QString::number(block.pa[1].paGainTempOffset[7] / 32.0, 'f', 5));
    QCOMPARE(session.CellText(kUlFreq, "ulFreq", 0, 1), QString::number(block.freq[1]));
}

void AptProfilePageTest::levelOneLeavesOnlyTheFirstMemberOfEachGroupEnabled()
{
    CCalibrationSession session(kAptPage);
    QVERIFY(session.ShowAndWait());
    SetLevel(session, "1");
    CheckEnabledLevels(session, 1);
    SetLevel(session, "10");
    CheckEnabledLevels(session, 10);
}

void AptProfilePageTest::levelThreeEnablesTheFirstThree()
{
    CCalibrationSession session(kAptPage);
    QVERIFY(session.ShowAndWait());
    SetLevel(session, "3");
    CheckEnabledLevels(session, 3);
}

void AptProfilePageTest::regionChangeKeepsTheEditsOfTheRegionLeft()
{
    CCalibrationSession session(kAptPage);
    QVERIFY(IsReady(session));
    session.Type(kPaGain, "paHighPaGain", 0, 0, "-100.5");
    CCalibrationSession::Type(PaGain(session, 1), "100.25");
    session.Select("aggBwRegion", "BW1");
    QVERIFY(session.CellText(kPaGain, "paHighPaGain", 0, 0) != "-100.50000");
    session.Type(kPaGain, "paHighPaGain", 0, 0, "77");
    session.Select("aggBwRegion", "BW0");
    QCOMPARE(session.CellText(kPaGain, "paHighPaGain", 0, 0), QString("-100.50000"));
    QCOMPARE(PaGain(session, 1)->text(), QString("100.25000"));
    session.Select("aggBwRegion", "BW1");
    QCOMPARE(session.CellText(kPaGain, "paHighPaGain", 0, 0), QString("77.00000"));
}

void AptProfilePageTest::routeChangeReachesTheRegion()
{
    CCalibrationSession session(kAptPage);
    QVERIFY(IsReady(session));
    const QString frequency = session.CellText(kUlFreq, "ulFreq", 0, 0);
    session.Type(kPd, "paHighPd", 1, 2, "12.25");
    session.Select("txRoute", "2");
    QVERIFY(session.CellText(kPd, "paHighPd", 1, 2) != "12.25000");
    session.Select("band", "n78");
    QVERIFY(session.CellText(kUlFreq, "ulFreq", 0, 0).toInt() > 3000000);
    session.Select("band", "n1");
    QCOMPARE(session.Selector("txRoute")->currentText(), QString("1"));
    QCOMPARE(session.CellText(kPd, "paHighPd", 1, 2), QString("12.25000"));
    QCOMPARE(session.CellText(kUlFreq, "ulFreq", 0, 0), frequency);
}

void AptProfilePageTest::wheelOnTheRegionKeepsTheEdits()
{
    CCalibrationSession session(kAptPage);
    QVERIFY(IsReady(session));
    session.Type(kPaGainOffset, "paHighPaGain", 2, 6, "3");
    session.TurnWheel("aggBwRegion", -1);
    QCOMPARE(session.Selector("aggBwRegion")->currentText(), QString("BW1"));
    session.TurnWheel("aggBwRegion", 1);
    QCOMPARE(session.CellText(kPaGainOffset, "paHighPaGain", 2, 6), QString("3.00000"));
}

void AptProfilePageTest::resetPdLeavesThePaGainTable()
{
    CCalibrationSession session(kAptPage);
    QVERIFY(IsReady(session));
    const QStringList gains = session.TableTexts(kPaGain, "paHighPaGain");
    session.Press("m_btnResetPd");
    QCOMPARE(session.TableTexts(kPd, "paHighPd").count("0.00000"), 3 * 64);
    QCOMPARE(session.TableTexts(kPaGain, "paHighPaGain"), gains);
    QVERIFY(gains.count("0.00000") < gains.size());
}

void AptProfilePageTest::resetPaGainLeavesThePdTable()
{
    CCalibrationSession session(kAptPage);
    QVERIFY(IsReady(session));
    const QStringList detector = session.TableTexts(kPd, "paHighPd");
    const QStringList offsets = session.TableTexts(kPaGainOffset, "paHighPaGain");
    session.Press("m_btnResetPaGain");
    QCOMPARE(session.TableTexts(kPaGain, "paHighPaGain").count("0.00000"), 3 * 64);
    QCOMPARE(session.TableTexts(kPd, "paHighPd"), detector);
    QCOMPARE(session.TableTexts(kPaGainOffset, "paHighPaGain"), offsets);
    QVERIFY(detector.count("0.00000") < detector.size());
}

void AptProfilePageTest::writeChangesExactlyTheEditedValues()
{
    CCalibrationSession session(kAptPage);
    QVERIFY(IsReady(session));
    QVERIFY(session.Run(kWrite));
    const QVector<QByteArray> before = Rounds(0);
    const SPlace left = TxPlace(before, 1, 0);
    const SPlace other = TxPlace(before, 1, 1);
    QVERIFY(left.round >= 0 && other.round >= 0);

    session.Type(kPaGain, "paHighPaGain", 1, 0, "-1023.96875");
    session.Type(kPd, "paHighPd", 2, 1, "1023.96875");
    session.Select("aggBwRegion", "BW1");
    session.Type(kPaGain, "paHighPaGain", 0, 2, "0.03125");
    session.Select("txRoute", "2");
    session.Select("txRoute", "1");
    QVERIFY(session.Run(kWrite));

    const QVector<QByteArray> after = Rounds(before.size());
    QCOMPARE(after.size(), before.size());
    const auto change = [&](const SPlace &place, int part, int member, int subband, int16_t value) {
        const int offset = place.offset + int(offsetof(SAptBlock, pa)) +
                           part * int(sizeof(SAptPaPart)) + member + subband * int(sizeof(int16_t));
        return SWordChange{place.round, offset, WordAt(before[place.round], offset), value};
    };
    const int gain = offsetof(SAptPaPart, paGain);
    const int detector = offsetof(SAptPaPart, powerDetector);
    QCOMPARE(Changes(before, after), (QVector<SWordChange>{change(left, 1, gain, 0, -32767),
                                                           change(left, 2, detector, 1, 32767),
                                                           change(other, 0, gain, 2, 1)}));
}

void AptProfilePageTest::selectorThatKeptTheFocusDoesNotStoreThePictureFromBeforeARead()
{
    CCalibrationSession session(kAptPage);
    QVERIFY(session.ShowAndWait());
    session.Selector("aggBwRegion")->setFocus();
    session.Find<QPushButton>(kRead.button)->click();
    QVERIFY(session.WaitForStatus(kRead.done));
    const QStringList shown = session.TableTexts(kPaGain, "paHighPaGain");
    QVERIFY(shown.count("0.00000") < shown.size());
    QTest::keyClick(session.Selector("aggBwRegion"), Qt::Key_Down);
    QTest::keyClick(session.Selector("aggBwRegion"), Qt::Key_Up);
    QCOMPARE(session.TableTexts(kPaGain, "paHighPaGain"), shown);
}

void AptProfilePageTest::wideTablesShowAllTheirCellsAndScrollTogether()
{
    CCalibrationSession session(kAptPage);
    QVERIFY(session.ShowAndWait());
    const QTableWidget *tables[] = {session.Table(kUlFreq, "ulFreq"),
                                    session.Table(kPaGain, "paHighPaGain"),
                                    session.Table(kPd, "paHighPd")};
    for (const QTableWidget *table : tables) {
        QCOMPARE(table->minimumSize(), table->maximumSize());
        QCOMPARE(table->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QCOMPARE(table->columnWidth(63), tables[0]->columnWidth(63));
    }
    session.Find<QScrollArea>("m_paGainArea")->horizontalScrollBar()->setValue(1000);
    QCOMPARE(session.Find<QScrollArea>("m_ulFreqArea")->horizontalScrollBar()->value(), 1000);
    session.Find<QTabWidget>("m_tables")->setCurrentIndex(2);
    QCoreApplication::processEvents();
    QCOMPARE(session.Find<QScrollArea>("m_pdArea")->horizontalScrollBar()->value(), 1000);
}

void AptProfilePageTest::exportedEditsComeBackOnImport()
{
    QTemporaryDir folder;
    const QString file = folder.filePath("apt.ini");
    CCalibrationSession session(kAptPage);
    QVERIFY(IsReady(session));
    session.Type(kPaGain, "paHighPaGain", 0, 0, "8.5");
    QVERIFY(session.Run(kExport, file));
    session.Type(kPaGain, "paHighPaGain", 0, 0, "1");
    QVERIFY(session.Run(kImport, file));
    QCOMPARE(session.CellText(kPaGain, "paHighPaGain", 0, 0), QString("8.50000"));
}

QUORLIN_TEST_CLASS(AptProfilePageTest)
#include "AptProfilePageTest.moc"
