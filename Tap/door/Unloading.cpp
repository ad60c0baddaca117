// Unloading of libraries, as the tap sees it: every dlclose of the program passes here.
#include "Tap/door/NextClose.h"
#include "Tap/door/NextFunctions.h"

// The pair may go with a plug-in, and come back elsewhere. A call on another thread may find it in
// between, so what is known is forgotten twice.
// NOLINTNEXTLINE(readability-identifier-naming): the system's name
extern "C" __attribute__((visibility("default"))) int dlclose(void *library)
{
    ForgetNextFunctions();
    const int result = CloseLibrary(library);
    ForgetNextFunctions();
    return result;
}
