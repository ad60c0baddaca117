#include "View/form/AutoBindingDataModelForm.h"

#include <QCloseEvent>
#include <QEventLoop>
#include <QMetaType>
#include <QScopedValueRollback>
#include <QTabBar>

#include "Support/Log.h"
#include "Support/TraceNote.h"
#include "View/editors/TabOrder.h"
#include "View/engine/AutoBindingDataModelDockWidget.h"
#include "View/form/FloatPlace.h"
#include "View/form/InitCover.h"
#include "View/form/NarrowTabs.h"

namespace {

// Holds a window at its size. A new page stands beside the earlier ones until it is ready, and the
// window would grow to the width of both.
class CSizeHold
{
public:
    explicit CSizeHold(QWidget *window) : m_window(window) { window->setFixedSize(window->size()); }
    ~CSizeHold() { Release(); }
    CSizeHold(const CSizeHold &) = delete;
    CSizeHold &operator=(const CSizeHold &) = delete;

    void Release()
    {
        if (!m_window)
            return;
        m_window->setMinimumSize(0, 0);
        m_window->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        m_window.clear();
    }

private:
    QPointer<QWidget> m_window;
};

}  // namespace

CAutoBindingDataModelForm::CAutoBindingDataModelForm(QWidget *parent) : QMainWindow(parent)
{
    m_messageBox.SetOwner(this);
}

// Pages go first, and are disconnected: their hiding would reach a window that is half destroyed.
CAutoBindingDataModelForm::~CAutoBindingDataModelForm()
{
    RemovePages();
}

QList<CAutoBindingDataModelDockWidget *> CAutoBindingDataModelForm::Pages() const
{
    return findChildren<CAutoBindingDataModelDockWidget *>();
}

void CAutoBindingDataModelForm::DisableAllPages()
{
    for (CAutoBindingDataModelDockWidget *page : Pages())
        page->DisableTestControls();
}

void CAutoBindingDataModelForm::EnableAllPages()
{
    for (CAutoBindingDataModelDockWidget *page : Pages())
        page->EnableTestControls();
}

// The host may reset from inside a signal of a page, which then stands in the midst of its own
// slot: such pages leave the window at once too, but are destroyed when that slot has ended.
void CAutoBindingDataModelForm::RemovePages()
{
    ++m_initRun;
    if (m_initLoop)
        m_initLoop->quit();
    const QList<CAutoBindingDataModelDockWidget *> pages = Pages();
    for (CAutoBindingDataModelDockWidget *page : pages) {
        page->disconnect(this);
        page->removeEventFilter(this);
        m_busy.remove(page);
    }
    for (CAutoBindingDataModelDockWidget *page : pages) {
        removeDockWidget(page);
        if (m_relay->depth == 0) {
            delete page;
            continue;
        }
        page->setParent(nullptr);
        m_relay->leaving.append(page);
    }
}

// Passes on a signal that a page emits. Pages that leave meanwhile go when control is back in the
// event loop that the signal came from, not in one that a listener runs.
template <typename Pass>
void CAutoBindingDataModelForm::RelayPageSignal(const Pass &pass)
{
    const std::shared_ptr<SRelay> relay = m_relay;  // may outlive this window
    ++relay->depth;
    pass();
    if (--relay->depth > 0)
        return;
    for (const QPointer<QObject> &page : qAsConst(relay->leaving)) {
        if (page)
            page->deleteLater();
    }
    relay->leaving.clear();
}

bool CAutoBindingDataModelForm::focusNextPrevChild(bool next)
{
    return MoveFocus(this, next) || QMainWindow::focusNextPrevChild(next);
}

// A floating page docks again, so that the next show finds it in its place.
void CAutoBindingDataModelForm::closeEvent(QCloseEvent *event)
{
    for (CAutoBindingDataModelDockWidget *page : Pages()) {
        if (page->isFloating())
            page->setFloating(false);
    }
    QMainWindow::closeEvent(event);
}

// No test runs in a hidden window.
void CAutoBindingDataModelForm::hideEvent(QHideEvent *event)
{
    QMainWindow::hideEvent(event);
    StopTests();
}

// A page that stops signals busy, and the host may reset then. A reset stops the tests of all pages,
// so the others have nothing to stop any more.
bool CAutoBindingDataModelForm::StopTests()
{
    const QPointer<CAutoBindingDataModelForm> self(this);
    const int run = m_initRun;
    for (CAutoBindingDataModelDockWidget *page : Pages()) {
        page->Slot_TriggerStopTest();
        if (!self || run != m_initRun)
            return false;
    }
    return true;
}

// The window system can close a floating page, whatever its features. The page docks again when its
// own window has closed.
bool CAutoBindingDataModelForm::eventFilter(QObject *watched, QEvent *event)
{
    auto *page = qobject_cast<CAutoBindingDataModelDockWidget *>(watched);
    if (event->type() == QEvent::Close && page && page->isFloating()) {
        const auto dock = [page] {
            page->show();  // a page that docks unseen loses its fonts and its grey
            page->setFloating(false);
            page->raise();
        };
        QMetaObject::invokeMethod(page, dock, Qt::QueuedConnection);
        page->Slot_TriggerStopTest();
        return false;
    }
    return QMainWindow::eventFilter(watched, event);
}

