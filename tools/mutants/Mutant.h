// Put in front of each source that mutants are woven into: tells whether a mutant is the chosen one.
//
//   QUORLIN_MUTANT=17          mutant 17 is alive; without it none is
//   QUORLIN_REACHED=/tmp/file  none is alive; the number of each mutant that is reached is appended to the
//                              file, once in a process
#pragma once

#include <atomic>
#include <cstdio>
#include <cstdlib>

#include <fcntl.h>
#include <unistd.h>

// What stands on both sides of a mutant need not be what a person would write.
#pragma GCC diagnostic ignored "-Wall"
#pragma GCC diagnostic ignored "-Wextra"
#pragma GCC diagnostic ignored "-Wconversion"

namespace mutants {

inline constexpr int kMost = 100000;
inline std::atomic<bool> g_reached[kMost];

inline void Append(const char *file, int number)
{
    char line[16];
    const int length = std::snprintf(line, sizeof line, "%d\n", number);
    if (const int fd = open(file, O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0600); fd >= 0) {
        if (write(fd, line, static_cast<size_t>(length)) != length)
            std::abort();
        close(fd);
    }
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
