// A plan file as a tree of texts, maps and lists, each with its place.
//
// There is no number and no truth value in the tree: a plan's reader knows where it wants one. Of a map
// the keys are texts, each there once, in the order of the file.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "Runner/plan/Place.h"

enum class EPlanNode
{
    Empty,  // nothing, "~" or "null"
    Text,
    List,
    Map,
};

struct SPlanNode;

struct SPlanEntry;

struct SPlanNode
{
    EPlanNode kind = EPlanNode::Empty;
    SPlace place;
    std::string text;                 // of a text
    bool isBroken = false;            // an error is told already; reads as nothing
    std::vector<SPlanNode> items;     // of a list
    std::vector<SPlanEntry> entries;  // of a map
};

struct SPlanEntry
{
    SPlacedText key;
    SPlanNode value;
};
