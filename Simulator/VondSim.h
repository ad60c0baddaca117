// The simulated DUT's own interface: profiles, radio, flash, faults, scenarios, the journal, and
// gates for tests.
//
// The simulated DUT stands behind the C interface of VondCore and VondApp. This header is for
// whoever steers it from the same process: tests, the bench host, benchmarks. It is exported by
// libVondCore.so. All functions may be called from any thread at any time, also while a call to the
// DUT runs in another; nothing here throws or keeps a pointer that it was given. Strings are UTF-8.
//
// A function that gives a text of changing content (VondSim_Get...Text and the like) copies at most
// size bytes, the zero behind it included, and returns the text's whole length without the zero:
// call it with a size of 0, make room for one more, call again. What returns -1 has changed
// nothing where not told otherwise; VondSim_GetError has the reason.
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
// Whether VondSim_SetProfile would take it: 0, or -1. Nothing changes either way.
int32_t VondSim_CheckProfile(const char *nameOrPath);
// NR band in row index of the DUT's list, or 0 behind the last.
uint32_t VondSim_Band(uint32_t index);
// JSON text of the profile in force, valid until the next VondSim_SetProfile* in any thread.
const char *VondSim_ProfileText(void);

// Back to the state at load: the profile of VOND_SIM_PROFILE (or "handset"), the scenario of
// VOND_SIM_SCENARIO (or none), no faults but theirs, all gates open, the journal empty.
void VondSim_Reset(void);

// Pulls the plug of the DUT (0), or puts it in again. Without a plug every call fails and no test
// runs; profile, flash and faults stay. A profile that is put in place brings its own state.
void VondSim_SetPlugged(int32_t isPlugged);
int32_t VondSim_IsPlugged(void);

// The radio as it is now. False answers and numbers of an idle radio are 0.
struct SVondSimRadioState
{
    char test[32];           // as VondSim_RunningTest; "" when the radio is idle
    int32_t isPlugged;       // 1: the plug is in
    int32_t isReceiving;     // 1: the test receives
    int32_t isTransmitting;  // 1: it transmits; a pseudo TX/RX test does both
    uint32_t band;           // NR band number
    uint32_t route;          // as the command names it; 0: the DUT takes its own
    uint32_t downlinkKhz;    // 0 while it doesn't receive
    uint32_t uplinkKhz;      // 0 while it doesn't transmit
    double powerDbm;         // transmit power as set
    double outputDbm;        // what really leaves the connector, by the flash and the PA
    uint64_t elapsedNs;      // since the test began, by the DUT
};
void VondSim_GetRadioState(SVondSimRadioState *state);

// The test set and the DUT's analog facts: the profile's "radio" object, with all its keys.
uint32_t VondSim_GetRadioText(char *text, uint32_t size);
// Lays keys over the radio in force, at once and while a test runs: {"levelDbm": {"n78": -90}}. A
// null takes a band's level or a route's loss away, and puts another key back to its default. A
// null pointer puts the profile's own radio back. "seed" starts the chance of readings anew.
// Returns 0, or -1 for a broken object.
int32_t VondSim_SetRadio(const char *json);

// One kind of calibration data in the flash: index 0 type 1 path loss, 1 type 2, 2 APT.
struct SVondSimFlashItem
{
    char item[16];  // "type1", "type2" or "apt"
    uint32_t recordCount;
    uint32_t blockCount;    // of all records
    uint32_t byteCount;     // of all blocks
    uint32_t changedCount;  // records that differ from factory data
    uint32_t tornCount;     // records whose last download was cut
};
// One record, in the order of the kinds, of routes and of bandwidth regions.
struct SVondSimFlashRecord
{
    char item[16];
    uint32_t route;
    uint32_t bandwidth;  // upper bound of the region, kHz, of "apt" alone
    uint32_t blockCount;
    uint32_t byteCount;
    int32_t isChanged;  // 1: differs from factory data
    int32_t isTorn;     // 1: the last download was cut
};
// The path of the file that keeps the flash; "" when none does.
uint32_t VondSim_GetFlashFile(char *path, uint32_t size);
// 0, or -1 behind the last.
int32_t VondSim_GetFlashItem(uint32_t index, SVondSimFlashItem *item);
uint32_t VondSim_FlashRecordCount(void);
int32_t VondSim_GetFlashRecord(uint32_t index, SVondSimFlashRecord *record);
// Puts the profile's factory data back into the flash and its file. Returns 0, or -1 when the file
// cannot be written.
int32_t VondSim_RestoreFlash(void);

