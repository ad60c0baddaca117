// The page "Door" of the bench host: the calls to the target as they begin and end.
// GUI thread.
#pragma once

#include <QWidget>

class CSimulatedDut;

class CDoorPanel : public QWidget
{
    Q_OBJECT

public:
    // The DUT outlives the panel.
    explicit CDoorPanel(CSimulatedDut &dut, QWidget *parent = nullptr);
};
