#include "Host/dut/FaultWords.h"

#include "Trace/dictionary/Functions.h"

namespace {

QString Percent(double probability)
{
    return QString::number(probability * 100, 'g', 4) + " % of the calls";
}

QString Number(const QJsonObject &fault, const char *key)
{
    return QString::number(fault.value(key).toDouble(), 'g', 10);
}

QString StuckWords(const QJsonObject &fault)
{
    QStringList parts = {fault.value("record").toString(), "route " + Number(fault, "route")};
    if (fault.contains("bandwidth"))
        parts << Number(fault, "bandwidth") + " kHz";
    parts << "block " + Number(fault, "block") << fault.value("field").toString();
    return parts.join(", ");
}

}  // namespace

QStringList FaultFunctions()
{
    QStringList names;
    for (int i = 0; i < static_cast<int>(EFunction::Count); ++i) {
        const std::string_view name = FunctionOf(static_cast<EFunction>(i)).name;
        names << QString::fromLatin1(name.data(), static_cast<int>(name.size()));
    }
    return names;
}

QString ParameterWords(const QJsonObject &fault)
{
    const QString kind = fault.value("kind").toString();
    if (kind == "fail")
        return "result " + QString::number(fault.value("result").toInt(kFailResult));
    if (kind == "status")
        return "status " + Number(fault, "status");
    if (kind == "delay")
        return Number(fault, "ms") + " ms";
    if (kind == "bytes")
        return QString("at %1: %2").arg(Number(fault, "offset"), fault.value("hex").toString());
    if (kind == "powerCut")
        return QString("block %1%2")
            .arg(Number(fault, "block"), fault.value("torn").toBool() ? ", torn" : "");
    if (kind == "stuck")
        return StuckWords(fault);
    return fault.contains("seed") ? "seed " + Number(fault, "seed") : QString();
}

QString WhenWords(const QJsonObject &fault, const QJsonObject &when)
{
    const QString function = when.value("function").toString();
    const QString of = function.isEmpty() || function == fault.value("function").toString()
                           ? QString()
                           : " of " + function;
    if (fault.contains("nth"))
        return "call " + Number(fault, "nth");
    if (when.contains("call"))
        return "call " + Number(when, "call") + of;
    if (when.contains("every"))
        return QString("each %1th call%2").arg(Number(when, "every"), of);
    if (fault.contains("probability"))
        return Percent(fault.value("probability").toDouble());
    if (when.contains("probability"))
        return Percent(when.value("probability").toDouble()) + of;
    return "always";
}
