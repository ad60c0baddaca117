#include "tools/modelcheck/Program.h"

#include <QFile>

#include "tools/modelcheck/AllowList.h"
#include "tools/modelcheck/Check.h"

namespace {

constexpr char kUsage[] =
    "Usage: modelcheck PAGE.json [PAGE.ui] [PAGE.json [PAGE.ui] ...] [--allow FILE]\n";

constexpr char kHelp[] =
    "Checks the document of a page against the document format and against the page's\n"
    "Designer form, and prints one line a finding: file: path: what [kind]\n"
    "A document with no form behind it is checked alone; nothing is said of widgets.\n"
    "\n"
    "  --allow FILE  breaches that are meant, one a line: file-name path kind reason\n"
    "  --help        this text\n"
    "\n"
    "Exit code: 0 no findings, 1 findings, 2 bad arguments or a file that cannot be read.\n"
    "\n"
    "Kinds:\n";

struct SPageFiles
{
    QString document;
    QString form;  // empty: the document is checked alone
};

struct SArguments
{
    std::vector<SPageFiles> pages;
    QString allow;
    bool help = false;
    QString error;  // empty when the call makes sense
};

// The error in words; empty when the file has found its place.
QString AddFile(const QString &file, std::vector<SPageFiles> &pages)
{
    if (!file.endsWith(QLatin1String(".ui")))
        pages.push_back({file, {}});
    else if (pages.empty() || !pages.back().form.isEmpty())
        return QStringLiteral("\"%1\" stands where a document belongs").arg(file);
    else
        pages.back().form = file;
    return {};
}

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
            parsed.error = AddFile(arg, parsed.pages);
    }
    if (parsed.error.isEmpty() && !parsed.help && parsed.pages.empty())
        parsed.error = "no page is given";
    return parsed;
}

// What is read before anything is checked.
struct SPageTexts
{
    STextFile document;
    STextFile form;
};

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

SCheckedFiles CheckedFiles(const std::vector<SPageFiles> &pages)
{
    SCheckedFiles checked;
    for (const SPageFiles &page : pages) {
        checked.all.append(page.document);
        if (page.form.isEmpty())
            checked.withoutForms.append(page.document);
        else
            checked.all.append(page.form);
    }
    return checked;
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

    std::vector<SPageTexts> texts;
    for (const SPageFiles &page : arguments.pages) {
        texts.push_back({{page.document, {}}, {page.form, {}}});
        if (!ReadFile(page.document, texts.back().document.text, err))
            return eExitUsage;
        if (!page.form.isEmpty() && !ReadFile(page.form, texts.back().form.text, err))
            return eExitUsage;
    }

    TFindings findings;
    for (const SPageTexts &page : texts) {
        const TFindings found = page.form.name.isEmpty() ? CheckDocument(page.document)
                                                         : CheckPage(page.document, page.form);
        findings.insert(findings.end(), found.begin(), found.end());
    }
    ApplyAllowList(allow, arguments.allow, CheckedFiles(arguments.pages), findings);
    for (const SFinding &finding : findings)
        out << FindingLine(finding) << '\n';
    return findings.empty() ? eExitGood : eExitFindings;
}
