// Folders that are the user's own: for what the tool keeps without being asked for a place.
//
//   if (!MakePrivateFolder(folder))
//       return "the folder cannot be made";
#pragma once

#include <QString>

// Makes what is missing of the path, for the user alone (0700), whatever the process's umask lets others do.
// Folders that are there stay as they are. False when the folder is not there then.
bool MakePrivateFolder(const QString &folder);
