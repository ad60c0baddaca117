#include "tools/modelcheck/Program.h"

#include <QFile>

#include "tools/modelcheck/AllowList.h"
#include "tools/modelcheck/Check.h"

namespace {

constexpr char kUsage[] =
    "Usage: modelcheck PAGE.json PAGE.ui [PAGE.json PAGE.ui ...] [--allow FILE]\n";

constexpr char kHelp[] =
    "Checks the document of a page against the document format and against the page's\n"
    "Designer form, and prints one line a finding: file: path: what [kind]\n"
    "\n"
    "  --allow FILE  breaches that are meant, one a line: file-name path kind reason\n"
    "  --help        this text\n"
    "\n"
    "Exit code: 0 no findings, 1 findings, 2 bad arguments or a file that cannot be read.\n"
    "\n"
    "Kinds:\n";

struct SArguments
{
    QStringList pages;  // document, form, document, form...
    QString allow;
    bool help = false;
    QString error;  // empty when the call makes sense
};

SArguments ParseArguments(const QStringList &args)
{
    SArguments parsed;
    for (int i = 0; i < args.size() && parsed.error.isEmpty(); ++i) {
        const QString &arg = args.at(i);
        if (arg == QLatin1String("--help") || arg == QLatin1String("-h"))
            parsed.help = true;
        else if (arg == QLatin1String("--allow") && i + 1 < args.size() && parsed.allow.isEmpty())
            parsed.allow = args.at(++i);
        else if (arg == QLatin1String("--allow"))
            parsed.error = "--allow stands once and takes a file";
        else if (arg.startsWith(QLatin1Char('-')))
            parsed.error = QStringLiteral("unknown option \"%1\"").arg(arg);
        else
            parsed.pages.append(arg);
    }
    if (!parsed.error.isEmpty() || parsed.help)
        return parsed;
    if (parsed.pages.isEmpty() || parsed.pages.size() % 2)
        parsed.error = "a page is two files, its document and its form";
    for (int i = 0; i < parsed.pages.size() && parsed.error.isEmpty(); i += 2) {
        if (parsed.pages.at(i).endsWith(QLatin1String(".ui")))
            parsed.error =
                QStringLiteral("\"%1\" stands where a document belongs").arg(parsed.pages.at(i));
    }
    return parsed;
}

bool ReadFile(const QString &name, QByteArray &text, QTextStream &err)
{
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly)) {
        err << "modelcheck: cannot read " << name << ": " << file.errorString() << '\n';
        return false;
    }
    text = file.readAll();
    return true;
}

int Fail(QTextStream &err, const QString &what)
{
    err << "modelcheck: " << what << '\n';
    return eExitUsage;
}

void PrintHelp(QTextStream &out)
{
    out << kUsage << kHelp;
    for (int i = 0; i < int(EKind::Count); ++i) {
        const SKind &row = KindRow(EKind(i));
        out << "  " << QString(QLatin1String(row.name)).leftJustified(31) << row.meaning << '\n';
    }
}

}  // namespace

int RunModelCheck(const QStringList &args, QTextStream &out, QTextStream &err)
{
    const SArguments arguments = ParseArguments(args);
    if (!arguments.error.isEmpty()) {
        Fail(err, arguments.error);
        err << kUsage;
        return eExitUsage;
    }
    if (arguments.help) {
        PrintHelp(out);
        return eExitGood;
    }

    QByteArray allowText;
    if (!arguments.allow.isEmpty() && !ReadFile(arguments.allow, allowText, err))
        return eExitUsage;
    const SAllowList allow = ReadAllowList(QString::fromUtf8(allowText));
    if (!allow.error.isEmpty())
        return Fail(err, QStringLiteral("%1: %2").arg(arguments.allow, allow.error));

    std::vector<STextFile> files;
    for (const QString &name : arguments.pages) {
        files.push_back({name, {}});
        if (!ReadFile(name, files.back().text, err))
            return eExitUsage;
    }

    TFindings findings;
    for (std::size_t i = 0; i < files.size(); i += 2) {
        const TFindings found = CheckPage(files[i], files[i + 1]);
        findings.insert(findings.end(), found.begin(), found.end());
    }
    ApplyAllowList(allow, arguments.allow, arguments.pages, findings);
    for (const SFinding &finding : findings)
        out << FindingLine(finding) << '\n';
    return findings.empty() ? eExitGood : eExitFindings;
}
