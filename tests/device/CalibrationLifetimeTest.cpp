// What the host may do while a calibration flow runs: hide, disable, reset, unload, turn to another
// page. Each of the four flows on both pages; the flow is held at its call to the target.
#include <QProgressBar>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QThreadPool>

#include "tests/common/TestClass.h"
#include "tests/device/CalibrationSession.h"

namespace {

constexpr char kChipCall[] = "VOND_NRf_GetChipIdName";  // the one call of a file flow

struct SHeldFlow
{
    const char *name;
    const SFlowButton &flow;
    const char *call;  // where it is held
    bool hasFile;
};

constexpr SHeldFlow kFlows[] = {
    {"Read", kRead, kReadCall, false},
    {"Write", kWrite, kWriteCall, false},
    {"Import", kImport, kChipCall, true},
    {"Export", kExport, kChipCall, true},
};

void AddFlowRows(bool haveFile = false)
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<int>("flow");
    for (const char *page : {kPathLossPage, kAptPage}) {
        for (int flow = 0; flow < int(std::size(kFlows)); ++flow) {
            if (haveFile && !kFlows[flow].hasFile)
                continue;
            const QByteArray row = QByteArray(page) + ", " + kFlows[flow].name;
            QTest::newRow(row.constData()) << QString(page) << flow;
        }
    }
}

void AddPageRows()
{
    QTest::addColumn<QString>("page");
    QTest::newRow("path loss") << kPathLossPage;
    QTest::newRow("APT") << kAptPage;
}

QByteArray Content(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QProgressBar *Bar(const CCalibrationSession &session)
{
    return session.Window()->statusBar()->findChild<QProgressBar *>();
}

// Nothing is left of a flow: no bar, no busy, the page as before it.
bool IsOver(const CCalibrationSession &session)
{
    return session.IsIdle() && session.Selector("band")->isEnabled() && !Bar(session) &&
           session.busy == QVector<bool>{true, false};
}

bool WaitForEnd(const CCalibrationSession &session)
{
    return WaitUntil([&] { return session.busy == QVector<bool>{true, false}; });
}

}  // namespace

class CalibrationLifetimeTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder.reset(new QTemporaryDir); }

    void flowGoesOnWhileTheWindowIsHidden_data() { AddFlowRows(); }
    void flowGoesOnWhileTheWindowIsHidden();
    void flowGoesOnBehindAnotherTab_data() { AddFlowRows(); }
    void flowGoesOnBehindAnotherTab();
    void selectionChangesWhileTheOtherPagesFlowRuns_data() { AddPageRows(); }
    void selectionChangesWhileTheOtherPagesFlowRuns();
    void hostCanNotEnableThePageOfARunningFlow_data() { AddFlowRows(); }
    void hostCanNotEnableThePageOfARunningFlow();
    void hostCanDisableAndEnableAnIdlePage_data() { AddPageRows(); }
    void hostCanDisableAndEnableAnIdlePage();
    void resetDuringAFlowDropsItsAnswer_data() { AddFlowRows(); }
    void resetDuringAFlowDropsItsAnswer();
    void unloadDuringAFlowLeavesWholeFiles_data() { AddFlowRows(); }
    void unloadDuringAFlowLeavesWholeFiles();
    void unloadClosesAnOpenFileDialogAndStartsNothing_data() { AddFlowRows(true); }
    void unloadClosesAnOpenFileDialogAndStartsNothing();
    void pageMayGoWhileTheBoxThatASelectionHasCausedIsOpen_data();
    void pageMayGoWhileTheBoxThatASelectionHasCausedIsOpen();
    void pageMayGoInEitherBoxOfAFailedFlow_data();
    void pageMayGoInEitherBoxOfAFailedFlow();

