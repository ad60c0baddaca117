// The commands of the program "quorlin".
//
// Each Add function adds one command with its options. What the command says about its outcome goes
// into exitCode when the command line is read and the command has run; a command line that cannot be
// read ends the program with kExitTrouble before any command runs.
//
//   int exitCode = kExitGood;
//   AddDecodeCommand(app, exitCode);
//   app.parse(argc, argv);   // runs the command that was named
#pragma once

#include <CLI/App.hpp>
#include <functional>

#include "Cli/ExitCodes.h"

// Runs a command, which returns its exit code. What it throws becomes one line on stderr and
// kExitTrouble.
void RunCommand(int &exitCode, const std::function<int()> &command);

void AddTraceCommand(CLI::App &app, int &exitCode);
void AddDecodeCommand(CLI::App &app, int &exitCode);
void AddRunCommand(CLI::App &app, int &exitCode);
void AddDescribeCommand(CLI::App &app, int &exitCode);
void AddServeCommand(CLI::App &app, int &exitCode);
void AddCalCommand(CLI::App &app, int &exitCode);
