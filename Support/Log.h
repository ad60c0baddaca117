// Log categories, one per subsystem, so that a field log can be narrowed without a new build
// (QT_LOGGING_RULES="quorlin.*.debug=false;quorlin.command.debug=true").
//
// All are on from debug level up unless the rules of the process say otherwise. Log only through
// the macros qCDebug, qCInfo, qCWarning and qCCritical: they test the category first, so a log that
// is off builds none of its arguments. Never assemble a text beforehand and hand it over, and never
// put a call with an effect among the arguments.
//
// May be used from any thread, also before the application object exists.
//
//     qCDebug(lcCommand) << "element" << index << document.toJson();
#pragma once

#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(lcForm)         // the tool form and its pages
Q_DECLARE_LOGGING_CATEGORY(lcEngine)       // binding of widgets to the data model
Q_DECLARE_LOGGING_CATEGORY(lcCore)         // page list, data model supply, test runs
Q_DECLARE_LOGGING_CATEGORY(lcUpdate)       // capability driven updates of the data model
Q_DECLARE_LOGGING_CATEGORY(lcCommand)      // command and response records
Q_DECLARE_LOGGING_CATEGORY(lcTarget)       // link to the device under test
Q_DECLARE_LOGGING_CATEGORY(lcCalibration)  // calibration items and their INI files
