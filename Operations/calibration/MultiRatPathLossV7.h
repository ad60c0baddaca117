// RX path loss of every route: type 1 with one path pair, type 2 with two SRX paths and the losses
// of partial-on and gain by gain.
//
// A transfer holds 55 blocks of type 1 and 3 of type 2, together. A type 2 route of 4 blocks can't
// be read; it is written without its trailing blocks that have no frequency, and not at all when it
// still has more than 3. Contract of codes, texts, validity and thread: ICalItemByL1Operation.
//
// A file holds both types, or each type has a file of its own.
//
//   CMultiRatPathLossV7 item(ERadioKind::Nr);
//   item.LoadFromFile(&file);
//   const auto *record = item.GetPathLossCalibrationData<SMMType2PathlossByRouteV7>(12);
#pragma once

#include <type_traits>

#include "Operations/calibration/CalItemByL1Operation.h"
#include "Operations/calibration/PathLossKinds.h"
#include "Operations/calibration/PathLossSections.h"

class CMultiRatPathLossV7 : public ICalItemByL1Operation
{
public:
    explicit CMultiRatPathLossV7(ERadioKind kind);

    uint32_t UploadFromFlash() override { return Upload(); }
    uint32_t DownloadToFlash() override { return Download(); }
    uint32_t LoadFromFile(CCalIniFile *file) override { return LoadFromFile(file, file); }
    uint32_t SaveToFile(CCalIniFile *file) override { return SaveToFile(file, file); }
    // Prescribed; see docs/decisions/0036-prescribed-surface.md
    uint32_t LoadFromFile(CCalIniFile *type1File, CCalIniFile *type2File);
    uint32_t SaveToFile(CCalIniFile *type1File, CCalIniFile *type2File);

    // The record of a route number. Stays at its address, valid or not; all 0 as long as nothing
    // has filled it.
    template <typename Record>
    const Record *GetPathLossCalibrationData(uint16_t route) const
    {
        return Records<Record>(*this).Find(route);
    }
    // Takes a record over; more than 4 blocks count as 4. A record that was not valid stays so.
    template <typename Record>
    void SetPathLossCalibrationData(uint16_t route, const Record &record)
    {
        Records<Record>(*this).Put(route, 0, record);
    }
    // Tells that the stored record has a user's edits. A Write or Export that leaves it out says
    // so.
    template <typename Record>
    void NoteEdit(uint16_t route)
    {
        Records<Record>(*this).NoteEdit(route);
    }

private:
    template <typename Record, typename Self>
    static auto &Records(Self &self)
    {
        if constexpr (std::is_same_v<Record, SMMType1PathlossByRouteV7>)
            return self.m_type1;
        else
            return self.m_type2;
    }

    CCalStore<SMMType1PathlossByRouteV7> m_type1;
    CCalStore<SMMType2PathlossByRouteV7> m_type2;
    CCalAreaOf<SType1Kind> m_type1Area{m_type1};
    CCalAreaOf<SType2Kind> m_type2Area{m_type2};
    CPathLossSections<SMMType1PathlossByRouteV7> m_type1Sections{m_type1};
    CPathLossSections<SMMType2PathlossByRouteV7> m_type2Sections{m_type2};
};
