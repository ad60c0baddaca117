// The document in an answer of the core, as an object.
//
// A signal carries a document as text. Whoever gives the answer parses it, on a pool thread, so that
// the GUI thread need not. Any thread.
//
//   PostToGui([document = ParseDocument(result, response), ...]() mutable { ... });
#pragma once

#include <string>
#include <tuple>
#include <type_traits>

#include <QJsonObject>

#include "Model/ModelText.h"

// Of the one text among the answers; empty when there is none.
template <typename... Answers>
QJsonObject ParseDocument(const Answers &...answers)
{
    if constexpr ((std::is_same_v<Answers, std::string> || ...)) {
        const std::string &text = std::get<const std::string &>(std::tie(answers...));
        return text.empty() ? QJsonObject() : ModelFromText(text);
    } else {
        return {};
    }
}
