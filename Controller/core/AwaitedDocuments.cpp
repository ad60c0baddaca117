#include "Controller/core/AwaitedDocuments.h"

#include <algorithm>
#include <utility>

void CAwaitedDocuments::Expect(std::deque<EPageId> pages, uint64_t connection)
{
    m_pages = std::move(pages);
    m_first.reset();
    m_connection = connection;
}

std::optional<EPageId> CAwaitedDocuments::Next(uint64_t connection) const
{
    if (m_connection != connection || m_pages.empty() || m_first)
        return std::nullopt;
    return m_pages.front();
}

void CAwaitedDocuments::Keep(EPageId page, std::string document, uint64_t connection)
{
    if (Next(connection) == page)
        m_first = std::move(document);
}

std::optional<std::string> CAwaitedDocuments::Take(EPageId page, uint64_t connection)
{
    if (m_connection != connection)
        return std::nullopt;
    const auto place = std::find(m_pages.begin(), m_pages.end(), page);
    if (place == m_pages.end())
        return std::nullopt;
    const bool isFirst = place == m_pages.begin();
    m_pages.erase(m_pages.begin(), place + 1);
    std::optional<std::string> document = std::exchange(m_first, std::nullopt);
    return isFirst ? document : std::nullopt;
}
