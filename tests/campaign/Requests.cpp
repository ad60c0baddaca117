#include "tests/campaign/Requests.h"

#include <iterator>

namespace {

constexpr EState I = EState::Idle;
constexpr EState R = EState::Running;
constexpr EVoice B = EVoice::Box;

constexpr SButton kStartStop[] = {{"m_start", "start"}, {"m_stop", "stop"}};
constexpr SButton kRssiButtons[] = {{"m_start", "start"},
                                    {"m_btnRssiSeqSrhCalculator", "calculate"}};
constexpr SButton kRsrpButtons[] = {{"m_start", "start"},         {"m_stop", "stop"},
                                    {"resetPushButton", "reset"}, {"clearPushButton", "clear"},
                                    {"groupBox_rx", "rx"},        {"groupBox_tx", "tx"}};
constexpr SButton kToneButtons[] = {
    {"m_start", "start"}, {"m_stop", "stop"}, {"m_btnFetchPd", "pd"}};
constexpr SButton kPuschButtons[] = {
    {"m_start", "start"}, {"m_stop", "stop"}, {"m_btnCalculate", "calculate"}};
constexpr SButton kCalButtons[] = {{"m_btnUpload", "read"},
                                   {"m_btnDownload", "write"},
                                   {"m_btnLoad", "import"},
                                   {"m_btnSave", "export"}};

constexpr EWay P = EWay::Button;

constexpr SRequest kContRx[] = {
    {"start", P, "m_start", I, R, B, "Cont Rx start...", "Cont Rx start failed...",
     "Cont Rx start failed", "stop", "start", nullptr, nullptr},
    {"stop", P, "m_stop", R, I, B, "Cont Rx stop.", "Cont Rx stop failed.", "Cont Rx stop failed",
     "start", "stop", nullptr, nullptr},
};

constexpr char kRssiCell[] = "cmdIf_response_group2_memberProperty_dlFrequency";
constexpr SRequest kRssi[] = {
    {"measure", P, "m_start", I, I, B, "Fetch RSSI done", "Fetch RSSI failed.",
     "Fetch RSSI failed.", "start calculate", "start calculate", kRssiCell, "ERROR"},
    {"gain search", P, "m_btnRssiSeqSrhCalculator", I, I, B, "Fetch Gain info done",
     "Fetch Gain info failed", "Fetch Gain info failed.", "start calculate", "start calculate",
     nullptr, nullptr},
};

constexpr char kRsrpIdle[] = "start reset clear rx tx";
constexpr char kRsrpRunning[] = "stop reset";
constexpr char kRsrpCell[] = "cmdIf_response_group1_memberProperty_RSRP0";
constexpr SRequest kRsrp[] = {
    {"start", P, "m_start", I, R, B, "Rsrp start...", "Rsrp start failed...", "Rsrp start failed",
     kRsrpRunning, kRsrpIdle, nullptr, nullptr},
    {"stop", P, "m_stop", R, I, B, "Rsrp stop.", "Rsrp stop failed.", "Rsrp stop failed", kRsrpIdle,
     kRsrpRunning, nullptr, nullptr},
    {"fetch report", EWay::Tick, "Slot_RsrpRxTimerTimeout", R, R, EVoice::StatusLine,
     "RsrpRsrq RX get report done.", "RsrpRsrq RX get report failed: ", nullptr, kRsrpRunning,
     kRsrpRunning, kRsrpCell, "FAIL"},
    {"reset counter", P, "resetPushButton", I, I, B, "Reset counter done.", "",
     "Reset counter failed", kRsrpIdle, kRsrpIdle, nullptr, nullptr},
    {"reset counter, running", P, "resetPushButton", R, R, B, "Reset counter done.", "",
     "Reset counter failed", kRsrpRunning, kRsrpRunning, nullptr, nullptr},
};

// The detector reads while something is sent, and nothing else.
constexpr SRequest kTone[] = {
    {"start", P, "m_start", I, R, B, "Single Tone Tx start...", "Single Tone Tx start failed...",
     "Single Tone Tx start failed", "stop pd", "start pd", nullptr, nullptr},
    {"stop", P, "m_stop", R, I, B, "Single Tone Tx stop.", "Single Tone Tx stop failed.",
     "Single Tone Tx stop failed", "start pd", "stop pd", nullptr, nullptr},
    {"fetch PD", P, "m_btnFetchPd", R, R, EVoice::ModelBox, "Finish fetch PD value.", nullptr,
     "Get PD value from target failed\n", "stop pd", "stop pd",
     "cmdIf_response_group1_memberProperty_pdValue", "Error"},
};

constexpr SRequest Pusch(const char *name, const char *button, EState needs, EState leads,
                         const char *done, const char *failed, const char *title,
                         const char *onDone, const char *onFailed)
{
    return {name,   P,     button, needs,    leads,   B,      done,
            failed, title, onDone, onFailed, nullptr, nullptr};
}
constexpr SRequest kCalculate = {"calculate",
                                 P,
                                 "m_btnCalculate",
                                 I,
                                 I,
                                 EVoice::ModelBox,
                                 "Finish fetch DL frequence.",
                                 nullptr,
                                 "Get DL freq result from target failed\n ",
                                 "start calculate",
                                 "start calculate",
                                 "cmdIf_response_group1_memberProperty_dlFrequency",
                                 "ERROR"};
constexpr SRequest kPuschForced[] = {
    Pusch("start", "m_start", I, R, "Pusch TX start...", "Pusch TX start failed...",
          "Pusch TX start failed", "stop calculate", "start calculate"),
    Pusch("stop", "m_stop", R, I, "Pusch TX stop.", "Pusch TX stop failed.", "Pusch TX stop failed",
          "start calculate", "stop calculate"),
    kCalculate,
};
// Calculate rests while the test runs.
constexpr SRequest kPuschNormal[] = {
    Pusch("start", "m_start", I, R, "Pusch TX start...", "Pusch TX start failed...",
          "Pusch TX start failed", "stop", "start calculate"),
    Pusch("stop", "m_stop", R, I, "Pusch TX stop.", "Pusch TX stop failed.", "Pusch TX stop failed",
          "start calculate", "stop"),
    kCalculate,
};

constexpr char kCalIdle[] = "read write import export";
constexpr SRequest Flow(const char *name, EWay way, const char *button, const char *done,
                        const char *failed, const char *title)
{
    return {name, way, button, I, I, B, done, failed, title, kCalIdle, kCalIdle, nullptr, nullptr};
}
constexpr SRequest kFlows[] = {
    Flow("read", P, "m_btnUpload", "Read data from target successfully.",
         "Read data from target failed.", "Read data from target failed"),
    Flow("write", P, "m_btnDownload", "Write data to target successfully.",
         "Write data to target failed.", "Write data to target failed"),
    Flow("export", EWay::Save, "m_btnSave", "Export data to file successfully.",
         "Export data to file failed.", "Export data to file failed"),
    Flow("import", EWay::Open, "m_btnLoad", "Import data from file successfully.",
         "Import data from file failed.", "Import data from file failed"),
};

// A DUT whose first route on n1 takes the frequency that the RX pages start with.
constexpr char kRxProfile[] = R"({"name": "type 1 at 1950 MHz", "base": "handset",
    "rxLimits": [{"band": 1, "route": 1, "kHz": [1920000, 1980000]}]})";
