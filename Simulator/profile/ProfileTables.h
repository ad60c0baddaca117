// The tables of a profile: reading each from JSON, and checking them against each other. Used by
// ParseProfile alone; failures are std::runtime_error that name the place.
#pragma once

#include "Simulator/basis/JsonReader.h"
#include "Simulator/faults/Fault.h"
#include "Simulator/profile/Profile.h"
#include "Trace/dictionary/Functions.h"

void ReadBands(CJsonReader &reader, SProfile &profile);
// Routes, their frequency limits and the "generate" rule; needs the bands.
void ReadRoutes(CJsonReader &reader, SProfile &profile);
void ReadGainTables(CJsonReader &reader, SProfile &profile);
// Routes stand on listed bands that have the direction, no route stands twice on a band, paired
// routes exist.
void CheckTables(const SProfile &profile);
