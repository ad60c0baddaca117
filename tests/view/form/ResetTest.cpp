// Reset and destruction of the tool form, at the moments at which a host may cause them.
//
// The sanitizer build of this test is what proves that nothing of a destroyed page is used.
#include <QAction>
#include <QMenu>
#include <QStatusBar>
#include <QtTest>

#include "tests/common/BoxWatcher.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"
#include "tests/view/form/FormUnderTest.h"

namespace {

// Shows the form with held requests and acts from inside the init flow's loop, as soon as the page
// has asked for its document. True when the flow's call has returned after that.
bool ActWhilePageWaits(CFormUnderTest &form, const QString &asked, const std::function<void()> &act)
{
    HoldRequests(true);
    bool hasActed = false;
    bool hasReturned = false;
    QTimer turn;
    QObject::connect(&turn, &QTimer::timeout, [&] {
        if (hasActed)
            return;
        if (PageLog().contains(asked)) {
            hasActed = true;
            act();
        } else if (form.Page(kFirst) && PageLog().contains("First: asked")) {
            form.Page(kFirst)->Answer();
        }
    });
    turn.start(0);
    QTimer::singleShot(0, &turn, [&form, &hasReturned] {
        form.ShowWith(ThreePages());
        hasReturned = true;
    });
    return WaitUntil([&] { return hasActed && hasReturned; });
}

}  // namespace

class ResetTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { HoldRequests(false); }

    void resetDestroysThePagesAndTheNextShowBuildsThemAnew();
    void menuAndTabsAreRebuiltAfterAResetWithoutDuplicates();
    void resetMayBringAnotherPageSet();
    void resetWhileAPageWaitsEndsTheInitFlow();
    void resetWhileALaterPageWaitsDestroysTheEarlierOnesToo();
    void interruptedInitFlowsLeaveNoMenuBehind();
    void resetFromInsideAPagesSlotLetsTheSlotEnd();
    void resetFromInsideThePageMenusSlot();
    void resetFromInsideTheStatusLineOfAPageThatIsBeingShown();
    void resetFromInsideTheStopThatATabChangeCauses();
    void resetFromInsideAStopLeavesTheOtherPagesAlone();
    void resetWhileTheBoxOfFailedPagesIsOpen();
    void formMayBeDestroyedWhileAPageWaits();
    void formMayBeDestroyedFromInsideAPagesSlot();
    void destroyingAVisibleFormStopsNothingAndSaysNothing();
    void formMayBeDestroyedWhileTheBoxOfFailedPagesIsOpen();
    void lateAnswerOfARemovedPageReachesNobody();
};

void ResetTest::resetDestroysThePagesAndTheNextShowBuildsThemAnew()
{
    CFormUnderTest form;
    QVERIFY(form.ShowAndWait(ThreePages()));
    const QPointer<CTestPage> old = form.Page(kFirst);
    form.hide();
    form.ResetPages();
    QVERIFY(form.findChildren<QDockWidget *>().isEmpty());
    QVERIFY(WaitUntil([&] { return PageLog().filter(": gone").size() == 3; }));
    QVERIFY(!old);
    PageLog().clear();
    QVERIFY(form.ShowAndWait(ThreePages()));
    QCOMPARE(PageLog().filter(": built").size(), 3);
    QCOMPARE(form.PageTitles(), (QStringList{kFirst, kSecond, kThird}));
    QVERIFY(form.isEnabled());
}

void ResetTest::menuAndTabsAreRebuiltAfterAResetWithoutDuplicates()
{
    CFormUnderTest form;
    for (int round = 0; round < 3; ++round) {
        QVERIFY(form.ShowAndWait(ThreePages()));
        QCOMPARE(form.MenuTitles(), (QStringList{kFirst, kSecond, kThird}));
        QCOMPARE(form.findChildren<QMenu *>(QString(), Qt::FindDirectChildrenOnly).size(), 1);
        QCOMPARE(form.TabBars().size(), 1);
        QCOMPARE(form.TabBars()[0]->count(), 3);
        // One request opens one menu: the bar is wired once, however often the pages came.
        int opened = 0;
        QTimer turn;
        connect(&turn, &QTimer::timeout, this, [&opened] {
            if (QWidget *popup = QApplication::activePopupWidget()) {
                ++opened;
                popup->close();
            }
        });
        turn.start(0);
        emit form.TabBars()[0]->customContextMenuRequested(QPoint(5, 5));
        QCOMPARE(opened, 1);
        form.hide();
        form.ResetPages();
        QVERIFY(form.TabBars().isEmpty());
    }
}

