#include "Simulator/flash/CalTransfers.h"

#include <algorithm>
#include <cstring>
#include <iterator>

#include "Simulator/flash/CalRound.h"
#include "Simulator/flash/FlashWrite.h"

namespace {

using SType1Block = SMMType1PathlossBlockV7;
using SType2Block = SMMType2PathlossBlockV7;

constexpr uint32_t kNr = 1;

template <class Block>
std::string CheckWanted(const SProfile &profile, const SFlashImage &image,
                        const SCalArea<Block> &area)
{
    std::string reason = CheckCalEntries(profile, area);
    for (std::size_t i = 0; reason.empty() && i < area.entries.size(); ++i) {
        const SCalEntry &entry = area.entries[i];
        const auto held = static_cast<int>(image.Table<Block>().at(entry.key).size());
        if (held != entry.blockCount)
            reason = "route " + std::to_string(entry.key.route) + ": " +
                     std::to_string(entry.blockCount) + " blocks asked for, " +
                     std::to_string(held) + " there";
    }
    return reason;
}

template <class Block>
void Say(SMMCalVerdictV7 &verdict, const std::string &reason)
{
    auto &text = verdict.*SCalKind<Block>::kText;
    std::fill(std::begin(text), std::end(text), '\0');
    reason.copy(text, kVondCalText - 1);
}

// A reason that concerns the whole round stands in all three texts.
void SayAll(SMMCalVerdictV7 &verdict, const std::string &reason)
{
    verdict = {};
    Say<SType1Block>(verdict, reason);
    Say<SType2Block>(verdict, reason);
    Say<SAptBlock>(verdict, reason);
}

// The verdict from a reason for each kind; an empty reason: the kind is good.
SMMCalVerdictV7 VerdictOf(const std::string &type1, const std::string &type2, const std::string &tx)
{
    SMMCalVerdictV7 verdict = {};
    Say<SType1Block>(verdict, type1);
    Say<SType2Block>(verdict, type2);
    Say<SAptBlock>(verdict, tx);
    verdict.status = type1.empty() && type2.empty() && tx.empty() ? kVondCalSuccess : 0;
    return verdict;
}

std::string WrongKind(uint32_t radioKind)
{
    return "radio kind " + std::to_string(radioKind) + " has no calibration data";
}

template <class Block>
void CopyBlocks(const SFlashImage &image, const SCalArea<Block> &area, Block *to)
{
    for (const SCalEntry &entry : area.entries) {
        const std::vector<Block> &blocks = image.Table<Block>().at(entry.key);
        to = std::copy(blocks.begin(), blocks.end(), to);
    }
}

template <class Block>
uint16_t BlocksOf(const SFlashImage &image, const SCalKey &key)
{
    return static_cast<uint16_t>(image.Table<Block>().at(key).size());
}

template <class Block>
uint16_t FillRxRows(const SFlashImage &image, const std::vector<SProfileRxRoute> &routes,
                    SMMCalRxRowV7 *rows)
{
    for (const SProfileRxRoute &route : routes)
        *rows++ = {route.route, BlocksOf<Block>(image, {route.route, 0})};
    return static_cast<uint16_t>(routes.size());
}

SMMCalTxEntryV7 TxEntry(const SMMCalTxRequestEntryV7 &wanted, int index, ETxEntries order)
{
    SMMCalTxEntryV7 entry = {wanted.bandwidth, wanted.blockCount, wanted.route};
    const bool isTurned =
        order == ETxEntries::InTurn ? index % 2 != 0 : order == ETxEntries::CountFirst;
    if (isTurned) {
        const SMMCalTxEntryCountFirstV7 turned = {wanted.blockCount, wanted.route,
                                                  wanted.bandwidth};
        std::memcpy(&entry, &turned, sizeof entry);
    }
    return entry;
}

}  // namespace

SVerdict AnswerCalBlkInfo(const SProfile &profile, CFlash &flash, uint32_t radioKind,
                          SMMCalBlkInfoCnfV7 &answer)
{
    answer = {};
    if (radioKind > kNr)
        return EResult::RadioKind;
    if (radioKind != kNr)
        return {};
    const SFlashImage &image = flash.Image(profile);
    answer.type1Count = FillRxRows<SType1Block>(image, profile.rxType1Routes, answer.type1);
    answer.type2Count = FillRxRows<SType2Block>(image, profile.rxType2Routes, answer.type2);
    for (const SProfileTxRoute &route : profile.txRoutes) {
        SMMCalTxRowV7 &row = answer.tx[answer.txCount++];
        row.route = route.route;
        for (std::size_t i = 0; i < route.regions.size(); ++i) {
            row.blockCount[i] = BlocksOf<SAptBlock>(image, {route.route, route.regions[i].kHz});
            row.blockTotal = static_cast<uint16_t>(row.blockTotal + row.blockCount[i]);
        }
    }
    return {};
}

void AnswerCalData(const SProfile &profile, CFlash &flash, const SMMGetCalDataReqV7 &request,
                   SMMGetCalDataCnfV7 &answer)
{
    answer = {};
    if (request.radioKind != kNr)
        return SayAll(answer.verdict, WrongKind(request.radioKind));
    const SFlashImage &image = flash.Image(profile);
    const SCalRound round = CalRoundOf(request);
    answer.verdict =
        VerdictOf(CheckWanted(profile, image, round.type1),
                  CheckWanted(profile, image, round.type2), CheckWanted(profile, image, round.tx));
    if (answer.verdict.status != kVondCalSuccess)
        return;
    answer.type1Count = request.type1Count;
    std::copy_n(request.type1, request.type1Count, answer.type1);
    answer.type2Count = request.type2Count;
    for (int i = 0; i < request.type2Count; ++i) {
        answer.type2BlockCount[i] = request.type2[i].blockCount;
        answer.type2Route[i] = request.type2[i].route;
    }
    answer.txCount = request.txCount;
    for (int i = 0; i < request.txCount; ++i)
        answer.tx[i] = TxEntry(request.tx[i], i, profile.calibration.txEntries);
    CopyBlocks(image, round.type1, answer.type1Block);
    CopyBlocks(image, round.type2, answer.type2Block);
    CopyBlocks(image, round.tx, answer.txBlock);
}

SFlashOutcome StoreCalData(const SProfile &profile, CFlash &flash,
                           const SMMSetCalDataReqV7 &request, SMMSetCalDataCnfV7 &answer,
                           const SFlashFaults &faults)
{
    if (request.radioKind != kNr) {
        SayAll(answer, WrongKind(request.radioKind));
        return {};
    }
    if (request.version != kVondCalVersion) {
        SayAll(answer, "record version " + std::to_string(request.version));
        return {};
    }
    const SCalRound round = CalRoundOf(request);
    const SMMCalVerdictV7 verdict =
        VerdictOf(CheckCalBlocks(profile, round.type1), CheckCalBlocks(profile, round.type2),
                  CheckCalBlocks(profile, round.tx));
    if (verdict.status != kVondCalSuccess) {
        answer = verdict;
        return {};
    }
    CFlashWrite write(flash.Image(profile), faults);
    write.Round(round);
    const bool isKept = flash.Keep();
    if (write.IsCut())
        return {.blocks = write.Blocks(), .isCut = true};
    answer = verdict;
    if (isKept)
        return {.blocks = write.Blocks()};
    write.Undo();
    SayAll(answer, "the flash cannot be written");
    return {};
}
