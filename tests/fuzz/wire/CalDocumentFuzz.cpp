// Fuzz target of the calibration documents: a calibration page's document with any changes is stored into
// any records, and any records are shown in it. What must hold stands in CalDocumentRules.h.
//
// A document holds thousands of texts, so this is many times slower than CommandFuzz.

#include "tests/fuzz/common/FuzzTarget.h"
#include "tests/fuzz/wire/CalDocumentRules.h"
#include "tests/fuzz/wire/CommandInput.h"
#include "tests/fuzz/wire/FuzzAnswers.h"

std::span<const EPageId> TargetPages()
{
    static constexpr EPageId kPages[] = {EPageId::AptProfile, EPageId::RxPathLoss};
    return kPages;
}

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    SwitchLogsOff();
    FuzzAnswers::TakeAll();
    TakeBaseDocuments();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const CCommandInput input(
        QByteArray(reinterpret_cast<const char *>(data), static_cast<int>(size)));
    CheckCalCommands(input);
    CheckCalResponses(input);
    return 0;
}
