// What a flow of a calibration page says beside its result, in one box at its end.
#include <QTemporaryDir>

#include "tests/common/TestClass.h"
#include "tests/device/CalibrationSession.h"

namespace {

QByteArray BytesFault(const char *function, int offset, const char *hex)
{
    return QString(R"({"function": "%1", "kind": "bytes", "offset": %2, "hex": "%3"})")
        .arg(function)
        .arg(offset)
        .arg(hex)
        .toUtf8();
}

}  // namespace

class CalibrationRemarksTest : public QObject
{
    Q_OBJECT

private slots:
    void readNamesTheRoutesThatItLeftOut();
    void readNamesARouteWhoseTotalItsRegionsDoNotShare();
    void writeNamesEditsThatNoReadHasFilled();
    void visitedPageWithoutEditsIsNotNamed();
    void importNamesValuesThatAreNoNumbersOrBeyondThePage();
    void importWithManyOddValuesNamesTheFirstTen();
    void importNamesSectionsOfAnotherRoute();
    void importNamesFrequenciesBeyondThoseOfTheirRoute_data();
    void importNamesFrequenciesBeyondThoseOfTheirRoute();
    void ownExportGivesNoRemark_data();
    void ownExportGivesNoRemark();
    void dutThatNamesTheCountFirstIsReadAsWell_data();
    void dutThatNamesTheCountFirstIsReadAsWell();
    void resetInTheBoxEndsWithThePageGone();

private:
    // Presses a flow's button and waits until it has ended and its boxes have closed.
    QVector<SSeenBox> Run(CCalibrationSession &session, const SFlowButton &flow,
                          const QString &file = {})
    {
        CBoxWatcher boxes;
        if (!file.isEmpty())
            AnswerFileDialog(file);
        session.busy.clear();
        session.Press(flow.button);
        WaitUntil([&] { return session.busy == QVector<bool>({true, false}); });
        QCoreApplication::processEvents();
        return boxes.Seen();
    }
};

void CalibrationRemarksTest::readNamesTheRoutesThatItLeftOut()
{
    CCalibrationSession session(kPathLossPage);
    QVERIFY(session.ShowAndWait());
    VondSim_AddFault(BytesFault(kBlockCall, 6, "5000"));    // the first type 1 row: of route 80
    VondSim_AddFault(BytesFault(kBlockCall, 408, "0400"));  // type 2 route 101: four blocks
    const QVector<SSeenBox> boxes = Run(session, kRead);
    QCOMPARE(session.StatusBar(), QString(kRead.done));
    QCOMPARE(boxes.size(), 1);
    QCOMPARE(boxes[0].title, QString("Read data from target"));
    QCOMPARE(boxes[0].icon, int(QMessageBox::Warning));
    const QStringList lines = boxes[0].text.split('\n');
    QVERIFY2(lines[0].startsWith("RX PathLoss: the Read left out 2"), qPrintable(lines[0]));
    QVERIFY2(lines[1].startsWith("T1 route 1: "), qPrintable(lines[1]));
    QVERIFY2(lines[2].startsWith("T2 route 101: it has 4 blocks"), qPrintable(lines[2]));
    QCOMPARE(lines.size(), 3);
    VondSim_ClearFaults();
    QVERIFY(session.Run(kRead));
}

void CalibrationRemarksTest::readNamesARouteWhoseTotalItsRegionsDoNotShare()
{
    CCalibrationSession session(kAptPage);
    QVERIFY(session.ShowAndWait());
    VondSim_AddFault(BytesFault(kBlockCall, 808, "01000000000000000000"));  // of TX route 1
    const QVector<SSeenBox> boxes = Run(session, kRead);
    QCOMPARE(session.StatusBar(), QString(kRead.done));
    QCOMPARE(boxes.size(), 1);
    QVERIFY2(boxes[0].text.contains("TX route 1 BW0, TX route 1 BW1"), qPrintable(boxes[0].text));
}

