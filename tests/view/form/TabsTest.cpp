// Tabs of the tool form: texts, who works, floating pages.
#include <QTabBar>
#include <QtTest>

#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"
#include "tests/view/form/FormUnderTest.h"

namespace {

// Every tab of every bar has room for its whole text, however narrow the window is.
bool ShowsWholeTexts(const QTabBar *bar)
{
    for (int i = 0; i < bar->count(); ++i) {
        if (bar->tabRect(i).width() < bar->fontMetrics().horizontalAdvance(bar->tabText(i)))
            return false;
    }
    return bar->elideMode() == Qt::ElideNone;
}

bool ShowsWholeTexts(const CFormUnderTest &form)
{
    const QList<QTabBar *> bars = form.TabBars();
    return !bars.isEmpty() && std::all_of(bars.begin(), bars.end(),
                                          [](const QTabBar *bar) { return ShowsWholeTexts(bar); });
}

int TabCount(const CFormUnderTest &form)
{
    int count = 0;
    for (const QTabBar *bar : form.TabBars())
        count += bar->count();
    return count;
}

}  // namespace

class TabsTest : public QObject
{
    Q_OBJECT

private slots:
    void tabTextsAreNeverShortened();
    void tabTextsAreNotShortenedAfterAPageWasFloatedAndDockedAgain();
    void tabTextsAreNotShortenedInATabBarThatComesLater();
    void switchingTabsStopsARunningTestAndDisablesTheOldPage();
    void switchingTabsStopsNothingWhenNoTestRuns();
    void switchingTabsLeavesAFloatingPageEnabledButStopsItsTest();
    void floatingThePageOnTopKeepsItEnabledAndEnablesTheNextOne();
    void closingDocksAFloatingPageAgain();
    void closingAFloatingPageStopsItsTestAndDocksIt();
    void hidingTheWindowStopsTheTestsOfAllPages();
    void busyIsOverWhenNoPageIsBusy();
    void closeIsAcceptedAndReportedAsHidden();
    void destroyingTheFormWithAFloatingPageTakesThePageAlong();
};

void TabsTest::tabTextsAreNeverShortened()
{
    CFormUnderTest form;
    form.resize(240, 300);
    QVERIFY(form.ShowAndWait(ThreePages()));
    QCOMPARE(TabCount(form), 3);
    QVERIFY(form.width() < form.fontMetrics().horizontalAdvance(QString(kThird)));
    QVERIFY(ShowsWholeTexts(form));
}

void TabsTest::tabTextsAreNotShortenedAfterAPageWasFloatedAndDockedAgain()
{
    CFormUnderTest form;
    form.resize(240, 300);
    QVERIFY(form.ShowAndWait({"CFirstPage", "CThirdPage"}));
    form.Page(kFirst)->setFloating(true);
    QVERIFY(WaitUntil([&] { return TabCount(form) == 1; }));

    form.Page(kFirst)->setFloating(false);
    QVERIFY(WaitUntil([&] { return TabCount(form) == 2; }));
    QVERIFY(ShowsWholeTexts(form));
}

void TabsTest::tabTextsAreNotShortenedInATabBarThatComesLater()
{
    CFormUnderTest form;
    form.resize(240, 300);
    QVERIFY(form.ShowAndWait({"CFirstPage", "CThirdPage", "CSecondPage"}));
    // A second place with two pages, while the first bar still stands.
    form.addDockWidget(Qt::LeftDockWidgetArea, form.Page(kThird));
    auto *extra = new CThirdPage(&form);
    extra->setWindowTitle(QString(kThird) + ", once more");
    form.addDockWidget(Qt::LeftDockWidgetArea, extra);
    form.tabifyDockWidget(form.Page(kThird), extra);
    QVERIFY(WaitUntil([&] { return TabCount(form) == 4; }));
    QCOMPARE(form.TabBars().size(), 2);
    QVERIFY(ShowsWholeTexts(form));
    for (const QTabBar *bar : form.TabBars())
        QCOMPARE(int(bar->contextMenuPolicy()), int(Qt::CustomContextMenu));
}

void TabsTest::switchingTabsStopsARunningTestAndDisablesTheOldPage()
{
    CFormUnderTest form;
    QVERIFY(form.ShowAndWait(ThreePages()));
    CTestPage *first = form.Page(kFirst);
    first->RunOperation();
    QVERIFY(form.ChooseTab(kSecond));
    QCOMPARE(first->stops, 1);
    QVERIFY(!first->isRunning);
    QVERIFY(!first->isEnabled());
    QVERIFY(form.Page(kSecond)->isEnabled());
    QVERIFY(!form.Page(kThird)->isEnabled());
    QVERIFY(form.ChooseTab(kFirst));
    QVERIFY(first->isEnabled());
    QVERIFY(!form.Page(kSecond)->isEnabled());
}

void TabsTest::switchingTabsStopsNothingWhenNoTestRuns()
{
    CFormUnderTest form;
    QVERIFY(form.ShowAndWait(ThreePages()));
    QVERIFY(form.ChooseTab(kSecond));
    QVERIFY(form.ChooseTab(kThird));
    for (const CTestPage *page : form.findChildren<CTestPage *>())
        QCOMPARE(page->stops, 0);
}

