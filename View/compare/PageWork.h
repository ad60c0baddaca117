// A request of a calibration page beside its flows: the page is off while it runs and tells how far it is.
//
// Both functions are false when nothing may follow: the page can't take the request, or has left its window, or
// is gone. It lives no longer than its page; an object for each kind of request. GUI thread.
//
//   if (m_work.Begin("Compare"))
//       page.viewCtrl->RequestComparison(...);
#pragma once

#include <QObject>

#include "Model/OperationResult.h"
#include "View/compare/ComparePage.h"

class CPageWork : public QObject
{
public:
    explicit CPageWork(const SComparePage &page) : m_page(page) {}

    // work: its name, for the status bar.
    bool Begin(const QString &work);
    bool End();

private:
    const SComparePage m_page;
};

// Why a request did not give what it should, in one line.
QString FailureText(const SEachItemOperationResult &result);
