#include "View/Tx/NrAptProfileDockWidgetV7.h"

#include "View/editors/TabOrder.h"
#include "View/pages/CalibrationTables.h"
#include "View/plots/CalibrationPlot.h"
#include "ui_NrAptProfileDockWidgetV7.h"

namespace {

using Page = CNrAptProfileDockWidgetV7;
using Ctrl = CQuorlinViewCtrl;

constexpr SCalibrationPage kPage = {
    .item = ECalItem::Apt,
    .getDataModel = &Ctrl::GetAptDataModel,
    .dataModelDone = &Ctrl::Signal_GetAptDataModelDone,
    .upload =
        {
            .done = &Ctrl::Signal_AptUploadFromFlashDone,
            .slot = static_cast<CalibrationReadSlot>(&Page::Slot_AptUploadFromFlashDone),
        },
    .download =
        {
            .done = &Ctrl::Signal_AptDownloadToFlashDone,
            .slot = static_cast<CalibrationWriteSlot>(&Page::Slot_AptDownloadToFlashDone),
        },
    .load =
        {
            .done = &Ctrl::Signal_AptLoadFromFileDone,
            .slot = static_cast<CalibrationReadSlot>(&Page::Slot_AptLoadFromFileDone),
        },
    .save =
        {
            .done = &Ctrl::Signal_AptSaveToFileDone,
            .slot = static_cast<CalibrationWriteSlot>(&Page::Slot_AptSaveToFileDone),
        },
};

constexpr SCurveTable kCurveTables[] = {
    {.table = "calDataIf_data_group7_memberProperty_paHighPaGain"},
};
constexpr SCalibrationCurves kCurves = {
    .title = "APT gains - plot",
    .key = "apt",
    .x = "UL frequency (MHz)",
    .left = "PA gain (dB)",
    .curves = {.frequencies = "calDataIf_data_group12_memberProperty_ulFreq",
               .tables = kCurveTables},
};

}  // namespace

CNrAptProfileDockWidgetV7::CNrAptProfileDockWidgetV7(QWidget *parent)
    : CCalibrationDockWidget(kPage, parent), m_ui(std::make_unique<Ui::CNrAptProfileDockWidgetV7>())
{
    m_ui->setupUi(this);
    SetForm({
        .contents = m_ui->dockWidgetContents,
        .buttons = {m_ui->m_btnUpload, m_ui->m_btnDownload, m_ui->m_btnLoad, m_ui->m_btnSave,
                    m_ui->m_btnCompare, m_ui->m_btnGuardedWrite},
        .selectors = {m_ui->calDataIf_config_group1_memberProperty_band,
                      m_ui->calDataIf_config_group1_memberProperty_txRoute,
                      m_ui->calDataIf_config_group1_memberProperty_aggBwRegion},
    });
    AddCompare(m_ui->m_btnCompare, m_ui->m_btnGuardedWrite);
    PlaceTabBar(m_ui->calDataIf_data_group12_memberProperty_ulFreq, m_ui->m_tables,
                m_ui->calDataIf_data_group7_memberProperty_paHighPaGain);
    AddPlot(kCurves);
}

CNrAptProfileDockWidgetV7::~CNrAptProfileDockWidgetV7() = default;

void CNrAptProfileDockWidgetV7::Slot_InitDone()
{
    CCalibrationDockWidget::Slot_InitDone();
    QTableWidget *const frequencies = m_ui->calDataIf_data_group12_memberProperty_ulFreq;
    QTableWidget *const gains = m_ui->calDataIf_data_group7_memberProperty_paHighPaGain;
    QTableWidget *const detector = m_ui->calDataIf_data_group9_memberProperty_paHighPd;
    AlignColumns({frequencies, gains, detector});
    for (QTableWidget *table : {frequencies, gains, detector})
        FitTable(table);
    // Those on covered tabs could not be measured when it was made.
    for (QTableWidget *table : {m_ui->calDataIf_data_group8_memberProperty_paHighPaGain,
                                m_ui->calDataIf_data_group10_memberProperty_paHighPd}) {
        AlignColumns({table});
        FitTable(table);
    }
    PinRowCaptions(m_ui->m_ulFreqArea, frequencies);
    PinRowCaptions(m_ui->m_paGainArea, gains);
    PinRowCaptions(m_ui->m_pdArea, detector);
    ScrollTogether({m_ui->m_ulFreqArea->horizontalScrollBar(),
                    m_ui->m_paGainArea->horizontalScrollBar(),
                    m_ui->m_pdArea->horizontalScrollBar()});
}

void CNrAptProfileDockWidgetV7::Slot_AptUploadFromFlashDone(SEachItemOperationResult result,
                                                            std::string)
{
    FinishFlow(ECalibrationFlow::Upload, result);
}

void CNrAptProfileDockWidgetV7::Slot_AptDownloadToFlashDone(SEachItemOperationResult result)
{
    FinishFlow(ECalibrationFlow::Download, result);
}

void CNrAptProfileDockWidgetV7::Slot_AptLoadFromFileDone(SEachItemOperationResult result,
                                                         std::string)
{
    FinishFlow(ECalibrationFlow::Load, result);
}

void CNrAptProfileDockWidgetV7::Slot_AptSaveToFileDone(SEachItemOperationResult result)
{
    FinishFlow(ECalibrationFlow::Save, result);
}

void CNrAptProfileDockWidgetV7::
    on_calDataIf_config_group1_memberProperty_aggBwRegion_currentIndexChanged(QString arg1)
{
    ChangeSelection("==================== routePathType change", arg1);
}

void CNrAptProfileDockWidgetV7::on_m_btnResetPaGain_clicked()
{
    ResetTables(m_ui->m_btnResetPaGain->text(),
                {m_ui->calDataIf_data_group7_memberProperty_paHighPaGain});
}

void CNrAptProfileDockWidgetV7::on_m_btnResetPd_clicked()
{
    ResetTables(m_ui->m_btnResetPd->text(), {m_ui->calDataIf_data_group9_memberProperty_paHighPd});
}
