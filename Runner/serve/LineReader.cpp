#include "Runner/serve/LineReader.h"

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

#include <QPointer>

CLineReader::CLineReader(int file)
    : m_file(file), m_flags(fcntl(file, F_GETFL)), m_notifier(file, QSocketNotifier::Read)
{
    fcntl(m_file, F_SETFL, m_flags | O_NONBLOCK);
    connect(&m_notifier, &QSocketNotifier::activated, this, &CLineReader::Read);
}

CLineReader::~CLineReader()
{
    fcntl(m_file, F_SETFL, m_flags);
}

void CLineReader::Read()
{
    char bytes[1 << 16];
    const ssize_t count = read(m_file, bytes, sizeof bytes);
    if (count > 0) {
        Take(QByteArray(bytes, static_cast<int>(count)));
    } else if (count == 0 || (errno != EAGAIN && errno != EINTR)) {
        m_notifier.setEnabled(false);
        emit Signal_End();
    }
}

// A listener may turn the event loop, which reads on: what is left of these bytes is taken first.
void CLineReader::Take(const QByteArray &bytes)
{
    QByteArray rest = bytes;
    for (int end = rest.indexOf('\n'); end >= 0; end = rest.indexOf('\n')) {
        m_begun += rest.left(end);
        rest.remove(0, end + 1);
        const QByteArray line = m_begun;
        const bool isLine = !m_isDropping && line.size() <= kLongestLine;
        const bool isTooLong = !m_isDropping && !isLine;
        m_begun.clear();
        m_isDropping = false;
        if (isLine)
            emit Signal_Line(line);
        if (isTooLong)
            emit Signal_TooLong();
    }
    m_begun += rest;
    if (m_begun.size() <= kLongestLine)
        return;
    m_begun.clear();
    if (!m_isDropping)
        emit Signal_TooLong();
    m_isDropping = true;
}
