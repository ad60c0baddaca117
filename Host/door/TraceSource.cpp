#include "Host/door/TraceSource.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include "Host/door/DoorWords.h"
#include "Trace/lines/CallLines.h"
#include "Trace/lines/LineSource.h"
#include "Trace/words/CallText.h"

namespace {

constexpr std::size_t kBlock = 32 * 1024;  // bytes read at once
constexpr std::size_t kBeginning =
    256;  // bytes that tell one trace from another: the header's time

// As many bytes as there are.
std::string BytesAt(int file, uint64_t offset, std::size_t size)
{
    std::string bytes(size, '\0');
    const ssize_t count = pread(file, bytes.data(), size, static_cast<off_t>(offset));
    bytes.resize(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    return bytes;
}

}  // namespace

CTraceSource::CTraceSource(QString file) : m_file(std::move(file)) {}

CTraceSource::~CTraceSource()
{
    if (m_handle >= 0)
        close(m_handle);
}

bool CTraceSource::Open()
{
    if (m_handle < 0 && !m_file.isEmpty())
        m_handle = open(QFile::encodeName(m_file).constData(), O_RDONLY | O_CLOEXEC);
    return m_handle >= 0;
}

bool CTraceSource::IsAnother() const
{
    return !m_beginning.empty() && BytesAt(m_handle, 0, m_beginning.size()) != m_beginning;
}

void CTraceSource::Restart()
{
    m_beginning.clear();
    m_offset = 0;
    m_rest.clear();
    m_looked = 0;
    m_lines = 0;
    m_header = {};
    m_trouble.clear();
    m_open.clear();
}

void CTraceSource::Poll(SDoorNews &news, DoorClock::time_point until)
{
    if (!Open())
        return;
    if (IsAnother()) {
        news.isReset = true;
        Restart();
    }
    while (m_trouble.isEmpty() && ReadBlock()) {
        TakeLines(news);
        if (DoorClock::now() >= until) {
            news.hasMore = true;
            return;
        }
    }
}

bool CTraceSource::ReadBlock()
{
    const std::string block = BytesAt(m_handle, m_offset, kBlock);
    if (m_offset == 0)
        m_beginning = block.substr(0, kBeginning);
    m_offset += block.size();
    m_rest += block;
    return !block.empty();
}

void CTraceSource::TakeLines(SDoorNews &news)
{
    std::size_t begin = 0;
    std::size_t end = 0;
    const uint64_t offset = m_offset - m_rest.size();
    try {
        while ((end = m_rest.find('\n', std::max(begin, m_looked))) != std::string::npos) {
            const std::string line = m_rest.substr(begin, end - begin);
            ++m_lines;
            TakeLine(line, news);
            if (!news.calls.empty() && news.calls.back().isEnded && news.calls.back().size == 0) {
                news.calls.back().place = offset + begin;
                news.calls.back().size = line.size();
            }
            begin = end + 1;
        }
        if (m_rest.size() - begin > kLongestTraceLine)
            throw std::runtime_error("is too long");
    } catch (const std::exception &error) {
        m_trouble = QString("Line %1 %2.").arg(m_lines).arg(QString::fromUtf8(error.what()));
    }
    m_rest.erase(0, begin);
    m_looked = m_rest.size();
}

void CTraceSource::TakeLine(const std::string &text, SDoorNews &news)
{
    const CLineObject line(text);
    if (m_lines == 1) {
        m_header = HeaderOfLine(line);
        m_beganUnixMs =
            QDateTime::fromString(QString::fromStdString(m_header.time), Qt::ISODateWithMs)
                .toMSecsSinceEpoch();
    } else if (line.Has("begin")) {
        const STraceCall begun = CallOfBegin(line);
        SDoorCall call = DoorCallOf(begun, m_beganUnixMs);
        m_open[call.number] = call;
        news.calls.push_back(std::move(call));
    } else if (line.Has("index")) {
        const auto found = m_open.find(IndexOfEnd(line));
        if (found == m_open.end())
            throw std::runtime_error("ends a call that has not begun");
        STraceCall ended = CallWithoutRecords(found->second);
        EndCall(line, ended);
        m_open.erase(found);
        news.calls.push_back(DoorCallOf(ended, m_beganUnixMs));
    }
}

std::optional<STraceCall> CTraceSource::Read(const SDoorCall &call) const
{
    STraceCall read = CallWithoutRecords(call);
    if (!call.isEnded)
        return read;
    try {
        const CLineObject line(BytesAt(m_handle, call.place, call.size));
        if (IndexOfEnd(line) != call.number)
            return std::nullopt;
        EndCall(line, read);
    } catch (const std::exception &) {
        return std::nullopt;
    }
    return read;
}

QString CTraceSource::About() const
{
    if (m_file.isEmpty())
        return "A trace is played back. Calls are shown when VOND_TAP_OUT names a file for them.";
    const QString name = "Trace " + QFileInfo(m_file).fileName();
    return m_trouble.isEmpty() ? name : name + ". " + m_trouble;
}