constexpr char kHandset[] = "handset";

template <int Buttons, int Requests>
constexpr SPage Page(const char *name, const char *group, const char *className, const char *title,
                     const char *profile, const SButton (&buttons)[Buttons],
                     const SRequest (&requests)[Requests], bool hasTest)
{
    return {name, group, className, title, profile, buttons, Buttons, requests, Requests, hasTest};
}

}  // namespace

const SPage kPages[] = {
    Page("Continuous RX", "rx", "CNrContRxDockWidgetV7", "Continuous RX", kRxProfile, kStartStop,
         kContRx, true),
    Page("RSSI", "rx", "CNrRssiDockWidgetV7", "RSSI", kRxProfile, kRssiButtons, kRssi, false),
    Page("RSRP force", "rx", "CNrRsrpForceDockWidgetV7", "RSRP Force Mode", kHandset, kRsrpButtons,
         kRsrp, true),
    Page("RSRP normal", "rx", "CNrRsrpNormalDockWidgetV7", "RSRP Normal Mode", kHandset,
         kRsrpButtons, kRsrp, true),
    Page("Single tone TX", "tx", "CNrSingleToneTxDockWidgetV7", "Single Tone TX", kHandset,
         kToneButtons, kTone, true),
    Page("PUSCH TX forced", "tx", "CNrPuschTxForcedDockWidgetV7", "Forced PUSCH TX ", kHandset,
         kPuschButtons, kPuschForced, true),
    Page("PUSCH TX normal", "tx", "CNrPuschTxNormalDockWidgetV7", "Normal PUSCH TX ", kHandset,
         kPuschButtons, kPuschNormal, true),
    Page("RX path loss", "cal", "CNrRxPathlossDockWidgetV7", "RX Pathloss", kHandset, kCalButtons,
         kFlows, false),
    Page("APT profile", "cal", "CNrAptProfileDockWidgetV7", "APT Profile", kHandset, kCalButtons,
         kFlows, false),
};
const int kPageCount = static_cast<int>(std::size(kPages));
