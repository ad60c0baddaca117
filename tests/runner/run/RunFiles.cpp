#include "tests/runner/run/RunFiles.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QXmlStreamReader>

#include "Trace/lines/TraceReader.h"

QByteArray FileBytes(const std::string &path)
{
    QFile file(QString::fromStdString(path));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path;
    return file.readAll();
}

QVector<QJsonObject> Lines(const CCliFolder &folder, const std::string &out)
{
    const QByteArray bytes = FileBytes(folder.Path(out + "/results.jsonl"));
    EXPECT_TRUE(bytes.isEmpty() || bytes.endsWith('\n')) << "a line is cut";
    QVector<QJsonObject> lines;
    for (const QByteArray &text : bytes.split('\n')) {
        if (text.isEmpty())
            continue;
        const QJsonDocument line = QJsonDocument::fromJson(text);
        EXPECT_TRUE(line.isObject()) << text.left(200).constData();
        lines << line.object();
    }
    return lines;
}

QStringList Verdicts(const CCliFolder &folder, const std::string &out)
{
    QStringList verdicts;
    for (const QJsonObject &line : Lines(folder, out))
        verdicts << line["verdict"].toString();
    return verdicts;
}

void ExpectWholeReports(const CCliFolder &folder, const std::string &out, int cases)
{
    EXPECT_EQ(Lines(folder, out).size(), cases);
    EXPECT_TRUE(FileBytes(folder.Path(out + "/results.csv")).endsWith("\r\n"));
    EXPECT_TRUE(FileBytes(folder.Path(out + "/report.html")).endsWith("</body></html>\n"));
    QXmlStreamReader xml(FileBytes(folder.Path(out + "/junit.xml")));
    int xmlCases = 0;
    while (!xml.atEnd())
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == "testcase")
            ++xmlCases;
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    EXPECT_EQ(xmlCases, cases);
}

QVector<SJournalEntry> JournalEntries(const std::string &path)
{
    QVector<SJournalEntry> ended, begun;
    for (const STraceCall &call : ReadTrace(path, ECutLine::LeftOut).calls) {
        const SJournalEntry entry{
            std::string(call.function->name), call.result, call.status, call.isEnded,
            call.request ? std::string(call.request->begin(), call.request->end()) : std::string()};
        (call.isEnded ? ended : begun) << entry;
    }
    return ended + begun;
}

std::string RunningTest(const QVector<SJournalEntry> &journal)
{
    std::string running;
    for (const SJournalEntry &entry : journal) {
        const bool isStart = entry.function == "VOND_MMRf_ContRxV7_r" ||
                             entry.function == "VOND_MMRf_SingleToneTxV7_r" ||
                             entry.function == "VOND_NRf_PuschTxV7_r" ||
                             entry.function == "VOND_NRf_RsrpV7_r";
        const bool isGood = entry.isEnded && entry.result == 0 && entry.status == 0;
        if (isStart && (isGood || !entry.isEnded))
            running = entry.function;
        // RF Off asks for both; each stops what its radio runs.
        const bool isNrStop = entry.function == "VOND_NRf_TestStop_r";
        const bool isMultiStop = entry.function == "VOND_MMRf_TestStopV7_r";
        const bool isNrTest = running.rfind("VOND_NRf_", 0) == 0;
        if (isGood && ((isNrStop && isNrTest) || (isMultiStop && !isNrTest)))
            running.clear();
    }
    return running;
}
