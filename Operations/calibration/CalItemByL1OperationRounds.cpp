// The transfers of the calibration items between memory and the target's flash.
#include "Operations/calibration/CalItemByL1Operation.h"

#include <algorithm>
#include <cstring>
#include <set>
#include <utility>

#include "Operations/link/TargetLink.h"
#include "Support/Log.h"
#include "Vond/VondCore.h"

namespace {

constexpr VOND_RESULT kAcceptedResult = 11;  // the target took the round, whatever its status says

// In place: the records are large, and a round costs one zeroing.
template <typename Record>
void Clear(Record &record)
{
    std::memset(&record, 0, sizeof record);
}

}  // namespace

uint32_t ICalItemByL1Operation::Upload()
{
    BeginMove();
    const SMMRfRouteTableV7 *table = RouteTable();
    if (!table)
        return kCalGeneralError;
    for (const SPart &part : m_parts)
        part.area->BeginUpload();

    SMMCalBlkInfoCnfV7 info = {};
    const VOND_RESULT result = VOND_MMRf_GetCalBlkInfoV7_r(TargetHandle(), kTargetTimeoutMs,
                                                           static_cast<uint32_t>(m_kind), &info);
    if (result != VOND_SUCCESS)
        return Fail(
            {kCalLibraryFailed, QLatin1String(m_words.noBlockInfo) + VondErrorText(result)});

    SMMGetCalDataReqV7 request;
    Clear(request);
    return MoveRounds(
        *table, " start upload....", [&] { return ReceiveRound(request); },
        [&](CCalRounds &rounds, int part, const SCalPlace &place) {
            return AskRecord(rounds, part, place, info, request);
        });
}

uint32_t ICalItemByL1Operation::Download()
{
    BeginMove();
    const SMMRfRouteTableV7 *table = RouteTable();
    if (!table)
        return kCalGeneralError;
    NotePassedOver(*table);

    SMMSetCalDataReqV7 request;
    Clear(request);
    QStringList refused;
    const uint32_t code = MoveRounds(
        *table, " start download....", [&] { return WriteRound(request); },
        [&](CCalRounds &rounds, int part, const SCalPlace &place) {
            return WriteRecord(rounds, part, place, request, refused);
        });
    if (refused.isEmpty() || (code != kCalSuccess && code != kCalNotRun))
        return code;
    return Fail({kCalGeneralError, refused.join('\n')});
}

uint32_t ICalItemByL1Operation::MoveRounds(const SMMRfRouteTableV7 &table, const char *startWords,
                                           const SendRound &send, const MoveRecord &move)
{
    std::vector<int> limits;
    int routesInAll = 0;
    for (const SPart &part : m_parts) {
        limits.push_back(part.area->BlocksOfRound());
        routesInAll += RouteRows(table, part.area->Kind());
    }
    int routesWalked = 0;
    int routesDone = 0;
    CCalRounds rounds(limits, startWords, [&](int number) {
        TellProgress(number, routesDone, routesInAll);
        const uint32_t code = send();
        routesDone = routesWalked;
        return code;
    });

    int rowsBefore = 0;
    for (size_t part = 0; part < m_parts.size(); ++part) {
        const ECalRoute kind = m_parts[part].area->Kind();
        std::set<std::pair<int, int>> walked;
        for (const SCalPlace &place : WalkRoutes(table, kind)) {
            if (!walked.insert({place.route, place.region}).second)
                continue;  // on a second band, and the same record
            routesWalked = rowsBefore + place.row;
            if (uint32_t code = move(rounds, static_cast<int>(part), place))
                return code;
        }
        rowsBefore += RouteRows(table, kind);
    }
    routesWalked = routesInAll;
    if (uint32_t code = rounds.SendRest())
        return code;
    if (rounds.Sent() == 0)
        return kCalNotRun;
    TellProgress(rounds.Sent(), routesInAll, routesInAll);
    return kCalSuccess;
}

