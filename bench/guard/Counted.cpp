#include "bench/guard/Counted.h"

// Behind the call stands something, or the compiler would jump instead of calling.
extern "C" __attribute__((noinline)) void GuardCounted(void (*work)(void *), void *context)
{
    work(context);
    asm volatile("" ::: "memory");
}
