#include "Runner/plan/SettingsFile.h"

#include "Runner/plan/MapReader.h"
#include "Runner/plan/YamlTree.h"

namespace {

constexpr char kSettingsVersion[] = "1";
constexpr const char *kSections[] = {"request", "config", "data"};
// Where the settings come from; an export of results says so.
constexpr const char *kOrigins[] = {"tool", "chip"};

// Collects the settings of one section.
class CSectionReader
{
public:
    CSectionReader(SSettingsFile &file, CPlanErrors &errors) : m_file(file), m_errors(errors) {}

    void Read(const std::string &section, const SPlanNode &node)
    {
        for (const SPlanEntry &group : Entries(section, node))
            for (const SPlanEntry &member : Entries(section + '.' + group.key.text, group.value))
                Member(section + '.' + group.key.text + '.' + member.key.text, member);
    }

private:
    const std::vector<SPlanEntry> &Entries(const std::string &name, const SPlanNode &node)
    {
        if (node.kind != EPlanNode::Map)
            m_errors.Add(m_file.file, node.place, Quoted(name) + " is " + KindText(node.kind),
                         "a map");
        return node.entries;
    }

    void Member(const std::string &name, const SPlanEntry &member)
    {
        if (member.value.kind != EPlanNode::List)
            return Value(name, member, member.value);
        for (std::size_t column = 0; column < member.value.items.size(); ++column)
            Value(name + '[' + std::to_string(column) + ']', member, member.value.items[column]);
    }

    void Value(const std::string &name, const SPlanEntry &member, const SPlanNode &value)
    {
        if (value.kind == EPlanNode::Text)
            m_file.settings.push_back(
                {{name, member.key.place}, {Trimmed(value.text), value.place}});
        else
            m_errors.Add(m_file.file, value.place,
                         "the value of " + Quoted(name) + " is " + KindText(value.kind),
                         "a text, or a list of texts");
    }

    SSettingsFile &m_file;
    CPlanErrors &m_errors;
};

}  // namespace

std::optional<SSettingsFile> ReadSettingsText(const std::string &file, const std::string &text,
                                              CPlanErrors &errors)
{
    const std::size_t before = errors.Count();
    const std::optional<SPlanNode> tree = ReadYaml(file, text, errors);
    if (!tree)
        return std::nullopt;
    CMapReader map(file, "a settings file", *tree, errors);
    SSettingsFile settings{file, map.NeededText("page"), {}};
    const SPlacedText version = map.NeededText("version");
    if (!version.text.empty() && version.text != kSettingsVersion)
        map.Complain(version.place, "the file's version is " + Quoted(version.text),
                     kSettingsVersion);
    for (const char *origin : kOrigins)
        map.Text(origin);
    CSectionReader reader(settings, errors);
    for (const char *section : kSections)
        if (const SPlanNode *node = map.Node(section))
            reader.Read(section, *node);
    map.Done();
    return errors.Count() == before ? std::optional(settings) : std::nullopt;
}

std::optional<SSettingsFile> ReadSettings(const std::string &file, CPlanErrors &errors)
{
    const std::optional<std::string> text = ReadText(file, errors);
    return text ? ReadSettingsText(file, *text, errors) : std::nullopt;
}
