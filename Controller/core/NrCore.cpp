#include "Controller/core/NrCore.h"

#include <exception>

#include "Model/ModelResources.h"
#include "Operations/link/TargetLink.h"
#include "Support/CalIniFile.h"
#include "Support/Log.h"
#include "Support/Threads.h"

namespace {

const QLatin1String kNoRatInfo("Not Support due to without any this RAT info from SW.");
const QLatin1String
    kCheckLink("Please check the SW load stability or connection status of the target and tool.");

}  // namespace

CNrCore &GetCore()
{
    static auto *const core = [] {
        auto *made = new CNrCore;
        CallAtTheEnd([made] { made->StopRunningTests(); });
        return made;
    }();
    return *core;
}

CNrCore::CNrCore()
{
    InitModelResources();
}

void CNrCore::SetTargetHandle(uint32_t handle)
{
    ::SetTargetHandle(handle);
}

QString CNrCore::GetPageName(int pageId) const
{
    return PageName(static_cast<EPageId>(pageId));
}

QString CNrCore::GetCalItemName(int itemId) const
{
    return CalItemName(static_cast<ECalItem>(itemId));
}

void CNrCore::DropCaches()
{
    CTargetCapability::Reset();
    m_isUpdaterStale.store(true);
    m_areItemsStale.store(true);
    ++m_connection;
}

void CNrCore::WaitForTurn()
{
    const CLockSentry lock(m_targetLock);
}

bool CNrCore::IsC2kModem() const
{
    return ReadModemServiceType() == kModemServiceC2k;
}

SRfSupportStatus CNrCore::GetSupportStatus()
{
    const CLockSentry lock(m_targetLock);
    m_supportStatus = DecideSupportStatus();
    qCDebug(lcCore) << "[CNrCore] GetSupportStatus" << m_supportStatus.status
                    << m_supportStatus.message;
    return m_supportStatus;
}

QString CNrCore::GetRfChipName()
{
    const CLockSentry lock(m_targetLock);
    return QString::fromUtf8(m_target.GetRfChipNameNr());
}

SRfSupportStatus CNrCore::DecideSupportStatus()
{
    // Only status 3 has an advice of its own; the others keep that of the answer before.
    const auto answer = [this](ESupport status, const char *message) {
        return SRfSupportStatus{status, QLatin1String(message),
                                status == eSupportUnknown ? QString(kCheckLink)
                                                          : m_supportStatus.advice};
    };

    if (IsC2kModem())
        return answer(eNotSupported, "It is C2K modem now.");
    const SVondSupportFlags multiMode = m_target.GetMmSupportFlags();
    if (!multiMode.supported)
        return answer(eNotSupported, kNoRatInfo.data());
    if (!multiMode.succeeded)
        return answer(eSupportUnknown,
                      "We cannot get its support status: Failed to get multi-RAT world "
                      "mode ID info.");
    if (!m_target.IsRatInfoValid())
        return answer(eNotSupported, kNoRatInfo.data());
    if ((m_target.GetRatMask() & kVondRatNr) == 0)
        return answer(eNotSupported, "Not support this RAT from SW multi-RAT world mode ID info.");
    if (!m_target.GetNrSupportFlags().succeeded)
        return answer(eSupportUnknown,
                      "Support this RAT but it failed to get its capability info.");
    const SVondSupportFlags routes = m_target.GetNrRouteSupportFlags();
    if (routes.supported && !routes.succeeded)
        return answer(eSupportUnknown, "Support this RAT but it failed to get CA capability info.");
    return answer(eSupported, "Support");
}

void CNrCore::GetAllCalItem(QStringList &out)
{
    const CLockSentry lock(m_targetLock);
    out.clear();
    if (IsC2kModem() || GetSupportStatus().status != eSupported)
        return;
    out = CalItemNames();
}

void CNrCore::GetCalItemInFile(QStringList &out, CCalIniFile *file)
{
    const CLockSentry lock(m_targetLock);
    QStringList items;
    GetAllCalItem(items);
    RenewCalItems();
    out.clear();
    for (const QString &name : items) {
        try {
            const std::optional<ECalItem> item = CalItemByName(name);
            if (file && item && CalItem(*item).operation->IsInFile(*file))
                out.append(name);
        } catch (const std::exception &failure) {
            qCCritical(lcCore) << "no items of a file:" << failure.what();
        }
    }
}
