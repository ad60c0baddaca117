#include "Runner/plan/YamlTree.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <stdexcept>

#include <yaml-cpp/eventhandler.h>
#include <yaml-cpp/exceptions.h>
#include <yaml-cpp/mark.h>
#include <yaml-cpp/parser.h>

namespace {

SPlace PlaceOf(const YAML::Mark &mark)
{
    return {.line = mark.line + 1, .column = mark.column + 1};
}

// Ends the parser's run from inside one of its events.
struct SRefused : std::runtime_error
{
    SRefused(SPlace where, const std::string &what, std::string whatElse = {})
        : std::runtime_error(what), place(where), allowed(std::move(whatElse))
    {
    }

    SPlace place;
    std::string allowed;
};

// Builds the tree from the parser's events. The depth is looked at when a list or map begins, before the
// parser goes into it, so its own recursion is bounded too.
class CTreeBuilder : public YAML::EventHandler
{
public:
    SPlanNode Take() { return std::move(m_root); }

    void OnDocumentStart(const YAML::Mark &) override {}
    void OnDocumentEnd() override {}

    void OnNull(const YAML::Mark &mark, YAML::anchor_t anchor) override
    {
        Refuse(mark, {}, anchor);
        Value({.kind = EPlanNode::Empty,
               .place = PlaceOf(mark),
               .text = {},
               .isBroken = false,
               .items = {},
               .entries = {}});
    }

    void OnAlias(const YAML::Mark &mark, YAML::anchor_t) override
    {
        throw SRefused(PlaceOf(mark), "an alias (*name) is not for a plan", "the value itself");
    }

    void OnScalar(const YAML::Mark &mark, const std::string &tag, YAML::anchor_t anchor,
                  const std::string &value) override
    {
        Refuse(mark, tag, anchor);
        Value({.kind = EPlanNode::Text,
               .place = PlaceOf(mark),
               .text = value,
               .isBroken = false,
               .items = {},
               .entries = {}});
    }

    void OnSequenceStart(const YAML::Mark &mark, const std::string &tag, YAML::anchor_t anchor,
                         YAML::EmitterStyle::value) override
    {
        Refuse(mark, tag, anchor);
        Open(EPlanNode::List, mark);
    }

    void OnMapStart(const YAML::Mark &mark, const std::string &tag, YAML::anchor_t anchor,
                    YAML::EmitterStyle::value) override
    {
        Refuse(mark, tag, anchor);
        Open(EPlanNode::Map, mark);
    }

    void OnSequenceEnd() override { Close(); }
    void OnMapEnd() override { Close(); }

private:
    struct SOpen
    {
        SPlanNode node;
        SPlacedText key;  // of a map: the key that waits for its value
        bool hasKey = false;
        std::set<std::string> keys;
    };

    static void Refuse(const YAML::Mark &mark, const std::string &tag, YAML::anchor_t anchor)
    {
        if (anchor != YAML::NullAnchor)
            throw SRefused(PlaceOf(mark), "an anchor (&name) is not for a plan");
        if (!tag.empty() && tag != "?" && tag != "!")
            throw SRefused(PlaceOf(mark), "a tag (" + Quoted(tag) + ") is not for a plan");
    }

    void Open(EPlanNode kind, const YAML::Mark &mark)
    {
        if (static_cast<int>(m_open.size()) >= kDeepest)
            throw SRefused(PlaceOf(mark), "lists and maps are nested too deep",
                           std::to_string(kDeepest) + " levels");
        if (WantsKey())
            throw SRefused(PlaceOf(mark), "a key is a list or a map", "a text");
        m_open.push_back({});
        m_open.back().node.kind = kind;
        m_open.back().node.place = PlaceOf(mark);
    }

    void Close()
    {
        SPlanNode node = std::move(m_open.back().node);
        m_open.pop_back();
        Value(std::move(node));
    }

    bool WantsKey() const
    {
        return !m_open.empty() && m_open.back().node.kind == EPlanNode::Map &&
               !m_open.back().hasKey;
    }

    void Value(SPlanNode node)
    {
        if (m_open.empty())
            m_root = std::move(node);
        else if (WantsKey())
            Key(std::move(node));
        else if (SOpen &open = m_open.back(); open.node.kind == EPlanNode::List)
            open.node.items.push_back(std::move(node));
        else {
            if (node.kind == EPlanNode::Empty)
                node.place = open.key.place;  // the parser's own is behind the line
            open.node.entries.push_back({std::move(open.key), std::move(node)});
            open.hasKey = false;
        }
    }

    void Key(SPlanNode node)
    {
        SOpen &open = m_open.back();
        if (node.kind != EPlanNode::Text || node.text.empty())
            throw SRefused(node.place, "a key is empty", "a text");
        if (!open.keys.insert(node.text).second)
            throw SRefused(node.place, "the key " + Quoted(node.text) + " is there twice");
        open.key = {std::move(node.text), node.place};
        open.hasKey = true;
    }

    std::vector<SOpen> m_open;
    SPlanNode m_root;
};

// The parser's own words, and where it stood; a plan's first place if it doesn't know.
void AddParserError(const std::string &file, const YAML::Exception &error, CPlanErrors &errors)
{
    const SPlace place =
        error.mark.is_null() ? SPlace{.line = 1, .column = 1} : PlaceOf(error.mark);
    errors.Add(file, place, "this is no YAML: " + error.msg);
}

}  // namespace

std::optional<SPlanNode> ReadYaml(const std::string &file, const std::string &text,
                                  CPlanErrors &errors)
{
    if (text.size() > kMostBytes) {
        errors.Add(file, {.line = 1, .column = 1}, "the file is too large", "1 MiB at most");
        return std::nullopt;
    }
    CTreeBuilder builder;
    try {
        std::istringstream stream(text);
        YAML::Parser parser(stream);
        parser.HandleNextDocument(builder);
        SPlanNode tree = builder.Take();
        if (tree.place.line == 0)
            tree.place = {.line = 1, .column = 1};  // of a file without a document
        CTreeBuilder second;
        if (parser && parser.HandleNextDocument(second))
            throw SRefused(second.Take().place, "a second document begins", "one document");
        return tree;
    } catch (const SRefused &refused) {
        errors.Add(file, refused.place, refused.what(), refused.allowed);
    } catch (const YAML::Exception &error) {
        AddParserError(file, error, errors);
    } catch (const std::exception &error) {
        errors.Add(file, {.line = 1, .column = 1}, std::string("this is no YAML: ") + error.what());
    }
    return std::nullopt;
}

std::optional<std::string> ReadText(const std::string &file, CPlanErrors &errors)
{
    std::error_code ignored;
    if (std::filesystem::is_directory(file, ignored)) {
        errors.Add(file, {}, "this is a folder", "a file");
        return std::nullopt;
    }
    errno = 0;
    std::ifstream stream(file, std::ios::binary);
    std::string text(kMostBytes + 1, '\0');
    if (stream)
        stream.read(text.data(), static_cast<std::streamsize>(text.size()));
    if (stream.bad() || (!stream && stream.gcount() == 0 && !stream.eof())) {
        errors.Add(file, {}, std::string("can't be read: ") + std::strerror(errno ? errno : EIO));
        return std::nullopt;
    }
    text.resize(static_cast<std::size_t>(stream.gcount()));
    return text;
}
