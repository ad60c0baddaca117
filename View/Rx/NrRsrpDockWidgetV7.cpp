#include "View/Rx/NrRsrpDockWidgetV7.h"

#include <algorithm>

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>

#include "Model/JsonPath.h"
#include "Model/MemberPath.h"
#include "Model/ModelText.h"
#include "Model/StatusTable.h"
#include "Support/Log.h"
#include "View/TableGroup.h"

namespace {

constexpr char kReportPeriod[] = "cmdIf.request.group1.memberValue.reportPeriod";
constexpr int kShortestPeriod = 300;  // ms, also when the document has no period

// The widget's own flag, whatever its page's: a page is off as a whole while another is on top.
bool IsOn(const QWidget *widget)
{
    return widget->isEnabledTo(widget->parentWidget());
}

}  // namespace

CNrRsrpDockWidgetV7::CNrRsrpDockWidgetV7(const SRsrpPage &page, QWidget *parent)
    : CAutoBindingDataModelDockWidget(parent), m_page(page),
      m_viewCtrl(std::make_unique<CQuorlinViewCtrl>())
{
    m_reportTimer.setObjectName(QStringLiteral("reportTimer"));
    connect(&m_reportTimer, &QTimer::timeout, this, m_page.onTick);
}

CNrRsrpDockWidgetV7::~CNrRsrpDockWidgetV7() = default;

