#include "Trace/lines/LineSource.h"

#include <algorithm>
#include <istream>
#include <stdexcept>

namespace {

constexpr std::size_t kBlockBytes = 1024 * 1024;

}  // namespace

CLineSource::CLineSource(std::istream &stream) : m_stream(stream), m_block(kBlockBytes) {}

bool CLineSource::Next()
{
    m_line.clear();
    m_hasEnd = false;
    ++m_number;
    while (!m_hasEnd && Fill()) {
        const auto first = m_block.begin() + static_cast<std::ptrdiff_t>(m_next);
        const auto last = m_block.begin() + static_cast<std::ptrdiff_t>(m_size);
        const auto end = std::find(first, last, '\n');
        if (m_line.size() + static_cast<std::size_t>(end - first) > kLongestTraceLine)
            throw std::runtime_error("is longer than " + std::to_string(kLongestTraceLine) +
                                     " bytes");
        m_line.append(first, end);
        m_hasEnd = end != last;
        m_next = static_cast<std::size_t>(end - m_block.begin()) + (m_hasEnd ? 1 : 0);
    }
    return m_hasEnd || !m_line.empty();
}

bool CLineSource::Fill()
{
    if (m_next < m_size)
        return true;
    m_stream.read(m_block.data(), static_cast<std::streamsize>(m_block.size()));
    m_next = 0;
    m_size = static_cast<std::size_t>(m_stream.gcount());
    if (m_stream.bad())
        throw std::runtime_error("cannot be read");
    m_sum += m_size;
    if (m_sum > kLongestTrace)
        throw std::runtime_error("is beyond the " + std::to_string(kLongestTrace >> 20) +
                                 " MB of a trace that is read into memory");
    return m_size > 0;
}
