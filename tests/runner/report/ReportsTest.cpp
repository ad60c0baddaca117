#include "Runner/report/Reports.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QXmlStreamReader>

namespace {

SCaseResult Case(int combination)
{
    SCaseResult result;
    result.plan = "Night <of> \"n78\" & more";
    result.planFile = "night.yaml";
    result.step = "gains";
    result.page = "RSSI";
    result.combination = combination;
    result.combinations = 2;
    result.sweep = {{"band", combination == 1 ? "n77" : "n78, \"wide\""}};
    return result;
}

SCaseResult Ended(int combination, EVerdict verdict)
{
    SCaseResult result = Case(combination);
    result.verdict = verdict;
    result.inputs = {{"request.group1.band", "n77"}};
    result.outputs = {{"response.group1.rssi", "RSSI (dBm)", "dBm", false, {"-70.5", "NA"}},
                      {"response.group2.RSRP0", "RSRP0", "", true, {"1", "2", "6"}}};
    result.boxes = {{"Start failed <b>", "line\nline\x01", "no"}};
    result.reasons = verdict == EVerdict::Pass ? QStringList() : QStringList{"too <low>\x02", "x"};
    result.start = QDateTime::fromMSecsSinceEpoch(1000, Qt::UTC);
    result.duration = std::chrono::milliseconds(1500);
    return result;
}

QByteArray FileText(const QString &folder, const char *name)
{
    QFile file(QDir(folder).filePath(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return file.readAll();
}

struct SRunFixture
{
    QTemporaryDir place;
    QString folder = place.filePath("out");
    SRunInfo info{"0.1", "VR6211", 7, QDateTime::fromMSecsSinceEpoch(0, Qt::UTC)};
    CReports reports;

    SRunFixture() { EXPECT_EQ(reports.Open(folder, info, {Case(1), Case(2)}), QString()); }
};

// Name of the element that a test case stands in, of each.
QStringList ParentsOfCases(const QByteArray &xml)
{
    QStringList open, parents;
    QXmlStreamReader reader(xml);
    while (!reader.atEnd()) {
        const auto token = reader.readNext();
        if (token == QXmlStreamReader::StartElement) {
            if (reader.name() == "testcase")
                parents << open.value(open.size() - 1);
            open << reader.name().toString();
        } else if (token == QXmlStreamReader::EndElement) {
            open.removeLast();
        }
    }
    return parents;
}

// Names of the elements with their number; nothing if the text is no XML.
QMap<QString, int> XmlElements(const QByteArray &xml)
{
    QMap<QString, int> elements;
    QXmlStreamReader reader(xml);
    while (!reader.atEnd())
        if (reader.readNext() == QXmlStreamReader::StartElement)
            ++elements[reader.name().toString()];
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    return reader.hasError() ? QMap<QString, int>() : elements;
}

}  // namespace

TEST(ReportsTest, aLineACaseWithInputsOutputsAndWhatGaveThem)
{
    SRunFixture run;
    run.reports.Add(0, Ended(1, EVerdict::Fail));
    run.reports.Finish("stopped");
    const QList<QByteArray> lines = FileText(run.folder, "results.jsonl").trimmed().split('\n');
    ASSERT_EQ(lines.size(), 2);
    const QJsonObject line = QJsonDocument::fromJson(lines[0]).object();
    EXPECT_EQ(line["verdict"].toString(), "fail");
    EXPECT_EQ(line["reason"].toString(), "too <low>\x02; x");
    EXPECT_EQ(line["inputs"].toObject()["request.group1.band"].toString(), "n77");
    EXPECT_EQ(line["outputs"].toArray()[0].toObject()["unit"].toString(), "dBm");
    EXPECT_EQ(line["outputs"].toArray()[1].toObject()["values"].toArray().size(), 3);
    EXPECT_EQ(line["start"].toString(), "1970-01-01T00:00:01.000Z");
    EXPECT_EQ(line["durationMs"].toDouble(), 1500);
    EXPECT_EQ(line["chip"].toString(), "VR6211");
    EXPECT_EQ(line["handle"].toInt(), 7);
    EXPECT_EQ(line["toolVersion"].toString(), "0.1");
    const QJsonObject rest = QJsonDocument::fromJson(lines[1]).object();
    EXPECT_EQ(rest["verdict"].toString(), "not run");
    EXPECT_EQ(rest["reason"].toString(), "stopped");
    EXPECT_EQ(rest["sweep"].toObject()["band"].toString(), "n78, \"wide\"");
}

TEST(ReportsTest, aRowAReadingQuotedAsTheStandardSays)
{
    SRunFixture run;
    run.reports.Add(0, Ended(1, EVerdict::Pass));
    run.reports.Add(1, Ended(2, EVerdict::Pass));
    run.reports.Finish();
    const QByteArray table = FileText(run.folder, "results.csv");
    const QList<QByteArray> rows = table.split('\n');
    ASSERT_EQ(rows.size(), 1 + 2 * 5 + 1);
    EXPECT_EQ(rows[0], "plan,step,page,combination,band,member,caption,unit,index,value,verdict,"
                       "start,chip,handle\r");
    EXPECT_EQ(rows[1], "\"Night <of> \"\"n78\"\" & more\",gains,RSSI,1,n77,response.group1.rssi,"
                       "RSSI (dBm),dBm,0,-70.5,pass,1970-01-01T00:00:01.000Z,VR6211,7\r");
    EXPECT_TRUE(rows[6].contains(",2,\"n78, \"\"wide\"\"\",")) << rows[6].toStdString();
}

TEST(ReportsTest, allFilesAreWholeBeforeTheFirstCaseAndAfterEach)
{
    SRunFixture run;
    EXPECT_EQ(XmlElements(FileText(run.folder, "junit.xml"))["skipped"], 2);
    EXPECT_TRUE(FileText(run.folder, "report.html").endsWith("</html>\n"));
    run.reports.Add(0, Ended(1, EVerdict::Error));
    EXPECT_EQ(FileText(run.folder, "results.jsonl").count('\n'), 1);
    EXPECT_EQ(XmlElements(FileText(run.folder, "junit.xml"))["testcase"], 2);
    run.reports.Finish();
    const QMap<QString, int> elements = XmlElements(FileText(run.folder, "junit.xml"));
    EXPECT_EQ(elements["error"], 1);
    EXPECT_EQ(elements["skipped"], 1);
    EXPECT_EQ(elements["failure"], 0);
}

TEST(ReportsTest, aSuiteAPlanFileWithCountsOfItsOwn)
{
    QTemporaryDir place;
    const QString folder = place.filePath("out");
    QVector<SCaseResult> cases;
    for (const EVerdict verdict : {EVerdict::Fail, EVerdict::Fail, EVerdict::Pass, EVerdict::Error,
                                   EVerdict::Error, EVerdict::NotRun, EVerdict::Error}) {
        cases << (verdict == EVerdict::NotRun ? Case(1) : Ended(1, verdict));
        if (cases.size() <= 3)
            continue;
        cases.last().plan = "Day";
        cases.last().planFile = "day.yaml";
    }
    CReports reports;
    const QDateTime start = QDateTime::fromMSecsSinceEpoch(0, Qt::UTC);
    ASSERT_EQ(reports.Open(folder, {"0.1", "VR6211", 7, start}, cases), QString());
    for (int i = 0; i < cases.size(); ++i)
        if (cases[i].verdict != EVerdict::NotRun)
            reports.Add(i, cases[i]);
    reports.Finish("stopped");
    QStringList suites;
    QXmlStreamReader reader(FileText(folder, "junit.xml"));
    EXPECT_TRUE(reader.readNextStartElement() && reader.name() == "testsuites");
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement || reader.name() != "testsuite")
            continue;
        QStringList counts;
        for (const char *name :
             {"name", "tests", "failures", "errors", "skipped", "time", "timestamp"})
            counts << reader.attributes().value(name).toString();
        suites << counts.join(' ');
    }
    EXPECT_EQ(suites, (QStringList{"Night <of> \"n78\" & more 3 2 0 0 4.500 1970-01-01T00:00:00",
                                   "Day 4 0 3 1 4.500 1970-01-01T00:00:00"}))
        << suites.join("; ").toStdString();
    const QByteArray page = FileText(folder, "report.html");
    EXPECT_TRUE(page.contains("<title>Night &lt;of&gt;"));
    for (const char *count : {">1 pass<", ">2 fail<", ">3 error<", ">1 not run<"})
        EXPECT_TRUE(page.contains(count)) << count;
}

