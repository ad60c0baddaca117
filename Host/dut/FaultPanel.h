// The page "Faults" of the bench host: what goes wrong with the simulated DUT.
// GUI thread.
#pragma once

#include <QWidget>

class CSimulatedDut;

class CFaultPanel : public QWidget
{
    Q_OBJECT

public:
    // The DUT outlives the panel.
    explicit CFaultPanel(CSimulatedDut &dut, QWidget *parent = nullptr);
};