void CalibrationRemarksTest::writeNamesEditsThatNoReadHasFilled()
{
    CCalibrationSession session(kPathLossPage);
    QVERIFY(session.ShowAndWait());
    VondSim_AddFault(BytesFault(kBlockCall, 6, "5000"));
    QCOMPARE(Run(session, kRead).size(), 1);
    VondSim_ClearFaults();
    session.Type(2, "lna0", 0, 0, "3");
    const QVector<SSeenBox> boxes = Run(session, kWrite);
    QCOMPARE(session.StatusBar(), QString(kWrite.done));
    QCOMPARE(boxes.size(), 1);
    QCOMPARE(boxes[0].title, QString("Write data to target"));
    QVERIFY2(boxes[0].text.contains("T1 route 1: it was edited"), qPrintable(boxes[0].text));
    QCOMPARE(session.CellText(2, "lna0", 0, 0), QString("3.00000"));
    QVERIFY(session.Run(kRead));
    QVERIFY(session.Run(kWrite));
}

void CalibrationRemarksTest::visitedPageWithoutEditsIsNotNamed()
{
    for (const char *page : {kPathLossPage, kAptPage}) {
        CCalibrationSession session(page);
        QVERIFY(session.ShowAndWait());
        session.Select("band", "n3");
        session.Select("band", "n1");
        const QVector<SSeenBox> boxes = Run(session, kWrite);
        QCOMPARE(boxes.size(), 1);
        QCOMPARE(boxes[0].title, QString(kWrite.failed));
    }
}

void CalibrationRemarksTest::importNamesValuesThatAreNoNumbersOrBeyondThePage()
{
    QTemporaryDir folder;
    CCalibrationSession session(kPathLossPage);
    QVERIFY(session.ShowAndWait());
    QVERIFY(session.Run(kRead));
    const QString path = folder.filePath("cal.ini");
    QVERIFY(session.Run(kExport, path));
    QVERIFY(session.Run(kImport, path));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QByteArray text = file.readAll();
    const int value = text.indexOf('=', text.indexOf("RX loss hpm G0,g0")) + 2;
    const int end = text.indexOf(',', text.indexOf(',', value) + 1);
    text.replace(value, end - value, "abc,99.0");
    file.seek(0);
    file.resize(0);
    file.write(text);
    file.close();
    const QVector<SSeenBox> boxes = Run(session, kImport, path);
    QCOMPARE(session.StatusBar(), QString(kImport.done));
    QCOMPARE(boxes.size(), 1);
    QCOMPARE(boxes[0].title, QString("Import data from file"));
    const QStringList lines = boxes[0].text.split('\n');
    QCOMPARE(lines.size(), 3);
    QVERIFY2(lines[0].startsWith("RX PathLoss: 2 values"), qPrintable(lines[0]));
    QCOMPARE(lines[1], QString("[NR n1 RX loss] RX loss hpm G0,g0: \"abc\" in the file, 0.00000 in "
                               "memory, 0.00000 on the page"));
    QCOMPARE(lines[2], QString("[NR n1 RX loss] RX loss hpm G0,g0: \"99.0\" in the file, 99.00000 "
                               "in memory, 30.00000 on the page"));
    QCOMPARE(session.CellText(2, "lna0", 0, 0), QString("0.00000"));
    QCOMPARE(session.CellText(2, "lna0", 0, 1), QString("30.00000"));
    QVERIFY(Run(session, kWrite).isEmpty());
    const int loss =
        int(offsetof(SMMSetCalDataReqV7, type1Block) + offsetof(SMMType1PathlossBlockV7, loss) +
            sizeof(SMMLossPair) * kVondType1LossPairs + offsetof(SMMLossPair, hpm));
    QCOMPARE(int(WordAt(Rounds(0).first(), loss)), 99 * 32);
}

