// Calls to the simulated DUT as a tool makes them, and what the DUT then says of itself.
#pragma once

#include <cstdint>

#include <QJsonObject>

#include "PanelWindow.h"
#include "Vond/VondCore.h"
#include "tests/common/GoodCommands.h"

constexpr uint32_t kHandle = 1;
constexpr uint32_t kTimeoutMs = 1000;

inline QJsonObject Radio()
{
    return ToObject(CopiedText(&VondSim_GetRadioText));
}

inline bool StartSingleTone()
{
    const SMMSingleToneCmdV7 command = SingleToneCommand();
    return VOND_MMRf_SingleToneTxV7_r(kHandle, kTimeoutMs, &command) == 0;
}

inline bool StartRsrp(const SNrRsrpCmdV7 &command)
{
    uint32_t status = 1;
    return VOND_NRf_RsrpV7_r(kHandle, kTimeoutMs, &command, &status) == 0 && status == 0;
}
