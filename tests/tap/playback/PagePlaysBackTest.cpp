// What each page did with a DUT, it does again with the trace alone: the same calls, the same pictures.
//
// A preload needs a process from its beginning, so the stories are told by children of this program.
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include "Simulator/VondSim.h"
#include "Trace/dictionary/FieldPath.h"
#include "Trace/lines/TraceReader.h"
#include "tests/common/TestClass.h"
#include "tests/tap/playback/PageStory.h"

namespace {

constexpr int kLongestStoryMs = 300000;

QString BuiltFile(const char *name)
{
    return QCoreApplication::applicationDirPath() + "/../" + name;
}

QByteArray ContentOf(const QString &file)
{
    QFile opened(file);
    return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray();
}

QByteArray HexOf(const std::vector<uint8_t> &bytes)
{
    return QByteArray(reinterpret_cast<const char *>(bytes.data()), static_cast<int>(bytes.size()))
        .toHex();
}

const SPage *PageOf(const QString &className)
{
    const auto *page = std::find_if(kPages, kPages + kPageCount,
                                    [&](const SPage &row) { return row.className == className; });
    return page != kPages + kPageCount ? page : nullptr;
}

// TellPageStory CLASS FOLDER: the story in this process; says how many calls reached the DUT, and what
// went wrong.
int TellPageStory(const QStringList &arguments)
{
    const SStoryEnd end = TellStory(*PageOf(arguments.value(0)), arguments.value(1));
    std::printf("%u\n%s\n", end.callsOfTheDut, qPrintable(end.wrong));
    return end.wrong.isEmpty() ? 0 : 1;
}

// PressStart CLASS: what the box says that comes.
int PressStart(const QStringList &arguments)
{
    std::printf("%s\n", qPrintable(StartInWords(*PageOf(arguments.value(0)))));
    return 0;
}

struct SToldStory
{
    int exitCode = -1;
    uint callsOfTheDut = 0;
    QString wrong;
    QString tapLines;                    // what the tap said
    QMap<QString, QByteArray> pictures;  // by name
};

using Variables = QMap<QString, QString>;

QProcessEnvironment TapEnvironment(const Variables &variables)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LD_PRELOAD",
                       QStringLiteral(FIRST_PRELOAD " ") + BuiltFile("lib/libVondTap.so"));
    for (const QString &name : variables.keys())
        environment.insert(name, variables[name]);
    return environment;
}

SToldStory Tell(const QString &page, const QString &folder, const Variables &variables)
{
    QDir().mkpath(folder);
    QProcess process;
    process.setProcessEnvironment(TapEnvironment(variables));
    process.start(QCoreApplication::applicationFilePath(), {"TellPageStory", page, folder});
    SToldStory story;
    if (process.waitForFinished(kLongestStoryMs) && process.exitStatus() == QProcess::NormalExit)
        story.exitCode = process.exitCode();
    story.callsOfTheDut = process.readLine().trimmed().toUInt();
    story.wrong = process.readLine().trimmed();
    for (const QString &line : QString::fromUtf8(process.readAllStandardError()).split('\n')) {
        if (line.startsWith("VondTap") || line.startsWith("Replay"))
            story.tapLines += line + '\n';
    }
    for (const QString &picture : QDir(folder).entryList(QDir::Files))
        story.pictures[picture] = ContentOf(folder + '/' + picture);
    return story;
}

// What differs between two calls, but for times, thread and process.
QString DifferenceOf(const STraceCall &one, const STraceCall &other)
{
    const QString name = QString("call %1, %2: ")
                             .arg(one.index)
                             .arg(QString::fromStdString(std::string(one.function->name)));
    if (one.function != other.function)
        return name + QString::fromStdString(std::string(other.function->name));
    if (one.request != other.request)
        return name + "request";
    if (one.answer != other.answer)
        return name + "answer";
    const auto rest = [](const STraceCall &call) {
        return std::tie(call.handle, call.timeoutMs, call.result, call.text, call.status,
                        call.isEnded);
    };
    return rest(one) == rest(other) ? QString() : name + "result, status or arguments";
}

QString DifferenceOf(const STrace &one, const STrace &other)
{
    for (size_t i = 0; i < std::min(one.calls.size(), other.calls.size()); ++i) {
        const QString difference = DifferenceOf(one.calls[i], other.calls[i]);
        if (!difference.isEmpty())
            return difference;
    }
    return one.calls.size() == other.calls.size()
               ? QString()
               : QString("%1 calls and %2").arg(one.calls.size()).arg(other.calls.size());
}

struct SDiff
{
    int exitCode = -1;
    QString text;
    QString errors;
};

SDiff Diff(const QString &one, const QString &other)
{
    QProcess process;
    process.start(BuiltFile("bin/quorlin"), {"trace", "diff", one, other});
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

}  // namespace

QUORLIN_TEST_PROCESS(TellPageStory)
QUORLIN_TEST_PROCESS(PressStart)

class PagePlaysBackTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder.reset(new QTemporaryDir); }

    void continuousRx() { PlaysBack("CNrContRxDockWidgetV7"); }
    void rssi() { PlaysBack("CNrRssiDockWidgetV7"); }
    void rsrpForce() { PlaysBack("CNrRsrpForceDockWidgetV7"); }
    void rsrpNormal() { PlaysBack("CNrRsrpNormalDockWidgetV7"); }
    void singleToneTx() { PlaysBack("CNrSingleToneTxDockWidgetV7"); }
    void puschTxForced() { PlaysBack("CNrPuschTxForcedDockWidgetV7"); }
    void puschTxNormal() { PlaysBack("CNrPuschTxNormalDockWidgetV7"); }
    void rxPathLoss() { PlaysBack("CNrRxPathlossDockWidgetV7"); }
    void aptProfile() { PlaysBack("CNrAptProfileDockWidgetV7"); }

    void changedReadingIsShownAndNamed();
    void requestThatTheTraceHasNotFailsInWords();

