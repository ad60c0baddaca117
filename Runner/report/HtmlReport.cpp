#include "Runner/report/HtmlReport.h"

#include <QJsonArray>

#include "Runner/report/ReportTexts.h"

namespace {

// No script, and by its policy no request to anywhere.
constexpr char kHead[] = R"(<!DOCTYPE html>
<html lang="en"><head><meta charset="utf-8">
<meta http-equiv="Content-Security-Policy" content="default-src 'none'; style-src 'unsafe-inline'">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>%1</title>
<style>
body { font: 14px sans-serif; margin: 2em; color: #222; background: #fff; }
table { border-collapse: collapse; margin: 0.5em 0 1.5em; }
th, td { border: 1px solid #ccc; padding: 3px 8px; text-align: left; vertical-align: top; }
th { background: #eee; }
td.n { text-align: right; font-variant-numeric: tabular-nums; }
.pass { color: #17692b; } .fail, .error { color: #a8121b; font-weight: bold; } .not-run { color: #777; }
details { margin: 0.2em 0; } summary { cursor: pointer; }
</style></head><body>
)";

QString Html(const QString &text)
{
    QString printable = text;
    for (QChar &c : printable)
        if (c < ' ' && c != '\n' && c != '\t')
            c = '?';
    return printable.toHtmlEscaped();
}

QString Cell(const QString &text)
{
    return "<td>" + Html(text) + "</td>";
}

QString NumberCell(const QString &text)
{
    return "<td class=\"n\">" + Html(text) + "</td>";
}

QString VerdictCell(EVerdict verdict)
{
    const QString text = VerdictText(verdict);
    return QString("<td class=\"%1\">%2</td>").arg(QString(text).replace(' ', '-'), text);
}

QString Overview(const SRunInfo &info, const QVector<SCaseSummary> &cases)
{
    QString html = QString("<h1>Quorlin RF: %1</h1>\n<p>")
                       .arg(Html(cases.isEmpty() ? QString() : cases[0].result.plan));
    for (EVerdict verdict : {EVerdict::Pass, EVerdict::Fail, EVerdict::Error, EVerdict::NotRun}) {
        int count = 0;
        for (const SCaseSummary &summary : cases)
            count += summary.result.verdict == verdict;
        const QString text = VerdictText(verdict);
        html += QString("<span class=\"%1\">%2 %3</span> &nbsp; ")
                    .arg(QString(text).replace(' ', '-'))
                    .arg(count)
                    .arg(text);
    }
    html += "</p>\n<table>";
    const QVector<QPair<QString, QString>> rows{{"DUT", info.chip},
                                                {"Handle", QString::number(info.handle)},
                                                {"Tool", info.toolVersion},
                                                {"Started", TimeText(info.start)}};
    for (const auto &[name, value] : rows)
        html += "<tr><th>" + name + "</th>" + Cell(value) + "</tr>";
    return html + "</table>\n";
}

QString CaseTable(const QVector<SCaseSummary> &cases)
{
    QString html = "<h2>Verdicts</h2>\n<table><tr><th>Plan</th><th>Step</th><th>Page</th>"
                   "<th>Verdict</th><th>Why</th><th>Time, s</th></tr>\n";
    for (const SCaseSummary &summary : cases) {
        const SCaseResult &result = summary.result;
        html += "<tr>" + Cell(result.plan) + Cell(CaseName(result)) + Cell(result.page) +
                VerdictCell(result.verdict) + Cell(result.reasons.join("; ")) +
                NumberCell(QString::number(static_cast<double>(result.duration.count()) / 1000.0,
                                           'f', 3)) +
                "</tr>\n";
    }
    return html + "</table>\n";
}

QString ReadingTable(const QVector<SReadings> &readings)
{
    QString html = "<table><tr><th>Reading</th><th>Unit</th><th>Count</th><th>Min</th><th>Mean</th>"
                   "<th>Max</th><th>Last</th></tr>\n";
    for (const SReadings &row : readings) {
        const bool isNumber = row.numbers > 0;
        const auto number = [isNumber](double value) {
            return NumberCell(isNumber ? QString::number(value, 'g', 8) : QString());
        };
        html += "<tr><td title=\"" + Html(row.name) + "\">" +
                Html(row.caption.isEmpty() ? row.name : row.caption) + "</td>" + Cell(row.unit) +
                NumberCell(QString::number(row.count)) + number(row.min) + number(row.mean) +
                number(row.max) + NumberCell(row.last) + "</tr>\n";
    }
    return html + "</table>\n";
}

QString CaseDetails(const SCaseSummary &summary)
{
    const SCaseResult &result = summary.result;
    if (result.verdict == EVerdict::NotRun)
        return {};
    QString html = "<details><summary>" + Html(CaseName(result)) + "</summary>\n";
    if (!summary.readings.isEmpty())
        html += ReadingTable(summary.readings);
    for (const SCaseBox &box : result.boxes)
        html += "<p>Box: " + Html(QStringList{box.title, box.text, box.informative}.join(" / ")) +
                "</p>\n";
    html += "<table><tr><th>Input</th><th>Value</th></tr>\n";
    for (auto input = result.inputs.begin(); input != result.inputs.end(); ++input) {
        const QJsonValue value = input.value();
        QStringList texts;
        for (const QVariant &cell : value.toArray().toVariantList())
            texts << cell.toString();
        html += "<tr>" + Cell(input.key()) +
                Cell(value.isArray() ? texts.join(", ") : value.toString()) + "</tr>\n";
    }
    return html + "</table></details>\n";
}

}  // namespace

QByteArray HtmlReport(const SRunInfo &info, const QVector<SCaseSummary> &cases)
{
    const QString title = cases.isEmpty() ? QString("Quorlin RF") : cases[0].result.plan;
    QString html = QString(kHead).replace("%1", Html(title)) + Overview(info, cases) +
                   CaseTable(cases) + "<h2>Details</h2>\n";
    for (const SCaseSummary &summary : cases)
        html += CaseDetails(summary);
    return (html + "</body></html>\n").toUtf8();
}
