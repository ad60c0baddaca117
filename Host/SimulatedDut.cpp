#include "Host/SimulatedDut.h"

#include <cstdint>

#include <dlfcn.h>

#include <QFileInfo>

namespace {

constexpr char kLibrary[] = "libVondCore.so";
constexpr char kProfileName[] = "VondSim_ProfileName";
constexpr char kScenarioName[] = "VondSim_ScenarioName";
constexpr char kScenarioText[] = "VondSim_GetScenarioText";
constexpr char kError[] = "VondSim_GetError";

// The library that the plug-in runs on. Loads nothing: on the real libraries, there is no simulated
// DUT.
class CLoadedLibrary
{
public:
    CLoadedLibrary() : m_library(dlopen(kLibrary, RTLD_NOW | RTLD_NOLOAD)) {}
    ~CLoadedLibrary()
    {
        if (m_library)
            dlclose(m_library);
    }
    CLoadedLibrary(const CLoadedLibrary &) = delete;
    CLoadedLibrary &operator=(const CLoadedLibrary &) = delete;

    // Null when it has no such function.
    template <class Function>
    Function Find(const char *name) const
    {
        return m_library ? reinterpret_cast<Function>(dlsym(m_library, name)) : nullptr;
    }

private:
    void *m_library;
};

QStringList NamesOf(const char *function)
{
    const CLoadedLibrary library;
    const auto nameOf = library.Find<const char *(*)(uint32_t)>(function);
    QStringList names;
    const char *name = nullptr;
    for (uint32_t i = 0; nameOf && (name = nameOf(i)) != nullptr; ++i)
        names.append(QString::fromUtf8(name));
    return names;
}

}  // namespace

QStringList SimulatedProfiles()
{
    return NamesOf(kProfileName);
}

QStringList SimulatedScenarios()
{
    return NamesOf(kScenarioName);
}

bool IsUnknownProfile(const QString &profile, const QStringList &names)
{
    return !names.isEmpty() && !profile.isEmpty() && !names.contains(profile) &&
           !QFileInfo(profile).isFile();
}

QString ScenarioError(const QString &scenario)
{
    const CLoadedLibrary library;
    using CopyText = uint32_t (*)(char *text, uint32_t size);
    const auto scenarioText = library.Find<CopyText>(kScenarioText);
    const auto error = library.Find<CopyText>(kError);
    if (scenario.isEmpty() || !scenarioText || !error || scenarioText(nullptr, 0) > 0)
        return {};
    char reason[1024] = "";
    error(reason, sizeof(reason));
    return QStringLiteral("The scenario can't be used: %1.")
        .arg(reason[0] != '\0' ? QString::fromUtf8(reason) : scenario);
}
