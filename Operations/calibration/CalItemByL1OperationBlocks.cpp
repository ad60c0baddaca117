// Records of the calibration items as blocks, as flash has them.
#include "Operations/calibration/CalItemByL1Operation.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <set>
#include <utility>

#include "Support/Log.h"

void ICalItemByL1Operation::KeepBlocks()
{
    for (const SPart &part : m_parts)
        part.area->KeepBlocks();
}

SCalBlockImage ICalItemByL1Operation::Blocks() const
{
    SCalBlockImage image;
    const SMMRfRouteTableV7 *table = FindRouteTable();
    if (!table)
        return image;
    for (const SPart &part : m_parts) {
        const ECalRoute kind = part.area->Kind();
        std::set<std::pair<uint16_t, int>> seen;
        for (const SCalPlace &place : WalkRoutes(*table, kind)) {
            if (!seen.emplace(place.route, place.region).second)
                continue;
            if (auto blocks = part.area->KeptBlocks(place))
                image.records.push_back({kind, place, *std::move(blocks)});
        }
    }
    return image;
}

uint32_t ICalItemByL1Operation::DownloadBlocks(const SCalBlockImage &image,
                                               std::vector<ECalSent> &sent)
{
    BeginMove();
    sent.assign(image.records.size(), ECalSent::NotSent);
    const SMMRfRouteTableV7 *table = RouteTable();
    if (!table)
        return kCalGeneralError;

    const auto request = std::make_unique<SMMSetCalDataReqV7>();
    std::vector<std::size_t> round;  // the records in it
    const auto send = [&] {
        const uint32_t code = WriteRound(*request);
        for (const std::size_t index : round)
            sent[index] = code == kCalSuccess ? ECalSent::Accepted : ECalSent::Unknown;
        round.clear();
        return code;
    };
    const auto put = [&](CCalRounds &rounds, int part, const SCalPlace &place) {
        CCalArea &area = *m_parts[part].area;
        const SCalBlockRecord *record = image.Find(area.Kind(), place);
        if (!record)
            return kCalSuccess;
        const int blocks = static_cast<int>(record->blocks.size() / CalBlockSize(record->kind));
        if (record->blocks.size() % CalBlockSize(record->kind) != 0 ||
            blocks > std::min(kVondCalMaxBlocks, area.BlocksOfRound()))
            return kCalSuccess;
        if (const uint32_t code = rounds.MakeRoom(part, place.route, blocks))
            return code;
        area.PutBlocks(*request, rounds.Add(part, blocks), place, record->blocks);
        round.push_back(static_cast<std::size_t>(record - image.records.data()));
        return kCalSuccess;
    };
    return MoveRounds(*table, " start download....", send, put);
}
