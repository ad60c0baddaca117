// Turns the packaged document of a page into the record that goes to the target.
//
// A builder reads only memberValue objects, at fixed paths, takes the document by value and returns
// the record by value, zeroed where the document says nothing. It holds no state and never fails
// outward: a missing key reads as an empty text, and so as 0 or an enumeration's default. It asks
// the cached route table for one field, so it runs under the core's lock.
//
//   const SMMContRxCmdV7 command = builder.GetContRxCmdV7(document);
#pragma once

#include <QJsonObject>

#include "Operations/TargetCapability.h"
#include "Vond/VondCommandRecords.h"

class CNrCoreCmdBuilder
{
public:
    SMMContRxCmdV7 GetContRxCmdV7(QJsonObject document) const;

private:
    CTargetCapability m_target;
};
