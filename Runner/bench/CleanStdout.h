// Standard output for the program alone: the tool's libraries may print, and what they print goes to
// standard error.
//
// One a process, before the tool is loaded. Writing fails when nobody reads any more; SIGPIPE is ignored from
// then on. Any thread, one at a time.
//
//   CCleanStdout out;
//   if (!out.WriteLine("{...}"))
//       return End();
#pragma once

#include <QByteArray>

class CCleanStdout
{
public:
    CCleanStdout();
    CCleanStdout(const CCleanStdout &) = delete;
    CCleanStdout &operator=(const CCleanStdout &) = delete;
    ~CCleanStdout();

    // As it is. False when it could not be written whole.
    bool Write(const QByteArray &bytes);
    bool WriteLine(const QByteArray &line) { return Write(line + '\n'); }

private:
    int m_file = -1;  // where standard output went
};