TEST(ReportsTest, aTestCaseHasItsNameAndNoCharacterThatXmlLacks)
{
    SRunFixture run;
    run.reports.Add(0, Ended(1, EVerdict::Fail));
    run.reports.Finish();
    const QByteArray xml = FileText(run.folder, "junit.xml");
    EXPECT_TRUE(xml.startsWith("<?xml version=\"1.0\"")) << xml.toStdString();
    EXPECT_EQ(ParentsOfCases(xml), (QStringList{"testsuite", "testsuite"}));
    EXPECT_TRUE(xml.contains(" name=\"gains [band=n77]\"")) << xml.toStdString();
    EXPECT_TRUE(xml.contains("too &lt;low&gt;?")) << xml.toStdString();
    EXPECT_FALSE(xml.contains('\x02'));
}

TEST(ReportsTest, aReadingWithoutANumberHasNoFigures)
{
    QTemporaryDir place;
    const QString folder = place.filePath("out");
    SCaseResult result = Ended(1, EVerdict::Pass);
    result.outputs = {{"response.group1.rssi", "RSSI (dBm)", "dBm", true, {"NA", "NA"}}};
    CReports reports;
    ASSERT_EQ(reports.Open(folder, {"0.1", "VR6211", 7, {}}, {result}), QString());
    reports.Add(0, result);
    reports.Finish();
    const QString none = "<td class=\"n\"></td>";
    const QByteArray html = FileText(folder, "report.html");
    EXPECT_TRUE(html.contains((none + none + none + "<td class=\"n\">NA</td>").toUtf8()))
        << html.toStdString();
}

