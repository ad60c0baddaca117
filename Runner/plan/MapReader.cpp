#include "Runner/plan/MapReader.h"

#include <algorithm>

#include "Runner/plan/Numbers.h"

CMapReader::CMapReader(const std::string &file, const std::string &what, const SPlanNode &node,
                       CPlanErrors &errors)
    : m_file(file), m_what(what), m_node(node), m_errors(errors)
{
    if (!IsMap())
        Complain(node.place, what + " is " + KindText(node.kind), "a map of keys and values");
}

const SPlanNode *CMapReader::Node(const std::string &key)
{
    if (std::find(m_known.begin(), m_known.end(), key) == m_known.end())
        m_known.push_back(key);
    for (const SPlanEntry &entry : m_node.entries)
        if (entry.key.text == key)
            return &entry.value;
    return nullptr;
}

std::optional<SPlacedText> CMapReader::Text(const std::string &key)
{
    const SPlanNode *node = Node(key);
    if (!node || node->isBroken)
        return std::nullopt;
    const std::string text = Trimmed(node->text);
    if (node->kind == EPlanNode::Text && !text.empty())
        return SPlacedText{text, node->place};
    Complain(node->place,
             Quoted(key) + " of " + m_what + " is " +
                 (node->kind == EPlanNode::Text ? "empty" : KindText(node->kind)),
             "a text");
    return std::nullopt;
}

SPlacedText CMapReader::NeededText(const std::string &key)
{
    const bool isThere = Node(key) != nullptr;
    if (!isThere && IsMap())
        Complain(m_node.place, m_what + " has no " + Quoted(key));
    return Text(key).value_or(SPlacedText{{}, m_node.place});
}

std::optional<double> CMapReader::Number(const std::string &key)
{
    const std::optional<SPlacedText> text = Text(key);
    const std::optional<double> number = text ? ParseNumber(text->text) : std::nullopt;
    if (text && !number)
        Complain(text->place, Quoted(key) + " is " + Quoted(text->text), "a number");
    return number;
}

std::optional<std::chrono::milliseconds> CMapReader::Duration(const std::string &key)
{
    const std::optional<SPlacedText> text = Text(key);
    const auto duration = text ? ParseDuration(text->text) : std::nullopt;
    if (text && !duration)
        Complain(text->place, Quoted(key) + " is " + Quoted(text->text), kDurationForms);
    return duration;
}

std::vector<SPlacedText> CMapReader::Texts(const std::string &key, const std::string &allowed)
{
    std::vector<SPlacedText> texts;
    const SPlanNode *node = Node(key);
    if (node && node->kind != EPlanNode::List)
        Complain(node->place, Quoted(key) + " of " + m_what + " is " + KindText(node->kind),
                 allowed);
    for (const SPlanNode &item : node ? node->items : std::vector<SPlanNode>()) {
        const std::string text = Trimmed(item.text);
        if (item.kind == EPlanNode::Text && !text.empty())
            texts.push_back({text, item.place});
        else
            Complain(item.place, "an entry of " + Quoted(key) + " is no text", allowed);
    }
    return texts;
}

void CMapReader::Complain(SPlace place, const std::string &what, const std::string &allowed)
{
    m_errors.Add(m_file, place, what, allowed);
}

void CMapReader::Done()
{
    for (const SPlanEntry &entry : m_node.entries)
        if (std::find(m_known.begin(), m_known.end(), entry.key.text) == m_known.end())
            Complain(entry.key.place, m_what + " has no key " + Quoted(entry.key.text),
                     Joined(m_known));
}

std::string Trimmed(const std::string &text)
{
    constexpr char kBlanks[] = " \t\r\n";
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string::npos)
        return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string KindText(EPlanNode kind)
{
    switch (kind) {
    case EPlanNode::Text:
        return "a text";
    case EPlanNode::List:
        return "a list";
    case EPlanNode::Map:
        return "a map";
    case EPlanNode::Empty:
        break;
    }
    return "empty";
}
