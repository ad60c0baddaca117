// Exit codes of all commands that compare or check.
#pragma once

constexpr int kExitGood = 0;       // the same, or good
constexpr int kExitDifferent = 1;  // different
constexpr int kExitTrouble =
    2;  // a wrong command line, a file that cannot be read; one line on stderr
