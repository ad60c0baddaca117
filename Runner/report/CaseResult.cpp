#include "Runner/report/CaseResult.h"

QString VerdictText(EVerdict verdict)
{
    switch (verdict) {
    case EVerdict::Pass:
        return QStringLiteral("pass");
    case EVerdict::Fail:
        return QStringLiteral("fail");
    case EVerdict::Error:
        return QStringLiteral("error");
    case EVerdict::NotRun:
        break;
    }
    return QStringLiteral("not run");
}

QString CaseName(const SCaseResult &result)
{
    QStringList values;
    for (const auto &[key, value] : result.sweep)
        values << key + '=' + value;
    return values.isEmpty() ? result.step : result.step + " [" + values.join(", ") + ']';
}
