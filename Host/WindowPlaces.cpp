#include "Host/WindowPlaces.h"

#include <algorithm>

#include <QEvent>
#include <QMainWindow>
#include <QScreen>
#include <QSplitter>
#include <QTabWidget>

#include "Host/HostSettings.h"
#include "Host/ToolWindow.h"

namespace {

constexpr char kHostPlace[] = "window/host";
constexpr char kToolPlace[] = "window/tool";
constexpr char kDivision[] = "window/division";
constexpr char kPageInFront[] = "window/page";

constexpr int kTitleBar = 32;  // usual height of a window's title bar
constexpr int kKeepMs = 1000;
constexpr int kGap = 8;
constexpr int kMostWidth = 960;
constexpr int kMostHeight = 1040;

QSplitter *DivisionOf(QMainWindow &host)
{
    return host.findChild<QSplitter *>("m_splitter");
}

QTabWidget *PagesOf(QMainWindow &host)
{
    return host.findChild<QTabWidget *>("m_panels");
}

void RaisePage(QTabWidget *pages, const QString &title)
{
    for (int i = 0; pages && i < pages->count(); ++i) {
        if (pages->tabText(i) == title)
            pages->setCurrentIndex(i);
    }
}

}  // namespace

SWindowPlaces SideBySide(const QRect &available, const QSize &tool, const QSize &hostLeast)
{
    const int room = available.width() - tool.width() - kGap;
    const int least = std::min(hostLeast.width(), available.width());
    const int width = std::clamp(room, least, std::max(least, kMostWidth));
    const int beside = available.left() + tool.width() + kGap;
    const int rightmost = available.left() + available.width() - width;
    return {.tool = available.topLeft(),
            .host = {std::min(beside, rightmost), available.top()},
            .hostSize = {width, std::min(available.height() - kTitleBar, kMostHeight)}};
}

CWindowPlaces::CWindowPlaces(QMainWindow &host) : m_host(&host)
{
    QMainWindow *tool = FindToolWindow();
    const SWindowPlaces places =
        SideBySide(host.screen()->availableGeometry(), tool ? tool->size() : QSize(0, 0),
                   host.minimumSizeHint());
    host.move(places.host);
    host.resize(places.hostSize);
    if (tool)
        tool->move(places.tool);
    Restore();
    m_keep.setSingleShot(true);
    m_keep.setInterval(kKeepMs);
    connect(&m_keep, &QTimer::timeout, this, &CWindowPlaces::Keep);
    host.installEventFilter(this);
    if (tool)
        tool->installEventFilter(this);
}

bool CWindowPlaces::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize)
        m_keep.start();
    return QObject::eventFilter(watched, event);
}

// What can't be read leaves all as it is.
void CWindowPlaces::Restore()
{
    const CHostSettings settings;
    m_host->restoreGeometry(settings.Value(kHostPlace).toByteArray());
    if (QMainWindow *tool = FindToolWindow())
        tool->restoreGeometry(settings.Value(kToolPlace).toByteArray());
    if (QSplitter *division = DivisionOf(*m_host))
        division->restoreState(settings.Value(kDivision).toByteArray());
    RaisePage(PagesOf(*m_host), settings.Value(kPageInFront).toString());
}

CWindowPlaces::~CWindowPlaces()
{
    Keep();
}

void CWindowPlaces::Keep()
{
    if (!m_host)
        return;
    CHostSettings settings;
    settings.Set(kHostPlace, m_host->saveGeometry());
    if (const QMainWindow *tool = FindToolWindow())
        settings.Set(kToolPlace, tool->saveGeometry());
    if (const QSplitter *division = DivisionOf(*m_host))
        settings.Set(kDivision, division->saveState());
    if (const QTabWidget *pages = PagesOf(*m_host))
        settings.Set(kPageInFront, pages->tabText(pages->currentIndex()));
}
