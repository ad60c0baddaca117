#include "tests/common/PluginSession.h"

#include <QApplication>
#include <QStatusBar>
#include <QTabBar>
#include <QTest>
#include <QThreadPool>

#include "Simulator/VondSim.h"
#include "tests/common/Cells.h"
#include "tests/common/WaitUntil.h"

namespace {

// A page behind another one is hidden or covered, and disabled.
bool IsInFront(const QDockWidget *page)
{
    return page->isEnabled() && !page->visibleRegion().isEmpty();
}

}  // namespace

QString PluginFile()
{
    return QCoreApplication::applicationDirPath() + "/../plugins/libQuorlinRf.so";
}

CPluginSession::CPluginSession(const QString &profile, uint32_t handle, const QString &page)
    : m_page(page)
{
    VondSim_Reset();
    const QByteArray text = profile.toUtf8();
    if (profile.trimmed().startsWith('{'))
        VondSim_SetProfileText(text.constData());
    else
        VondSim_SetProfile(text.constData());
    VondSim_ClearJournal();
    qApp->setProperty("vondTargetHandle", handle);
    m_loader.setFileName(PluginFile());
    m_object = m_loader.instance();
    m_tool = qobject_cast<VondPluginInterface *>(m_object);
    if (!m_tool)
        qFatal("%s", qPrintable(m_loader.errorString()));
    connect(Object(), SIGNAL(Signal_PluginIsActivated(QString, bool)), this,
            SLOT(OnActivated(QString, bool)));
    connect(Object(), SIGNAL(Signal_PluginIsBusy(QString, bool)), this,
            SLOT(OnBusy(QString, bool)));
    // The core outlives the plug-in object: what it knew of the last session's DUT must go, and
    // with it a stop of what may run there.
    m_tool->ResetPlugin();
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
    busy.clear();
    names.clear();
    VondSim_ClearJournal();
}

CPluginSession::~CPluginSession()
{
    Unload();
    VondSim_Reset();
    QThreadPool::globalInstance()->waitForDone();
}

void CPluginSession::Unload()
{
    if (!m_object)
        return;
    m_tool = nullptr;
    m_object = nullptr;
    m_loader.unload();
}

QMainWindow *CPluginSession::Window() const
{
    if (m_window)
        return m_window;
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == "CQuorlinForm")
            m_window = qobject_cast<QMainWindow *>(widget);
    }
    return m_window;
}

QString CPluginSession::StatusBar() const
{
    const QMainWindow *window = Window();
    return window ? window->findChild<QStatusBar *>()->currentMessage() : QString();
}

QDockWidget *CPluginSession::Page() const
{
    // A reset takes a page out of the window before it destroys it.
    if (!m_shown || m_shown->parent() != Window())
        m_shown = Window() ? Window()->findChild<QDockWidget *>(m_page) : nullptr;
    return m_shown;
}

bool CPluginSession::ShowAndWait()
{
    m_tool->ShowPlugin();
    // The line may be an old one; the window is disabled until its pages are there.
    if (!WaitUntil([&] { return StatusBar() == "Init done." && Window()->isEnabled(); }))
        return false;
    QDockWidget *page = Page();
    if (!page)
        return true;
    page->raise();
    MakeAllEditors(page);
    return WaitUntil([page] { return IsInFront(page); });
}

bool CPluginSession::WaitForStatus(const QString &text) const
{
    return WaitUntil([&] { return StatusBar() == text; });
}

void CPluginSession::Press(const QString &button) const
{
    QTest::mouseClick(Find(button), Qt::LeftButton);
}

bool CPluginSession::ClickTab(const QString &title) const
{
    QDockWidget *page = nullptr;
    for (QDockWidget *dock : Window()->findChildren<QDockWidget *>()) {
        if (dock->windowTitle() == title)
            page = dock;
    }
    if (!page)
        return false;
    // The window keeps the bars of pages that a reset has taken, hidden and without their tabs.
    for (QTabBar *bar : Window()->findChildren<QTabBar *>(QString(), Qt::FindDirectChildrenOnly)) {
        for (int tab = 0; bar->isVisible() && tab < bar->count(); ++tab) {
            if (bar->tabText(tab) == title)
                QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->tabRect(tab).center());
        }
    }
    MakeAllEditors(page);
    return WaitUntil([page] { return IsInFront(page); });
}

void CPluginSession::OnActivated(QString name, bool isActivated)
{
    names.append(name);
    activations.append(isActivated);
}

void CPluginSession::OnBusy(QString name, bool isBusy)
{
    names.append(name);
    busy.append(isBusy);
}
