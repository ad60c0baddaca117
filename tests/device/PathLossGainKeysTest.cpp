// Gain-by-gain losses on their way through an INI file: every cell that the page shows has a key
// that agrees with the cell's captions, on a DUT whose gains are not those of its mirror image.
#include <QMap>
#include <QTemporaryDir>

#include "tests/common/TestClass.h"
#include "tests/device/CalibrationSession.h"

namespace {

constexpr int kGainMain = 6;
constexpr int kGainDiv = 7;
constexpr int kGains = 3;

// G0: path 0 at g0 may run with path 1 at g1, not the other way round. G1: path 0 at g2 with path 1
// at g0. G2: nothing runs together, and no path alone.
const char kProfile[] = R"({"name": "lopsided", "base": "handset", "gain": {
    "hpm": {"t1": ["100", "010", "000", "000", "000", "000", "001"],
            "t2": ["010 001 000", "000 000 100", "000 000 000", "000 000 000", "000 000 000",
                   "000 000 000", "000 000 001"]},
    "lpm": {"t1": ["001", "000", "000", "000", "000", "000", "001"],
            "t2": ["001 000 000", "000 000 000", "000 100 000", "000 000 000", "000 000 000",
                   "000 000 000", "000 000 001"]}}})";

const QStringList kModes = {"HPM", "LPM"};
const QStringList kPaths = {"0", "1"};
const QStringList kBigGains = {"G0", "G1", "G2"};

struct SCell
{
    QString mode;
    QString path;
    QString bigGain;
    int group;
    int row;
    int column;
};

void ForEachSelection(
    CCalibrationSession &session,
    const std::function<void(const QString &, const QString &, const QString &)> &visit)
{
    for (const QString &mode : kModes) {
        session.Select("powerMode", mode);
        for (const QString &path : kPaths) {
            session.Select("path", path);
            for (const QString &bigGain : kBigGains) {
                session.Select("type2GainModeIdx", bigGain);
                visit(mode, path, bigGain);
            }
        }
    }
}

void ForEachCell(CCalibrationSession &session, const std::function<void(const SCell &)> &visit)
{
    ForEachSelection(session, [&](const QString &mode, const QString &path, const QString &gain) {
        for (int group : {kGainMain, kGainDiv}) {
            for (int row = 0; row < kGains; ++row) {
                for (int column = 0; column < kGains; ++column)
                    visit({mode, path, gain, group, row, column});
            }
        }
    });
}

// "g2" of the caption "g2,path1", which names the other path than this one otherwise.
QString GainOf(const QTableWidgetItem *caption, const QString &path)
{
    return caption && caption->text().endsWith("," + path) ? caption->text().section(',', 0, 0)
                                                           : QString("no caption");
}

// The value of a key at the first frequency.
QString FirstValue(const QString &text, const QString &section, const QString &key)
{
    const int begin = text.indexOf("[" + section + "]");
    const int end = text.indexOf("\n[", begin + 1);
    for (const QString &line : text.mid(begin, end - begin).split('\n')) {
        if (begin >= 0 && line.startsWith(key + " = "))
            return line.mid(key.size() + 3).section(',', 0, 0);
    }
    return "none";
}

}  // namespace

class PathLossGainKeysTest : public QObject
{
    Q_OBJECT

private slots:
    void editsOfEveryGainComeBackThroughAFileUnderTheKeysOfTheirCaptions();
};

void PathLossGainKeysTest::editsOfEveryGainComeBackThroughAFileUnderTheKeysOfTheirCaptions()
{
    QTemporaryDir folder;
    const QString file = folder.filePath("gains.ini");
    CCalibrationSession session(kPathLossPage, kProfile);
    QVERIFY(session.ShowAndWait());
    QVERIFY(session.Run(kRead));
    session.Select("band", "n78");
    session.Select("routeType", "Type2");

    QMap<QString, QString> keys;  // section and key, with the text that was typed
    QStringList typed;
    int number = 0;
    ForEachCell(session, [&](const SCell &cell) {
        const QString text = QString::number(++number * 0.0625, 'f', 5);
        session.Type(cell.group, "gain0", cell.row, cell.column, text);
        typed.append(text);
        const QTableWidget *table = session.Table(cell.group, "gain0");
        const QString section =
            cell.group == kGainMain ? "NR n78 Route NCCA0 RX loss" : "NR n78 Route NCCA0 RXD loss";
        const QString key = QString("RX srx path%1 gbg loss for %2 %3,%4,%5")
                                .arg(cell.path, cell.mode.toLower(), cell.bigGain,
                                     GainOf(table->verticalHeaderItem(cell.row), "path1"),
                                     GainOf(table->horizontalHeaderItem(cell.column), "path0"));
        keys.insert(section + "|" + key, text);
    });
    QCOMPARE(keys.size(), number);
    QVERIFY(session.Run(kExport, file));
    QFile written(file);
    QVERIFY(written.open(QIODevice::ReadOnly));
    const QString bytes = QString::fromUtf8(written.readAll());
    for (auto key = keys.cbegin(); key != keys.cend(); ++key)
        QVERIFY2(
            FirstValue(bytes, key.key().section('|', 0, 0), key.key().section('|', 1)) ==
                key.value(),
            qPrintable(key.key() + " is " +
                       FirstValue(bytes, key.key().section('|', 0, 0), key.key().section('|', 1)) +
                       ", not " + key.value()));

    // The DUT's own again, and then the file's.
    QVERIFY(session.Run(kRead));
    QStringList shown;
    const auto look = [&](const SCell &cell) {
        shown.append(session.CellText(cell.group, "gain0", cell.row, cell.column));
    };
    ForEachCell(session, look);
    QVERIFY(shown != typed);
    QVERIFY(session.Run(kImport, file));
    shown.clear();
    ForEachCell(session, look);
    QCOMPARE(shown, typed);
}

QUORLIN_TEST_CLASS(PathLossGainKeysTest)
#include "PathLossGainKeysTest.moc"
