// Base of all target operations: how a target's answer becomes a code and a text.
//
// Every operation answers with one of
//     0    success, the text is left as it was
//     3    the closed library failed, the text is the library's
//     203  the target answered with a failure status, the text names it
// and keeps the text of the last failure. An operation with a status word looks at it first, before
// the library's result. Operations block the calling thread for up to the timeout, run one at a
// time under the core's lock, and retry nothing.
//
//   uint32_t CNrTestStop::Stop()
//   {
//       return Finish(VOND_NRf_TestStop_r(TargetHandle(), kTargetTimeoutMs));
//   }
#pragma once

#include <cstdint>

#include <QObject>
#include <QString>

#include "Operations/capability/TargetCapability.h"

class IGeneralOperation : public QObject
{
public:
    QString GetErrorMessage() const { return m_errorMessage; }

protected:
    // The code for an operation without a status word.
    uint32_t Finish(int32_t result);
    // The code for an operation with one.
    uint32_t Finish(uint32_t status, int32_t result);

    CTargetCapability m_target;
    QString m_errorMessage;  // text of the last failure
};
