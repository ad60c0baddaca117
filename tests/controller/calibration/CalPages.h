// Documents of the calibration pages, packaged as pages do it, and records with extreme numbers.
//
//   QJsonObject page = CalPage(kAptPage);
//   const QJsonObject shown = ModelFromText(builder.GetAptDataModelV7(page, record));
//   const SAptRouteBwRecord back = builder.GetAptCmdV7(Packaged(shown, EEditors::None), record);
#pragma once

#include <cstring>
#include <iterator>
#include <limits>
#include <random>
#include <vector>

#include <QJsonObject>

#include "Operations/calibration/CalRecords.h"
#include "tests/controller/commands/PageDocuments.h"

constexpr char kAptPage[] = "NrAptProfileV7";
constexpr char kPathLossPage[] = "NrRxPathLossV7";

// The page's own document, that no DUT has patched.
QJsonObject CalPage(const char *name);

enum class EEditors
{
    None,      // each text comes back as it was given
    OfThePage  // a spin box stops at its limits, a combo box is empty for what it lacks
};
// The document with what it shows packaged, one text a column in a column table.
QJsonObject Packaged(QJsonObject document, EEditors editors);

// A path loss document that selects.
struct SSelection
{
    const char *powerMode = "HPM";
    int path = 0;
    int bigG = 0;
    int freqIdx = 0;
};
void Select(QJsonObject &document, const SSelection &selection);

// Extremes of the type, and numbers beside them.
template <typename T>
void FillExtreme(std::mt19937 &random, T &number)
{
    using Limits = std::numeric_limits<T>;
    const T choices[] = {Limits::min(), Limits::max(),           T(0), T(1), static_cast<T>(-1),
                         T(33),         static_cast<T>(random())};
    number = choices[random() % std::size(choices)];
}
template <typename T, size_t count>
void FillExtreme(std::mt19937 &random, T (&numbers)[count])
{
    for (T &number : numbers)
        FillExtreme(random, number);
}
inline void FillExtreme(std::mt19937 &random, SMMLossPair &pair)
{
    FillExtreme(random, pair.lpm);
    FillExtreme(random, pair.hpm);
}

// With so many frequencies and the block count that a page gives them; every field that a page
// shows, and those that it does not.
SAptRouteBwRecord ExtremeApt(unsigned seed, int frequencies);
template <typename Record>
Record ExtremeLoss(unsigned seed, int frequencies)
{
    std::mt19937 random(seed);
    Record record = {};
    record.band = 78;
    record.route = 12;
    FillExtreme(random, record.loss);
    FillExtreme(random, record.plOffset);
    for (int i = 0; i < frequencies; ++i)
        record.freq[i] = i % 2 ? 3300000 + i : std::numeric_limits<uint32_t>::max() - i;
    record.blockCount = static_cast<uint32_t>((frequencies + 15) / 16);
    return record;
}

template <typename Record>
bool SameBytes(const Record &a, const Record &b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}
