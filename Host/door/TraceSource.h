// The trace that the tap writes, as a source of calls: read while it grows.
//
//     CTraceSource source("run.jsonl");
//
// A file that is not there yet, or is emptied, is begun anew at the next look. At a line that is no line
// of a trace the reading ends, and About says why.
#pragma once

#include <unordered_map>

#include "Host/door/DoorSource.h"

class CTraceSource : public IDoorSource
{
public:
    // An empty file name: nothing is written, and nothing comes.
    explicit CTraceSource(QString file);
    ~CTraceSource() override;
    CTraceSource(const CTraceSource &) = delete;
    CTraceSource &operator=(const CTraceSource &) = delete;

    void Poll(SDoorNews &news, DoorClock::time_point until) override;
    uint64_t FirstPlace() override { return 0; }
    std::optional<STraceCall> Read(const SDoorCall &call) const override;
    STraceHeader Header() const override { return m_header; }
    QString About() const override;

private:
    bool Open();
    // Has the file been emptied since the last look? Then it is read from its begin again.
    bool IsAnother() const;
    void Restart();
    // False: there are no more bytes.
    bool ReadBlock();
    void TakeLines(SDoorNews &news);
    void TakeLine(const std::string &line, SDoorNews &news);

    const QString m_file;
    int m_handle = -1;
    std::string m_beginning;   // of the file, as it was read first
    uint64_t m_offset = 0;     // of the first byte that was not read
    std::string m_rest;        // of a line that has no end yet
    std::size_t m_looked = 0;  // bytes of the rest that have no line end
    uint64_t m_lines = 0;
    STraceHeader m_header;
    int64_t m_beganUnixMs = 0;
    QString m_trouble;
    std::unordered_map<uint64_t, SDoorCall> m_open;
};
