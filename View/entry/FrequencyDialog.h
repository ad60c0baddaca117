// Asks for a frequency in any of the ways that a person has: kHz, MHz, GHz or an NR-ARFCN.
//
// While the user types, the dialog shows the other form, the nearest raster point of the band, and
// whether the editor takes it. Buttons enter the low, the middle and the high channel of the band with the
// bandwidth at hand, on the raster. GUI thread.
//
//   CFrequencyDialog dialog({.band = "n78", .scsKhz = 30, .channelKhz = 20000,
//                            .leastKhz = 3300000, .mostKhz = 3800000, .khz = 3549990}, page);
//   if (dialog.exec() == QDialog::Accepted)
//       box->setValue(dialog.Khz());
#pragma once

#include <memory>

#include <QDialog>
#include <QString>

namespace Ui {
class CFrequencyDialog;
}

struct SFrequencyPlace
{
    QString band = {};
    int scsKhz = 0;         // 0: not known
    double channelKhz = 0;  // 0: not known
    int leastKhz = 0;       // what the editor takes
    int mostKhz = 0;
    int khz = 0;  // what it has
};

// The channel so far on the way from the lowest one, 0, to the highest one, 1: on the raster, and with its
// whole bandwidth within the limits, where these have room for it. kHz.
double ChannelKhzAt(const SFrequencyPlace &place, double share);

class CFrequencyDialog : public QDialog
{
    Q_OBJECT

public:
    CFrequencyDialog(const SFrequencyPlace &place, QWidget *parent);
    ~CFrequencyDialog() override;

    // Of the entry, once it was accepted.
    int Khz() const { return m_khz; }

private:
    void Look();
    void Enter(double khz);

    const SFrequencyPlace m_place;
    const std::unique_ptr<Ui::CFrequencyDialog> m_ui;
    int m_khz;
};
