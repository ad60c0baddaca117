#include "View/engine/StatusProgress.h"

#include <QMainWindow>
#include <QProgressBar>
#include <QStatusBar>

namespace {

constexpr int kDelay = 300;  // ms; what is shorter needs no sign that it runs
constexpr int kChars = 24;   // width of the bar

}  // namespace

CStatusProgress::CStatusProgress(QWidget *page) : m_page(page)
{
    m_delay.setSingleShot(true);
    m_delay.setInterval(kDelay);
    connect(&m_delay, &QTimer::timeout, this, [this] { Show(0, 0); });
}

// The bar stands in the window's status bar and would stay there.
CStatusProgress::~CStatusProgress()
{
    delete m_bar;
}

void CStatusProgress::Await()
{
    if (!m_bar)
        m_delay.start();
}

void CStatusProgress::Show(int done, int all)
{
    m_delay.stop();
    if (auto *window = qobject_cast<QMainWindow *>(m_page->parentWidget()); window && !m_bar) {
        m_bar = new QProgressBar;
        m_bar->setTextVisible(false);
        m_bar->setAccessibleName(QStringLiteral("Progress"));
        // No higher than the text beside it, or the page would move when it comes and goes.
        const QFontMetrics text = window->statusBar()->fontMetrics();
        m_bar->setFixedSize(kChars * text.averageCharWidth(), text.height());
        // To the left of what is always there.
        window->statusBar()->insertPermanentWidget(0, m_bar);
    }
    if (!m_bar)
        return;
    m_bar->setRange(0, all);
    m_bar->setValue(done);
}

void CStatusProgress::End()
{
    m_delay.stop();
    delete m_bar;
}
