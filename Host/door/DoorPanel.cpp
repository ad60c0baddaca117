#include "Host/door/DoorPanel.h"

CDoorPanel::CDoorPanel(CSimulatedDut &, QWidget *parent) : QWidget(parent) {}
