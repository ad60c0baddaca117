// Tests and stops of the core.
#include "Controller/NrCore.h"
#include "Controller/PageTable.h"
#include "Model/ModelText.h"
#include "Model/StatusTable.h"
#include "Support/Log.h"
#include "Support/Threads.h"

namespace {

constexpr uint32_t kStopNr = 1;  // radio kind of a multi-RAT stop

}  // namespace

void CNrCore::Test(QString pageName, std::string document)
{
    StartOnPool(
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

// Builds the page's command and runs the page's operation with it.
template <auto Build, auto Operation, auto Run>
int CNrCore::RunCommand(QJsonObject &document, std::string &)
{
    const auto command = (m_cmdBuilder.*Build)(document);
    const uint32_t status = ((this->*Operation).*Run)(&command);
    m_errorMessage = (this->*Operation).GetErrorMessage();
    return static_cast<int>(status);
}

int CNrCore::RunTestStep(int pageId, QJsonObject document, std::string &answer)
{
    using Builder = CNrCoreCmdBuilder;
    struct SStep
    {
        EPageId page;
        int (CNrCore::*run)(QJsonObject &document, std::string &answer);
    };
    static constexpr SStep kSteps[] = {
        {EPageId::Rssi, &CNrCore::RunRssiTest},
        {EPageId::ContRx, &CNrCore::RunCommand<&Builder::GetContRxCmdV7, &CNrCore::m_contRx,
                                               &CMultiRatContRxV7::RunContRx>},
        {EPageId::RsrpForce,
         &CNrCore::RunCommand<&Builder::GetRsrpForceCmdV7, &CNrCore::m_rsrp, &CNrRsrpV7::RunRsrp>},
        {EPageId::RsrpNormal,
         &CNrCore::RunCommand<&Builder::GetRsrpNormalCmdV7, &CNrCore::m_rsrp, &CNrRsrpV7::RunRsrp>},
        {EPageId::SingleToneTx,
         &CNrCore::RunCommand<&Builder::GetSingleToneTxCmdV7, &CNrCore::m_singleToneTx,
                              &CMultiRatSingleToneTxV7::RunSingleTone>},
        {EPageId::PuschTxForce,
         &CNrCore::RunCommand<&Builder::GetPuschTxForceCmdV7, &CNrCore::m_puschTx,
                              &CNrPuschTxV7::RunPuschTx>},
        {EPageId::PuschTxNormal,
         &CNrCore::RunCommand<&Builder::GetPuschTxNormalCmdV7, &CNrCore::m_puschTx,
                              &CNrPuschTxV7::RunPuschTx>},
    };
    for (const SStep &step : kSteps) {
        if (static_cast<int>(step.page) == pageId)
            return m_target.GetNrGeneration() == 1 ? (this->*step.run)(document, answer)
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
    StartOnPool([this, isNr] { TestStopInternal(isNr); });
}

void CNrCore::TestStopInternal(bool isNr)
{
    const CLockSentry lock(m_targetLock);
    const uint32_t status = isNr ? m_nrTestStop.Stop() : m_testStop.Stop(kStopNr);
    m_errorMessage = isNr ? m_nrTestStop.GetErrorMessage() : m_testStop.GetErrorMessage();
    emit Signal_TestStopDone({QString(), static_cast<int>(status), m_errorMessage});
}
