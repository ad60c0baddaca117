// The flash of the simulated DUT: the calibration records of all routes, and the file that keeps
// them when VOND_SIM_FLASH names one.
//
// The records come from the file or, without a usable one, from the profile's "calibration" rule;
// both happen at the first call that needs them, so that a DUT nobody measures costs nothing. A
// file that cannot be used costs one line on stderr. No lock: the owner keeps calls apart.
//
//   CFlash flash("/tmp/dut.flash");
//   SFlashImage &image = flash.Image(profile);
//   image.Table<SAptBlock>()[{7, 100000}] = blocks;
//   if (!flash.Keep()) ...   // the file could not be written
#pragma once

#include <memory>
#include <string>

#include "Simulator/flash/FlashImage.h"

class CFlash
{
public:
    // An empty path: no file.
    explicit CFlash(std::string path = {});

    // All records of the profile's DUT; they are empty if it was never calibrated. Every call gets
    // the same profile.
    SFlashImage &Image(const SProfile &profile);
    // What the factory wrote into it, and what the DUT really has.
    const SFlashImage &Factory(const SProfile &profile);
    const SFlashImage &Truth(const SProfile &profile);
    // The file that keeps it; empty: none.
    const std::string &Path() const { return m_path; }
    // Writes the image to the file, whole or not at all. False, and a line on stderr: it failed.
    bool Keep() const;
    // Factory data again, in the file too. False: the file could not be written, nothing has changed.
    bool Restore(const SProfile &profile);

private:
    std::string m_path;
    bool m_filled = false;
    SFlashImage m_image;
    std::shared_ptr<const SFlashImage> m_factory;
    std::shared_ptr<const SFlashImage> m_truth;
};
