// The page "Faults" of the bench host: what goes wrong with the simulated DUT.
//
// Buttons that strike the next call with one click; a table of all faults in force, to add to, edit,
// switch off and remove; scenarios to choose, load and save. A scenario that is broken changes nothing;
// the reason is told in a line at the bottom.
//
// While it is in sight the panel asks the DUT some times a second: the counts follow the calls.
// GUI thread; the DUT outlives the panel.
#pragma once

#include <memory>

#include <QTimer>
#include <QWidget>

#include "Host/SimulatedDut.h"
#include "Host/dut/FaultModel.h"

class CNameChoice;

namespace Ui {
class CFaultPanel;
}

class CFaultPanel : public QWidget
{
    Q_OBJECT

public:
    explicit CFaultPanel(CSimulatedDut &dut, QWidget *parent = nullptr);
    ~CFaultPanel() override;

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void SetUpTable();
    void ConnectNextCall();
    void ConnectTable();
    void ConnectScenarios();

    // A fault of one click: one like it that has fired goes.
    void StrikeNextCall(QJsonObject fault);
    void UnplugInNextRound(const char *function);
    void AddFault();
    void EditFault();
    void RemoveSelected();
    void RemoveAll();
    void TakeScenario(const QString &nameOrPath);
    void AskWhereToSave();
    void SaveScenario(const QString &path);

    void Refresh();
    void ShowScenario();
    // The rows that are selected and are faults.
    std::vector<CFaultModel::SRow> SelectedFaults() const;
    void ShowButtons();
    // The outcome of a call: 0 is good, words for the rest.
    void Outcome(int32_t result, const QString &whatFailed);
    void Tell(const QString &message);

    CSimulatedDut &m_dut;
    std::unique_ptr<Ui::CFaultPanel> m_ui;
    CNameChoice *m_scenarios = nullptr;
    QString m_scenario;  // in force: a name or a path; empty for none
    CFaultModel m_faults;
    QTimer m_timer;
};
