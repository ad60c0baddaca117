// Reads the values of one map of a plan by key, and tells what the map should not have.
//
// Each method that takes a key marks it as known; Done() then complains of all others, with the keys that
// are allowed. A value of the wrong type is an error and reads as nothing.
//
//   CMapReader step("plan.yaml", "a step", node, errors);
//   if (const auto page = step.Text("page"))
//       ...
//   step.Done();
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "Runner/plan/PlanErrors.h"
#include "Runner/plan/PlanNode.h"

class CMapReader
{
public:
    // what names the map in errors: "a step". A node that is no map is an error, and reads as an empty map.
    CMapReader(const std::string &file, const std::string &what, const SPlanNode &node,
               CPlanErrors &errors);

    // The value whatever its type, or null if the key is not there.
    const SPlanNode *Node(const std::string &key);
    std::optional<SPlacedText> Text(const std::string &key);
    // As Text; an error if the key is not there.
    SPlacedText NeededText(const std::string &key);
    std::optional<double> Number(const std::string &key);
    std::optional<std::chrono::milliseconds> Duration(const std::string &key);
    std::vector<SPlacedText> Texts(const std::string &key, const std::string &allowed);

    bool IsMap() const { return m_node.kind == EPlanNode::Map; }
    void Complain(SPlace place, const std::string &what, const std::string &allowed = {});
    void Done();

private:
    const std::string &m_file;
    std::string m_what;
    const SPlanNode &m_node;
    CPlanErrors &m_errors;
    std::vector<std::string> m_known;
};

// Without the blanks around it.
std::string Trimmed(const std::string &text);

// "a text", "a list", "a map" or "nothing".
std::string KindText(EPlanNode kind);
