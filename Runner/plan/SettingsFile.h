// A settings file: the values of one page's editors, as the page packages them.
//
//   {"version": 1, "page": "RSSI",
//    "request": {"group1": {"band": "n78", "powerMode": "HPM"},
//                "group2": {"dlFrequency": ["3500010", "3500010"]}}}
//
// A calibration page has "config" and "data" in place of "request". A list holds the cells of a row of a
// column table. "tool" and "chip" may say what the file is of, as beside exported results; they change
// nothing. Values stand for the editors that are on: whoever applies the file leaves out the others,
// since a packaged page holds those too. The file is read as strictly as a plan.
//
//   const std::optional<SSettingsFile> file = ReadSettings("rssi.json", errors);
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Runner/plan/Plan.h"
#include "Runner/plan/PlanErrors.h"

struct SSettingsFile
{
    std::string file;
    SPlacedText page;
    // "request.group1.band", "request.group2.dlFrequency[0]", in the order of the file.
    std::vector<SPlanSetting> settings;
};

std::optional<SSettingsFile> ReadSettings(const std::string &file, CPlanErrors &errors);

std::optional<SSettingsFile> ReadSettingsText(const std::string &file, const std::string &text,
                                              CPlanErrors &errors);