private:
    QString File() const { return m_folder->filePath("cal.ini"); }

    // A page with data and a file with the same; the flow under way and held.
    bool BeginFlow(CCalibrationSession &session, const SHeldFlow &held)
    {
        if (!session.ShowAndWait() || !session.Run(kRead) || !session.Run(kExport, File()))
            return false;
        m_exported = Content(File());
        // The status line must not say already what it is to say in the end.
        if (held.call != kReadCall && !session.Run(kRead))
            return false;
        session.busy.clear();
        m_callsBefore = CountCalls(held.call);
        VondSim_Hold(held.call);
        if (held.hasFile)
            AnswerFileDialog(File());
        session.Press(held.flow.button);
        return VondSim_WaitUntilHeld(held.call, 20000) != 0;
    }
    // Lets the flow go to its end, and its answer arrive.
    void EndFlow(const SHeldFlow &held)
    {
        VondSim_Release(held.call);
        QThreadPool::globalInstance()->waitForDone();
        QCoreApplication::processEvents();
        QVERIFY(CountCalls(held.call) > m_callsBefore);
    }
    // The file of before, or one with the same data, and none beside it.
    bool IsFileWhole() const
    {
        return !m_exported.isEmpty() && Content(File()) == m_exported &&
               QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden) ==
                   QStringList{"cal.ini"};
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QByteArray m_exported;
    int m_callsBefore = 0;
};

void CalibrationLifetimeTest::flowGoesOnWhileTheWindowIsHidden()
{
    QFETCH(QString, page);
    QFETCH(int, flow);
    const SHeldFlow &held = kFlows[flow];
    CCalibrationSession session(page);
    QVERIFY(BeginFlow(session, held));
    session->HidePlugin();
    QCOMPARE(session.busy, (QVector<bool>{true}));
    VondSim_Release(held.call);
    QVERIFY(WaitForEnd(session));
    QCOMPARE(session.StatusBar(), QString(held.flow.done));
    QCOMPARE(session.busy, (QVector<bool>{true, false}));
    session->ShowPlugin();
    QVERIFY(WaitUntil([&] { return IsOver(session); }));
    QVERIFY(IsFileWhole());
    // The page works on.
    QVERIFY(session.Run(kWrite));
}

void CalibrationLifetimeTest::flowGoesOnBehindAnotherTab()
{
    QFETCH(QString, page);
    QFETCH(int, flow);
    const SHeldFlow &held = kFlows[flow];
    CCalibrationSession session(page);
    QVERIFY(BeginFlow(session, held));
    const QString title = session.Page()->windowTitle();
    QVERIFY(session.ClickTab("Continuous RX"));
    QVERIFY(Bar(session));
    QVERIFY(session.ClickTab(title));
    QVERIFY(!session.Selector("band")->isEnabled());
    QVERIFY(!session.IsAnyButtonOn());
    QVERIFY(session.ClickTab("Continuous RX"));
    VondSim_Release(held.call);
    QVERIFY(WaitForEnd(session));
    QCOMPARE(session.StatusBar(), QString(held.flow.done));
    QVERIFY(!Bar(session));
    QVERIFY(session.ClickTab(title));
    QVERIFY(IsOver(session));
}

// The target may take long for one page; the window stays alive for the others.
void CalibrationLifetimeTest::selectionChangesWhileTheOtherPagesFlowRuns()
{
    QFETCH(QString, page);
    const bool isApt = page == kAptPage;
    CCalibrationSession session(page);
    QVERIFY(session.ShowAndWait());
    QVERIFY(session.Run(kRead));
    CCalibrationSession::Type(session.Cell(isApt ? 7 : 2, isApt ? "paHighPaGain" : "lna0", 0, 0),
                              "12.5");
    const QString title = session.Page()->windowTitle();
    const auto *other =
        session.Window()->findChild<QDockWidget *>(isApt ? kPathLossPage : kAptPage);
    QVERIFY(session.ClickTab(other->windowTitle()));
    VondSim_Hold(kReadCall);
    QTest::mouseClick(other->findChild<QPushButton *>(kRead.button), Qt::LeftButton);
    QVERIFY(VondSim_WaitUntilHeld(kReadCall, 20000));
    QVERIFY(session.ClickTab(title));
    const QString selector = isApt ? "aggBwRegion" : "powerMode";
    const QString shown = session.Selector(selector)->currentText();
    session.Select(selector, isApt ? "BW1" : "LPM");
    QVERIFY(session.CellText(isApt ? 7 : 2, isApt ? "paHighPaGain" : "lna0", 0, 0) != "12.50000");
    session.Select(selector, shown);
    QCOMPARE(session.CellText(isApt ? 7 : 2, isApt ? "paHighPaGain" : "lna0", 0, 0),
             QString("12.50000"));
    QVERIFY(session.IsIdle());
    QVERIFY(Bar(session));
    VondSim_Release(kReadCall);
    QVERIFY(WaitUntil([&] { return !Bar(session); }));
    QCOMPARE(session.StatusBar(), QString(kRead.done));
}

