#include "View/Rx/NrRxPathlossDockWidgetV7.h"

#include <QSpinBox>

#include "Model/JsonPath.h"
#include "View/editors/TabOrder.h"
#include "View/engine/ColumnCells.h"
#include "View/pages/CalibrationTables.h"
#include "View/plots/CalibrationPlot.h"
#include "ui_NrRxPathlossDockWidgetV7.h"

namespace {

using Page = CNrRxPathlossDockWidgetV7;
using Ctrl = CQuorlinViewCtrl;

constexpr SCalibrationPage kPage = {
    .item = ECalItem::PathLoss,
    .getDataModel = &Ctrl::GetPathLossDataModel,
    .dataModelDone = &Ctrl::Signal_GetPathLossDataModelDone,
    .upload =
        {
            .done = &Ctrl::Signal_PathLossUploadFromFlashDone,
            .slot = static_cast<CalibrationReadSlot>(&Page::Slot_PathLossUploadFromFlashDone),
        },
    .download =
        {
            .done = &Ctrl::Signal_PathLossDownloadToFlashDone,
            .slot = static_cast<CalibrationWriteSlot>(&Page::Slot_PathLossDownloadToFlashDone),
        },
    .load =
        {
            .done = &Ctrl::Signal_PathLossLoadFromFileDone,
            .slot = static_cast<CalibrationReadSlot>(&Page::Slot_PathLossLoadFromFileDone),
        },
    .save =
        {
            .done = &Ctrl::Signal_PathLossSaveToFileDone,
            .slot = static_cast<CalibrationWriteSlot>(&Page::Slot_PathLossSaveToFileDone),
        },
};

constexpr int kType1Page = 0;
constexpr int kType2Page = 1;
constexpr int kPartialOnColumns = 8;

// Tool tips of the reset button, with the tables' names on the page.
constexpr char kType1Reset[] = "Set all values of Main Path and Diversity Path to 0";
constexpr char kType2Reset[] =
    "Set all values of Partial-On Pathloss and of Gain by gain Pathloss, "
    "main and diversity, to 0";

// Gains of the partial-on table, by power mode.
constexpr char kGainInfo[] = "calDataIf.config.group1.memberProperty.scGainInfo.trait.valuePair.";

constexpr SCurveTable kCurveTables[] = {
    {.table = "calDataIf_data_group2_memberProperty_lna0", .name = "Main "},
    {.table = "calDataIf_data_group3_memberProperty_lna0",
     .name = "Div ",
     .line = EPlotLine::Dashed},
};
constexpr SCalibrationCurves kCurves = {
    .title = "RX path loss - plot",
    .key = "pathLoss",
    .x = "DL frequency (MHz)",
    .left = "Path loss (dB)",
    .curves = {.frequencies = "calDataIf_data_group4_memberProperty_freq", .tables = kCurveTables},
    .selector = "calDataIf_config_group1_memberProperty_routeType",
    .selected = "Type1",
    .otherwise = "The page shows the losses of a route of type 2 at one frequency: no curve.",
};

bool IsType2(const QString &routeType)
{
    return routeType.contains(QLatin1Char('2'));
}

}  // namespace

CNrRxPathlossDockWidgetV7::CNrRxPathlossDockWidgetV7(QWidget *parent)
    : CCalibrationDockWidget(kPage, parent), m_ui(std::make_unique<Ui::CNrRxPathlossDockWidgetV7>())
{
    m_ui->setupUi(this);
    SetForm({
        .contents = m_ui->dockWidgetContents,
        .buttons = {m_ui->m_btnUpload, m_ui->m_btnDownload, m_ui->m_btnLoad, m_ui->m_btnSave,
                    m_ui->m_btnCompare, m_ui->m_btnGuardedWrite},
        .selectors = {m_ui->calDataIf_config_group1_memberProperty_band,
                      m_ui->calDataIf_config_group1_memberProperty_routeType,
                      m_ui->calDataIf_config_group1_memberProperty_route,
                      m_ui->calDataIf_config_group1_memberProperty_powerMode,
                      m_ui->calDataIf_config_group1_memberProperty_freqIdx,
                      m_ui->calDataIf_config_group1_memberProperty_path,
                      m_ui->calDataIf_config_group1_memberProperty_type2GainModeIdx},
    });
    AddCompare(m_ui->m_btnCompare, m_ui->m_btnGuardedWrite);
    m_ui->m_lblFreq->setText(QStringLiteral("0"));
    PlaceTabBar(m_ui->calDataIf_config_group1_memberProperty_type2GainModeIdx, m_ui->m_type1Tables,
                m_ui->calDataIf_data_group2_memberProperty_lna0);
    AddPlot(kCurves);
}