void ResetTest::resetMayBringAnotherPageSet()
{
    CFormUnderTest form;
    QVERIFY(form.ShowAndWait(ThreePages()));
    form.hide();
    form.ResetPages();
    QVERIFY(form.ShowAndWait({"CThirdPage", "CSecondPage"}));
    QCOMPARE(form.PageTitles(), (QStringList{kThird, kSecond}));
    QCOMPARE(form.MenuTitles(), (QStringList{kThird, kSecond}));
    QCOMPARE(form.TabBars()[0]->count(), 2);
}

void ResetTest::resetWhileAPageWaitsEndsTheInitFlow()
{
    CFormUnderTest form;
    QVERIFY(ActWhilePageWaits(form, "First: asked", [&] {
        form.hide();
        form.ResetPages();
    }));
    QVERIFY(!PageLog().contains("Second: built"));
    QVERIFY(form.findChildren<QDockWidget *>().isEmpty());
    QVERIFY(form.Status() != "Init done.");
    HoldRequests(false);
    QVERIFY(form.ShowAndWait(ThreePages()));
    QVERIFY(form.isEnabled());
    QCOMPARE(form.MenuTitles(), (QStringList{kFirst, kSecond, kThird}));
}

void ResetTest::resetWhileALaterPageWaitsDestroysTheEarlierOnesToo()
{
    CFormUnderTest form;
    QVERIFY(ActWhilePageWaits(form, "Second: asked", [&] { form.ResetPages(); }));
    QVERIFY(WaitUntil([&] { return PageLog().filter(": gone").size() == 2; }));
    QVERIFY(form.findChildren<QDockWidget *>().isEmpty());
    QCOMPARE(PageLog().filter(": built").size(), 2);
}

void ResetTest::interruptedInitFlowsLeaveNoMenuBehind()
{
    CFormUnderTest form;
    for (int round = 0; round < 3; ++round) {
        PageLog().clear();
        QVERIFY(ActWhilePageWaits(form, "First: asked", [&] {
            form.hide();
            form.ResetPages();
        }));
    }
    QVERIFY(form.findChildren<QMenu *>(QString(), Qt::FindDirectChildrenOnly).isEmpty());
}

void ResetTest::resetFromInsideAPagesSlotLetsTheSlotEnd()
{
    CFormUnderTest form;
    QVERIFY(form.ShowAndWait(ThreePages()));
    const QPointer<CTestPage> page = form.Page(kFirst);
    // A host that resets as soon as a page says busy: the page is in the midst of its own slot.
    connect(&form, &CAutoBindingDataModelForm::Signal_PluginIsBusy, &form,
            [&form] { form.ResetPages(); });
    form.statuses.clear();
    QTimer::singleShot(0, page, &CTestPage::RunOperation);
    QVERIFY(WaitUntil([&] { return page.isNull(); }));
    QVERIFY(form.findChildren<QDockWidget *>().isEmpty());
    QVERIFY(form.statuses.isEmpty());
}

void ResetTest::resetFromInsideThePageMenusSlot()
{
    CFormUnderTest form;
    QVERIFY(form.ShowAndWait(ThreePages()));
    connect(form.PageMenu(), &QMenu::triggered, &form, [&form] { form.ResetPages(); });
    form.PageMenu()->actions()[1]->trigger();
    QVERIFY(form.findChildren<QDockWidget *>().isEmpty());
    form.hide();
    QVERIFY(form.ShowAndWait(ThreePages()));
}

void ResetTest::resetFromInsideTheStatusLineOfAPageThatIsBeingShown()
{
    CFormUnderTest form;
    HoldRequests(true);
    connect(form.statusBar(), &QStatusBar::messageChanged, &form, [&form](const QString &text) {
        if (text == "Start Init: Second")
            form.ResetPages();
    });
    form.ShowWithLater(ThreePages());
    QTimer turn;
    connect(&turn, &QTimer::timeout, this, [&form] {
        if (PageLog().contains("First: asked") && form.Page(kFirst))
            form.Page(kFirst)->Answer();
    });
    turn.start(0);
    QVERIFY(WaitUntil([] { return PageLog().filter(": gone").size() == 2; }));
    QVERIFY(form.findChildren<QDockWidget *>().isEmpty());
    QCOMPARE(PageLog().filter(": built").size(), 2);
}

