#include "tests/lifetime/Requests.h"

namespace {

constexpr char kRssi[] = "CNrRssiDockWidgetV7";
constexpr char kPathLoss[] = "CNrRxPathlossDockWidgetV7";
constexpr char kContRx[] = "CNrContRxDockWidgetV7";
constexpr char kRsrpForce[] = "CNrRsrpForceDockWidgetV7";
constexpr char kRsrpNormal[] = "CNrRsrpNormalDockWidgetV7";
constexpr char kSingleTone[] = "CNrSingleToneTxDockWidgetV7";
constexpr char kApt[] = "CNrAptProfileDockWidgetV7";
constexpr char kPuschForced[] = "CNrPuschTxForcedDockWidgetV7";
constexpr char kPuschNormal[] = "CNrPuschTxNormalDockWidgetV7";

constexpr char kNrStop[] = "VOND_NRf_TestStop_r";
constexpr char kMmStop[] = "VOND_MMRf_TestStopV7_r";

constexpr SRequest Document(const char *page)
{
    return {page, "document", nullptr, EWay::Launch, nullptr, EBefore::Fresh};
}

constexpr SRequest Press(const char *page, const char *name, const char *function,
                         const char *button, EBefore before = EBefore::Nothing)
{
    return {page, name, function, EWay::Button, button, before};
}

constexpr SRequest File(const char *page, const char *name, const char *button, EBefore before)
{
    return {page, name, nullptr, EWay::File, button, before, true};
}

constexpr SRequest Action(const char *page, const char *name, const char *action,
                          EBefore before = EBefore::Nothing)
{
    return {page, name, nullptr, EWay::Action, action, before};
}

constexpr SRequest Asking(const char *page, const char *name, const char *action,
                          EBefore before = EBefore::Nothing)
{
    return {page, name, nullptr, EWay::Action, action, before, true};
}

void AddActions(QVector<SRequest> &requests, const char *page)
{
    requests +=
        {Asking(page, "save settings", "m_actionSaveSettings"),
         Asking(page, "load settings", "m_actionLoadSettings", EBefore::Settings),
         Action(page, "explain", "m_actionExplain"), Action(page, "float", "m_actionFloatPage")};
}

void AddResults(QVector<SRequest> &requests, const char *page)
{
    requests += {Asking(page, "export results", "m_actionExportResults", EBefore::Results),
                 Action(page, "plot", "m_actionPlot")};
}

void AddCalibration(QVector<SRequest> &requests, const char *page)
{
    requests += {Document(page),
                 Press(page, "read", "VOND_MMRf_GetCalDataV7_r", "m_btnUpload"),
                 Press(page, "write", "VOND_MMRf_SetCalDataV7_r", "m_btnDownload", EBefore::Read),
                 File(page, "import", "m_btnLoad", EBefore::File),
                 File(page, "export", "m_btnSave", EBefore::Read),
                 Action(page, "compare", "m_actionCompare", EBefore::Read),
                 {page, "guarded write", "VOND_MMRf_GetCalDataV7_r", EWay::Action,
                  "m_actionGuardedWrite", EBefore::Edited, true},
                 Action(page, "undo", "m_actionUndo", EBefore::Edited),
                 Action(page, "revert record", "m_actionRevertRecord", EBefore::Edited),
                 Action(page, "revert all", "m_actionRevertAll", EBefore::Edited),
                 Asking(page, "copy record", "m_actionCopyRecord", EBefore::Edited),
                 Action(page, "plot", "m_actionPlot", EBefore::Edited)};
    AddActions(requests, page);
}

void AddRsrp(QVector<SRequest> &requests, const char *page)
{
    requests += {Document(page),
                 Press(page, "start", "VOND_NRf_RsrpV7_r", "m_start"),
                 Press(page, "stop", kNrStop, "m_stop", EBefore::Running),
                 {page, "fetch", "VOND_NRf_GetMixRxReportV7_r", EWay::Timer,
                  "Slot_RsrpRxTimerTimeout", EBefore::Running},
                 Press(page, "reset counter", "VOND_NRf_ResetMixRxReportV7_r", "resetPushButton",
                       EBefore::Running),
                 Press(page, "clear", nullptr, "clearPushButton"),
                 Asking(page, "frequency", "m_actionEnterFrequency")};
    AddActions(requests, page);
    AddResults(requests, page);
}

void AddStartStop(QVector<SRequest> &requests, const char *page, const char *start,
                  const char *stop)
{
    requests += {Document(page), Press(page, "start", start, "m_start"),
                 Press(page, "stop", stop, "m_stop", EBefore::Running),
                 Asking(page, "frequency", "m_actionEnterFrequency")};
    AddActions(requests, page);
}

QVector<SRequest> Collect()
{
    QVector<SRequest> requests{
        {"", "page list", "VOND_NRf_GetRfCapability_r", EWay::Launch, nullptr, EBefore::Fresh},
        Document(kRssi),
        Press(kRssi, "start", "VOND_MMRf_RssiV7_r", "m_start"),
        Press(kRssi, "gain calculator", "VOND_MMRf_GainSearchV7_r", "m_btnRssiSeqSrhCalculator"),
        Asking(kRssi, "frequency", "m_actionEnterFrequency"),
        Action(kRssi, "spread channels", "m_actionSpreadChannels"),
        Action(kContRx, "log", "m_actionLog"),
        Asking(kContRx, "power limit", "m_actionTxPowerLimit")};
    AddActions(requests, kRssi);
    AddResults(requests, kRssi);
    AddCalibration(requests, kPathLoss);
    AddStartStop(requests, kContRx, "VOND_MMRf_ContRxV7_r", kMmStop);
    AddRsrp(requests, kRsrpForce);
    AddRsrp(requests, kRsrpNormal);
    AddStartStop(requests, kSingleTone, "VOND_MMRf_SingleToneTxV7_r", kMmStop);
    requests += Press(kSingleTone, "PD value", "VOND_MMRf_GetPdValueV7_r", "m_btnFetchPd",
                      EBefore::Running);
    AddResults(requests, kSingleTone);
    AddCalibration(requests, kApt);
    for (const char *page : {kPuschForced, kPuschNormal}) {
        AddStartStop(requests, page, "VOND_NRf_PuschTxV7_r", kNrStop);
        requests += Press(page, "DL frequency", "VOND_NRf_GetDlFreqV7_r", "m_btnCalculate");
    }
    return requests;
}

}  // namespace

const QVector<SRequest> &AllRequests()
{
    static const QVector<SRequest> requests = Collect();
    return requests;
}
