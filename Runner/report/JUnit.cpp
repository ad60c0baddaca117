#include "Runner/report/JUnit.h"

#include <QXmlStreamWriter>

#include "Runner/report/ReportTexts.h"

namespace {

// XML has no way to write most control characters.
QString XmlText(QString text)
{
    for (QChar &c : text) {
        const bool isAllowed = c >= ' ' || c == '\t' || c == '\n';
        if (!isAllowed || c == QChar(0xfffe) || c == QChar(0xffff) || c.isSurrogate())
            c = '?';
    }
    return text;
}

QString Seconds(std::chrono::milliseconds duration)
{
    return QString::number(static_cast<double>(duration.count()) / 1000.0, 'f', 3);
}

void WriteCase(QXmlStreamWriter &xml, const SCaseResult &result)
{
    xml.writeStartElement("testcase");
    xml.writeAttribute("classname", XmlText(result.plan + '.' + result.step));
    xml.writeAttribute("name", XmlText(CaseName(result)));
    xml.writeAttribute("time", Seconds(result.duration));
    const QString reason = XmlText(result.reasons.join('\n'));
    if (result.verdict == EVerdict::NotRun) {
        xml.writeStartElement("skipped");
        xml.writeAttribute("message", reason.isEmpty() ? "not run" : reason);
        xml.writeEndElement();
    } else if (result.verdict != EVerdict::Pass) {
        xml.writeStartElement(result.verdict == EVerdict::Fail ? "failure" : "error");
        xml.writeAttribute("message", XmlText(result.reasons.value(0)));
        xml.writeCharacters(reason);
        xml.writeEndElement();
    }
    xml.writeEndElement();
}

void WriteSuite(QXmlStreamWriter &xml, const SRunInfo &info, const QVector<SCaseSummary> &cases,
                int first, int end)
{
    int failures = 0, errors = 0, skipped = 0;
    std::chrono::milliseconds time{0};
    for (int i = first; i < end; ++i) {
        const SCaseResult &result = cases[i].result;
        failures += result.verdict == EVerdict::Fail;
        errors += result.verdict == EVerdict::Error;
        skipped += result.verdict == EVerdict::NotRun;
        time += result.duration;
    }
    xml.writeStartElement("testsuite");
    xml.writeAttribute("name", XmlText(cases[first].result.plan));
    xml.writeAttribute("tests", QString::number(end - first));
    xml.writeAttribute("failures", QString::number(failures));
    xml.writeAttribute("errors", QString::number(errors));
    xml.writeAttribute("skipped", QString::number(skipped));
    xml.writeAttribute("time", Seconds(time));
    xml.writeAttribute("timestamp", info.start.toUTC().toString("yyyy-MM-ddTHH:mm:ss"));
    xml.writeStartElement("properties");
    const QVector<QPair<QString, QString>> properties{{"chip", info.chip},
                                                      {"handle", QString::number(info.handle)},
                                                      {"toolVersion", info.toolVersion}};
    for (const auto &[name, value] : properties) {
        xml.writeEmptyElement("property");
        xml.writeAttribute("name", name);
        xml.writeAttribute("value", XmlText(value));
    }
    xml.writeEndElement();
    for (int i = first; i < end; ++i)
        WriteCase(xml, cases[i].result);
    xml.writeEndElement();
}

}  // namespace

QByteArray JUnitXml(const SRunInfo &info, const QVector<SCaseSummary> &cases)
{
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(1);
    xml.writeStartDocument();
    xml.writeStartElement("testsuites");
    for (int first = 0, end = 0; first < cases.size(); first = end) {
        while (end < cases.size() && cases[end].result.planFile == cases[first].result.planFile)
            ++end;
        WriteSuite(xml, info, cases, first, end);
    }
    xml.writeEndElement();
    xml.writeEndDocument();
    return bytes;
}
