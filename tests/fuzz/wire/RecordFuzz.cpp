// Fuzz target of the target's records: a DUT answers any bytes, and the readers take them.
//
// Each input is a DUT with changes to its answers (RecordInput.h), and the page on whose behalf it is
// read: all questions of the capability reader, then the page's operations, on this thread and without
// a document. What must hold stands in RecordRules.h for the answers and in CalRequestRules.h for what
// goes back to the DUT. FlowFuzz takes the same inputs through the whole tool.
//
// The DUTs have few routes, unless the input says otherwise: an input takes as long as there are routes.

#include "tests/fuzz/common/FuzzTarget.h"
#include "tests/fuzz/wire/FuzzAnswers.h"
#include "tests/fuzz/wire/RecordInput.h"
#include "tests/fuzz/wire/RecordRules.h"

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    SwitchLogsOff();
    FuzzAnswers::TakeAll();
    FuzzAnswers::CutRoutes();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const SRecordInput input =
        ReadRecordInput(QByteArray(reinterpret_cast<const char *>(data), static_cast<int>(size)));
    PlugInput(input);
    CheckCapability();
    CheckOperations(input.page);
    return 0;
}