void CalibrationRemarksTest::importWithManyOddValuesNamesTheFirstTen()
{
    QTemporaryDir folder;
    CCalibrationSession session(kAptPage);
    QVERIFY(session.ShowAndWait());
    QVERIFY(session.Run(kRead));
    const QString path = folder.filePath("cal.ini");
    QVERIFY(session.Run(kExport, path));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QByteArray text = file.readAll();
    const int value = text.indexOf('=', text.indexOf("Pa mode map")) + 2;
    const int end = text.indexOf("\r\n", value);
    text.replace(value, end - value, "3,0,-1,x,7,7,7,7,7,7");
    const int level = text.indexOf('=', text.indexOf("256QAM usage")) + 2;
    text.replace(level, text.indexOf("\r\n", level) - level, "2,0,two,3,3");
    file.seek(0);
    file.resize(0);
    file.write(text);
    file.close();
    const QVector<SSeenBox> boxes = Run(session, kImport, path);
    QCOMPARE(session.StatusBar(), QString(kImport.done));
    QCOMPARE(boxes.size(), 1);
    const QStringList lines = boxes[0].text.split('\n');
    QCOMPARE(lines.size(), 11);
    QVERIFY2(lines[0].startsWith("APT Profile: 13 values"), qPrintable(lines[0]));
    QVERIFY2(lines[0].endsWith("The first 10:"), qPrintable(lines[0]));
    QCOMPARE(lines[1], QString("[NR n1 BW0 TPC] Pa mode map: \"3\" in the file, 3 in memory, "
                               "nothing on the page"));
}

void CalibrationRemarksTest::importNamesSectionsOfAnotherRoute()
{
    QTemporaryDir folder;
    CCalibrationSession session(kPathLossPage);
    QVERIFY(session.ShowAndWait());
    QVERIFY(session.Run(kRead));
    const QString path = folder.filePath("cal.ini");
    QVERIFY(session.Run(kExport, path));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QByteArray text = file.readAll();
    const int route = text.indexOf('=', text.indexOf("Comp Route")) + 2;
    text.replace(route, text.indexOf("\r\n", route) - route, "12");
    const int value = text.indexOf('=', text.indexOf("RX loss hpm G0,g0")) + 2;
    text.replace(value, text.indexOf(',', value) - value, "99.0");
    file.seek(0);
    file.resize(0);
    file.write(text);
    file.close();
    const QVector<SSeenBox> boxes = Run(session, kImport, path);
    QCOMPARE(session.StatusBar(), QString(kImport.done));
    QCOMPARE(boxes.size(), 1);
    QCOMPARE(boxes[0].title, QString("Import data from file"));
    const QStringList lines = boxes[0].text.split('\n');
    QCOMPARE(lines.size(), 5);
    QCOMPARE(lines[0],
             QString("RX PathLoss: 1 sections of the file name another route than the one "
                     "that they were loaded into."));
    QCOMPARE(lines[1], QString("[NR n1 RX loss]: loaded into T1 route 1, its Comp Route is 12"));
    QVERIFY2(lines[3].startsWith("RX PathLoss: 1 values"), qPrintable(lines[3]));
    QCOMPARE(session.CellText(2, "lna0", 0, 0), QString("30.00000"));  // by the section's name
}

void CalibrationRemarksTest::importNamesFrequenciesBeyondThoseOfTheirRoute_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QByteArray>("section");
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<QString>("limit");  // none: the route stands on n77, too
    QTest::newRow("path loss") << kPathLossPage << QByteArray("NR n1 RXD loss")
                               << QByteArray("DL Frequency(1KHz)") << "2170000";
    QTest::newRow("path loss, of two bands")
        << kPathLossPage << QByteArray("NR n78 RXD loss") << QByteArray("DL Frequency(1KHz)") << "";
    QTest::newRow("APT") << kAptPage << QByteArray("NR n1 BW0 TPC")
                         << QByteArray("Tx compensation pa gain frequency(1KHz)") << "1980000";
}

