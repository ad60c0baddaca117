// Fills a profile's route tables by rule, for DUTs too large to be written down: the "generate"
// object of a profile.
#pragma once

#include "Simulator/profile/Profile.h"

#include <nlohmann/json.hpp>

// Adds routes, limits and gain tables to a profile whose bands are read. Throws std::runtime_error
// for a broken rule.
void GenerateRoutes(const nlohmann::json &rule, SProfile &profile);
