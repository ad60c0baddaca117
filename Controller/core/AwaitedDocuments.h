// Documents of pages that will ask for them soon.
//
// The init flow asks for the documents in the order of the tabs, one after another. While a page is
// built, the core makes the document of the next one and leaves it here. What was left for an
// earlier connection, or for a page that was passed over, is dropped. The caller locks.
//
//   documents.Expect({EPageId::Rssi, EPageId::RxPathLoss}, connection);
//   if (const std::optional<EPageId> page = documents.Next(connection))
//       documents.Keep(*page, MakeDocument(*page), connection);
//   documents.Take(EPageId::Rssi, connection);  // the text, or nothing
#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <string>

#include "Controller/core/PageId.h"

class CAwaitedDocuments
{
public:
    // pages: in the order in which they ask. connection: tells one DUT from the next.
    void Expect(std::deque<EPageId> pages, uint64_t connection);
    // The page that asks next; nothing when its document is here, or no page is awaited.
    std::optional<EPageId> Next(uint64_t connection) const;
    // Ignored for another page than the next one.
    void Keep(EPageId page, std::string document, uint64_t connection);
    // Ends the wait for the page and for those in front of it. Nothing when the document is not
    // here. A page that is not awaited changes nothing.
    std::optional<std::string> Take(EPageId page, uint64_t connection);

private:
    std::deque<EPageId> m_pages;
    std::optional<std::string> m_first;  // the document of the first of them
    uint64_t m_connection = 0;
};
