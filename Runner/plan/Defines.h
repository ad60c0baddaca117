// Parameters of a plan: "${hours}" in a text becomes the value of "hours".
//
// A plan gives the values that it starts with (its key "define"); the command line gives others. They are
// put in when the file has been read, so a value never changes the shape of a plan. A value that holds
// "${" itself is put in as it is.
//
//   CDefines defines({{"hours", "0.01"}});
//   defines.AddDefault("hours", "1");              // stays 0.01
//   defines.Apply("plan.yaml", tree, errors);
//   defines.Unused();                              // given, but in no text
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "Runner/plan/PlanErrors.h"
#include "Runner/plan/PlanNode.h"

using DefineMap = std::map<std::string, std::string>;

class CDefines
{
public:
    explicit CDefines(DefineMap given) : m_values(given), m_given(std::move(given)) {}

    void AddDefault(const std::string &name, const std::string &value);
    // Replaces in all values of the tree; keys stay. An unknown name is an error that lists the known ones.
    void Apply(const std::string &file, SPlanNode &tree, CPlanErrors &errors);
    // Names of the given values that no text had.
    std::vector<std::string> Unused() const;

private:
    void ApplyText(const std::string &file, SPlanNode &node, CPlanErrors &errors);

    DefineMap m_values;
    DefineMap m_given;
    std::set<std::string> m_used;
};

// Letters, digits and "_", not a digit first.
bool IsDefineName(const std::string &name);
