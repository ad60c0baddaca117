#include "tools/modelcheck/AllowList.h"

#include <algorithm>

#include <QFileInfo>
#include <QRegularExpression>

namespace {

bool IsSamePlace(const SAllowLine &a, const SAllowLine &b)
{
    return a.file == b.file && a.path == b.path && a.kind == b.kind;
}

// The line's error in words; empty when it is good and has been added.
QString AddLine(const QString &text, int number, std::vector<SAllowLine> &lines)
{
    static const QRegularExpression form(
        QStringLiteral("^(\\S+)\\s+(?:\"([^\"]+)\"|(\\S+))\\s+(\\S+)\\s+(\\S.*)$"));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return QStringLiteral("a line is: file-name path kind reason");
    const SKind *kind = FindKind(match.captured(4));
    if (!kind || kind->kind == EKind::StaleAllow)
        return QStringLiteral("unknown kind \"%1\"").arg(match.captured(4));
    const SAllowLine line{match.captured(1), match.captured(2) + match.captured(3), kind->kind,
                          match.captured(5), number};
    for (const SAllowLine &earlier : lines) {
        if (IsSamePlace(earlier, line))
            return QStringLiteral("repeats line %1").arg(earlier.line);
    }
    lines.push_back(line);
    return {};
}

bool Excuses(const SAllowLine &line, const SFinding &finding)
{
    return line.kind == finding.kind && line.path == finding.path &&
           line.file == QFileInfo(finding.file).fileName();
}

QStringList WithoutFolders(const QStringList &files)
{
    QStringList names;
    for (const QString &file : files)
        names.append(QFileInfo(file).fileName());
    return names;
}

}  // namespace

SAllowList ReadAllowList(const QString &text)
{
    SAllowList list;
    int number = 0;
    for (const QString &raw : text.split(QLatin1Char('\n'))) {
        ++number;
        const QString line = raw.trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
            continue;
        const QString error = AddLine(line, number, list.lines);
        if (!error.isEmpty()) {
            list.error = QStringLiteral("line %1: %2").arg(number).arg(error);
            return list;
        }
    }
    return list;
}

void ApplyAllowList(const SAllowList &list, const QString &listName, const SCheckedFiles &checked,
                    TFindings &findings)
{
    const QStringList all = WithoutFolders(checked.all);
    const QStringList alone = WithoutFolders(checked.withoutForms);
    TFindings stale;
    for (const SAllowLine &line : list.lines) {
        const auto rest =
            std::remove_if(findings.begin(), findings.end(),
                           [&line](const SFinding &finding) { return Excuses(line, finding); });
        const SKind &kind = KindRow(line.kind);
        const bool lookedAt = !kind.needsForm || !alone.contains(line.file);
        if (rest == findings.end() && all.contains(line.file) && lookedAt)
            stale.push_back({listName, line.path, EKind::StaleAllow,
                             QStringLiteral("allowed breach does not occur (line %1: %2, %3)")
                                 .arg(line.line)
                                 .arg(line.file, QLatin1String(kind.name))});
        findings.erase(rest, findings.end());
    }
    findings.insert(findings.end(), stale.begin(), stale.end());
}
