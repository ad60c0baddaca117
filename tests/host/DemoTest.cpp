// The demonstration, on a fake plug-in: it goes through to the end, and nothing that goes wrong is
// passed over.
#include "Host/Demo.h"

#include <QFile>
#include <QImage>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "Host/BenchHost.h"
#include "HostTestFiles.h"
#include "tests/common/TestClass.h"

class DemoTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { qunsetenv("FAKE_TOOL"); }
    void GoesThroughToTheEnd();
    void SavesAPicture();
    void FailsWhenThePictureCantBeSaved();
    void FailsWhenSomethingGoesWrong_data();
    void FailsWhenSomethingGoesWrong();

private:
    struct SOutcome
    {
        QString failure;
        QStringList lines;
    };
    static SOutcome Run(const QString &screenshotFile = {},
                        std::chrono::milliseconds deadline = std::chrono::seconds(30));
};

DemoTest::SOutcome DemoTest::Run(const QString &screenshotFile, std::chrono::milliseconds deadline)
{
    SOutcome outcome;
    CPluginHandle plugin;
    if (!plugin.Load(FakePlugin("FakeTool"), outcome.failure))
        return outcome;
    CBenchHost host(plugin);
    CDemo demo(host, plugin, screenshotFile);
    connect(&demo, &CDemo::Signal_Said, [&](const QString &line) { outcome.lines << line; });
    QSignalSpy ended(&demo, &CDemo::Signal_Ended);
    demo.Start(deadline);
    if (ended.isEmpty() && !ended.wait(60000))
        outcome.failure = "The demonstration didn't end.";
    else
        outcome.failure = ended.first().first().toString();
    QTest::qWait(0);  // whatever the end has queued
    if (ended.size() > 1)
        outcome.failure += " It ended twice.";
    return outcome;
}

void DemoTest::GoesThroughToTheEnd()
{
    const SOutcome outcome = Run();
    QCOMPARE(outcome.failure, QString());
    const QStringList expected = {
        "Asking the plug-in whether the tool can run on the DUT.",
        "The tool can run on the DUT. Showing it.",
        "The tool says \"Init done.\"",
        "Pressing Start on the page \"Continuous RX\".",
        "The plug-in reports that it works on the target.",
        "The plug-in reports that the target is idle.",
        "The tool says \"Cont Rx start...\"",
        "Pressing Stop on the page \"Continuous RX\".",
        "The plug-in reports that it works on the target.",
        "The plug-in reports that the target is idle.",
        "The tool says \"Cont Rx stop.\"",
    };
    QCOMPARE(outcome.lines, expected);
}

void DemoTest::SavesAPicture()
{
    QTemporaryDir folder;
    const QString file = folder.filePath("tool.png");
    const SOutcome outcome = Run(file);
    QCOMPARE(outcome.failure, QString());
    QCOMPARE(outcome.lines.last(), "Saved a picture of the tool as " + file + ".");
    QVERIFY(!QImage(file, "png").isNull());
}

void DemoTest::FailsWhenThePictureCantBeSaved()
{
    QTemporaryDir folder;
    const QString file = folder.filePath("no-such-folder/tool.png");
    const QString failure = Run(file).failure;
    QVERIFY2(failure.contains("Can't save a picture as " + file), qPrintable(failure));
}

void DemoTest::FailsWhenSomethingGoesWrong_data()
{
    QTest::addColumn<QByteArray>("mode");
    QTest::addColumn<int>("deadlineMs");
    QTest::addColumn<QString>("words");

    constexpr int kLong = 30000;
    constexpr int kShort = 300;
    QTest::newRow("not supported") << QByteArray("unsupported") << kLong
                                   << "The tool can't run on this DUT: It is a fake DUT.";
    QTest::newRow("never ready") << QByteArray("never-ready") << kShort
                                 << "Gave up after 0.3 s of waiting for the pages of the tool.";
    QTest::newRow("no page") << QByteArray("no-page") << kLong
                             << "The tool has no page \"Continuous RX\".";
    QTest::newRow("failure box")
        << QByteArray("start-fails") << kLong
        << "The tool opened the box \"Cont Rx start failed\": The text / The "
           "informative text / The detail";
    QTest::newRow("button stays off")
        << QByteArray("stop-off") << kShort
        << "Gave up after 0.3 s of waiting for the stop of continuous RX.";
    QTest::newRow("busy not announced")
        << QByteArray("quiet") << kLong
        << "The plug-in announced 0 target operations instead of 2, and is idle at the end.";
}

void DemoTest::FailsWhenSomethingGoesWrong()
{
    QFETCH(QByteArray, mode);
    QFETCH(int, deadlineMs);
    QFETCH(QString, words);
    qputenv("FAKE_TOOL", mode);
    QCOMPARE(Run({}, std::chrono::milliseconds(deadlineMs)).failure, words);
}

QUORLIN_TEST_CLASS(DemoTest)
#include "DemoTest.moc"
