// Runs a script of the tree on files that a test writes.
//
//   CScriptFolder folder;
//   folder.Write("guard.csv", "path,ratio\n");
//   const SScriptRun run = folder.Run("awk -f $ROOT/scripts/guard.awk guard.csv counts.csv");
#pragma once

#include <string>

struct SScriptRun
{
    int exitCode;
    std::string output;  // standard output, then what came from standard error
};

// A folder of its own, gone with the object.
class CScriptFolder
{
public:
    CScriptFolder();
    ~CScriptFolder();
    CScriptFolder(const CScriptFolder &) = delete;
    CScriptFolder &operator=(const CScriptFolder &) = delete;

    void Write(const std::string &name, const std::string &text) const;
    // A command of the shell, in the folder; $ROOT is the top of the tree.
    SScriptRun Run(const std::string &command) const;

private:
    std::string m_path;
};
