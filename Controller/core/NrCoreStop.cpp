// Stops of the core: a page's own, RF off, and those of tests that nobody shows any more.
#include "Controller/core/NrCore.h"

#include <algorithm>

#include "Model/StatusTable.h"
#include "Operations/link/TargetLink.h"
#include "Support/Log.h"
#include "Support/Threads.h"

namespace {

constexpr uint32_t kStopNr = 1;  // radio kind of a multi-RAT stop
constexpr EStop kKinds[] = {EStop::Nr, EStop::MultiRat};

}  // namespace

void CNrCore::Stop()
{
    emit Signal_TestStopDone({QString(), eStatusNotExecuted,
                              QStringLiteral("Quorlin RF tool should call the new stop function")});
}

void CNrCore::TestStopStart(bool isNr)
{
    StartOnPool([this, isNr, asked = Moment()] { TestStopInternal(isNr, asked); });
}

void CNrCore::TestStopInternal(bool isNr, uint64_t asked)
{
    StopTest(isNr ? EStop::Nr : EStop::MultiRat, std::nullopt, asked);
}

SEachItemOperationResult CNrCore::StopTest(EStop kind, std::optional<EPageId> page, uint64_t asked)
{
    const CLockSentry lock(m_targetLock);
    SEachItemOperationResult result{QString(), eStatusNotExecuted, QString()};
    try {
        const std::optional<uint32_t> handle = m_runningTests.HandleOf(kind, page);
        if (handle || !m_runningTests.IsCalledOff(asked)) {
            const STargetStop stop{kind, handle.value_or(TargetHandle())};
            result.status = static_cast<int>(SendStop(stop, result.message));
        } else {
            result.status = eStatusSuccess;
        }
    } catch (...) {
        qCCritical(lcCore) << "CNrCore::StopTest ended by an exception"
                           << (page ? PageName(*page) : QString());
    }
    m_errorMessage = result.message;
    emit Signal_TestStopDone(result);
    return result;
}

// The text is the operation's last one, even if it is of an earlier failure.
uint32_t CNrCore::SendStop(const STargetStop &stop, QString &message)
{
    const CTargetHandleScope handle(stop.handle);
    const bool isNr = stop.kind == EStop::Nr;
    const uint32_t status = isNr ? m_nrTestStop.Stop() : m_testStop.Stop(kStopNr);
    message = isNr ? m_nrTestStop.GetErrorMessage() : m_testStop.GetErrorMessage();
    if (status == eStatusSuccess)
        m_runningTests.End(stop);
    return status;
}

std::shared_ptr<CTurns::CPlace> CNrCore::BeginRfOff()
{
    auto place = std::make_shared<CTurns::CPlace>(m_targetLock);
    m_runningTests.CallOff();
    return place;
}

SEachItemOperationResult CNrCore::FinishRfOff(std::shared_ptr<CTurns::CPlace> place)
{
    place->Take();
    std::vector<uint32_t> handles{TargetHandle()};
    for (const STargetStop &stop : m_runningTests.Stops()) {
        if (std::find(handles.begin(), handles.end(), stop.handle) == handles.end())
            handles.push_back(stop.handle);
    }
    SEachItemOperationResult result{QString(), eStatusSuccess, QString()};
    for (const uint32_t handle : handles) {
        for (const EStop kind : kKinds) {
            QString message;
            const uint32_t status = SendStop({kind, handle}, message);
            qCDebug(lcCore) << "[CNrCore] RF off, handle" << handle << "status" << status;
            if (status != eStatusSuccess && result.status == eStatusSuccess)
                result = {QString(), static_cast<int>(status), message};
        }
    }
    return result;
}

void CNrCore::ResetTargetCache()
{
    m_isStop.store(false);
    if (!m_runningTests.CallOff()) {
        DropCaches();
        return;
    }
    m_isDropDue.store(true);
    QueueStops();
}

void CNrCore::StopRunningTests()
{
    if (m_runningTests.CallOff())
        QueueStops();
}

// Takes its turn in front of all jobs that wait. So they reach the target after the stops, and read
// the target that the host has connected since.
void CNrCore::QueueStops()
{
    if (m_areStopsDue.exchange(true))
        return;
    StartOnPoolAtOnce([this, place = std::make_shared<CTurns::CPlace>(m_targetLock)] {
        place->Take();
        m_areStopsDue.store(false);
        try {
            for (const STargetStop &stop : m_runningTests.Stops()) {
                QString message;
                if (SendStop(stop, message) != eStatusSuccess)
                    qCCritical(lcCore)
                        << "[CNrCore] a test may still run, handle" << stop.handle << message;
            }
        } catch (...) {
            qCCritical(lcCore) << "[CNrCore] stopping the tests ended by an exception";
        }
        if (m_isDropDue.exchange(false))
            DropCaches();
    });
}
