// Headers that the QtTest programs read, compiled once.
#pragma once

#include <QFile>
#include <QTemporaryDir>
#include <QThreadPool>
#include <QtTest>

#include "cmake/QtPrecompiled.h"
