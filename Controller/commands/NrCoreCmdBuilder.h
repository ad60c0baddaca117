// Turns the packaged document of a page into the command record that goes to the target.
//
// A builder reads only memberValue objects, at fixed paths. It takes the document by value and
// returns the record by value, zeroed where the document says nothing. What fills which field
// stands in the tables of the sources that carry this name; the record headers give each field's
// unit. The documents of calibration pages have a builder of their own (CalCmdBuilder.h).
//
// A builder holds no state and never fails outward: a missing key reads as an empty text, and so as
// 0 or an enumeration's default. The two receiver commands with a route kind ask the cached route
// table for it, so builders run under the core's lock.
//
//   const SMMContRxCmdV7 command = builder.GetContRxCmdV7(document);
#pragma once

#include <QJsonObject>

#include "Operations/capability/TargetCapability.h"
#include "Vond/VondCommandRecords.h"

class CNrCoreCmdBuilder
{
public:
    SNrPuschTxCmdV7 GetPuschTxForceCmdV7(QJsonObject document) const;
    SNrPuschTxCmdV7 GetPuschTxNormalCmdV7(QJsonObject document) const;
    // The carrier whose DL frequency is asked for; in normal mode the one that the carrier search
    // is for.
    SNrDlFreqCmdV7 GetPuschDlFreqCmd(QJsonObject document, bool normal) const;

    SMMSingleToneCmdV7 GetSingleToneTxCmdV7(QJsonObject document) const;

    // The fields of the transmitter stay 0 unless the page asks for pseudo TX.
    SNrRsrpCmdV7 GetRsrpForceCmdV7(QJsonObject document) const;
    SNrRsrpCmdV7 GetRsrpNormalCmdV7(QJsonObject document) const;

    SMMContRxCmdV7 GetContRxCmdV7(QJsonObject document) const;
    // The two steps of the RSSI page: the second runs with the gains that the first has found.
    SMMGainSearchCmdV7 GetGainSearchCmdV7(QJsonObject document) const;
    SMMRssiCmdV7 GetRssiCmdV7(QJsonObject document) const;

private:
    CTargetCapability m_target;
};
