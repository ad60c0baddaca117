#include "Runner/plan/Defines.h"

#include <algorithm>

namespace {

constexpr std::size_t kMostText = 4096;  // of a text with its values put in

bool IsLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}

}  // namespace

bool IsDefineName(const std::string &name)
{
    return !name.empty() && IsLetter(name[0]) && std::all_of(name.begin(), name.end(), [](char c) {
        return IsLetter(c) || (c >= '0' && c <= '9');
    });
}

void CDefines::AddDefault(const std::string &name, const std::string &value)
{
    m_values.emplace(name, value);
}

void CDefines::Apply(const std::string &file, SPlanNode &tree, CPlanErrors &errors)
{
    if (tree.kind == EPlanNode::Text)
        ApplyText(file, tree, errors);
    for (SPlanNode &item : tree.items)
        Apply(file, item, errors);
    for (SPlanEntry &entry : tree.entries)
        Apply(file, entry.value, errors);
}

void CDefines::ApplyText(const std::string &file, SPlanNode &node, CPlanErrors &errors)
{
    const std::string text = node.text;
    std::string filled;
    std::size_t at = 0;
    for (std::size_t start = 0; (start = text.find("${", at)) != std::string::npos;) {
        const std::size_t end = text.find('}', start);
        const std::string name =
            end == std::string::npos ? std::string() : text.substr(start + 2, end - start - 2);
        const auto value = m_values.find(name);
        if (value == m_values.end()) {
            node.isBroken = true;
            std::vector<std::string> names;
            for (const auto &[known, ignored] : m_values)
                names.push_back(known);
            return errors.Add(file, node.place,
                              end == std::string::npos
                                  ? "\"${\" has no \"}\""
                                  : "nothing defines " + Quoted("${" + name + "}"),
                              names.empty() ? "names of \"define\" or of --define" : Joined(names));
        }
        m_used.insert(name);
        filled += text.substr(at, start - at) + value->second;
        if (filled.size() > kMostText)
            return errors.Add(file, node.place, "the text with its values is too long",
                              std::to_string(kMostText) + " characters");
        at = end + 1;
    }
    node.text = filled + text.substr(at);
}

std::vector<std::string> CDefines::Unused() const
{
    std::vector<std::string> names;
    for (const auto &[name, value] : m_given)
        if (!m_used.count(name))
            names.push_back(name);
    return names;
}
