#include "tools/modelcheck/Check.h"

#include <QJsonDocument>

#include "tools/modelcheck/Checks.h"

namespace {

// Qt's offset lies behind the token that it stumbled over, so it may already be on the next line.
int LineOf(const QByteArray &text, int offset)
{
    return text.left(qMax(0, offset - 1)).count('\n') + 1;
}

// False when there is no object to look into.
bool ReadRoot(const QByteArray &text, const SReport &report, QJsonObject &root)
{
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError) {
        report.Add(
            EKind::Parse, "(document)",
            QStringLiteral("line %1: %2").arg(LineOf(text, error.offset)).arg(error.errorString()));
        return false;
    }
    if (!document.isObject()) {
        report.Add(EKind::Root, "(document)", "the root is no object");
        return false;
    }
    root = document.object();
    return true;
}

void CheckAlone(const SPage &page, const SReport &report)
{
    for (const auto check :
         {CheckDocumentKeys, CheckEntries, CheckDefaults, CheckRelations, CheckCycles})
        check(page, report);
}

}  // namespace

TFindings CheckPage(const STextFile &document, const STextFile &form)
{
    TFindings findings;
    const SReport pageReport{document.name, findings};
    const SReport formReport{form.name, findings};

    const SForm widgets = ReadForm(form.text);
    if (!widgets.error.isEmpty())
        formReport.Add(EKind::Parse, "(form)", widgets.error);
    QJsonObject root;
    if (!ReadRoot(document.text, pageReport, root))
        return findings;

    const SPage page = ReadPage(root);
    CheckAlone(page, pageReport);
    if (widgets.error.isEmpty())
        CheckWidgets(page, widgets, pageReport, formReport);
    return findings;
}

TFindings CheckDocument(const STextFile &document)
{
    TFindings findings;
    const SReport report{document.name, findings};
    QJsonObject root;
    if (ReadRoot(document.text, report, root))
        CheckAlone(ReadPage(root), report);
    return findings;
}
