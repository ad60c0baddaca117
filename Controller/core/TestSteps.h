// The steps of the pages' tests: a step builds its page's command and runs an operation with it.
//
// Most pages go by RunCommand; their rows of the page table name what builds the command, a function
// of CNrCoreCmdBuilder or one that takes the document alone, and the operation. A step runs under the
// core's lock and answers with a status, and with the operation's text in the run. It throws what its
// builder or operation throws.
//
//   .step = &RunCommand<&CNrCoreCmdBuilder::GetContRxCmdV7, &STestOperations::contRx,
//                       &CMultiRatContRxV7::RunContRx>
#pragma once

#include <optional>
#include <string>
#include <type_traits>

#include <QJsonObject>
#include <QString>

#include "Controller/commands/NrCoreCmdBuilder.h"
#include "Controller/core/PageId.h"
#include "Controller/core/RunningTests.h"
#include "Controller/responses/NrDataModelResponseBuilder.h"
#include "Model/StatusTable.h"
#include "Operations/link/TargetLink.h"
#include "Operations/tests/MultiRatContRxV7.h"
#include "Operations/tests/MultiRatRssiV7.h"
#include "Operations/tests/MultiRatSingleToneTxV7.h"
#include "Operations/tests/NrPuschTxV7.h"
#include "Operations/tests/NrRsrpV7.h"

// What steps, and the reads beside a test, work with. The core has one.
struct STestOperations
{
    CNrCoreCmdBuilder commands;
    CNrDataModelResponseBuilder responses;
    CNrPuschTxV7 puschTx;
    CMultiRatSingleToneTxV7 singleToneTx;
    CNrRsrpV7 rsrp;
    CMultiRatContRxV7 contRx;
    CMultiRatRssiV7 rssi;
};

// A test on its way.
struct STestRun
{
    EPageId page;
    std::optional<EStop> stop;  // that ends it
    uint64_t asked;             // the moment of CRunningTests at which it was asked for
    CRunningTests &runningTests;
    SRunningTestInfo info = {};  // for the window, while the test runs
    QString message = {};        // of the operation
    std::string answer = {};     // the document with results, of the page that answers with one
};

template <auto Build>
auto BuildCommand(const STestOperations &operations, const QJsonObject &document)
{
    if constexpr (std::is_member_function_pointer_v<decltype(Build)>)
        return (operations.commands.*Build)(document);
    else
        return Build(document);
}

// A test that goes on until its page's stop.
template <auto Build, auto Operation, auto Run>
int RunCommand(STestOperations &operations, STestRun &run, QJsonObject &document)
{
    const auto command = BuildCommand<Build>(operations, document);
    const CTargetHandleScope handle(TargetHandle());  // the host may set another one meanwhile
    if (!run.runningTests.Begin({run.page, {run.stop.value(), TargetHandle()}, run.info},
                                run.asked))
        return eStatusTerminated;
    const uint32_t status = ((operations.*Operation).*Run)(&command);
    run.message = (operations.*Operation).GetErrorMessage();
    return static_cast<int>(status);
}

// The one test whose answer is a document: it measures and is over.
int RunRssiTest(STestOperations &operations, STestRun &run, QJsonObject &document);
