// Read, Write, Import and Export of both calibration pages, at their buttons.
#include <QProgressBar>
#include <QTemporaryDir>

#include "tests/common/TestClass.h"
#include "tests/device/CalibrationSession.h"

namespace {

void AddPageRows()
{
    QTest::addColumn<QString>("page");
    QTest::newRow("path loss") << kPathLossPage;
    QTest::newRow("APT") << kAptPage;
}

QByteArray FailFault(const char *function)
{
    return QByteArray(R"({"function": ")") + function + R"(", "kind": "fail", "result": 7})";
}

// Turns of the event loop while a call is held, counted by a timer.
int TurnsWhile(const std::function<bool()> &condition)
{
    int turns = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&turns] { ++turns; });
    timer.start(0);
    WaitUntil([&] { return turns > 20 && condition(); });
    return turns;
}

}  // namespace

class CalibrationFlowTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder.reset(new QTemporaryDir); }

    // First: the core of this process has read nothing yet.
    void writeBeforeAnyReadSendsNothing_data() { AddPageRows(); }
    void writeBeforeAnyReadSendsNothing();
    void writeAfterAResetSendsNothing_data() { AddPageRows(); }
    void writeAfterAResetSendsNothing();
    void readDisablesThePageAndShowsThatItIsBusy_data() { AddPageRows(); }
    void readDisablesThePageAndShowsThatItIsBusy();
    void writeAndFileFlowsShowTheirStatusLines_data() { AddPageRows(); }
    void writeAndFileFlowsShowTheirStatusLines();
    void failedReadSaysSoInTheStatusLineAndInABox_data() { AddPageRows(); }
    void failedReadSaysSoInTheStatusLineAndInABox();
    void failedWriteSaysSoInTheStatusLineAndInABox_data() { AddPageRows(); }
    void failedWriteSaysSoInTheStatusLineAndInABox();
    void failedImportLeavesWhatIsShown_data() { AddPageRows(); }
    void failedImportLeavesWhatIsShown();
    void failedExportSaysSoInTheStatusLineAndInABox_data() { AddPageRows(); }
    void failedExportSaysSoInTheStatusLineAndInABox();
    void cancelledImportShowsABoxAndStartsNothing_data() { AddPageRows(); }
    void cancelledImportShowsABoxAndStartsNothing();
    void cancelledExportShowsABoxAndStartsNothing_data() { AddPageRows(); }
    void cancelledExportShowsABoxAndStartsNothing();
    void dialogsHaveTheirCaptionsAndFilters_data() { AddPageRows(); }
    void dialogsHaveTheirCaptionsAndFilters();
    void unchangedWriteLeavesTheFlashAsItWas_data() { AddPageRows(); }
    void unchangedWriteLeavesTheFlashAsItWas();
    void secondReadDoesNotDoubleTheAnswers_data() { AddPageRows(); }
    void secondReadDoesNotDoubleTheAnswers();
    void resetWhileTheFileDialogIsOpen_data() { AddPageRows(); }
    void resetWhileTheFileDialogIsOpen();
    void resetWhileTheFailureBoxIsOpen_data() { AddPageRows(); }
    void resetWhileTheFailureBoxIsOpen();
    void pageFitsItsWindow_data() { AddPageRows(); }
    void pageFitsItsWindow();

