// RX path loss records in INI files: two sections for each route, one of the main path and one of
// the diversity path.
//
// Both have the frequencies and the temperature offset. Where they differ, diversity counts; where
// one lacks a key, the other's value is taken. The gain keys depend on the target's capability. A
// section without the key of a supported mode is not complete. Losses that have no key stay as they
// were in memory. Contract: CCalSections.
//
//   CPathLossSections<SMMType1PathlossByRouteV7> sections(store);
#pragma once

#include "Operations/calibration/CalRecords.h"
#include "Operations/calibration/CalSections.h"
#include "Operations/calibration/CalStore.h"
#include "Operations/calibration/PathLossGains.h"

template <typename Record>
class CPathLossSections : public CCalSections
{
public:
    explicit CPathLossSections(CCalStore<Record> &store) : m_store(store) {}

    ECalRoute Kind() const override;
    const char *Name() const override;
    const char *RouteKey() const override { return "Comp Route"; }
    std::vector<std::string> SectionsOf(ERadioKind kind, const SCalPlace &place) const override;
    bool IsValid(const SCalPlace &place) const override { return m_store.IsValid(place); }
    SCalFault Begin(const CTargetCapability &target, ERadioKind kind, ECalAccess access) override;
    SCalFault Read(const SCalPlace &place, const CalFileSections &sections,
                   CCalValueWatch &watch) override;
    void Write(CIniSection &section, const SCalPlace &place, int index) override;

private:
    CCalStore<Record> &m_store;
    std::vector<SGainKey> m_gainKeys;
};

extern template class CPathLossSections<SMMType1PathlossByRouteV7>;
extern template class CPathLossSections<SMMType2PathlossByRouteV7>;
