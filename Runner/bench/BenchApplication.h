// The application object of a program without a display.
//
//   const auto application = MakeBenchApplication(false);
#pragma once

#include <memory>

#include <QApplication>

// On Qt's offscreen platform, whatever the environment says. isVerbose: the tool's debug lines on stderr;
// without, its warnings alone.
std::unique_ptr<QApplication> MakeBenchApplication(bool isVerbose);
