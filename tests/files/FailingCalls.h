/* System calls on files below a folder, counted, and one of them gone wrong. The library is preloaded
 * (libFailingCalls.so in the build's lib folder); a child is told by its environment, a test's own process
 * by these functions, which are looked up with dlsym.
 *
 *   FAILING_CALLS_FOLDER=/tmp/x   the folder, without a '/' behind it
 *   FAILING_CALLS_AT=3            the third of its calls; 0: they are counted alone
 *   FAILING_CALLS_KIND=EIO        what goes wrong there:
 *       EIO, ENOSPC, EACCES       the call fails with this error, once
 *       short                     half is written, and told so
 *       full                      half is written, and from there on the disk is full
 *       exit                      the process ends in front of the call
 *       kill                      it is killed behind the call; behind half of it when it writes
 *   FAILING_CALLS_LOG=/tmp/log    gets a line for each call: "write /a.csv", the path behind the folder
 *
 * Counted are open and create, write, read, fsync, fdatasync, rename, link, ftruncate, mkdir, close, by each
 * of their names.
 */
#ifndef QUORLIN_TESTS_FAILING_CALLS_H
#define QUORLIN_TESTS_FAILING_CALLS_H

#ifdef __cplusplus
extern "C" {
#endif

enum
{
    kFailingCallsExit = 77
};

/* Counts from 1 on, and strikes at a call. */
void FailingCalls_Arm(const char *folder, int at, const char *kind);
/* How many calls there were. */
int FailingCalls_Disarm(void);
int FailingCalls_HasStruck(void);
/* "write /a.csv"; of the calls since it was armed, from 1 on. */
const char *FailingCalls_Name(int call);

#ifdef __cplusplus
}
#endif
#endif
