// The capability reads, answered from a profile. Each function fills its whole record, unused parts
// with zeros. No state, no locks.
#pragma once

#include "Simulator/basis/Results.h"
#include "Simulator/profile/Profile.h"

// Sizes that the three capability reads expect in their request, bytes.
SVerdict CheckCapabilitySizes(const SVondCapabilityReq &request, uint32_t capability,
                              uint32_t calibration);

void AnswerLteCapability(const SProfile &profile, SERfCapability &answer);
void AnswerMultiModeCapability(const SProfile &profile, SMMRfCapability &answer);
void AnswerNrCapability(const SProfile &profile, SNRfCapability &answer);
// Radio kind 0 is the LTE side, of which the simulated DUT has nothing to tell: all counts 0.
SVerdict AnswerRouteConfig(const SProfile &profile, uint32_t radioKind, SMMRfRouteConfigV7 &answer);
void AnswerBandRxInfo(const SProfile &profile, SNRfBandRxInfo &answer);
// An entry for every row of the RX route tables that has TX routes, type 1 rows first.
void AnswerRxRouteValues(const SProfile &profile, SNRfRxRouteValues &answer);
// A route that stands on several bands has the hardware of its first row.
SVerdict AnswerRouteDetail(const SProfile &profile, const SMMRfRouteDetailReqV7 &request,
                           SMMRfRouteDetailCnfV7 &answer);
// Null for an id that the profile does not name.
const char *ChipName(const SProfileChip &chip, uint32_t id);
