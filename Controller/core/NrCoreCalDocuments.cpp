// Calibration records of the core as pages see them.
#include "Controller/calibration/CalEdits.h"
#include "Controller/calibration/CalWalks.h"
#include "Controller/calibration/LossConfig.h"
#include "Controller/core/NrCore.h"
#include "Controller/fields/CommandFields.h"
#include "Model/ModelText.h"
#include "Support/Log.h"

namespace {

// The record that a packaged calibration page selects.
struct STxPlace
{
    uint16_t route;
    uint16_t bwIdx;  // bandwidth region
};

STxPlace ReadTxPlace(const QJsonObject &document, const char *logName)
{
    constexpr int kPrefixLength = 2;  // "BW"
    const CPackagedGroup config(document, "calDataIf.config.group1");
    const STxPlace place{DecimalInt<uint16_t>(config.Text("txRoute")),
                         DecimalInt<uint16_t>(config.Text("aggBwRegion").mid(kPrefixLength))};
    qCDebug(lcCore) << logName << place.route << " bwIdx-" << place.bwIdx;
    return place;
}

struct SRxPlace
{
    uint16_t route;
    bool isType2;
};

// Logged with the words of storing by both directions, as users' log filters know it.
SRxPlace ReadRxPlace(const QJsonObject &document)
{
    const CPackagedGroup config(document, "calDataIf.config.group1");
    const QString type = config.Text("routeType");
    const SRxPlace place{DecimalInt<uint16_t>(config.Text("route")),
                         type.contains(QLatin1Char('2'))};
    qCDebug(lcCore) << "SetPathLossCalibrationData: routeType " << type << " rxRoute-"
                    << place.route;
    return place;
}

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

PortableCriticalSection &CNrCore::RecordLock(ECalItem item)
{
    return m_recordLocks[static_cast<size_t>(item)];
}

void CNrCore::LookForCalItem(ECalItem item)
{
    RenewCalItems();
    SCalView view;
    view.isKnown = true;
    view.generation = m_target.GetNrGeneration();
    if (item == ECalItem::PathLoss && view.generation == 1) {
        for (uint32_t mode = 0; mode < view.gains.size(); ++mode) {
            if (const auto *gains = m_target.GetSupportRxGainInfoV7(ERadioKind::Nr, mode))
                view.gains[mode] = *gains;
        }
    }
    const CLockSentry lock(m_viewLock);
    m_calViews[static_cast<size_t>(item)] = view;
}

// While a job is at the target the last look counts: the page could not be there without one, and
// what the DUT can do changes with a reset alone, which takes the pages away.
CNrCore::SCalView CNrCore::CalView(ECalItem item)
{
    const auto last = [&] {
        const CLockSentry lock(m_viewLock);
        return m_calViews[static_cast<size_t>(item)];
    };
    const CLockAttempt attempt(m_targetLock);
    if (!attempt.IsHeld() && !m_areItemsStale.load() && last().isKnown)
        return last();
    const CLockSentry lock(m_targetLock);  // waits only when the attempt failed
    LookForCalItem(item);
    return last();
}

std::string CNrCore::GetAptCalibrationData(std::string document)
{
    const QJsonObject object = ModelFromText(document);
    if (CalView(ECalItem::Apt).generation != 1)
        return {};
    const CLockSentry lock(RecordLock(ECalItem::Apt));
    const STxPlace place = ReadTxPlace(object, "GetAptCalibrationData: route ");
    const SAptRouteBwRecord *record = m_aptProfile->GetAptCalibrationData(place.route, place.bwIdx);
    return record ? m_responseBuilder.GetAptDataModelV7(object, *record) : document;
}

void CNrCore::SetAptCalibrationData(const std::string &document)
{
    const QJsonObject object = ModelFromText(document);
    if (CalView(ECalItem::Apt).generation != 1)
        return;
    const CLockSentry lock(RecordLock(ECalItem::Apt));
    const STxPlace place = ReadTxPlace(object, "SetAptCalibrationData: route ");
    const SAptRouteBwRecord *own = m_aptProfile->GetAptCalibrationData(place.route, place.bwIdx);
    if (!own)
        return;
    SAptRouteBwRecord record = m_cmdBuilder.GetAptCmdV7(object, *own);
    m_aptProfile->SetAptCalibrationData(place.route, place.bwIdx, record);
    if (HoldsEdits(object, [&](ICalMove &move) { MoveApt(move, record); }))
        m_aptProfile->NoteEdit(place.route, place.bwIdx);
}

std::string CNrCore::GetPathLossCalibrationData(std::string document)
{
    const QJsonObject object = ModelFromText(document);
    const SCalView view = CalView(ECalItem::PathLoss);
    if (view.generation != 1)
        return {};
    const CLockSentry lock(RecordLock(ECalItem::PathLoss));
    const SRxPlace place = ReadRxPlace(object);
    const auto &known = view.gains[ShownPowerMode(ReadLossConfig(object).powerMode).gainMode];
    const SMMRfRxGainInfoV7 *gains = known ? &*known : nullptr;
    if (place.isType2)
        return m_responseBuilder.ShowType2PathLoss(
            object, *m_pathLoss->GetPathLossCalibrationData<SMMType2PathlossByRouteV7>(place.route),
            gains);
    return m_responseBuilder.ShowType1PathLoss(
        object, *m_pathLoss->GetPathLossCalibrationData<SMMType1PathlossByRouteV7>(place.route),
        gains);
}

template <typename Record, typename Build, typename Walk>
void CNrCore::StorePathLoss(uint16_t route, const QJsonObject &object, Build build, Walk walk)
{
    const Record &own = *m_pathLoss->GetPathLossCalibrationData<Record>(route);
    const auto record = std::make_unique<Record>((m_cmdBuilder.*build)(object, own));
    m_pathLoss->SetPathLossCalibrationData(route, *record);
    const SLossConfig config = ReadLossConfig(object);
    const SLossView view{StoredPowerMode(config.powerMode).half, config.freqIdx, config.path,
                         config.bigG};
    if (HoldsEdits(object, [&](ICalMove &move) { walk(move, *record, view); }))
        m_pathLoss->NoteEdit<Record>(route);
}

void CNrCore::SetPathLossCalibrationData(const std::string &document)
{
    const QJsonObject object = ModelFromText(document);
    if (CalView(ECalItem::PathLoss).generation != 1)
        return;
    const CLockSentry lock(RecordLock(ECalItem::PathLoss));
    const SRxPlace place = ReadRxPlace(object);
    if (place.isType2)
        StorePathLoss<SMMType2PathlossByRouteV7>(
            place.route, object, &CNrCoreCmdBuilder::GetType2PathLossCmdV7, MoveType2);
    else
        StorePathLoss<SMMType1PathlossByRouteV7>(
            place.route, object, &CNrCoreCmdBuilder::GetType1PathLossCmdV7, MoveType1);
}