void CalibrationLifetimeTest::hostCanNotEnableThePageOfARunningFlow()
{
    QFETCH(QString, page);
    QFETCH(int, flow);
    const SHeldFlow &held = kFlows[flow];
    CCalibrationSession session(page);
    QVERIFY(BeginFlow(session, held));
    session->DisablePages();
    QVERIFY(!session.IsAnyButtonOn());
    session->EnablePages();
    QVERIFY(!session.IsAnyButtonOn());
    QVERIFY(!session.Selector("band")->isEnabled());
    QVERIFY(Bar(session));
    VondSim_Release(held.call);
    QVERIFY(WaitForEnd(session));
    QCOMPARE(session.StatusBar(), QString(held.flow.done));
    QVERIFY(IsOver(session));
}

void CalibrationLifetimeTest::hostCanDisableAndEnableAnIdlePage()
{
    QFETCH(QString, page);
    CCalibrationSession session(page);
    QVERIFY(session.ShowAndWait());
    session->DisablePages();
    QVERIFY(!session.IsAnyButtonOn());
    QVERIFY(session.Selector("band")->isEnabled());
    session->EnablePages();
    QVERIFY(session.IsIdle());
    QCOMPARE(session.busy, QVector<bool>());
    QVERIFY(session.Run(kRead));
}

void CalibrationLifetimeTest::resetDuringAFlowDropsItsAnswer()
{
    QFETCH(QString, page);
    QFETCH(int, flow);
    const SHeldFlow &held = kFlows[flow];
    CCalibrationSession session(page);
    QVERIFY(BeginFlow(session, held));
    CBoxWatcher boxes;
    session->ResetPlugin();
    QVERIFY(!session.Page());
    QVERIFY(!Bar(session));
    QCOMPARE(session.busy, (QVector<bool>{true}));  // the target still works
    QVERIFY(IsFileWhole());
    EndFlow(held);
    QVERIFY(WaitUntil([&] { return session.busy.size() == 2; }));
    QCOMPARE(session.busy, (QVector<bool>{true, false}));
    QVERIFY(session.StatusBar() != held.flow.done);
    QVERIFY(IsFileWhole());
    QCOMPARE(boxes.Seen().size(), 0);

    session->HidePlugin();
    QVERIFY(session.ShowAndWait());
    session.busy.clear();
    QVERIFY(session.IsIdle());
    QVERIFY(session.Run(kImport, File()));
    QVERIFY(IsOver(session));
}

void CalibrationLifetimeTest::unloadDuringAFlowLeavesWholeFiles()
{
    QFETCH(QString, page);
    QFETCH(int, flow);
    const SHeldFlow &held = kFlows[flow];
    CCalibrationSession session(page);
    QVERIFY(BeginFlow(session, held));
    session.Unload();
    QVERIFY(!session.Window());
    QVERIFY(IsFileWhole());
    EndFlow(held);
    QVERIFY(IsFileWhole());
    QCOMPARE(session.busy, (QVector<bool>{true}));
}

