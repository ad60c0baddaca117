// Reads of the core beside a test: power detector, DL frequency, RSRP report, RSSI gains.
#include "Controller/NrCore.h"
#include "Controller/PageTable.h"
#include "Model/JsonPath.h"
#include "Model/ModelIntegrity.h"
#include "Model/ModelText.h"
#include "Model/StatusTable.h"
#include "Support/Log.h"

namespace {

constexpr uint32_t kPdNr = 1;                 // radio kind of a power detector read
constexpr double kDbmPerPdUnit = 0.00390625;  // 1/256

// One value that a read puts into a document.
struct SReadRow
{
    const char *path;
    const char *failedText;    // shown in place of a value
    const char *readFailed;    // message in front of the operation's text
    const char *updateFailed;  // message when the document has no place for the value
};
constexpr SReadRow kPdValue{"cmdIf.response.group1.memberProperty.pdValue.trait.defaultValue",
                            "Error", "Get PD value from target failed\n",
                            "Update PD value result failed"};
constexpr SReadRow kDlFrequency{
    "cmdIf.response.group1.memberProperty.dlFrequency.trait.defaultValue", "ERROR",
    "Get DL freq result from target failed\n ", "Update DL freq result failed"};

// error: the operation's text of a failed read, null for a good one.
void ShowRead(QJsonObject &document, const SReadRow &row, const QString &value,
              const QString *error)
{
    if (error)
        AddModelUpdateResult(document, false, QLatin1String(row.readFailed) + *error);
    const QString text = error ? QString::fromLatin1(row.failedText) : value;
    if (ModifyJsonValue(document, QString::fromLatin1(row.path), text, 0))
        return;
    qCCritical(lcCore).noquote() << GetJsonValueConst(document, "modelName").toString()
                                 << row.updateFailed;
    AddModelUpdateResult(document, false, QString::fromLatin1(row.updateFailed));
}

}  // namespace

std::string CNrCore::GetPdValue(std::string document)
{
    const CLockSentry lock(m_targetLock);
    QJsonObject object = ModelFromText(document);
    if (m_target.GetNrGeneration() == 1) {
        int16_t value = 0;
        const bool done = m_singleToneTx.GetPdValue(kPdNr, &value) == 0;
        const QString error = m_singleToneTx.GetErrorMessage();
        ShowRead(object, kPdValue, QString::number(value * kDbmPerPdUnit, 'g', 6),
                 done ? nullptr : &error);
    }
    return ModelToText(object);
}

std::string CNrCore::GetDlFreqForPuschTx(QString pageName, std::string document)
{
    const CLockSentry lock(m_targetLock);
    QJsonObject object = ModelFromText(document);
    if (m_target.GetNrGeneration() == 1) {
        const bool isNormal = m_pageMap[pageName] == static_cast<int>(EPageId::PuschTxNormal);
        const SNrDlFreqCmdV7 command = m_cmdBuilder.GetPuschDlFreqCmd(object, isNormal);
        SNrDlFreqCnfV7 result = {};
        const bool done = m_puschTx.GetDlFreq(&command, &result) == 0;
        const QString error = m_puschTx.GetErrorMessage();
        ShowRead(object, kDlFrequency, QString::number(result.dlFrequency),
                 done ? nullptr : &error);
    }
    return ModelToText(object);
}

std::string CNrCore::FetchMixRxReport(QString pageName, std::string document,
                                      SEachItemOperationResult &result)
{
    const CLockSentry lock(m_targetLock);
    QJsonObject object = ModelFromText(document);
    result = {QString(), eStatusNotExecuted, QString()};
    if (m_target.GetNrGeneration() != 1)
        return ModelToText(object);

    NRfTestResult_GetMixRxReportV7 report = {};
    const uint32_t status = m_rsrp.GetMixRxReport(&report);
    const int page = m_pageMap[pageName];
    if (page == static_cast<int>(EPageId::RsrpForce))
        m_responseBuilder.UpdateMixRxResultV7(object, report, status == 0);
    else if (page == static_cast<int>(EPageId::RsrpNormal))
        m_responseBuilder.UpdateMixRxNormalResultV7(object, report, status == 0);
    else
        AddModelUpdateResult(object, false,
                             QLatin1String("No support such page for fetch MixRX report --> ") +
                                 pageName);
    result = {pageName, static_cast<int>(status), m_rsrp.GetErrorMessage()};
    return ModelToText(object);
}

SEachItemOperationResult CNrCore::ResetMixRxCounter()
{
    const CLockSentry lock(m_targetLock);
    if (m_target.GetNrGeneration() != 1)
        return {QString(), eStatusNotExecuted, QString()};
    const uint32_t status = m_rsrp.ResetMixRxReport();
    return {QString(), static_cast<int>(status), m_rsrp.GetErrorMessage()};
}

std::string CNrCore::ClearMixRxReport(std::string document)
{
    const CLockSentry lock(m_targetLock);
    QJsonObject object = ModelFromText(document);
    if (m_target.GetNrGeneration() == 1)
        m_responseBuilder.CleanMixRxReportV7(object);
    return ModelToText(object);
}

std::string CNrCore::RssiGainCalculate(std::string document, SEachItemOperationResult &result)
{
    const CLockSentry lock(m_targetLock);
    QJsonObject object = ModelFromText(document);
    result = {QString(), eStatusNotExecuted, QString()};
    if (m_target.GetNrGeneration() != 1)
        return ModelToText(object);

    SMMGainSearchCnfV7 gains = {};
    const uint32_t status = m_rssi.RunGainSearch(m_cmdBuilder.GetGainSearchCmdV7(object), &gains);
    result.status = static_cast<int>(status);
    if (status != 0)
        result.message = m_rssi.GetErrorMessage();
    m_responseBuilder.UpdateRssiGainResultV7(object, gains, status == 0);
    return ModelToText(object);
}
