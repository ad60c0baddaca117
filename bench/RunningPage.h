// The RSRP Normal Mode page, 4x4, with a test running on the simulated DUT and rows on its table, for
// benchmarks of a report's way.
//
//   CRunningPage page(10000);
//   page.Tick();
//   page.TakeAnswer();
#pragma once

#include <QApplication>
#include <QComboBox>
#include <QEventLoop>
#include <QSpinBox>
#include <QTableWidget>
#include <QThreadPool>

#include "Controller/responses/NrDataModelResponseBuilder.h"
#include "Model/ModelText.h"
#include "View/Rx/NrRsrpNormalDockWidgetV7.h"

constexpr int kRowsAFetch = kVondMaxReports;

// Its own timer is out of the way.
class CRunningPage : public CNrRsrpNormalDockWidgetV7
{
public:
    explicit CRunningPage(int rows) : CNrRsrpNormalDockWidgetV7(nullptr)
    {
        resize(1000, 690);
        show();
        Wait([this] { return m_modelReady; });
        m_table = findChild<QTableWidget *>("cmdIf_response_group2_memberProperty_RSRP0");
        findChild<QComboBox *>("cmdIf_request_group1_memberProperty_mimoType")
            ->setCurrentText("4x4");
        on_cmdIf_request_group1_memberProperty_mimoType_activated(1);
        findChild<QSpinBox *>("cmdIf_request_group1_memberProperty_measCnt")->setValue(kRowsAFetch);
        findChild<QSpinBox *>("cmdIf_request_group1_memberProperty_reportPeriod")->setValue(10000);
        bool isRunning = false;
        connect(this, &CAutoBindingDataModelDockWidget::Signal_UpdateStatus, this,
                [&](const QString &text) { isRunning = text == "Rsrp start..."; });
        on_m_start_clicked();
        Wait([&] { return isRunning; });
        disconnect(this, &CAutoBindingDataModelDockWidget::Signal_UpdateStatus, this, nullptr);
        Settle();
        Fill(rows);
    }
    ~CRunningPage() override
    {
        on_m_stop_clicked();
        Settle();
    }

    int Rows() const { return m_table->rowCount(); }
    std::string DocumentText() const { return ModelToText(m_dataModel); }
    // Sends the request and nothing else.
    void Tick() { Slot_RsrpRxTimerTimeout(); }
    // Takes the answer and shows it.
    void TakeAnswer()
    {
        const int before = Rows();
        Wait([&] { return Rows() > before; });
        Paint();
    }
    static void WaitForTarget() { QThreadPool::globalInstance()->waitForDone(); }

private:
    template <typename Condition>
    static void Wait(Condition condition)
    {
        while (!condition())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    void Paint()
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        repaint();
    }
    void Settle()
    {
        WaitForTarget();
        Paint();
    }
    // Rows as the answers of earlier fetches would have brought them, all in one answer.
    void Fill(int rows)
    {
        NRfTestResult_GetMixRxReportV7 report = {};
        report.reportCount = kRowsAFetch;
        for (int i = 0; i < kRowsAFetch; ++i)
            report.RSRP0[i] = report.RSRP1[i] = report.RSRP2[i] = report.RSRP3[i] =
                report.RSSI0[i] = report.RSSI1[i] = report.RSSI2[i] = report.RSSI3[i] = -11552;
        report.GoodBLK = 1234567;
        QJsonObject document = m_dataModel;
        for (int row = 0; row < rows; row += kRowsAFetch)
            CNrDataModelResponseBuilder().UpdateMixRxNormalResultV7(document, report, true);
        Tick();
        WaitForTarget();
        Slot_RsrpNormalFetchReportDone({}, ModelToText(document));
        Paint();
    }

    QTableWidget *m_table = nullptr;
};
