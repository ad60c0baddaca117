// A Read or an Import that ends halfway, on both calibration pages: whatever the user does then, a
// record that he did not edit stays byte for byte what the DUT held.
#include <random>
#include <set>

#include <QTemporaryDir>

#include "tests/common/TestClass.h"
#include "tests/device/CalibrationSession.h"
#include "tests/device/FlashFile.h"

namespace {

// Many rounds for both items, and no number of subbands at which a file adds a block.
constexpr char kProfile[] = R"({"name": "many rounds", "base": "handset", "calibration": {
    "txSubbands": {"default": 60}, "rxType1Subbands": {"default": 60},
    "rxType2Subbands": {"default": 40}}})";

// Of a user between the cut and the last Write.
constexpr int kStepsAfterRead = 6;

// Imports meet a page with the factory's data, which are quick to come by, and at every so many
// sections a page without any.
constexpr int kSectionsAStart = 8;

struct SRecordName
{
    uint32_t kind;
    uint32_t route;
    uint32_t kHz;

    bool operator<(const SRecordName &other) const
    {
        return std::tie(kind, route, kHz) < std::tie(other.kind, other.route, other.kHz);
    }
};

// Regions of a route stand in the flash in the order of their upper bounds, as on the page.
uint32_t RegionKHz(const CFlashFile &flash, uint32_t route, int region)
{
    QVector<uint32_t> bounds;
    for (const CFlashFile::SRecord &record : flash.records) {
        if (record.place.kind == eFlashApt && record.place.route == route)
            bounds.append(record.place.bandwidth);
    }
    return bounds.value(region);
}

void FailRound(int round)
{
    VondSim_AddFault(QString(R"({"function": "%1", "kind": "fail", "result": 4, "nth": %2})")
                         .arg(kReadCall)
                         .arg(round)
                         .toUtf8());
}

// The places of a line of each section at which an import ends with that section.
QVector<int> SectionBreaks(const QByteArray &file, const QString &page)
{
    const QByteArray key =
        page == kPathLossPage ? QByteArray("\r\nRX ") : QByteArray("\r\nPa control dc2dc level = ");
    QVector<int> breaks;
    for (int head = file.indexOf('['); head >= 0; head = file.indexOf("\r\n[", head + 1)) {
        const int at = file.indexOf(key, head + 2);
        const int next = file.indexOf("\r\n[", head + 2);
        if (at >= 0 && (next < 0 || at < next))
            breaks.append(at + key.size());
    }
    return breaks;
}

// A voltage that is no number, or a gain key that the target needs and the file lacks.
QByteArray BrokenAt(QByteArray file, int at)
{
    return file.replace(at, 1, "x");
}

// A user who changes selections and values at random.
class CUser
{
public:
    CUser(CCalibrationSession &session, const QString &page, unsigned seed,
          const CFlashFile &flash = CFlashFile({}))
        : m_session(session), m_flash(flash), m_isPathLoss(page == kPathLossPage), m_random(seed)
    {
    }

    std::set<SRecordName> edited;

    void Step()
    {
        switch (Below(5)) {
        case 0:
        case 1:
            ChangeSelection();
            break;
        case 2:
            Edit();
            break;
        case 3:
            Press(kWrite);
            break;
        default:
            if (Below(2))
                FailRound(1 + Below(3));
            Press(kRead);
            VondSim_ClearFaults();
        }
    }
    void Press(const SFlowButton &flow, const QString &file = {})
    {
        CBoxWatcher boxes;
        if (!file.isEmpty())
            AnswerFileDialog(file);
        m_session.busy.clear();
        m_session.Press(flow.button);
        QVERIFY(WaitUntil([&] { return m_session.busy == QVector<bool>({true, false}); }));
        QCoreApplication::processEvents();
    }

private:
    int Below(int end) { return int(m_random() % unsigned(end)); }

    void ChangeSelection()
    {
        const QStringList selectors =
            m_isPathLoss ? QStringList{"band", "routeType", "route", "powerMode", "path"}
                         : QStringList{"band", "txRoute", "aggBwRegion"};
        const QString name = selectors[Below(selectors.size())];
        const QComboBox *selector = m_session.Selector(name);
        m_session.Select(name, selector->itemText(Below(selector->count())));
    }
    void Edit()
    {
        const bool isType2 = m_isPathLoss && Text("routeType").contains('2');
        QAbstractSpinBox *cell = nullptr;
        if (!m_isPathLoss)
            cell = m_session.Cell(7, "paHighPaGain", Below(3), Below(4));
        else if (isType2)
            cell = m_session.Cell(5, "main", Below(2), Below(8));
        else
            cell = m_session.Cell(2, "lna0", Below(8), Below(4));
        CCalibrationSession::Type(cell, QString::number(Below(30)));
        if (m_isPathLoss)
            edited.insert({isType2 ? eFlashType2 : eFlashType1, Text("route").toUInt(), 0});
        else
            edited.insert(
                {eFlashApt, Text("txRoute").toUInt(),
                 RegionKHz(m_flash, Text("txRoute").toUInt(), Text("aggBwRegion").mid(2).toInt())});
    }
    QString Text(const QString &selector) { return m_session.Selector(selector)->currentText(); }

