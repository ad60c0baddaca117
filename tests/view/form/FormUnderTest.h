// The tool form in the hands of a test: Quorlin RF's own form, with the test pages and a page list
// that the test gives in place of the core's.
//
// Everything but the list is the form's own: show, init flow, tabs, menu, reset. GUI thread.
//
//   CFormUnderTest form;
//   QVERIFY(form.ShowAndWait({"CFirstPage", "CSecondPage"}));
//   form.ChooseTab("Second");
//   QVERIFY(!form.Page("First")->isEnabled());
#pragma once

#include <QMenu>
#include <QTabBar>

#include "View/form/QuorlinForm.h"
#include "tests/view/form/TestPages.h"

class CFormUnderTest : public CQuorlinForm
{
    Q_OBJECT

public:
    CFormUnderTest();

    // Shows the window, and answers its request for the page list if it makes one. Returns when the
    // init flow has ended or has been cut short.
    void ShowWith(const QStringList &pageList);
    // The same, queued: the flow runs in the next event loop.
    void ShowWithLater(const QStringList &pageList);
    // True when the flow ended with "Init done.".
    bool ShowAndWait(const QStringList &pageList);

    QString Status() const;
    CTestPage *Page(const QString &title) const;
    // All pages, in the order of their tabs.
    QStringList PageTitles() const;
    QStringList MenuTitles() const;
    QMenu *PageMenu() const { return m_pageMenu; }
    // Tab bars that show tabs now.
    QList<QTabBar *> TabBars() const;
    // Clicks the tab of that text; false when there is none.
    bool ChooseTab(const QString &title);

    QStringList statuses;       // every line of the status bar, in order
    QVector<bool> activations;  // what Signal_PluginIsActivated carried
};

// Titles of the test pages.
constexpr char kFirst[] = "First";
constexpr char kSecond[] = "Second";
constexpr char kThird[] = "Third page with a title that is by far the longest of the three";

// All three pages, in their order.
QStringList ThreePages();
