// The outcome of one operation on one item, as it travels from the core to the page.
//
// A value: copied freely, passed through queued signals. RegisterOperationResultTypes() makes it,
// its vector, SCalRemarks and std::string known to Qt's type system under the names that queued
// connections look up; call it once before the first such connection (the tool form does).
//
//   SEachItemOperationResult result{"Continuous RX", 203, "Status error code (1) :..."};
#pragma once

#include <string>

#include <QMetaType>
#include <QString>
#include <QVector>

struct SEachItemOperationResult
{
    QString itemName;  // page or calibration item that ran; empty for a stop or a report reset
    int status = 0;    // code of the status table, 0 is success
    QString message;   // text from the operation or the target; may be empty
};

Q_DECLARE_METATYPE(SEachItemOperationResult)
Q_DECLARE_METATYPE(std::string)

void RegisterOperationResultTypes();
