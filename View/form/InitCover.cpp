#include "View/form/InitCover.h"

#include <QEvent>
#include <QStatusBar>

CInitCover::CInitCover(QMainWindow *window) : m_window(window), m_blank(new QWidget(window))
{
    m_blank->setAutoFillBackground(true);
    Place();
    m_blank->show();
    window->installEventFilter(this);
}

CInitCover::~CInitCover()
{
    delete m_blank;
}

bool CInitCover::eventFilter(QObject *object, QEvent *event)
{
    switch (event->type()) {
    case QEvent::ChildPolished:
    case QEvent::LayoutRequest:
    case QEvent::Resize:
    case QEvent::Show:
        Place();
        break;
    default:
        break;
    }
    return QObject::eventFilter(object, event);
}

void CInitCover::Place()
{
    if (!m_blank || !m_window)
        return;
    QRect place = m_window->rect();
    const auto *bar = m_window->findChild<QStatusBar *>(QString(), Qt::FindDirectChildrenOnly);
    if (bar && bar->isVisible() && bar->y() > 0)
        place.setBottom(bar->y() - 1);
    m_blank->setGeometry(place);
    m_blank->raise();
}
