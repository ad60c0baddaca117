#include "Host/dut/DutPanel.h"

CDutPanel::CDutPanel(CSimulatedDut &, QWidget *parent) : QWidget(parent) {}
