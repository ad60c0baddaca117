// What comes to the careless user's deeds in a seed: the tool's flows as an engineer works them, the
// host's calls, and a DUT with many faults at once.
//
//   const SActionRow &row = DrawSeedAction(chance);   // a careless deed among them, more often than not
#pragma once

#include <vector>

#include "tests/hands/actions/Actions.h"

const SActionRow &DrawSeedAction(CChance &chance);

// What a seed ends with: the DUT is whole again, and so is the tool. Each tells when it is not.
const std::vector<SActionRow> &WayBack();

// The DUT
SDeed AddManyFaults(CDesk &desk, CChance &chance);
SDeed CutPower(CDesk &desk, CChance &chance);
SDeed StickField(CDesk &desk, CChance &chance);
SDeed StartScenario(CDesk &desk, CChance &chance);
SDeed PullPlug(CDesk &desk, CChance &chance);
SDeed PlugIn(CDesk &desk, CChance &chance);
SDeed ChangeRadio(CDesk &desk, CChance &chance);
SDeed MendDut(CDesk &desk, CChance &chance);
// The tool
SDeed SaveSettings(CDesk &desk, CChance &chance);
SDeed LoadSettings(CDesk &desk, CChance &chance);
SDeed TriggerAction(CDesk &desk, CChance &chance);
SDeed PressFlow(CDesk &desk, CChance &chance);
SDeed EditCell(CDesk &desk, CChance &chance);
SDeed GuardedWrite(CDesk &desk, CChance &chance);
SDeed Compare(CDesk &desk, CChance &chance);
SDeed CloseToolWindows(CDesk &desk, CChance &chance);
SDeed PassTime(CDesk &desk, CChance &chance);
// The host
SDeed CallAsHost(CDesk &desk, CChance &chance);
SDeed ShowOnBrokenDut(CDesk &desk, CChance &chance);