TEST(ReportsTest, noTextOfThePlanOrTheDutBecomesMarkup)
{
    SRunFixture run;
    run.reports.Add(0, Ended(1, EVerdict::Fail));
    run.reports.Finish();
    const QByteArray html = FileText(run.folder, "report.html");
    EXPECT_FALSE(html.contains("<of>") || html.contains("<low>") || html.contains("failed <b>"));
    EXPECT_TRUE(html.contains("Night &lt;of&gt; &quot;n78&quot; &amp; more"));
    EXPECT_FALSE(html.contains("http://") || html.contains("https://") || html.contains("<script"));
    EXPECT_TRUE(html.contains("<td class=\"n\">3</td>"));  // the mean of 1, 2 and 6
    EXPECT_EQ(XmlElements(FileText(run.folder, "junit.xml"))["failure"], 1);
}

TEST(ReportsTest, aFolderThatIsNotEmptyIsRefused)
{
    QTemporaryDir place;
    EXPECT_EQ(PrepareFolder(place.path()), QString());
    QFile hidden(place.filePath(".hidden"));
    ASSERT_TRUE(hidden.open(QIODevice::WriteOnly));
    EXPECT_TRUE(PrepareFolder(place.path()).endsWith("is not empty."));
    EXPECT_TRUE(PrepareFolder(place.filePath(".hidden")).endsWith("is no folder."));
    EXPECT_TRUE(PrepareFolder(place.filePath(".hidden/x")).endsWith("can't be made."));
}

TEST(ReportsTest, aFolderThatGoesDuringTheRunIsTold)
{
    SRunFixture run;
    ASSERT_TRUE(QDir(run.folder).removeRecursively());
    EXPECT_TRUE(run.reports.Finish().contains("junit.xml can't be written"));
}
