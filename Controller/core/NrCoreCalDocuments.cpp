// Calibration records of the core as pages see them.
#include "Controller/core/NrCore.h"

#include "Model/ModelText.h"
#include "Support/Log.h"

namespace {

// Holds a lock for the life of a scope, if it was free.
class CLockAttempt
{
public:
    explicit CLockAttempt(CLockableObject &lockable)
        : m_lockable(lockable), m_isHeld(lockable.TryLock())
    {
    }
    ~CLockAttempt()
    {
        if (m_isHeld)
            m_lockable.Unlock();
    }
    CLockAttempt(const CLockAttempt &) = delete;
    CLockAttempt &operator=(const CLockAttempt &) = delete;

    bool IsHeld() const { return m_isHeld; }

private:
    CLockableObject &m_lockable;
    const bool m_isHeld;
};

}  // namespace

void CNrCore::LookForCalItem(ECalItem item)
{
    RenewCalItems();
    SCalView view;
    view.isKnown = true;
    view.generation = m_target.GetNrGeneration();
    if (FindCalItem(item).showsGains && view.generation == 1) {
        for (uint32_t mode = 0; mode < kPowerModes; ++mode) {
            if (const auto *gains = m_target.GetSupportRxGainInfoV7(ERadioKind::Nr, mode))
                view.gains.byMode[mode] = *gains;
        }
    }
    {
        const CLockSentry lock(CalItem(item).lock);
        CalItem(item).history->Learn();
    }
    const CLockSentry lock(m_viewLock);
    CalItem(item).view = view;
}

// While a job is at the target, the answer is what the last look found. There was one, since the
// page has its document. What the DUT can do changes with a reset alone, and that takes the pages
// away.
CNrCore::SCalView CNrCore::CalView(ECalItem item)
{
    const auto last = [&] {
        const CLockSentry lock(m_viewLock);
        return CalItem(item).view;
    };
    const CLockAttempt attempt(m_targetLock);
    if (!attempt.IsHeld() && !m_areItemsStale.load() && last().isKnown)
        return last();
    const CLockSentry lock(m_targetLock);  // waits only when the attempt failed
    LookForCalItem(item);
    return last();
}

std::optional<QJsonObject> CNrCore::ShowRecord(ECalItem item, const SCalView &view,
                                               const QJsonObject &document)
{
    const CLockSentry lock(CalItem(item).lock);
    return FindCalItem(item).show(*CalItem(item).operation, document, view.gains);
}

std::string CNrCore::GetCalibrationData(ECalItem item, const std::string &document)
{
    const SCalView view = CalView(item);
    if (view.generation != 1)
        return {};
    const std::optional<QJsonObject> shown = ShowRecord(item, view, ModelFromText(document));
    return shown ? ModelToText(*shown) : document;
}

std::optional<QJsonObject> CNrCore::GetCalibrationData(ECalItem item, const QJsonObject &document)
{
    const SCalView view = CalView(item);
    if (view.generation != 1)
        return std::nullopt;
    return ShowRecord(item, view, document).value_or(document);
}

// Under m_targetLock. After a reset nobody asks for it any more, and the items are those of the
// next DUT.
void CNrCore::TellDocument(std::optional<SCalShow> show)
{
    if (!show || m_areItemsStale.load())
        return;
    try {
        const std::optional<QJsonObject> shown = GetCalibrationData(show->item, show->document);
        emit Signal_CalDocument(CalItemName(show->item),
                                shown ? ModelToText(*shown) : std::string());
    } catch (...) {
        qCCritical(lcCore) << "[CNrCore] no document behind a flow" << CalItemName(show->item);
    }
}

void CNrCore::SetCalibrationData(ECalItem item, const std::string &document)
{
    SetCalibrationData(item, ModelFromText(document));
}

void CNrCore::SetCalibrationData(ECalItem item, const QJsonObject &document)
{
    if (CalView(item).generation != 1)
        return;
    const CLockSentry lock(CalItem(item).lock);
    FindCalItem(item).store(*CalItem(item).operation, document);
    CalItem(item).history->Recount(*CalItem(item).operation, FindCalItem(item).select(document));
}
