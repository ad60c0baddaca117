// TX pages: start, stop, and beside them one reading of the DUT, shown in the document's response.
//
// The reading has a button of its own. Its answer is the page's document with the value in it. A
// reading that failed has an error text for its value, and the reason in modelIntegrity, which is
// shown in a box. An answer that is no document leaves the page as it is. The page is busy until the
// answer is there.
//
// GUI thread; the box of a failed reading may outlive the page.
//
//   constexpr STxReading kPdValue = {.startStatus = "Start fetch PD value...", ...};
//   void CNrSingleToneTxDockWidgetV7::on_m_btnFetchPd_clicked() { StartReading(); }
#pragma once

#include "View/pages/ResultMark.h"
#include "View/pages/StartStopDockWidget.h"
#include "View/results/ResultExport.h"

struct STxReading
{
    const char *startStatus;
    const char *doneStatus;
    PageRequest request;
    TextSignal done;
    TextSlot slot;
    // Start and Stop go off with it; the answer turns Start on, and Stop if a test runs.
    bool takesTestButtons;
    bool needsChoices;     // asks nothing while a choice of the request is missing
    bool restsDuringTest;  // its button is off from Start until that failed, or Stop succeeded
    bool staysConnected;   // no answer takes its connection down: the n-th one comes n times
};

class CNrTxDockWidget : public CStartStopDockWidget
{
    Q_OBJECT

public:
    // As with the base's buttons, the reading's goes off and on.
    void DisableTestControls() override;
    void EnableTestControls() override;

protected:
    CNrTxDockWidget(const SStartStopPage &page, const STxReading &reading, QWidget *parent);

    // The form's button, and where its value is shown: grey while it is not of the shown settings.
    void SetReadingButton(QPushButton *button, QWidget *result);

    // Keeps the readings for an export, from now on.
    void KeepReadings(const SResultExport &what);

    void StartReading();
    void FinishReading(const std::string &resultModel);
    // The answer of a reading is shown.
    virtual void OnReading(const QJsonObject & /*response*/) {}
    bool IsReading() const { return m_isReading; }

    void TakeStep(ETestStep step) override;
    bool HoldsButtons() const override { return m_isReading && m_reading.takesTestButtons; }

private:
    const STxReading m_reading;
    QPushButton *m_button = nullptr;
    std::unique_ptr<CResultMark> m_mark;
    CResultExport *m_results = nullptr;  // null: not kept
    bool m_isReading = false;            // from the request to its first answer
};
