// The lines of a stream, one by one, each of bounded length, and bounded in all.
//
//   CLineSource source(stream);
//   while (source.Next())
//       Use(source.Line());
//
// Throws std::runtime_error at a line above kLongestTraceLine, behind kLongestTrace, and where the stream cannot
// be read.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>
#include <vector>

constexpr std::size_t kLongestTraceLine = 16 * 1024 * 1024;  // bytes
constexpr std::size_t kLongestTrace = 256 * 1024 * 1024;     // bytes

class CLineSource
{
public:
    explicit CLineSource(std::istream &stream);

    // False behind the last line.
    bool Next();
    const std::string &Line() const { return m_line; }  // without its end
    std::size_t Number() const { return m_number; }     // from 1
    // Has the line an end? Only the last one may lack it.
    bool HasEnd() const { return m_hasEnd; }

private:
    bool Fill();

    std::istream &m_stream;
    std::vector<char> m_block;
    std::size_t m_next = 0;  // in the block
    std::size_t m_size = 0;
    std::string m_line;
    std::size_t m_number = 0;
    std::size_t m_sum = 0;  // of all bytes so far
    bool m_hasEnd = false;
};
