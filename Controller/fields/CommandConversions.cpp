#include "Controller/fields/CommandConversions.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "Support/Log.h"

namespace {

struct SNamedValue
{
    const char *text;
    uint32_t value;
};

// A table of texts with the word that is logged, and the value that is used, for all others.
struct SValueTable
{
    const SNamedValue *begin;
    const SNamedValue *end;
    const char *failure;
    uint32_t defaultValue;
};

constexpr SNamedValue kMcs[] = {
    {"DFT_S_BPSK", NL1TST_MCS_DFT_S_BPSK},     {"CP_QPSK", NL1TST_MCS_CP_QPSK},
    {"DFT_S_QPSK", NL1TST_MCS_DFT_S_QPSK},     {"CP_16QAM", NL1TST_MCS_CP_16QAM},
    {"DFT_S_16QAM", NL1TST_MCS_DFT_S_16QAM},   {"CP_64QAM", NL1TST_MCS_CP_64QAM},
    {"DFT_S_64QAM", NL1TST_MCS_DFT_S_64QAM},   {"CP_256QAM", NL1TST_MCS_CP_256QAM},
    {"DFT_S_256QAM", NL1TST_MCS_DFT_S_256QAM},
};

constexpr SNamedValue kScs[] = {
    {"15", NL1TST_SCS_15_KHZ},
    {"30", NL1TST_SCS_30_KHZ},
    {"60", NL1TST_SCS_60_KHZ},
};

constexpr SNamedValue kRb15[] = {
    {"25", 5000},   {"52", 10000},  {"97", 15000},  {"106", 20000},
    {"133", 25000}, {"160", 30000}, {"216", 40000}, {"270", 50000},
};

constexpr SNamedValue kRb30[] = {
    {"11", 5000},   {"24", 10000},  {"38", 15000},  {"51", 20000},  {"65", 25000},   {"78", 30000},
    {"106", 40000}, {"133", 50000}, {"162", 60000}, {"217", 80000}, {"273", 100000},
};

constexpr SNamedValue kRb60[] = {
    {"11", 10000}, {"18", 15000}, {"24", 20000}, {"31", 25000},  {"38", 30000},
    {"51", 40000}, {"65", 50000}, {"79", 60000}, {"107", 80000}, {"135", 100000},
};

constexpr SValueTable kMcsTable{std::begin(kMcs), std::end(kMcs), "Get MCS mode failed",
                                NL1TST_MCS_DFT_S_BPSK};
constexpr SValueTable kScsTable{std::begin(kScs), std::end(kScs), "Get SCS failed",
                                NL1TST_SCS_15_KHZ};
// Indexed by the record's SCS value.
constexpr SValueTable kRbTables[] = {
    {std::begin(kRb15), std::end(kRb15), "Get 15 kHz RB  failed", 5000},
    {std::begin(kRb30), std::end(kRb30), "Get 30 kHz RB  failed", 5000},
    {std::begin(kRb60), std::end(kRb60), "Get 60 kHz RB  failed", 10000},
};

constexpr int32_t kToneOffsetsKhz[] = {-540, -450, -360, -270, -180, -90, 0,
                                       90,   180,  270,  360,  450,  540};

uint32_t Find(const SValueTable &table, const QString &text)
{
    const auto *row = std::find_if(table.begin, table.end, [&text](const SNamedValue &r) {
        return text == QLatin1String(r.text);
    });
    if (row != table.end)
        return row->value;
    qCCritical(lcCommand) << table.failure << text;
    return table.defaultValue;
}

QString LeadingDigits(const QString &text)
{
    int count = 0;
    while (count < text.size() && text[count] >= QLatin1Char('0') &&
           text[count] <= QLatin1Char('9'))
        ++count;
    return text.left(count);
}

}  // namespace

uint16_t BandNumber(const QString &text)
{
    return DecimalInt<uint16_t>(text.mid(1));
}

uint8_t GainModeNumber(const QString &text)
{
    const bool lettered = !text.isEmpty() && text[0].isLetter();
    return DecimalInt<uint8_t>(lettered ? text.mid(1) : text);
}

uint8_t BoolFlag(const QString &text)
{
    return text == QLatin1String("true") ? 1 : 0;
}

int16_t FixedPoint(const QString &text, double scale)
{
    const double scaled = text.toDouble() * scale;
    constexpr double kExact = 9007199254740992.0;  // beyond 2^53 there are no low bits to keep
    if (!std::isfinite(scaled) || std::abs(scaled) > kExact)
        return 0;
    return static_cast<int16_t>(static_cast<uint16_t>(static_cast<int64_t>(scaled)));
}

NL1TST_MCS_E GetMcsMode(const QString &text)
{
    return static_cast<NL1TST_MCS_E>(Find(kMcsTable, text));
}

NL1TST_SCS_E GetScs(const QString &text)
{
    return static_cast<NL1TST_SCS_E>(Find(kScsTable, LeadingDigits(text)));
}

uint32_t Get15KhzRb(const QString &text)
{
    return GetRbBandwidth(NL1TST_SCS_15_KHZ, text);
}

uint32_t Get30KhzRb(const QString &text)
{
    return GetRbBandwidth(NL1TST_SCS_30_KHZ, text);
}

uint32_t Get60KhzRb(const QString &text)
{
    return GetRbBandwidth(NL1TST_SCS_60_KHZ, text);
}

uint32_t GetRbBandwidth(uint32_t scs, const QString &text)
{
    const uint32_t row = std::min<uint32_t>(scs, std::size(kRbTables) - 1);
    return Find(kRbTables[row], LeadingDigits(text));
}

uint32_t KhzOfMhzText(const QString &text, int unitLength)
{
    return DecimalInt<uint32_t>(text.chopped(qMin(unitLength, text.size()))) * 1000;
}

uint32_t UpperBoundKhz(const QString &text)
{
    constexpr int kUnitLength = 3;  // "MHz"
    return KhzOfMhzText(text.mid(text.lastIndexOf(QLatin1Char(' ')) + 1), kUnitLength);
}

int32_t ToneOffsetKhz(int index)
{
    if (index < 0 || index >= static_cast<int>(std::size(kToneOffsetsKhz)))
        return 0;
    return kToneOffsetsKhz[index];
}
