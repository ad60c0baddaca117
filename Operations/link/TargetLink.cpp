#include "Operations/link/TargetLink.h"

#include <atomic>
#include <iterator>

#include "Support/Log.h"
#include "Vond/VondApp.h"
#include "Vond/VondCore.h"

namespace {

std::atomic<uint32_t> s_targetHandle{0};
thread_local std::optional<uint32_t> t_ownHandle;

constexpr const char *kStatusTexts[] = {
    "NL1TST_CNF_STATUS_SUCCESS",
    "NL1TST_CNF_STATUS_FREQ_MISMATCH.\n\nDetails: Frequency cannot be exactly mapped to NR-ARFCN.",
    "NL1TST_CNF_STATUS_CELL_NOT_EXIST.\n\nDetails: Cell SSB can't be detected.",
    "NL1TST_CNF_STATUS_MB_MIB_DECODE_ERROR.\n\nDetails: Cell PBCH can't be detected.",
    "NL1TST_CNF_STATUS_SCELL_NOT_EXIST.\n\nDetails: SCell SSB can't be detected.",
};

}  // namespace

void SetTargetHandle(uint32_t handle)
{
    s_targetHandle.store(handle, std::memory_order_relaxed);
}

uint32_t TargetHandle()
{
    return t_ownHandle.value_or(s_targetHandle.load(std::memory_order_relaxed));
}

CTargetHandleScope::CTargetHandleScope(uint32_t handle) : m_outer(t_ownHandle)
{
    t_ownHandle = handle;
}

CTargetHandleScope::~CTargetHandleScope()
{
    t_ownHandle = m_outer;
}

int ReadModemServiceType()
{
    int32_t index = 0;
    int32_t service = 0;
    if (VondConn_GetMdActiveIdx(TargetHandle(), &index) != VOND_SUCCESS ||
        VondConn_GetMdSrv(TargetHandle(), index, &service) != VOND_SUCCESS) {
        qCDebug(lcTarget) << "modem service type unknown, index" << index;
        return 0;
    }
    return service;
}

QString VondErrorText(int32_t result)
{
    return QString::fromUtf8(VOND_GetErrorString(result));
}

QString VondStatusText(uint32_t status)
{
    return QLatin1String(status < std::size(kStatusTexts) ? kStatusTexts[status]
                                                          : "Not found status descrption");
}
