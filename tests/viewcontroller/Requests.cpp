#include "tests/viewcontroller/Requests.h"

#include <QSignalSpy>

#include "tests/common/PoolJobs.h"
#include "tests/viewcontroller/CalRequests.h"

namespace {

using Ctrl = CQuorlinViewCtrl;
using Result = SEachItemOperationResult;

constexpr char kPuschForce[] = "PUSCH TX Force Mode";
constexpr char kPuschNormal[] = "PUSCH TX Normal Mode";
constexpr char kSingleTone[] = "Single Tone TX";
constexpr char kRsrpForce[] = "RSRP Force Mode";
constexpr char kRsrpNormal[] = "RSRP Normal Mode";
constexpr char kContRx[] = "Continuous RX";
constexpr char kRssi[] = "RSSI";
constexpr char kSrs[] = "SRS TX";  // has no requests of its own

QString Word(const QVariant &value)
{
    if (value.userType() == qMetaTypeId<std::string>())
        return QString::fromStdString(value.value<std::string>());
    if (value.userType() == qMetaTypeId<Result>()) {
        const auto result = value.value<Result>();
        return QString("%1|%2|%3").arg(result.itemName).arg(result.status).arg(result.message);
    }
    return value.toStringList().join(',');
}

template <typename... Answers>
QStringList WordsOf(const Answers &...answers)
{
    return Words({QVariant::fromValue(answers)...});
}

// What a signal of the core carries when the job behind it has ended.
QStringList Awaited(const QSignalSpy &done)
{
    EndPoolJobs();
    return done.size() == 1 ? Words(done[0]) : QStringList("no answer");
}

SRequest DataModel(const char *internalName, void (Ctrl::*request)(), const char *page,
                   const char *signal)
{
    return {
        internalName,
        signal,
        nullptr,
        nullptr,
        [request](Ctrl &ctrl, const std::string &) { (ctrl.*request)(); },
        [page](CNrCore &core, const std::string &) { return WordsOf(core.GetDataModel(page)); }};
}

// The answer of RSSI alone has a document.
SRequest Test(const char *internalName, void (Ctrl::*request)(std::string), const char *page,
              const char *signal, const char *function)
{
    return {internalName,
            signal,
            function,
            page,
            [request](Ctrl &ctrl, const std::string &document) { (ctrl.*request)(document); },
            [page](CNrCore &core, const std::string &document) {
                const QSignalSpy done(&core, &CNrCore::Signal_TestDone);
                core.Test(page, document);
                return Awaited(done).mid(0, qstrcmp(page, kRssi) == 0 ? 2 : 1);
            }};
}

SRequest Read(const char *internalName, void (Ctrl::*request)(std::string), const char *page,
              const char *signal, const char *function,
              std::function<QStringList(CNrCore &, const std::string &)> core)
{
    return {internalName,
            signal,
            function,
            page,
            [request](Ctrl &ctrl, const std::string &document) { (ctrl.*request)(document); },
            std::move(core)};
}

SRequest DlFreq(void (Ctrl::*request)(std::string), const char *page)
{
    return Read("GetPuschTxDlFreqInternal", request, page, "Signal_GetPuschTxDlFreqDone",
                "VOND_NRf_GetDlFreqV7_r", [page](CNrCore &core, const std::string &document) {
                    return WordsOf(core.GetDlFreqForPuschTx(page, document));
                });
}

SRequest Report(const char *internalName, void (Ctrl::*request)(std::string), const char *page,
                const char *signal)
{
    return Read(internalName, request, page, signal, "VOND_NRf_GetMixRxReportV7_r",
                [page](CNrCore &core, const std::string &document) {
                    Result result;
                    const std::string response = core.FetchMixRxReport(page, document, result);
                    return WordsOf(result, response);
                });
}

SRequest Stop(const char *internalName, void (Ctrl::*request)(), bool isNr, const char *function)
{
    return {internalName,
            "Signal_TestStopDone",
            function,
            nullptr,
            [request](Ctrl &ctrl, const std::string &) { (ctrl.*request)(); },
            [isNr](CNrCore &core, const std::string &) {
                const QSignalSpy done(&core, &CNrCore::Signal_TestStopDone);
                core.TestStopStart(isNr);
                return Awaited(done);
            }};
}

}  // namespace

