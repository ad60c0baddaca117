#include "View/undo/ChangeCount.h"

#include <QMainWindow>
#include <QStatusBar>

CChangeCount::CChangeCount(QDockWidget *page) : m_page(page)
{
    // A page whose tab is left is not hidden, but moved out of sight.
    connect(page, &QDockWidget::visibilityChanged, this, [this](bool isVisible) {
        m_isInFront = isVisible;
        Place();
    });
}

CChangeCount::~CChangeCount()
{
    delete m_label;
}

void CChangeCount::Show(int count)
{
    if (count == m_count)
        return;
    m_count = count;
    Place();
}

void CChangeCount::Place()
{
    auto *window = qobject_cast<QMainWindow *>(m_page->parentWidget());
    if (m_count > 0 && !m_label && window) {
        m_label = new QLabel;
        m_label->setObjectName(QStringLiteral("m_lblChangedCells"));
        m_label->setToolTip(
            QStringLiteral("Cells of all routes that differ from what was last read or imported"));
        // To the left of what is always there.
        window->statusBar()->insertPermanentWidget(0, m_label);
        // No higher than the status line, or the page would move when the label comes and goes.
        m_label->setFixedHeight(m_label->fontMetrics().height());
    }
    if (!m_label)
        return;
    m_label->setText(m_count == 1 ? QStringLiteral("1 changed cell")
                                  : QStringLiteral("%1 changed cells").arg(m_count));
    m_label->setVisible(m_count > 0 && m_isInFront);
}
