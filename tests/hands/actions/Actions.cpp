#include "tests/hands/actions/Actions.h"

namespace {

constexpr SActionRow kActions[] = {
    {20, TypeKeys},      {12, PressKey},
    {12, PressMnemonic}, {12, PressActionKeys},
    {18, ClickEditor},   {22, ClickButton},
    {6, ClickAnywhere},  {10, ClickTab},
    {12, ChooseItem},    {12, TurnWheel, SDeed::Wheel},
    {3, PressRfOff},     {1, HideTool},
    {1, ResetTool},      {2, DisableOrEnable},
    {1, CloseWindow},    {2, FloatOrDock},
    {5, AddFault},       {4, ClearFaults},
    {5, HoldCall},       {9, ReleaseCall},
    {2, TickReport},
};

}  // namespace

const SActionRow &DrawAction(CChance &chance)
{
    return DrawFrom(kActions, chance);
}

QDockWidget *DrawPage(CDesk &desk, CChance &chance)
{
    QList<QDockWidget *> pages;
    if (QDockWidget *front = desk.FrontPage())
        pages = {front, front};
    for (QDockWidget *page : desk.Pages()) {
        if (page->isFloating() && page->isVisible())
            pages.append(page);
    }
    return pages.isEmpty() ? nullptr : chance.Of(pages);
}

QPoint PlaceOn(const QWidget *widget)
{
    return widget->visibleRegion().boundingRect().center();
}
