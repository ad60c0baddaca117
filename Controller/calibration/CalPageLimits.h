// What a calibration page's editors can show of a record, by field, from the page's document.
//
// The walks of the page tell which member stands for which field. Frequencies go by their route,
// of all else the limits are those of the member. The document has one set of frequency limits for
// a route number: of a route that stands on several bands (n77 and n78) they are those of one band,
// and right frequencies of the other lie beyond them. So the frequencies of such a route have the
// limits of their field alone. Reads the document alone. One thread.
//
//   CCalPageLimits limits(document);
//   item.SetPageLimits(&limits);
#pragma once

#include <map>
#include <set>
#include <unordered_map>

#include <QJsonObject>

#include "Operations/calibration/CalValueWatch.h"

class CCalPageLimits : public ICalPageLimits
{
public:
    explicit CCalPageLimits(const QJsonObject &document);

    const SCalShown *Of(ECalRoute kind, const SCalPlace &place, size_t offset) override;

private:
    using Fields = std::unordered_map<size_t, SCalShown>;

    const Fields &FieldsOf(ECalRoute kind);
    const SCalShown &FrequencyOf(ECalRoute kind, uint16_t route);

    const QJsonObject m_document;
    const std::map<uint16_t, std::set<QString>> m_bandsOfRoutes;
    std::map<ECalRoute, Fields> m_fields;
    std::map<uint16_t, SCalShown> m_frequencies;
};
