// The window of the bench host, on a fake plug-in.
#include "Host/BenchHost.h"

#include <QDockWidget>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSet>
#include <QStatusBar>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include "Host/Options.h"
#include "Host/ToolWindow.h"
#include "HostTestFiles.h"
#include "tests/common/TestClass.h"

class BenchHostTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void ShowsTheMetadata();
    void ShowsTheAnswerOfASupportedDut();
    void ShowsTheReasonOfAnUnsupportedDut();
    void EachButtonMakesItsRequest_data();
    void EachButtonMakesItsRequest();
    void ButtonsHaveDifferentMnemonics();
    void ButtonsStandInTheOrderOfAHostsCalls();
    void HasNoPagesOfADutThatIsNotSimulated();
    void FollowsTheToolsWindow();
    void TellsThatPagesComeBackByShowing();
    void KeepsFromTheLinkWhileBusy();
    void RefusesToCloseWhileBusy();
    void KeepsTheToolOpenWhileBusy();
    void ClosesWhenIdleAndHidesTheTool();
    void AsksBeforeItEndsARunningTest_data();
    void AsksBeforeItEndsARunningTest();
    void ForgetsTheOldestEvents();
    void ReadsHandles_data();
    void ReadsHandles();

private:
    QString Text(const char *name) const { return m_host->findChild<QLabel *>(name)->text(); }
    QPushButton *Button(const char *name) const { return m_host->findChild<QPushButton *>(name); }
    QString StatusText() const { return m_host->statusBar()->currentMessage(); }
    QTreeWidget *Events() const { return m_host->findChild<QTreeWidget *>("m_events"); }
    QString LastEvent() const;
    QStringList TakeRequests();

    std::unique_ptr<CPluginHandle> m_plugin;
    std::unique_ptr<CBenchHost> m_host;
};

void BenchHostTest::init()
{
    qunsetenv("FAKE_TOOL");
    m_plugin = std::make_unique<CPluginHandle>();
    QString error;
    QVERIFY2(m_plugin->Load(FakePlugin("FakeTool"), error), qPrintable(error));
    m_host = std::make_unique<CBenchHost>(*m_plugin);
    m_host->show();
}

void BenchHostTest::cleanup()
{
    m_host.reset();
    m_plugin.reset();
}

QString BenchHostTest::LastEvent() const
{
    const int count = Events()->topLevelItemCount();
    const QTreeWidgetItem *item = count ? Events()->topLevelItem(count - 1) : nullptr;
    return item ? item->text(1) + ": " + item->text(2) : QString();
}

QStringList BenchHostTest::TakeRequests()
{
    QStringList requests;
    QMetaObject::invokeMethod(m_plugin->RootObject(), "TakeRequests",
                              Q_RETURN_ARG(QStringList, requests));
    return requests;
}

void BenchHostTest::ShowsTheMetadata()
{
    QCOMPARE(m_host->windowTitle(), QString("Quorlin bench host"));
    QCOMPARE(Text("m_name"), QString("Fake tool"));
    QCOMPARE(Text("m_type"), QString("Bench"));
    QCOMPARE(Text("m_version"), QString("7.3"));
    QCOMPARE(Text("m_dependencies"), QString("first, second"));
    QCOMPARE(Text("m_pluginNote"), QString("A note of the fake tool."));
    QCOMPARE(Text("m_class"), QString("CFakeTool"));
    QCOMPARE(Text("m_interface"), QString("com.halvane.Vond.VondToolPlugin"));
    // The plug-in keeps major and minor of its Qt and drops the rest.
    QVERIFY2(Text("m_qt").startsWith("5."), qPrintable(Text("m_qt")));
    QCOMPARE(Text("m_file"), FakePlugin("FakeTool"));
}

void BenchHostTest::ShowsTheAnswerOfASupportedDut()
{
    qApp->setProperty("vondTargetHandle", 18u);
    qputenv("VOND_SIM_PROFILE", "some-profile");
    QCOMPARE(Text("m_isSupport"), QString("not asked yet"));
    QCOMPARE(m_host->Query().isSupport, true);
    qunsetenv("VOND_SIM_PROFILE");
    qApp->setProperty("vondTargetHandle", QVariant());
    QCOMPARE(Text("m_isSupport"), QString("Yes, now"));
    QCOMPARE(Text("m_reason"), QString("none"));
    QCOMPARE(Text("m_isNeedDb"), QString("Yes"));
    QCOMPARE(Text("m_isNeedDriver"), QString("No"));
    QCOMPARE(Text("m_launchNote"), QString("handle 18, profile some-profile"));
    QCOMPARE(Text("m_handle"), QString("18 (0x12)"));
    QCOMPARE(Text("m_profile"), QString("some-profile"));
    QVERIFY2(LastEvent().startsWith("Query: ") && LastEvent().endsWith(" ms, supported"),
             qPrintable(LastEvent()));
}

