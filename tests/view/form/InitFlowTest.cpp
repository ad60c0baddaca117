// The init flow of the tool form: which pages come up, in which order, and what the user sees of
// it.
#include <QAction>
#include <QMenu>
#include <QTabBar>
#include <QtTest>

#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"
#include "tests/view/form/FormUnderTest.h"

class InitFlowTest : public QObject
{
    Q_OBJECT

private slots:
    void pagesComeUpInTheOrderOfTheListWithTheFirstOnTop();
    void nextPageDoesNotExistBeforeTheFormersInitDone();
    void windowIsDisabledUntilTheLastPageIsReady();
    void statusBarReadsWaitThenThePagesThenInitDone();
    void secondShowChangesNothingButTheActivation();
    void answerThatArrivesWhileThePageIsBeingShownDoesNotHoldTheFlow();
    void pageCannotBeClosed();
    void busyOfAPageIsRelayed();
};

void InitFlowTest::pagesComeUpInTheOrderOfTheListWithTheFirstOnTop()
{
    CFormUnderTest form;
    QVERIFY(form.ShowAndWait({"CThirdPage", "CFirstPage", "CSecondPage"}));
    QCOMPARE(form.PageTitles(), (QStringList{kThird, kFirst, kSecond}));
    QCOMPARE(form.TabBars().size(), 1);
    const QTabBar *bar = form.TabBars()[0];
    QCOMPARE(bar->count(), 3);
    QCOMPARE(bar->tabText(0), QString(kThird));
    QCOMPARE(bar->tabText(1), QString(kFirst));
    QCOMPARE(bar->tabText(2), QString(kSecond));
    QCOMPARE(bar->currentIndex(), 0);
    QVERIFY(form.Page(kThird)->isEnabled());
}

void InitFlowTest::nextPageDoesNotExistBeforeTheFormersInitDone()
{
    CFormUnderTest form;
    HoldRequests(true);
    form.ShowWithLater({"CFirstPage", "CSecondPage"});
    QStringList whileFirstWaits;
    QStringList whileSecondWaits;
    // Runs in the flow's own loops.
    QTimer turn;
    connect(&turn, &QTimer::timeout, this, [&] {
        if (PageLog().contains("Second: asked") && whileSecondWaits.isEmpty()) {
            whileSecondWaits = PageLog();
            form.Page(kSecond)->Answer();
        } else if (PageLog().contains("First: asked") && whileFirstWaits.isEmpty()) {
            whileFirstWaits = PageLog();
            form.Page(kFirst)->Answer();
        }
    });
    turn.start(0);
    QVERIFY(WaitUntil([&] { return form.Status() == "Init done."; }));
    QCOMPARE(whileFirstWaits, (QStringList{"First: built", "First: asked"}));
    QCOMPARE(whileSecondWaits,
             (QStringList{"First: built", "First: asked", "Second: built", "Second: asked"}));
}

void InitFlowTest::windowIsDisabledUntilTheLastPageIsReady()
{
    CFormUnderTest form;
    HoldRequests(true);
    form.ShowWithLater({"CFirstPage", "CSecondPage"});
    int looks = 0;
    bool wasEnabled = false;
    QTimer turn;
    connect(&turn, &QTimer::timeout, this, [&] {
        const QString waiting = form.Page(kSecond) ? kSecond : kFirst;
        if (form.Status() == "Init done." || !form.Page(waiting))
            return;
        ++looks;
        wasEnabled = wasEnabled || form.isEnabled();
        form.Page(waiting)->Answer();
    });
    turn.start(0);
    QVERIFY(WaitUntil([&] { return form.Status() == "Init done."; }));
    QVERIFY(looks >= 2);
    QVERIFY(!wasEnabled);
    QVERIFY(form.isEnabled());
}

void InitFlowTest::statusBarReadsWaitThenThePagesThenInitDone()
{
    CFormUnderTest form;
    QVERIFY(form.ShowAndWait({"CFirstPage", "CSecondPage"}));
    QCOMPARE(form.statuses, (QStringList{"Please to wait the init flow...", "Start Init: First",
                                         "Start Init: Second", "Init done."}));
}

void InitFlowTest::secondShowChangesNothingButTheActivation()
{
    CFormUnderTest form;
    QVERIFY(form.ShowAndWait(ThreePages()));
    QVERIFY(form.ChooseTab(kSecond));
    const QStringList log = PageLog();
    const QList<CTestPage *> pages = form.findChildren<CTestPage *>();
    const QPointer<QMenu> menu = form.PageMenu();
    form.statuses.clear();
    QCOMPARE(form.activations, (QVector<bool>{true}));

    form.hide();
    form.ShowWith({"CFirstPage"});
    QVERIFY(QTest::qWaitForWindowExposed(&form));

    QCOMPARE(form.activations, (QVector<bool>{true, false, true}));
    QCOMPARE(PageLog(), log);
    QCOMPARE(form.findChildren<CTestPage *>(), pages);
    QCOMPARE(form.PageMenu(), menu.data());
    QVERIFY(menu);
    QVERIFY(form.statuses.isEmpty());
    QVERIFY(form.isEnabled());
    QCOMPARE(form.TabBars()[0]->tabText(form.TabBars()[0]->currentIndex()), QString(kSecond));
    QVERIFY(form.Page(kSecond)->isEnabled());
    QVERIFY(!form.Page(kFirst)->isEnabled());
}

void InitFlowTest::answerThatArrivesWhileThePageIsBeingShownDoesNotHoldTheFlow()
{
    CFormUnderTest form;
    HoldRequests(true);
    // Answers from inside the page's own request, before the form waits.
    const auto answerAtOnce = [&form](const QString &text) {
        if (text.startsWith("Start Init: "))
            form.Page(text.mid(12))->Answer();
    };
    connect(form.findChild<QStatusBar *>(), &QStatusBar::messageChanged, &form, answerAtOnce);
    QVERIFY(form.ShowAndWait({"CFirstPage", "CSecondPage"}));
    QCOMPARE(form.PageTitles(), (QStringList{kFirst, kSecond}));
}

void InitFlowTest::pageCannotBeClosed()
{
    CFormUnderTest form;
    QVERIFY(form.ShowAndWait(ThreePages()));
    for (const CTestPage *page : form.findChildren<CTestPage *>())
        QCOMPARE(int(page->features()),
                 int(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetFloatable));
}

void InitFlowTest::busyOfAPageIsRelayed()
{
    CFormUnderTest form;
    QVERIFY(form.ShowAndWait(ThreePages()));
    const QSignalSpy busy(&form, SIGNAL(Signal_PluginIsBusy(bool)));
    form.Page(kSecond)->RunOperation();
    QCOMPARE(busy.size(), 1);
    QCOMPARE(busy[0][0].toBool(), true);
    QCOMPARE(form.Status(), QString("Second runs"));
}

QUORLIN_TEST_CLASS(InitFlowTest)
#include "InitFlowTest.moc"
