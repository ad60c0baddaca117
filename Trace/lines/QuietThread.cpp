#include "Trace/lines/QuietThread.h"

#include <ctime>
#include <initializer_list>

#include <pthread.h>

CQuietThread::CQuietThread()
{
    pthread_setcancelstate(PTHREAD_CANCEL_DISABLE, &m_cancelBefore);
    sigset_t all;
    sigfillset(&all);
    for (const int fault : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGTRAP, SIGABRT, SIGSYS})
        sigdelset(&all, fault);
    pthread_sigmask(SIG_SETMASK, &all, &m_before);
}

CQuietThread::~CQuietThread()
{
    pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
    pthread_setcancelstate(m_cancelBefore, nullptr);
}

void CQuietThread::ForgetWriteSignals()
{
    sigset_t signals;
    sigemptyset(&signals);
    for (const int signal : {SIGXFSZ, SIGPIPE}) {
        if (sigismember(&m_before, signal) == 0)
            sigaddset(&signals, signal);
    }
    const timespec now = {};
    while (sigtimedwait(&signals, nullptr, &now) > 0) {
    }
}
