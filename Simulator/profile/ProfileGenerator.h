// Fills a profile's route tables by rule, for DUTs too large to be written down: the "generate"
// object of a profile.
#pragma once

#include <nlohmann/json.hpp>

#include "Simulator/profile/Profile.h"

// Adds routes, limits and gain tables to a profile whose bands are read. Throws std::runtime_error
// for a broken rule.
void GenerateRoutes(const nlohmann::json &rule, SProfile &profile);
