// The command line of the bench host.
//
// Read before the application object exists, so that --help and errors work without a display.
// Texts of --help go to stdout, errors to stderr. --help names the profiles and scenarios that the
// plug-in's simulated DUT has.
//
//     SHostOptions options;
//     if (const std::optional<int> exitCode = ReadHostOptions(argc, argv, options))
//         return *exitCode;
#pragma once

#include <cstdint>
#include <optional>

#include <QString>

// Exit codes of the program.
enum EHostExit : int
{
    eHostExitGood = 0,
    eHostExitFailed = 1,     // the demonstration failed, or the tool can't run on the DUT
    eHostExitOptions = 2,    // wrong command line, no such profile, scenario or trace
    eHostExitNoPlugin = 3,   // the plug-in or the link can't be loaded
    eHostExitNoDisplay = 4,  // Qt finds no display
};

struct SHostOptions
{
    QString pluginFile;      // never empty after reading
    QString profile;         // of the simulated DUT; empty: as the environment says
    QString scenario;        // of the simulated DUT; empty: as the environment says
    uint32_t handle = 1;     // target handle; not used with a link
    QString linkFile;        // library that opens the link; empty: none
    bool isVerbose = false;  // debug logs of the tool too
    bool isDemo = false;
    QString screenshotFile;  // empty: none
    QString recordFile;      // trace to write; empty: none
    QString replayFile;      // trace to play back; empty: none
};

// Returns the exit code if the program is to end at once, nothing if it is to go on with options.
std::optional<int> ReadHostOptions(int argc, char **argv, SHostOptions &options);

// The plug-in beside the program's folder.
QString DefaultPluginFile();

// A target handle: decimal, or hexadecimal behind "0x". Nothing if it is no number of 32 bits.
std::optional<uint32_t> ReadHandle(const QString &text);
