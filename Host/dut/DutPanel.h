// The page "DUT" of the bench host: what the simulated DUT is, and its radio, by hand.
// GUI thread.
#pragma once

#include <QWidget>

class CSimulatedDut;

class CDutPanel : public QWidget
{
    Q_OBJECT

public:
    // The DUT outlives the panel.
    explicit CDutPanel(CSimulatedDut &dut, QWidget *parent = nullptr);
};
