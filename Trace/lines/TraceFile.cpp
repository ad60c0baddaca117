#include "Trace/lines/TraceFile.h"

#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <new>
#include <utility>

#include <fcntl.h>
#include <pthread.h>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include "Trace/lines/QuietThread.h"

// In memory that a fork does not copy.
struct SSharedTrace
{
    pthread_mutex_t mutex;  // of threads of all processes; survives its owner's death
    std::atomic<uint64_t> nextIndex = 0;
    std::atomic<bool> hasFailed = false;
    uint64_t size = 0;  // of the whole lines; under the mutex
};

namespace {

uint64_t NowNs()
{
    return static_cast<uint64_t>(std::chrono::duration_cast<std::chrono::nanoseconds>(
                                     std::chrono::steady_clock::now().time_since_epoch())
                                     .count());
}

SSharedTrace *MakeShared()
{
    void *const memory = mmap(nullptr, sizeof(SSharedTrace), PROT_READ | PROT_WRITE,
                              MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED)
        return nullptr;
    auto *const shared = new (memory) SSharedTrace;
    pthread_mutexattr_t attributes;
    pthread_mutexattr_init(&attributes);
    pthread_mutexattr_setpshared(&attributes, PTHREAD_PROCESS_SHARED);
    pthread_mutexattr_setrobust(&attributes, PTHREAD_MUTEX_ROBUST);
    pthread_mutex_init(&shared->mutex, &attributes);
    pthread_mutexattr_destroy(&attributes);
    return shared;
}

}  // namespace

CTraceFile::CTraceFile(std::string path, std::string who)
    : m_path(std::move(path)), m_who(std::move(who)), m_startNs(NowNs())
{
    if (m_path.empty())
        return;
    const int errorBefore = errno;
    const CQuietThread quiet;
    if (!Open())
        Say("trace " + m_path + " can't be opened: " + std::strerror(errno));
    errno = errorBefore;
}

CTraceFile::~CTraceFile()
{
    if (m_file >= 0)
        close(m_file);
    if (m_shared != nullptr)
        munmap(m_shared, sizeof(*m_shared));
}

bool CTraceFile::Open()
{
    struct stat status = {};
    const bool isOther = stat(m_path.c_str(), &status) == 0 && !S_ISREG(status.st_mode);
    if (!OpenPath(isOther))
        return false;
    m_isRegular = fstat(m_file, &status) == 0 && S_ISREG(status.st_mode);
    if (m_isRegular && !Lock()) {
        close(m_file);
        const std::string taken = m_path;
        m_path.append(".").append(std::to_string(getpid()));
        Say("trace " + taken + " is being written by another program; this one writes " + m_path);
        if (!OpenPath(false))
            return false;
        Lock();
    }
    m_shared = MakeShared();
    const bool isReady = m_shared != nullptr && (!m_isRegular || ftruncate(m_file, 0) == 0);
    if (!isReady) {
        const int error = errno;
        close(std::exchange(m_file, -1));
        errno = error;
    }
    return isReady;
}

// A regular file is read, too: a line that was cut off by a killed process is found at its end.
bool CTraceFile::OpenPath(bool isWrittenOnly)
{
    constexpr int kHow = O_APPEND | O_CREAT | O_CLOEXEC | O_NOCTTY;
    m_file = open(m_path.c_str(), kHow | (isWrittenOnly ? O_WRONLY : O_RDWR), 0666);
    if (m_file < 0 && errno == EACCES)
        m_file = open(m_path.c_str(), kHow | O_WRONLY, 0666);
    return m_file >= 0;
}

// Where the file system knows no locks, the file counts as free.
bool CTraceFile::Lock()
{
    return flock(m_file, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

bool CTraceFile::IsOpen() const
{
    return m_file >= 0 && !m_shared->hasFailed.load(std::memory_order_relaxed);
}

uint64_t CTraceFile::NextIndex()
{
    return m_shared != nullptr ? m_shared->nextIndex.fetch_add(1, std::memory_order_relaxed) : 0;
}

uint64_t CTraceFile::Clock() const
{
    return NowNs() - m_startNs;
}

void CTraceFile::Append(std::string_view line)
{
    if (!IsOpen())
        return;
    const int errorBefore = errno;
    {
        CQuietThread quiet;
        TakeLock();
        const int error = m_shared->hasFailed ? 0 : WriteLocked(line);
        if (error != 0) {
            m_shared->hasFailed = true;
            quiet.ForgetWriteSignals();
        }
        pthread_mutex_unlock(&m_shared->mutex);
        if (error != 0)
            Say("trace " + m_path + " ends here, the calls go on: " + std::strerror(error));
    }
    errno = errorBefore;
}

int CTraceFile::WriteLocked(std::string_view line)
{
    std::size_t written = 0;
    while (written < line.size()) {
        const ssize_t count = write(m_file, line.data() + written, line.size() - written);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0) {
            const int error = count < 0 ? errno : EIO;
            if (written > 0)
                CutTo(m_shared->size);
            return error;
        }
        written += static_cast<std::size_t>(count);
    }
    m_shared->size += line.size();
    return 0;
}

void CTraceFile::TakeLock()
{
    if (pthread_mutex_lock(&m_shared->mutex) != EOWNERDEAD)
        return;
    // The dead one's line is there as a whole, in part or not at all.
    struct stat status = {};
    if (m_isRegular && fstat(m_file, &status) == 0) {
        const auto size = static_cast<uint64_t>(status.st_size);
        char last = 0;
        if (size > m_shared->size && pread(m_file, &last, 1, status.st_size - 1) == 1 &&
            last == '\n')
            m_shared->size = size;
        else
            CutTo(m_shared->size);
    }
    pthread_mutex_consistent(&m_shared->mutex);
}

void CTraceFile::CutTo(uint64_t size)
{
    struct stat status = {};
    if (!m_isRegular || fstat(m_file, &status) != 0 ||
        static_cast<uint64_t>(status.st_size) <= size)
        return;
    if (ftruncate(m_file, static_cast<off_t>(size)) != 0)
        Say("trace " + m_path + " ends with a part of a line: " + std::strerror(errno));
}

void CTraceFile::Say(const std::string &sentence) const
{
    const int error = errno;
    const std::string line = m_who + ": " + sentence + "\n";
    if (write(STDERR_FILENO, line.data(), line.size()) < 0)
        errno = 0;  // nobody listens
    errno = error;
}
