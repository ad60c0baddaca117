// Where host and tool stand at the start, and that they stand where they were left.
#include "Host/WindowPlaces.h"

#include <QFile>
#include <QMainWindow>
#include <QScreen>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>

#include "Host/BenchHost.h"
#include "Host/HostSettings.h"
#include "Host/ToolWindow.h"
#include "HostTestFiles.h"
#include "tests/common/TestClass.h"

class WindowPlacesTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void ToolAndHostStandSideBySide_data();
    void ToolAndHostStandSideBySide();
    void StandInTheCornersOfTheScreenAtFirst();
    void StandWhereTheyWereLeft();
    void PlacesAreKeptWhileTheSessionRuns();
    void BrokenSettingsAreNoMatter();
    void SettingsThatCantBeWrittenAreNoMatter();

private:
    void Open();

    std::unique_ptr<CPluginHandle> m_plugin;
    std::unique_ptr<CBenchHost> m_host;
    std::unique_ptr<CWindowPlaces> m_places;
};

namespace {

QString SettingsFile()
{
    return QString::fromLocal8Bit(qgetenv("XDG_CONFIG_HOME")) + "/Quorlin RF/quorlin-host.ini";
}

}  // namespace

void WindowPlacesTest::init()
{
    CHostSettings().Clear();
    Open();
}

void WindowPlacesTest::cleanup()
{
    m_places.reset();
    m_host.reset();
    m_plugin.reset();
}

// A start of the host; what was open is ended first.
void WindowPlacesTest::Open()
{
    cleanup();
    m_plugin = std::make_unique<CPluginHandle>();
    QString error;
    QVERIFY2(m_plugin->Load(FakePlugin("FakeTool"), error), qPrintable(error));
    m_host = std::make_unique<CBenchHost>(*m_plugin);
    auto *pages = m_host->findChild<QTabWidget *>("m_panels");
    pages->addTab(new QWidget, "Another");
    pages->addTab(new QWidget, "A third");
    m_places = std::make_unique<CWindowPlaces>(*m_host);
    m_host->show();
    m_host->ShowTool();
}

void WindowPlacesTest::ToolAndHostStandSideBySide_data()
{
    QTest::addColumn<QRect>("screen");
    QTest::addColumn<QPoint>("host");
    QTest::addColumn<QSize>("size");
    QTest::newRow("full HD") << QRect(0, 0, 1920, 1080) << QPoint(1012, 0) << QSize(908, 1040);
    QTest::newRow("below a panel")
        << QRect(0, 30, 1920, 1050) << QPoint(1012, 30) << QSize(908, 1018);
    QTest::newRow("large") << QRect(0, 0, 3840, 2160) << QPoint(1012, 0) << QSize(960, 1040);
    QTest::newRow("second screen")
        << QRect(1920, 0, 1920, 1080) << QPoint(2932, 0) << QSize(908, 1040);
    QTest::newRow("too narrow for both")
        << QRect(0, 0, 1366, 768) << QPoint(766, 0) << QSize(600, 736);
    QTest::newRow("narrower than the host")
        << QRect(0, 0, 500, 400) << QPoint(0, 0) << QSize(500, 368);
}

void WindowPlacesTest::ToolAndHostStandSideBySide()
{
    QFETCH(QRect, screen);
    QFETCH(QPoint, host);
    QFETCH(QSize, size);
    const SWindowPlaces places = SideBySide(screen, QSize(1004, 769), QSize(600, 500));
    QCOMPARE(places.tool, screen.topLeft());
    QCOMPARE(places.host, host);
    QCOMPARE(places.hostSize, size);
    QVERIFY(screen.contains(QRect(places.host, places.hostSize)));
}

void WindowPlacesTest::StandInTheCornersOfTheScreenAtFirst()
{
    const QRect screen = m_host->screen()->availableGeometry();
    QCOMPARE(FindToolWindow()->pos(), screen.topLeft());
    QCOMPARE(m_host->y(), screen.top());
    QVERIFY(m_host->x() > 0);
}

void WindowPlacesTest::StandWhereTheyWereLeft()
{
    const QRect tool(60, 30, 400, 300);
    m_host->setGeometry(20, 20, 700, 598);
    const QRect host = m_host->geometry();
    FindToolWindow()->setGeometry(tool);
    auto *pages = m_host->findChild<QTabWidget *>("m_panels");
    QTest::mouseClick(pages->tabBar(), Qt::LeftButton, {}, pages->tabBar()->tabRect(1).center());
    Open();
    QCOMPARE(m_host->geometry(), host);
    QCOMPARE(FindToolWindow()->geometry(), tool);
    pages = m_host->findChild<QTabWidget *>("m_panels");
    QCOMPARE(pages->tabText(pages->currentIndex()), QString("Another"));
}

void WindowPlacesTest::PlacesAreKeptWhileTheSessionRuns()
{
    QVERIFY(!CHostSettings().Value("window/host").isValid());
    m_host->move(30, 20);
    QTRY_VERIFY(CHostSettings().Value("window/host").isValid());
    QCOMPARE(CHostSettings().Value("window/host").toByteArray(), m_host->saveGeometry());
}

void WindowPlacesTest::BrokenSettingsAreNoMatter()
{
    CHostSettings settings;
    for (const char *key : {"window/host", "window/tool", "window/division", "window/page"})
        settings.Set(key, QByteArray("nonsense"));
    m_places.reset();
    for (const char *key : {"window/host", "window/tool", "window/division", "window/page"})
        settings.Set(key, QByteArray("nonsense"));
    Open();
    StandInTheCornersOfTheScreenAtFirst();
}

// Where the file should be there is a folder.
void WindowPlacesTest::SettingsThatCantBeWrittenAreNoMatter()
{
    cleanup();
    CHostSettings().Clear();
    QFile::remove(SettingsFile());
    QVERIFY(QDir().mkpath(SettingsFile()));
    Open();
    QVERIFY(m_host->isVisible());
    cleanup();
    QVERIFY(QDir(SettingsFile()).removeRecursively());
}

QUORLIN_TEST_CLASS(WindowPlacesTest)
#include "WindowPlacesTest.moc"
