#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>

#include "Support/CsvField.h"
#include "View/results/CsvWriter.h"
#include "View/results/JsonLinesWriter.h"
#include "View/results/ResultHeader.h"
#include "tests/view/results/SampleResults.h"

namespace {

QByteArray CsvOf(const SResultTable &table)
{
    QBuffer out;
    out.open(QIODevice::WriteOnly);
    EXPECT_TRUE(WriteCsv(out, table, GoOn));
    return out.data();
}

QList<QByteArray> JsonLinesOf(const SResultTable &table)
{
    QBuffer out;
    out.open(QIODevice::WriteOnly);
    EXPECT_TRUE(WriteJsonLines(out, table, GoOn));
    QList<QByteArray> lines = out.data().split('\n');
    EXPECT_TRUE(lines.takeLast().isEmpty());
    return lines;
}

// Cells with all that a CSV field has to be careful with.
QVector<QStringList> NastyRows()
{
    return {{"-85.25", "plain"}, {"", "comma, and \"mark\""},    {"NAN", "two\r\nlines"},
            {" blank ", "\""},   {"µ°–中文🙂", "\ttab"}, {"=1+1", ",,,"}};
}

}  // namespace

TEST(CsvWriter, quotesWhatHasToBeQuoted)
{
    EXPECT_EQ(CsvField("-85.25"), QByteArray("-85.25"));
    EXPECT_EQ(CsvField(""), QByteArray(""));
    EXPECT_EQ(CsvField("a,b"), QByteArray("\"a,b\""));
    EXPECT_EQ(CsvField("say \"so\""), QByteArray("\"say \"\"so\"\"\""));
    EXPECT_EQ(CsvField("a\nb"), QByteArray("\"a\nb\""));
    EXPECT_EQ(CsvField("a\rb"), QByteArray("\"a\rb\""));
    EXPECT_EQ(CsvField(" a\t"), QByteArray(" a\t"));
}

TEST(CsvWriter, writesHeadersAndRowsEndedByCrLf)
{
    const QByteArray time = ResultTime(1700000000250).toLatin1();
    EXPECT_EQ(CsvOf(SampleResults({{"-85.25", "NAN"}})),
              "Time,RSRP0 (dBm),Remark\r\n" + time + ",-85.25,NAN\r\n");
    EXPECT_EQ(CsvOf(SampleResults({})), QByteArray("Time,RSRP0 (dBm),Remark\r\n"));
}

TEST(CsvWriter, addsTheSettingsOfEachRow)
{
    SResultTable table = SampleResults({{"1", ""}});
    table.rows.Add({.timeMs = 1700000000250, .settings = 1}, {"2", ""});
    table.headers.append("Band");
    table.settingTexts = {{"n1"}, {"n78"}};
    const QList<QByteArray> lines = CsvOf(table).split('\n');
    EXPECT_TRUE(lines[1].endsWith(",1,,n1\r"));
    EXPECT_TRUE(lines[2].endsWith(",2,,n78\r"));
}

TEST(CsvWriter, isReadBackByPython)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("rows.csv"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(WriteCsv(file, SampleResults(NastyRows()), GoOn));
    file.close();
    QProcess python;
    python.start(PYTHON, {"-c",
                          "import csv, json, sys\n"
                          "with open(sys.argv[1], newline='', encoding='utf-8') as f:\n"
                          "    print(json.dumps(list(csv.reader(f, strict=True))))\n",
                          file.fileName()});
    ASSERT_TRUE(python.waitForFinished());
    const QJsonArray lines = QJsonDocument::fromJson(python.readAllStandardOutput()).array();
    const QVector<QStringList> rows = NastyRows();
    ASSERT_EQ(lines.size(), rows.size() + 1);
    for (int i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(lines[i + 1].toArray()[1].toString(), rows[i][0]);
        EXPECT_EQ(lines[i + 1].toArray()[2].toString(), rows[i][1]);
        EXPECT_EQ(lines[i + 1].toArray().size(), 3);
    }
}

TEST(JsonLinesWriter, writesNumbersAsNumbersAndOtherTextsAsTexts)
{
    EXPECT_EQ(JsonValueText("-85.25"), QByteArray("-85.25"));
    EXPECT_EQ(JsonValueText("0.00"), QByteArray("0.00"));
    EXPECT_EQ(JsonValueText("1e-05"), QByteArray("1e-05"));
    for (const char *text : {"", "-", "007", ".5", "5.", "1e", "NAN", "1 ", "0x1", "n78", "1e+"})
        EXPECT_EQ(JsonValueText(text), '"' + QByteArray(text) + '"');
    EXPECT_EQ(JsonValueText("a\"b\\\n"), QByteArray(R"("a\"b\\\n")"));
}

TEST(JsonLinesWriter, eachLineIsAnObject)
{
    const QList<QByteArray> lines = JsonLinesOf(SampleResults(NastyRows()));
    const QVector<QStringList> rows = NastyRows();
    ASSERT_EQ(lines.size(), rows.size() + 1);
    EXPECT_EQ(QJsonDocument::fromJson(lines[0]).object(), SampleResults({}).settings);
    for (int i = 0; i < rows.size(); ++i) {
        const QJsonObject row = QJsonDocument::fromJson(lines[i + 1]).object();
        EXPECT_EQ(row["RSRP0 (dBm)"].toVariant().toString(), rows[i][0]);
        EXPECT_EQ(row["Remark"].toString(), rows[i][1]);
        EXPECT_EQ(row["Time"].toString(), ResultTime(1700000000250));
    }
}

TEST(ResultTime, hasMillisecondsAndAnOffset)
{
    qputenv("TZ", "Europe/Berlin");
    tzset();
    EXPECT_EQ(ResultTime(1700000000250), "2023-11-14T23:13:20.250+01:00");
    EXPECT_EQ(ResultTime(1690000000007), "2023-07-22T06:26:40.007+02:00");
    qputenv("TZ", "UTC");
    tzset();
    EXPECT_EQ(ResultTime(1700000000250), "2023-11-14T22:13:20.250+00:00");
}

TEST(ResultHeader, hasTheUnit)
{
    EXPECT_EQ(ResultHeader("RSRP0", "RSRP0"), "RSRP0 (dBm)");
    EXPECT_EQ(ResultHeader("BLER", "BLER(%)"), "BLER (%)");
    EXPECT_EQ(ResultHeader("dlFrequency", "DL Freq.(1kHz)"), "DL Freq. (kHz)");
    EXPECT_EQ(ResultHeader("path0MainRfGain", "Path0 Main Rf Gain"), "Path0 Main Rf Gain (dB)");
    EXPECT_EQ(ResultHeader("adviseDlPower", "Advised DL Power (dBm)"), "Advised DL Power (dBm)");
    EXPECT_EQ(ResultHeader("pdValue", ""), "PD value (dBm)");
    EXPECT_EQ(ResultHeader("gainModeP0", "Gain Mode(RXM, RXD)"), "Gain Mode(RXM, RXD)");
    EXPECT_EQ(ResultHeader("BadBLK", "Bad BLK"), "Bad BLK");
    EXPECT_EQ(DistinctHeaders({"Band", "Route", "Band"}),
              QStringList({"Band", "Route", "Band #2"}));
}

TEST(CsvWriter, endsWhenItIsToldTo)
{
    QVector<QStringList> rows(20000, {"-85.25", ""});
    QBuffer out;
    out.open(QIODevice::WriteOnly);
    int asked = 0;
    EXPECT_FALSE(WriteCsv(out, SampleResults(rows), [&asked] { return ++asked < 3; }));
    EXPECT_EQ(asked, 3);
}
