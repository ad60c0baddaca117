#include "Support/Log.h"

Q_LOGGING_CATEGORY(lcForm, "quorlin.form", QtDebugMsg)
Q_LOGGING_CATEGORY(lcEngine, "quorlin.engine", QtDebugMsg)
Q_LOGGING_CATEGORY(lcCore, "quorlin.core", QtDebugMsg)
Q_LOGGING_CATEGORY(lcUpdate, "quorlin.update", QtDebugMsg)
Q_LOGGING_CATEGORY(lcCommand, "quorlin.command", QtDebugMsg)
Q_LOGGING_CATEGORY(lcTarget, "quorlin.target", QtDebugMsg)
Q_LOGGING_CATEGORY(lcCalibration, "quorlin.calibration", QtDebugMsg)
