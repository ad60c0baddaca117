/* The parts of the host: what it does when it is told to. Each returns the exit code. */
#ifndef TAP_HOST_H
#define TAP_HOST_H

int RunCalls(void);      /* every function, with pointers of all kinds; prints what came of each */
int RunThreads(void);    /* 16 threads, 50 calls each */
int RunForks(void);      /* a call, then four children with 25 calls each, and 25 of its own */
int RunEarlyForks(void); /* two children before the first call */
int RunExit(void);       /* ends while threads are in calls */
int RunStuck(void);      /* ends while a call has not come back */
int RunCancel(void);     /* cancels a thread in its call, then calls on */
int RunJump(void);       /* a signal handler jumps out of a call, then calls on */
int RunSignals(void);    /* calls while a timer's signal comes as fast as it can */
int RunNotes(void);      /* looks for VondTap_Note, and notes before and between calls */
int RunMany(int count);  /* so many calls of 40 bytes, told on stdout */

#endif
