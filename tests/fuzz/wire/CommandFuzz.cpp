// Fuzz target of the command builders: a test page's document with any changes goes through all that
// make commands of it, and any records go through all that write into it.
//
// A builder takes what a page has packaged, and a page packages what a target has reported and a
// user has typed: none of it is sure. Any builder may be given any page's document, since none
// fails outward. What must hold stands in CommandRules.h and ResponseRules.h.

#include "tests/fuzz/common/FuzzTarget.h"
#include "tests/fuzz/wire/CommandInput.h"
#include "tests/fuzz/wire/CommandRules.h"
#include "tests/fuzz/wire/FuzzAnswers.h"
#include "tests/fuzz/wire/ResponseRules.h"

std::span<const EPageId> TargetPages()
{
    static constexpr EPageId kPages[] = {
        EPageId::Rssi,         EPageId::ContRx,       EPageId::RsrpForce,     EPageId::RsrpNormal,
        EPageId::SingleToneTx, EPageId::PuschTxForce, EPageId::PuschTxNormal,
    };
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
    CheckCommands(input);
    CheckResponses(input);
    return 0;
}
