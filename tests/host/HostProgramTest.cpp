// The program quorlin-host: options, exit codes and words, on a fake plug-in.
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

#include "HostProcess.h"
#include "tests/common/TestClass.h"

class HostProgramTest : public QObject
{
    Q_OBJECT

private slots:
    void HelpNeedsNoDisplayAndNamesAllOptions();
    void RefusesAWrongCommandLine_data();
    void RefusesAWrongCommandLine();
    void SaysWhatToSetWithoutADisplay();
    void KeepsItsOptionsFromQt();
    void RefusesAMissingPlugin();
    void RefusesAFileThatIsNoPlugin();
    void RefusesAnotherInterface();
    void DemoSucceedsAndSavesAPicture();
    void DemoFailsWithTheReasonOfAnUnsupportedDut();
    void DemoFailsWithTheTextsOfAFailureBox();
    void DebugLinesComeWithVerboseOnly();
    void GivesProfileAndHandleToThePlugin();
    void NeedsNothingOfTheProjectButQt();
};

namespace {

SHostRun RunFakeDemo(const QStringList &arguments, const QStringList &environment = {})
{
    return RunHost(QStringList{"--plugin", FakePlugin("FakeTool"), "--demo"} + arguments,
                   environment);
}

}  // namespace

void HostProgramTest::HelpNeedsNoDisplayAndNamesAllOptions()
{
    const SHostRun run = RunHost({"--help"}, {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"});
    QCOMPARE(run.exitCode, 0);
    for (const char *option :
         {"--plugin <FILE>", "--profile <NAME>", "--scenario <NAME>", "--handle <N>", "--verbose",
          "--screenshot <FILE>", "--record <FILE>", "--replay <FILE>", "--demo"})
        QVERIFY2(run.out.contains(option), option);
    QCOMPARE(run.err, QString());
}

void HostProgramTest::RefusesAWrongCommandLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("words");
    QTest::newRow("unknown option") << QStringList{"--nonsense"} << "Unknown option 'nonsense'.";
    QTest::newRow("missing value") << QStringList{"--plugin"} << "Missing value after '--plugin'.";
    QTest::newRow("empty value") << QStringList{"--profile", ""}
                                 << "Option 'profile' has an empty value.";
    QTest::newRow("wrong handle") << QStringList{"--handle", "first"}
                                  << "'first' is no target handle.";
    QTest::newRow("record and replay") << QStringList{"--record", "a", "--replay", "b"}
                                       << "Options 'record' and 'replay' exclude each other.";
    QTest::newRow("empty trace name")
        << QStringList{"--record", ""} << "Option 'record' has an empty value.";
    QTest::newRow("trace that can't be written")
        << QStringList{"--record", "/nowhere/run.jsonl"}
        << "Can't open the trace /nowhere/run.jsonl: No such file or directory.";
    QTest::newRow("trace that can't be read")
        << QStringList{"--replay", "/nowhere/run.jsonl"}
        << "Can't open the trace /nowhere/run.jsonl: No such file or directory.";
    QTest::newRow("extra argument") << QStringList{"extra"} << "Unexpected argument 'extra'.";
}

void HostProgramTest::RefusesAWrongCommandLine()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, words);
    const SHostRun run = RunHost(arguments);
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.err.startsWith("quorlin-host: " + words), qPrintable(run.err));
    QCOMPARE(run.out, QString());
}

