#include "Controller/capability/HwLabels.h"

#include <charconv>
#include <cstring>

#include "Controller/capability/DocumentWriter.h"

namespace {

template <std::size_t Size>
std::string PortText(const char (&port)[Size])
{
    return {port, strnlen(port, Size)};
}

std::string MaskText(uint32_t antMask)
{
    char digits[2 * sizeof antMask];
    constexpr int kHexadecimal = 16;
    const auto end = std::to_chars(std::begin(digits), std::end(digits), antMask, kHexadecimal);
    return "0x" + std::string(digits, end.ptr);
}

// Each number is followed by a blank: "1 2 ".
template <std::size_t Size>
std::string PairText(const uint16_t (&pairs)[Size], int count)
{
    std::string text;
    for (int i = 0; i < qMin(count, static_cast<int>(Size)); ++i) {
        text += std::to_string(pairs[i]);
        text += ' ';
    }
    return text;
}

struct SLabelRow
{
    SPaths SHwLabelPaths::*paths;
    const char *valueMessage;
    SMessage defaultMessage;
};

const SLabelRow kRows[kHwLabels] = {
    {&SHwLabelPaths::feRoute, "Update HW Setting FE Route# failed",
     "Update HW Setting FE Route# default value failed"},
    {&SHwLabelPaths::port, "Update HW Setting port failed",
     "Update HW Setting port default value failed"},
    {&SHwLabelPaths::stx,
     "Update HW Setting stx failed",
     {"Update HW Setting stx default value default value failed",
      "Update HW Setting stx default value failedd"}},
    {&SHwLabelPaths::antMask, "Update HW Setting antMask failed",
     "Update HW Setting antMask default value failed"},
    {&SHwLabelPaths::mimoPair, "Update HW Setting mimoPair failed",
     "Update HW Setting mimoPair default value failed"},
};

}  // namespace

THwLabels HwLabels(const STxBwRegionHw &hw)
{
    return {std::to_string(hw.feRouteNum), PortText(hw.port), std::to_string(hw.stx),
            MaskText(hw.antMask), PairText(hw.mimoPair, hw.mimoPairCount)};
}

THwLabels HwLabels(const SRxRouteHw &hw, uint32_t routeType, int rxPath)
{
    const bool type1 = routeType == 1;
    return {std::to_string(hw.feRouteNum), PortText(hw.port[0]) + ", " + PortText(hw.port[1]),
            std::to_string(type1 ? hw.type1.srx : hw.type2.srx[rxPath]), MaskText(hw.antMask),
            type1 ? PairText(hw.type1.mimoPair, hw.type1.mimoPairCount)
                  : PairText(hw.type2.mimoPair, hw.type2.mimoPairCount)};
}

THwLabels SameHwLabels(const char *text)
{
    THwLabels labels;
    labels.fill(text);
    return labels;
}

void CHwLabelTable::Put(const QString &key, const THwLabels &labels)
{
    m_table.Put(key, labels);
    if (!m_hasDefaults)
        m_defaults = labels;
    m_hasDefaults = true;
}

bool WriteHwLabels(CDocumentWriter &writer, const SHwLabelPaths &valuePairs,
                   const SHwLabelPaths &defaults, CHwLabelTable &labels)
{
    for (std::size_t i = 0; i < kHwLabels; ++i) {
        const SLabelRow &row = kRows[i];
        const SPaths &paths = valuePairs.*row.paths;
        const QJsonObject object = paths.IsEmpty() ? QJsonObject() : labels.ToObject(i);
        const QString byDefault = QString::fromLatin1(labels.Defaults()[i].c_str());
        if (!writer.Write({{paths, object, row.valueMessage},
                           {defaults.*row.paths, byDefault, row.defaultMessage}}))
            return false;
    }
    return true;
}
