#include "View/Rx/NrRsrpDockWidgetV7.h"

#include <utility>

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>

#include "Model/JsonPath.h"
#include "Model/MemberPath.h"
#include "Model/StatusTable.h"
#include "Support/Log.h"
#include "View/engine/TableGroup.h"
#include "View/engine/TableSize.h"
#include "View/plots/PlotAction.h"
#include "View/plots/RsrpPlot.h"

namespace {

constexpr char kReportPeriod[] = "cmdIf.request.group1.memberValue.reportPeriod";
constexpr int kShortestPeriod = 300;  // ms, also when the document has no period

constexpr SResultSource kReportTables[] = {
    {.group = "group1", .headers = &RowTableHeaders, .rows = &RowTableRows},
    {.group = "group2", .headers = &RowTableHeaders, .rows = &RowTableRows},
};

}  // namespace

CNrRsrpDockWidgetV7::CNrRsrpDockWidgetV7(const SRsrpPage &page, QWidget *parent)
    : CStartStopDockWidget(page.test, parent), m_page(page), m_plot(new CRsrpPlot(this))
{
    AddPlotAction(this, m_plot);
    m_reportTimer.setObjectName(QStringLiteral("reportTimer"));
    connect(&m_reportTimer, &QTimer::timeout, this, m_page.onTick);
}

CNrRsrpDockWidgetV7::~CNrRsrpDockWidgetV7() = default;

void CNrRsrpDockWidgetV7::UseWidgets(const SRsrpWidgets &widgets)
{
    m_widgets = widgets;
    SetTestButtons(widgets.start, widgets.stop);
    SetInputs(widgets.inputGroups);
    KeepResults();

    const auto followCarrier = [this] {
        if (m_modelReady)
            ShowUlFrequency(m_widgets.dlFrequency->value());
    };
    // Another band may have the same DL frequency.
    connect(widgets.band, &QComboBox::currentTextChanged, this, followCarrier);
    connect(this, &CAutoBindingDataModelDockWidget::Signal_InitDone, this, followCarrier);
    connect(this, &CAutoBindingDataModelDockWidget::Signal_InitDone, this,
            &CNrRsrpDockWidgetV7::ShapeResults);
}

// A source a result table, in their order.
void CNrRsrpDockWidgetV7::KeepResults()
{
    SResultExport what;
    for (int i = 0; i < m_widgets.results.size(); ++i)
        what.sources.push_back(kReportTables[i]);
    m_results = new CResultExport(what, this, ViewCtrl());
}

// One answer of its kind is waited for at a time.
template <typename... Answers>
void CNrRsrpDockWidgetV7::Await(SRsrpPage::Signal<Answers...> signal,
                                SRsrpPage::Slot<Answers...> slot)
{
    StopAwaiting(signal);
    connect(ViewCtrl(), signal, this, slot);
}

template <typename... Answers>
void CNrRsrpDockWidgetV7::StopAwaiting(SRsrpPage::Signal<Answers...> signal)
{
    disconnect(ViewCtrl(), signal, this, nullptr);
}

void CNrRsrpDockWidgetV7::PrepareStart(const QJsonObject &document)
{
    RequestClear(document);
}

void CNrRsrpDockWidgetV7::TakeStep(ETestStep step)
{
    CStartStopDockWidget::TakeStep(step);
    if (step == ETestStep::Started)
        m_reportTimer.start(
            qMax(GetJsonIntFromString(m_dataModel, QLatin1String(kReportPeriod)), kShortestPeriod));
    else if (step != ETestStep::StartFailed && step != ETestStep::StopFailed)
        m_reportTimer.stop();
}

void CNrRsrpDockWidgetV7::ShowControls()
{
    CStartStopDockWidget::ShowControls();
    m_widgets.reset->setEnabled(IsFree());
    m_widgets.clear->setEnabled(IsFree() && !IsTestRunning());
}

// Who waits for the page to be idle must not find the rows of the run before.
void CNrRsrpDockWidgetV7::OnTestDone(const SEachItemOperationResult &result)
{
    if (m_isClearing) {
        m_started = result;
        return;
    }
    FinishStart(m_page.testDoneLog, result);
}

void CNrRsrpDockWidgetV7::OnStopDone(const SEachItemOperationResult &result)
{
    FinishStop(m_page.stopDoneLog, result);
}

void CNrRsrpDockWidgetV7::FetchReport()
{
    qCDebug(lcForm) << m_page.tickLog;
    if (m_isFetching || m_isClearing)
        return;
    m_isFetching = true;
    m_clearCountAtFetch = m_clearCount;
    Await(m_page.fetchDone, m_page.onFetchDone);
    ViewCtrl()->RequestReport(PageId(), m_reported);
}

