/* Preloaded in front of the tap: makes trouble at the n-th write of a trace's line.
 *
 *   TROUBLE=kill-before TROUBLE_AT=3   killed in front of the third
 *   TROUBLE=kill-behind TROUBLE_AT=3   killed behind it
 *   TROUBLE=full TROUBLE_AT=3          half of it is written, and then the disk is full
 */
#include <dlfcn.h>
#include <errno.h>
#include <signal.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

static int s_writes;
static int s_isFull;

static int Is(const char *trouble)
{
    const char *const asked = getenv("TROUBLE");
    return asked != NULL && strcmp(asked, trouble) == 0;
}

ssize_t write(int file, const void *bytes, size_t size)
{
    static ssize_t (*next)(int, const void *, size_t);
    if (next == NULL)
        *(void **)&next = dlsym(RTLD_NEXT, "write");
    const char *const at = getenv("TROUBLE_AT");
    if (file == STDERR_FILENO || file == STDOUT_FILENO || at == NULL)
        return next(file, bytes, size);
    if (s_isFull) {
        errno = ENOSPC;
        return -1;
    }
    if (++s_writes != atoi(at))
        return next(file, bytes, size);
    if (Is("kill-before"))
        kill(getpid(), SIGKILL);
    if (Is("full")) {
        s_isFull = 1;
        return next(file, bytes, size / 2);
    }
    const ssize_t written = next(file, bytes, size);
    if (Is("kill-behind"))
        kill(getpid(), SIGKILL);
    return written;
}