    CCalibrationSession &m_session;
    const CFlashFile m_flash;
    const bool m_isPathLoss;
    std::mt19937 m_random;
};

QStringList ChangesBeyond(const CFlashFile &before, const CFlashFile &after,
                          const std::set<SRecordName> &edited)
{
    QStringList changes;
    if (before.records.size() != after.records.size())
        return {"other records"};
    for (int i = 0; i < before.records.size(); ++i) {
        const SFlashPlace &place = before.records[i].place;
        if (before.records[i].blocks != after.records[i].blocks &&
            !edited.count({place.kind, place.route, place.bandwidth}))
            changes.append(QString("kind %1, route %2, %3 kHz")
                               .arg(place.kind)
                               .arg(place.route)
                               .arg(place.bandwidth));
    }
    return changes;
}

void AddPageRows()
{
    QTest::addColumn<QString>("page");
    QTest::newRow("path loss") << kPathLossPage;
    QTest::newRow("APT") << kAptPage;
}

}  // namespace

class CalibrationCutTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder.reset(new QTemporaryDir);
        qputenv("VOND_SIM_FLASH", m_folder->filePath("dut.flash").toUtf8());
    }
    void cleanup() { qunsetenv("VOND_SIM_FLASH"); }

    void readCutInAnyRoundLeavesWhatIsNotEdited_data() { AddPageRows(); }
    void readCutInAnyRoundLeavesWhatIsNotEdited();
    void importCutInAnySectionLeavesWhatIsNotEdited_data() { AddPageRows(); }
    void importCutInAnySectionLeavesWhatIsNotEdited();
    void failedReadShowsWhatMemoryHolds_data() { AddPageRows(); }
    void failedReadShowsWhatMemoryHolds();
    void cutReadKeepsTheRecordsThatDidNotComeIn();
    void failedWriteTakesItsSnapshotAnew();

private:
    CFlashFile Flash() const { return CFlashFile(m_folder->filePath("dut.flash")); }
    // The factory's data is in the flash file, and a file of all sections beside it.
    QByteArray WriteFactory(const QString &page)
    {
        CCalibrationSession session(page, kProfile);
        const QString file = m_folder->filePath("factory.ini");
        if (!session.ShowAndWait() || !session.Run(kRead) || !session.Run(kWrite) ||
            !session.Run(kExport, file))
            return {};
        m_rounds = CountCalls(kReadCall);
        QFile ini(file);
        return ini.open(QIODevice::ReadOnly) ? ini.readAll() : QByteArray();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    int m_rounds = 0;  // of a whole Read
};

void CalibrationCutTest::readCutInAnyRoundLeavesWhatIsNotEdited()
{
    QFETCH(QString, page);
    QVERIFY(!WriteFactory(page).isEmpty());
    const CFlashFile factory = Flash();
    QVERIFY(!factory.records.isEmpty());
    QVERIFY(m_rounds > 1);
    for (int round = 1; round <= m_rounds; ++round) {
        QVERIFY(factory.Save(m_folder->filePath("dut.flash")));
        CCalibrationSession session(page, kProfile);
        QVERIFY(session.ShowAndWait());
        CUser user(session, page, unsigned(round), factory);
        FailRound(round);
        user.Press(kRead);
        QCOMPARE(session.StatusBar(), QString(kRead.failed) + ".");
        VondSim_ClearFaults();
        for (int i = 0; i < kStepsAfterRead; ++i)
            user.Step();
        user.Press(kWrite);
        user.Press(kRead);
        QCOMPARE(session.StatusBar(), QString(kRead.done));
        user.Press(kWrite);
        const QString where = QString("cut in round %1 of %2").arg(round).arg(m_rounds);
        QVERIFY2(
            ChangesBeyond(factory, Flash(), user.edited).isEmpty(),
            qPrintable(where + ": " + ChangesBeyond(factory, Flash(), user.edited).join("; ")));
    }
}

