// An input of RecordFuzz and FlowFuzz: a DUT, a page, and what the DUT answers other than it should.
//
//     largest RX PathLoss
//     VOND_MMRf_GetRouteConfigV7_r 448 ffff       bytes at an offset, in hexadecimal digits
//     VOND_MMRf_GetCalDataV7_r 194 0100 x50       fifty times one behind another
//     VOND_NRf_GetBandRxInfo_r = 4                the result of the call
//
//     file                                        calibration data goes through a file, too
//
// A line that is none of these is passed over.
#pragma once

#include <vector>

#include <QByteArray>

#include "Controller/core/PageTable.h"

struct SRecordChange
{
    QByteArray function;
    bool isResult = false;
    int32_t result = 0;
    uint32_t offset = 0;
    QByteArray bytes;
    uint32_t times = 1;
};

struct SRecordInput
{
    QByteArray dut;
    EPageId page = EPageId::Rssi;
    bool isFiled = false;
    std::vector<SRecordChange> changes;
};

SRecordInput ReadRecordInput(const QByteArray &text);
QByteArray RecordText(const SRecordInput &input);
// The DUT of the input answers from now on.
void PlugInput(const SRecordInput &input);
