// APT records in INI files: a section for each bandwidth region of each TX route.
//
// Keys that a section lacks read as their defaults. Frequencies count up to the first 0, and the
// count sets the number of blocks: see FileBlockCount. Contract: CCalSections.
//
//   CAptSections sections(store);
#pragma once

#include "Operations/calibration/CalRecords.h"
#include "Operations/calibration/CalSections.h"
#include "Operations/calibration/CalStore.h"

class CAptSections : public CCalSections
{
public:
    explicit CAptSections(CCalStore<SAptRouteBwRecord> &store) : m_store(store) {}

    ECalRoute Kind() const override { return ECalRoute::Tx; }
    const char *Name() const override { return ""; }
    const char *RouteKey() const override { return "Route"; }
    std::vector<std::string> SectionsOf(ERadioKind kind, const SCalPlace &place) const override;
    bool IsValid(const SCalPlace &place) const override { return m_store.IsValid(place); }
    SCalFault Begin(const CTargetCapability &, ERadioKind, ECalAccess) override { return {}; }
    SCalFault Read(const SCalPlace &place, const CalFileSections &sections,
                   CCalValueWatch &watch) override;
    void Write(CIniSection &section, const SCalPlace &place, int index) override;

private:
    CCalStore<SAptRouteBwRecord> &m_store;
};