// No box, whatever the result: a dialog at each tick would stop the run.
void CNrRsrpDockWidgetV7::OnFetchDone(const SEachItemOperationResult &result,
                                      const std::string &response)
{
    qCDebug(lcForm) << m_page.fetchDoneLog;
    StopAwaiting(m_page.fetchDone);
    m_isFetching = false;
    if (m_clearCountAtFetch != m_clearCount)
        return;
    const bool hasDocument = AdoptReports(response);
    if (result.status == eStatusSuccess && hasDocument)
        emit Signal_UpdateStatus(QStringLiteral("RsrpRsrq RX get report done."));
    else
        emit Signal_UpdateStatus(QStringLiteral("RsrpRsrq RX get report failed: ") +
                                 result.message);
}

void CNrRsrpDockWidgetV7::ResetCounter()
{
    const auto turnOff = [this] {
        m_isResetting = true;
        ShowControls();
    };
    if (!BeginRequest(turnOff))
        return;
    Await(&CQuorlinViewCtrl::Signal_RsrpResetCounterDone, m_page.onResetDone);
    ViewCtrl()->RsrpResetCounter();
}

void CNrRsrpDockWidgetV7::OnResetDone(const SEachItemOperationResult &result)
{
    StopAwaiting(&CQuorlinViewCtrl::Signal_RsrpResetCounterDone);
    const auto turnOn = [this] {
        m_isResetting = false;
        ShowControls();
    };
    if (EndRequest(turnOn))
        StopIfAsked();
    if (result.status == eStatusSuccess)
        emit Signal_UpdateStatus(QStringLiteral("Reset counter done."));
    else
        ShowItemResult(QStringLiteral("Reset counter failed"), result);
}

void CNrRsrpDockWidgetV7::ClearReport()
{
    const auto turnOff = [this] {
        m_isClearedByUser = true;
        ShowControls();
    };
    if (!BeginRequest(turnOff))
        return;
    RequestClear(PackageDocument());
}

void CNrRsrpDockWidgetV7::RequestClear(const QJsonObject &document)
{
    ++m_clearCount;
    m_isClearing = true;
    m_reported = document;
    Await(&CQuorlinViewCtrl::Signal_RsrpClearReportDone, m_page.onClearDone);
    ViewCtrl()->RequestClear(document);
}

void CNrRsrpDockWidgetV7::OnClearDone(const std::string &response)
{
    StopAwaiting(&CQuorlinViewCtrl::Signal_RsrpClearReportDone);
    m_isClearing = false;
    m_plot->Clear();
    if (AdoptReports(response)) {
        m_results->Clear();
        ShapeResults();
    }
    if (!m_isClearedByUser) {
        if (const auto started = std::exchange(m_started, std::nullopt))
            OnTestDone(*started);
        return;
    }
    const auto turnOn = [this] {
        m_isClearedByUser = false;
        ShowControls();
    };
    if (EndRequest(turnOn))
        StopIfAsked();
}

// Makes the response the page's document and brings the result tables in line with it: rows that
// they lack are added, and all go when there are none any more. From then on the tables alone have
// the rows' cells. False when there is no document in it.
bool CNrRsrpDockWidgetV7::AdoptReports(const std::string &response)
{
    const QJsonObject document = DocumentOf(response);
    if (document.isEmpty())
        return false;
    m_plot->Add(document);
    m_dataModel = document;
    AppendWidget(m_dataModel);
    m_results->Take(m_dataModel);
    for (const QTableWidget *table : qAsConst(m_widgets.results))
        DropRowCells(m_dataModel, PathFromObjectName(table->objectName()));
    m_reported = m_dataModel;
    return true;
}

// An empty table is held to the height of a few rows, and its columns to one width; the page has
// more to give.
void CNrRsrpDockWidgetV7::ShapeResults()
{
    for (QTableWidget *table : qAsConst(m_widgets.results)) {
        QHeaderView *header = table->horizontalHeader();
        for (int c = 0; c < header->count(); ++c)
            header->resizeSection(c, qMax(header->sectionSize(c), header->sectionSizeHint(c)));
        table->setFixedWidth(FitTableSize(table).width());
        table->setMaximumHeight(QWIDGETSIZE_MAX);
    }
}

// The label's valuePair has the distance from DL to UL frequency of each paired band.
void CNrRsrpDockWidgetV7::ShowUlFrequency(int dlFrequency)
{
    if (!m_modelReady)
        return;
    const QString offsets = PathFromObjectName(m_widgets.ulFrequency->objectName()) +
                            QLatin1String(".trait.valuePair.");
    const QString band = m_widgets.band->currentText();
    const QJsonValue offset = GetJsonValueConst(m_dataModel, offsets + band);
    const CChangeStep step(
        &Changes(),
        {.cause = EChangeCause::Relation,
         .publisher = Changes().Member(PathFromObjectName(m_widgets.dlFrequency->objectName())),
         .key = band,
         .entry = offset.toVariant().toInt()},
        Changes().Member(PathFromObjectName(m_widgets.ulFrequency->objectName())), -1,
        m_widgets.ulFrequency);
    m_widgets.ulFrequency->setText(QString::number(dlFrequency - offset.toVariant().toInt()));
}