const QVector<SRequest> &AllRequests()
{
    static const QVector<SRequest> requests =
        QVector<SRequest>{
            {"GetInitPageListInternal", "Signal_GetInitPageListDone", nullptr, nullptr,
             [](Ctrl &ctrl, const std::string &) { ctrl.GetInitPageList(); },
             [](CNrCore &core, const std::string &) { return WordsOf(core.GetAllSupportPage()); }},

            {"GetDataModelInternal", "Signal_DataModelDone", nullptr, nullptr,
             [](Ctrl &ctrl, const std::string &) { ctrl.RequestDataModel(EPageId::SrsTx); },
             [](CNrCore &core, const std::string &) { return WordsOf(core.GetDataModel(kSrs)); }},
            {"TestInternal", "Signal_TestDone", "", kSrs,
             [](Ctrl &ctrl, const std::string &document) {
                 ctrl.RequestTest(EPageId::SrsTx, document);
             },
             [](CNrCore &core, const std::string &document) {
                 const QSignalSpy done(&core, &CNrCore::Signal_TestDone);
                 core.Test(kSrs, document);
                 return Awaited(done);
             }},

            DataModel("GetPuschTxForceDataModelInternal", &Ctrl::GetPuschTxForceDataModel,
                      kPuschForce, "Signal_GetPuschTxForceDataModelDone"),
            DataModel("GetPuschTxNormalDataModelInternal", &Ctrl::GetPuschTxNormalDataModel,
                      kPuschNormal, "Signal_GetPuschTxNormalDataModelDone"),
            DataModel("GetSingleToneTxDataModelInternal", &Ctrl::GetSingleToneTxDataModel,
                      kSingleTone, "Signal_GetSingleToneTxDataModelDone"),
            DataModel("GetRsrpForceDataModelInternal", &Ctrl::GetRsrpForceDataModel, kRsrpForce,
                      "Signal_GetRsrpForceDataModelDone"),
            DataModel("GetRsrpNormalDataModelInternal", &Ctrl::GetRsrpNormalDataModel, kRsrpNormal,
                      "Signal_GetRsrpNormalDataModelDone"),
            DataModel("GetContRxDataModelInternal", &Ctrl::GetContRxDataModel, kContRx,
                      "Signal_GetContRxDataModelDone"),
            DataModel("GetRssiDataModelInternal", &Ctrl::GetRssiDataModel, kRssi,
                      "Signal_GetRssiDataModelDone"),
            DataModel("GetAptDataModelInternal", &Ctrl::GetAptDataModel, "APT Profile",
                      "Signal_GetAptDataModelDone"),
            DataModel("GetPathLossDataModelInternal", &Ctrl::GetPathLossDataModel, "RX PathLoss",
                      "Signal_GetPathLossDataModelDone"),

            Test("PuschTxForceTestInternal", &Ctrl::PuschTxForceTest, kPuschForce,
                 "Signal_PuschTxForceTestDone", "VOND_NRf_PuschTxV7_r"),
            Test("PuschTxNormalTestInternal", &Ctrl::PuschTxNormalTest, kPuschNormal,
                 "Signal_PuschTxNormalTestDone", "VOND_NRf_PuschTxV7_r"),
            Test("SingleToneTxTestInternal", &Ctrl::SingleToneTxTest, kSingleTone,
                 "Signal_SingleToneTxTestDone", "VOND_MMRf_SingleToneTxV7_r"),
            Test("RsrpForceTestInternal", &Ctrl::RsrpForceTest, kRsrpForce,
                 "Signal_RsrpForceTestDone", "VOND_NRf_RsrpV7_r"),
            Test("RsrpNormalTestInternal", &Ctrl::RsrpNormalTest, kRsrpNormal,
                 "Signal_RsrpNormalTestDone", "VOND_NRf_RsrpV7_r"),
            Test("ContRxTestInternal", &Ctrl::ContRxTest, kContRx, "Signal_ContRxTestDone",
                 "VOND_MMRf_ContRxV7_r"),
            Test("RssiTestInternal", &Ctrl::RssiTest, kRssi, "Signal_RssiTestDone",
                 "VOND_MMRf_RssiV7_r"),

            DlFreq(&Ctrl::GetPuschTxForceDlFreq, kPuschForce),
            DlFreq(&Ctrl::GetPuschTxNormalDlFreq, kPuschNormal),
            Read("GetSingleToneTxPdValueInternal", &Ctrl::GetSingleToneTxPdValue, kSingleTone,
                 "Signal_GetSingleToneTxPdValueDone", "VOND_MMRf_GetPdValueV7_r",
                 [](CNrCore &core, const std::string &document) {
                     return WordsOf(core.GetPdValue(document));
                 }),
            Report("RsrpForceFetchReportInternal", &Ctrl::RsrpForceFetchReport, kRsrpForce,
                   "Signal_RsrpForceFetchReportDone"),
            Report("RsrpNormalFetchReportInternal", &Ctrl::RsrpNormalFetchReport, kRsrpNormal,
                   "Signal_RsrpNormalFetchReportDone"),
            {"RsrpResetCounterInternal", "Signal_RsrpResetCounterDone",
             "VOND_NRf_ResetMixRxReportV7_r", nullptr,
             [](Ctrl &ctrl, const std::string &) { ctrl.RsrpResetCounter(); },
             [](CNrCore &core, const std::string &) { return WordsOf(core.ResetMixRxCounter()); }},
            Read("RsrpClearReportInternal", &Ctrl::RsrpClearReport, kRsrpForce,
                 "Signal_RsrpClearReportDone", "",
                 [](CNrCore &core, const std::string &document) {
                     return WordsOf(core.ClearMixRxReport(document));
                 }),
            Read("RssiGainCalculatorInternal", &Ctrl::RssiGainCalculator, kRssi,
                 "Signal_RssiGainCalculatorDone", "VOND_MMRf_GainSearchV7_r",
                 [](CNrCore &core, const std::string &document) {
                     Result result;
                     const std::string response = core.RssiGainCalculate(document, result);
                     return WordsOf(result, response);
                 }),

            Stop("NrTestStopInternal", &Ctrl::NrTestStop, true, "VOND_NRf_TestStop_r"),
            Stop("MultiRatTestStopInternal", &Ctrl::MultiRatTestStop, false,
                 "VOND_MMRf_TestStopV7_r"),
        } +
        CalRequests();
    return requests;
}

QStringList Words(const QVariantList &arguments)
{
    QStringList words;
    for (const QVariant &argument : arguments)
        words.append(Word(argument));
    return words;
}

// With rows in the tables of the RSRP pages, so that clearing them shows.
std::string SRequest::Document() const
{
    if (!page)
        return {};
    const std::string document = GetCore().GetDataModel(page);
    if (qstrcmp(page, kRsrpForce) != 0 && qstrcmp(page, kRsrpNormal) != 0)
        return document;
    Result ignored;
    return GetCore().FetchMixRxReport(page, document, ignored);
}
