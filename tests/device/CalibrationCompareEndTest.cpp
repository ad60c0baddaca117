// Compare of the calibration pages when something goes wrong: bad files, a DUT that fails, a host that hides,
// resets or unloads the tool.
#include <QAction>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QThreadPool>

#include "tests/common/TestClass.h"
#include "tests/device/CompareSession.h"

class CalibrationCompareEndTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_folder.isValid()); }

    void badFileIsToldAndThePageGoesOn_data();
    void badFileIsToldAndThePageGoesOn();
    void failedReadIsToldAndThePageGoesOn();
    void windowHidesWithTheTool();
    void resetEndsTheWindowWhileItCompares();
    void unloadEndsTheWindowWhileItCompares();
    void actionsOfThePagePressTheButtons();

private:
    QTemporaryDir m_folder;
};

void CalibrationCompareEndTest::badFileIsToldAndThePageGoesOn_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("words");
    QTest::newRow("missing") << QByteArray() << "missing.ini"
                             << "";
    QTest::newRow("no section") << QByteArray("[Other]\r\nKey = 1\r\n") << "other.ini"
                                << "";
    QTest::newRow("no backup") << QByteArray("{\"a\": 1}") << "no.json"
                               << "no backup of calibration data";
    QTest::newRow("backup of another item")
        << QByteArray(
               R"({"format": "quorlin-rf calibration", "version": 1, "item": "rx-path-loss",
                          "chip": "VR6240", "handle": 23063, "time": "", "routes": [], "records": [],
                          "unread": []})")
        << "other.json"
        << "other.json is a backup of rx-path-loss.";
}

void CalibrationCompareEndTest::badFileIsToldAndThePageGoesOn()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, name);
    QFETCH(QString, words);
    const QString path = m_folder.filePath(name);
    if (!content.isEmpty()) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }
    CCompareSession session(kAptPage);
    QVERIFY(IsReady(session));
    QVERIFY(session.Compare(eDutSide, eFileSide, {}, path));
    QVERIFY2(session.Summary().startsWith("Compare failed. "), qPrintable(session.Summary()));
    QVERIFY(session.Summary().size() > 20);
    QVERIFY2(session.Summary().contains(words), qPrintable(session.Summary()));
    QCOMPARE(session.StatusBar(), QString("Compare failed."));
    QCOMPARE(CountOf(session), 0);
    QVERIFY(session.Compare(eDutSide, ePageSide));
    QVERIFY(session.Summary().startsWith("Both sides are the same."));
}

void CalibrationCompareEndTest::failedReadIsToldAndThePageGoesOn()
{
    CCompareSession session(kPathLossPage);
    QVERIFY(IsReady(session));
    VondSim_AddFault(R"({"function": "VOND_MMRf_GetCalDataV7_r", "kind": "fail", "result": 4})");
    QVERIFY(session.Compare(eDutSide, ePageSide));
    QVERIFY2(session.Summary().startsWith("Compare failed. "), qPrintable(session.Summary()));
    VondSim_ClearFaults();
    QVERIFY(session.Compare(eDutSide, ePageSide));
    QVERIFY(session.Summary().startsWith("Both sides are the same."));
}

void CalibrationCompareEndTest::windowHidesWithTheTool()
{
    CCompareSession session(kAptPage);
    QVERIFY(IsReady(session));
    QVERIFY(session.CompareWindow()->isVisible());
    QVERIFY(session.ClickTab("RSSI"));
    QVERIFY(session.CompareWindow()->isVisible());
    session.Window()->hide();
    QVERIFY(!session.CompareWindow()->isVisible());
}

void CalibrationCompareEndTest::resetEndsTheWindowWhileItCompares()
{
    CCompareSession session(kAptPage);
    QVERIFY(IsReady(session));
    const QPointer<QDialog> window = session.CompareWindow();
    VondSim_Hold(kReadCall);
    session.InWindow<QPushButton>("m_compare")->click();
    QVERIFY(VondSim_WaitUntilHeld(kReadCall, 20000) != 0);
    QVERIFY(!session.IsAnyButtonOn());
    session->ResetPlugin();
    VondSim_Release(kReadCall);
    QVERIFY(WaitUntil([&] { return !window; }));
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
    QVERIFY(session.ShowAndWait());
    QVERIFY(!session.CompareWindow());
    QVERIFY(session.Run(kRead));
}

void CalibrationCompareEndTest::unloadEndsTheWindowWhileItCompares()
{
    QPointer<QDialog> window;
    {
        CCompareSession session(kPathLossPage);
        QVERIFY(IsReady(session));
        window = session.CompareWindow();
        VondSim_Hold(kReadCall);
        session.InWindow<QPushButton>("m_compare")->click();
        QVERIFY(VondSim_WaitUntilHeld(kReadCall, 20000) != 0);
        session.Unload();
        QVERIFY(!window);
        VondSim_Release(kReadCall);
        QThreadPool::globalInstance()->waitForDone();
        QCoreApplication::processEvents();
    }
}

void CalibrationCompareEndTest::actionsOfThePagePressTheButtons()
{
    CCompareSession session(kAptPage);
    QVERIFY(session.ShowAndWait() && session.Run(kRead));
    QStringList names;
    for (const QAction *action : session.Page()->actions()) {
        if (action->objectName() == "m_actionCompare" ||
            action->objectName() == "m_actionGuardedWrite") {
            names.append(action->objectName());
            QVERIFY(!action->shortcut().isEmpty());
        }
    }
    QCOMPARE(names.size(), 2);
    QApplication::setActiveWindow(session.Window());
    session.Selector("band")->setFocus();
    QTest::keyClick(session.Selector("band"), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(session.CompareWindow() && session.CompareWindow()->isVisible());
}

QUORLIN_TEST_CLASS(CalibrationCompareEndTest)
#include "CalibrationCompareEndTest.moc"