void CalibrationRemarksTest::importNamesFrequenciesBeyondThoseOfTheirRoute()
{
    QFETCH(QString, page);
    QFETCH(QByteArray, section);
    QFETCH(QByteArray, key);
    QFETCH(QString, limit);
    QTemporaryDir folder;
    CCalibrationSession session(page);
    QVERIFY(session.ShowAndWait());
    QVERIFY(session.Run(kRead));
    const QString path = folder.filePath("cal.ini");
    QVERIFY(session.Run(kExport, path));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QByteArray text = file.readAll();
    const int head = text.indexOf('[' + section + ']');
    const int value = text.indexOf('=', text.indexOf("\r\n" + key, head)) + 2;
    QVERIFY(head >= 0 && value > head);
    text.replace(value, text.indexOf(',', value) - value, "9000000");
    file.seek(0);
    file.resize(0);
    file.write(text);
    file.close();
    const QVector<SSeenBox> boxes = Run(session, kImport, path);
    QCOMPARE(session.StatusBar(), QString(kImport.done));
    QCOMPARE(boxes.size(), limit.isEmpty() ? 0 : 1);
    if (limit.isEmpty())
        return;
    QCOMPARE(boxes[0].text.split('\n').mid(1),
             QStringList(QString("[%1] %2: \"9000000\" in the file, 9000000 in memory, %3 on the "
                                 "page")
                             .arg(QString(section), QString(key), limit)));
}

void CalibrationRemarksTest::ownExportGivesNoRemark_data()
{
    QTest::addColumn<QString>("page");
    QTest::newRow("path loss") << kPathLossPage;
    QTest::newRow("APT") << kAptPage;
}

void CalibrationRemarksTest::ownExportGivesNoRemark()
{
    QFETCH(QString, page);
    QTemporaryDir folder;
    CCalibrationSession session(page);
    QVERIFY(session.ShowAndWait());
    QVERIFY(session.Run(kRead));
    const QString path = folder.filePath("cal.ini");
    QVERIFY(session.Run(kExport, path));
    QVERIFY(Run(session, kImport, path).isEmpty());
    QCOMPARE(session.StatusBar(), QString(kImport.done));
}

void CalibrationRemarksTest::dutThatNamesTheCountFirstIsReadAsWell_data()
{
    QTest::addColumn<QString>("order");
    QTest::newRow("bandwidth first") << "bandwidth first";
    QTest::newRow("count first") << "count first";
    QTest::newRow("in turn") << "in turn";
}

void CalibrationRemarksTest::dutThatNamesTheCountFirstIsReadAsWell()
{
    QFETCH(QString, order);
    CCalibrationSession session(kAptPage, QString(R"({"name": "orders", "base": "handset",
                                            "calibration": {"txEntries": "%1"}})")
                                              .arg(order));
    QVERIFY(session.ShowAndWait());
    QVERIFY(session.Run(kRead));
    QVERIFY(session.Run(kWrite));
    const QVector<SJournalCall> read = JournalOf(kReadCall);
    const QVector<QByteArray> written = Rounds(0);
    QCOMPARE(written.size(), read.size());
    for (int i = 0; i < written.size(); ++i)
        QVERIFY(read[i].answer.mid(int(offsetof(SMMGetCalDataCnfV7, txBlock))) ==
                written[i].mid(int(offsetof(SMMSetCalDataReqV7, txBlock))));
}

void CalibrationRemarksTest::resetInTheBoxEndsWithThePageGone()
{
    CCalibrationSession session(kPathLossPage);
    QVERIFY(session.ShowAndWait());
    VondSim_AddFault(BytesFault(kBlockCall, 408, "0400"));
    CBoxWatcher boxes;
    boxes.onBox = [&] { session->ResetPlugin(); };
    session.Press(kRead.button);
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCoreApplication::processEvents();
    QVERIFY(!session.Page());
}

QUORLIN_TEST_CLASS(CalibrationRemarksTest)
#include "CalibrationRemarksTest.moc"
