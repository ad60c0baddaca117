// Where a value of a plan stands, so that an error can name it.
//
//   SPlacedText page{"RSSI", {.line = 4, .column = 11}};
#pragma once

#include <string>

// Both from 1, as editors count; 0 where nothing was read.
struct SPlace
{
    int line = 0;
    int column = 0;
};

struct SPlacedText
{
    std::string text;
    SPlace place;
};
