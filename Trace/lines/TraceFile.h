// The file of a trace while it is written: appends whole lines and gives the numbers of calls. For any
// thread, and for every process that has it by a fork: they share the file, the numbers and the clock.
//
//   CTraceFile file("run.jsonl", "VondTap");
//   if (file.IsOpen())
//       file.Append("{\"note\":\"begun\",\"startNs\":0}\n");
//
// A line is one write to the file, behind all lines that are there. What can't be written ends the
// trace: the part of a line is cut off, one sentence with "VondTap: " in front goes to the standard error,
// and all processes go on without the trace. Append leaves errno, signals and cancellation of the
// caller's thread as they are: a limit of the file's size or a closed pipe ends no program.
//
// The file is emptied when it is opened. While another program writes it, this one writes its own,
// which has the number of the process behind its name, and says so. So does a child that was forked
// before the file was opened. The file is locked (flock) as long as it is written.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

struct SSharedTrace;

class CTraceFile
{
public:
    // An empty path: no file. One that can't be opened costs a sentence on the standard error.
    CTraceFile(std::string path, std::string who);
    ~CTraceFile();
    CTraceFile(const CTraceFile &) = delete;
    CTraceFile &operator=(const CTraceFile &) = delete;

    // False, too, when the trace has ended by a failure.
    bool IsOpen() const;
    // Each number is given once, in the order of the calls of this function, from 0.
    uint64_t NextIndex();
    // Nanoseconds since the file was opened.
    uint64_t Clock() const;
    // The line with its line end.
    void Append(std::string_view line);

private:
    bool Open();
    bool OpenPath(bool isWrittenOnly);
    bool Lock();
    // The error number of a failure, 0 for none. The caller holds the lock of the processes.
    int WriteLocked(std::string_view line);
    // Takes the lock; whatever a process left that was killed with it is cut off.
    void TakeLock();
    void CutTo(uint64_t size);
    void Say(const std::string &sentence) const;

    std::string m_path;
    const std::string m_who;
    const uint64_t m_startNs;
    int m_file = -1;
    bool m_isRegular = false;
    SSharedTrace *m_shared = nullptr;  // of all processes
};
