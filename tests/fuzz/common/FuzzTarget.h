// What a fuzz target consists of: one function, called with one input after another.
//
// A target's sources define LLVMFuzzerTestOneInput, which does with the bytes what is to be tried
// and ends the process (Require) when a rule is broken; a sanitizer ends it when it finds
// something. An input does the same each time, whatever ran before it. Inputs are passed one at a
// time, from one thread.
//
// LLVMFuzzerInitialize runs once before; all targets define it. A target with a MUTATOR in its
// CMakeLists.txt also defines MutateFuzzInput, which makes an altered input that still has the
// format's shape; the same random numbers make the same input. Without one, bytes alone are
// altered.
//
//   extern "C" int LLVMFuzzerInitialize(int *, char ***) { return 0; }
//   extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
//   {
//       Require(Survives(data, size), "what must hold");
//       return 0;
//   }
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <random>

#include <QByteArray>
#include <QLoggingCategory>

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

QByteArray MutateFuzzInput(const QByteArray &input, std::mt19937 &random);

// For LLVMFuzzerInitialize. What a log is for is no part of an input's work.
inline void SwitchLogsOff()
{
    qunsetenv("QT_LOGGING_RULES");  // they would outrule the next line
    QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
}

// Ends the process if the rule is broken, which counts as a finding. The rule goes to the standard
// output: a hunt closes the standard error, to which the code under test may write by right.
inline void Require(bool holds, const char *rule)
{
    if (holds)
        return;
    std::printf("Broken rule: %s\n", rule);
    std::fflush(stdout);
    std::abort();
}
