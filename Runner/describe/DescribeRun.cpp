#include "Runner/describe/DescribeRun.h"

#include <cstdio>

#include <QJsonDocument>

#include "Runner/bench/BenchApplication.h"
#include "Runner/bench/BenchPage.h"
#include "Runner/bench/CleanStdout.h"
#include "Runner/describe/DescribeJson.h"
#include "Runner/describe/DescribeText.h"

namespace {

int Trouble(const QString &text, int exitCode)
{
    std::fprintf(stderr, "quorlin: %s\n", qUtf8Printable(text));
    return exitCode;
}

}  // namespace

int ExitCodeOf(EBenchError error)
{
    switch (error) {
    case EBenchError::None:
        return 0;
    case EBenchError::Wrong:
        return 2;
    case EBenchError::Unsupported:
        return 3;
    case EBenchError::Failed:
        break;
    }
    return 4;
}

int RunDescribe(const SDescribeOptions &options)
{
    CCleanStdout out;
    const auto application = MakeBenchApplication(options.isVerbose);
    CBench bench;
    const SBenchError error = bench.Open(options.bench);
    if (error.kind != EBenchError::None)
        return Trouble(error.text, ExitCodeOf(error.kind));
    SRefusal refusal;
    CBenchPage *page = nullptr;
    if (!options.page.isEmpty()) {
        page = bench.FindPage(options.page, &refusal);
        if (!page)
            return Trouble(refusal.Text(), ExitCodeOf(EBenchError::Wrong));
    }
    const QByteArray text =
        options.isJson
            ? QJsonDocument(page ? DescribePage(bench, *page) : DescribeTool(bench)).toJson()
            : (page ? DescribePageText(*page) : DescribeToolText(bench)).toUtf8();
    return out.Write(text) ? 0 : Trouble(QStringLiteral("Nobody reads the output."), 4);
}
