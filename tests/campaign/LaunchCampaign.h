// The campaign's first part: the launch query, and the nine pages' documents at the first show.
//
// Both read the DUT's capabilities, each read once until a reset; so each case begins with one, and
// its good run is another reset away. GUI thread.
//
//   CTally tally;
//   RunLaunchCampaign(tally, {});
#pragma once

#include "tests/campaign/Campaign.h"

void RunLaunchCampaign(CTally &tally, const SCampaignOptions &options);
void RunDocumentCampaign(CTally &tally, const SCampaignOptions &options);
