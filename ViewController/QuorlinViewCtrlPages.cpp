// Requests of the pages: documents, tests and reports. One row a page.
#include <algorithm>
#include <array>

#include "ViewController/QuorlinViewCtrlJobs.h"

namespace {

// While the page of the last answer is built, the next document is made.
void PrepareNext(CNrCore &core)
{
    StartOnPool([&core] { core.PrepareNextDataModel(); });
}

}  // namespace

// What is left out answers by the signals for any page.
struct CQuorlinViewCtrl::SPageRequests
{
    EPageId page = EPageId::ErrorPage;
    const char *dataModelJob = "GetDataModelInternal";  // names in the log
    DocumentSignal dataModelDone = &CQuorlinViewCtrl::Signal_DataModelDone;
    const char *testJob = "TestInternal";
    ResultSignal testDone = nullptr;  // in place of testDoneWithDocument
    ResponseSignal testDoneWithDocument = &CQuorlinViewCtrl::Signal_TestDone;
    const char *reportJob = nullptr;  // null: the page has no report
    ResponseSignal reportDone = nullptr;
};

const CQuorlinViewCtrl::SPageRequests &CQuorlinViewCtrl::RequestsOf(EPageId page)
{
    using Ctrl = CQuorlinViewCtrl;
    static constexpr std::array kRequests = {
        SPageRequests{.page = EPageId::PuschTxForce,
                      .dataModelJob = "GetPuschTxForceDataModelInternal",
                      .dataModelDone = &Ctrl::Signal_GetPuschTxForceDataModelDone,
                      .testJob = "PuschTxForceTestInternal",
                      .testDone = &Ctrl::Signal_PuschTxForceTestDone},
        SPageRequests{.page = EPageId::PuschTxNormal,
                      .dataModelJob = "GetPuschTxNormalDataModelInternal",
                      .dataModelDone = &Ctrl::Signal_GetPuschTxNormalDataModelDone,
                      .testJob = "PuschTxNormalTestInternal",
                      .testDone = &Ctrl::Signal_PuschTxNormalTestDone},
        SPageRequests{.page = EPageId::SingleToneTx,
                      .dataModelJob = "GetSingleToneTxDataModelInternal",
                      .dataModelDone = &Ctrl::Signal_GetSingleToneTxDataModelDone,
                      .testJob = "SingleToneTxTestInternal",
                      .testDone = &Ctrl::Signal_SingleToneTxTestDone},
        SPageRequests{.page = EPageId::RsrpForce,
                      .dataModelJob = "GetRsrpForceDataModelInternal",
                      .dataModelDone = &Ctrl::Signal_GetRsrpForceDataModelDone,
                      .testJob = "RsrpForceTestInternal",
                      .testDone = &Ctrl::Signal_RsrpForceTestDone,
                      .reportJob = "RsrpForceFetchReportInternal",
                      .reportDone = &Ctrl::Signal_RsrpForceFetchReportDone},
        SPageRequests{.page = EPageId::RsrpNormal,
                      .dataModelJob = "GetRsrpNormalDataModelInternal",
                      .dataModelDone = &Ctrl::Signal_GetRsrpNormalDataModelDone,
                      .testJob = "RsrpNormalTestInternal",
                      .testDone = &Ctrl::Signal_RsrpNormalTestDone,
                      .reportJob = "RsrpNormalFetchReportInternal",
                      .reportDone = &Ctrl::Signal_RsrpNormalFetchReportDone},
        SPageRequests{.page = EPageId::ContRx,
                      .dataModelJob = "GetContRxDataModelInternal",
                      .dataModelDone = &Ctrl::Signal_GetContRxDataModelDone,
                      .testJob = "ContRxTestInternal",
                      .testDone = &Ctrl::Signal_ContRxTestDone},
        SPageRequests{.page = EPageId::Rssi,
                      .dataModelJob = "GetRssiDataModelInternal",
                      .dataModelDone = &Ctrl::Signal_GetRssiDataModelDone,
                      .testJob = "RssiTestInternal",
                      .testDoneWithDocument = &Ctrl::Signal_RssiTestDone},
        SPageRequests{.page = EPageId::AptProfile,
                      .dataModelJob = "GetAptDataModelInternal",
                      .dataModelDone = &Ctrl::Signal_GetAptDataModelDone},
        SPageRequests{.page = EPageId::RxPathLoss,
                      .dataModelJob = "GetPathLossDataModelInternal",
                      .dataModelDone = &Ctrl::Signal_GetPathLossDataModelDone},
    };
    static constexpr SPageRequests kOther;
    const auto *const row =
        std::find_if(kRequests.begin(), kRequests.end(),
                     [page](const SPageRequests &requests) { return requests.page == page; });
    return row == kRequests.end() ? kOther : *row;
}

void CQuorlinViewCtrl::GetInitPageList()
{
    RunOnPool("GetInitPageListInternal", &CQuorlinViewCtrl::Signal_GetInitPageListDone,
              [](CNrCore &core) {
                  const QStringList classes = core.GetAllSupportPage();
                  if (!classes.isEmpty()) {
                      core.AwaitPages();
                      PrepareNext(core);
                  }
                  return std::make_tuple(classes);
              });
}

void CQuorlinViewCtrl::RequestDataModel(EPageId page)
{
    const SPageRequests &row = RequestsOf(page);
    RunOnPool(row.dataModelJob, row.dataModelDone, [page](CNrCore &core) {
        std::string document = core.GetDataModel(PageName(page));
        PrepareNext(core);
        return std::make_tuple(std::move(document));
    });
}

// The core answers tests through a signal of its own.
void CQuorlinViewCtrl::RequestTest(EPageId page, CHandedDocument document)
{
    AwaitAnswer(
        &CCoreAnswers::Signal_TestDone,
        [page](CQuorlinViewCtrl *self, const SEachItemOperationResult &result,
               const std::string &response) { self->PassTestAnswer(page, result, response); });
    m_testPage = page;
    CNrCore &core = GetCore();
    m_future = StartOnPool([job = RequestsOf(page).testJob, &core, page,
                            document = std::move(document), asked = core.Moment()]() mutable {
        qCDebug(lcCore) << job;
        core.Test(PageName(page), std::move(document), asked);
    });
}

// The core has one signal for the tests of all pages. An answer of another page's test, which was
// under way when ours began, is not ours.
void CQuorlinViewCtrl::PassTestAnswer(EPageId page, const SEachItemOperationResult &result,
                                      const std::string &response)
{
    if (result.itemName != PageName(page))
        return;
    disconnect(&CCoreAnswers::Get(), &CCoreAnswers::Signal_TestDone, this, nullptr);
    const SPageRequests &row = RequestsOf(page);
    if (row.testDone)
        emit(this->*row.testDone)(result);
    else
        EmitAnswer(row.testDoneWithDocument, CCoreAnswers::Get().Document(), result, response);
}

void CQuorlinViewCtrl::RequestReport(EPageId page, CHandedDocument document)
{
    const SPageRequests &row = RequestsOf(page);
    RunOnPool(row.reportJob, row.reportDone,
              [page, document = std::move(document)](CNrCore &core) mutable {
                  SEachItemOperationResult result;
                  const QJsonObject response =
                      core.FetchMixRxReport(PageName(page), document.Take(), result);
                  return std::make_tuple(result, ModelToText(response));
              });
}
