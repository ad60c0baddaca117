// The APT profile page: how the power amplifier of a transmit route is driven, and what its gain
// and detector are over frequency and temperature.
//
// It shows one route and bandwidth region at a time. A level of the PA can be edited when the PA
// control level reaches it. Gains are dB, frequencies kHz; the columns of the wide tables are the
// frequencies of the first one, so they scroll together.
//
// The binding carries all values (NrAptProfileV7.json), the base class the flows and the changes of
// selection. The page is made by its class name, when the tool is shown.
#pragma once

#include <memory>

#include "View/pages/CalibrationDockWidget.h"

namespace Ui {
class CNrAptProfileDockWidgetV7;
}

class CNrAptProfileDockWidgetV7 : public CCalibrationDockWidget
{
    Q_OBJECT

public:
    Q_INVOKABLE explicit CNrAptProfileDockWidgetV7(QWidget *parent);
    ~CNrAptProfileDockWidgetV7() override;

public slots:
    void Slot_AptUploadFromFlashDone(SEachItemOperationResult result, std::string resultDataModel);
    void Slot_AptDownloadToFlashDone(SEachItemOperationResult result);
    void Slot_AptLoadFromFileDone(SEachItemOperationResult result, std::string resultDataModel);
    void Slot_AptSaveToFileDone(SEachItemOperationResult result);

private slots:
    void on_calDataIf_config_group1_memberProperty_aggBwRegion_currentIndexChanged(QString arg1);
    void on_m_btnResetPaGain_clicked();
    void on_m_btnResetPd_clicked();
    void Slot_InitDone() override;

private:
    std::unique_ptr<Ui::CNrAptProfileDockWidgetV7> m_ui;
};
