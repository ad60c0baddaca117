// Small pages for the tests of the tool form.
//
// Three page classes that differ in their titles, and types that cannot become a page. A page
// answers its own document request with an empty document, queued as a view controller's answer is,
// unless the test holds the requests; then it waits for Answer(). What pages do is noted in
// PageLog(), in order: "First: built", "First: asked", "First: stop" (only while it is said to
// run), "First: gone". GUI thread.
//
//   HoldRequests(true);
//   ... show the form ...
//   form.Page("First")->Answer();
#pragma once

#include "View/engine/AutoBindingDataModelDockWidget.h"

QStringList &PageLog();
// Pages leave their requests unanswered while this is set.
void HoldRequests(bool isHeld);
// What QMetaType must know; given to the form as its registrar.
void RegisterTestPages();

class CTestPage : public CAutoBindingDataModelDockWidget
{
    Q_OBJECT

public:
    CTestPage(const QString &title, QWidget *parent);
    ~CTestPage() override;

    QWidget *GetRootWidget() override { return this; }
    int GetModelInterface() override { return eInterfaceCmdIf; }
    void RequestDataModel() override;
    void DisableTestControls() override {}
    void EnableTestControls() override {}

    void Answer() { Slot_GetDataModelDone(std::string()); }
    // Announces busy as a page's own slot does, and goes on with the page's members behind it.
    void RunOperation();

    bool isRunning = false;      // a test runs, as an enabled Stop button says
    bool announcesStop = false;  // a stop says busy first
    int stops = 0;               // running tests that were stopped

public slots:
    void Slot_TriggerStopTest() override;
};

class CFirstPage : public CTestPage
{
    Q_OBJECT

public:
    Q_INVOKABLE explicit CFirstPage(QWidget *parent) : CTestPage("First", parent) {}
};

class CSecondPage : public CTestPage
{
    Q_OBJECT

public:
    Q_INVOKABLE explicit CSecondPage(QWidget *parent) : CTestPage("Second", parent) {}
};

// Its title is longer than Qt would show in a tab of a small window.
class CThirdPage : public CTestPage
{
    Q_OBJECT

public:
    Q_INVOKABLE explicit CThirdPage(QWidget *parent)
        : CTestPage("Third page with a title that is by far the longest of the three", parent)
    {
    }
};

// A page whose constructor is not invokable.
class CHiddenPage : public CTestPage
{
    Q_OBJECT

public:
    explicit CHiddenPage(QWidget *parent) : CTestPage("Hidden", parent) {}
};

// A dock widget that is no page.
class CForeignDock : public QDockWidget
{
    Q_OBJECT

public:
    Q_INVOKABLE explicit CForeignDock(QWidget *parent) : QDockWidget(parent) {}
};

// No QObject at all.
struct SPlainRecord
{
    int value;
};
