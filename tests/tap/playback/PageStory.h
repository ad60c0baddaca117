// All requests of a page in the hands of a user, one after the other, with a picture of the tool's window
// behind each: "00 ready.png", "01 start.png", ... The last one fails, on a DUT that refuses every call.
//
// Two runs of a story make the same calls, and the same pictures where the answers are the same. GUI
// thread.
//
//   const SStoryEnd end = TellStory(kPages[0], "/tmp/pictures");
//   end.wrong   // empty: nothing went wrong
#pragma once

#include <cstdint>

#include <QString>

#include "tests/campaign/Requests.h"

struct SStoryEnd
{
    QString wrong;
    uint32_t callsOfTheDut = 0;
};

SStoryEnd TellStory(const SPage &page, const QString &folder);
// Presses Start alone; what the box says that comes then.
QString StartInWords(const SPage &page);
