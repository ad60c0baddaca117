#include <pthread.h>
#include <setjmp.h>
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

#include <dlfcn.h>

#include "tests/tap/door/fake/FakeVond.h"
#include "tests/tap/door/host/TapHost.h"

enum { kThreads = 16, kCallsEach = 50, kForks = 4, kCallsOfAFork = 25 };

static unsigned char s_request[2404];

/* 0 when all went well. */
static int CallSome(int count, uint32_t t)
{
    int wrong = 0;
    for (int i = 0; i < count; ++i) {
        int16_t value = 0;
        unsigned char verdict[193] = {0};
        wrong += VOND_MMRf_GetPdValueV7_r(FAKE_RESULT(i), t, (uint32_t)i, &value) != i;
        wrong += (value & 0xff) != (int)(t & 0xff);
        wrong += VOND_MMRf_ContRxV7_r(0, t, s_request) != 0;
        (void)verdict;
    }
    return wrong;
}

static void *ThreadOfCalls(void *number)
{
    const uint32_t t = *(const uint32_t *)number;
    return CallSome(kCallsEach, t) == 0 ? NULL : number;
}

int RunThreads(void)
{
    pthread_t threads[kThreads];
    uint32_t numbers[kThreads];
    int wrong = 0;
    for (uint32_t i = 0; i < kThreads; ++i) {
        numbers[i] = i + 1;
        pthread_create(&threads[i], NULL, &ThreadOfCalls, &numbers[i]);
    }
    for (int i = 0; i < kThreads; ++i) {
        void *result = NULL;
        pthread_join(threads[i], &result);
        wrong += result != NULL;
    }
    return wrong;
}

static int ForkChildren(int count)
{
    int wrong = 0;
    for (int i = 0; i < count; ++i) {
        if (fork() == 0)
            _exit(CallSome(kCallsOfAFork, (uint32_t)(i + 100)));
    }
    wrong += CallSome(kCallsOfAFork, 1);
    for (int i = 0; i < count; ++i) {
        int status = 0;
        wait(&status);
        wrong += status != 0;
    }
    return wrong;
}

int RunForks(void)
{
    VOND_NRf_TestStop_r(0, 1);
    return ForkChildren(kForks);
}

int RunEarlyForks(void)
{
    return ForkChildren(2);
}

static void *ThreadWithoutEnd(void *number)
{
    for (;;)
        CallSome(1, 3);
    return number;
}

int RunExit(void)
{
    for (int i = 0; i < 4; ++i) {
        pthread_t thread;
        pthread_create(&thread, NULL, &ThreadWithoutEnd, NULL);
    }
    CallSome(kCallsEach, 2);
    exit(0);
}

static void *ThreadThatIsStuck(void *number)
{
    VOND_MMRf_TestStopV7_r(FAKE_STUCK, 10, 1);
    return number;
}

int RunStuck(void)
{
    pthread_t thread;
    CallSome(1, 2);
    const uint32_t before = VOND_Fake_CallCount();
    pthread_create(&thread, NULL, &ThreadThatIsStuck, NULL);
    while (VOND_Fake_CallCount() == before)
        sched_yield();
    _exit(CallSome(1, 3));
}

int RunCancel(void)
{
    for (int i = 0; i < 5; ++i) {
        pthread_t thread;
        void *result = NULL;
        const uint32_t before = VOND_Fake_CallCount();
        pthread_create(&thread, NULL, &ThreadThatIsStuck, NULL);
        while (i > 0 && VOND_Fake_CallCount() == before)
            sched_yield();
        pthread_cancel(thread);
        pthread_join(thread, &result);
        if (result != PTHREAD_CANCELED)
            return 1;
    }
    return CallSome(3, 4);
}

static sigjmp_buf s_out;
static volatile uint32_t s_callsBefore;

// Out of the pair alone: who jumps out of an allocation, or of what runs once, breaks his own process.
static void JumpOut(int number)
{
    const struct itimerval never = {{0, 0}, {0, 0}};
    (void)number;
    if (VOND_Fake_CallCount() == s_callsBefore)
        return;
    setitimer(ITIMER_REAL, &never, NULL);
    siglongjmp(s_out, 1);
}

int RunJump(void)
{
    struct sigaction action = {0};
    action.sa_handler = &JumpOut;
    sigaction(SIGALRM, &action, NULL);
    for (volatile int i = 0; i < 3; ++i) {
        if (sigsetjmp(s_out, 1) == 0) {
            const struct itimerval often = {{0, 2000}, {0, 2000}};
            s_callsBefore = VOND_Fake_CallCount();
            setitimer(ITIMER_REAL, &often, NULL);
            VOND_NRf_TestStop_r(FAKE_STUCK, 1);
        }
    }
    return CallSome(3, 4);
}

static void Nothing(int number)
{
    (void)number;
}

int RunSignals(void)
{
    struct sigaction action = {0};
    const struct itimerval often = {{0, 50}, {0, 50}};
    action.sa_handler = &Nothing;
    sigaction(SIGALRM, &action, NULL);
    setitimer(ITIMER_REAL, &often, NULL);
    return CallSome(200, 5);
}

int RunNotes(void)
{
    typedef void (*Note)(const char *);
    Note note = NULL;
    *(void **)&note = dlsym(RTLD_DEFAULT, "VondTap_Note");
    if (note == NULL) {
        puts("no tap");
        return 0;
    }
    note("the beginning");
    VOND_NRf_TestStop_r(0, 1);
    note("quote \" and \xc3\xa4 and \xff");
    note(NULL);
    VOND_NRf_TestStop_r(0, 1);
    return 0;
}
