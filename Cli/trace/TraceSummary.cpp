#include "Cli/trace/TraceSummary.h"

#include <algorithm>
#include <array>
#include <vector>

#include "Cli/Commands.h"
#include "Cli/trace/Output.h"
#include "Cli/trace/TraceText.h"
#include "Trace/lines/PrintableText.h"
#include "Trace/words/CallText.h"

namespace {

struct SFigures
{
    std::size_t calls = 0;
    std::size_t failures = 0;
    std::size_t open = 0;
    std::vector<uint64_t> durations;  // ns, of the calls that ended

    void Add(const STraceCall &call)
    {
        ++calls;
        failures += HasFailed(call) ? 1 : 0;
        open += call.isEnded ? 0 : 1;
        if (call.isEnded)
            durations.push_back(call.durationNs);
    }
};

// The least duration that so many percent of the calls do not exceed.
std::string Percentile(const std::vector<uint64_t> &sorted, std::size_t percent)
{
    if (sorted.empty())
        return "-";
    const std::size_t rank = (sorted.size() * percent + 99) / 100;
    return DurationText(sorted[std::max<std::size_t>(rank, 1) - 1]);
}

using Row = std::array<std::string, 7>;

Row RowOf(std::string_view name, SFigures &figures)
{
    std::vector<uint64_t> &durations = figures.durations;
    std::sort(durations.begin(), durations.end());
    return {std::to_string(figures.calls),
            std::to_string(figures.failures),
            std::to_string(figures.open),
            Percentile(durations, 50),
            Percentile(durations, 95),
            Percentile(durations, 100),
            std::string(name)};
}

// Columns on a terminal; a µ is two bytes.
std::size_t WidthOf(const std::string &text)
{
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char sign) { return (sign & 0xc0) != 0x80; }));
}

void PrintRows(COutput &output, const std::vector<Row> &rows)
{
    std::array<std::size_t, std::tuple_size_v<Row>> widths = {};
    for (const Row &row : rows) {
        for (std::size_t i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], WidthOf(row[i]));
    }
    for (const Row &row : rows) {
        std::string line;
        for (std::size_t i = 0; i + 1 < row.size(); ++i)
            line.append(widths[i] - WidthOf(row[i]), ' ').append(row[i]).append("  ");
        line += row.back();
        output.Line(&row == &rows.front() ? output.Palette().Heading(line) : line);
    }
}

}  // namespace

int SummarizeTrace(const std::string &path)
{
    const STrace trace = ReadTrace(path, ECutLine::LeftOut);
    WarnOfCutLine(path, trace);
    std::array<SFigures, static_cast<std::size_t>(EFunction::Count)> figures;
    std::vector<EFunction> order;  // of the first calls
    SFigures all;
    for (const STraceCall &call : trace.calls) {
        SFigures &own = figures[static_cast<std::size_t>(call.function->id)];
        if (own.calls == 0)
            order.push_back(call.function->id);
        own.Add(call);
        all.Add(call);
    }
    std::vector<Row> rows = {{"calls", "failed", "open", "median", "95 %", "longest", "function"}};
    for (const EFunction id : order)
        rows.push_back(RowOf(FunctionOf(id).name, figures[static_cast<std::size_t>(id)]));
    rows.push_back(RowOf("all", all));

    COutput output;
    output.Line(HeaderText(path, trace.header));
    output.Line();
    PrintRows(output, rows);
    output.End();
    return kExitGood;
}