void BenchHostTest::ShowsTheReasonOfAnUnsupportedDut()
{
    qputenv("FAKE_TOOL", "unsupported");
    QCOMPARE(m_host->Query().isSupport, false);
    QCOMPARE(Text("m_isSupport"), QString("No"));
    QCOMPARE(Text("m_reason"), QString("It is a fake DUT."));
    QVERIFY2(LastEvent().endsWith(" ms, not supported: It is a fake DUT."),
             qPrintable(LastEvent()));
}

void BenchHostTest::EachButtonMakesItsRequest_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<QString>("request");
    for (const char *request : {"query", "show", "hide", "reset", "disable", "enable"})
        QTest::newRow(request) << QByteArray("m_") + request << QString(request);
}

void BenchHostTest::EachButtonMakesItsRequest()
{
    QFETCH(QByteArray, button);
    QFETCH(QString, request);
    TakeRequests();
    Button(button)->click();
    QCOMPARE(TakeRequests(), QStringList(request));
}

void BenchHostTest::ButtonsHaveDifferentMnemonics()
{
    QSet<QKeySequence> mnemonics;
    const QList<QPushButton *> buttons = m_host->findChildren<QPushButton *>();
    QCOMPARE(buttons.size(), 7);
    for (const QPushButton *button : buttons)
        mnemonics << QKeySequence::mnemonic(button->text());
    QVERIFY(!mnemonics.contains(QKeySequence()));
    QCOMPARE(mnemonics.size(), buttons.size());
}

void BenchHostTest::ButtonsStandInTheOrderOfAHostsCalls()
{
    int left = -1;
    for (const char *name :
         {"m_query", "m_show", "m_hide", "m_disable", "m_enable", "m_reset", "m_picture"}) {
        const int x = Button(name)->mapTo(m_host.get(), QPoint()).x();
        QVERIFY2(x > left, name);
        left = x;
    }
}

void BenchHostTest::HasNoPagesOfADutThatIsNotSimulated()
{
    const auto *pages = m_host->findChild<QTabWidget *>("m_panels");
    QCOMPARE(pages->count(), 1);
    QCOMPARE(pages->tabText(0), QString("Plug-in"));
    QVERIFY(!m_host->findChild<QLabel *>("m_dutRadio")->isVisible());
}

void BenchHostTest::FollowsTheToolsWindow()
{
    QCOMPARE(Text("m_activated"), QString("Hidden"));
    m_host->ShowTool();
    QCOMPARE(Text("m_activated"), QString("Shown"));
    QCOMPARE(LastEvent(), QString("Activated: Fake tool: on"));
    FindToolWindow()->close();
    QCOMPARE(Text("m_activated"), QString("Hidden"));
    QCOMPARE(LastEvent(), QString("Activated: Fake tool: off"));
}

void BenchHostTest::TellsThatPagesComeBackByShowing()
{
    Button("m_reset")->click();
    QCOMPARE(StatusText(), QString());
    m_host->ShowTool();
    Button("m_reset")->click();
    QVERIFY2(StatusText().contains("Show the tool"), qPrintable(StatusText()));
    Button("m_hide")->click();
    QCOMPARE(StatusText(), QString());
}

void BenchHostTest::KeepsFromTheLinkWhileBusy()
{
    const QList<QByteArray> onLink = {"m_query", "m_reset", "m_enable"};
    m_plugin->Tool().Slot_PluginIsBusy(true);
    QCOMPARE(Text("m_busy"), QString("Working"));
    QCOMPARE(LastEvent(), QString("Busy: Fake tool: on"));
    for (const QByteArray &name : onLink)
        QVERIFY2(!Button(name)->isEnabled(), name);
    m_plugin->Tool().Slot_PluginIsBusy(false);
    QCOMPARE(Text("m_busy"), QString("Idle"));
    for (const QByteArray &name : onLink)
        QVERIFY2(Button(name)->isEnabled(), name);
}

void BenchHostTest::RefusesToCloseWhileBusy()
{
    m_plugin->Tool().Slot_PluginIsBusy(true);
    QCOMPARE(m_host->close(), false);
    QCOMPARE(m_host->isVisible(), true);
    QVERIFY2(StatusText().contains("the bench host can be closed when it is idle"),
             qPrintable(StatusText()));
    QCOMPARE(LastEvent(), QString("Close: the bench host: refused, the tool is busy"));
    m_plugin->Tool().Slot_PluginIsBusy(false);
    QCOMPARE(StatusText(), QString());
    QCOMPARE(m_host->close(), true);
}

