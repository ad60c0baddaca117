#include "Controller/capability/HwLabels.h"

#include <cstring>

#include "Controller/capability/DocumentWriter.h"

namespace {

template <std::size_t Size>
QString PortText(const char (&port)[Size])
{
    return QString::fromLatin1(port, static_cast<int>(strnlen(port, Size)));
}

QString MaskText(uint32_t antMask)
{
    return QLatin1String("0x") + QString::number(antMask, 16);
}

// Each number is followed by a blank: "1 2 ".
template <std::size_t Size>
QString PairText(const uint16_t (&pairs)[Size], int count)
{
    QString text;
    for (int i = 0; i < qMin(count, static_cast<int>(Size)); ++i)
        text += QString::number(pairs[i]) + QLatin1Char(' ');
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
    return {QString::number(hw.feRouteNum), PortText(hw.port), QString::number(hw.stx),
            MaskText(hw.antMask), PairText(hw.mimoPair, hw.mimoPairCount)};
}

THwLabels HwLabels(const SRxRouteHw &hw, uint32_t routeType, int rxPath)
{
    const bool type1 = routeType == 1;
    return {QString::number(hw.feRouteNum),
            PortText(hw.port[0]) + QLatin1String(", ") + PortText(hw.port[1]),
            QString::number(type1 ? hw.type1.srx : hw.type2.srx[rxPath]), MaskText(hw.antMask),
            type1 ? PairText(hw.type1.mimoPair, hw.type1.mimoPairCount)
                  : PairText(hw.type2.mimoPair, hw.type2.mimoPairCount)};
}

THwLabels SameHwLabels(const char *text)
{
    THwLabels labels;
    labels.fill(QLatin1String(text));
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
        if (!writer.Write({{paths, object, row.valueMessage},
                           {defaults.*row.paths, labels.Defaults()[i], row.defaultMessage}}))
            return false;
    }
    return true;
}
