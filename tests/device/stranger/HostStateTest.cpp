// The tool in the process of a stranger: what a process has one of stays as the host has set it.
#include "tests/device/stranger/HostState.h"

#include <QDialog>
#include <QPointer>
#include <QTemporaryDir>
#include <QThreadPool>

#include "tests/common/TestClass.h"
#include "tests/device/CompareSession.h"
#include "tests/device/PlotSession.h"
#include "tests/device/RequestPages.h"

namespace {

// No job is on the pool, and no call of one is on its way.
QString ChangesAtRest(const SHostState &before)
{
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
    QThreadPool::globalInstance()->waitForDone();
    return HostStateChanges(before).join('\n');
}

QWidgetList ToolWindows(const QWidgetList &before)
{
    QWidgetList windows;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (!before.contains(window))
            windows.append(window);
    }
    return windows;
}

}  // namespace

class HostStateTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        BecomeUnusualHost();
        m_before = HostState();
        QCOMPARE(ChangesAtRest(m_before), QString());
    }
    void aChangedStateIsSeen();
    void loadShowHideResetUnloadChangeNothing();
    void requestChangesNothing_data() { AddRequests(); }
    void requestChangesNothing();
    void windowsChangeNothing();

private:
    SHostState m_before;
};

void HostStateTest::aChangedStateIsSeen()
{
    const SHostState before = HostState();
    qputenv("STRANGER", "tool");
    QLocale::setDefault(QLocale::c());
    const QStringList changes = HostStateChanges(before);
    qputenv("STRANGER", "host");
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    QCOMPARE(changes.size(), 2);
    QCOMPARE(changes[0],
             QString("QLocale: de_DE0, now C") + QString::number(QLocale::c().numberOptions()));
    QVERIFY(changes[1].startsWith("environment: "));
}

void HostStateTest::loadShowHideResetUnloadChangeNothing()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    {
        CPluginSession session;
        QCOMPARE(ChangesAtRest(m_before), QString());
        QVERIFY(session->QueryLaunchRequirement().isSupport);
        QCOMPARE(ChangesAtRest(m_before), QString());
        QVERIFY(session.ShowAndWait());
        QCOMPARE(ChangesAtRest(m_before), QString());
        session->HidePlugin();
        QCOMPARE(ChangesAtRest(m_before), QString());
        session->ShowPlugin();
        session->ResetPlugin();
        QCOMPARE(ChangesAtRest(m_before), QString());
        QVERIFY(session.ShowAndWait());
        session.Unload();
        QCOMPARE(ChangesAtRest(m_before), QString());
    }
    QVERIFY(ToolWindows(windows).isEmpty());
}

void HostStateTest::requestChangesNothing()
{
    QFETCH(SRequest, request);
    CPluginSession session("handset", 1, request.page);
    QVERIFY(Ready(session, request));
    QCOMPARE(ChangesAtRest(m_before), QString());
    session.Press(request.button);
    QVERIFY(session.WaitForStatus(request.done));
    QCOMPARE(ChangesAtRest(m_before), QString());
    session->ResetPlugin();
    QCOMPARE(ChangesAtRest(m_before), QString());
    session.Unload();
    QCOMPARE(ChangesAtRest(m_before), QString());
}

void HostStateTest::windowsChangeNothing()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    const QTemporaryDir folder;
    {
        CCompareSession session(kPathLossPage);
        QVERIFY(session.ShowAndWait() && session.Run(kRead));
        QVERIFY(session.Run(kExport, folder.filePath("losses.ini")));
        QVERIFY(session.Run(kImport, folder.filePath("losses.ini")));
        QCOMPARE(ChangesAtRest(m_before), QString());
        session.Window()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(session.Window()));
        QTest::keyClick(session.Window(), Qt::Key_L, Qt::ControlModifier);
        const auto *log = session.Window()->findChild<QWidget *>("CSessionLogWindow");
        QVERIFY(log && log->isVisible());
        QVERIFY(CPlotHands(session).Open());
        QCOMPARE(ChangesAtRest(m_before), QString());
        QVERIFY(session.OpenCompare());
        QVERIFY(session.Compare(eDutSide, ePageSide));
        QCOMPARE(ChangesAtRest(m_before), QString());
        session->ResetPlugin();
        QCOMPARE(ChangesAtRest(m_before), QString());
        QVERIFY(session.ShowAndWait());
        QVERIFY(CPlotHands(session).Open());
        session.Unload();  // with a window open
        QCOMPARE(ChangesAtRest(m_before), QString());
    }
    QVERIFY(ToolWindows(windows).isEmpty());
}

QUORLIN_TEST_CLASS(HostStateTest)
#include "HostStateTest.moc"
