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
    std::string answer;
    try {
        status = RunTestStep(m_pageMap[pageName], ModelFromText(document), answer);
    } catch (...) {
        qCCritical(lcCore) << "CNrCore::Test ended by an exception" << pageName;
    }
    qCDebug(lcCore) << "CNrCore::Done--> " << pageName;
    emit Signal_TestDone({pageName, status, m_errorMessage}, answer);
}

template <typename Operation, typename Command>
int CNrCore::RunCommand(Operation &operation, uint32_t (Operation::*run)(const Command *),
                        const Command &command)
{
    const uint32_t status = (operation.*run)(&command);
    m_errorMessage = operation.GetErrorMessage();
    return static_cast<int>(status);
}

int CNrCore::RunTestStep(int pageId, QJsonObject document, std::string &answer)
{
    struct SStep
    {
        EPageId page;
        int (*run)(CNrCore &core, QJsonObject &document, std::string &answer);
    };
    static constexpr SStep kSteps[] = {
        {EPageId::Rssi, [](CNrCore &core, QJsonObject &document,
                           std::string &answer) { return core.RunRssiTest(document, answer); }},
        {EPageId::ContRx,
         [](CNrCore &core, QJsonObject &document, std::string &) {
             return core.RunCommand(core.m_contRx, &CMultiRatContRxV7::RunContRx,
                                    core.m_cmdBuilder.GetContRxCmdV7(document));
         }},
        {EPageId::SingleToneTx,
         [](CNrCore &core, QJsonObject &document, std::string &) {
             return core.RunCommand(core.m_singleToneTx, &CMultiRatSingleToneTxV7::RunSingleTone,
                                    core.m_cmdBuilder.GetSingleToneTxCmdV7(document));
         }},
        {EPageId::PuschTxForce,
         [](CNrCore &core, QJsonObject &document, std::string &) {
             return core.RunCommand(core.m_puschTx, &CNrPuschTxV7::RunPuschTx,
                                    core.m_cmdBuilder.GetPuschTxForceCmdV7(document));
         }},
        {EPageId::PuschTxNormal,
         [](CNrCore &core, QJsonObject &document, std::string &) {
             return core.RunCommand(core.m_puschTx, &CNrPuschTxV7::RunPuschTx,
                                    core.m_cmdBuilder.GetPuschTxNormalCmdV7(document));
         }},
        {EPageId::RsrpForce,
         [](CNrCore &core, QJsonObject &document, std::string &) {
             return core.RunCommand(core.m_rsrp, &CNrRsrpV7::RunRsrp,
                                    core.m_cmdBuilder.GetRsrpForceCmdV7(document));
         }},
        {EPageId::RsrpNormal,
         [](CNrCore &core, QJsonObject &document, std::string &) {
             return core.RunCommand(core.m_rsrp, &CNrRsrpV7::RunRsrp,
                                    core.m_cmdBuilder.GetRsrpNormalCmdV7(document));
         }},
    };
    for (const SStep &step : kSteps) {
        if (static_cast<int>(step.page) == pageId)
            return m_target.GetNrGeneration() == 1 ? step.run(*this, document, answer)
                                                   : eStatusNotExecuted;
    }
    return eStatusNotExecuted;
}

// The one test whose answer is a document: it measures and is over.
int CNrCore::RunRssiTest(QJsonObject &document, std::string &answer)
{
    SMMRssiCnfV7 result = {};
    const uint32_t status = m_rssi.RunRssi(m_cmdBuilder.GetRssiCmdV7(document), &result);
    m_errorMessage = m_rssi.GetErrorMessage();
    m_responseBuilder.UpdateRssiResultV7(document, result, status == 0);
    answer = ModelToText(document);
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
