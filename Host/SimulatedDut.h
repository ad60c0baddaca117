// The simulated DUT, as far as a host can see it: by the name of a function of the library that has
// come with the plug-in. The real libraries have no such function.
//
//     const QStringList names = SimulatedProfiles();   // {"handset", "largest", ...}
#pragma once

#include <QString>
#include <QStringList>

// Names of the built-in profiles, once a plug-in is loaded; none where the DUT is not simulated.
QStringList SimulatedProfiles();

// Not the name of one, nor a file, where there are profiles to choose from.
bool IsUnknownProfile(const QString &profile, const QStringList &names);
