// The errors of plan files, in the order in which they were found.
//
// Reading and checking a plan go on behind an error where that makes sense, so that one look finds all of
// them. Beyond kMostErrors the rest is counted and not kept: a hostile file costs no more memory for it.
//
//   CPlanErrors errors;
//   errors.Add("night.yaml", place, "there is no key \"pres\" in a step", "press, then, wait");
//   errors.Texts();   // {"night.yaml:7:5: there is no key "pres" in a step (allowed: press, then, wait)"}
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "Runner/plan/Place.h"

struct SPlanError
{
    std::string file;
    SPlace place;
    std::string what;
    std::string allowed;  // what would be allowed; empty where that is plain
};

class CPlanErrors
{
public:
    static constexpr std::size_t kMostErrors = 100;

    void Add(const std::string &file, SPlace place, const std::string &what,
             const std::string &allowed = {});

    bool IsEmpty() const { return m_count == 0; }
    // Puts the errors from number first on in the order of their places.
    void Sort(std::size_t first);

    std::size_t Count() const { return m_count; }
    const std::vector<SPlanError> &List() const { return m_errors; }
    // A line each, the last one with the number of those that were not kept.
    std::vector<std::string> Texts() const;

private:
    std::vector<SPlanError> m_errors;
    std::size_t m_count = 0;
};

// "file:line:column: what (allowed: ...)", on one line; what cannot be printed is shown as "?".
std::string ErrorText(const SPlanError &error);

// A text of a plan as it stands in an error: in quotes, cut at 60 characters.
std::string Quoted(const std::string &text);

// The texts with commas between.
std::string Joined(const std::vector<std::string> &texts);