void CalibrationCutTest::importCutInAnySectionLeavesWhatIsNotEdited()
{
    QFETCH(QString, page);
    const QByteArray whole = WriteFactory(page);
    const CFlashFile factory = Flash();
    const QVector<int> breaks = SectionBreaks(whole, page);
    QVERIFY(breaks.size() > 30);
    CCalibrationSession session(page, kProfile);
    bool isFactory = false;  // the flash, and what memory holds
    for (int i = 0; i < breaks.size(); ++i) {
        const bool startsEmpty = i % kSectionsAStart == 0;
        if (!isFactory || startsEmpty) {
            QVERIFY(factory.Save(m_folder->filePath("dut.flash")));
            QCOMPARE(VondSim_SetProfileText(kProfile), 0);  // which reads the flash anew
        }
        if (startsEmpty) {
            session->ResetPlugin();
            session->HidePlugin();
            QVERIFY(session.ShowAndWait());
        } else if (!isFactory) {
            QVERIFY(session.Run(kImport, m_folder->filePath("factory.ini")));
        }
        QFile ini(m_folder->filePath("broken.ini"));
        QVERIFY(ini.open(QIODevice::WriteOnly) && ini.write(BrokenAt(whole, breaks[i])) > 0);
        ini.close();
        CUser user(session, page, 100u + unsigned(i), factory);
        user.Press(kImport, ini.fileName());
        QCOMPARE(session.StatusBar(), QString(kImport.failed) + ".");
        for (int step = 0; step < (startsEmpty ? 2 : 1); ++step)
            user.Step();
        user.Press(kWrite);
        const QStringList changes = ChangesBeyond(factory, Flash(), user.edited);
        QVERIFY2(changes.isEmpty(),
                 qPrintable(QString("cut in section %1: ").arg(i) + changes.join("; ")));
        isFactory = user.edited.empty() && !startsEmpty;
    }
}

void CalibrationCutTest::failedReadShowsWhatMemoryHolds()
{
    QFETCH(QString, page);
    CCalibrationSession session(page, kProfile);
    QVERIFY(session.ShowAndWait());
    QVERIFY(session.Run(kRead));
    const bool isPathLoss = page == kPathLossPage;
    QAbstractSpinBox *cell =
        isPathLoss ? session.Cell(2, "lna0", 0, 0) : session.Cell(7, "paHighPaGain", 0, 0);
    const QString own = cell->text();
    CCalibrationSession::Type(cell, "7");
    QVERIFY(cell->text() != own);
    CUser user(session, page, 1);
    FailRound(1);
    user.Press(kRead);
    QCOMPARE(session.StatusBar(), QString(kRead.failed) + ".");
    QCOMPARE(cell->text(), own);
}

// Type 1 routes come in the first round, type 2 routes behind.
void CalibrationCutTest::cutReadKeepsTheRecordsThatDidNotComeIn()
{
    QVERIFY(!WriteFactory(kPathLossPage).isEmpty());
    CCalibrationSession session(kPathLossPage, kProfile);
    QVERIFY(session.ShowAndWait());
    QVERIFY(session.Run(kRead));
    VondSim_ClearJournal();
    CUser user(session, kPathLossPage, 1);
    user.Press(kWrite);
    const QVector<QByteArray> whole = Rounds(0);
    VondSim_ClearJournal();
    FailRound(2);
    user.Press(kRead);
    QCOMPARE(session.StatusBar(), QString(kRead.failed) + ".");
    VondSim_ClearFaults();
    user.Press(kWrite);
    QCOMPARE(session.StatusBar(), QString(kWrite.done));
    QCOMPARE(Rounds(0), whole);
}

// The selector keeps the focus all the time: what the page held before the flow is no edit.
void CalibrationCutTest::failedWriteTakesItsSnapshotAnew()
{
    QVERIFY(!WriteFactory(kPathLossPage).isEmpty());
    const CFlashFile factory = Flash();
    CCalibrationSession session(kPathLossPage, kProfile);
    QVERIFY(session.ShowAndWait());
    session.Select("route", "2");
    FailRound(2);
    CUser user(session, kPathLossPage, 1);
    user.Press(kRead);
    VondSim_ClearFaults();
    session.Select("route", "1");
    session.Select("route", "2");
    user.Press(kWrite);
    QCOMPARE(factory.ChangesTo(Flash()), QStringList());
}

QUORLIN_TEST_CLASS(CalibrationCutTest)
#include "CalibrationCutTest.moc"