void CalibrationLifetimeTest::unloadClosesAnOpenFileDialogAndStartsNothing()
{
    QFETCH(QString, page);
    QFETCH(int, flow);
    CCalibrationSession session(page);
    QVERIFY(session.ShowAndWait() && session.Run(kRead));
    const int callsBefore = CountCalls(kChipCall);
    bool isSeen = false;
    AnswerFileDialog(File(), [&](QFileDialog *) {
        isSeen = true;
        session.Unload();
    });
    session.Press(kFlows[flow].flow.button);
    QVERIFY(isSeen);
    QThreadPool::globalInstance()->waitForDone();
    QCOMPARE(CountCalls(kChipCall), callsBefore);
    QVERIFY(!QFile::exists(File()));
    QVERIFY(!QApplication::activeModalWidget());
}

void CalibrationLifetimeTest::pageMayGoWhileTheBoxThatASelectionHasCausedIsOpen_data()
{
    QTest::addColumn<bool>("isUnload");
    QTest::newRow("reset") << false;
    QTest::newRow("unload") << true;
}

void CalibrationLifetimeTest::pageMayGoWhileTheBoxThatASelectionHasCausedIsOpen()
{
    QFETCH(bool, isUnload);
    CCalibrationSession session(kPathLossPage);
    CBoxWatcher boxes;
    VondSim_AddFault(R"({"function": "VOND_MMRf_GetRouteConfigV7_r", "kind": "fail"})");
    QVERIFY(session.ShowAndWait());  // without routes, and with a box for each page that needs them
    const int before = boxes.Seen().size();
    bool isInSlot = false;
    boxes.onBox = [&] {
        QVERIFY(!isInSlot);  // the selector's own code must not find itself gone
        if (isUnload)
            session.Unload();
        else
            session->ResetPlugin();
    };
    isInSlot = true;
    session.Select("powerMode", "LPM");
    isInSlot = false;
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == before + 1; }));
    QCOMPARE(boxes.Seen().last().title, QString("Error"));
    QVERIFY2(boxes.Seen().last().text.contains("Get gain lpm info failed"),
             qPrintable(boxes.Seen().last().text));
    QCoreApplication::processEvents();
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(isUnload ? !session.Window()
                     : session.Window()->findChildren<QDockWidget *>().isEmpty());
}

void CalibrationLifetimeTest::pageMayGoInEitherBoxOfAFailedFlow_data()
{
    QTest::addColumn<int>("box");
    QTest::addColumn<bool>("isUnload");
    QTest::newRow("result, reset") << 1 << false;
    QTest::newRow("result, unload") << 1 << true;
    QTest::newRow("left out, reset") << 2 << false;
    QTest::newRow("left out, unload") << 2 << true;
}

void CalibrationLifetimeTest::pageMayGoInEitherBoxOfAFailedFlow()
{
    QFETCH(int, box);
    QFETCH(bool, isUnload);
    CCalibrationSession session(kPathLossPage);
    QVERIFY(session.ShowAndWait());
    // The first type 1 row is of route 80, and no round comes in.
    VondSim_AddFault(QString(R"({"function": "%1", "kind": "bytes", "offset": 6, "hex": "5000"})")
                         .arg(kBlockCall)
                         .toUtf8());
    VondSim_AddFault(
        QString(R"({"function": "%1", "kind": "fail", "result": 4})").arg(kReadCall).toUtf8());
    CBoxWatcher boxes;
    boxes.onBox = [&] {
        if (boxes.Seen().size() != box)
            return;
        if (isUnload)
            session.Unload();
        else
            session->ResetPlugin();
    };
    session.Press(kRead.button);
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == box; }));
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
    QCOMPARE(boxes.Seen().size(), box);  // no further one of a page that is gone
    QCOMPARE(boxes.Seen()[0].title, QString(kRead.failed));
    if (box == 2)
        QCOMPARE(boxes.Seen()[1].title, QString("Read data from target"));
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(isUnload ? !session.Window() : !session.Page());
}

QUORLIN_TEST_CLASS(CalibrationLifetimeTest)
#include "CalibrationLifetimeTest.moc"
