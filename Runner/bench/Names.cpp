#include "Runner/bench/Names.h"

#include <QRegularExpression>

namespace {

const QString kComma = QStringLiteral(", ");

}  // namespace

SParsedName ParseName(const QString &text)
{
    static const QRegularExpression kName(
        QStringLiteral("^([^\\[\\]]+?)\\s*(?:\\[\\s*(\\d{1,6})\\s*\\])?$"));
    const QRegularExpressionMatch match = kName.match(text.trimmed());
    SParsedName parsed;
    parsed.isGood = match.hasMatch();
    parsed.name = parsed.isGood ? match.captured(1).trimmed() : text.trimmed();
    if (match.capturedLength(2) > 0)
        parsed.column = match.captured(2).toInt();
    return parsed;
}

bool IsNameOf(const QString &name, const QString &candidate)
{
    return !name.isEmpty() && (candidate == name || candidate.endsWith('.' + name));
}

SNameMatch MatchName(const QString &name, const QStringList &candidates, const QString &what)
{
    SNameMatch match;
    QStringList fitting;
    for (int i = 0; i < candidates.size(); ++i) {
        if (!IsNameOf(name, candidates[i]))
            continue;
        fitting.append(candidates[i]);
        match.index = i;
    }
    if (fitting.size() == 1)
        return match;
    match.index = -1;
    match.isSeveral = !fitting.isEmpty();
    if (match.isSeveral)
        match.refusal = {QStringLiteral("\"%1\" is the name of more than one %2.").arg(name, what),
                         fitting.join(kComma)};
    else
        match.refusal = {QStringLiteral("There is no %1 \"%2\".").arg(what, name),
                         candidates.join(kComma)};
    return match;
}
