// The version of the tool, "0.1". Any thread.
#pragma once

#include <QString>

QString ToolVersion();
