// What a move of calibration data has to say beside its code: records that it left out, and values
// of a file that are not as the file's author may think, such as a route.
//
// The code of the move is the same with and without remarks; the words are the core's. Plain
// values, any thread.
//
//   for (const SCalLeftOut &record : item.Remarks().leftOut)
//       ... record.place.route, record.why
#pragma once

#include <string>
#include <vector>

#include "Operations/calibration/CalRoutes.h"

enum class ECalLeftOut
{
    NotListed,      // the block information has no row for the route
    TotalAlone,     // count: blocks of the route, which its regions don't share evenly
    TooManyBlocks,  // count: blocks in flash; most: that can be read
    AnswerCut,      // count: blocks that came; most: that were asked for
    NeverFilled,    // edited, but not valid: neither written nor exported
};

struct SCalLeftOut
{
    ECalRoute kind;
    SCalPlace place;
    ECalLeftOut why;
    int count = 0;
    int most = 0;
};

// A value of a file that is no number, or beyond what the page can show. Texts are as in files.
struct SCalOddValue
{
    std::string section;
    std::string key;
    std::string text;    // in the file
    std::string memory;  // what the record has
    std::string page;    // what the page shows; empty: nothing
    bool isOnPage = true;
};

// A section that by its name is of one route, and by a value in it of another one. Its record is loaded
// by the name.
struct SCalOtherRoute
{
    ECalRoute kind = ECalRoute::Tx;
    SCalPlace place = {};
    std::string section = {};
    std::string key = {};
    std::string text = {};  // in the file
};

// A record that a load has taken from a file.
struct SCalLoaded
{
    ECalRoute kind;
    SCalPlace place;
};

struct SCalMoveRemarks
{
    static constexpr int kOddValuesKept = 10;

    std::vector<SCalLeftOut> leftOut;  // in the order of the route tables
    int oddValueCount = 0;
    int noNumberCount = 0;                // of these, that are no numbers
    std::vector<SCalOddValue> oddValues;  // the first ones
    std::vector<SCalOtherRoute>
        otherRoutes;                 // in the order of the route tables, then of the sections
    std::vector<SCalLoaded> loaded;  // in the order of the route tables
};
