// The page "DUT" of the bench host: what the simulated DUT is, what its radio does now, and the test set
// at its connectors, by hand.
//
// Profile, plug, reset; the running test with the time that the DUT itself measures; level by band, path
// loss by route, noise figure, fluctuation and temperature, which a running test shows with its next
// reading; the records of the flash. What the DUT refuses is told in a line at the bottom.
//
// While it is in sight the panel asks the DUT some times a second, so it also shows what others change:
// a scenario, or the tool. A test that begins brings its own band and route under the sliders.
// GUI thread; the DUT outlives the panel.
#pragma once

#include <array>
#include <memory>

#include <QJsonObject>
#include <QTimer>
#include <QWidget>

#include "Host/SimulatedDut.h"
#include "Host/dut/FlashModel.h"

class CNameChoice;
class CSliderNumber;
class QComboBox;
class QPushButton;

namespace Ui {
class CDutPanel;
}

class CDutPanel : public QWidget
{
    Q_OBJECT

public:
    explicit CDutPanel(CSimulatedDut &dut, QWidget *parent = nullptr);
    ~CDutPanel() override;

    // The profile that was chosen last in an earlier session; empty when none was, or its file has gone.
    static QString RememberedProfile();
    // The tool has asked the DUT anew: takes the hint away that it should.
    void ToolHasAsked();

signals:
    // Another DUT is in place, or the same one anew.
    void Signal_DutChanged();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    // A table of numbers with a default: the cell level by band, the path loss by route.
    struct SNumberTable
    {
        const char *key = "";
        QComboBox *choice = nullptr;  // its data: "default", "n78", "105"
        CSliderNumber *number = nullptr;
        QPushButton *asOthers = nullptr;
    };

    void MakeChoices();
    void MakeTable(SNumberTable &table);
    CSliderNumber *MakeNumber(const char *key, const QString &widget);
    void ConnectButtons();

    void TakeProfile(const QString &nameOrPath);
    void ResetDut();
    void OnNewDut();
    void FillBandsAndRoutes();
    void ChangeRadio(const QJsonObject &keys);
    void ChangeTable(const SNumberTable &table, const QJsonValue &value);

    void Refresh();
    void ShowRadioState();
    void ShowRadioKeys();
    void ShowTable(const SNumberTable &table, const QJsonObject &radio);
    void ShowFlash();
    // Brings the band and the route of a test that has just begun under the sliders.
    void FollowTest(const SVondSimRadioState &state);
    void ShowProfileText();
    void Tell(const QString &message);

    CSimulatedDut &m_dut;
    std::unique_ptr<Ui::CDutPanel> m_ui;
    CNameChoice *m_profiles = nullptr;
    QString m_profile;  // in place: a name or a path
    SNumberTable m_levels;
    SNumberTable m_losses;
    std::array<std::pair<const char *, CSliderNumber *>, 3> m_numbers = {};
    CFlashModel m_flash;
    QTimer m_timer;
    int m_refreshCount = 0;
    QString m_runningTest;
    uint64_t m_elapsedNs = 0;
};
