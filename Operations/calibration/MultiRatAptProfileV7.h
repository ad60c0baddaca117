// APT profile: PA gains, power detector readings and PA control levels of every TX route, one
// record for each of its bandwidth regions.
//
// A transfer holds 135 blocks of 16 subbands. Contract of codes, texts, validity and thread:
// ICalItemByL1Operation.
//
//   CMultiRatAptProfileV7 item(ERadioKind::Nr);
//   if (item.UploadFromFlash() == kCalSuccess)
//       ... item.GetAptCalibrationData(7, 0)->couplerLoss[0] / 32.0, dB
#pragma once

#include "Operations/calibration/AptKind.h"
#include "Operations/calibration/AptSections.h"
#include "Operations/calibration/CalItemByL1Operation.h"

class CMultiRatAptProfileV7 : public ICalItemByL1Operation
{
public:
    explicit CMultiRatAptProfileV7(ERadioKind kind);

    uint32_t UploadFromFlash() override { return Upload(); }
    uint32_t DownloadToFlash() override { return Download(); }
    uint32_t LoadFromFile(CCalIniFile *file) override { return Load({file}); }
    uint32_t SaveToFile(CCalIniFile *file) override { return Save({file}); }

    // The record of a route number and bandwidth region, 0 to 3; null for another region. Stays at
    // its address, valid or not; all 0 as long as nothing has filled it.
    const SAptRouteBwRecord *GetAptCalibrationData(uint16_t route, uint16_t bwIdx) const;
    // Takes a record over; more than 4 blocks count as 4. A record that was not valid stays so.
    // False when there is no such region.
    bool SetAptCalibrationData(uint16_t route, uint16_t bwIdx, const SAptRouteBwRecord &record);
    // Tells that the stored record has a user's edits. A Write or Export that leaves it out says
    // so.
    void NoteEdit(uint16_t route, uint16_t bwIdx) { m_records.NoteEdit(route, bwIdx); }

private:
    CCalStore<SAptRouteBwRecord> m_records{kVondMaxBwRegions};
    CCalAreaOf<SAptKind> m_area{m_records};
    CAptSections m_sections{m_records};
};
