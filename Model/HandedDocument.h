// A document on its way to the core: an object, or the text of one.
//
// Pages hand over objects, which nobody prints or parses. A request of the tool's interface takes
// text; it is parsed where the document is taken, on the pool. The object may share its content
// with the giver's: both have values of their own, and each write copies what is shared first
// (docs/decisions/0038-documents-pass-as-objects.md). One thread at a time.
//
//   StartOnPool([document = CHandedDocument(m_dataModel)]() mutable { Send(document.Take()); });
#pragma once

#include <string>
#include <utility>
#include <variant>

#include <QJsonObject>

#include "Model/ModelText.h"

class CHandedDocument
{
public:
    CHandedDocument() = default;
    CHandedDocument(QJsonObject object) : m_content(std::move(object)) {}
    CHandedDocument(std::string text) : m_content(std::move(text)) {}

    // Once: nothing is left behind.
    QJsonObject Take()
    {
        auto content = std::exchange(m_content, QJsonObject());
        if (const auto *text = std::get_if<std::string>(&content))
            return ModelFromText(*text);
        return std::get<QJsonObject>(std::move(content));
    }

private:
    std::variant<QJsonObject, std::string> m_content;
};
