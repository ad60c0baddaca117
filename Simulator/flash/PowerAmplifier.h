// The transmitter behind an APT record: which PA level a power asks for, the drive that the record's
// gains lead to, and what the PA and the power detector make of it.
//
// The PA is the true record's; the firmware goes by the one that the flash holds. A level has the
// supply and the PA mode that the flash says, at the gain that the PA has there.
//
//   const STxOutput output = CPowerAmplifier(truth, held).Output(1950000, 23.0, 25.0);
#pragma once

#include <vector>

#include "Simulator/radio/Calibration.h"
#include "Vond/VondCalBlocks.h"

class CPowerAmplifier
{
public:
    // Neither is empty; keeps references to both.
    CPowerAmplifier(const std::vector<SAptBlock> &truth, const std::vector<SAptBlock> &held)
        : m_truth(truth), m_held(held)
    {
    }

    STxOutput Output(uint32_t kHz, double power, double celsius) const;

private:
    const std::vector<SAptBlock> &m_truth;
    const std::vector<SAptBlock> &m_held;
};
