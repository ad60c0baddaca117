#include "View/Rx/NrRssiDockWidgetV7.h"

#include <QAbstractSpinBox>
#include <QHeaderView>
#include <QPointer>
#include <QRegularExpression>

#include "Model/StatusTable.h"
#include "Support/Log.h"
#include "View/editors/LateEditors.h"
#include "View/engine/TableSize.h"
#include "View/plots/PlotAction.h"
#include "View/plots/RssiPlot.h"
#include "ui_NrRssiDockWidgetV7.h"

namespace {

const QLatin1String kWidestCell("-1024.00000");  // longer than any reading or frequency
const QRegularExpression kGainNames("^cmdIf_response_group1_memberProperty_path[01].*Gain");
constexpr int kCellMargin = 12;  // pixels of frame and indent around a cell's text

SResultExport TestExport()
{
    return {.sources = {{.group = "group1", .headers = &RssiHeaders, .rows = &RssiRows}},
            .columns = {"group1.band", "group1.rxRoute", "group1.calType", "group1.powerMode"}};
}

SResultExport CalculatorExport()
{
    return {.action = "m_actionExportGains",
            .text = "Export &gain search...",
            .keys = "Ctrl+Alt+E",
            .sources = {{.group = "group1", .headers = &GainHeaders, .rows = &GainRows}},
            .columns = {"group1.band", "group1.rxRoute", "group1.calType", "group1.powerMode"}};
}

// Columns as wide as the widest result: no later answer is cut off.
void FitColumns(QTableWidget *table)
{
    const int width = table->fontMetrics().horizontalAdvance(kWidestCell) + kCellMargin;
    for (int c = 0; c < table->columnCount(); ++c)
        table->setColumnWidth(c, width);
}

// Cells in the font of their page.
void SetCellFonts(const QTableWidget *table)
{
    for (int c = 0; c < table->columnCount(); ++c) {
        for (int r = 0; r < table->rowCount(); ++r) {
            if (QWidget *cell = table->cellWidget(r, c))
                cell->setFont(table->font());
        }
    }
}

}  // namespace

const CNrRssiDockWidgetV7::STexts CNrRssiDockWidgetV7::kTestTexts = {
    .done = "Fetch RSSI done",
    .failed = "Fetch RSSI failed.",
    .failedTitle = "Fetch RSSI failed.",
};
const CNrRssiDockWidgetV7::STexts CNrRssiDockWidgetV7::kCalculatorTexts = {
    .done = "Fetch Gain info done",
    .failed = "Fetch Gain info failed",
    .failedTitle = "Fetch Gain info failed.",
};

CNrRssiDockWidgetV7::CNrRssiDockWidgetV7(QWidget *parent)
    : CAutoBindingDataModelDockWidget(parent), m_plot(new CRssiPlot(this)),
      m_ui(std::make_unique<Ui::CNrRssiDockWidgetV7>()),
      m_viewCtrl(std::make_unique<CQuorlinViewCtrl>()),
      m_testResults(new CResultExport(TestExport(), this, m_viewCtrl.get())),
      m_calculatorResults(new CResultExport(CalculatorExport(), this, m_viewCtrl.get()))
{
    m_ui->setupUi(this);
    AddPlotAction(this, m_plot);
    connect(this, &CAutoBindingDataModelDockWidget::Signal_InitDone, this,
            &CNrRssiDockWidgetV7::FixLayout);
    connect(this, &CAutoBindingDataModelDockWidget::Signal_InitDone, this,
            &CNrRssiDockWidgetV7::MarkResults);
}

CNrRssiDockWidgetV7::~CNrRssiDockWidgetV7() = default;

QWidget *CNrRssiDockWidgetV7::GetRootWidget()
{
    return this;
}

int CNrRssiDockWidgetV7::GetModelInterface()
{
    return eInterfaceCmdIf;
}

void CNrRssiDockWidgetV7::RequestDataModel()
{
    connect(m_viewCtrl.get(), &CQuorlinViewCtrl::Signal_GetRssiDataModelDone, this,
            &CNrRssiDockWidgetV7::Slot_GetDataModelDone);
    m_viewCtrl->GetRssiDataModel();
}

QJsonObject CNrRssiDockWidgetV7::DocumentOf(const std::string &text)
{
    return m_viewCtrl->DocumentOf(text);
}

void CNrRssiDockWidgetV7::DisableTestControls()
{
    m_ui->m_start->setEnabled(false);
    m_ui->m_btnRssiSeqSrhCalculator->setEnabled(false);
}

void CNrRssiDockWidgetV7::EnableTestControls()
{
    m_ui->m_start->setEnabled(!HasRequest());
    m_ui->m_btnRssiSeqSrhCalculator->setEnabled(!HasRequest());
}

void CNrRssiDockWidgetV7::Slot_TriggerStopTest() {}

