// What can go wrong in one call through the DUT's C interface, and how the simulated DUT is told.
//
// FaultsOf lists the faults of a function for a request that calls it `calls` times, with so many
// kinds of noise: where there are several calls, each fault stands twice, once for all of them and
// once for the last alone. Lay puts one in place, Clear takes all away. Any thread.
//
//   for (const SDoorFault &fault : FaultsOf(FunctionOf(EFunction::PuschTx), 1, 3)) {
//       Lay(fault);
//       ... press Start, look ...
//       ClearDoor();
//   }
#pragma once

#include <vector>

#include <QString>

#include "Trace/dictionary/Functions.h"

enum class EFault
{
    Fail,      // a result other than success
    NoText,    // the same, and the text of the result is null; of a text function: its text is null
    LateText,  // the same, and the text of the result comes after a second
    Status,    // a status of the target, or the verdict of a calibration transfer
    Noise,     // random bytes in the answer
    Late,      // a good answer after a second
    Count
};

// The words of the table.
const char *FaultName(EFault kind);

constexpr int32_t kFailure = 4;           // "Target: failure on demand"
constexpr int32_t kAcceptedFailure = 11;  // with it a calibration transfer's verdict does not count
constexpr char kVerdictTexts[3][16] = {"bad type 1", "bad type 2", "bad profile"};

struct SDoorFault
{
    const SFunction *function;
    EFault kind;
    int32_t result = 0;           // of Fail, NoText, LateText
    uint32_t status = 0;          // of Status
    uint32_t seed = 1;            // of Noise
    bool isVerdictGood = false;   // of Fail: a transfer that was accepted, and failed all the same
    bool isLastCallOnly = false;  // of several calls
    int calls = 1;                // of a good run

    // "status 2", "fail 4, last call", "noise 3".
    QString Name() const;
};

// Calibration transfers answer with a verdict and its texts.
bool IsTransfer(const SFunction &function);

std::vector<SDoorFault> FaultsOf(const SFunction &function, int calls, int noises);
// A failure whose text was asked for, once more with that text null and once more with it late.
std::vector<SDoorFault> TextFaultsOf(const SDoorFault &failure);

// How "after a second" is made: a gate that the test opens, or a second of the clock.
enum class EDelay
{
    Gate,
    Clock
};

void Lay(const SDoorFault &fault, EDelay delay);
// The function whose caller waits under a Late or LateText fault.
QByteArray WaitingFunction(const SDoorFault &fault);
// Removes all faults and opens all gates that Lay has closed.
void ClearDoor();
