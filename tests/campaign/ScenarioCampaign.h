// The built-in scenarios of the simulated DUT under each request of the pages.
//
// A case is a scenario that starts when the page stands ready for a request, which is then made
// several times; what leads back (Stop behind Start) is made under the scenario, too. The journal tells
// whether the DUT answered each of them well, and so what the user is to see. A failed request leaves
// what was entered and the results so far; a calibration page exports what it exported first. When the
// scenario has been taken away the request is good, and the flash has no torn record.
//
//   RunScenarioCampaign(tally, options);
#pragma once

#include "tests/campaign/Campaign.h"

void RunScenarioCampaign(CTally &tally, const SCampaignOptions &options);
