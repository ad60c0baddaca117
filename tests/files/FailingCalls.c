/* Preloaded: counts the system calls on files below a folder, and makes one of them go wrong. FailingCalls.h
 * is the manual.
 *
 * A file of the C library (FILE *) is seen when it is opened, and not when it is written.
 */
#include "tests/files/FailingCalls.h"

#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <signal.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/types.h>
#include <sys/uio.h>
#include <unistd.h>

enum { kLongestPath = 4096, kLongestName = 160, kMostCalls = 8192 };

static char s_folder[kLongestPath];
static char s_kind[16];
static char s_log[kLongestPath];
static char s_names[kMostCalls][kLongestName];
static int s_at;
static int s_count;
static int s_isFull;
static int s_hasStruck;

static const struct
{
    const char *kind;
    int error;
} kErrors[] = {{"EIO", EIO}, {"ENOSPC", ENOSPC}, {"EACCES", EACCES}};

void FailingCalls_Arm(const char *folder, int at, const char *kind)
{
    s_folder[0] = '\0';
    s_at = at;
    s_count = s_isFull = s_hasStruck = 0;
    snprintf(s_kind, sizeof(s_kind), "%s", kind);
    snprintf(s_folder, sizeof(s_folder), "%s", folder);
}

int FailingCalls_Disarm(void)
{
    s_folder[0] = '\0';
    return s_count;
}

int FailingCalls_HasStruck(void)
{
    return s_hasStruck;
}

const char *FailingCalls_Name(int call)
{
    return call < 1 || call > s_count || call > kMostCalls ? "" : s_names[call - 1];
}

static const char *Setting(const char *name)
{
    const char *const value = getenv(name);
    return value != NULL ? value : "";
}

__attribute__((constructor)) static void ReadEnvironment(void)
{
    snprintf(s_log, sizeof(s_log), "%s", Setting("FAILING_CALLS_LOG"));
    if (*Setting("FAILING_CALLS_FOLDER") != '\0')
        FailingCalls_Arm(Setting("FAILING_CALLS_FOLDER"), atoi(Setting("FAILING_CALLS_AT")),
                         Setting("FAILING_CALLS_KIND"));
}

static int IsKind(const char *kind)
{
    return strcmp(s_kind, kind) == 0;
}

/* What of a path stands behind the folder, NULL where it is not below; whole has room for a path from "/" on. */
static const char *PartBelow(const char *path, char *whole)
{
    const size_t length = strlen(s_folder);
    if (length == 0)
        return NULL;
    if (path[0] != '/') {
        if (getcwd(whole, kLongestPath) == NULL)
            return NULL;
        strcat(whole, "/");
        strncat(whole, path, kLongestPath - 1);
        path = whole;
    }
    if (strncmp(path, s_folder, length) != 0 || (path[length] != '/' && path[length] != '\0'))
        return NULL;
    return path + length;
}

/* The path of an open file; empty where it is none. */
static const char *PathOf(int file, char *path)
{
    char link[32];
    snprintf(link, sizeof(link), "/proc/self/fd/%d", file);
    const long length = syscall(SYS_readlink, link, path, (long)(kLongestPath - 1));
    path[length > 0 ? length : 0] = '\0';
    return path;
}

static void Note(int number, const char *call, const char *part)
{
    char line[kLongestName];
    const int length = snprintf(line, sizeof(line), "%s %.120s\n", call, part);
    if (number <= kMostCalls)
        snprintf(s_names[number - 1], kLongestName, "%.*s", length - 1, line);
    if (s_log[0] == '\0')
        return;
    const long log = syscall(SYS_open, s_log, (long)(O_WRONLY | O_APPEND | O_CREAT), 0600L);
    syscall(SYS_write, log, line, (long)length);
    syscall(SYS_close, log);
}

enum EFate { eGoes, eFails, eHalf, eDiesInside };

