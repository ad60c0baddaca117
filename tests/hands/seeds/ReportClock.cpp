#include "tests/hands/seeds/ReportClock.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>

CReportClock::CReportClock()
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool CReportClock::eventFilter(QObject *object, QEvent *event)
{
    return event->type() == QEvent::Timer && object->objectName() == "reportTimer";
}
