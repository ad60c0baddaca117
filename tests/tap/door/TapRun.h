// Runs a program of this folder with or without the tap, in a folder of its own that goes with the test.
//
//   class RecordTest : public CTapRun {};
//   const SRan ran = Run("TapHost", {"calls"}, {"VOND_TAP=record", "VOND_TAP_FILE=" + TracePath()});
//   ran.out;   // what it wrote to the standard output
#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Trace/lines/TraceReader.h"

struct SRan
{
    int exitCode = -1;  // -1: it did not end by itself
    int signal = 0;     // that ended it
    pid_t process = 0;
    std::string out;
    std::string errors;
};

class CTapRun : public ::testing::Test
{
protected:
    CTapRun();
    ~CTapRun() override;

    using Words = std::vector<std::string>;

    std::string Folder() const { return m_folder; }
    std::string TracePath() const { return m_folder + "/run.jsonl"; }

    // With the tap in front, as far as preload is not empty; "TROUBLE" in front of it.
    SRan Run(const std::string &program, const Words &arguments, const Words &environment = {},
             const std::string &preload = TapPreload()) const;
    SRan Record(const std::string &program, const Words &arguments,
                const Words &environment = {}) const;
    // Fails the test where the trace is not whole.
    STrace Trace() const;

    static std::string TapPreload();
    static std::string FilePath(const std::string &name);  // of a program or a library here

private:
    std::string m_folder;
};

std::string TextOfFile(const std::string &path);