/* Counts a call on a path. eFails: errno is set. */
static enum EFate Judge(const char *call, const char *path, int isWrite)
{
    char whole[2 * kLongestPath];
    const char *const part = path != NULL ? PartBelow(path, whole) : NULL;
    if (part == NULL)
        return eGoes;
    const int number = __atomic_add_fetch(&s_count, 1, __ATOMIC_SEQ_CST);
    Note(number, call, part);
    if (s_isFull && (isWrite || strcmp(call, "create") == 0)) {
        errno = ENOSPC;
        return eFails;
    }
    if (number != s_at)
        return eGoes;
    s_hasStruck = 1;
    if (IsKind("exit"))
        _exit(kFailingCallsExit);
    if (IsKind("kill"))
        return eDiesInside;
    if (isWrite && (IsKind("short") || IsKind("full"))) {
        s_isFull = IsKind("full");
        return eHalf;
    }
    for (size_t i = 0; i < sizeof(kErrors) / sizeof(kErrors[0]); ++i) {
        if (!IsKind(kErrors[i].kind))
            continue;
        errno = kErrors[i].error;
        return eFails;
    }
    s_hasStruck = 0;
    return eGoes;
}

static enum EFate JudgeFile(const char *call, int file, int isWrite)
{
    char path[kLongestPath];
    if (s_folder[0] == '\0')
        return eGoes;
    const int before = errno;
    const enum EFate fate = Judge(call, PathOf(file, path), isWrite);
    if (fate != eFails)
        errno = before;
    return fate;
}

static void Die(void)
{
    kill(getpid(), SIGKILL);
    for (;;)
        pause();
}

/* The call behind this one, and what comes of it by its fate. */
#define NEXT(result, name, ...)                                                                    \
    static result (*next)(__VA_ARGS__);                                                            \
    if (next == NULL)                                                                              \
    *(void **)&next = dlsym(RTLD_NEXT, name)

#define FINISH(fate, failure, type, call)                                                          \
    if ((fate) == eFails)                                                                          \
        return failure;                                                                            \
    type result = call;                                                                            \
    if ((fate) == eDiesInside)                                                                     \
        Die();                                                                                     \
    return result

#define MODE_OF(flags)                                                                             \
    mode_t mode = 0;                                                                               \
    if (((flags) & O_CREAT) != 0 || ((flags) & O_TMPFILE) == O_TMPFILE) {                          \
        va_list rest;                                                                              \
        va_start(rest, flags);                                                                     \
        mode = va_arg(rest, mode_t);                                                               \
        va_end(rest);                                                                              \
    }

