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

// Exit codes of all commands that compare or check.
constexpr int kExitGood = 0;       // the same, or good
constexpr int kExitDifferent = 1;  // different
constexpr int kExitTrouble =
    2;  // a wrong command line, a file that cannot be read; one line on stderr

// Runs a command, which returns its exit code. What it throws becomes one line on stderr and
// kExitTrouble.
void RunCommand(int &exitCode, const std::function<int()> &command);

void AddTraceCommand(CLI::App &app, int &exitCode);
void AddDecodeCommand(CLI::App &app, int &exitCode);
void AddRunCommand(CLI::App &app, int &exitCode);
void AddDescribeCommand(CLI::App &app, int &exitCode);
void AddServeCommand(CLI::App &app, int &exitCode);
