// An input of CommandFuzz and CalDocumentFuzz: a page's document with changes, and bytes for the records.
//
//     {"dut": "largest", "page": "APT Profile",
//      "document": {"calDataIf": {"config": {"group1": {"memberValue": {"txRoute": "7"}}}}},
//      "bytes": "00ff"}
//
// "document" is laid over the packaged document of the page on that DUT (Merged, FuzzPages.h), so
// that a few words make a whole document. "bytes", in hexadecimal digits, fills every record,
// repeated. "fail" lists functions of the target that fail. "bad" results come of a call that
// failed. With "others" the document goes through the builders of all pages, else through those of
// its own. All keys may be left out; what is no JSON is an empty input. Values only.
#pragma once

#include <algorithm>
#include <cstring>
#include <initializer_list>
#include <span>

#include <QByteArray>
#include <QJsonObject>

#include "Controller/core/PageTable.h"

// The pages of the target, at least one; an input with another page is one of the first. Each target
// defines it.
std::span<const EPageId> TargetPages();
EPageId TargetPage(const QString &name);

// Takes the documents of the target's pages for all DUTs; once, before the first input.
void TakeBaseDocuments();
const QJsonObject &BaseDocument(const QByteArray &dut, EPageId id);

class CCommandInput
{
public:
    // Plugs the DUT.
    explicit CCommandInput(const QByteArray &text);

    EPageId Page() const { return m_page; }
    // Is the document for the builders of any of these pages?
    bool IsFor(std::initializer_list<EPageId> pages) const;
    const QJsonObject &Document() const { return m_document; }
    const QJsonObject &Base() const { return *m_base; }
    bool IsGood() const { return m_isGood; }  // the results that are shown

    template <typename Record>
    void Fill(Record &record) const
    {
        auto *bytes = reinterpret_cast<char *>(&record);
        const auto length = static_cast<std::size_t>(m_bytes.size());
        if (length == 0)
            std::memset(bytes, 0, sizeof record);
        for (std::size_t i = 0; length > 0 && i < sizeof record; i += length)
            std::memcpy(bytes + i, m_bytes.constData(), std::min(length, sizeof record - i));
    }

private:
    EPageId m_page;
    bool m_isForOthers;
    bool m_isGood;
    const QJsonObject *m_base;
    QJsonObject m_document;
    QByteArray m_bytes;
};
