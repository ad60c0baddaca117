// Something that grows on purpose, a bit with each line, so that the verdict is seen to fail.
//
//   const SeededGrowth grow = FindGrowth("thread");   // empty: no such kind
//   grow();
#pragma once

#include <functional>

#include <QStringList>

using SeededGrowth = std::function<void()>;

QStringList GrowthKinds();
SeededGrowth FindGrowth(const QString &kind);
