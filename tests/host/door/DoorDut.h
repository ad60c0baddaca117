// The simulated DUT for tests of the door panel: loaded as a plug-in would, without a line of it linked in.
//
//     CDoorDut dut;
//     dut.Reset();
//     dut.chipName(40);                     // a call through the door
//     CDoorPanel panel(*dut.Simulated());
#pragma once

#include <memory>

#include <dlfcn.h>

#include <QtGlobal>

#include "Host/SimulatedDut.h"
#include "Vond/VondCore.h"
#include "tests/host/HostTestFiles.h"

class CDoorDut
{
public:
    CDoorDut()
    {
        void *const core = Load("lib/libVondCore.so");
        Find(core, "VOND_NRf_GetChipIdName", chipName);
        Find(core, "VOND_NRf_GetDlFreqV7_r", dlFreq);
        Find(core, "VOND_MMRf_SetCalDataV7_r", setCalData);
        Find(core, "VOND_NRf_TestStop_r", stop);
        Find(core, "VondSim_Hold", hold);
        Find(core, "VondSim_Release", release);
        Find(core, "VondSim_WaitUntilHeld", waitUntilHeld);
        m_simulated = std::make_unique<CSimulatedDut>();
    }

    CSimulatedDut *Simulated() const { return m_simulated.get(); }
    void Reset() const { (*m_simulated)->Reset(); }

    decltype(&VOND_NRf_GetChipIdName) chipName = nullptr;
    decltype(&VOND_NRf_GetDlFreqV7_r) dlFreq = nullptr;
    decltype(&VOND_MMRf_SetCalDataV7_r) setCalData = nullptr;
    decltype(&VOND_NRf_TestStop_r) stop = nullptr;
    decltype(&VondSim_Hold) hold = nullptr;
    decltype(&VondSim_Release) release = nullptr;
    decltype(&VondSim_WaitUntilHeld) waitUntilHeld = nullptr;

private:
    static void *Load(const char *file)
    {
        void *const library = dlopen(qPrintable(BuiltFile(file)), RTLD_NOW | RTLD_GLOBAL);
        if (library == nullptr)
            qFatal("%s", dlerror());
        return library;
    }

    template <class Function>
    static void Find(void *library, const char *name, Function &function)
    {
        function = reinterpret_cast<Function>(dlsym(library, name));
        if (function == nullptr)
            qFatal("no %s", name);
    }

    std::unique_ptr<CSimulatedDut> m_simulated;
};
