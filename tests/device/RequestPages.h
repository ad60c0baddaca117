// Every request that a button of the tool makes of the target, as rows for tests of what holds for
// all of them. Import and Export are among them; their file dialog is the test's to answer.
//
//   void PageFocusTest::requestsKeepTheFocus_data() { AddRequests(); }
//   QFETCH(SRequest, request);
//   CPluginSession session("handset", 1, request.page);
#pragma once

#include <QtTest>

#include "tests/common/PluginSession.h"

struct SRequest
{
    const char *name;
    const char *page;
    const char *button;
    const char *call;     // function of the DUT that it reaches
    const char *done;     // status line
    const char *started;  // button that has to be pressed before; null for none
    const char *running;  // status line of that
};

constexpr SRequest kRequests[] = {
    {"Continuous RX start", "CNrContRxDockWidgetV7", "m_start", "VOND_MMRf_ContRxV7_r",
     "Cont Rx start...", nullptr, nullptr},
    {"Continuous RX stop", "CNrContRxDockWidgetV7", "m_stop", "VOND_MMRf_TestStopV7_r",
     "Cont Rx stop.", "m_start", "Cont Rx start..."},
    {"RSSI", "CNrRssiDockWidgetV7", "m_start", "VOND_MMRf_RssiV7_r", "Fetch RSSI done", nullptr,
     nullptr},
    {"RSSI calculate", "CNrRssiDockWidgetV7", "m_btnRssiSeqSrhCalculator",
     "VOND_MMRf_GainSearchV7_r", "Fetch Gain info done", nullptr, nullptr},
    {"RSRP force start", "CNrRsrpForceDockWidgetV7", "m_start", "VOND_NRf_RsrpV7_r",
     "Rsrp start...", nullptr, nullptr},
    {"RSRP normal stop", "CNrRsrpNormalDockWidgetV7", "m_stop", "VOND_NRf_TestStop_r", "Rsrp stop.",
     "m_start", "Rsrp start..."},
    {"RSRP normal reset", "CNrRsrpNormalDockWidgetV7", "resetPushButton",
     "VOND_NRf_ResetMixRxReportV7_r", "Reset counter done.", nullptr, nullptr},
    {"Single tone start", "CNrSingleToneTxDockWidgetV7", "m_start", "VOND_MMRf_SingleToneTxV7_r",
     "Single Tone Tx start...", nullptr, nullptr},
    {"Single tone PD", "CNrSingleToneTxDockWidgetV7", "m_btnFetchPd", "VOND_MMRf_GetPdValueV7_r",
     "Finish fetch PD value.", "m_start", "Single Tone Tx start..."},
    {"PUSCH forced start", "CNrPuschTxForcedDockWidgetV7", "m_start", "VOND_NRf_PuschTxV7_r",
     "Pusch TX start...", nullptr, nullptr},
    {"PUSCH normal stop", "CNrPuschTxNormalDockWidgetV7", "m_stop", "VOND_NRf_TestStop_r",
     "Pusch TX stop.", "m_start", "Pusch TX start..."},
    {"PUSCH forced calculate", "CNrPuschTxForcedDockWidgetV7", "m_btnCalculate",
     "VOND_NRf_GetDlFreqV7_r", "Finish fetch DL frequence.", nullptr, nullptr},
    {"Path loss read", "CNrRxPathlossDockWidgetV7", "m_btnUpload", "VOND_MMRf_GetCalDataV7_r",
     "Read data from target successfully.", nullptr, nullptr},
    {"APT read", "CNrAptProfileDockWidgetV7", "m_btnUpload", "VOND_MMRf_GetCalDataV7_r",
     "Read data from target successfully.", nullptr, nullptr},
    {"Path loss write", "CNrRxPathlossDockWidgetV7", "m_btnDownload", "VOND_MMRf_SetCalDataV7_r",
     "Write data to target successfully.", "m_btnUpload", "Read data from target successfully."},
    {"APT write", "CNrAptProfileDockWidgetV7", "m_btnDownload", "VOND_MMRf_SetCalDataV7_r",
     "Write data to target successfully.", "m_btnUpload", "Read data from target successfully."},
};

Q_DECLARE_METATYPE(SRequest)

inline void AddRequests()
{
    QTest::addColumn<SRequest>("request");
    for (const SRequest &request : kRequests)
        QTest::newRow(request.name) << request;
}

// The page is in front, and the request's button can be pressed.
inline bool Ready(CPluginSession &session, const SRequest &request)
{
    if (!session.ShowAndWait())
        return false;
    // Calculate waits for the carrier search.
    if (auto *search =
            session.Find<QAbstractButton>("cmdIf_request_group1_memberProperty_enableCsr");
        search && QByteArray(request.button) == "m_btnCalculate")
        QTest::mouseClick(search, Qt::LeftButton, Qt::NoModifier, QPoint(8, search->height() / 2));
    if (!request.started)
        return true;
    session.Press(request.started);
    return session.WaitForStatus(request.running);
}
