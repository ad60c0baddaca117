// Conversions from the texts of a packaged document to the fields of a command record.
//
// Every value of a document is a text; each record field fixes one conversion. Nothing fails
// outward: a text that does not convert gives 0, or the default that the table names, and the
// tables say so on the critical log. Pure, any thread.
//
//   BandNumber("n78");            // 78
//   FixedPoint("-10.5", 256.0);   // -2688, dBm in 1/256 dB
//   GetRbBandwidth(0, "25 RB");   // 5000: 25 RBs at 15 kHz SCS
#pragma once

#include <cstdint>
#include <limits>

#include <QString>

constexpr uint32_t kRadioNr = 1;       // radioKind of a record
constexpr double kPowerScale = 256.0;  // dBm in 1/256 dB
constexpr double kGainScale = 32.0;    // dB in 1/32 dB

// Subcarrier spacing as the target counts it.
enum NL1TST_SCS_E : uint32_t
{
    NL1TST_SCS_15_KHZ = 0,
    NL1TST_SCS_30_KHZ = 1,
    NL1TST_SCS_60_KHZ = 2,
};

// Waveform and modulation of an uplink.
enum NL1TST_MCS_E : uint32_t
{
    NL1TST_MCS_DFT_S_BPSK = 0,
    NL1TST_MCS_CP_QPSK = 1,
    NL1TST_MCS_DFT_S_QPSK = 2,
    NL1TST_MCS_CP_16QAM = 3,
    NL1TST_MCS_DFT_S_16QAM = 4,
    NL1TST_MCS_CP_64QAM = 5,
    NL1TST_MCS_DFT_S_64QAM = 6,
    NL1TST_MCS_CP_256QAM = 7,
    NL1TST_MCS_DFT_S_256QAM = 8,
};

// Decimal number in the width of Int; 0 when the text is none or does not fit.
template <typename Int>
Int DecimalInt(const QString &text)
{
    bool ok = false;
    const qint64 value = text.toLongLong(&ok, 10);
    if (!ok || value < std::numeric_limits<Int>::min() || value > std::numeric_limits<Int>::max())
        return 0;
    return static_cast<Int>(value);
}

// Band number of a text such as "n78": all behind the first character.
uint16_t BandNumber(const QString &text);
// 1 for "true" exactly, else 0.
uint8_t BoolFlag(const QString &text);
// Number of an eLNA mode or gain mode such as "G3" or "g1": all behind the letter.
uint8_t GainModeNumber(const QString &text);
// The number times scale, truncated toward zero, its low 16 bits.
int16_t FixedPoint(const QString &text, double scale);

NL1TST_MCS_E GetMcsMode(const QString &text);

// SCS and RB texts count by the digits that they begin with: "15kHz" and "15" are one SCS, "25 RB"
// and "25" one RB count.
NL1TST_SCS_E GetScs(const QString &text);

// Channel bandwidth in kHz of an RB count (3GPP TS 38.101-1 table 5.3.2-1, but for the 15 kHz entry
// of 15 MHz, which users of the tool know as 97; 79 is refused).
uint32_t Get15KhzRb(const QString &text);
uint32_t Get30KhzRb(const QString &text);
uint32_t Get60KhzRb(const QString &text);
// The same by the record's SCS value.
uint32_t GetRbBandwidth(uint32_t scs, const QString &text);

// The number in front of a unit of some characters, in MHz, as kHz: ("5M", 1) is 5000.
uint32_t KhzOfMhzText(const QString &text, int unitLength);
// Upper bound in kHz of a range text: "0 < BW0 <= 20MHz" is 20000.
uint32_t UpperBoundKhz(const QString &text);

// Offset in kHz of a tone by its place among the thirteen choices, -540 to 540; 0 for any other.
int32_t ToneOffsetKhz(int index);
