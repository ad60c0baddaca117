#include "View/compare/PageWork.h"

#include "Model/StatusTable.h"
#include "Support/Log.h"

bool CPageWork::Begin(const QString &work)
{
    if (!m_page.begin())
        return false;
    qCDebug(lcForm) << work;
    connect(m_page.viewCtrl, &CQuorlinViewCtrl::Signal_CalWork, this,
            [this, work](const QString &step, int routesDone, int routesInAll) {
                m_page.showProgress(routesDone, routesInAll);
                if (routesInAll > 0)
                    m_page.say(QStringLiteral("%1: %2, %3 of %4 routes")
                                   .arg(work, step)
                                   .arg(routesDone)
                                   .arg(routesInAll));
            });
    m_page.say(work + QLatin1String("..."));
    return true;
}

bool CPageWork::End()
{
    disconnect(m_page.viewCtrl, &CQuorlinViewCtrl::Signal_CalWork, this, nullptr);
    return m_page.end();
}

QString FailureText(const SEachItemOperationResult &result)
{
    const QString why = result.message.trimmed();
    return why.isEmpty() ? LookupStatus(result.status).text : why;
}
