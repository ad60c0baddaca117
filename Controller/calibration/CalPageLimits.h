// What the editors of a calibration page can show, field by field of a record.
//
// The walks of the page tell which member stands for which field. A frequency has the limits of its
// route, any other field those of its member. The document has one set of frequency limits for a
// route number. For a route on several bands (n77 and n78) these are the limits of one band; right
// frequencies of the other band lie beyond them. So such a route has no limits but those of the
// record's field. Reads the page's document. One thread.
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
