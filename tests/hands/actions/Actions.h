// What a careless user does, one deed at a time.
//
// Each deed draws all that it needs from the campaign's chance, goes in at the windows as a
// person's does, and tells in words what it was. A deed that finds nothing to do says so; that is
// all.
//
//   const SActionRow &row = DrawAction(chance);
//   const SDeed deed = row.act(desk, chance);
#pragma once

#include <iterator>

#include "tests/hands/Chance.h"
#include "tests/hands/desk/Desk.h"
#include "tests/hands/rules/Rule.h"

struct SActionRow
{
    int weight;
    SDeed (*act)(CDesk &desk, CChance &chance);
    SDeed::EKind kind = SDeed::Other;
};

// One of a table, by weight.
template <typename Rows>
const SActionRow &DrawFrom(const Rows &rows, CChance &chance)
{
    int sum = 0;
    for (const SActionRow &row : rows)
        sum += row.weight;
    int drawn = chance.Below(sum);
    const SActionRow *row = std::begin(rows);
    for (; drawn >= row->weight; ++row)
        drawn -= row->weight;
    return *row;
}

const SActionRow &DrawAction(CChance &chance);

// Keys
SDeed TypeKeys(CDesk &desk, CChance &chance);
SDeed PressKey(CDesk &desk, CChance &chance);
SDeed PressMnemonic(CDesk &desk, CChance &chance);
SDeed PressActionKeys(CDesk &desk, CChance &chance);
// The mouse
SDeed ClickEditor(CDesk &desk, CChance &chance);
SDeed ClickButton(CDesk &desk, CChance &chance);
SDeed ClickAnywhere(CDesk &desk, CChance &chance);
SDeed ClickTab(CDesk &desk, CChance &chance);
SDeed ChooseItem(CDesk &desk, CChance &chance);
SDeed TurnWheel(CDesk &desk, CChance &chance);
SDeed PressRfOff(CDesk &desk, CChance &chance);
// The host and the windows
SDeed ShowTool(CDesk &desk, CChance &chance);
SDeed HideTool(CDesk &desk, CChance &chance);
SDeed ResetTool(CDesk &desk, CChance &chance);
SDeed DisableOrEnable(CDesk &desk, CChance &chance);
SDeed CloseWindow(CDesk &desk, CChance &chance);
SDeed FloatOrDock(CDesk &desk, CChance &chance);
// The DUT
SDeed AddFault(CDesk &desk, CChance &chance);
SDeed ClearFaults(CDesk &desk, CChance &chance);
SDeed HoldCall(CDesk &desk, CChance &chance);
SDeed ReleaseCall(CDesk &desk, CChance &chance);
SDeed TickReport(CDesk &desk, CChance &chance);

// A page that the user can work on: the one in front or a floating one; null without any.
QDockWidget *DrawPage(CDesk &desk, CChance &chance);
// Enabled widgets of a kind that can be seen on the page.
template <typename Widget>
QList<Widget *> SeenOn(const QWidget *page)
{
    QList<Widget *> seen;
    for (Widget *widget : page ? page->findChildren<Widget *>() : QList<Widget *>()) {
        if (widget->isEnabled() && !widget->visibleRegion().isEmpty())
            seen.append(widget);
    }
    return seen;
}
// A place of the widget that is in sight.
QPoint PlaceOn(const QWidget *widget);