void ResetTest::resetFromInsideTheStopThatATabChangeCauses()
{
    CFormUnderTest form;
    QVERIFY(form.ShowAndWait(ThreePages()));
    form.Page(kFirst)->isRunning = true;
    form.Page(kFirst)->announcesStop = true;
    connect(&form, &CAutoBindingDataModelForm::Signal_PluginIsBusy, &form,
            [&form] { form.ResetPages(); });
    form.ChooseTab(kSecond);
    QVERIFY(WaitUntil([] { return PageLog().filter(": gone").size() == 3; }));
    QCOMPARE(PageLog().filter(": stop").size(), 1);
}

// The reset stops their tests, under the handles of their starts.
void ResetTest::resetFromInsideAStopLeavesTheOtherPagesAlone()
{
    CFormUnderTest form;
    QVERIFY(form.ShowAndWait(ThreePages()));
    for (const char *name : {kFirst, kSecond}) {
        form.Page(name)->isRunning = true;
        form.Page(name)->announcesStop = true;
    }
    connect(&form, &CAutoBindingDataModelForm::Signal_PluginIsBusy, &form,
            [&form] { form.ResetPages(); });
    form.hide();
    QVERIFY(WaitUntil([] { return PageLog().filter(": gone").size() == 3; }));
    QCOMPARE(PageLog().filter(": stop").size(), 1);
}

void ResetTest::resetWhileTheBoxOfFailedPagesIsOpen()
{
    CFormUnderTest form;
    CBoxWatcher boxes;
    boxes.onBox = [&] { form.ResetPages(); };
    form.ShowWith({"CFirstPage", "CNoSuchPage"});
    QCOMPARE(boxes.Seen().size(), 1);
    QVERIFY(form.findChildren<QDockWidget *>().isEmpty());
    QVERIFY(form.Status() != "Init done.");
    boxes.onBox = nullptr;
    form.hide();
    QVERIFY(form.ShowAndWait({"CFirstPage"}));
}

void ResetTest::formMayBeDestroyedWhileAPageWaits()
{
    auto *form = new CFormUnderTest;
    QVERIFY(ActWhilePageWaits(*form, "First: asked", [&] { delete form; }));
    QCOMPARE(PageLog(), (QStringList{"First: built", "First: asked", "First: gone"}));
}

void ResetTest::formMayBeDestroyedFromInsideAPagesSlot()
{
    QPointer<CFormUnderTest> form = new CFormUnderTest;
    QVERIFY(form->ShowAndWait(ThreePages()));
    const QPointer<CTestPage> page = form->Page(kFirst);
    connect(form, &CAutoBindingDataModelForm::Signal_PluginIsBusy, qApp, [form] { delete form; });
    QTimer::singleShot(0, page, &CTestPage::RunOperation);
    QVERIFY(WaitUntil([&] { return page.isNull(); }));
    QVERIFY(!form);
    QCOMPARE(PageLog().filter(": gone").size(), 3);
}

void ResetTest::destroyingAVisibleFormStopsNothingAndSaysNothing()
{
    auto form = std::make_unique<CFormUnderTest>();
    QVERIFY(form->ShowAndWait(ThreePages()));
    const QSignalSpy busy(form.get(), SIGNAL(Signal_PluginIsBusy(bool)));
    for (const char *title : {kFirst, kSecond, kThird}) {
        form->Page(title)->isRunning = true;
        form->Page(title)->announcesStop = true;
    }
    form.reset();
    QVERIFY(busy.isEmpty());
    QCOMPARE(PageLog().filter(": stop").size(), 0);
    QCOMPARE(PageLog().filter(": gone").size(), 3);
}

void ResetTest::formMayBeDestroyedWhileTheBoxOfFailedPagesIsOpen()
{
    auto *form = new CFormUnderTest;
    CBoxWatcher boxes;
    boxes.onBox = [&] { delete form; };
    form->ShowWith({"CFirstPage", "CNoSuchPage"});
    QCOMPARE(boxes.Seen().size(), 1);
    QVERIFY(PageLog().contains("First: gone"));
    QVERIFY(!QApplication::activeModalWidget());
}

void ResetTest::lateAnswerOfARemovedPageReachesNobody()
{
    CFormUnderTest form;
    QVERIFY(form.ShowAndWait({"CFirstPage"}));
    const QPointer<CTestPage> page = form.Page(kFirst);
    const QSignalSpy busy(&form, SIGNAL(Signal_PluginIsBusy(bool)));
    form.statuses.clear();
    form.ResetPages();
    if (page)
        page->RunOperation();
    QVERIFY(form.statuses.isEmpty());
    QVERIFY(busy.isEmpty());
}

QUORLIN_TEST_CLASS(ResetTest)
#include "ResetTest.moc"
