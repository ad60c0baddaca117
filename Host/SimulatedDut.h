// The simulated DUT as a host sees it: through a function that the library behind the plug-in
// exports. The real libraries have no such function.
//
//     const QStringList names = SimulatedProfiles();   // {"handset", "largest", ...}
#pragma once

#include <QString>
#include <QStringList>

// Names of the built-in profiles, once a plug-in is loaded; none where the DUT is not simulated.
QStringList SimulatedProfiles();

// True when the DUT is simulated and the text is neither a profile's name nor a file.
bool IsUnknownProfile(const QString &profile, const QStringList &names);
