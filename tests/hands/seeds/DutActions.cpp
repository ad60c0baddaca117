#include <QRegularExpression>

#include "Simulator/VondSim.h"
#include "tests/hands/seeds/SeedActions.h"

namespace {

// Of many calls at once. Noise is for what has no calibration data in it: a noisy upload cannot be told
// from a good one.
constexpr const char *kAnyFaults[] = {
    R"("function": "*", "kind": "fail", "result": 2)",
    R"("function": "*", "kind": "fail", "result": 9)",
    R"("function": "*", "kind": "delay", "ms": 2)",
    R"("function": "VOND_GetErrorString", "kind": "nullText")",
    R"("function": "VOND_MMRf_GetCalDataV7_r", "kind": "fail", "result": 11)",
    R"("function": "VOND_MMRf_SetCalDataV7_r", "kind": "fail", "result": 2)",
    R"("function": "VOND_MMRf_SetCalDataV7_r", "kind": "bytes", "offset": 0, "hex": "00")",
    R"("function": "VOND_MMRf_GetCalDataV7_r", "kind": "bytes", "offset": 0, "hex": "ff")",
    R"("function": "VOND_MMRf_GetCalBlkInfoV7_r", "kind": "fail", "result": 3)",
    R"("function": "VOND_NRf_GetMixRxReportV7_r", "kind": "noise")",
    R"("function": "VOND_NRf_GetMixRxReportV7_r", "kind": "bytes", "offset": 0, "hex": "0c")",
    R"("function": "VOND_NRf_GetMixRxReportV7_r", "kind": "fail", "result": 5)",
    R"("function": "VOND_MMRf_GetPdValueV7_r", "kind": "noise")",
    R"("function": "VOND_MMRf_RssiV7_r", "kind": "noise")",
    R"("function": "VOND_MMRf_GainSearchV7_r", "kind": "noise")",
    R"("function": "VOND_NRf_GetDlFreqV7_r", "kind": "noise")",
    R"("function": "VOND_NRf_TestStop_r", "kind": "fail", "result": 7)",
    R"("function": "VOND_MMRf_TestStopV7_r", "kind": "fail", "result": 2)",
    R"("function": "VOND_MMRf_ContRxV7_r", "kind": "fail", "result": 2)",
    R"("function": "VOND_MMRf_SingleToneTxV7_r", "kind": "fail", "result": 2)",
    R"("function": "VOND_NRf_PuschTxV7_r", "kind": "status", "status": 3)",
    R"("function": "VOND_NRf_RsrpV7_r", "kind": "status", "status": 1)",
};
constexpr const char *kLevels[] = {"-110", "-95", "-65", "-20"};
constexpr const char *kStuck[] = {
    R"("record": "type1", "route": 1, "block": 1, "field": "loss[3][1].hpm")",
    R"("record": "type1", "route": 2, "block": 1, "field": "loss[0][0].hpm")",
    R"("record": "apt", "route": 1, "bandwidth": 20000, "block": 1, "field": "pa[0].paGain[0]")",
    R"("record": "apt", "route": 1, "bandwidth": 20000, "block": 1, "field": "pa[2].paGain[5]")",
};

SDeed Told(const QString &text, int32_t result)
{
    return {SDeed::Other, text, {}, result == 0 ? QString() : "the DUT does not take it"};
}

SDeed Add(const QString &text)
{
    return Told("fault " + text, VondSim_AddFault(text.toUtf8().constData()));
}

}  // namespace

// Two to four, each on some call to come or on a share of them.
SDeed AddManyFaults(CDesk &, CChance &chance)
{
    SDeed all{SDeed::Other, ""};
    for (int count = 2 + chance.Below(3); count > 0; --count) {
        const char *fault = chance.Of(kAnyFaults);
        const QString when = chance.OneIn(3) ? QString("\"probability\": 0.%1, \"seed\": %2")
                                                   .arg(1 + chance.Below(5))
                                                   .arg(1 + chance.Below(1000))
                                             : QString("\"nth\": %1").arg(1 + chance.Below(4));
        const SDeed deed = Add(QString("{%1, %2}").arg(fault, when));
        all.words += (all.words.isEmpty() ? "" : ", ") + deed.words;
        all.failure += deed.failure;
    }
    return all;
}

SDeed CutPower(CDesk &, CChance &chance)
{
    return Add(QString(R"({"kind": "powerCut", "block": %1, "torn": %2})")
                   .arg(1 + chance.Below(30))
                   .arg(chance.OneIn(2) ? "true" : "false"));
}

SDeed StickField(CDesk &, CChance &chance)
{
    return Add(QString(R"({"kind": "stuck", %1})").arg(chance.Of(kStuck)));
}

// A second of the slow DUT is a millisecond here.
SDeed StartScenario(CDesk &, CChance &chance)
{
    int count = 0;
    while (VondSim_ScenarioName(uint32_t(count)))
        ++count;
    const char *name = VondSim_ScenarioName(uint32_t(chance.Below(count)));
    QString text = VondSim_BuiltinScenarioText(name);
    text.replace(QRegularExpression("\"ms\": (\\d+)\\d\\d\\d"), "\"ms\": \\1");
    text.replace(QRegularExpression("\"ms\": \\d\\d+"), "\"ms\": 1");
    text.replace(QRegularExpression("\"seed\": \\d+"),
                 QString("\"seed\": %1").arg(1 + chance.Below(1000)));
    return Told(QString("scenario ") + name, VondSim_SetScenarioText(text.toUtf8().constData()));
}

SDeed PullPlug(CDesk &, CChance &)
{
    VondSim_SetPlugged(0);
    return {SDeed::Other, "the plug is out"};
}

SDeed PlugIn(CDesk &, CChance &)
{
    VondSim_SetPlugged(1);
    return {SDeed::Other, "the plug is in"};
}

SDeed ChangeRadio(CDesk &, CChance &chance)
{
    const QString text = QString(R"({"levelDbm": {"default": %1}})").arg(chance.Of(kLevels));
    return Told("radio " + text, VondSim_SetRadio(text.toUtf8().constData()));
}

SDeed MendDut(CDesk &desk, CChance &)
{
    desk.Release();
    VondSim_SetScenario("");
    VondSim_ClearFaults();
    VondSim_SetPlugged(1);
    return {SDeed::Other, "a good DUT"};
}
