// The forms in a font that may stand in for theirs: one family a run of the program, at one scale.
//
//   AnyFontTest noto-sans-150      tests/fonts/noto-sans.conf, at 150 %
//
// The window opens with 1004 x 769 pixels, at 150 % of the screen as much larger. A family that is
// not installed is skipped by name.
#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <iterator>
#include <memory>

#include <QApplication>
#include <QComboBox>
#include <QFontInfo>
#include <QRegularExpression>
#include <QStatusBar>
#include <QTest>

#include "tests/common/AnswerField.h"
#include "tests/common/WaitUntil.h"
#include "tests/device/RssiSession.h"
#include "tests/layout/LayoutCheck.h"
#include "tests/layout/Pages.h"

namespace {

struct SFamily
{
    const char *file;
    const char *name;
};

constexpr SFamily kFamilies[] = {
    {"dejavu-sans", "DejaVu Sans"},
    {"liberation-sans", "Liberation Sans"},
    {"nimbus-sans", "Nimbus Sans"},
    {"noto-sans", "Noto Sans"},
};

const QSize kOpened(1004, 769);
constexpr int kRestMs = 2000;
constexpr int kManyItems = 12;  // above, the first and the last stand for all

}  // namespace

class AnyFontTest : public QObject
{
    Q_OBJECT

public:
    explicit AnyFontTest(const QString &family) : m_family(family) {}

private slots:
    void initTestCase();
    void pageShowsAllOfItsTexts_data() { NinePages(); }
    void pageShowsAllOfItsTexts();
    void pageShowsAllOfItsTextsWhateverIsChosen_data() { NinePages(); }
    void pageShowsAllOfItsTextsWhateverIsChosen();
    void pageShowsAllOfItsResults_data();
    void pageShowsAllOfItsResults();
    void cleanupTestCase() { m_session.reset(); }

private:
    // Empty for a page without faults, once its layout has come to rest.
    QString Faults(const QDockWidget *page) const;
    QStringList FaultsNow(const QDockWidget *page) const;

    const QString m_family;
    std::unique_ptr<CPluginSession> m_session;
};

void AnyFontTest::initTestCase()
{
    // The database puts the foundry behind the name of a family that has more than one.
    if (!QFontInfo(QFont("Arial")).family().startsWith(m_family))
        QSKIP(qPrintable(m_family + " is not installed."));
    m_session = std::make_unique<CPluginSession>("handset", 1, "CNrRssiDockWidgetV7");
    QVERIFY(m_session->ShowAndWait());
}

QStringList AnyFontTest::FaultsNow(const QDockWidget *page) const
{
    QStringList faults = CutTexts(page) + Overlaps(page) + PageScrollBars(page);
    faults += CutTexts(m_session->Window()->statusBar());
    const QSize size = m_session->Window()->size();
    if (size != kOpened)
        faults.prepend(QString("The window has %1 x %2").arg(size.width()).arg(size.height()));
    return faults;
}

QString AnyFontTest::Faults(const QDockWidget *page) const
{
    QCoreApplication::processEvents();
    const bool isGood = WaitUntil([&] { return FaultsNow(page).isEmpty(); }, kRestMs);
    return isGood ? QString() : FaultsNow(page).mid(0, 10).join('\n');
}

void AnyFontTest::pageShowsAllOfItsTexts()
{
    QFETCH(QString, page);
    QDockWidget *dock = RaisePage(*m_session, page);
    QVERIFY(dock);
    QCOMPARE(Faults(dock), QString());
}

void AnyFontTest::pageShowsAllOfItsTextsWhateverIsChosen()
{
    QFETCH(QString, page);
    QDockWidget *dock = RaisePage(*m_session, page);
    QVERIFY(dock);
    const QRegularExpression choices("_(request|config)_");
    for (auto *combo : dock->findChildren<QComboBox *>(choices)) {
        const int first = combo->currentIndex();
        const int step = combo->count() > kManyItems ? combo->count() - 1 : 1;
        for (int i = 0; combo->isEnabled() && i < combo->count(); i += step) {
            combo->setCurrentIndex(i);
            const QString faults = Faults(dock);
            QVERIFY2(faults.isEmpty(), qPrintable(combo->objectName() + " is " +
                                                  combo->currentText() + ":\n" + faults));
        }
        combo->setCurrentIndex(first);
    }
}

void AnyFontTest::pageShowsAllOfItsResults_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("done");
    QTest::newRow("RSSI") << "CNrRssiDockWidgetV7" << kStartButton << "Fetch RSSI done";
    QTest::newRow("gains") << "CNrRssiDockWidgetV7" << kCalculateButton << "Fetch Gain info done";
    for (const char *page : {"CNrRxPathlossDockWidgetV7", "CNrAptProfileDockWidgetV7"})
        QTest::newRow(page) << page << "m_btnUpload"
                            << "Read data from target successfully.";
}

void AnyFontTest::pageShowsAllOfItsResults()
{
    QFETCH(QString, page);
    QFETCH(QString, button);
    QFETCH(QString, done);
    QDockWidget *dock = RaisePage(*m_session, page);
    QVERIFY(dock);
    AnswerField(kRssiCall, "dlFrequency[0]", 4294967295);           // the highest of the record
    AnswerField(kRssiCall, "rows.single.row[0].rssiMain", -32768);  // and the lowest level
    AnswerField(kRssiCall, "rows.single.row[0].rssiDiv", -32768);
    QTest::mouseClick(dock->findChild<QPushButton *>(button), Qt::LeftButton);
    QVERIFY(m_session->WaitForStatus(done));
    QCOMPARE(Faults(dock), QString());
}

int main(int argc, char **argv)
{
    const QString run = argc > 1 ? argv[1] : "";
    const QString file = run.section('-', 0, -2);
    const int percent = run.section('-', -1).toInt();
    const auto *family = std::find_if(std::begin(kFamilies), std::end(kFamilies),
                                      [&](const SFamily &row) { return file == row.file; });
    if (family == std::end(kFamilies) || percent <= 0) {
        std::fprintf(stderr, "usage: AnyFontTest FONT-PERCENT, such as noto-sans-150\n");
        return 2;
    }
    qputenv("FONTCONFIG_FILE", QString(TEST_FONTS "/%1.conf").arg(file).toLocal8Bit());
    qputenv("QT_SCALE_FACTOR", QByteArray::number(percent / 100.0));
    QApplication application(argc, argv);
    AnyFontTest test(family->name);
    argv[1] = argv[0];  // QtTest has options of its own behind the run's name
    return QTest::qExec(&test, argc - 1, argv + 1);
}
#include "AnyFontTest.moc"
