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

// Exit codes of all commands that compare or check.
constexpr int kExitGood = 0;       // the same, or good
constexpr int kExitDifferent = 1;  // different
constexpr int kExitTrouble =
    2;  // a wrong command line, a file that cannot be read; one line on stderr
