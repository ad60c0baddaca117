// The bench host under the tap: a session with the real plug-in on record, and played back.
#include <QTemporaryDir>
#include <QTest>

#include "HostProcess.h"
#include "Trace/lines/TraceReader.h"
#include "tests/common/TestClass.h"

class HostTraceTest : public QObject
{
    Q_OBJECT

private slots:
    void RecordedSessionReadsLikeAStory();
    void SessionPlaysBackWithoutADut();
    void TapThatIsThereAlreadyIsTaken();
    void ProgramWithoutItsTapSaysSo();
};

namespace {

QString InFront(const QString &preload)
{
    const QString first = QStringLiteral(HOST_FIRST_PRELOAD);
    return "LD_PRELOAD=" + first + (first.isEmpty() || preload.isEmpty() ? "" : ":") + preload;
}

SHostRun RunDemo(const QStringList &options, const QStringList &environment = {InFront({})})
{
    return RunHost(QStringList{"--demo", "--profile", "handset"} + options, environment);
}

STrace TraceOf(const QString &file)
{
    try {
        return ReadTrace(file.toStdString(), ECutLine::Refused);
    } catch (const CTraceError &error) {
        qWarning() << error.what();
        return {};
    }
}

QStringList NotesOf(const STrace &trace)
{
    QStringList notes;
    for (const STraceNote &note : trace.notes)
        notes << QString::fromStdString(note.text);
    return notes;
}

std::size_t CountCalls(const STrace &trace, EFunction function)
{
    return static_cast<std::size_t>(
        std::count_if(trace.calls.begin(), trace.calls.end(),
                      [&](const STraceCall &call) { return call.function->id == function; }));
}

}  // namespace

void HostTraceTest::RecordedSessionReadsLikeAStory()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("run.jsonl");
    const SHostRun run = RunDemo({"--record", file});
    QVERIFY2(run.exitCode == 0, qPrintable(run.out + run.err));
    const STrace trace = TraceOf(file);
    QCOMPARE(NotesOf(trace), (QStringList{"Host: Query", "Host: Show", "Continuous RX: Start",
                                          "Continuous RX: Stop"}));
    QCOMPARE(CountCalls(trace, EFunction::ContRx), std::size_t{1});
    QCOMPARE(CountCalls(trace, EFunction::MultiModeTestStop), std::size_t{1});
    // The press stands in front of what it sets off.
    QCOMPARE(trace.calls[trace.notes[2].before].function->id, EFunction::ContRx);
    QCOMPARE(trace.calls[trace.notes[3].before].function->id, EFunction::MultiModeTestStop);
    QCOMPARE(QString::fromStdString(trace.header.core), QString("libVondCore.so"));
}

void HostTraceTest::SessionPlaysBackWithoutADut()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("run.jsonl");
    const QString again = folder.filePath("again.jsonl");
    const QString journal = folder.filePath("journal.jsonl");
    const SHostRun recorded = RunDemo({"--record", file});
    QVERIFY2(recorded.exitCode == 0, qPrintable(recorded.out + recorded.err));
    const SHostRun run =
        RunDemo({"--replay", file}, {InFront({}), "VOND_TAP_MATCH=strict", "VOND_TAP_OUT=" + again,
                                     "VOND_SIM_JOURNAL=" + journal});
    QVERIFY2(run.exitCode == 0, qPrintable(run.out + run.err));
    QCOMPARE(run.out, recorded.out);
    QVERIFY2(!QFile::exists(journal), "nothing reached the DUT");
    const STrace first = TraceOf(file);
    const STrace second = TraceOf(again);
    QCOMPARE(NotesOf(second), NotesOf(first));
    QCOMPARE(second.calls.size(), first.calls.size());
    for (std::size_t i = 0; i < first.calls.size(); ++i) {
        QCOMPARE(second.calls[i].function, first.calls[i].function);
        QVERIFY(second.calls[i].request == first.calls[i].request);
        QVERIFY(second.calls[i].answer == first.calls[i].answer);
        QCOMPARE(second.calls[i].result, first.calls[i].result);
        QCOMPARE(second.calls[i].text, first.calls[i].text);
    }
}

void HostTraceTest::TapThatIsThereAlreadyIsTaken()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("run.jsonl");
    const SHostRun run =
        RunDemo({"--record", file}, {InFront(BuiltFile("lib/libVondTap.so")), "VOND_TAP="});
    QVERIFY2(run.exitCode == 0, qPrintable(run.out + run.err));
    QVERIFY(!TraceOf(file).calls.empty());
}

void HostTraceTest::ProgramWithoutItsTapSaysSo()
{
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir("bin"));
    const QString program = folder.filePath("bin/quorlin-host");
    QVERIFY(QFile::copy(BuiltFile("bin/quorlin-host"), program));
    QProcess process;
    process.start(program, {"--record", folder.filePath("run.jsonl")});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 2);
    QCOMPARE(
        QString::fromUtf8(process.readAllStandardError()),
        QString("quorlin-host: There is no tap %1.\n").arg(folder.filePath("lib/libVondTap.so")));
}

QUORLIN_TEST_CLASS(HostTraceTest)
#include "HostTraceTest.moc"
