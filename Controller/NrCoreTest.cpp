// Tests and stops of the core.
#include <QtConcurrent>

#include "Controller/NrCore.h"
#include "Controller/PageTable.h"
#include "Model/ModelText.h"
#include "Model/StatusTable.h"
#include "Support/Log.h"

namespace {

constexpr uint32_t kStopNr = 1;  // radio kind of a multi-RAT stop

}  // namespace

void CNrCore::Test(QString pageName, std::string document)
{
    QtConcurrent::run(
        [this, pageName, document = std::move(document)] { TestInternal(pageName, document); });
}

void CNrCore::TestInternal(const QString &pageName, const std::string &document)
{
    const CLockSentry lock(m_targetLock);
    qCDebug(lcCore) << "CNrCore::Start--> " << pageName;
    m_errorMessage.clear();
    int status = eStatusNotExecuted;
    try {
        status = RunTestStep(m_pageMap[pageName], ModelFromText(document));
    } catch (...) {
        qCCritical(lcCore) << "CNrCore::Test ended by an exception" << pageName;
    }
    qCDebug(lcCore) << "CNrCore::Done--> " << pageName;
    emit Signal_TestDone({pageName, status, m_errorMessage}, std::string());
}

int CNrCore::RunTestStep(int pageId, const QJsonObject &document)
{
    struct SStep
    {
        EPageId page;
        int (CNrCore::*run)(const QJsonObject &);
    };
    static constexpr SStep kSteps[] = {
        {EPageId::ContRx, &CNrCore::RunContRxTest},
    };
    for (const SStep &step : kSteps) {
        if (static_cast<int>(step.page) == pageId)
            return m_target.GetNrGeneration() == 1 ? (this->*step.run)(document)
                                                   : eStatusNotExecuted;
    }
    return eStatusNotExecuted;
}

int CNrCore::RunContRxTest(const QJsonObject &document)
{
    const SMMContRxCmdV7 command = m_cmdBuilder.GetContRxCmdV7(document);
    const uint32_t status = m_contRx.RunContRx(&command);
    m_errorMessage = m_contRx.GetErrorMessage();
    return static_cast<int>(status);
}

void CNrCore::Stop()
{
    emit Signal_TestStopDone({QString(), eStatusNotExecuted,
                              QStringLiteral("Quorlin RF tool should call the new stop function")});
}

void CNrCore::TestStopStart(bool isNr)
{
    QtConcurrent::run([this, isNr] { TestStopInternal(isNr); });
}

void CNrCore::TestStopInternal(bool isNr)
{
    const CLockSentry lock(m_targetLock);
    const uint32_t status = isNr ? m_nrTestStop.Stop() : m_testStop.Stop(kStopNr);
    m_errorMessage = isNr ? m_nrTestStop.GetErrorMessage() : m_testStop.GetErrorMessage();
    emit Signal_TestStopDone({QString(), static_cast<int>(status), m_errorMessage});
}
