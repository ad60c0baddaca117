// Put in front of each source that mutants are woven into: tells whether a mutant is the chosen one.
//
//   QUORLIN_MUTANT=17          mutant 17 is alive; without it none is
//   QUORLIN_REACHED=/tmp/file  none is alive; the number of each mutant that is reached is appended to the
//                              file, once in a process
#pragma once

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstdlib>

#include <fcntl.h>
#include <unistd.h>

// What stands on both sides of a mutant need not be what a person would write.
#pragma GCC diagnostic ignored "-Wconversion"
#pragma GCC diagnostic ignored "-Wnarrowing"
#pragma GCC diagnostic ignored "-Wparentheses"
#pragma GCC diagnostic ignored "-Wsign-compare"
#pragma GCC diagnostic ignored "-Wtype-limits"
#pragma GCC diagnostic ignored "-Wunused-function"
#pragma GCC diagnostic ignored "-Wunused-value"

namespace mutants {

inline constexpr int kMost = 100000;
inline std::atomic<bool> g_reached[kMost];

// A test may have left no file or no room: then the mutant is told by another test, or not at all. The code
// around it goes by errno.
inline void Append(const char *file, int number)
{
    const int errorBefore = errno;
    char line[16];
    const int length = std::snprintf(line, sizeof line, "%d\n", number);
    if (const int fd = open(file, O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0600); fd >= 0) {
        [[maybe_unused]] const ssize_t count = write(fd, line, static_cast<size_t>(length));
        close(fd);
    }
    errno = errorBefore;
}

inline bool Alive(int number) noexcept
{
    static const char *const chosen = std::getenv("QUORLIN_MUTANT");
    static const int alive = chosen ? std::atoi(chosen) : 0;
    static const char *const file = std::getenv("QUORLIN_REACHED");
    if (file && !g_reached[number].exchange(true))
        Append(file, number);
    return number == alive;
}

}  // namespace mutants
