// The simulated DUT's own interface: profiles, faults, the journal, and gates for tests.
//
// The simulated DUT stands behind the C interface of VondCore and VondApp. This header is for
// whoever steers it from the same process: tests, the bench host, benchmarks. It is exported by
// libVondCore.so. All functions may be called from any thread at any time, also while a call to the
// DUT runs in another; nothing here throws or keeps a pointer that it was given. Strings are UTF-8.
//
//   VondSim_SetProfile("handset");
//   VondSim_AddFault(R"({"function": "VOND_MMRf_ContRxV7_r", "kind": "fail", "result": 7})");
//   ... press Start ...
//   SVondSimCall call;
//   VondSim_GetCall(VondSim_CallCount() - 1, &call);
#pragma once

#include <cstdint>

extern "C" {

// One call of the journal, in the order in which the calls ended.
struct SVondSimCall
{
    char function[64];     // name, zero-terminated
    uint32_t handle;       // target handle as given; 0 where the function takes none
    uint32_t timeoutMs;    // timeout as given, ms; 0 where the function takes none
    int32_t result;        // value returned; 0 where the function returns a text
    uint32_t status;       // status word as answered; 0 where the function has none
    uint64_t durationNs;   // time from entry to return
    uint32_t requestSize;  // bytes that VondSim_GetRequest gives
    uint32_t answerSize;   // bytes that VondSim_GetAnswer gives
};

// Puts another DUT in place: a built-in profile's name, the path of a profile file, or (second
// form) the text of one. The radio is idle afterwards; the journal and added faults stay. The
// new profile's faults replace the old one's. Returns 0; on an unknown name or a broken profile
// a line goes to stderr, the DUT is unplugged, and -1 is returned.
int32_t VondSim_SetProfile(const char *nameOrPath);
int32_t VondSim_SetProfileText(const char *json);
// Name of built-in profile number index, or null behind the last.
const char *VondSim_ProfileName(uint32_t index);
// JSON text of the profile in force, valid until the next VondSim_SetProfile* in any thread.
const char *VondSim_ProfileText(void);

// Back to the state at load: the profile of VOND_SIM_PROFILE (or "handset"), no faults but the
// profile's own, all gates open, the journal empty.
void VondSim_Reset(void);

// Pulls the plug of the DUT (0), or puts it in again. Without a plug every call fails and no test
// runs; profile, flash and faults stay. A profile that is put in place brings its own state.
void VondSim_SetPlugged(int32_t isPlugged);

// Adds a fault to those of the profile; the JSON object has the form of a profile's "faults"
// entries, see docs/simulated-dut.md. Returns 0, or -1 with a line on stderr for a broken one.
int32_t VondSim_AddFault(const char *json);
// Removes all faults, the profile's own too.
void VondSim_ClearFaults(void);

// Gates: a held function blocks its caller at entry, before it does or answers anything, until it
// is released. VondSim_WaitUntilHeld returns 1 as soon as a caller stands at the gate, 0 after
// timeoutMs. Releasing lets all waiting callers go and opens the gate. An unknown name costs a line
// on stderr and does nothing.
void VondSim_Hold(const char *function);
void VondSim_Release(const char *function);
int32_t VondSim_WaitUntilHeld(const char *function, uint32_t timeoutMs);

// What the radio does: the name of the running test ("ContRx", "SingleToneTx", "PuschTx", "Rsrp"),
// or "" when it is idle.
const char *VondSim_RunningTest(void);

// The journal. A call is counted when it has ended. GetCall returns 0, or -1 behind the last call
// and for the oldest ones of a journal beyond 64 MiB, which have gone.
// GetRequest and GetAnswer copy at most size bytes and return the full length (0 behind the last).
uint32_t VondSim_CallCount(void);
int32_t VondSim_GetCall(uint32_t index, SVondSimCall *call);
uint32_t VondSim_GetRequest(uint32_t index, void *bytes, uint32_t size);
uint32_t VondSim_GetAnswer(uint32_t index, void *bytes, uint32_t size);
void VondSim_ClearJournal(void);

}  // extern "C"
