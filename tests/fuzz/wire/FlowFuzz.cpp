// Fuzz target of what pages do: a DUT answers any bytes, and the tool goes on with them to the end.
//
// Each input is a DUT with changes to its answers, and the page on whose behalf it is read: launch,
// document, test, reads and calibration, all through the core. What must hold stands in PageRun.h
// for the answers and in CalRequestRules.h for what goes back to the DUT.
#include <QCoreApplication>

#include "tests/fuzz/common/FuzzTarget.h"
#include "tests/fuzz/wire/FuzzAnswers.h"
#include "tests/fuzz/wire/PageRun.h"
#include "tests/fuzz/wire/RecordInput.h"

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    SwitchLogsOff();
    static int count = 1;
    static char name[] = "FlowFuzz";
    static char *names[] = {name, nullptr};
    new QCoreApplication(count, names);  // lives as long as the process
    FuzzAnswers::TakeAll();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const SRecordInput input =
        ReadRecordInput(QByteArray(reinterpret_cast<const char *>(data), static_cast<int>(size)));
    PlugInput(input);
    CPageRun run(input.page);
    run.Launch();
    run.Use();
    if (input.isFiled)
        run.UseFile();
    return 0;
}
