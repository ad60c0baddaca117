#include "Cli/trace/Pairing.h"

#include <algorithm>

namespace {

using Keys = std::span<const SPairingKey>;

// Up to so many cells the best pairing is looked for cell by cell. Above, the longer part is cut in two
// where a longest common subsequence of functions passes.
constexpr std::size_t kMostCells = std::size_t{1} << 22;

// Length of the longest common subsequence of functions of one and of each beginning of other.
// Sixty-four columns at once: a bit that is 0 stands for a column in which the length grows.
std::vector<uint32_t> CommonLengths(const std::vector<uint32_t> &one,
                                    const std::vector<uint32_t> &other)
{
    constexpr std::size_t kBits = 64;
    const std::size_t words = other.size() / kBits + 1;
    std::vector<std::vector<uint64_t>> masks;
    for (std::size_t i = 0; i < other.size(); ++i) {
        if (other[i] >= masks.size())
            masks.resize(other[i] + 1, std::vector<uint64_t>(words));
        masks[other[i]][i / kBits] |= uint64_t{1} << i % kBits;
    }
    std::vector<uint64_t> columns(words, ~uint64_t{0});
    for (const uint32_t function : one) {
        if (function >= masks.size())
            continue;
        const std::vector<uint64_t> &mask = masks[function];
        bool carry = false;
        for (std::size_t i = 0; i < words; ++i) {
            const uint64_t column = columns[i];
            const uint64_t hit = column & mask[i];
            const uint64_t sum = column + hit;
            const uint64_t whole = sum + (carry ? 1 : 0);
            carry = sum < column || whole < sum;
            columns[i] = whole | (column & ~hit);
        }
    }
    std::vector<uint32_t> lengths = {0};
    for (std::size_t i = 0; i < other.size(); ++i)
        lengths.push_back(lengths.back() + ((columns[i / kBits] >> i % kBits & 1) == 0 ? 1u : 0u));
    return lengths;
}

std::vector<uint32_t> FunctionsOf(Keys keys)
{
    std::vector<uint32_t> functions;
    for (const SPairingKey &key : keys)
        functions.push_back(key.function);
    return functions;
}

std::vector<uint32_t> FunctionsBackwards(Keys keys)
{
    std::vector<uint32_t> functions = FunctionsOf(keys);
    std::reverse(functions.begin(), functions.end());
    return functions;
}

// Where other is cut when one is cut at its middle.
std::size_t CutOf(Keys one, Keys other)
{
    const std::size_t middle = one.size() / 2;
    const std::vector<uint32_t> before =
        CommonLengths(FunctionsOf(one.first(middle)), FunctionsOf(other));
    const std::vector<uint32_t> behind =
        CommonLengths(FunctionsBackwards(one.subspan(middle)), FunctionsBackwards(other));
    std::size_t best = 0;
    for (std::size_t i = 0; i <= other.size(); ++i) {
        if (before[i] + behind[other.size() - i] > before[best] + behind[other.size() - best])
            best = i;
    }
    return best;
}

enum class EStep : uint8_t
{
    Both,
    One,
    Other
};

// The steps of the best pairing. A pair counts more than all equal requests together.
std::vector<EStep> BestSteps(Keys one, Keys other)
{
    constexpr uint64_t kPair = uint64_t{1} << 32;
    const std::size_t width = other.size() + 1;
    std::vector<uint64_t> above(width);
    std::vector<uint64_t> row(width);
    std::vector<EStep> steps((one.size() + 1) * width, EStep::Other);
    for (std::size_t i = 1; i <= one.size(); ++i) {
        row[0] = 0;
        steps[i * width] = EStep::One;
        for (std::size_t j = 1; j < width; ++j) {
            EStep step = above[j] >= row[j - 1] ? EStep::One : EStep::Other;
            row[j] = std::max(above[j], row[j - 1]);
            if (one[i - 1].function == other[j - 1].function) {
                const uint64_t value = above[j - 1] + kPair + (one[i - 1] == other[j - 1] ? 1 : 0);
                step = value >= row[j] ? EStep::Both : step;
                row[j] = std::max(row[j], value);
            }
            steps[i * width + j] = step;
        }
        std::swap(above, row);
    }
    std::vector<EStep> way;
    for (std::size_t i = one.size(), j = other.size(); i > 0 || j > 0;) {
        way.push_back(steps[i * width + j]);
        i -= way.back() != EStep::Other ? 1 : 0;
        j -= way.back() != EStep::One ? 1 : 0;
    }
    std::reverse(way.begin(), way.end());
    return way;
}

class CPairer
{
public:
    void Pair(Keys one, Keys other)
    {
        const auto [stop, same] = std::mismatch(one.begin(), one.end(), other.begin(), other.end());
        const auto head = static_cast<std::size_t>(stop - one.begin());
        one = one.subspan(head);
        other = other.subspan(head);
        const auto [last, alike] =
            std::mismatch(one.rbegin(), one.rend(), other.rbegin(), other.rend());
        const auto tail = static_cast<std::size_t>(last - one.rbegin());
        Add(EStep::Both, head);
        Middle(one.first(one.size() - tail), other.first(other.size() - tail));
        Add(EStep::Both, tail);
    }
    const std::vector<SPairing> &Pairs() const { return m_pairs; }

private:
    void Middle(Keys one, Keys other)
    {
        if (one.empty() || other.empty()) {
            Add(EStep::One, one.size());
            Add(EStep::Other, other.size());
        } else if (one.size() == 1 || one.size() * other.size() <= kMostCells) {
            for (const EStep step : BestSteps(one, other))
                Add(step, 1);
        } else {
            const std::size_t cut = CutOf(one, other);
            const std::size_t middle = one.size() / 2;
            Pair(one.first(middle), other.first(cut));
            Pair(one.subspan(middle), other.subspan(cut));
        }
    }

    void Add(EStep step, std::size_t count)
    {
        for (; count > 0; --count) {
            SPairing pair;
            if (step != EStep::Other)
                pair.one = m_one++;
            if (step != EStep::One)
                pair.other = m_other++;
            m_pairs.push_back(pair);
        }
    }

    std::vector<SPairing> m_pairs;
    std::size_t m_one = 0;
    std::size_t m_other = 0;
};

}  // namespace

std::vector<SPairing> PairCalls(Keys one, Keys other)
{
    CPairer pairer;
    pairer.Pair(one, other);
    return pairer.Pairs();
}
