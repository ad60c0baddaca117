#include "Simulator/flash/Flash.h"

#include <cstdio>
#include <exception>
#include <utility>

#include "Simulator/flash/FlashFile.h"
#include "Simulator/flash/FlashFill.h"

CFlash::CFlash(std::string path) : m_path(std::move(path)) {}

SFlashImage &CFlash::Image(const SProfile &profile)
{
    if (m_filled)
        return m_image;
    m_image = Factory(profile);
    m_filled = true;
    if (m_path.empty())
        return m_image;
    try {
        LoadFlash(m_path, profile, m_image);
    } catch (const CForeignFile &error) {
        std::fprintf(stderr,
                     "VondSim: flash %s: %s; it stays as it is, and the profile's calibration "
                     "data is taken and not kept\n",
                     m_path.c_str(), error.what());
        m_path.clear();
    } catch (const std::exception &error) {
        std::fprintf(stderr, "VondSim: flash %s: %s; the profile's calibration data is taken\n",
                     m_path.c_str(), error.what());
    }
    return m_image;
}

const SFlashImage &CFlash::Factory(const SProfile &profile)
{
    if (!m_factory)
        m_factory = std::make_shared<SFlashImage>(CalibratedFlash(profile));
    return *m_factory;
}

const SFlashImage &CFlash::Truth(const SProfile &profile)
{
    if (!m_truth && IsFullyCalibrated(profile)) {
        Factory(profile);
        m_truth = m_factory;
    }
    if (!m_truth)
        m_truth = std::make_shared<SFlashImage>(TrueFlash(profile));
    return *m_truth;
}

bool CFlash::Keep() const
{
    if (m_path.empty())
        return true;
    try {
        SaveFlash(m_path, m_image);
        return true;
    } catch (const std::exception &error) {
        std::fprintf(stderr, "VondSim: flash %s: %s\n", m_path.c_str(), error.what());
    }
    return false;
}

bool CFlash::Restore(const SProfile &profile)
{
    SFlashImage old = Image(profile);
    m_image = Factory(profile);
    if (Keep())
        return true;
    m_image = std::move(old);
    return false;
}
