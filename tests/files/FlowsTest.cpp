// Each flow that writes files, each of its system calls gone wrong.
#include <atomic>

#include <gtest/gtest.h>

#include <QDir>
#include <QRegularExpression>

#include "Controller/guard/BackupFiles.h"
#include "Host/door/TraceSave.h"
#include "Runner/report/Reports.h"
#include "Support/CalIniFile.h"
#include "Support/Settings.h"
#include "Support/WholeFile.h"
#include "View/results/ResultFile.h"
#include "tests/files/FileFlow.h"
#include "tests/view/results/SampleResults.h"

namespace {

QString Of(const QString &folder, const char *name)
{
    return folder + '/' + name;
}

TEST(FlowsTest, settingsOfAPage)
{
    // One below the buffer of a file, one far above.
    for (const int size : {500, 100000}) {
        TryEachCall(
            {.name = size < 1000 ? "settings of a page" : "a picture",
             .prepare =
                 [](const QString &folder) { PutFile(Of(folder, "mine.json"), "{\"old\": 1}"); },
             .run =
                 [size](const QString &folder) {
                     const QString file = Of(folder, "mine.json");
                     const QString why = SaveWhole(file, QByteArray(size, 'x'));
                     return why.isEmpty() ? why : file + ": " + why;
                 }});
    }
}

TEST(FlowsTest, exportOfResults)
{
    for (const char *name : {"rsrp.csv", "rsrp.jsonl"}) {
        TryEachCall(
            {.name = name,
             .prepare =
                 [name](const QString &folder) {
                     PutFile(Of(folder, name), "old rows\n");
                     PutFile(Of(folder, "rsrp.json"), "{\"tool\": \"0\", \"chip\": \"old\"}");
                 },
             .run =
                 [name](const QString &folder) {
                     return WriteResultFile(Of(folder, name),
                                            SampleResults({{"-85.25", "a"}, {"-86", "b"}}), GoOn);
                 }});
    }
}

TEST(FlowsTest, exportOfResultsIntoAnEmptyFolder)
{
    TryEachCall(
        {.name = "new CSV", .run = [](const QString &folder) {
             return WriteResultFile(Of(folder, "rsrp.csv"), SampleResults({{"-85.25", "a"}}), GoOn);
         }});
}

TEST(FlowsTest, exportOfCalibrationData)
{
    TryEachCall({.name = "INI file of calibration data",
                 .prepare =
                     [](const QString &folder) {
                         PutFile(Of(folder, "cal.ini"), "\xEF\xBB\xBF[kept]\r\nkey = 1\r\n");
                     },
                 .run =
                     [](const QString &folder) {
                         try {
                             CCalIniFile file(Of(folder, "cal.ini").toStdWString().c_str());
                             CCalIniFile::CBatch batch(file);
                             file.WriteInt("new", "key", 2);
                             batch.Commit();
                             return QString();
                         } catch (const std::exception &error) {
                             return QString(error.what());
                         }
                     }});
}

TEST(FlowsTest, traceSavedByTheDoorPanel)
{
    class CNoCalls : public IDoorSource
    {
    public:
        void Poll(SDoorNews &, DoorClock::time_point) override {}
        uint64_t FirstPlace() override { return 0; }
        std::optional<STraceCall> Read(const SDoorCall &call) const override
        {
            STraceCall read;
            read.index = call.number;
            read.function = call.function;
            return read;
        }
        STraceHeader Header() const override { return {}; }
        QString About() const override { return {}; }
    };
    TryEachCall(
        {.name = "trace of the door panel",
         .prepare = [](const QString &folder) { PutFile(Of(folder, "run.jsonl"), "old trace\n"); },
         .run =
             [](const QString &folder) {
                 const std::atomic<bool> isStopped = false;
                 std::vector<SDoorCall> calls(3);
                 for (std::size_t i = 0; i < calls.size(); ++i) {
                     calls[i].number = i;
                     calls[i].function = &FunctionOf(static_cast<EFunction>(i));
                 }
                 return SaveTrace(CNoCalls(), {}, calls, Of(folder, "run.jsonl"), isStopped).error;
             }});
}

// The name has the time: it is taken away, so that two runs compare.
TEST(FlowsTest, backup)
{
    const auto run = [](const QString &folder) {
        QString file;
        const QString why = SaveBackupFiles(
            folder + "/backups", {.item = "apt", .chip = "VR6211", .handle = 1},
            [](CCalIniFile &ini) { ini.WriteInt("a", "b", 1); }, file);
        QDir dir(folder + "/backups");
        for (const QString &name : dir.entryList(QDir::Files)) {
            const QString plain =
                QString(name).replace(QRegularExpression("\\d{8}-\\d{6}"), "time");
            if (plain != name)
                dir.rename(name, plain);
        }
        return why;
    };
    const auto clear = [run](const QString &folder) {
        QDir(folder + "/backups").removeRecursively();
        return run(folder);
    };
    TryEachCall({.name = "backup", .run = clear});
}

QByteArray WholeLines(const QByteArray &bytes)
{
    return bytes.left(bytes.lastIndexOf('\n') + 1);
}

TEST(FlowsTest, reportsOfARun)
{
    TryEachCall({.name = "reports of a run",
                 .run =
                     [](const QString &folder) {
                         const QString out = folder + "/out";
                         QDir(out).removeRecursively();
                         SCaseResult result;
                         result.plan = "night";
                         result.step = "gains";
                         result.inputs = {{"request.group1.band", "n77"}};
                         CReports reports;
                         QString error = reports.Open(
                             out, {"0.1", "VR6211", 7, QDateTime::fromMSecsSinceEpoch(0, Qt::UTC)},
                             {result});
                         if (!error.isEmpty())
                             return error;
                         result.verdict = EVerdict::Pass;
                         result.start = QDateTime::fromMSecsSinceEpoch(0, Qt::UTC);
                         error = reports.Add(0, result);
                         const QString last = reports.Finish();
                         return error.isEmpty() ? last : error;
                     },
                 .isWhole =
                     [](const QString &name, const QByteArray &bytes, bool isKilled) {
                         if (name.endsWith(".jsonl") || name.endsWith(".csv"))
                             return isKilled || WholeLines(bytes) == bytes;
                         return bytes.trimmed().endsWith(name.endsWith(".xml") ? "</testsuites>"
                                                                               : "</html>");
                     }});
}

TEST(FlowsTest, settingsOfTheTool)
{
    TryEachCall({.name = "settings of the tool",
                 .prepare =
                     [](const QString &folder) {
                         PutFile(Of(folder, "settings.ini"),
                                 "[compare]\ngeometry=old\nkept=1\n[other]\nkept=2\n");
                     },
                 .run =
                     [](const QString &folder) {
                         CSettings settings(Of(folder, "settings.ini"));
                         settings.SetValue("compare/geometry", "new");
                         return settings.Save() ? QString() : Of(folder, "settings.ini");
                     }});
}

}  // namespace
