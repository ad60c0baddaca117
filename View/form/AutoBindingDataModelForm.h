// The reusable tool window: pages as tabbed dock widgets, a page menu and a status bar.
//
// The window does not know which pages exist. When it is first shown it asks for a list of class
// names, creates each page through QMetaType, waits in a local event loop until that page's own
// init flow is done, and only then creates the next, so that at most one document request is in
// flight. The window stays disabled until the last page is ready. Only the page on top works:
// switching tabs stops a test that runs on any page, and so does the window when it hides or
// closes. A floating page that is closed docks again, and its test is stopped.
//
// Busy. The window signals busy each time that a page or RF Off begins to work on the target, and
// idle when nothing does any more.
//
// Lifetime. Pages may be removed, or the window itself destroyed, while the init flow waits (the
// host resets or unloads the plug-in); the flow then ends without touching what is gone. A reset
// may also come from inside a signal of a page: the pages leave the window at once, and are
// destroyed when control is back in the event loop. GUI thread only.
//
//   class CQuorlinForm : public CAutoBindingDataModelForm { ... };
//   form.show();   // "Please to wait the init flow..." ... "Init done."
#pragma once

#include <memory>

#include <QEventLoop>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QSet>
#include <QStringList>

#include "Support/MessageBoxMan.h"
#include "View/editors/WheelGuard.h"

class CAutoBindingDataModelDockWidget;

class CAutoBindingDataModelForm : public QMainWindow
{
    Q_OBJECT

public:
    explicit CAutoBindingDataModelForm(QWidget *parent = nullptr);
    ~CAutoBindingDataModelForm() override;

    // Can the tool run on the DUT? Blocks on the link; reason is empty when it can.
    virtual bool QueryPluginSupport(QString &reason) = 0;
    // Prescribed; see docs/decisions/0036-prescribed-surface.md
    virtual bool QueryPluginState() = 0;
    // Destroys all pages; the next show builds them anew.
    virtual void ResetPages() = 0;

    void DisableAllPages();
    void EnableAllPages();

signals:
    void Signal_PluginIsBusy(bool isBusy);

public slots:
    virtual void Slot_GetInitPageListDone(QStringList pageList) = 0;
    virtual void Slot_UpdateStatusbar(QString str) = 0;
    void Slot_DockWidgetsTabChange(bool value);
    void Slot_InitDone();

private slots:
    void SelectPages(QAction *page);
    void ShowContextMenu(const QPoint &pos);

protected:
    void closeEvent(QCloseEvent *event) override;
    void childEvent(QChildEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void hideEvent(QHideEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

    void InitPage(const QStringList &pageList);
    void RemovePages();
    QList<CAutoBindingDataModelDockWidget *> Pages() const;
    // The page that the user works on: a floating one that is active, else the docked one in sight.
    // Null when there is none.
    CAutoBindingDataModelDockWidget *PageOnTop() const;
    // who: a page, or what else of the window works on the target. This window may be gone when it
    // returns.
    void SetBusy(const QObject *who, bool isBusy);

    bool m_isInitStarted = false;  // the page init flow was started
    int m_allInitPageCount = 0;    // names in the page list
    // Pages that reported init done. Prescribed; see docs/decisions/0036-prescribed-surface.md
    int m_currentInitPageCount = 0;
    QSet<const QObject *> m_busy;  // who is busy
    QPointer<QMenu> m_pageMenu;    // the "View" menu of pages
    QString m_speaker;             // the page whose words go to the status bar; empty: the window

private:
    CAutoBindingDataModelDockWidget *CreatePage(const QString &name, QStringList &failedPages);
    bool InitOnePage(CAutoBindingDataModelDockWidget *page);
    void FinishInit(QMenu *menu, CAutoBindingDataModelDockWidget *firstPage,
                    const QStringList &failedPages);
    // False when the pages were removed in the course of it.
    bool StopTests();
    void WireTabBar(QObject *child);
    void MarkPageOnTop();
    template <typename Pass>
    void RelayPageSignal(const Pass &pass);

    // Signals of pages that are being passed on, and pages that were removed meanwhile.
    struct SRelay
    {
        int depth = 0;
        QVector<QPointer<QObject>> leaving;
    };

    std::shared_ptr<SRelay> m_relay = std::make_shared<SRelay>();
    std::unique_ptr<QMenuBar> m_pageMenuBar;  // holds the menu; never attached to the window
    CMessageBoxMan m_messageBox;
    CWheelGuard m_wheel;              // of the tab bars
    QPointer<QEventLoop> m_initLoop;  // where the init flow waits for a page
    int m_initRun = 0;  // changes when pages are removed, which ends an init flow that waits
};