uint32_t ICalItemByL1Operation::AskRecord(CCalRounds &rounds, int part, const SCalPlace &place,
                                          const SMMCalBlkInfoCnfV7 &info,
                                          SMMGetCalDataReqV7 &request)
{
    CCalArea &area = *m_parts[part].area;
    const auto leaveOut = [&](ECalLeftOut why, int count, int most) {
        m_remarks.leftOut.push_back({area.Kind(), place, why, count, most});
        return kCalSuccess;
    };
    const SFlashBlocks held = area.BlocksInFlash(info, place);
    const int blocks = held.count;
    const int most = std::min(kVondCalMaxBlocks, area.BlocksOfRound());
    if (held.known != SFlashBlocks::eCounted || blocks == 0) {
        qCDebug(lcCalibration).noquote()
            << "Failed to get Blk info in L1 data: Route" << PlaceText(place, area.Kind()).c_str();
        if (held.known == SFlashBlocks::eNotListed)
            return leaveOut(ECalLeftOut::NotListed, 0, 0);
        if (held.known == SFlashBlocks::eTotalAlone)
            return leaveOut(ECalLeftOut::TotalAlone, blocks, 0);
        area.TakeNone(place);
        return kCalSuccess;
    }
    qCDebug(lcCalibration).noquote().nospace()
        << m_words.uploadRoute[part] << PlaceText(place, area.Kind()).c_str();
    if (blocks > most) {
        // A record taken over in part could be written back in part.
        qCCritical(lcCalibration).noquote().nospace()
            << area.Name() << " route " << PlaceText(place, area.Kind()).c_str() << " has "
            << blocks << " blocks in flash, more than the " << most << " that can be read";
        return leaveOut(ECalLeftOut::TooManyBlocks, blocks, most);
    }
    if (uint32_t code = rounds.MakeRoom(part, place.route, blocks))
        return code;
    area.Ask(request, rounds.Add(part, blocks).entry, place, blocks);
    return kCalSuccess;
}

uint32_t ICalItemByL1Operation::ReceiveRound(SMMGetCalDataReqV7 &request)
{
    request.radioKind = static_cast<uint32_t>(m_kind);
    SMMGetCalDataCnfV7 answer;
    Clear(answer);
    const VOND_RESULT result =
        VOND_MMRf_GetCalDataV7_r(TargetHandle(), kTargetTimeoutMs, &request, &answer);
    Clear(request);
    const uint32_t code = FinishRound(answer.verdict, result);
    qCDebug(lcCalibration) << (code == kCalTargetFailed ? "-----> receive from target failed"
                                                        : "-----> receive from target...");
    if (code != kCalSuccess)
        return code;
    for (const SPart &part : m_parts)
        part.area->Take(answer, m_remarks.leftOut);
    return kCalSuccess;
}

uint32_t ICalItemByL1Operation::WriteRecord(CCalRounds &rounds, int part, const SCalPlace &place,
                                            SMMSetCalDataReqV7 &request, QStringList &refused)
{
    CCalArea &area = *m_parts[part].area;
    const bool valid = area.IsValid(place);
    qCDebug(lcCalibration).noquote().nospace()
        << "add to download: route " << PlaceText(place, area.Kind()).c_str()
        << "    isValid = " << valid;
    if (!valid)
        return kCalSuccess;
    const int blocks = area.BlocksToWrite(place);
    if (blocks > area.BlocksOfRound()) {
        refused.append(QStringLiteral("%1 route %2 has %3 blocks, more than the %4 that one "
                                      "transfer holds. It was not written.")
                           .arg(QLatin1String(area.Name()))
                           .arg(place.route)
                           .arg(blocks)
                           .arg(area.BlocksOfRound()));
        return kCalSuccess;
    }
    if (uint32_t code = rounds.MakeRoom(part, place.route, blocks))
        return code;
    area.Put(request, rounds.Add(part, blocks), place, blocks);
    return kCalSuccess;
}

uint32_t ICalItemByL1Operation::WriteRound(SMMSetCalDataReqV7 &request)
{
    request.radioKind = static_cast<uint32_t>(m_kind);
    request.version = kVondCalVersion;
    SMMSetCalDataCnfV7 answer = {};
    const VOND_RESULT result =
        VOND_MMRf_SetCalDataV7_r(TargetHandle(), kTargetTimeoutMs, &request, &answer);
    Clear(request);
    return FinishRound(answer, result);
}

uint32_t ICalItemByL1Operation::FinishRound(const SMMCalVerdictV7 &verdict, int32_t result)
{
    if (verdict.status == kVondCalSuccess || result == kAcceptedResult)
        return Finish(result);
    return Fail({kCalTargetFailed, m_words.verdict(verdict)});
}
