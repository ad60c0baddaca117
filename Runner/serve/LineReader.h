// Lines from a file descriptor, on the event loop.
//
// A line is what stands in front of a line break, at most kLongestLine bytes; a longer one is told as too
// long, once, and the rest of it is dropped. The end comes once, also after an error of reading; bytes
// without a line break at the end are no line. GUI thread.
//
//   CLineReader reader(STDIN_FILENO);
//   connect(&reader, &CLineReader::Signal_Line, ...);
#pragma once

#include <QByteArray>
#include <QObject>
#include <QSocketNotifier>

constexpr int kLongestLine = 1 << 20;

class CLineReader : public QObject
{
    Q_OBJECT

public:
    // file is made non-blocking for the time of this object.
    explicit CLineReader(int file);
    ~CLineReader() override;

signals:
    void Signal_Line(const QByteArray &line);
    void Signal_TooLong();
    void Signal_End();

private:
    void Read();
    void Take(const QByteArray &bytes);

    const int m_file;
    const int m_flags;
    QSocketNotifier m_notifier;
    QByteArray m_begun;
    bool m_isDropping = false;
};
