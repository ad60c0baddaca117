// NR channel numbers and the channel raster, for people who think in them.
//
// An NR-ARFCN stands for a frequency of the global raster (3GPP TS 38.104, table 5.4.2.1-1):
//     0 to 3000 MHz          5 kHz steps from 0                NR-ARFCN 0 to 599999
//     3000 to 24250 MHz      15 kHz steps from 3000 MHz        600000 to 2016666
//     24250 to 100000 MHz    60 kHz steps from 24250.08 MHz    2016667 to 3279165
// A band has carriers at some of them only (table 5.4.2.3-1): every 100 kHz, or every 15 or 30 kHz by
// the SCS. Frequencies are in kHz and may have a fraction below. Pure functions, any thread.
//
//   KhzOfArfcn(636666);                       // 3549990
//   ArfcnOfKhz(3549990);                      // 636666
//   NearestRasterKhz("n78", 30, 3550000);     // 3549990
#pragma once

#include <optional>

#include <QString>

std::optional<double> KhzOfArfcn(qint64 arfcn);
// Of the nearest point of the global raster; none below 0 or above its last point.
std::optional<qint64> ArfcnOfKhz(double khz);
// scsKhz: of the carrier; 0: not known, the finest raster of the band.
double RasterStepKhz(const QString &band, int scsKhz);
std::optional<double> NearestRasterKhz(const QString &band, int scsKhz, double khz);

// A frequency as a person writes it, in kHz: "3549990", "3549990k", "3549.99M", "3.54999G", or a number
// that is no frequency of the limits but an NR-ARFCN whose frequency is. None: it is neither.
std::optional<double> KhzOfEntry(const QString &entry, double leastKhz, double mostKhz);
