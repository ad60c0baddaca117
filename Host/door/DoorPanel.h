// The page "Door" of the bench host: the calls to the target as they begin and end, and what the chosen
// one asked and answered, field by field.
//
// Two chosen calls are compared. Calls come from the trace where the host runs under the tap, else from the
// journal of the simulated DUT (DoorSource.h). The panel looks there by a timer while it is visible, a few
// milliseconds at most; long tables of fields, long copies and traces are made beside the GUI thread.
// GUI thread.
//
//     CDoorPanel panel(dut);
//     panel.show();
#pragma once

#include <atomic>
#include <functional>
#include <memory>
#include <vector>

#include <QThreadPool>
#include <QTimer>
#include <QWidget>

#include "Host/door/DoorModel.h"
#include "Host/door/DoorSource.h"
#include "Host/door/FieldModel.h"

namespace Ui {
class CDoorPanel;
}

class CSimulatedDut;
class QTableView;

class CDoorPanel : public QWidget
{
    Q_OBJECT

public:
    // The DUT outlives the panel.
    explicit CDoorPanel(CSimulatedDut &dut, QWidget *parent = nullptr);
    explicit CDoorPanel(std::unique_ptr<IDoorSource> source, QWidget *parent = nullptr);
    ~CDoorPanel() override;

    // Writes the calls that the table shows; what became of it stands in the last line.
    void SaveAsTrace(const QString &file);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private slots:
    void on_m_pause_toggled(bool isPaused);
    void on_m_copy_clicked() { CopyCalls(); }
    void on_m_copyFields_clicked() { CopyFields(); }
    void on_m_save_clicked();

private:
    // What is done on the GUI thread when a job is done.
    using Then = std::function<void()>;

    void SetUpTables();
    void SetUpTable(QTableView &table, const std::vector<int> &widths);
    void Poll();
    void ApplyFilter();
    void ShowFields();
    void ShowFieldsOf(SDoorFields fields);
    void ReleaseAside(CFieldModel::Fields fields);
    void CopyCalls();
    void CopyFields();
    void ShowState();
    void Say(const QString &message);
    // Runs the job on another thread.
    void RunAside(std::function<Then()> job);

    std::unique_ptr<Ui::CDoorPanel> m_ui;
    const std::unique_ptr<IDoorSource> m_source;  // null: there are no calls to be seen
    CDoorModel m_calls;
    CFieldModel m_fields;
    QTimer m_timer;
    QString m_message;
    uint64_t m_request = 0;  // number of the last job for fields
    std::atomic<bool> m_isStopped = false;
    QThreadPool m_pool;
};
