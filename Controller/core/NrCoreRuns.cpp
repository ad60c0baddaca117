// Tests of the core.
#include "Controller/core/NrCore.h"
#include "Controller/core/PageTable.h"
#include "Model/ModelText.h"
#include "Model/StatusTable.h"
#include "Operations/link/TargetLink.h"
#include "Support/Log.h"
#include "Support/Threads.h"

void CNrCore::Test(QString pageName, std::string document)
{
    Test(std::move(pageName), std::move(document), Moment());
}

void CNrCore::Test(QString pageName, std::string document, uint64_t asked)
{
    StartOnPool([this, pageName, document = std::move(document), asked] {
        TestInternal(pageName, document, asked);
    });
}

void CNrCore::TestInternal(const QString &pageName, const std::string &document, uint64_t asked)
{
    const CLockSentry lock(m_targetLock);
    qCDebug(lcCore) << "CNrCore::Start--> " << pageName;
    m_errorMessage.clear();
    int status = eStatusNotExecuted;
    STestRun run{pageName, asked, {}};
    try {
        status = RunTestStep(run, ModelFromText(document));
    } catch (...) {
        qCCritical(lcCore) << "CNrCore::Test ended by an exception" << pageName;
    }
    qCDebug(lcCore) << "CNrCore::Done--> " << pageName;
    emit Signal_TestDone({pageName, status, m_errorMessage}, run.answer);
}

// Builds the page's command and runs the page's operation with it.
template <auto Build, auto Operation, auto Run, EStop Kind>
int CNrCore::RunCommand(STestRun &run, QJsonObject &document)
{
    const auto command = (m_cmdBuilder.*Build)(document);
    const CTargetHandleScope handle(TargetHandle());  // the host may set another one meanwhile
    if (!m_runningTests.Begin({run.page, {Kind, TargetHandle()}}, run.asked))
        return eStatusTerminated;
    const uint32_t status = ((this->*Operation).*Run)(&command);
    m_errorMessage = (this->*Operation).GetErrorMessage();
    return static_cast<int>(status);
}

int CNrCore::RunTestStep(STestRun &run, QJsonObject document)
{
    using Builder = CNrCoreCmdBuilder;
    struct SStep
    {
        EPageId page;
        int (CNrCore::*run)(STestRun &run, QJsonObject &document);
    };
    static constexpr SStep kSteps[] = {
        {EPageId::Rssi, &CNrCore::RunRssiTest},
        {EPageId::ContRx, &CNrCore::RunCommand<&Builder::GetContRxCmdV7, &CNrCore::m_contRx,
                                               &CMultiRatContRxV7::RunContRx, EStop::MultiRat>},
        {EPageId::RsrpForce, &CNrCore::RunCommand<&Builder::GetRsrpForceCmdV7, &CNrCore::m_rsrp,
                                                  &CNrRsrpV7::RunRsrp, EStop::Nr>},
        {EPageId::RsrpNormal, &CNrCore::RunCommand<&Builder::GetRsrpNormalCmdV7, &CNrCore::m_rsrp,
                                                   &CNrRsrpV7::RunRsrp, EStop::Nr>},
        {EPageId::SingleToneTx,
         &CNrCore::RunCommand<&Builder::GetSingleToneTxCmdV7, &CNrCore::m_singleToneTx,
                              &CMultiRatSingleToneTxV7::RunSingleTone, EStop::MultiRat>},
        {EPageId::PuschTxForce,
         &CNrCore::RunCommand<&Builder::GetPuschTxForceCmdV7, &CNrCore::m_puschTx,
                              &CNrPuschTxV7::RunPuschTx, EStop::Nr>},
        {EPageId::PuschTxNormal,
         &CNrCore::RunCommand<&Builder::GetPuschTxNormalCmdV7, &CNrCore::m_puschTx,
                              &CNrPuschTxV7::RunPuschTx, EStop::Nr>},
    };
    const EPageId page = PageId(run.page);
    for (const SStep &step : kSteps) {
        if (step.page != page)
            continue;
        if (m_runningTests.IsCalledOff(run.asked))
            return eStatusTerminated;
        return m_target.GetNrGeneration() == 1 ? (this->*step.run)(run, document)
                                               : eStatusNotExecuted;
    }
    return eStatusNotExecuted;
}

// The one test whose answer is a document: it measures and is over.
int CNrCore::RunRssiTest(STestRun &run, QJsonObject &document)
{
    const SMMRssiCmdV7 command = m_cmdBuilder.GetRssiCmdV7(document);
    if (m_runningTests.IsCalledOff(run.asked))
        return eStatusTerminated;
    SMMRssiCnfV7 result = {};
    const uint32_t status = m_rssi.RunRssi(command, &result);
    m_errorMessage = m_rssi.GetErrorMessage();
    m_responseBuilder.UpdateRssiResultV7(document, result, status == 0);
    run.answer = ModelToText(document);
    return static_cast<int>(status);
}
