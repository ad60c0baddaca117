// The name of a field in a record, taken apart: what it is, and which one of its kind. Pure function.
//
//   SplitCalField("loss[3][16].hpm");   // {"loss.hpm", {3, 16}}
#pragma once

#include <string>
#include <string_view>
#include <vector>

struct SCalFieldName
{
    std::string name = {};
    std::vector<int> indexes = {};  // from 0
};

SCalFieldName SplitCalField(std::string_view field);
