#include "Host/ReasonHint.h"

namespace {

struct SReasonHint
{
    const char *reason = "";
    const char *hint = "";
};

// The tool keeps what the DUT has told it until a reset.
constexpr SReasonHint kReasonHints[] = {
    {.reason = "It is C2K modem now.",
     .hint = "The DUT's C2K modem is active. Switch the DUT to its NR modem, then press Reset and "
             "Query."},
    {.reason = "Not Support due to without any this RAT info from SW.",
     .hint = "No DUT is plugged in, its link is down, or its software tells nothing of its radio. "
             "Look at plug and link, then press Reset and Query."},
    {.reason = "We cannot get its support status: Failed to get multi-RAT world mode ID info.",
     .hint = "The DUT has not told what its radio can do. Look at the link, then press Reset and "
             "Query."},
    {.reason = "Not support this RAT from SW multi-RAT world mode ID info.",
     .hint = "The software on the DUT has no NR. Load one that has, then press Reset and Query."},
    {.reason = "Support this RAT but it failed to get its capability info.",
     .hint = "The DUT has NR, but has not told its bands and routes. Look at the link, then press "
             "Reset and Query."},
    {.reason = "Support this RAT but it failed to get CA capability info.",
     .hint = "The DUT has NR, but has not told its routes. Look at the link, then press Reset and "
             "Query."},
};

}  // namespace

QString ReasonHint(const QString &reason)
{
    for (const SReasonHint &row : kReasonHints) {
        if (reason == QLatin1String(row.reason))
            return row.hint;
    }
    return {};
}
