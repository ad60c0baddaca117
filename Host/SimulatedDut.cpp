#include "Host/SimulatedDut.h"

#include <cstdint>

#include <dlfcn.h>

#include <QFileInfo>

namespace {

constexpr char kLibrary[] = "libVondCore.so";
constexpr char kProfileName[] = "VondSim_ProfileName";

}  // namespace

// Loads nothing: when the plug-in runs on the real libraries, there is no simulated DUT.
QStringList SimulatedProfiles()
{
    void *library = dlopen(kLibrary, RTLD_NOW | RTLD_NOLOAD);
    if (!library)
        return {};
    using ProfileName = const char *(*)(uint32_t index);
    const auto profileName = reinterpret_cast<ProfileName>(dlsym(library, kProfileName));
    QStringList names;
    const char *name = nullptr;
    for (uint32_t i = 0; profileName && (name = profileName(i)) != nullptr; ++i)
        names.append(QString::fromUtf8(name));
    dlclose(library);
    return names;
}

bool IsUnknownProfile(const QString &profile, const QStringList &names)
{
    return !names.isEmpty() && !profile.isEmpty() && !names.contains(profile) &&
           !QFileInfo(profile).isFile();
}