CNrRxPathlossDockWidgetV7::~CNrRxPathlossDockWidgetV7() = default;

void CNrRxPathlossDockWidgetV7::Slot_InitDone()
{
    CCalibrationDockWidget::Slot_InitDone();
    ShowTables(m_ui->calDataIf_config_group1_memberProperty_routeType->currentText());
    QTableWidget *const main = m_ui->calDataIf_data_group2_memberProperty_lna0;
    QTableWidget *const diversity = m_ui->calDataIf_data_group3_memberProperty_lna0;
    QTableWidget *const frequencies = m_ui->calDataIf_data_group4_memberProperty_freq;
    AlignColumns({main, diversity, frequencies});
    for (QTableWidget *table : {main, diversity})
        FitTable(table);
    // Those of the covered page could not be measured when they were made.
    for (QTableWidget *table : {m_ui->calDataIf_data_group1_memberProperty_plOffset,
                                m_ui->calDataIf_data_group5_memberProperty_main,
                                m_ui->calDataIf_data_group6_memberProperty_gain0,
                                m_ui->calDataIf_data_group7_memberProperty_gain0}) {
        AlignColumns({table});
        FitTable(table);
    }
    WhenEditorsAreMade(frequencies, this, [this] { FollowFrequencies(); });
    // The label takes the place of the row's caption, so that the columns stand below those above.
    frequencies->setMinimumWidth(0);
    frequencies->setMaximumWidth(QWIDGETSIZE_MAX);
    m_ui->label_dlFreq->setMinimumWidth(m_ui->label_mainPathLna->sizeHint().width() +
                                        main->verticalHeader()->minimumWidth());
    PinRowCaptions(m_ui->m_mainPathArea, main);
    PinRowCaptions(m_ui->m_diversityPathArea, diversity);
    ScrollTogether({frequencies->horizontalScrollBar(), m_ui->m_mainPathArea->horizontalScrollBar(),
                    m_ui->m_diversityPathArea->horizontalScrollBar()});
}

void CNrRxPathlossDockWidgetV7::Slot_PathLossUploadFromFlashDone(SEachItemOperationResult result,
                                                                 std::string)
{
    FinishFlow(ECalibrationFlow::Upload, result);
}

void CNrRxPathlossDockWidgetV7::Slot_PathLossDownloadToFlashDone(SEachItemOperationResult result)
{
    FinishFlow(ECalibrationFlow::Download, result);
}

void CNrRxPathlossDockWidgetV7::Slot_PathLossLoadFromFileDone(SEachItemOperationResult result,
                                                              std::string)
{
    FinishFlow(ECalibrationFlow::Load, result);
}

void CNrRxPathlossDockWidgetV7::Slot_PathLossSaveToFileDone(SEachItemOperationResult result)
{
    FinishFlow(ECalibrationFlow::Save, result);
}

void CNrRxPathlossDockWidgetV7::on_calDataIf_config_group1_memberProperty_route_currentIndexChanged(
    QString arg1)
{
    ChangeSelection("==================== route change", arg1);
}

