#include "Simulator/VondSim.h"
#include "tests/hands/actions/Actions.h"
#include "tests/hands/witness/PageReader.h"

// The DUT works again, so that the pages come up whole.
SDeed ShowTool(CDesk &desk, CChance &)
{
    desk.Release();
    VondSim_ClearFaults();
    return {SDeed::Other, "Show", {}, desk.Show()};
}

SDeed HideTool(CDesk &desk, CChance &)
{
    desk.Tool()->HidePlugin();
    return {SDeed::Other, "Hide"};
}

SDeed ResetTool(CDesk &desk, CChance &)
{
    ++desk.resets;
    desk.isHostDisabled = false;
    desk.Tool()->ResetPlugin();
    return {SDeed::Other, "Reset"};
}

SDeed DisableOrEnable(CDesk &desk, CChance &chance)
{
    desk.isHostDisabled = !desk.isHostDisabled && chance.OneIn(2);
    if (desk.isHostDisabled)
        desk.Tool()->DisablePages();
    else
        desk.Tool()->EnablePages();
    return {SDeed::Other, desk.isHostDisabled ? "Disable" : "Enable"};
}

SDeed CloseWindow(CDesk &desk, CChance &chance)
{
    const QList<QWidget *> windows = desk.Windows();
    if (windows.isEmpty())
        return {SDeed::Other, "no window"};
    QWidget *window = chance.Of(windows);
    const SDeed deed{SDeed::Other, "close " + NameOf(window)};
    window->close();
    return deed;
}

SDeed FloatOrDock(CDesk &desk, CChance &chance)
{
    QDockWidget *page = DrawPage(desk, chance);
    if (!page)
        return {SDeed::Other, "no page"};
    const SDeed deed{SDeed::Other, (page->isFloating() ? "dock " : "float ") + NameOf(page)};
    page->setFloating(!page->isFloating());
    return deed;
}
