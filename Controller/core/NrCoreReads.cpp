// Reads of the core beside a test: power detector, DL frequency, RSRP report, RSSI gains.
#include "Controller/core/NrCore.h"

#include <utility>

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

// On a status other than 0, shows the row's text in place of the value and reports the operation's
// text.
void ShowRead(QJsonObject &document, const SReadRow &row, uint32_t status, const QString &value,
              const IGeneralOperation &operation)
{
    if (status != 0)
        AddModelUpdateResult(document, false,
                             QLatin1String(row.readFailed) + operation.GetErrorMessage());
    const QString text = status == 0 ? value : QString::fromLatin1(row.failedText);
    if (ModifyJsonValue(document, QString::fromLatin1(row.path), text, 0))
        return;
    qCCritical(lcCore).noquote() << GetJsonValueConst(document, "modelName").toString()
                                 << row.updateFailed;
    AddModelUpdateResult(document, false, QString::fromLatin1(row.updateFailed));
}

SEachItemOperationResult NothingRan()
{
    return {QString(), eStatusNotExecuted, QString()};
}

}  // namespace

template <typename Read>
QJsonObject CNrCore::FillDocument(QJsonObject document, Read read)
{
    const CLockSentry lock(m_targetLock);
    if (m_target.GetNrGeneration() == 1)
        read(document);
    return document;
}

QJsonObject CNrCore::GetPdValue(QJsonObject document)
{
    return FillDocument(std::move(document), [this](QJsonObject &object) {
        int16_t value = 0;
        const uint32_t status = m_operations.singleToneTx.GetPdValue(kPdNr, &value);
        ShowRead(object, kPdValue, status, QString::number(value * kDbmPerPdUnit, 'g', 6),
                 m_operations.singleToneTx);
    });
}

QJsonObject CNrCore::GetDlFreqForPuschTx(const QString &pageName, QJsonObject document)
{
    return FillDocument(std::move(document), [this, &pageName](QJsonObject &object) {
        const bool isNormal = PageByName(pageName) == EPageId::PuschTxNormal;
        const SNrDlFreqCmdV7 command = m_operations.commands.GetPuschDlFreqCmd(object, isNormal);
        SNrDlFreqCnfV7 downlink = {};
        const uint32_t status = m_operations.puschTx.GetDlFreq(&command, &downlink);
        ShowRead(object, kDlFrequency, status, QString::number(downlink.dlFrequency),
                 m_operations.puschTx);
    });
}

QJsonObject CNrCore::FetchMixRxReport(const QString &pageName, QJsonObject document,
                                      SEachItemOperationResult &result)
{
    result = NothingRan();
    return FillDocument(std::move(document), [&](QJsonObject &object) {
        NRfTestResult_GetMixRxReportV7 report = {};
        const uint32_t status = m_operations.rsrp.GetMixRxReport(&report);
        if (const auto show = FindPage(PageByName(pageName)).showReport)
            (m_operations.responses.*show)(object, report, status == 0);
        else
            AddModelUpdateResult(object, false,
                                 QLatin1String("No support such page for fetch MixRX report --> ") +
                                     pageName);
        result = {pageName, static_cast<int>(status), m_operations.rsrp.GetErrorMessage()};
    });
}

SEachItemOperationResult CNrCore::ResetMixRxCounter()
{
    const CLockSentry lock(m_targetLock);
    if (m_target.GetNrGeneration() != 1)
        return NothingRan();
    const uint32_t status = m_operations.rsrp.ResetMixRxReport();
    return {QString(), static_cast<int>(status), m_operations.rsrp.GetErrorMessage()};
}

QJsonObject CNrCore::ClearMixRxReport(QJsonObject document)
{
    return FillDocument(std::move(document), [this](QJsonObject &object) {
        m_operations.responses.CleanMixRxReportV7(object);
    });
}

QJsonObject CNrCore::RssiGainCalculate(QJsonObject document, SEachItemOperationResult &result)
{
    result = NothingRan();
    return FillDocument(std::move(document), [&](QJsonObject &object) {
        SMMGainSearchCnfV7 gains = {};
        const uint32_t status = m_operations.rssi.RunGainSearch(
            m_operations.commands.GetGainSearchCmdV7(object), &gains);
        result.status = static_cast<int>(status);
        if (status != 0)
            result.message = m_operations.rssi.GetErrorMessage();
        m_operations.responses.UpdateRssiGainResultV7(object, gains, status == 0);
    });
}

std::string CNrCore::GetPdValue(std::string document)
{
    return ModelToText(GetPdValue(ModelFromText(document)));
}

std::string CNrCore::GetDlFreqForPuschTx(QString pageName, std::string document)
{
    return ModelToText(GetDlFreqForPuschTx(pageName, ModelFromText(document)));
}

std::string CNrCore::FetchMixRxReport(QString pageName, std::string document,
                                      SEachItemOperationResult &result)
{
    return ModelToText(FetchMixRxReport(pageName, ModelFromText(document), result));
}

std::string CNrCore::ClearMixRxReport(std::string document)
{
    return ModelToText(ClearMixRxReport(ModelFromText(document)));
}

std::string CNrCore::RssiGainCalculate(std::string document, SEachItemOperationResult &result)
{
    return ModelToText(RssiGainCalculate(ModelFromText(document), result));
}
