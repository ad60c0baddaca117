// The simulated DUT as a host sees it: through functions that the library behind the plug-in exports.
// The real libraries have no such functions.
//
//     const QStringList names = SimulatedProfiles();   // {"handset", "largest", ...}
#pragma once

#include <QString>
#include <QStringList>

// Names of the built-in profiles, once a plug-in is loaded; none where the DUT is not simulated.
QStringList SimulatedProfiles();

// Names of the built-in scenarios, in the same way.
QStringList SimulatedScenarios();

// True when the DUT is simulated and the text is neither a profile's name nor a file.
bool IsUnknownProfile(const QString &profile, const QStringList &names);

// Why the scenario that was named for the simulated DUT is not in force; empty when it is, and where
// the DUT is not simulated.
QString ScenarioError(const QString &scenario);
