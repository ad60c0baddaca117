// The labels of a hardware setting group: front-end route, port, STX or SRX, antenna mask, MIMO
// pairs, as texts and as objects that the page looks up by its selection.
//
// Values; any thread.
//
//   CHwLabelTable table;
//   table.Put("1,BW0", HwLabels(row.bwRegion[0]));
//   WriteHwLabels(writer, path, table);
#pragma once

#include <array>

#include "Controller/EntryTable.h"
#include "Operations/CapabilityInfo.h"

class CDocumentWriter;
struct SHwSettingPaths;

constexpr std::size_t kHwLabels = 5;
using THwLabels = std::array<QJsonValue, kHwLabels>;

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
    auto ToObjects() const { return m_table.ToObjects(); }

private:
    CEntryTable<kHwLabels> m_table;
    THwLabels m_defaults = SameHwLabels("");
    bool m_hasDefaults = false;
};

// Writes the five objects of path 0 with their defaults, in the order of the labels.
bool WriteHwLabels(CDocumentWriter &writer, const SHwSettingPaths &path,
                   const CHwLabelTable &labels);
// Writes the five objects of path 1.
bool WritePath1HwLabels(CDocumentWriter &writer, const SHwSettingPaths &path,
                        const CHwLabelTable &labels);
