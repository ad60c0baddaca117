// The "View" menu of pages, reached with the right mouse button.
#include <functional>

#include <QAction>
#include <QMenu>
#include <QTabBar>
#include <QtTest>

#include "tests/common/BoxWatcher.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"
#include "tests/view/form/FormUnderTest.h"

namespace {

// What a person sees of a popup menu, and does with it: chooses an entry, or nothing.
class CMenuUser : public QObject
{
public:
    explicit CMenuUser(const QString &choice = {}) : m_choice(choice)
    {
        connect(&m_timer, &QTimer::timeout, this, &CMenuUser::Look);
        m_timer.start(0);
    }

    int seen = 0;
    QString title;
    QPoint position;  // global
    QStringList entries;

private:
    void Look()
    {
        const QPointer<QMenu> menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        if (!menu)
            return;
        ++seen;
        title = menu->title();
        position = menu->pos();
        entries.clear();
        QAction *choice = nullptr;
        for (QAction *action : menu->actions()) {
            entries.append(action->text());
            if (action->text() == m_choice)
                choice = action;
        }
        if (choice)
            QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(choice).center());
        if (menu && menu->isVisible())
            menu->close();
    }

    QString m_choice;
    QTimer m_timer;
};

// A press of the right button, as the window system reports it: Qt makes the menu request of it.
void RightClick(CFormUnderTest &form, const QPoint &global)
{
    QTest::mouseClick(form.windowHandle(), Qt::RightButton, {}, form.mapFromGlobal(global));
    QCoreApplication::processEvents();
}

QPoint OnTab(const CFormUnderTest &form, int tab)
{
    const QTabBar *bar = form.TabBars()[0];
    return bar->mapToGlobal(bar->tabRect(tab).center());
}

// In the title area, above the page's contents.
QPoint OnTitle(const CTestPage *page)
{
    return page->mapToGlobal(QPoint(40, page->widget()->y() / 2));
}

QString TopPage(const CFormUnderTest &form)
{
    const QTabBar *bar = form.TabBars()[0];
    return bar->tabText(bar->currentIndex());
}

}  // namespace

class PageMenuTest : public QObject
{
    Q_OBJECT

private slots:
    void rightClickOnATabOpensTheViewMenuAtTheCursor();
    void rightClickOnAPageTitleOpensTheViewMenuAtTheCursor();
    void rightClickOnAFloatingPageOpensTheViewMenuAtTheCursor();
    void rightClickOpensNothingWhileThereAreNoPages();
    void choosingAPageInTheMenuBringsItToTheFront();
    void menuIsReachedAsAContextMenuAlone();
};

void PageMenuTest::rightClickOnATabOpensTheViewMenuAtTheCursor()
{
    CFormUnderTest form;
    QVERIFY(form.ShowAndWait(ThreePages()));
    CMenuUser user;
    const QPoint cursor = OnTab(form, 1);
    RightClick(form, cursor);
    QCOMPARE(user.seen, 1);
    QCOMPARE(user.title, QString("View"));
    QCOMPARE(user.position, cursor);
    QCOMPARE(user.entries, (QStringList{kFirst, kSecond, kThird}));
    QCOMPARE(TopPage(form), QString(kFirst));
}

void PageMenuTest::rightClickOnAPageTitleOpensTheViewMenuAtTheCursor()
{
    CFormUnderTest form;
    QVERIFY(form.ShowAndWait(ThreePages()));
    CMenuUser user;
    const QPoint cursor = OnTitle(form.Page(kFirst));
    RightClick(form, cursor);
    QCOMPARE(user.seen, 1);
    QCOMPARE(user.title, QString("View"));
    QCOMPARE(user.position, cursor);
}

// The title of a floating page belongs to the window manager; its contents ask for the menu too.
void PageMenuTest::rightClickOnAFloatingPageOpensTheViewMenuAtTheCursor()
{
    CFormUnderTest form;
    QVERIFY(form.ShowAndWait(ThreePages()));
    CTestPage *page = form.Page(kFirst);
    page->setFloating(true);
    QVERIFY(QTest::qWaitForWindowExposed(page));
    CMenuUser user;
    const QPoint cursor = page->mapToGlobal(QPoint(40, 40));
    QTest::mouseClick(page->windowHandle(), Qt::RightButton, {}, page->mapFromGlobal(cursor));
    QCoreApplication::processEvents();
    QCOMPARE(user.seen, 1);
    QCOMPARE(user.title, QString("View"));
    QCOMPARE(user.position, cursor);
}

void PageMenuTest::rightClickOpensNothingWhileThereAreNoPages()
{
    CFormUnderTest form;
    CBoxWatcher boxes;
    form.ShowWith({});
    QVERIFY(QTest::qWaitForWindowExposed(&form));
    CMenuUser user;
    RightClick(form, form.mapToGlobal(QPoint(60, 20)));
    QCOMPARE(user.seen, 0);
}

void PageMenuTest::choosingAPageInTheMenuBringsItToTheFront()
{
    CFormUnderTest form;
    QVERIFY(form.ShowAndWait(ThreePages()));
    for (const char *title : {kSecond, kThird, kFirst}) {
        CMenuUser user(title);
        RightClick(form, OnTitle(form.Page(TopPage(form))));
        QCOMPARE(user.seen, 1);
        QVERIFY2(WaitUntil([&] { return TopPage(form) == title; }), title);
        QVERIFY(form.Page(title)->isEnabled());
    }
}

void PageMenuTest::menuIsReachedAsAContextMenuAlone()
{
    CFormUnderTest form;
    QVERIFY(form.ShowAndWait(ThreePages()));
    QVERIFY(!form.menuWidget());
    QVERIFY(form.findChildren<QMenuBar *>().isEmpty());
}

QUORLIN_TEST_CLASS(PageMenuTest)
#include "PageMenuTest.moc"
