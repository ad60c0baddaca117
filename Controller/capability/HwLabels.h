// The labels of a hardware setting group: front-end route, port, STX or SRX, antenna mask, MIMO
// pairs, as texts and as objects that the page looks up by its selection.
//
// Values; any thread.
//
//   CHwLabelTable table;
//   table.Put("1,BW0", HwLabels(row.bwRegion[0]));
//   WriteHwLabels(writer, path.valuePairs, path.defaults, table);
#pragma once

#include <array>
#include <string>

#include "Controller/capability/TextTable.h"
#include "Operations/capability/CapabilityInfo.h"

class CDocumentWriter;
struct SHwLabelPaths;

constexpr std::size_t kHwLabels = 5;
using THwLabels = std::array<std::string, kHwLabels>;  // Latin-1, as the DUT names its ports

THwLabels HwLabels(const STxBwRegionHw &hw);
THwLabels HwLabels(const SRxRouteHw &hw, uint32_t routeType, int rxPath);
// The same text in all five.
THwLabels SameHwLabels(const char *text);

// The labels of all keys, and the defaults: those of the first key that may be one.
class CHwLabelTable
{
public:
    void Put(const QString &key, const THwLabels &labels);
    void PutNoDefault(const QString &key, const THwLabels &labels) { m_table.Put(key, labels); }

    bool HasDefaults() const { return m_hasDefaults; }
    const THwLabels &Defaults() const { return m_defaults; }  // empty texts when there are none
    QJsonObject ToObject(std::size_t label) { return m_table.ToObject(label); }

private:
    CTextTable m_table{kHwLabels};
    THwLabels m_defaults;
    bool m_hasDefaults = false;
};

// Writes the objects and their defaults, in the order of the labels. A label that the page does not
// show, and a default that it does not take, has no paths.
bool WriteHwLabels(CDocumentWriter &writer, const SHwLabelPaths &valuePairs,
                   const SHwLabelPaths &defaults, CHwLabelTable &labels);