void HostProgramTest::SaysWhatToSetWithoutADisplay()
{
    const SHostRun run = RunHost({"--plugin", FakePlugin("FakeTool"), "--demo"},
                                 {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"});
    QCOMPARE(run.exitCode, 4);
    QVERIFY2(run.err.endsWith("quorlin-host: Set DISPLAY or WAYLAND_DISPLAY to a display, or "
                              "QT_QPA_PLATFORM=offscreen to run without one.\n"),
             qPrintable(run.err));
}

// Qt's own option of the same name would look for a plug-in for input devices.
void HostProgramTest::KeepsItsOptionsFromQt()
{
    const SHostRun run = RunFakeDemo({});
    QVERIFY2(run.exitCode == 0, qPrintable(run.err));
    QVERIFY2(!run.err.contains("No such plugin"), qPrintable(run.err));
}

void HostProgramTest::RefusesAMissingPlugin()
{
    const SHostRun run = RunHost({"--plugin", "no-such-file.so", "--demo"});
    QCOMPARE(run.exitCode, 3);
    QVERIFY2(run.err.endsWith("quorlin-host: There is no plug-in file no-such-file.so.\n"),
             qPrintable(run.err));
}

void HostProgramTest::RefusesAFileThatIsNoPlugin()
{
    const SHostRun run = RunHost({"--plugin", BuiltFile("bin/quorlin-host"), "--demo"});
    QCOMPARE(run.exitCode, 3);
    QVERIFY2(run.err.contains("quorlin-host is no Qt plug-in."), qPrintable(run.err));
}

void HostProgramTest::RefusesAnotherInterface()
{
    const SHostRun run = RunHost({"--plugin", FakePlugin("OtherInterfaceTool"), "--demo"});
    QCOMPARE(run.exitCode, 3);
    QVERIFY2(run.err.contains("is a plug-in of another interface"), qPrintable(run.err));
}

void HostProgramTest::DemoSucceedsAndSavesAPicture()
{
    QTemporaryDir folder;
    const QString file = folder.filePath("tool.png");
    const SHostRun run = RunFakeDemo({"--screenshot", file});
    QVERIFY2(run.exitCode == 0, qPrintable(run.out + run.err));
    QVERIFY2(run.out.endsWith("The demonstration went well.\n"), qPrintable(run.out));
    QVERIFY2(!run.err.contains("quorlin-host: "), qPrintable(run.err));
    QVERIFY(!QImage(file, "png").isNull());
}

void HostProgramTest::DemoFailsWithTheReasonOfAnUnsupportedDut()
{
    const SHostRun run = RunFakeDemo({}, {"FAKE_TOOL=unsupported"});
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.err.endsWith("quorlin-host: The tool can't run on this DUT: It is a fake DUT.\n"),
             qPrintable(run.err));
    QVERIFY(!run.out.contains("went well"));
}

void HostProgramTest::DemoFailsWithTheTextsOfAFailureBox()
{
    const SHostRun run = RunFakeDemo({}, {"FAKE_TOOL=start-fails"});
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.err.contains("\"Cont Rx start failed\": The text / The informative text"),
             qPrintable(run.err));
}

void HostProgramTest::DebugLinesComeWithVerboseOnly()
{
    const QStringList environment = {"FAKE_TOOL=unsupported", "QT_LOGGING_RULES"};
    const QString line = "a debug line of the fake tool";
    const SHostRun quiet = RunFakeDemo({}, environment);
    QVERIFY2(!quiet.err.contains(line), qPrintable(quiet.err));
    const SHostRun verbose = RunFakeDemo({"--verbose"}, environment);
    QVERIFY2(verbose.err.contains(line), qPrintable(verbose.err));
}

void HostProgramTest::GivesProfileAndHandleToThePlugin()
{
    // The fake tool tells what it was given; in a refusal, because that reaches the program's
    // words.
    const SHostRun run = RunFakeDemo({"--profile", "some-profile", "--handle", "0x1f"},
                                     {"FAKE_TOOL=unsupported-with-note"});
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.err.contains("handle 31, profile some-profile"), qPrintable(run.err));
}

void HostProgramTest::NeedsNothingOfTheProjectButQt()
{
    // The loader of the system names the libraries of a program instead of running it.
    const SHostRun run = RunHost({}, {"LD_TRACE_LOADED_OBJECTS=1"});
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(run.out.contains("libQt5Widgets.so"), qPrintable(run.out));
    QVERIFY2(!run.out.contains("Vond") && !run.out.contains("libQuorlin"), qPrintable(run.out));
}

QUORLIN_TEST_CLASS(HostProgramTest)
#include "HostProgramTest.moc"
