// The RSSI page: measures received signal strength at up to five frequencies, and has a calculator
// that asks the target which gains suit the gain modes chosen.
//
// Each click is one request with one answer, so there is nothing to stop. Both buttons are off from
// the click to the answer.
// An answer is a document: results, or "ERROR" in the cells of the paths that were asked for. When
// nothing ran the answer is empty, and the page stays as it was. A failure is told in the status
// line and in a box; the page may be gone when the box closes.
//
// Results are grey while they are not of the settings shown. The gains are results of the
// calculator, and settings of the measurement.
//
// The binding carries all inputs and results (NrRssiV7.json). The gains that the calculator finds
// are inputs of the measurement; the user may edit them. Gains and RSSI are dB and dBm in steps of
// 1/32, which the five decimals of their editors hold without loss; frequencies are kHz.
//
//   CNrRssiDockWidgetV7 *page = ...;   // made by the form, by class name
//   page->show();                      // reads its document, then emits Signal_InitDone()
#pragma once

#include <memory>
#include <string>

#include "View/engine/AutoBindingDataModelDockWidget.h"
#include "View/pages/ResultMark.h"
#include "View/results/ResultExport.h"
#include "ViewController/QuorlinViewCtrl.h"

class CRssiPlot;

namespace Ui {
class CNrRssiDockWidgetV7;
}

class CNrRssiDockWidgetV7 : public CAutoBindingDataModelDockWidget
{
    Q_OBJECT

public:
    Q_INVOKABLE explicit CNrRssiDockWidgetV7(QWidget *parent);
    ~CNrRssiDockWidgetV7() override;

    QWidget *GetRootWidget() override;
    int GetModelInterface() override;
    void RequestDataModel() override;
    void DisableTestControls() override;
    void EnableTestControls() override;

public slots:
    // Nothing to stop. Prescribed; see docs/decisions/0036-prescribed-surface.md
    void Slot_TriggerStopTest() override;

protected:
    QJsonObject DocumentOf(const std::string &text) override;

private slots:
    void on_m_start_clicked();
    void on_m_btnRssiSeqSrhCalculator_clicked();

public slots:
    void Slot_RssiGainCalculatorDone(SEachItemOperationResult result, std::string responseStr);
    void Slot_RssiTestDone(SEachItemOperationResult result, std::string responseStr);

private:
    // How a request's answer is told.
    struct STexts
    {
        const char *done;         // status line
        const char *failed;       // status line
        const char *failedTitle;  // of the box
    };

    static const STexts kTestTexts;
    static const STexts kCalculatorTexts;

    void FixLayout();
    void MarkResults();
    bool BeginAsking();
    // mark, results: of what the answer brings.
    void EndAsking(CResultMark &mark, CResultExport &results, const STexts &texts,
                   const SEachItemOperationResult &result, const std::string &responseStr);

    CRssiPlot *const m_plot;
    std::unique_ptr<Ui::CNrRssiDockWidgetV7> m_ui;
    std::unique_ptr<CQuorlinViewCtrl> m_viewCtrl;
    CResultExport *const m_testResults;  // since the page began
    CResultExport *const m_calculatorResults;
    std::unique_ptr<CResultMark> m_testMark;
    std::unique_ptr<CResultMark> m_calculatorMark;
};
