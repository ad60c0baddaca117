#include "Runner/plan/PlanErrors.h"

#include <algorithm>
#include <tuple>

namespace {

constexpr std::size_t kMostQuoted = 60;
constexpr std::size_t kMostAllowed = 600;

bool IsContinuation(char c)
{
    return (static_cast<unsigned char>(c) & 0xc0) == 0x80;
}

// Cuts between characters, never inside of one.
std::string Cut(const std::string &text, std::size_t most)
{
    if (text.size() <= most)
        return text;
    std::size_t end = most;
    while (end > 0 && IsContinuation(text[end]))
        --end;
    return text.substr(0, end) + "...";
}

std::string Printable(std::string text)
{
    for (char &c : text)
        if (static_cast<unsigned char>(c) < 0x20 || c == 0x7f)
            c = '?';
    return text;
}

}  // namespace

void CPlanErrors::Add(const std::string &file, SPlace place, const std::string &what,
                      const std::string &allowed)
{
    if (++m_count <= kMostErrors)
        m_errors.push_back({file, place, what, Cut(allowed, kMostAllowed)});
}

void CPlanErrors::Sort(std::size_t first)
{
    if (first >= m_errors.size())
        return;
    std::stable_sort(m_errors.begin() + static_cast<std::ptrdiff_t>(first), m_errors.end(),
                     [](const SPlanError &a, const SPlanError &b) {
                         return std::tie(a.place.line, a.place.column) <
                                std::tie(b.place.line, b.place.column);
                     });
}

std::vector<std::string> CPlanErrors::Texts() const
{
    std::vector<std::string> texts;
    for (const SPlanError &error : m_errors)
        texts.push_back(ErrorText(error));
    if (m_count > m_errors.size())
        texts.push_back("... and " + std::to_string(m_count - m_errors.size()) + " more errors");
    return texts;
}

std::string ErrorText(const SPlanError &error)
{
    std::string text = error.file;
    if (error.place.line > 0)
        text += ":" + std::to_string(error.place.line) + ":" + std::to_string(error.place.column);
    text += ": " + error.what;
    if (!error.allowed.empty())
        text += " (allowed: " + error.allowed + ")";
    return Printable(text);
}

std::string Quoted(const std::string &text)
{
    return '"' + Printable(Cut(text, kMostQuoted)) + '"';
}

std::string Joined(const std::vector<std::string> &texts)
{
    std::string joined;
    for (const std::string &text : texts)
        joined += (joined.empty() ? "" : ", ") + text;
    return joined;
}
