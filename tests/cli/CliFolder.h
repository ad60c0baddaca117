// Runs the program quorlin on files that a test writes.
//
//   const CCliFolder folder;
//   folder.Write("a.jsonl", text);
//   const SCliRun run = folder.Run("trace summary a.jsonl");
//   EXPECT_EQ(run.exitCode, 0) << run.err;
#pragma once

#include <span>
#include <string>

struct SCliRun
{
    int exitCode;  // -1 when a signal ended it
    std::string out;
    std::string err;
};

// A folder of its own, gone with the object.
class CCliFolder
{
public:
    CCliFolder();
    ~CCliFolder();
    CCliFolder(const CCliFolder &) = delete;
    CCliFolder &operator=(const CCliFolder &) = delete;

    std::string Path(const std::string &name) const { return m_path + '/' + name; }
    std::string Write(const std::string &name, const std::string &text) const;
    std::string Write(const std::string &name, std::span<const uint8_t> bytes) const;
    // The arguments as a shell reads them, in the folder.
    SCliRun Run(const std::string &arguments) const;
    // A whole command of the shell; $QUORLIN is the program, $BIN the folder of all.
    SCliRun Shell(const std::string &command) const;

private:
    std::string m_path;
};
