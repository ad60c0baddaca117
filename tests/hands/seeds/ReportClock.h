// Time for the tool's reports: a report timer does not fire, the campaign calls its slot when a seed says
// that time has passed. So a seed waits for no report, and the machine's speed makes none.
//
//   CReportClock clock;   // as long as it lives
#pragma once

#include <QObject>

class CReportClock : public QObject
{
public:
    CReportClock();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;
};
