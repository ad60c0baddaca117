#include "Host/dut/FaultPanel.h"

CFaultPanel::CFaultPanel(CSimulatedDut &, QWidget *parent) : QWidget(parent) {}
