// What a calibration page's editors can show of a record, by field, from the page's document.
//
// The walks of the page tell which member stands for which field. Frequencies
// have the limits of their field alone. Reads the document alone. One thread.
//
//   CCalPageLimits limits(document);
//   item.SetPageLimits(&limits);
#pragma once

#include <map>
#include <optional>
#include <unordered_map>

#include <QJsonObject>

#include "Operations/CalValueWatch.h"

class CCalPageLimits : public ICalPageLimits
{
public:
    explicit CCalPageLimits(const QJsonObject &document) : m_document(document) {}

    const SCalShown *Of(ECalRoute kind, const SCalPlace &place, size_t offset) override;

private:
    using Fields = std::unordered_map<size_t, SCalShown>;

    const Fields &FieldsOf(ECalRoute kind);

    const QJsonObject m_document;
    std::map<ECalRoute, Fields> m_fields;
};
