// What the flash does to readings and to the transmitted power: the losses and gains that it holds
// against those that the DUT really has. The formulas are told in Simulator/README.md.
//
// Records may hold anything: one that was cut, or values at the extremes of their type. Answers are
// finite numbers in any case. No lock: the owner keeps calls apart.
//
//   CFlashCalibration calibration(profile, flash);
//   radio.Rssi(profile, calibration, command, answer);
#pragma once

#include "Simulator/flash/Flash.h"
#include "Simulator/radio/Calibration.h"

class CFlashCalibration : public ICalibration
{
public:
    // Keeps references to both.
    CFlashCalibration(const SProfile &profile, CFlash &flash) : m_profile(profile), m_flash(flash)
    {
    }

    double RxError(const SRxPlace &place) override;
    STxOutput Output(const STxPlace &place, double power) override;

private:
    template <class Block>
    double LossError(const SRxPlace &place);

    const SProfile &m_profile;
    CFlash &m_flash;
};