void CAutoBindingDataModelForm::SetBusy(const QObject *who, bool isBusy)
{
    if (isBusy)
        m_busy.insert(who);
    else
        m_busy.remove(who);
    if (isBusy || m_busy.isEmpty())
        emit Signal_PluginIsBusy(isBusy);
}

// Qt makes a tab bar whenever pages come to share a place, also when the user docks them anew.
void CAutoBindingDataModelForm::childEvent(QChildEvent *event)
{
    QMainWindow::childEvent(event);
    if (event->type() == QEvent::ChildPolished)
        WireTabBar(event->child());
}

void CAutoBindingDataModelForm::WireTabBar(QObject *child)
{
    auto *bar = qobject_cast<QTabBar *>(child);
    if (!bar)
        return;
    m_wheel.Guard(bar);
    bar->setElideMode(Qt::ElideNone);
    NarrowTabs(bar);
    bar->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(bar, &QTabBar::customContextMenuRequested, this,
            &CAutoBindingDataModelForm::ShowContextMenu, Qt::UniqueConnection);
}

void CAutoBindingDataModelForm::InitPage(const QStringList &pageList)
{
    setDockOptions(AllowTabbedDocks | ForceTabbedDocks);
    setTabPosition(Qt::TopDockWidgetArea, QTabWidget::North);
    setTabShape(QTabWidget::Triangular);
    m_allInitPageCount = pageList.size();
    m_currentInitPageCount = 0;
    qCDebug(lcForm) << "pageList.length()" << pageList.length();

    delete menuWidget();
    delete m_pageMenu;
    const QPointer<QMenu> menu = new QMenu(QStringLiteral("View"), this);
    menu->setFont(QFont(QStringLiteral("Arial")));

    QStringList failedPages;
    QPointer<CAutoBindingDataModelDockWidget> firstPage;
    CSizeHold size(this);
    auto cover = std::make_unique<CInitCover>(this);
    for (const QString &name : pageList) {
        CAutoBindingDataModelDockWidget *page = CreatePage(name, failedPages);
        if (!page)
            continue;
        menu->addAction(page->windowTitle());
        if (!InitOnePage(page)) {
            delete menu;
            return;
        }
        if (firstPage)
            tabifyDockWidget(firstPage, page);
        else
            firstPage = page;
    }
    size.Release();
    cover.reset();
    FinishInit(menu, firstPage, failedPages);
}

CAutoBindingDataModelDockWidget *CAutoBindingDataModelForm::CreatePage(const QString &name,
                                                                       QStringList &failedPages)
{
    const QByteArray idPageName = (name + QLatin1Char('*')).toLatin1();
    qCDebug(lcForm) << "idPageName: " << idPageName;
    const int type = QMetaType::type(idPageName);
    if (type == QMetaType::UnknownType) {
        failedPages.append(name + QLatin1String(": unknown type"));
        qCDebug(lcForm) << "InitPage: unknown type";
        return nullptr;
    }
    const QMetaObject *metaObject = QMetaType::metaObjectForType(type);
    if (!metaObject) {
        failedPages.append(name + QLatin1String(": no QMetaObject"));
        qCDebug(lcForm) << "InitPage: no QMetaObject";
        return nullptr;
    }
    QObject *instance = metaObject->newInstance(Q_ARG(QWidget *, this));
    auto *page = qobject_cast<CAutoBindingDataModelDockWidget *>(instance);
    if (!page) {
        delete instance;
        failedPages.append(name + QLatin1String(": cannot new Instance"));
        qCDebug(lcForm) << "InitPage: cannot new Instance.";
        return nullptr;
    }
    qCDebug(lcForm) << "idPageName: " << name << "Done" << page->windowTitle();
    return page;
}

// Shows the page, which starts its init flow, and waits for its end. False when the pages were
// removed meanwhile, or this window was destroyed.
bool CAutoBindingDataModelForm::InitOnePage(CAutoBindingDataModelDockWidget *page)
{
    connect(page, &CAutoBindingDataModelDockWidget::Signal_UpdateStatus, this,
            [this, page](const QString &text) {
                const QScopedValueRollback<QString> speaker(m_speaker, page->windowTitle());
                RelayPageSignal([&] { Slot_UpdateStatusbar(text); });
            });
    connect(page, &CAutoBindingDataModelDockWidget::Signal_InitDone, this,
            &CAutoBindingDataModelForm::Slot_InitDone);
    connect(page, &CAutoBindingDataModelDockWidget::Signal_PluginIsBusy, this,
            [this, page](bool isBusy) { RelayPageSignal([&] { SetBusy(page, isBusy); }); });
    page->installEventFilter(this);
    NotePresses(page, page->windowTitle());

    QEventLoop loop;
    bool isDone = false;
    connect(page, &CAutoBindingDataModelDockWidget::Signal_InitDone, &loop, [&loop, &isDone] {
        isDone = true;
        loop.quit();
    });
    connect(page, &QObject::destroyed, &loop, &QEventLoop::quit);
    const QPointer<CAutoBindingDataModelForm> self(this);
    const int run = m_initRun;
    m_initLoop = &loop;
    addDockWidget(Qt::TopDockWidgetArea, page);
    if (!isDone && self && run == m_initRun)
        loop.exec();
    return isDone && self && run == m_initRun;
}