// The channels of the three tables stand below each other.
void CNrRssiDockWidgetV7::FixLayout()
{
    m_ui->m_resultStack->setCurrentIndex(0);
    for (QTableWidget *table : {m_ui->cmdIf_request_group2_memberProperty_dlFrequency,
                                m_ui->cmdIf_response_group2_memberProperty_dlFrequency,
                                m_ui->cmdIf_response_group3_memberProperty_dlFrequency}) {
        FitColumns(table);
        WhenEditorsAreMade(table, table, [table] { SetCellFonts(table); });
        table->setMaximumSize(FitTableSize(table));
        table->setMinimumSize(table->maximumSize());
        table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    }
}

void CNrRssiDockWidgetV7::MarkResults()
{
    QList<QWidget *> gains;
    for (QAbstractSpinBox *box : findChildren<QAbstractSpinBox *>(kGainNames))
        gains.append(box);
    m_testMark = std::make_unique<CResultMark>(
        this,
        QList<QWidget *>{m_ui->cmdIf_response_group1_memberProperty_gainModeP0,
                         m_ui->cmdIf_response_group1_memberProperty_gainModeP1,
                         m_ui->cmdIf_response_group2_memberProperty_dlFrequency,
                         m_ui->cmdIf_response_group3_memberProperty_dlFrequency},
        gains);
    m_calculatorMark = std::make_unique<CResultMark>(
        this, gains + QList<QWidget *>{m_ui->cmdIf_response_group1_memberProperty_adviseDlPower});
    m_testMark->Watch();
    m_calculatorMark->Watch();
}

void CNrRssiDockWidgetV7::on_m_start_clicked()
{
    qCDebug(lcForm) << "on_m_start_clicked";
    if (!BeginAsking())
        return;
    connect(m_viewCtrl.get(), &CQuorlinViewCtrl::Signal_RssiTestDone, this,
            &CNrRssiDockWidgetV7::Slot_RssiTestDone);
    const QJsonObject document = PackageDocument();
    m_testMark->Package();
    m_viewCtrl->RequestTest(EPageId::Rssi, document);
}

void CNrRssiDockWidgetV7::on_m_btnRssiSeqSrhCalculator_clicked()
{
    qCDebug(lcForm) << "on_m_btnRssiSeqSrhCalculator_clicked";
    if (!BeginAsking())
        return;
    connect(m_viewCtrl.get(), &CQuorlinViewCtrl::Signal_RssiGainCalculatorDone, this,
            &CNrRssiDockWidgetV7::Slot_RssiGainCalculatorDone);
    const QJsonObject document = PackageDocument();
    m_calculatorMark->Package();
    m_viewCtrl->RequestGains(document);
}

void CNrRssiDockWidgetV7::Slot_RssiGainCalculatorDone(SEachItemOperationResult result,
                                                      std::string responseStr)
{
    qCDebug(lcForm) << "Slot_RssiGainCalculatorDone";
    disconnect(m_viewCtrl.get(), &CQuorlinViewCtrl::Signal_RssiGainCalculatorDone, this, nullptr);
    EndAsking(*m_calculatorMark, *m_calculatorResults, kCalculatorTexts, result, responseStr);
}

void CNrRssiDockWidgetV7::Slot_RssiTestDone(SEachItemOperationResult result,
                                            std::string responseStr)
{
    qCDebug(lcForm) << "Slot_RssiTestDone";
    disconnect(m_viewCtrl.get(), &CQuorlinViewCtrl::Signal_RssiTestDone, this, nullptr);
    EndAsking(*m_testMark, *m_testResults, kTestTexts, result, responseStr);
}

// False when nothing may be asked any more, see BeginRequest.
bool CNrRssiDockWidgetV7::BeginAsking()
{
    return HasAllChoices() && BeginRequest([this] { DisableTestControls(); });
}

void CNrRssiDockWidgetV7::EndAsking(CResultMark &mark, CResultExport &results, const STexts &texts,
                                    const SEachItemOperationResult &result,
                                    const std::string &responseStr)
{
    const QPointer<CNrRssiDockWidgetV7> self(this);
    // A test that did not run answers no document; adopting that would cost the page its own.
    const QJsonObject response = DocumentOf(responseStr);
    if (!response.isEmpty()) {
        results.Take(response);
        UpdateWidget(response);
    }
    if (!self)
        return;
    const bool isSuccess = result.status == eStatusSuccess;
    if (isSuccess && &mark == m_testMark.get())
        m_plot->AddRun(response);
    if (isSuccess && !response.isEmpty())
        mark.Measured();
    else
        mark.Forget();
    EndRequest([this] { EnableTestControls(); });
    if (isSuccess) {
        emit Signal_UpdateStatus(QLatin1String(texts.done));
        return;
    }
    emit Signal_UpdateStatus(QLatin1String(texts.failed));
    ShowItemResult(QLatin1String(texts.failedTitle), result);
}
