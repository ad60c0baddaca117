// Two images of a calibration item, side by side: where they differ, and by how much. Whoever compares
// calibration data goes by this: what flash, memory and files hold, in any pairing.
//
// Numbers are compared one by one, exactly, or within a tolerance for those in dB. Reserved bytes are
// compared as a whole. A record that one side lacks is one difference. Differences come in the order of
// the left image, then what it lacks, and in the order of the bytes.
//
// A difference is kept as a place alone and worded when it is asked for, so that a million of them cost
// little. Both images belong to the comparison. After it is made, any thread may read it.
//
//   const CCalComparison comparison(flash.Image(), file.Image());
//   for (std::size_t i = 0; i < comparison.Count(); ++i)
//       print(comparison.At(i).field, comparison.At(i).left, comparison.At(i).right);
//   // paGain[0][3]  18.5 dB  18 dB
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Operations/calibration/CalImage.h"
#include "Trace/dictionary/FieldPath.h"

enum class ECalLack
{
    None,
    Left,  // the left image lacks the record
    Right
};

struct SCalDifference
{
    ECalRoute kind = ECalRoute::Tx;
    SCalPlace place = {};
    ECalLack lack = ECalLack::None;  // of the record; then the rest is empty
    std::string field = {};          // "loss[3][16].hpm", indexes from 0
    std::string left = {};           // in words, with the unit
    std::string right = {};
    std::optional<double> difference = {};  // right minus left, in the unit; of numbers
    std::string_view unit = {};             // "dB", "kHz", or empty
};

// What to sort and filter a difference by: numbers alone.
struct SCalDifferenceSpot
{
    uint32_t record = 0;              // number of its record, the same for all of its differences
    const SField *field = nullptr;    // null: one side lacks the record
    uint32_t offset = 0;              // of the field in the record
    std::optional<double> left = {};  // in the unit; of numbers
    std::optional<double> right = {};
    std::optional<double> difference = {};
};

// How often something differs.
struct SCalStatistic
{
    std::string name = {};  // of a route as PlaceText has it, of a field without its indexes
    uint32_t record = 0;    // of a route: SCalDifferenceSpot::record
    const SField *field = nullptr;  // of a field
    std::size_t count = 0;
    std::optional<double> largest = {};  // of the differences, without its sign; of a field
    std::string_view unit = {};
};

class CCalComparison
{
public:
    CCalComparison(SCalImage left, SCalImage right, double toleranceDb = 0);

    std::size_t Count() const { return m_parts.size(); }
    SCalDifference At(std::size_t index) const;
    // The same without words, many times as fast.
    SCalDifferenceSpot SpotAt(std::size_t index) const;
    const SCalImage &Left() const { return m_left; }
    const SCalImage &Right() const { return m_right; }
    // In the order of the images, those without a difference left out.
    std::vector<SCalStatistic> ByRoute() const;
    std::vector<SCalStatistic> ByField() const;

private:
    static constexpr uint32_t kNoRecord = UINT32_MAX;

    // A record on both sides, or on one.
    struct SPair
    {
        uint32_t left = kNoRecord;  // in the image
        uint32_t right = kNoRecord;
    };
    // The differences of a pair stand together.
    struct SRun
    {
        uint32_t pair = 0;
        std::size_t first = 0;  // in m_parts
    };
    struct SPlace
    {
        uint32_t pair;
        uint16_t part;
    };

    void PairRecords();
    void ComparePair(uint32_t pair, double toleranceDb);
    static bool IsLacking(const SPair &pair);
    const SCalImageRecord &RecordOf(const SPair &pair) const;
    SPlace PlaceAt(std::size_t index) const;
    std::size_t EndOf(std::size_t run) const;  // in m_parts
    const SFoundField &PartAt(const SPlace &place) const;
    std::optional<double> DifferenceOf(const SPair &pair, const SFoundField &part) const;

    SCalImage m_left;
    SCalImage m_right;
    std::vector<SPair> m_pairs;
    std::vector<SRun> m_runs;
    // Of the record, in the order of the bytes; of a record that is lacking, one 0.
    std::vector<uint16_t> m_parts;
};