void TabsTest::switchingTabsLeavesAFloatingPageEnabledButStopsItsTest()
{
    CFormUnderTest form;
    QVERIFY(form.ShowAndWait(ThreePages()));
    CTestPage *first = form.Page(kFirst);
    first->setFloating(true);
    QVERIFY(WaitUntil([&] { return TabCount(form) == 2; }));
    first->RunOperation();
    // Whichever is on top now: one of these two is a switch.
    QVERIFY(form.ChooseTab(kSecond));
    QVERIFY(form.ChooseTab(kThird));
    QVERIFY(first->isFloating());
    QVERIFY(first->isEnabled());
    QCOMPARE(first->stops, 1);
    QVERIFY(form.Page(kThird)->isEnabled());
    QVERIFY(!form.Page(kSecond)->isEnabled());
}

void TabsTest::floatingThePageOnTopKeepsItEnabledAndEnablesTheNextOne()
{
    CFormUnderTest form;
    QVERIFY(form.ShowAndWait({"CFirstPage", "CSecondPage"}));
    form.Page(kFirst)->setFloating(true);
    QVERIFY(WaitUntil([&] { return form.Page(kSecond)->isEnabled(); }));
    QVERIFY(form.Page(kFirst)->isEnabled());
}

void TabsTest::closingDocksAFloatingPageAgain()
{
    CFormUnderTest form;
    QVERIFY(form.ShowAndWait(ThreePages()));
    CTestPage *first = form.Page(kFirst);
    first->setFloating(true);
    QVERIFY(WaitUntil([&] { return TabCount(form) == 2; }));
    QVERIFY(form.close());
    QVERIFY(!first->isFloating());
    form.ShowWith({});
    QVERIFY(QTest::qWaitForWindowExposed(&form));
    QVERIFY(!first->isFloating());
    QCOMPARE(form.dockWidgetArea(first), Qt::TopDockWidgetArea);
    QVERIFY(WaitUntil([&] { return TabCount(form) == 3; }));
    QCOMPARE(form.TabBars().size(), 1);
}

// The window system closes a floating page, whatever its features.
void TabsTest::closingAFloatingPageStopsItsTestAndDocksIt()
{
    CFormUnderTest form;
    QVERIFY(form.ShowAndWait(ThreePages()));
    CTestPage *first = form.Page(kFirst);
    first->setFloating(true);
    QVERIFY(WaitUntil([&] { return TabCount(form) == 2; }));
    first->isRunning = true;
    first->close();
    QCOMPARE(first->stops, 1);
    QVERIFY(WaitUntil([&] { return TabCount(form) == 3; }));
    QVERIFY(!first->isFloating());
    QVERIFY(!first->isHidden());
    QVERIFY(WaitUntil([&] { return first->isEnabled(); }));
}

void TabsTest::hidingTheWindowStopsTheTestsOfAllPages()
{
    CFormUnderTest form;
    QVERIFY(form.ShowAndWait(ThreePages()));
    form.Page(kFirst)->isRunning = true;
    form.Page(kSecond)->isRunning = true;
    form.hide();
    QCOMPARE(form.Page(kFirst)->stops, 1);
    QCOMPARE(form.Page(kSecond)->stops, 1);
    QCOMPARE(form.activations, (QVector<bool>{true, false}));
}

void TabsTest::busyIsOverWhenNoPageIsBusy()
{
    CFormUnderTest form;
    QVERIFY(form.ShowAndWait(ThreePages()));
    form.Page(kFirst)->setFloating(true);
    QVector<bool> busy;
    connect(&form, &CAutoBindingDataModelForm::Signal_PluginIsBusy, &form,
            [&busy](bool isBusy) { busy.append(isBusy); });
    emit form.Page(kFirst)->Signal_PluginIsBusy(true);
    emit form.Page(kSecond)->Signal_PluginIsBusy(true);
    emit form.Page(kFirst)->Signal_PluginIsBusy(false);
    QCOMPARE(busy, (QVector<bool>{true, true}));
    emit form.Page(kSecond)->Signal_PluginIsBusy(false);
    QCOMPARE(busy, (QVector<bool>{true, true, false}));
}

void TabsTest::closeIsAcceptedAndReportedAsHidden()
{
    CFormUnderTest form;
    QVERIFY(form.ShowAndWait(ThreePages()));
    QVERIFY(form.close());
    QVERIFY(!form.isVisible());
    QCOMPARE(form.activations, (QVector<bool>{true, false}));
}

void TabsTest::destroyingTheFormWithAFloatingPageTakesThePageAlong()
{
    auto form = std::make_unique<CFormUnderTest>();
    QVERIFY(form->ShowAndWait(ThreePages()));
    const QPointer<CTestPage> second = form->Page(kSecond);
    second->setFloating(true);
    form.reset();
    QVERIFY(!second);
}

QUORLIN_TEST_CLASS(TabsTest)
#include "TabsTest.moc"
