// The RX path loss page: what each receive route loses in front of the receiver, by gain and
// frequency.
//
// A type 1 route shows a value for each gain and frequency at once. A type 2 route shows those of
// one frequency, path and gain mode, which the selectors name. Either shows one power mode. The
// label beside the frequency index tells which frequency that is (kHz).
//
// The binding carries all values (NrRxPathLossV7.json), the base class the flows and the changes of
// selection. The page is made by its class name, when the tool is shown.
#pragma once

#include <memory>

#include "View/pages/CalibrationDockWidget.h"

namespace Ui {
class CNrRxPathlossDockWidgetV7;
}

class CNrRxPathlossDockWidgetV7 : public CCalibrationDockWidget
{
    Q_OBJECT

public:
    Q_INVOKABLE explicit CNrRxPathlossDockWidgetV7(QWidget *parent);
    ~CNrRxPathlossDockWidgetV7() override;

public slots:
    void Slot_PathLossUploadFromFlashDone(SEachItemOperationResult result,
                                          std::string resultDataModel);
    void Slot_PathLossDownloadToFlashDone(SEachItemOperationResult result);
    void Slot_PathLossLoadFromFileDone(SEachItemOperationResult result,
                                       std::string resultDataModel);
    void Slot_PathLossSaveToFileDone(SEachItemOperationResult result);

private slots:
    void Slot_InitDone() override;
    void on_calDataIf_config_group1_memberProperty_route_currentIndexChanged(QString arg1);
    void on_calDataIf_config_group1_memberProperty_powerMode_currentIndexChanged(QString arg1);
    void on_calDataIf_config_group1_memberProperty_freqIdx_currentIndexChanged(QString arg1);
    void on_calDataIf_config_group1_memberProperty_path_currentIndexChanged(QString arg1);
    void
    on_calDataIf_config_group1_memberProperty_type2GainModeIdx_currentIndexChanged(QString arg1);
    void on_calDataIf_config_group1_memberProperty_freqIdx_activated(int index);
    void on_m_btnReset_2_clicked();
    void on_calDataIf_config_group1_memberProperty_routeType_currentIndexChanged(QString arg1);

private:
    void ShowSelectionDetails() override;
    void ShowFrequency(int index);
    void FollowFrequencies();
    // Tables of the route type, by its text.
    void ShowTables(const QString &routeType);

    std::unique_ptr<Ui::CNrRxPathlossDockWidgetV7> m_ui;
};
