// What the tool's window looks like: while it is being built, its tabs, its menu of pages, and a
// page that floats.
#include <QImage>
#include <QMainWindow>
#include <QMenu>
#include <QScreen>
#include <QStatusBar>
#include <QTabBar>
#include <QToolButton>
#include <QWindow>
#include <QtTest>

#include "tests/common/BoxWatcher.h"
#include "tests/common/PluginSession.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"

namespace {

QTabBar *PageTabs(const CPluginSession &session)
{
    for (auto *bar :
         session.Window()->findChildren<QTabBar *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (bar->isVisible() && bar->count() > 1)
            return bar;
    }
    return nullptr;
}

// The window's picture without the status bar.
QImage PagesPicture(QMainWindow *window)
{
    const QImage all = window->grab().toImage();
    return all.copy(0, 0, all.width(), window->statusBar()->y() - 1);
}

bool IsBlank(const QImage &picture)
{
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) != picture.pixel(0, 0))
                return false;
        }
    }
    return true;
}

}  // namespace

class WindowLookTest : public QObject
{
    Q_OBJECT

private slots:
    void nothingIsPaintedOfPagesThatAreBeingBuilt();
    void allTabsFitTheDefaultWidth();
    void floatedPageStandsBesideItsOldPlace();
    void closedFloatingPageDocksWithTheSameLook();
    void pageMenuMarksThePageOnTop();
};

// A DUT that some pages cannot be fitted to opens a box for each of them.
void WindowLookTest::nothingIsPaintedOfPagesThatAreBeingBuilt()
{
    CPluginSession session("largest");
    CBoxWatcher boxes;
    QVector<bool> blank;
    boxes.onBox = [&] { blank.append(IsBlank(PagesPicture(session.Window()))); };
    QVERIFY(session.ShowAndWait());
    QVERIFY(!blank.isEmpty());
    QVERIFY(!blank.contains(false));
    QVERIFY(!IsBlank(PagesPicture(session.Window())));
}

void WindowLookTest::allTabsFitTheDefaultWidth()
{
    CPluginSession session;
    QVERIFY(session.ShowAndWait());
    const QTabBar *bar = PageTabs(session);
    QVERIFY(bar);
    QCOMPARE(bar->count(), 9);
    QCOMPARE(session.Window()->width(), 1004);
    QVERIFY(WaitUntil([&] { return bar->tabRect(bar->count() - 1).right() < bar->width(); }));
    for (const QToolButton *scroll : bar->findChildren<QToolButton *>())
        QVERIFY(!scroll->isVisible());
}

void WindowLookTest::floatedPageStandsBesideItsOldPlace()
{
    CPluginSession session;
    QVERIFY(session.ShowAndWait());
    QDockWidget *page = session.Page();
    const QRect old(page->mapToGlobal(QPoint(0, 0)), page->size());
    page->setFloating(true);
    QVERIFY(WaitUntil([&] {
        const QRect now = page->frameGeometry();
        return page->isFloating() &&
               (qAbs(now.x() - old.x()) >= 20 || qAbs(now.y() - old.y()) >= 20);
    }));
    const QRect now = page->frameGeometry();
    QVERIFY(page->screen()->availableGeometry().contains(now.topLeft()));
}

void WindowLookTest::closedFloatingPageDocksWithTheSameLook()
{
    CPluginSession session("handset", 1, "CNrSingleToneTxDockWidgetV7");
    QVERIFY(session.ShowAndWait());
    const QWidget *editor = session.Find("cmdIf_request_group1_memberProperty_ulFrequency");
    const QWidget *result = session.Find("cmdIf_response_group1_memberProperty_pdValue");
    const QFont font = editor->font();
    const QColor color = result->palette().color(QPalette::WindowText);
    QDockWidget *page = session.Page();
    page->setFloating(true);
    QVERIFY(WaitUntil([&] { return page->isVisible(); }));
    QVERIFY(page->windowHandle()->close());
    QVERIFY(WaitUntil([&] { return page->isVisible() && !page->isFloating(); }));
    QCOMPARE(editor->font(), font);
    QCOMPARE(result->palette().color(QPalette::WindowText), color);
}

void WindowLookTest::pageMenuMarksThePageOnTop()
{
    CPluginSession session;
    QVERIFY(session.ShowAndWait());
    auto *menu = session.Window()->findChild<QMenu *>();
    QVERIFY(menu);
    const auto marked = [&] {
        emit menu->aboutToShow();
        QStringList titles;
        for (const QAction *action : menu->actions()) {
            if (action->isChecked())
                titles.append(action->text());
        }
        return titles;
    };
    QCOMPARE(marked(), QStringList(session.Page()->windowTitle()));
    QVERIFY(session.ClickTab("RSSI"));
    QCOMPARE(marked(), QStringList("RSSI"));
    menu->actions().first()->trigger();
    const QString first = menu->actions().first()->text();
    QVERIFY(WaitUntil([&] { return marked() == QStringList(first); }));
    menu->actions().first()->trigger();  // the page that is on top already
    QCOMPARE(marked(), QStringList(first));
}

QUORLIN_TEST_CLASS(WindowLookTest)
#include "WindowLookTest.moc"
