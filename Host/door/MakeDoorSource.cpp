#include "Host/door/MakeDoorSource.h"

#include <QFile>

#include "Host/SimulatedDut.h"
#include "Host/Tap.h"
#include "Host/door/JournalSource.h"
#include "Host/door/TraceSource.h"

std::unique_ptr<IDoorSource> MakeDoorSource(CSimulatedDut &dut)
{
    switch (TraceOfSession()) {
    case ETrace::Recorded:
        return std::make_unique<CTraceSource>(QFile::decodeName(qgetenv("VOND_TAP_FILE")));
    case ETrace::PlayedBack:
        return std::make_unique<CTraceSource>(QFile::decodeName(qgetenv("VOND_TAP_OUT")));
    case ETrace::None:
        break;
    }
    if (dut.IsThere())
        return std::make_unique<CJournalSource>(dut);
    return nullptr;
}
