#include "Host/SimulatedDut.h"

#include <dlfcn.h>

#include <QFileInfo>

namespace {

constexpr char kLibrary[] = "libVondCore.so";

QStringList NamesOf(const char *(*SSimulatedDutCalls::*function)(uint32_t))
{
    const CSimulatedDut dut;
    QStringList names;
    const char *name = nullptr;
    for (uint32_t i = 0; dut.IsThere() && (name = (dut.operator->()->*function)(i)); ++i)
        names.append(QString::fromUtf8(name));
    return names;
}

}  // namespace

CSimulatedDut::CSimulatedDut() : m_library(dlopen(kLibrary, RTLD_NOW | RTLD_NOLOAD))
{
    if (!m_library)
        return;
    m_isThere = true;
#define QUORLIN_CALL(name)                                                                         \
    m_calls.name = reinterpret_cast<decltype(m_calls.name)>(dlsym(m_library, "VondSim_" #name));   \
    m_isThere = m_isThere && m_calls.name;
    QUORLIN_SIMULATED_DUT_CALLS(QUORLIN_CALL)
#undef QUORLIN_CALL
    if (!m_isThere)
        m_calls = {};
}

CSimulatedDut::~CSimulatedDut()
{
    if (m_library)
        dlclose(m_library);
}

QString CSimulatedDut::Error() const
{
    return Text(m_calls.GetError);
}

QStringList SimulatedProfiles()
{
    return NamesOf(&SSimulatedDutCalls::ProfileName);
}

QStringList SimulatedScenarios()
{
    return NamesOf(&SSimulatedDutCalls::ScenarioName);
}

bool IsUnknownProfile(const QString &profile, const QStringList &names)
{
    return !names.isEmpty() && !profile.isEmpty() && !names.contains(profile) &&
           !QFileInfo(profile).isFile();
}

QString ScenarioError(const QString &scenario)
{
    const CSimulatedDut dut;
    if (scenario.isEmpty() || !dut.IsThere() || dut->GetScenarioText(nullptr, 0) > 0)
        return {};
    const QString reason = dut.Error();
    return QStringLiteral("The scenario can't be used: %1.")
        .arg(reason.isEmpty() ? scenario : reason);
}
