#include "Tap/door/NextFunctions.h"

#include <string>
#include <string_view>

#include <dlfcn.h>
#include <link.h>

#include "Tap/door/Complaint.h"
#include "Tap/door/NextClose.h"
#include "Trace/lines/LoadedLibrary.h"

NextFunctionTable g_nextFunctions = {};

namespace {

constexpr char kCoreLibrary[] = "libVondCore.so";
constexpr char kAppLibrary[] = "libVondApp.so";

std::atomic<uint32_t> s_forgotten = 0;  // how often
std::array<std::atomic<bool>, static_cast<std::size_t>(EFunction::Count)> s_isMissed = {};

const char *LibraryOf(const SFunction &function)
{
    return function.kind == EFunctionKind::Connection ? kAppLibrary : kCoreLibrary;
}

void *FindIn(const char *library, const char *name)
{
    void *const handle = dlopen(library, RTLD_LAZY | RTLD_NOLOAD);
    if (handle == nullptr)
        return nullptr;
    void *const found = dlsym(handle, name);
    // The pair stays loaded by whoever has loaded it, not by the tap.
    CloseLibrary(handle);
    return found;
}

void *Find(const SFunction &function)
{
    const char *const name = function.name.data();
    if (void *const next = dlsym(RTLD_NEXT, name))
        return next;
    if (void *const loaded = FindIn(LibraryOf(function), name))
        return loaded;
    // A library without a name of its own (DT_SONAME) is known by its path alone.
    const SLoadedLibrary library = FindLoadedLibrary(LibraryOf(function));
    return library.path.empty() ? nullptr : FindIn(library.path.c_str(), name);
}

}  // namespace

void *FindNextFunction(EFunction id)
{
    const auto place = static_cast<std::size_t>(id);
    const SFunction &function = FunctionOf(id);
    const uint32_t forgotten = s_forgotten.load();
    void *const next = Find(function);
    if (next == nullptr) {
        if (!s_isMissed[place].exchange(true))
            Complain("no library in this program has " + std::string(function.name));
        return nullptr;
    }
    g_nextFunctions[place].store(next);
    if (s_forgotten.load() != forgotten)
        g_nextFunctions[place].store(nullptr);
    return next;
}

bool IsFromThePair(void *returnAddress)
{
    dl_find_object found = {};
    dl_find_object own = {};
    if (_dl_find_object(returnAddress, &found) != 0 || _dl_find_object(&g_nextFunctions, &own) != 0)
        return false;
    if (found.dlfo_link_map == own.dlfo_link_map)
        return true;
    const std::string_view path = found.dlfo_link_map->l_name;
    const std::string_view file = path.substr(path.rfind('/') + 1);
    return file.starts_with(kCoreLibrary) || file.starts_with(kAppLibrary);
}

void ForgetNextFunctions()
{
    ++s_forgotten;
    for (std::atomic<void *> &next : g_nextFunctions)
        next.store(nullptr);
}
