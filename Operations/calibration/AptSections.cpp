#include "Operations/calibration/AptSections.h"

#include "Operations/calibration/CalBlockCount.h"
#include "Operations/calibration/CalKeys.h"

namespace {

using Record = SAptRouteBwRecord;

constexpr int kPaModes = kVondAptPaModes;
constexpr int kOnce = 1;

constexpr char kZeros[] = "0";  // a list of zeros, however long
constexpr char kLowestVolts[] = "0.1V,0.1V,0.1V,0.1V,0.1V,0.1V,0.1V,0.1V,0.1V,0.1V";

// In the order of writing, behind the chip's name. A "%d" is the PA mode.
constexpr SCalKey<Record> kKeys[] = {
    {"Route", ECalValue::Number, kOnce, kZeros, [](Record &r, int) { return CCalCells(r.route); }},
    {"Temperature Index", ECalValue::Number, kOnce, "3",
     [](Record &r, int) { return CCalCells(r.normalTempIndex); }},
    {"Pa section number", ECalValue::Number, kOnce, "8",
     [](Record &r, int) { return CCalCells(r.paControlLevel); }},
    {"Pa mode number", ECalValue::Number, kOnce, "3",
     [](Record &r, int) { return CCalCells(r.paModeCount); }},
    {"Pa mode prf_idx", ECalValue::Number, kOnce, kZeros,
     [](Record &r, int) { return CCalCells(r.prfIndex); }},
    {"Tx compensation pa gain frequency(1KHz)", ECalValue::Number, kOnce, kZeros,
     [](Record &r, int) { return CCalCells(r.freq); }},
    {"Pa mode map", ECalValue::Number, kOnce, kZeros,
     [](Record &r, int) { return CCalCells(r.level, &SAptLevel::paMode); }},
    {"Pa control dc2dc level", ECalValue::Volt, kOnce, kLowestVolts,
     [](Record &r, int) { return CCalCells(r.level, &SAptLevel::dc2dcLevel); }},
    {"Pa control prf", ECalValue::Db, kOnce, kZeros,
     [](Record &r, int) { return CCalCells(r.level, &SAptLevel::prf); }},
    {"Pa control pa gain", ECalValue::Db, kOnce, kZeros,
     [](Record &r, int) { return CCalCells(r.level, &SAptLevel::paGain); }},
    {"256QAM usage", ECalValue::Number, kOnce, kZeros,
     [](Record &r, int) { return CCalCells(r.level, &SAptLevel::usage256Qam); }},
    {"Tx compensation power detector coupler loss %d", ECalValue::Db, kPaModes, kZeros,
     [](Record &r, int pa) { return CCalCells(r.couplerLoss[pa]); }},
    {"Temperature Offset pa gain pa %d", ECalValue::Db, kPaModes, kZeros,
     [](Record &r, int pa) { return CCalCells(r.paGainTempOffset[pa]); }},
    {"Temperature Offset Power detector pa %d", ECalValue::Db, kPaModes, kZeros,
     [](Record &r, int pa) { return CCalCells(r.powerDetectorTempOffset[pa]); }},
    {"Tx compensation pa gain pa %d", ECalValue::Db, kPaModes, kZeros,
     [](Record &r, int pa) { return CCalCells(r.paGain[pa]); }},
    {"Tx compensation power detector pa %d", ECalValue::Db, kPaModes, kZeros,
     [](Record &r, int pa) { return CCalCells(r.powerDetector[pa]); }},
};

// By radio kind: 0 LTE side, 1 NR.
constexpr const char *kFirstOfBand[] = {"LTE BAND%d BW%d TPC", "NR n%d BW%d TPC"};
constexpr const char *kFurther[] = {"LTE BAND%d CA%d BW%d TPC", "NR n%d CA%d BW%d TPC"};

}  // namespace

std::vector<std::string> CAptSections::SectionsOf(ERadioKind kind, const SCalPlace &place) const
{
    const std::string band = std::to_string(place.band);
    const std::string region = std::to_string(place.region);
    const int form = static_cast<int>(kind);
    if (place.ordinal == 0)
        return {FormText(kFirstOfBand[form], {band, region})};
    return {FormText(kFurther[form], {band, std::to_string(place.ordinal), region})};
}

SCalFault CAptSections::Read(const SCalPlace &place, const CalFileSections &sections,
                             CCalValueWatch &watch)
{
    Record record = m_store.At(place);
    watch.BeginRecord(Kind(), place, &record);
    if (const char *failure = ReadKeys(*sections[0], kKeys, EAbsentKey::Default, record, watch))
        return {kCalFileProblem, QString::fromLatin1(failure)};
    // The section's name tells its route; numbers in the section can't change it.
    record.band = place.band;
    record.route = place.route;
    record.blockCount =
        ImportedBlockCount(record, m_store.IsValid(place) ? &m_store.At(place) : nullptr);
    watch.EndRecord();
    m_store.At(place) = record;
    m_store.SetValid(place);
    return {};
}

void CAptSections::Write(CIniSection &section, const SCalPlace &place, int)
{
    WriteKeys(section, kKeys, m_store.At(place));
}
