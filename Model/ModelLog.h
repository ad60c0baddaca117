// Log category of the document helpers. They serve the binding engine first, so they share its
// name: turning "quorlin.engine" off silences both.
#pragma once

#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(lcModel)
