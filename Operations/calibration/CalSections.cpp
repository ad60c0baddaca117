#include "Operations/calibration/CalSections.h"

#include <algorithm>
#include <map>
#include <memory>
#include <tuple>

#include "Operations/calibration/CalCells.h"
#include "Operations/calibration/CalKeys.h"
#include "Operations/calibration/CalRemarks.h"
#include "Support/CalIniFile.h"
#include "Support/Log.h"
#include "Support/WideText.h"

namespace {

constexpr char kChipKey[] = "RF Chip ID";

// A record of the walk, with its sections.
struct SStop
{
    const SCalFilePart *part = nullptr;
    SCalPlace place;
    std::vector<std::string> sections;  // their names
    int routesDone = 0;                 // behind this record
    CalFileSections inFile;             // of a load
};

std::vector<SStop> Walk(const std::vector<SCalFilePart> &parts, const SMMRfRouteTableV7 &table,
                        ERadioKind kind)
{
    std::vector<SStop> stops;
    int rowsBefore = 0;
    for (const SCalFilePart &part : parts) {
        const ECalRoute route = part.sections->Kind();
        for (const SCalPlace &place : WalkRoutes(table, route)) {
            stops.push_back({&part,
                             place,
                             part.sections->SectionsOf(kind, place),
                             rowsBefore + place.row + 1,
                             {}});
        }
        rowsBefore += RouteRows(table, route);
    }
    return stops;
}

// Reads the sections of the records, and leaves the records that have any.
void ReadPresent(std::vector<SStop> &stops)
{
    for (SStop &stop : stops) {
        for (const std::string &section : stop.sections)
            stop.inFile.push_back(stop.part->file->ReadSection(section));
    }
    const auto isAbsent = [](const SStop &stop) {
        return std::none_of(stop.inFile.begin(), stop.inFile.end(),
                            [](const auto &section) { return section.has_value(); });
    };
    stops.erase(std::remove_if(stops.begin(), stops.end(), isAbsent), stops.end());
}

// A route on several bands has one record. Its band is the first one for which the file has a
// section.
void GiveSharedRecordsOneBand(std::vector<SStop> &stops)
{
    std::map<std::tuple<const SCalFilePart *, uint16_t, int>, uint16_t> bands;
    for (SStop &stop : stops) {
        const auto key = std::make_tuple(stop.part, stop.place.route, stop.place.region);
        stop.place.band = bands.try_emplace(key, stop.place.band).first->second;
    }
}

bool IsOfChip(const SStop &stop, const std::string &chip)
{
    return std::all_of(stop.inFile.begin(), stop.inFile.end(), [&chip](const auto &section) {
        const wchar_t *own = section ? section->Find(kChipKey) : nullptr;
        return !own || Utf8FromWide(own) == chip;
    });
}

// Readies each kind of route that the walk still holds.
SCalFault Begin(const std::vector<SCalFilePart> &parts, const std::vector<SStop> &stops,
                const SCalFileContext &context, ECalAccess access)
{
    for (const SCalFilePart &part : parts) {
        const bool isUsed = std::any_of(stops.begin(), stops.end(),
                                        [&](const SStop &stop) { return stop.part == &part; });
        if (!isUsed)
            continue;
        if (SCalFault fault = part.sections->Begin(context.target, context.kind, access))
            return fault;
    }
    return {};
}

// The section's name tells the route of its record. A value that says otherwise is told.
void NoteOtherRoutes(const SStop &stop, SCalMoveRemarks &remarks)
{
    const CCalSections &kind = *stop.part->sections;
    for (size_t i = 0; i < stop.sections.size(); ++i) {
        const wchar_t *text = stop.inFile[i] ? stop.inFile[i]->Find(kind.RouteKey()) : nullptr;
        if (!text)
            continue;
        std::string words = Utf8FromWide(text);
        int64_t route = 0;
        bool isNumber = true;
        ParseCalValue(ECalValue::Number, words, route, &isNumber);
        if (!isNumber || route != stop.place.route)
            remarks.otherRoutes.push_back({.kind = kind.Kind(),
                                           .place = stop.place,
                                           .section = stop.sections[i],
                                           .key = kind.RouteKey(),
                                           .text = std::move(words)});
    }
}

void LogStop(const char *verb, const SStop &stop)
{
    qCDebug(lcCalibration).noquote().nospace()
        << verb << stop.part->sections->Name()
        << "file: " << QString::fromStdString(stop.sections.front())
        << ", route = " << stop.place.route;
}

}  // namespace

bool HasCalSections(const std::vector<SCalFilePart> &parts, const SMMRfRouteTableV7 &table,
                    ERadioKind kind)
{
    const std::vector<SStop> stops = Walk(parts, table, kind);
    return std::any_of(stops.begin(), stops.end(), [](const SStop &stop) {
        return std::any_of(
            stop.sections.begin(), stop.sections.end(),
            [&stop](const std::string &section) { return stop.part->file->HasSection(section); });
    });
}

SCalFault LoadCalSections(const std::vector<SCalFilePart> &parts, const SCalFileContext &context)
{
    std::vector<SStop> stops = Walk(parts, context.table, context.kind);
    ReadPresent(stops);
    GiveSharedRecordsOneBand(stops);
    if (stops.empty())
        return {kCalNoData, {}};
    for (const SStop &stop : stops) {
        if (!IsOfChip(stop, context.chip))
            return {kCalChipMismatch, {}};
    }
    if (SCalFault fault = Begin(parts, stops, context, ECalAccess::Read))
        return fault;
    for (const SStop &stop : stops) {
        LogStop("Read ", stop);
        if (SCalFault fault = stop.part->sections->Read(stop.place, stop.inFile, context.watch))
            return fault;
        context.remarks.loaded.push_back({stop.part->sections->Kind(), stop.place});
        NoteOtherRoutes(stop, context.remarks);
        context.onDone(stop.routesDone);
    }
    return {};
}

SCalFault SaveCalSections(const std::vector<SCalFilePart> &parts, const SCalFileContext &context)
{
    std::vector<SStop> stops = Walk(parts, context.table, context.kind);
    const auto isInvalid = [](const SStop &stop) {
        return !stop.part->sections->IsValid(stop.place);
    };
    stops.erase(std::remove_if(stops.begin(), stops.end(), isInvalid), stops.end());
    // All that can fail comes before the first write: a batch that ends half written is saved, too.
    if (SCalFault fault = Begin(parts, stops, context, ECalAccess::Write))
        return fault;

    std::vector<std::unique_ptr<CCalIniFile::CBatch>> batches;
    batches.reserve(parts.size());
    for (const SCalFilePart &part : parts)
        batches.push_back(std::make_unique<CCalIniFile::CBatch>(*part.file));
    for (const SStop &stop : stops) {
        LogStop("Write ", stop);
        for (size_t i = 0; i < stop.sections.size(); ++i) {
            CIniSection section(stop.sections[i]);
            section.Key(kChipKey) += context.chip;
            stop.part->sections->Write(section, stop.place, static_cast<int>(i));
            stop.part->file->WriteSection(std::move(section));
        }
        context.onDone(stop.routesDone);
    }
    for (const auto &batch : batches)
        batch->Commit();
    return {};
}
