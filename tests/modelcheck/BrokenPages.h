// Pages with one slip each, and the words that the slip is reported in.
#pragma once

#include <cstddef>

struct SBrokenPage
{
    const char *document;  // in data/, like the form
    const char *form;
    const char *lines;  // one a finding, with "\n" between them
};

struct SBrokenPages
{
    const SBrokenPage *pages;
    std::size_t count;
    const SBrokenPage *begin() const { return pages; }
    const SBrokenPage *end() const { return pages + count; }
};

SBrokenPages BrokenPages();
