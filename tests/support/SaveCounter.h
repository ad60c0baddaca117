#pragma once

// Counts how often a file was put in place by a save since construction.
//
//   CSaveCounter saves(folder);
//   ...
//   EXPECT_EQ(saves.Count("cal.ini"), 1);

#include <string>

#include <sys/inotify.h>
#include <unistd.h>

#include <QString>

class CSaveCounter
{
public:
    explicit CSaveCounter(const QString &folder) : m_watch(inotify_init1(IN_NONBLOCK))
    {
        // More than is counted, or else the kernel would merge saves of one file into one event.
        inotify_add_watch(m_watch, folder.toUtf8().constData(),
                          kPutInPlace | IN_MOVED_FROM | IN_DELETE);
    }
    CSaveCounter(const CSaveCounter &) = delete;
    CSaveCounter &operator=(const CSaveCounter &) = delete;
    ~CSaveCounter() { close(m_watch); }

    int Count(const std::string &name)
    {
        alignas(inotify_event) char buffer[4096];
        ssize_t size = 0;
        while ((size = read(m_watch, buffer, sizeof(buffer))) > 0) {
            for (ssize_t at = 0; at < size;) {
                const auto *event = reinterpret_cast<const inotify_event *>(buffer + at);
                m_count += (event->mask & kPutInPlace) && name == event->name;
                at += ssize_t(sizeof(inotify_event)) + event->len;
            }
        }
        return m_count;
    }

private:
    static constexpr uint32_t kPutInPlace = IN_MOVED_TO | IN_CREATE;

    int m_watch;
    int m_count = 0;
};
