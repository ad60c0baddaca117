// Calibration data in INI files: the walk over the sections that load and save of all items share.
//
// A file holds a section for each route and bandwidth region, or two for each route, main and
// diversity path. What one kind of route puts into its sections is a CCalSections; the walk asks it
// for names and lets it read and write one record at a time.
//
// Load. What is loaded depends on the sections that the file has. A file with none of them is 51,
// one of another RF chip 200; no record is touched then. A record is taken over whole or not at
// all. A failure ends the load; the records before it stay loaded. A section without the chip's
// name is accepted.
//
// Save. Valid records alone are written, with one save of each file in the end; nothing is saved
// when there is none.
//
// A file that can't be read or written throws the std::runtime_error of CCalIniFile. One thread,
// the worker's.
//
//   SCalFault fault = LoadCalSections({{sections, file}}, table, context);
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "Operations/calibration/CalResult.h"
#include "Operations/calibration/CalRoutes.h"
#include "Operations/capability/TargetCapability.h"
#include "Support/IniLines.h"
#include "Support/IniSection.h"

class CCalIniFile;
class CCalValueWatch;
struct SCalMoveRemarks;

// The sections of a record as a file has them, in the order of their names; empty where it has
// none.
using CalFileSections = std::vector<std::optional<CIniLines>>;

enum class ECalAccess
{
    Read,
    Write,
};

class CCalSections
{
public:
    virtual ~CCalSections() = default;

    virtual ECalRoute Kind() const = 0;
    virtual const char *Name() const = 0;      // of the file in the log: "", "T1 ", "T2 "
    virtual const char *RouteKey() const = 0;  // whose value is the route number

    // The sections of a record, in the order of writing.
    virtual std::vector<std::string> SectionsOf(ERadioKind kind, const SCalPlace &place) const = 0;
    virtual bool IsValid(const SCalPlace &place) const = 0;

    // Called before the first record: prepares the keys that the target's capability asks for.
    virtual SCalFault Begin(const CTargetCapability &target, ERadioKind kind,
                            ECalAccess access) = 0;
    // Reads a record from those of its sections that the file has, and makes it valid. On a failure
    // the record stays as it was.
    virtual SCalFault Read(const SCalPlace &place, const CalFileSections &sections,
                           CCalValueWatch &watch) = 0;
    // Writes the keys behind the chip's name. index: of the section among those of the record.
    virtual void Write(CIniSection &section, const SCalPlace &place, int index) = 0;
};

// A kind of route and its file; kinds may share a file.
struct SCalFilePart
{
    CCalSections *sections = nullptr;
    CCalIniFile *file = nullptr;
};

struct SCalFileContext
{
    const SMMRfRouteTableV7 &table;
    const CTargetCapability &target;
    ERadioKind kind;
    std::string chip;                            // name of the target's RF chip
    std::function<void(int routesDone)> onDone;  // told behind each record; never empty
    CCalValueWatch &watch;                       // of a load
    SCalMoveRemarks &remarks;                    // of a load: what was loaded, and other routes
};

// True when a file has a section of a record, for any RF chip.
bool HasCalSections(const std::vector<SCalFilePart> &parts, const SMMRfRouteTableV7 &table,
                    ERadioKind kind);
SCalFault LoadCalSections(const std::vector<SCalFilePart> &parts, const SCalFileContext &context);
SCalFault SaveCalSections(const std::vector<SCalFilePart> &parts, const SCalFileContext &context);
