#include "tests/hands/seeds/SeedActions.h"

#include "Simulator/VondSim.h"
#include "tests/common/WaitUntil.h"

namespace {

constexpr int kFlowMs = 60000;  // ends the wait of a broken flow
constexpr int kCareless = 2;    // one in so many deeds is a seed's own

constexpr SActionRow kSeedActions[] = {
    {8, AddManyFaults}, {3, CutPower},     {2, StickField},      {4, StartScenario},
    {3, PullPlug},      {6, PlugIn},       {2, ChangeRadio},     {4, MendDut},
    {3, SaveSettings},  {3, LoadSettings}, {8, TriggerAction},   {30, PressFlow},
    {10, EditCell},     {8, GuardedWrite}, {5, Compare},         {4, CloseToolWindows},
    {8, PassTime},      {4, CallAsHost},   {1, ShowOnBrokenDut},
};

SDeed MendAndShow(CDesk &desk, CChance &chance)
{
    MendDut(desk, chance);
    desk.isHostDisabled = false;
    desk.Tool()->EnablePages();
    return {SDeed::Other, "a good DUT, Show", {}, desk.Show()};
}

SDeed EndTests(CDesk &desk, CChance &)
{
    SDeed deed{SDeed::Other, "RF Off"};
    if (QAbstractButton *button = desk.RfOff())
        button->click();
    deed.failure = desk.Settle();
    if (deed.failure.isEmpty() && *VondSim_RunningTest())
        deed.failure = QString("%1 runs behind RF Off").arg(VondSim_RunningTest());
    if (deed.failure.isEmpty() && desk.IsRfOffMarked())
        deed.failure = "RF Off stays marked";
    return deed;
}

SDeed ReadPage(CDesk &desk, const char *className)
{
    SDeed deed{SDeed::Other, QString("Read on ") + className};
    QDockWidget *page = desk.Page(className);
    auto *button = page ? page->findChild<QAbstractButton *>("m_btnUpload") : nullptr;
    if (!button)
        return {SDeed::Other, deed.words, {}, "no such page"};
    page->setFloating(false);
    page->show();
    page->raise();
    QString end;
    const QMetaObject::Connection heard =
        QObject::connect(&desk, &CDesk::Signal_Status, [&](QDockWidget *of, const QString &text) {
            if (of == page && (text.endsWith(" successfully.") || text.endsWith(" failed.")))
                end = text;
        });
    const bool isReady =
        WaitUntil([&] { return page->isEnabled() && button->isEnabled(); }, kFlowMs);
    button->click();
    if (!isReady || !WaitUntil([&] { return !end.isEmpty(); }, kFlowMs))
        deed.failure = isReady ? "no end of it" : "it cannot be pressed";
    else if (!end.endsWith("successfully."))
        deed.failure = end;
    QObject::disconnect(heard);
    return deed;
}

SDeed ReadPathLoss(CDesk &desk, CChance &)
{
    return ReadPage(desk, "CNrRxPathlossDockWidgetV7");
}

SDeed ReadApt(CDesk &desk, CChance &)
{
    return ReadPage(desk, "CNrAptProfileDockWidgetV7");
}

}  // namespace

const SActionRow &DrawSeedAction(CChance &chance)
{
    return chance.OneIn(kCareless) ? DrawFrom(kSeedActions, chance) : DrawAction(chance);
}

const std::vector<SActionRow> &WayBack()
{
    static const std::vector<SActionRow> rows = {
        {1, MendAndShow}, {1, EndTests}, {1, ReadPathLoss}, {1, ReadApt}};
    return rows;
}