// The partial-on gains are those of the power mode. They are looked up first: the data of the new
// mode come as a document that takes the place of this one.
void CNrRxPathlossDockWidgetV7::
    on_calDataIf_config_group1_memberProperty_powerMode_currentIndexChanged(QString arg1)
{
    const QString mode =
        arg1.contains(QLatin1Char('H')) ? QStringLiteral("HPM") : QStringLiteral("LPM");
    QStringList gains;
    const QJsonArray entry = GetJsonValueConst(m_dataModel, kGainInfo + mode).toArray();
    for (const QJsonValue &gain : entry)
        gains.append(gain.toString());
    if (ChangeSelection("==================== powerMode change", arg1))
        m_ui->calDataIf_data_group5_memberProperty_main->setHorizontalHeaderLabels(
            gains.mid(0, kPartialOnColumns));
}

void CNrRxPathlossDockWidgetV7::
    on_calDataIf_config_group1_memberProperty_freqIdx_currentIndexChanged(QString arg1)
{
    ChangeSelection("==================== freqIdx change", arg1);
}

void CNrRxPathlossDockWidgetV7::on_calDataIf_config_group1_memberProperty_path_currentIndexChanged(
    QString arg1)
{
    ChangeSelection("==================== path change", arg1);
}

void CNrRxPathlossDockWidgetV7::
    on_calDataIf_config_group1_memberProperty_type2GainModeIdx_currentIndexChanged(QString arg1)
{
    ChangeSelection("==================== GainModeIdx change", arg1);
}

void CNrRxPathlossDockWidgetV7::on_calDataIf_config_group1_memberProperty_freqIdx_activated(
    int index)
{
    ShowFrequency(index);
}

void CNrRxPathlossDockWidgetV7::
    on_calDataIf_config_group1_memberProperty_routeType_currentIndexChanged(QString arg1)
{
    ShowTables(arg1);
}

void CNrRxPathlossDockWidgetV7::on_m_btnReset_2_clicked()
{
    const QString reset = m_ui->m_btnReset_2->text();
    if (IsType2(m_ui->calDataIf_config_group1_memberProperty_routeType->currentText()))
        ResetTables(reset, {m_ui->calDataIf_data_group5_memberProperty_main,
                            m_ui->calDataIf_data_group6_memberProperty_gain0,
                            m_ui->calDataIf_data_group7_memberProperty_gain0});
    else
        ResetTables(reset, {m_ui->calDataIf_data_group2_memberProperty_lna0,
                            m_ui->calDataIf_data_group3_memberProperty_lna0});
}

void CNrRxPathlossDockWidgetV7::ShowSelectionDetails()
{
    ShowFrequency(m_ui->calDataIf_config_group1_memberProperty_freqIdx->currentIndex());
}

// The label follows a frequency that the user changes.
void CNrRxPathlossDockWidgetV7::FollowFrequencies()
{
    const QTableWidget *table = m_ui->calDataIf_data_group4_memberProperty_freq;
    for (int c = 0; c < table->columnCount(); ++c) {
        if (const auto *cell = qobject_cast<QSpinBox *>(table->cellWidget(0, c)))
            connect(cell, QOverload<int>::of(&QSpinBox::valueChanged), this,
                    [this] { ShowSelectionDetails(); });
    }
}

void CNrRxPathlossDockWidgetV7::ShowFrequency(int index)
{
    const QTableWidget *table = m_ui->calDataIf_data_group4_memberProperty_freq;
    CColumnCells *cells = CColumnCells::Of(table);
    if (const auto *cell = qobject_cast<QSpinBox *>(table->cellWidget(0, index)))
        m_ui->m_lblFreq->setText(QString::number(cell->value()));
    else if (const QString text = cells ? cells->Text(0, index) : QString(); !text.isNull())
        m_ui->m_lblFreq->setText(text);
}

void CNrRxPathlossDockWidgetV7::ShowTables(const QString &routeType)
{
    const bool isType2 = IsType2(routeType);
    m_ui->m_stackedWidget->setCurrentIndex(isType2 ? kType2Page : kType1Page);
    // Some of the tables that a reset zeroes may be out of sight.
    m_ui->m_btnReset_2->setToolTip(QLatin1String(isType2 ? kType2Reset : kType1Reset));
}
