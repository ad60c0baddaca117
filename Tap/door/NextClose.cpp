#include "Tap/door/NextClose.h"

#include <dlfcn.h>

int CloseLibrary(void *library)
{
    using Close = int (*)(void *);
    static const auto close = reinterpret_cast<Close>(dlsym(RTLD_NEXT, "dlclose"));
    return close(library);
}
