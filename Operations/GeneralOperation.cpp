#include "Operations/GeneralOperation.h"

#include "Operations/link/TargetLink.h"
#include "Support/Log.h"

namespace {

constexpr uint32_t kSuccess = 0;
constexpr uint32_t kLibraryFailed = 3;
constexpr uint32_t kTargetFailed = 203;

}  // namespace

uint32_t IGeneralOperation::Finish(int32_t result)
{
    if (result == 0)
        return kSuccess;
    m_errorMessage = VondErrorText(result);
    qCDebug(lcTarget) << "operation failed, result" << result << m_errorMessage;
    return kLibraryFailed;
}

uint32_t IGeneralOperation::Finish(uint32_t status, int32_t result)
{
    if (status == 0)
        return Finish(result);
    m_errorMessage = QLatin1String("Status error code (") + QString::number(status) +
                     QLatin1String(") :") + VondStatusText(status);
    qCDebug(lcTarget) << "operation failed, status" << status;
    return kTargetFailed;
}
