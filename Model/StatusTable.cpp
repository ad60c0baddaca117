#include "Model/StatusTable.h"

#include <algorithm>
#include <iterator>

namespace {

struct SRow
{
    int code;
    EStatusLevel level;
    const char *text;
    const char *advice;
};

constexpr char kCheckLoad[] = "Please check the SW load stability or connection status.";
constexpr char kRecheckLoad[] = "Please recheck SW load stability or connection status.";
constexpr char kSelectFile[] = "Please select the file that includes the data you want to operate.";

constexpr SRow kRows[] = {
    {0, eStatusNote, "Operation is successful.", ""},
    {1, eStatusError, "General error.", "Please contact the tool owner to handle it."},
    {2, eStatusNote, "Operation does not execute yet.", ""},
    {3, eStatusError, "Vond command execute failed.", kCheckLoad},
    {4, eStatusNote, "Terminated by user.", ""},
    {5, eStatusError, "Please correct the input data for parameter.", ""},
    {50, eStatusError, "File can not be operated", "Please check your file path"},
    {51, eStatusWarning, "Data does not exist in this file.", kSelectFile},
    {52, eStatusWarning, "Data is not complete in this file.", kSelectFile},
    {53, eStatusError, "File operations has the problem.",
     "Please check the file that you select."},
    {100, eStatusError, "Failed to get data from NVRAM DB.",
     "Getting the buffer size by its LID data has problem.\nPlease check your DB version."},
    {101, eStatusError, "Failed to decompose data by NVRAM DB.", "Please check your DB version."},
    {102, eStatusError, "Failed to compose data by NVRAM DB.", "Please check your DB version."},
    {103, eStatusWarning, "Only partial data is updated.",
     "Please check the DB version or the file that you select."},
    {200, eStatusWarning, "Rf chip ID is mismatch.",
     "The Rf chip ID in the file does not match that in the target.\n"
     "Please recheck the file or SW load."},
    {201, eStatusError, "Ivex init failed.", kRecheckLoad},
    {202, eStatusError, "Ivex deinit failed.", kRecheckLoad},
    {203, eStatusError, "L1 Status code != SUCCESS ",
     "Please recheck SW load stability and parameter setting of the command."},
    {204, eStatusError, "Afc evaluation encounter problem.",
     "Please the input value of Frequence error and AFC DAC"},
    {205, eStatusError, "RF capability has the problem.",
     "Please the L1 capability or SW load stability."},
    {206, eStatusError, "Run calibration library flow failed.", ""},
};

}  // namespace

SStatusRow LookupStatus(int code)
{
    const auto *row = std::find_if(std::begin(kRows), std::end(kRows),
                                   [code](const SRow &r) { return r.code == code; });
    if (row == std::end(kRows))
        row = std::prev(std::end(kRows));
    return {row->code, row->level, QString::fromLatin1(row->text),
            QString::fromLatin1(row->advice)};
}