private:
    QString Trace() const { return m_folder->filePath("run.jsonl"); }
    QString Out() const { return m_folder->filePath("out.jsonl"); }
    SToldStory Record(const QString &page) const
    {
        return Tell(page, m_folder->filePath("recorded"),
                    {{"VOND_TAP", "record"}, {"VOND_TAP_FILE", Trace()}});
    }
    Variables Replay() const
    {
        return {{"VOND_TAP", "replay"},
                {"VOND_TAP_MATCH", "strict"},
                {"VOND_TAP_FILE", Trace()},
                {"VOND_TAP_OUT", Out()}};
    }
    SToldStory Play(const QString &page) const
    {
        return Tell(page, m_folder->filePath("played"), Replay());
    }

    void PlaysBack(const QString &page);
    // The trace and what was played hold the same calls, for this program and for quorlin.
    void SameCalls();

    std::unique_ptr<QTemporaryDir> m_folder;
};

void PagePlaysBackTest::SameCalls()
{
    const STrace recorded = ReadTrace(Trace().toStdString(), ECutLine::Refused);
    const STrace played = ReadTrace(Out().toStdString(), ECutLine::Refused);
    QVERIFY(recorded.calls.size() > 10);
    QCOMPARE(DifferenceOf(recorded, played), QString());

    const SDiff diff = Diff(Trace(), Out());
    QCOMPARE(diff.errors, QString());
    QVERIFY2(diff.exitCode == 0, qPrintable(diff.text));
}

void PagePlaysBackTest::PlaysBack(const QString &page)
{
    const SToldStory recorded = Record(page);
    QCOMPARE(recorded.wrong + recorded.tapLines, QString());
    QCOMPARE(recorded.exitCode, 0);
    QVERIFY(recorded.callsOfTheDut > 0);

    const SToldStory played = Play(page);
    QCOMPARE(played.wrong + played.tapLines, QString());
    QCOMPARE(played.exitCode, 0);
    QCOMPARE(played.callsOfTheDut, 0u);

    QCOMPARE(recorded.pictures.size(), PageOf(page)->requestCount + 2);
    QCOMPARE(played.pictures.keys(), recorded.pictures.keys());
    for (const QString &picture : recorded.pictures.keys())
        QVERIFY2(played.pictures[picture] == recorded.pictures[picture], qPrintable(picture));
    SameCalls();
}

// The last calls of a story fail, so the first measurement is another one.
void PagePlaysBackTest::changedReadingIsShownAndNamed()
{
    constexpr char kRssiPage[] = "CNrRssiDockWidgetV7";
    const SToldStory recorded = Record(kRssiPage);
    const QByteArray original = ContentOf(Trace());
    const STrace trace = ReadTrace(Trace().toStdString(), ECutLine::Refused);
    const auto call =
        std::find_if(trace.calls.begin(), trace.calls.end(),
                     [](const STraceCall &row) { return row.function->id == EFunction::Rssi; });
    QVERIFY(call != trace.calls.end());
    const auto field = FindField(*call->function->answer, "rows.single.row[0].rssiMain");
    const QByteArray answer = HexOf(*call->answer);
    std::vector<uint8_t> other = *call->answer;
    other[field->offset] ^= 0x40;
    QByteArray changed = original;
    QCOMPARE(changed.replace(answer, HexOf(other)).size(), original.size());
    QFile file(Trace());
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(changed) == changed.size());
    file.close();

    const SToldStory played = Play(kRssiPage);
    QCOMPARE(played.exitCode, 0);
    QStringList differing;
    for (const QString &picture : recorded.pictures.keys()) {
        if (played.pictures[picture] != recorded.pictures[picture])
            differing.append(picture);
    }
    QVERIFY(differing.contains("01 measure.png"));
    QVERIFY(!differing.contains("00 ready.png"));
    QFile::rename(Trace(), m_folder->filePath("changed.jsonl"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(original) == original.size());
    file.close();
    const SDiff diff = Diff(Trace(), Out());
    QCOMPARE(diff.exitCode, 1);
    QVERIFY2(diff.text.contains("rows.single.row[0].rssiMain"), qPrintable(diff.text));
}

void PagePlaysBackTest::requestThatTheTraceHasNotFailsInWords()
{
    QCOMPARE(Record("CNrContRxDockWidgetV7").exitCode, 0);
    QProcess process;
    process.setProcessEnvironment(TapEnvironment(Replay()));
    process.start(QCoreApplication::applicationFilePath(),
                  {"PressStart", "CNrSingleToneTxDockWidgetV7"});
    QVERIFY(process.waitForFinished(kLongestStoryMs));
    const QString words = process.readAllStandardOutput();
    QVERIFY2(words.contains("Replay: no call like this in the trace"), qPrintable(words));
    const QString lines = process.readAllStandardError();
    QVERIFY2(lines.contains("Replay: VOND_MMRf_SingleToneTxV7_r: no call like this in the trace"),
             qPrintable(lines));
}

QUORLIN_TEST_CLASS(PagePlaysBackTest)
#include "PagePlaysBackTest.moc"
