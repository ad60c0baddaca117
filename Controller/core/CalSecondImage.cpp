#include "Controller/core/CalSecondImage.h"

CCalSecondImage::CCalSecondImage(ECalItem item, const SCalImage &image,
                                 const SSupportedGains &gains)
    : m_row(FindCalItem(item)), m_operation(m_row.make()), m_gains(gains)
{
    m_operation->TakeImage(image);
    for (int kind = 0; kind < static_cast<int>(ECalRoute::Count); ++kind) {
        const auto route = static_cast<ECalRoute>(kind);
        for (const SCalPlace &place : m_operation->Places(route))
            m_names.insert({route, place.route, place.region});
    }
}

std::optional<QJsonObject> CCalSecondImage::Document(const QJsonObject &packaged) const
{
    const SCalName name = m_row.select(packaged);
    if (m_names.count(name) == 0)
        return std::nullopt;
    const std::optional<SCalState> state = m_operation->StateOf(name);
    if (!state || !state->isValid)
        return std::nullopt;
    return m_row.show(*m_operation, packaged, m_gains);
}
