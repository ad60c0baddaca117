// The link to the device under test: its handle, the timeout, the modem behind it, and words for
// what it answers.
//
// The handle is one process-wide value that the host supplies; 0 stands until it does. Setting and
// reading it is safe on any thread. ReadModemServiceType blocks the calling thread on the link.
// Every call to the target takes kTargetTimeoutMs and is made once; nothing here retries.
//
//   SetTargetHandle(host->property("vondTargetHandle").toUInt());
//   if (VOND_NRf_TestStop_r(TargetHandle(), kTargetTimeoutMs) != VOND_SUCCESS) ...
#pragma once

#include <cstdint>
#include <optional>

#include <QString>

constexpr uint32_t kTargetTimeoutMs = 10000;
constexpr int kModemServiceC2k = 3;  // service type of a C2K modem, which has no NR

void SetTargetHandle(uint32_t handle);
uint32_t TargetHandle();

// Gives the calling thread a handle of its own for the life of a scope: a test is stopped under the
// handle of its start.
class CTargetHandleScope
{
public:
    explicit CTargetHandleScope(uint32_t handle);
    ~CTargetHandleScope();
    CTargetHandleScope(const CTargetHandleScope &) = delete;
    CTargetHandleScope &operator=(const CTargetHandleScope &) = delete;

private:
    const std::optional<uint32_t> m_outer;
};

// Service type of the active modem; 0 when the link cannot tell.
int ReadModemServiceType();

// The closed library's text for a result; empty when it has none.
QString VondErrorText(int32_t result);
// Words for a status that the target answered with; 0 is success.
QString VondStatusText(uint32_t status);
