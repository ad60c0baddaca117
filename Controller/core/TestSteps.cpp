#include "Controller/core/TestSteps.h"

#include "Model/ModelText.h"

int RunRssiTest(STestOperations &operations, STestRun &run, QJsonObject &document)
{
    const SMMRssiCmdV7 command = operations.commands.GetRssiCmdV7(document);
    if (run.runningTests.IsCalledOff(run.asked))
        return eStatusTerminated;
    SMMRssiCnfV7 result = {};
    const uint32_t status = operations.rssi.RunRssi(command, &result);
    run.message = operations.rssi.GetErrorMessage();
    operations.responses.UpdateRssiResultV7(document, result, status == 0);
    run.answer = ModelToText(document);
    return static_cast<int>(status);
}