private:
    QString File() const { return m_folder->filePath("cal.ini"); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void CalibrationFlowTest::readDisablesThePageAndShowsThatItIsBusy()
{
    QFETCH(QString, page);
    CCalibrationSession session(page);
    QVERIFY(session.ShowAndWait());
    QVERIFY(session.IsIdle());
    const QSize window = session.Window()->size();
    const QPoint button = session.Find(kRead.button)->mapTo(session.Window(), QPoint(0, 0));
    VondSim_Hold(kReadCall);
    session.Press(kRead.button);
    QVERIFY(!session.IsAnyButtonOn());
    QVERIFY(!session.Selector("band")->isEnabled());
    QCOMPARE(session.busy, (QVector<bool>{true}));
    QVERIFY(VondSim_WaitUntilHeld(kReadCall, 20000));
    auto *bar = session.Window()->statusBar()->findChild<QProgressBar *>();
    QVERIFY(bar && bar->isVisible());
    QVERIFY(WaitUntil(
        [&] { return session.StatusBar().startsWith("Read data from target: round 1, "); }));
    QVERIFY(session.StatusBar().endsWith(" routes"));
    QVERIFY(bar->maximum() > 0);
    QVERIFY(TurnsWhile([] { return true; }) > 20);
    QVERIFY(!session.IsAnyButtonOn());
    // Nothing moves for the bar.
    QCOMPARE(session.Window()->size(), window);
    QCOMPARE(session.Find(kRead.button)->mapTo(session.Window(), QPoint(0, 0)), button);
    VondSim_Release(kReadCall);
    QVERIFY(session.WaitForStatus(kRead.done));
    QVERIFY(session.IsIdle());
    QVERIFY(session.Selector("band")->isEnabled());
    QVERIFY(!session.Window()->statusBar()->findChild<QProgressBar *>());
    QCOMPARE(session.busy, (QVector<bool>{true, false}));
}

void CalibrationFlowTest::writeAndFileFlowsShowTheirStatusLines()
{
    QFETCH(QString, page);
    CCalibrationSession session(page);
    QVERIFY(session.ShowAndWait());
    CBoxWatcher boxes;
    QVERIFY(session.Run(kRead));
    QVERIFY(session.Run(kWrite));
    QVERIFY(CountCalls(kWriteCall) > 0);
    QVERIFY(session.Run(kExport, File()));
    QVERIFY(QFileInfo(File()).size() > 0);
    QVERIFY(session.Run(kImport, File()));
    QCOMPARE(session.busy, (QVector<bool>{true, false, true, false, true, false, true, false}));
    QCOMPARE(boxes.Seen().size(), 0);
}

void CalibrationFlowTest::failedReadSaysSoInTheStatusLineAndInABox()
{
    QFETCH(QString, page);
    CCalibrationSession session(page);
    QVERIFY(session.ShowAndWait());
    VondSim_AddFault(FailFault(kBlockCall));
    CBoxWatcher boxes;
    session.Press(kRead.button);
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCOMPARE(session.StatusBar(), QString("Read data from target failed."));
    QCOMPARE(boxes.Seen()[0].title, QString("Read data from target failed"));
    QVERIFY(boxes.Seen()[0].text.contains("Vond command execute failed."));
    QVERIFY(!boxes.Seen()[0].informative.isEmpty());
    QVERIFY(WaitUntil([&] { return session.IsIdle(); }));
    QCOMPARE(session.busy, (QVector<bool>{true, false}));
    VondSim_ClearFaults();
    QVERIFY(session.Run(kRead));
}

void CalibrationFlowTest::failedWriteSaysSoInTheStatusLineAndInABox()
{
    QFETCH(QString, page);
    CCalibrationSession session(page);
    QVERIFY(session.ShowAndWait());
    QVERIFY(session.Run(kRead));
    VondSim_AddFault(FailFault(kWriteCall));
    CBoxWatcher boxes;
    session.Press(kWrite.button);
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCOMPARE(session.StatusBar(), QString("Write data to target failed."));
    QCOMPARE(boxes.Seen()[0].title, QString("Write data to target failed"));
    QVERIFY(WaitUntil([&] { return session.IsIdle(); }));
    VondSim_ClearFaults();
    QVERIFY(session.Run(kWrite));
}

void CalibrationFlowTest::failedImportLeavesWhatIsShown()
{
    QFETCH(QString, page);
    CCalibrationSession session(page);
    QVERIFY(session.ShowAndWait());
    QVERIFY(session.Run(kRead));
    QStringList shown;
    for (const QAbstractSpinBox *cell : session.Page()->findChildren<QAbstractSpinBox *>())
        shown.append(cell->text());
    QFile file(File());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[Other]\r\nkey = 1\r\n");
    file.close();
    CBoxWatcher boxes;
    AnswerFileDialog(File());
    session.Press(kImport.button);
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCOMPARE(session.StatusBar(), QString("Import data from file failed."));
    QCOMPARE(boxes.Seen()[0].title, QString("Import data from file failed"));
    QStringList after;
    for (const QAbstractSpinBox *cell : session.Page()->findChildren<QAbstractSpinBox *>())
        after.append(cell->text());
    QCOMPARE(after, shown);
    QVERIFY(WaitUntil([&] { return session.IsIdle(); }));
}

void CalibrationFlowTest::failedExportSaysSoInTheStatusLineAndInABox()
{
    QFETCH(QString, page);
    CCalibrationSession session(page);
    QVERIFY(session.ShowAndWait());
    QVERIFY(session.Run(kRead));
    CBoxWatcher boxes;
    AnswerFileDialog(m_folder->filePath("missing/cal.ini"));
    session.Press(kExport.button);
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCOMPARE(session.StatusBar(), QString("Export data to file failed."));
    QCOMPARE(boxes.Seen()[0].title, QString("Export data to file failed"));
    QVERIFY(WaitUntil([&] { return session.IsIdle(); }));
}

void CalibrationFlowTest::writeBeforeAnyReadSendsNothing()
{
    QFETCH(QString, page);
    CCalibrationSession session(page);
    QVERIFY(session.ShowAndWait());
    CBoxWatcher boxes;
    session.Press(kWrite.button);
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCOMPARE(boxes.Seen()[0].title, QString("Write data to target failed"));
    QVERIFY(boxes.Seen()[0].text.contains("Operation does not execute yet."));
    QCOMPARE(CountCalls(kWriteCall), 0);
}

// What was read of one DUT is not for the next.
void CalibrationFlowTest::writeAfterAResetSendsNothing()
{
    QFETCH(QString, page);
    CCalibrationSession session(page);
    QVERIFY(session.ShowAndWait());
    QVERIFY(session.Run(kRead));
    session->ResetPlugin();
    session->HidePlugin();
    QVERIFY(session.ShowAndWait());
    CBoxWatcher boxes;
    session.busy.clear();
    session.Press(kWrite.button);
    QVERIFY(WaitUntil([&] { return session.busy == QVector<bool>{true, false}; }));
    QCOMPARE(CountCalls(kWriteCall), 0);
}

void CalibrationFlowTest::cancelledImportShowsABoxAndStartsNothing()
{
    QFETCH(QString, page);
    CCalibrationSession session(page);
    QVERIFY(session.ShowAndWait());
    const QString status = session.StatusBar();
    CBoxWatcher boxes;
    AnswerFileDialog({});
    session.Press(kImport.button);
    QCOMPARE(boxes.Seen().size(), 1);
    QCOMPARE(boxes.Seen()[0].title, QString("Open file"));
    QVERIFY(boxes.Seen()[0].text.contains("Please choose the Cal/Ini file..."));
    QCOMPARE(boxes.Seen()[0].icon, int(QMessageBox::Warning));
    QVERIFY(session.IsIdle());
    QCOMPARE(session.busy, QVector<bool>());
    QCOMPARE(session.StatusBar(), status);
}

void CalibrationFlowTest::cancelledExportShowsABoxAndStartsNothing()
{
    QFETCH(QString, page);
    CCalibrationSession session(page);
    QVERIFY(session.ShowAndWait());
    CBoxWatcher boxes;
    AnswerFileDialog({});
    session.Press(kExport.button);
    QCOMPARE(boxes.Seen().size(), 1);
    QCOMPARE(boxes.Seen()[0].title, QString("Save file"));
    QVERIFY(boxes.Seen()[0].text.contains("Please choose the Cal/Ini file..."));
    QVERIFY(session.IsIdle());
    QCOMPARE(session.busy, QVector<bool>());
}

void CalibrationFlowTest::dialogsHaveTheirCaptionsAndFilters()
{
    QFETCH(QString, page);
    CCalibrationSession session(page);
    QVERIFY(session.ShowAndWait());
    CBoxWatcher boxes;
    QStringList seen;
    const auto look = [&](QFileDialog *dialog) {
        seen << dialog->windowTitle() << dialog->nameFilters();
    };
    AnswerFileDialog({}, look);
    session.Press(kImport.button);
    AnswerFileDialog({}, look);
    session.Press(kExport.button);
    QCOMPARE(seen,
             (QStringList{"Please choose the file to open", "INI files (*.ini)", "All files (*)",
                          "Please choose the file to save", "INI files (*.ini)", "All files (*)"}));
}

void CalibrationFlowTest::unchangedWriteLeavesTheFlashAsItWas()
{
    QFETCH(QString, page);
    CCalibrationSession session(page);
    QVERIFY(session.ShowAndWait());
    QVERIFY(session.Run(kRead));
    const QVector<SJournalCall> before = JournalOf(kReadCall);
    QVERIFY(session.Run(kWrite));
    QVERIFY(session.Run(kRead));
    const QVector<SJournalCall> after = JournalOf(kReadCall);
    QVERIFY(!before.isEmpty());
    QCOMPARE(after.size(), 2 * before.size());
    for (int i = 0; i < before.size(); ++i)
        QVERIFY2(before[i].answer == after[before.size() + i].answer,
                 qPrintable(QString::number(i)));
}

void CalibrationFlowTest::secondReadDoesNotDoubleTheAnswers()
{
    QFETCH(QString, page);
    CCalibrationSession session(page);
    QVERIFY(session.ShowAndWait());
    QVERIFY(session.Run(kRead));
    session.Press(kRead.button);
    QVERIFY(WaitUntil([&] { return session.busy.size() == 4; }));
    QCoreApplication::processEvents();
    QCOMPARE(session.busy, (QVector<bool>{true, false, true, false}));
}

void CalibrationFlowTest::resetWhileTheFileDialogIsOpen()
{
    QFETCH(QString, page);
    CCalibrationSession session(page);
    QVERIFY(session.ShowAndWait());
    CBoxWatcher boxes;
    AnswerFileDialog(File(), [&](QFileDialog *) { session->ResetPlugin(); });
    session.Press(kExport.button);
    QVERIFY(!session.Page());
    QCOMPARE(boxes.Seen().size(), 0);
    QCOMPARE(session.busy, QVector<bool>());
    QVERIFY(!QFileInfo::exists(File()));
}

void CalibrationFlowTest::resetWhileTheFailureBoxIsOpen()
{
    QFETCH(QString, page);
    CCalibrationSession session(page);
    QVERIFY(session.ShowAndWait());
    VondSim_AddFault(FailFault(kBlockCall));
    CBoxWatcher boxes;
    boxes.onBox = [&] { session->ResetPlugin(); };
    session.Press(kRead.button);
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCoreApplication::processEvents();
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(!session.Page());
}

// Beside the other pages, each of which is no larger than the window opens.
void CalibrationFlowTest::pageFitsItsWindow()
{
    QFETCH(QString, page);
    CCalibrationSession session(page);
    QVERIFY(session.ShowAndWait());
    const int above = session.Page()->mapTo(session.Window(), QPoint(0, 0)).y();
    const int below = session.Window()->statusBar()->height();
    const QSize least = session.Page()->minimumSizeHint();
    QVERIFY2(least.width() <= 1004, qPrintable(QString::number(least.width())));
    QVERIFY2(least.height() + above + below <= 769, qPrintable(QString::number(least.height())));
}

QUORLIN_TEST_CLASS(CalibrationFlowTest)
#include "CalibrationFlowTest.moc"