void BenchHostTest::KeepsTheToolOpenWhileBusy()
{
    m_host->ShowTool();
    m_plugin->Tool().Slot_PluginIsBusy(true);
    QCOMPARE(FindToolWindow()->close(), false);
    QCOMPARE(FindToolWindow()->isVisible(), true);
    QVERIFY2(StatusText().contains("the tool can be closed when it is idle"),
             qPrintable(StatusText()));
    QCOMPARE(FindToolWindow()->statusBar()->currentMessage(), StatusText());
    m_plugin->Tool().Slot_PluginIsBusy(false);
    QCOMPARE(FindToolWindow()->close(), true);
}

void BenchHostTest::ClosesWhenIdleAndHidesTheTool()
{
    m_host->ShowTool();
    QCOMPARE(m_host->close(), true);
    QCOMPARE(FindToolWindow()->isVisible(), false);
}

void BenchHostTest::AsksBeforeItEndsARunningTest_data()
{
    QTest::addColumn<QByteArray>("way");
    for (const char *way : {"tool", "host", "reset"})
        QTest::newRow(way) << QByteArray(way);
}

// The page that runs the test is not in front, and disabled as a whole.
void BenchHostTest::AsksBeforeItEndsARunningTest()
{
    QFETCH(QByteArray, way);
    m_host->ShowTool();
    auto *stop = FindToolWindow()->findChild<QPushButton *>("m_stop");
    stop->setEnabled(true);
    FindToolWindow()->findChild<QDockWidget *>()->setEnabled(false);
    m_plugin->Tool().Slot_PluginIsBusy(false);
    QCOMPARE(Text("m_busy"), QString("A test runs"));

    QMessageBox::StandardButton answer = QMessageBox::No;
    QStringList questions;
    QTimer person;
    connect(&person, &QTimer::timeout, this, [&] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        questions << box->text();
        box->button(answer)->click();
    });
    person.start(0);
    const auto act = [&] {
        TakeRequests();
        if (way == "reset")
            Button("m_reset")->click();
        else
            (way == "tool" ? FindToolWindow() : m_host.get())->close();
        return way == "tool"   ? !FindToolWindow()->isVisible()
               : way == "host" ? !m_host->isVisible()
                               : TakeRequests().contains("reset");
    };
    QVERIFY(!act());
    QCOMPARE(questions.size(), 1);
    QVERIFY2(questions[0].startsWith("A test runs on the DUT. Stop it and "),
             qPrintable(questions[0]));
    answer = QMessageBox::Yes;
    QVERIFY(act());
    QCOMPARE(questions.size(), 2);
}

void BenchHostTest::ForgetsTheOldestEvents()
{
    constexpr int kMostEvents = 1000;
    for (int i = 0; i <= kMostEvents; ++i)
        m_host->AddEvent("Event", QString::number(i));
    QCOMPARE(Events()->topLevelItemCount(), kMostEvents);
    QCOMPARE(Events()->topLevelItem(0)->text(2), QString("1"));
    QCOMPARE(LastEvent(), QString("Event: %1").arg(kMostEvents));
}

void BenchHostTest::ReadsHandles_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint64>("handle");  // -1: no handle
    QTest::newRow("decimal") << "18" << qint64(18);
    QTest::newRow("hexadecimal") << "0x1f" << qint64(31);
    QTest::newRow("hexadecimal, capitals") << "0X1F" << qint64(31);
    QTest::newRow("leading zero is decimal") << "010" << qint64(10);
    QTest::newRow("none") << "0" << qint64(0);
    QTest::newRow("largest") << "4294967295" << qint64(4294967295);
    QTest::newRow("too large") << "4294967296" << qint64(-1);
    QTest::newRow("negative") << "-1" << qint64(-1);
    QTest::newRow("words") << "first" << qint64(-1);
    QTest::newRow("0x alone") << "0x" << qint64(-1);
    QTest::newRow("empty") << "" << qint64(-1);
}

void BenchHostTest::ReadsHandles()
{
    QFETCH(QString, text);
    QFETCH(qint64, handle);
    const std::optional<uint32_t> read = ReadHandle(text);
    QCOMPARE(read ? qint64(*read) : -1, handle);
}

QUORLIN_TEST_CLASS(BenchHostTest)
#include "BenchHostTest.moc"
