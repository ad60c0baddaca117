#include "Runner/report/ReportTexts.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace {

QJsonArray OutputsJson(const QVector<SCaseOutput> &outputs)
{
    QJsonArray array;
    for (const SCaseOutput &output : outputs)
        array.append(QJsonObject{{"member", output.name},
                                 {"caption", output.caption},
                                 {"unit", output.unit},
                                 {"kind", output.isColumn ? "column" : "member"},
                                 {"values", QJsonArray::fromStringList(output.values)}});
    return array;
}

QJsonArray BoxesJson(const QVector<SCaseBox> &boxes)
{
    QJsonArray array;
    for (const SCaseBox &box : boxes)
        array.append(QJsonObject{
            {"title", box.title}, {"text", box.text}, {"informative", box.informative}});
    return array;
}

QString CsvField(const QString &text)
{
    const bool needsQuotes = text.contains(',') || text.contains('"') || text.contains('\n') ||
                             text.contains('\r') || text.startsWith(' ') || text.endsWith(' ');
    return needsQuotes ? '"' + QString(text).replace('"', "\"\"") + '"' : text;
}

QByteArray CsvLine(const QStringList &fields)
{
    QStringList texts;
    for (const QString &field : fields)
        texts << CsvField(field);
    return (texts.join(',') + "\r\n").toUtf8();
}

}  // namespace

QString TimeText(const QDateTime &time)
{
    return time.isValid() ? time.toUTC().toString(Qt::ISODateWithMs) : QString();
}

QByteArray JsonLine(const SRunInfo &info, const SCaseResult &result)
{
    QJsonObject sweep;
    for (const auto &[key, value] : result.sweep)
        sweep.insert(key, value);
    const QJsonObject line{
        {"plan", result.plan},
        {"planFile", result.planFile},
        {"step", result.step},
        {"page", result.page},
        {"combination", result.combination},
        {"combinations", result.combinations},
        {"sweep", sweep},
        {"inputs", result.inputs},
        {"outputs", OutputsJson(result.outputs)},
        {"boxes", BoxesJson(result.boxes)},
        {"status", result.status},
        {"export", result.exported},
        {"verdict", VerdictText(result.verdict)},
        {"reason", result.reasons.join("; ")},
        {"start", TimeText(result.start)},
        {"durationMs", static_cast<double>(result.duration.count())},
        {"chip", info.chip},
        {"handle", static_cast<double>(info.handle)},
        {"toolVersion", info.toolVersion},
    };
    return QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n';
}

QByteArray CsvHeader(const QStringList &sweptKeys)
{
    return CsvLine(QStringList{"plan", "step", "page", "combination"} + sweptKeys +
                   QStringList{"member", "caption", "unit", "index", "value", "verdict", "start",
                               "chip", "handle"});
}

QByteArray CsvRows(const SRunInfo &info, const QStringList &sweptKeys, const SCaseResult &result)
{
    QStringList front{result.plan, result.step, result.page, QString::number(result.combination)};
    for (const QString &key : sweptKeys) {
        QString value;
        for (const auto &[swept, text] : result.sweep)
            value = swept == key ? text : value;
        front << value;
    }
    const QStringList back{VerdictText(result.verdict), TimeText(result.start), info.chip,
                           QString::number(info.handle)};
    QByteArray rows;
    for (const SCaseOutput &output : result.outputs)
        for (int i = 0; i < output.values.size(); ++i)
            rows += CsvLine(front +
                            QStringList{output.name, output.caption, output.unit,
                                        QString::number(i), output.values[i]} +
                            back);
    return rows;
}
