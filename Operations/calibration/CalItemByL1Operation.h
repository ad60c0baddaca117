// Base of the calibration items: data that is held in memory for every route and moves between the
// target's flash, INI files and the pages.
//
// Every move answers with a code of CalResult.h and leaves its text, empty where the code says all:
//     0    done
//     1    there is no route table, or a record could not be sent
//     2    nothing to move: no valid record on download, no data in flash on upload
//     3    the closed library failed
//     50, 51, 52, 53, 200  see CalSections.h
//     203  the target answered with a failure status
// Load and save throw the std::runtime_error of CCalIniFile when a file can't be read or written.
//
// A record is valid once it was read from flash or a file, and stays so. Only valid records are
// written to flash or a file. An upload or a load replaces the records that came in whole, and no
// others. Nothing is rolled back: what a failed transfer has moved stays, in flash and in memory.
//
// Remarks() tells what a move left out, and which values of a file are odd. The code does not
// depend on remarks.
//
// Transfers go in rounds, since one holds a limited number of blocks; a record is never split. All
// moves block the calling thread, run one at a time under the core's lock, and retry nothing.
//
//   CMultiRatAptProfileV7 item(ERadioKind::Nr);
//   item.SetProgress([](int round, int routesDone, int routesInAll) { ... });
//   if (item.UploadFromFlash() != kCalSuccess)
//       ... item.GetErrorMessage()
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <QStringList>

#include "Operations/GeneralOperation.h"
#include "Operations/calibration/CalArea.h"
#include "Operations/calibration/CalBlockImage.h"
#include "Operations/calibration/CalImage.h"
#include "Operations/calibration/CalSections.h"
#include "Operations/calibration/CalValueWatch.h"

// What became of a record of a download of chosen ones.
enum class ECalSent
{
    NotSent,   // flash is as it was
    Accepted,  // the target has answered that it took the round
    Unknown    // it was in a round that failed
};

class ICalItemByL1Operation : public IGeneralOperation
{
public:
    // Told on the thread of the move. round: the transfer under way, from 1 on; 0 while a file is
    // read or written. routesDone: rows of the route tables that are behind; the last call of a
    // good move has all of them.
    using Progress = std::function<void(int round, int routesDone, int routesInAll)>;

    virtual uint32_t UploadFromFlash() = 0;
    virtual uint32_t DownloadToFlash() = 0;
    virtual uint32_t LoadFromFile(CCalIniFile *file) = 0;
    virtual uint32_t SaveToFile(CCalIniFile *file) = 0;

    // What the item's page can show, for the remarks of later loads; null: not known. The limits
    // must outlive these loads.
    void SetPageLimits(ICalPageLimits *limits) { m_limits = limits; }
    void SetProgress(Progress progress) { m_progress = std::move(progress); }
    // Prescribed; see docs/decisions/0036-prescribed-surface.md
    bool HasData() const;  // some record is valid
    // All valid records, as they are now; none without a route table.
    SCalImage Image() const;
    // Replaces these records whole and makes them valid; all others stay. Records that the item has no
    // place for are left out: of another kind, of a route that the table lacks, of another size. The
    // number of those left out.
    int TakeRecords(const SCalImage &image);
    // The same, and no other record is valid: memory is as it was when Image() gave this.
    int TakeImage(const SCalImage &image);

    // From now on an upload keeps what it reads block for block.
    void KeepBlocks();
    // Of the last upload, in the order of the route table, with the records of which flash has no
    // block. What the upload left out is left out.
    SCalBlockImage Blocks() const;
    // Writes these records alone, whatever memory has: packed in rounds as by DownloadToFlash, in the
    // order of the route table. A record that the item has no place for, or with more blocks than one
    // transfer holds, is not sent. sent: what became of each, by its index. The first round that
    // fails is the last one. 2: none was sent.
    uint32_t DownloadBlocks(const SCalBlockImage &image, std::vector<ECalSent> &sent);
    QString ChipName() const;  // as a file has it

    // Of the last move.
    const SCalMoveRemarks &Remarks() const { return m_remarks; }

    // What memory holds of a record that Places names; none of a kind that the item lacks. This and
    // Restore never ask for the route table, so they reach no target.
    std::optional<SCalState> StateOf(const SCalName &name) const;
    // Brings a record back to what it was, with its validity.
    void Restore(const SCalState &state);
    // All of them, each once; none without a route table.
    std::vector<SCalState> States() const;
    // The records that came in since the last upload or load began, whether it ended well or not.
    SCalImage Arrived() const;
    // The places of a kind, in the order of the route table; a route on several bands has several.
    std::vector<SCalPlace> Places(ECalRoute kind) const;
    // True when a file has a section of this item, for any RF chip. Leaves no text. Throws as load
    // does; false without a route table.
    bool IsInFile(CCalIniFile &file) const;

protected:
    // One kind of route of the item; both are the item's own and outlive it.
    struct SPart
    {
        CCalArea *area;
        CCalSections *sections;
    };
    // What differs between the items.
    struct SWords
    {
        const char *uploadRoute[2];                   // log line of a route, by part
        const char *noBlockInfo;                      // text in front of the library's
        const char *noFile;                           // text of a null file
        QString (*verdict)(const SMMCalVerdictV7 &);  // text of a refused round
    };

    ICalItemByL1Operation(ERadioKind kind, SWords words, std::vector<SPart> parts);

    uint32_t Upload();
    uint32_t Download();
    // A file for each part, in their order.
    uint32_t Load(const std::vector<CCalIniFile *> &files);
    uint32_t Save(const std::vector<CCalIniFile *> &files);

private:
    using FileMove = SCalFault (*)(const std::vector<SCalFilePart> &, const SCalFileContext &);
    using SendRound = std::function<uint32_t()>;
    using MoveRecord = std::function<uint32_t(CCalRounds &, int part, const SCalPlace &)>;

    const SMMRfRouteTableV7 *FindRouteTable() const;
    CCalArea *AreaOf(ECalRoute kind) const;
    const SMMRfRouteTableV7 *RouteTable();  // a missing one is told in the text
    uint32_t Fail(const SCalFault &fault);
    void BeginMove();
    // Remarks on the records that a user has edited but that are not valid.
    void NotePassedOver(const SMMRfRouteTableV7 &table);
    uint32_t MoveFile(FileMove move, const std::vector<CCalIniFile *> &files);

    // Walks over the routes of all parts in rounds. The code of the round that failed; 2 when none
    // went out.
    uint32_t MoveRounds(const SMMRfRouteTableV7 &table, const char *startWords,
                        const SendRound &send, const MoveRecord &move);
    uint32_t AskRecord(CCalRounds &rounds, int part, const SCalPlace &place,
                       const SMMCalBlkInfoCnfV7 &info, SMMGetCalDataReqV7 &request);
    uint32_t ReceiveRound(SMMGetCalDataReqV7 &request);
    uint32_t WriteRecord(CCalRounds &rounds, int part, const SCalPlace &place,
                         SMMSetCalDataReqV7 &request, QStringList &refused);
    uint32_t WriteRound(SMMSetCalDataReqV7 &request);
    // The code of a round. The verdict counts more than the result.
    uint32_t FinishRound(const SMMCalVerdictV7 &verdict, int32_t result);
    void TellProgress(int round, int routesDone, int routesInAll) const;

    ERadioKind m_kind;
    SWords m_words;
    std::vector<SPart> m_parts;
    Progress m_progress;
    SCalMoveRemarks m_remarks;
    ICalPageLimits *m_limits = nullptr;
};