void CAutoBindingDataModelForm::FinishInit(QMenu *menu, CAutoBindingDataModelDockWidget *firstPage,
                                           const QStringList &failedPages)
{
    setEnabled(true);
    if (m_allInitPageCount == 0) {
        delete menu;
        Slot_UpdateStatusbar(QStringLiteral("Init failed."));
        m_messageBox.Show(eBoxWarning, windowTitle(),
                          QStringLiteral("Without any RF page init flow."), {}, {}, -1);
        return;
    }

    // The bar is not shown: the menu is reached as a context menu alone.
    m_pageMenuBar = std::make_unique<QMenuBar>();
    connect(menu, &QMenu::triggered, this, &CAutoBindingDataModelForm::SelectPages);
    connect(menu, &QMenu::aboutToShow, this, &CAutoBindingDataModelForm::MarkPageOnTop);
    m_pageMenuBar->addMenu(menu);
    m_pageMenu = menu;
    for (QTabBar *bar : findChildren<QTabBar *>(QString(), Qt::FindDirectChildrenOnly))
        WireTabBar(bar);

    if (!failedPages.isEmpty()) {
        const QPointer<CAutoBindingDataModelForm> self(this);
        const int run = m_initRun;
        m_messageBox.Show(eBoxCritical, windowTitle(),
                          QStringLiteral("There are some page failed in init flow"),
                          failedPages.join(QLatin1Char('\n')), {}, -1);
        if (!self || run != m_initRun)
            return;
    }

    for (CAutoBindingDataModelDockWidget *page : Pages()) {
        // A page that is tabbed while the window is hidden stays hidden, without a tab.
        if (page->isHidden())
            page->show();
        page->setContextMenuPolicy(Qt::CustomContextMenu);
        page->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetFloatable);
        connect(page, &QDockWidget::visibilityChanged, this,
                &CAutoBindingDataModelForm::Slot_DockWidgetsTabChange);
        connect(page, &QWidget::customContextMenuRequested, this,
                &CAutoBindingDataModelForm::ShowContextMenu);
        FloatBeside(page);
    }
    if (firstPage)
        firstPage->raise();
    Slot_UpdateStatusbar(QStringLiteral("Init done."));
}

void CAutoBindingDataModelForm::Slot_InitDone()
{
    ++m_currentInitPageCount;
    qCDebug(lcForm) << windowTitle()
                    << " Slot_InitDone() m_allInitPageCount: " << m_allInitPageCount
                    << " m_currentInitPageCount" << m_currentInitPageCount;
}

void CAutoBindingDataModelForm::Slot_DockWidgetsTabChange(bool value)
{
    auto *top = qobject_cast<QDockWidget *>(sender());
    if (!top || !value)
        return;
    qCDebug(lcForm) << top->windowTitle() << " Slot_DockWidgetsTabChange() from " << windowTitle();
    if (!StopTests())
        return;
    for (CAutoBindingDataModelDockWidget *page : Pages())
        page->setEnabled(page == top || page->isFloating());
}

void CAutoBindingDataModelForm::ShowContextMenu(const QPoint &pos)
{
    const auto *widget = qobject_cast<QWidget *>(sender());
    if (m_pageMenu && widget)
        m_pageMenu->exec(widget->mapToGlobal(pos));
}

// Of docked pages that share a tab bar, only the one on top is in sight.
CAutoBindingDataModelDockWidget *CAutoBindingDataModelForm::PageOnTop() const
{
    CAutoBindingDataModelDockWidget *onTop = nullptr;
    for (CAutoBindingDataModelDockWidget *page : Pages()) {
        if (page->isFloating() && page->isActiveWindow())
            return page;
        if (!page->isFloating() && page->isEnabled() && !page->visibleRegion().isEmpty())
            onTop = page;
    }
    return onTop;
}

void CAutoBindingDataModelForm::MarkPageOnTop()
{
    const CAutoBindingDataModelDockWidget *page = PageOnTop();
    const QString onTop = page && !page->isFloating() ? page->windowTitle() : QString();
    for (QAction *action : m_pageMenu->actions()) {
        action->setCheckable(true);
        action->setChecked(action->text() == onTop);
    }
}

void CAutoBindingDataModelForm::SelectPages(QAction *page)
{
    for (CAutoBindingDataModelDockWidget *dock : Pages()) {
        if (dock->windowTitle() == page->text())
            dock->raise();
    }
}
