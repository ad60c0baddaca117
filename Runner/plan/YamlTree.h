// Reads YAML (and so JSON) into a tree with places.
//
// What a plan has no use for is an error: duplicate keys, aliases and anchors, tags, keys that are no texts,
// a second document, more than kMostBytes, lists and maps nested deeper than kDeepest. Any bytes are good
// as input: the worst they get is an error. Reading stops at the first one.
//
//   CPlanErrors errors;
//   if (const std::optional<SPlanNode> tree = ReadYaml("night.yaml", text, errors))
//       ...
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "Runner/plan/PlanErrors.h"
#include "Runner/plan/PlanNode.h"

constexpr std::size_t kMostBytes = 1024 * 1024;
constexpr int kDeepest = 16;

// file is the name that errors show.
std::optional<SPlanNode> ReadYaml(const std::string &file, const std::string &text,
                                  CPlanErrors &errors);

// The text of a file of at most kMostBytes; nothing, and an error, if it can't be read.
std::optional<std::string> ReadText(const std::string &file, CPlanErrors &errors);
