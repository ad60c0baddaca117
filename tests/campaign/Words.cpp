#include "tests/campaign/Words.h"

#include <QMessageBox>

namespace {

constexpr int kFailedCommand = 3;
constexpr int kWrongChip = 200;
constexpr int kBadStatus = 203;

struct SStatusRow
{
    int code;
    QMessageBox::Icon icon;
    const char *text;
    const char *advice;
};

// The codes that a fault of the DUT can bring about.
constexpr SStatusRow kStatusRows[] = {
    {kFailedCommand, QMessageBox::Critical, "Vond command execute failed.",
     "Please check the SW load stability or connection status."},
    {kWrongChip, QMessageBox::Warning, "Rf chip ID is mismatch.",
     "The Rf chip ID in the file does not match that in the target.\n"
     "Please recheck the file or SW load."},
    {kBadStatus, QMessageBox::Critical, "L1 Status code != SUCCESS ",
     "Please recheck SW load stability and parameter setting of the command."},
};

constexpr const char *kStatusTexts[] = {
    "NL1TST_CNF_STATUS_SUCCESS",
    "NL1TST_CNF_STATUS_FREQ_MISMATCH.\n\nDetails: Frequency cannot be exactly mapped to NR-ARFCN.",
    "NL1TST_CNF_STATUS_CELL_NOT_EXIST.\n\nDetails: Cell SSB can't be detected.",
    "NL1TST_CNF_STATUS_MB_MIB_DECODE_ERROR.\n\nDetails: Cell PBCH can't be detected.",
    "NL1TST_CNF_STATUS_SCELL_NOT_EXIST.\n\nDetails: SCell SSB can't be detected.",
};
constexpr char kUnknownStatus[] = "Not found status descrption";

constexpr const char *kFailureTexts[][2] = {{"1", "Connection: no target is connected"},
                                            {"2", "Connection: the target did not answer in time"},
                                            {"4", "Target: failure on demand"},
                                            {"11", "Unknown result"}};

// Outcome of an operation: a code of the status table, and the words that it leaves.
struct SOutcome
{
    int code = 0;
    QString message;
    bool isEither = false;
    bool isStartOnly = false;
};

QString TextOf(const SDoorFault &fault)
{
    if (fault.kind == EFault::NoText)
        return QString();
    for (const auto &row : kFailureTexts) {
        if (QString::number(fault.result) == row[0])
            return row[1];
    }
    return QString("no text is known for %1").arg(fault.result);
}

QString StatusText(uint32_t status)
{
    const char *text = status < 5 ? kStatusTexts[status] : kUnknownStatus;
    return QString("Status error code (%1) :%2").arg(status).arg(text);
}

bool IsApt(const SPage &page)
{
    return qstrcmp(page.name, "APT profile") == 0;
}

QString VerdictStart(uint32_t status)
{
    return QString("L1 status code = %1 (SUCCESS = 1)\n").arg(status);
}

QString VerdictText(const SPage &page, uint32_t status, const char *type1, const char *type2,
                    const char *profile)
{
    return VerdictStart(status) +
           (IsApt(page) ? QString(profile) : QString(" Type1: %1\n Type2: %2").arg(type1, type2));
}

// The verdict is looked at first; result 11 and a verdict of 1 let the result decide.
SOutcome TransferOutcome(const SPage &page, const SDoorFault &fault, const SJournalCall *last)
{
    switch (fault.kind) {
    case EFault::Status:
        return {kBadStatus, VerdictText(page, fault.status, kVerdictTexts[0], kVerdictTexts[1],
                                        kVerdictTexts[2])};
    case EFault::Noise: {
        const uint32_t verdict =
            last && !last->answer.isEmpty() ? static_cast<uint8_t>(last->answer[0]) : 1;
        if (verdict == 1)
            return {0, {}, true};
        return {kBadStatus, VerdictStart(verdict), false, true};
    }
    default:
        break;
    }
    if (fault.isVerdictGood || fault.result == kAcceptedFailure)
        return {kFailedCommand, TextOf(fault)};
    return {kBadStatus, VerdictText(page, 0, "", "", "")};
}

SOutcome BlockInfoOutcome(const SPage &page, const SDoorFault &fault)
{
    if (fault.kind == EFault::Noise)
        return {0, {}, true};
    return {kFailedCommand, (IsApt(page) ? "Failed to get Blk info before reading APT from target: "
                                         : "Failed to get Blk info before reading RX path loss "
                                           "from target: ") +
                                TextOf(fault)};
}

SOutcome OutcomeOf(const SPage &page, const SRequest &request, const SDoorFault &fault,
                   const QVector<SJournalCall> &calls)
{
    if (fault.kind == EFault::Late)
        return {};
    const SJournalCall *last = nullptr;
    for (const SJournalCall &call : calls) {
        if (fault.function->name == call.call.function)
            last = &call;
    }
    switch (fault.function->id) {
    case EFunction::NrChipName:
        // A nameless chip is another one than the file's; a file can be of a nameless chip.
        return request.way == EWay::Open ? SOutcome{kWrongChip, {}} : SOutcome{};
    case EFunction::GetCalData:
    case EFunction::SetCalData:
        return TransferOutcome(page, fault, last);
    case EFunction::GetCalBlkInfo:
        return BlockInfoOutcome(page, fault);
    default:
        break;
    }
    // A status comes before the result, and is all that counts when it is not 0.
    const uint32_t status = fault.kind == EFault::Status          ? fault.status
                            : fault.kind == EFault::Noise && last ? last->call.status
                                                                  : 0;
    if (status != 0)
        return {kBadStatus, StatusText(status)};
    if (fault.kind == EFault::Noise)
        return {};
    return {kFailedCommand, TextOf(fault)};
}

const SStatusRow &RowOf(int code)
{
    for (const SStatusRow &row : kStatusRows) {
        if (row.code == code)
            return row;
    }
    qFatal("no status row %d", code);
}

}  // namespace

SWords GoodWords(const SRequest &request)
{
    SWords words;
    words.status = request.done;
    words.enabled = request.onDone;
    words.state = request.leads;
    return words;
}

SWords AnyFailureWords(const SRequest &request)
{
    SWords words;
    words.isGood = false;
    words.isAnyText = true;
    words.hasBox = true;
    words.status = request.failed;
    words.title = request.title;
    words.enabled = request.onFailed;
    words.state = request.needs;
    return words;
}

SWords WordsOf(const SPage &page, const SRequest &request, const SDoorFault &fault,
               const QVector<SJournalCall> &calls)
{
    const SOutcome outcome = OutcomeOf(page, request, fault, calls);
    SWords words = GoodWords(request);
    words.isEither = outcome.isEither;
    if (outcome.code == 0)
        return words;
    words.isGood = false;
    words.enabled = request.onFailed;
    words.state = request.needs;
    words.shown = request.shownText;
    words.isStartOnly = outcome.isStartOnly;
    const SStatusRow &row = RowOf(outcome.code);
    switch (request.voice) {
    case EVoice::StatusLine:
        words.status = request.failed + outcome.message;
        break;
    case EVoice::ModelBox:
        words.hasBox = true;
        words.title = "Error";
        words.text = QString("There are some error in this page:  %1\n%2%3\n")
                         .arg(page.title, request.title, outcome.message);
        words.icon = QMessageBox::Critical;
        break;
    case EVoice::Box:
        words.hasBox = true;
        words.status = request.failed;
        words.title = request.title;
        words.text = row.text;
        words.informative = outcome.message.isEmpty() ? QString(row.advice) : outcome.message;
        words.icon = row.icon;
        break;
    }
    return words;
}