void CNrRsrpDockWidgetV7::UseWidgets(const SRsrpWidgets &widgets)
{
    m_widgets = widgets;
    for (QWidget *group : widgets.inputGroups)
        m_inputs.append({group, true});
    for (QWidget *button : {widgets.start, widgets.stop, widgets.reset, widgets.clear})
        m_inputs.append({button, true});
    ShowIdle();

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

QWidget *CNrRsrpDockWidgetV7::GetRootWidget()
{
    return this;
}

int CNrRsrpDockWidgetV7::GetModelInterface()
{
    return eInterfaceCmdIf;
}

void CNrRsrpDockWidgetV7::RequestDataModel()
{
    connect(m_viewCtrl.get(), m_page.dataModelDone, this,
            &CNrRsrpDockWidgetV7::Slot_GetDataModelDone);
    (m_viewCtrl.get()->*m_page.getDataModel)();
}

void CNrRsrpDockWidgetV7::DisableTestControls()
{
    m_widgets.start->setEnabled(false);
}

void CNrRsrpDockWidgetV7::EnableTestControls()
{
    if (!IsOn(m_widgets.stop))
        m_widgets.start->setEnabled(true);
}

void CNrRsrpDockWidgetV7::ShowTestStopped()
{
    m_reportTimer.stop();
    m_stopAfterReset = false;
    ShowIdle();
}

// One answer of its kind is waited for at a time.
template <typename... Answers>
void CNrRsrpDockWidgetV7::Await(SRsrpPage::Signal<Answers...> signal,
                                SRsrpPage::Slot<Answers...> slot)
{
    StopAwaiting(signal);
    connect(m_viewCtrl.get(), signal, this, slot);
}

template <typename... Answers>
void CNrRsrpDockWidgetV7::StopAwaiting(SRsrpPage::Signal<Answers...> signal)
{
    disconnect(m_viewCtrl.get(), signal, this, nullptr);
}

void CNrRsrpDockWidgetV7::DisableInputs()
{
    for (auto &input : m_inputs) {
        input.second = IsOn(input.first);
        input.first->setEnabled(false);
    }
}

void CNrRsrpDockWidgetV7::RestoreInputs()
{
    for (const auto &input : qAsConst(m_inputs))
        input.first->setEnabled(input.second);
}

bool CNrRsrpDockWidgetV7::WasOn(const QWidget *widget) const
{
    return std::any_of(m_inputs.begin(), m_inputs.end(), [widget](const auto &input) {
        return input.first == widget && input.second;
    });
}

void CNrRsrpDockWidgetV7::ShowIdle()
{
    for (const auto &input : qAsConst(m_inputs))
        input.first->setEnabled(input.first != m_widgets.stop);
}

void CNrRsrpDockWidgetV7::StartTest()
{
    qCDebug(lcForm) << "on_m_start_clicked";
    m_reportTimer.stop();
    DisableInputs();
    if (!BeginBusy())
        return;
    const std::string document = PackageMemberValue();
    RequestClear(document);
    Await(m_page.testDone, m_page.onTestDone);
    (m_viewCtrl.get()->*m_page.test)(document);
}

void CNrRsrpDockWidgetV7::OnTestDone(const SEachItemOperationResult &result)
{
    qCDebug(lcForm) << m_page.testDoneLog;
    const int period = GetJsonIntFromString(m_dataModel, QLatin1String(kReportPeriod));
    StopAwaiting(m_page.testDone);
    emit Signal_PluginIsBusy(false);
    if (result.status == eStatusSuccess) {
        m_widgets.stop->setEnabled(true);
        m_widgets.reset->setEnabled(true);
        emit Signal_UpdateStatus(QStringLiteral("Rsrp start..."));
        m_reportTimer.start(qMax(period, kShortestPeriod));
        return;
    }
    RestoreInputs();
    emit Signal_UpdateStatus(QStringLiteral("Rsrp start failed..."));
    ShowItemResult(QStringLiteral("Rsrp start failed"), result);
}

void CNrRsrpDockWidgetV7::StopTest()
{
    if (!BeginBusy())
        return;
    DisableInputs();
    m_reportTimer.stop();
    Await(&CQuorlinViewCtrl::Signal_TestStopDone, m_page.onStopDone);
    m_viewCtrl->NrTestStop();
}

void CNrRsrpDockWidgetV7::OnStopDone(const SEachItemOperationResult &result)
{
    qCDebug(lcForm) << m_page.stopDoneLog;
    StopAwaiting(&CQuorlinViewCtrl::Signal_TestStopDone);
    emit Signal_PluginIsBusy(false);
    if (result.status == eStatusSuccess) {
        ShowIdle();
        emit Signal_UpdateStatus(QStringLiteral("Rsrp stop."));
        return;
    }
    RestoreInputs();
    emit Signal_UpdateStatus(QStringLiteral("Rsrp stop failed."));
    ShowItemResult(QStringLiteral("Rsrp stop failed"), result);
}

// While the counters of a running test are being reset, Stop is off for a moment only.
void CNrRsrpDockWidgetV7::TriggerStop()
{
    if (IsOn(m_widgets.stop))
        StopTest();
    else if (m_isResetting && WasOn(m_widgets.stop))
        m_stopAfterReset = true;
}

void CNrRsrpDockWidgetV7::FetchReport()
{
    qCDebug(lcForm) << m_page.tickLog;
    if (m_isFetching || m_isClearing)
        return;
    m_isFetching = true;
    m_clearCountAtFetch = m_clearCount;
    Await(m_page.fetchDone, m_page.onFetchDone);
    (m_viewCtrl.get()->*m_page.fetch)(m_documentText);
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
    DisableInputs();
    if (!BeginBusy())
        return;
    m_isResetting = true;
    Await(&CQuorlinViewCtrl::Signal_RsrpResetCounterDone, m_page.onResetDone);
    m_viewCtrl->RsrpResetCounter();
}

void CNrRsrpDockWidgetV7::OnResetDone(const SEachItemOperationResult &result)
{
    StopAwaiting(&CQuorlinViewCtrl::Signal_RsrpResetCounterDone);
    m_isResetting = false;
    RestoreInputs();
    emit Signal_PluginIsBusy(false);
    if (std::exchange(m_stopAfterReset, false))
        TriggerStop();
    if (result.status == eStatusSuccess)
        emit Signal_UpdateStatus(QStringLiteral("Reset counter done."));
    else
        ShowItemResult(QStringLiteral("Reset counter failed"), result);
}

void CNrRsrpDockWidgetV7::ClearReport()
{
    DisableInputs();
    m_clearDisabledInputs = true;
    RequestClear(PackageMemberValue());
}

void CNrRsrpDockWidgetV7::RequestClear(const std::string &document)
{
    ++m_clearCount;
    m_isClearing = true;
    m_documentText = document;
    Await(&CQuorlinViewCtrl::Signal_RsrpClearReportDone, m_page.onClearDone);
    m_viewCtrl->RsrpClearReport(document);
}

void CNrRsrpDockWidgetV7::OnClearDone(const std::string &response)
{
    StopAwaiting(&CQuorlinViewCtrl::Signal_RsrpClearReportDone);
    m_isClearing = false;
    if (AdoptReports(response))
        ShapeResults();
    if (std::exchange(m_clearDisabledInputs, false))
        RestoreInputs();
}

// Makes the response the page's document and brings the result tables in line with it: rows that
// they lack are added, and all go when there are none any more. From then on the tables alone have
// the rows' cells. False when there is no document in it.
bool CNrRsrpDockWidgetV7::AdoptReports(const std::string &response)
{
    const QJsonObject document = ModelFromText(response);
    if (document.isEmpty())
        return false;
    m_dataModel = document;
    AppendWidget(m_dataModel);
    for (const QTableWidget *table : qAsConst(m_widgets.results))
        DropRowCells(m_dataModel, PathFromObjectName(table->objectName()));
    m_documentText = ModelToText(m_dataModel);
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

// The table of offsets holds the distance from DL to UL of each band with a pair of them.
void CNrRsrpDockWidgetV7::ShowUlFrequency(int dlFrequency)
{
    if (!m_modelReady)
        return;
    const QString offsets = PathFromObjectName(m_widgets.ulFrequency->objectName()) +
                            QLatin1String(".trait.valuePair.");
    const QJsonValue offset =
        GetJsonValueConst(m_dataModel, offsets + m_widgets.band->currentText());
    m_widgets.ulFrequency->setText(QString::number(dlFrequency - offset.toVariant().toInt()));
}
