#include "Tap/door/Unloading.h"

#include <dlfcn.h>

#include "Tap/door/NextFunctions.h"

namespace {

using Close = int (*)(void *);

Close NextClose()
{
    static const auto close = reinterpret_cast<Close>(dlsym(RTLD_NEXT, "dlclose"));
    return close;
}

}  // namespace

void CloseQuietly(void *library)
{
    NextClose()(library);
}

// The pair may go with a plug-in, and come back elsewhere. A call on another thread may find it in
// between, so what is known is forgotten twice.
extern "C" __attribute__((visibility("default"))) int dlclose(void *library)
{
    ForgetNextFunctions();
    const int result = NextClose()(library);
    ForgetNextFunctions();
    return result;
}
