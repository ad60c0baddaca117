// Headers that nearly every source of the project reads, compiled once.
#pragma once

#include <string>

#include <QtConcurrent/QtConcurrentRun>
#include <QtCore/QtCore>
#include <QtWidgets/QtWidgets>
