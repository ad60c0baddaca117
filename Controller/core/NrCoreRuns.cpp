// Tests of the core.
#include "Controller/core/NrCore.h"

#include "Model/HandedDocument.h"
#include "Support/Log.h"
#include "Support/Threads.h"

void CNrCore::Test(QString pageName, std::string document)
{
    Test(std::move(pageName), std::move(document), Moment());
}

void CNrCore::Test(QString pageName, CHandedDocument document, uint64_t asked)
{
    StartOnPool([this, pageName, document = std::move(document), asked]() mutable {
        TestInternal(pageName, std::move(document), asked);
    });
}

void CNrCore::TestInternal(const QString &pageName, CHandedDocument document, uint64_t asked)
{
    const CLockSentry lock(m_targetLock);
    qCDebug(lcCore) << "CNrCore::Start--> " << pageName;
    m_errorMessage.clear();
    int status = eStatusNotExecuted;
    const SPageRow &page = FindPage(PageByName(pageName));
    STestRun run{
        .page = page.id, .stop = page.stop, .asked = asked, .runningTests = m_runningTests};
    try {
        status = RunTestStep(page, run, document.Take());
    } catch (...) {
        qCCritical(lcCore) << "CNrCore::Test ended by an exception" << pageName;
    }
    m_errorMessage = run.message;
    qCDebug(lcCore) << "CNrCore::Done--> " << pageName;
    emit Signal_TestDone({pageName, status, m_errorMessage}, run.answer);
}

int CNrCore::RunTestStep(const SPageRow &page, STestRun &run, QJsonObject document)
{
    if (!page.step)
        return eStatusNotExecuted;
    if (m_runningTests.IsCalledOff(run.asked))
        return eStatusTerminated;
    run.info = SummaryOf(page.name, page.summary, document);
    return m_target.GetNrGeneration() == 1 ? page.step(m_operations, run, document)
                                           : eStatusNotExecuted;
}
