#include "tests/view/form/FormUnderTest.h"

#include <QAction>
#include <QStatusBar>
#include <QTest>
#include <QTimer>

CFormUnderTest::CFormUnderTest() : CQuorlinForm(&RegisterTestPages)
{
    PageLog().clear();
    HoldRequests(false);
    connect(statusBar(), &QStatusBar::messageChanged, this,
            [this](const QString &text) { statuses.append(text); });
    connect(this, &CQuorlinForm::Signal_PluginIsActivated, this,
            [this](bool isActivated) { activations.append(isActivated); });
}

void CFormUnderTest::ShowWith(const QStringList &pageList)
{
    const bool asks = !m_isInitStarted;
    show();
    // The form lets go of the core's answer as soon as it has one list.
    if (asks)
        Slot_GetInitPageListDone(pageList);
}

void CFormUnderTest::ShowWithLater(const QStringList &pageList)
{
    QTimer::singleShot(0, this, [this, pageList] { ShowWith(pageList); });
}

bool CFormUnderTest::ShowAndWait(const QStringList &pageList)
{
    ShowWith(pageList);
    return Status() == "Init done." && QTest::qWaitForWindowExposed(this);
}

QString CFormUnderTest::Status() const
{
    return statusBar()->currentMessage();
}

CTestPage *CFormUnderTest::Page(const QString &title) const
{
    for (CTestPage *page : findChildren<CTestPage *>()) {
        if (page->windowTitle() == title)
            return page;
    }
    return nullptr;
}

QStringList CFormUnderTest::PageTitles() const
{
    QStringList titles;
    for (const QTabBar *bar : TabBars()) {
        for (int i = 0; i < bar->count(); ++i)
            titles.append(bar->tabText(i));
    }
    // A page that is alone in its place has no tab.
    for (const CTestPage *page : findChildren<CTestPage *>()) {
        if (!titles.contains(page->windowTitle()))
            titles.append(page->windowTitle());
    }
    return titles;
}

QStringList CFormUnderTest::MenuTitles() const
{
    QStringList titles;
    if (m_pageMenu) {
        for (const QAction *action : m_pageMenu->actions())
            titles.append(action->text());
    }
    return titles;
}

QList<QTabBar *> CFormUnderTest::TabBars() const
{
    QList<QTabBar *> bars;
    for (QTabBar *bar : findChildren<QTabBar *>()) {
        if (bar->isVisible() && bar->count() > 0)
            bars.append(bar);
    }
    return bars;
}

bool CFormUnderTest::ChooseTab(const QString &title)
{
    for (QTabBar *bar : TabBars()) {
        for (int i = 0; i < bar->count(); ++i) {
            if (bar->tabText(i) == title) {
                bar->setCurrentIndex(i);
                QCoreApplication::processEvents();
                return true;
            }
        }
    }
    return false;
}

QStringList ThreePages()
{
    return {"CFirstPage", "CSecondPage", "CThirdPage"};
}