#define OPEN(name)                                                                                 \
    int name(const char *path, int flags, ...)                                                     \
    {                                                                                              \
        MODE_OF(flags)                                                                             \
        NEXT(int, #name, const char *, int, ...);                                                  \
        const enum EFate fate = Judge((flags & O_CREAT) != 0 ? "create" : "open", path, 0);        \
        FINISH(fate, -1, int, next(path, flags, mode));                                            \
    }

#define OPEN_AT(name)                                                                              \
    int name(int folder, const char *path, int flags, ...)                                         \
    {                                                                                              \
        MODE_OF(flags)                                                                             \
        NEXT(int, #name, int, const char *, int, ...);                                             \
        const enum EFate fate = Judge((flags & O_CREAT) != 0 ? "create" : "open", path, 0);        \
        FINISH(fate, -1, int, next(folder, path, flags, mode));                                    \
    }

#define FOPEN(name)                                                                                \
    FILE *name(const char *path, const char *mode)                                                 \
    {                                                                                              \
        NEXT(FILE *, #name, const char *, const char *);                                           \
        const enum EFate fate = Judge(mode[0] == 'r' ? "open" : "create", path, 0);                \
        FINISH(fate, NULL, FILE *, next(path, mode));                                              \
    }

OPEN(open)
OPEN(open64)
OPEN_AT(openat)
OPEN_AT(openat64)
FOPEN(fopen)
FOPEN(fopen64)

ssize_t write(int file, const void *bytes, size_t size)
{
    NEXT(ssize_t, "write", int, const void *, size_t);
    const enum EFate fate = JudgeFile("write", file, 1);
    FINISH(fate, -1, ssize_t, next(file, bytes, fate == eGoes ? size : size / 2));
}

ssize_t writev(int file, const struct iovec *parts, int count)
{
    NEXT(ssize_t, "writev", int, const struct iovec *, int);
    const enum EFate fate = JudgeFile("writev", file, 1);
    FINISH(fate, -1, ssize_t, next(file, parts, fate == eGoes ? count : (count + 1) / 2));
}

#define PWRITE(name)                                                                               \
    ssize_t name(int file, const void *bytes, size_t size, off_t offset)                           \
    {                                                                                              \
        NEXT(ssize_t, #name, int, const void *, size_t, off_t);                                    \
        const enum EFate fate = JudgeFile("pwrite", file, 1);                                      \
        FINISH(fate, -1, ssize_t, next(file, bytes, fate == eGoes ? size : size / 2, offset));     \
    }

PWRITE(pwrite)
PWRITE(pwrite64)

ssize_t read(int file, void *bytes, size_t size)
{
    NEXT(ssize_t, "read", int, void *, size_t);
    const enum EFate fate = JudgeFile("read", file, 0);
    FINISH(fate, -1, ssize_t, next(file, bytes, size));
}

#define OF_FILE(name)                                                                              \
    int name(int file)                                                                             \
    {                                                                                              \
        NEXT(int, #name, int);                                                                     \
        const enum EFate fate = JudgeFile(#name, file, 0);                                         \
        FINISH(fate, -1, int, next(file));                                                         \
    }

OF_FILE(fsync)
OF_FILE(fdatasync)

/* The file is closed even where the call says that it failed, as the system does. */
int close(int file)
{
    NEXT(int, "close", int);
    const enum EFate fate = JudgeFile("close", file, 0);
    const int error = errno;
    const int result = next(file);
    if (fate == eDiesInside)
        Die();
    if (fate != eFails)
        return result;
    errno = error;
    return -1;
}

#define TRUNCATE(name)                                                                             \
    int name(int file, off_t size)                                                                 \
    {                                                                                              \
        NEXT(int, #name, int, off_t);                                                              \
        const enum EFate fate = JudgeFile("ftruncate", file, 0);                                   \
        FINISH(fate, -1, int, next(file, size));                                                   \
    }

TRUNCATE(ftruncate)
TRUNCATE(ftruncate64)

#define TWO_PATHS(name)                                                                            \
    int name(const char *from, const char *to)                                                     \
    {                                                                                              \
        NEXT(int, #name, const char *, const char *);                                              \
        const enum EFate fate = Judge(#name, to, 0);                                               \
        FINISH(fate, -1, int, next(from, to));                                                     \
    }

TWO_PATHS(rename)
TWO_PATHS(link)

int renameat(int fromFolder, const char *from, int toFolder, const char *to)
{
    NEXT(int, "renameat", int, const char *, int, const char *);
    const enum EFate fate = Judge("renameat", to, 0);
    FINISH(fate, -1, int, next(fromFolder, from, toFolder, to));
}

int renameat2(int fromFolder, const char *from, int toFolder, const char *to, unsigned int flags)
{
    NEXT(int, "renameat2", int, const char *, int, const char *, unsigned int);
    const enum EFate fate = Judge("renameat2", to, 0);
    FINISH(fate, -1, int, next(fromFolder, from, toFolder, to, flags));
}

int linkat(int fromFolder, const char *from, int toFolder, const char *to, int flags)
{
    NEXT(int, "linkat", int, const char *, int, const char *, int);
    const enum EFate fate = Judge("linkat", to, 0);
    FINISH(fate, -1, int, next(fromFolder, from, toFolder, to, flags));
}

int mkdir(const char *path, mode_t mode)
{
    NEXT(int, "mkdir", const char *, mode_t);
    const enum EFate fate = Judge("mkdir", path, 0);
    FINISH(fate, -1, int, next(path, mode));
}
