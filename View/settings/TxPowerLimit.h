// A limit of the user's own for the TX power of every test: none until one is set. Above it no Start
// sends anything. It is kept with the tool's settings (Support/Settings.h). GUI thread.
//
//   if (const std::optional<double> limit = TxPowerLimit(); limit && power > *limit) ...
#pragma once

#include <optional>

class QWidget;

std::optional<double> TxPowerLimit();  // dBm
void SetTxPowerLimit(std::optional<double> limit);
// Asks the user in a dialog; an empty text takes the limit away. window may be gone when it returns.
void AskTxPowerLimit(QWidget *window);