// Adds a fault to those of the profile; the JSON object has the form of a profile's "faults"
// entries, see docs/simulated-dut.md. Returns 0, or -1 with a line on stderr for a broken one.
int32_t VondSim_AddFault(const char *json);
// Removes all faults, those of the profile and of the scenario too.
void VondSim_ClearFaults(void);
// The next call that can fail fails with that result (0: 4, "Target: failure on demand"). The fault
// goes as soon as it has fired.
void VondSim_FailNextCall(int32_t result);

// Where a fault comes from.
enum EVondSimFaultSource : int32_t
{
    eVondSimFaultAdded = 0,
    eVondSimFaultOfProfile = 1,
    eVondSimFaultOfScenario = 2
};
// One fault in force, in the order in which they were added.
struct SVondSimFault
{
    uint32_t id;         // from 1, never given twice in a process
    int32_t source;      // EVondSimFaultSource
    int32_t isOn;        // 0: switched off
    int32_t isOver;      // 1: it can't fire any more
    uint32_t callCount;  // calls that it was asked about
    uint32_t firedCount;
    char function[64];  // C name, or "*"; "" for a fault of the flash
    char kind[16];
};
uint32_t VondSim_FaultCount(void);
// 0, or -1 behind the last.
int32_t VondSim_GetFault(uint32_t index, SVondSimFault *fault);
// The JSON text of a fault as it was given; "" for an unknown id.
uint32_t VondSim_GetFaultText(uint32_t id, char *text, uint32_t size);
// Puts another fault in place of one, its counts from 0; it keeps its place, its switch and, from a
// scenario, its condition. One of the profile counts as added from then on. 0, or -1 for a broken
// fault or an unknown id.
int32_t VondSim_SetFault(uint32_t id, const char *json);
// 0, or -1 for an unknown id. A fault that is off neither counts nor fires.
int32_t VondSim_SwitchFault(uint32_t id, int32_t isOn);
int32_t VondSim_RemoveFault(uint32_t id);

// Scenarios: what happens to the DUT on which call, see docs/simulated-dut.md. Puts one in place: a
// built-in one's name, the path of a file, or (second form) its text; "" and null take the one in
// force away. The radio in force and the plug go back to the profile's first, the faults of the old
// scenario go, added faults stay. A profile that is put in place starts the scenario anew. Returns 0;
// on an unknown name or a broken scenario a line goes to stderr, nothing changes, and -1 is returned.
int32_t VondSim_SetScenario(const char *nameOrPath);
int32_t VondSim_SetScenarioText(const char *json);
// Adds one step to the scenario in force: {"when": {...}, "plugged": false}. 0 or -1.
int32_t VondSim_AddStep(const char *json);
// Name of built-in scenario number index, or null behind the last.
const char *VondSim_ScenarioName(uint32_t index);
// Text of a built-in scenario by its name; null when there is none.
const char *VondSim_BuiltinScenarioText(const char *name);
// Text of the scenario in force as it was given; "" for none.
uint32_t VondSim_GetScenarioText(char *text, uint32_t size);
// A scenario of what is now: the faults in force but the profile's own and those that are off or
// over, the steps that are still to come, and where radio and plug differ from the profile's.
uint32_t VondSim_GetStateAsScenario(const char *name, const char *about, char *text, uint32_t size);

// Why the calling thread's last call of this header that returned -1 did so, in one line.
uint32_t VondSim_GetError(char *text, uint32_t size);

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

// When a call began.
struct SVondSimCallTime
{
    uint64_t number;      // from 0, in the order in which the calls began; never given twice
    uint64_t startNs;     // since the first call of the process
    int64_t startUnixMs;  // by the wall clock, ms since 1970
    uint64_t thread;      // of the caller, as the system numbers it
};
// As VondSim_GetCall.
int32_t VondSim_GetCallTime(uint32_t index, SVondSimCallTime *time);
// Both for at most that many calls from there on, at once: whoever reads many calls holds up those who
// make them the least. Returns how many; 0 where GetCall is -1.
uint32_t VondSim_GetCalls(uint32_t index, uint32_t most, SVondSimCall *calls,
                          SVondSimCallTime *times);

// A call that has begun and not ended. It stands in no place of the journal before it ends.
struct SVondSimOpenCall
{
    char function[64];
    uint32_t handle;
    uint32_t timeoutMs;
    SVondSimCallTime time;
};
// Copies at most that many, in the order in which they began, and returns how many there are.
uint32_t VondSim_GetOpenCalls(SVondSimOpenCall *calls, uint32_t most);

// The words of a result, as VOND_GetErrorString has them, but not as a call.
const char *VondSim_ResultText(int32_t result);

}  // extern "C"
